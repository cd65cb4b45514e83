#include "gui/app/CProjectDescriptionDlg.h"

#include "gui/forms/HelpTopics.h"

CProjectDescriptionDlg::CProjectDescriptionDlg(CFormContext& context, QWidget* parent)
    : CFormDlg(context, "CProjectDescriptionDlg", tr("Project Description"), kHelpDescription, parent)
{
    constexpr int longest = 79; // what the files have room for
    Text(tr("Description"), "ProjectTitle", Project().ProjectTitle, longest).Edit().ShowsCharacters(60);
}
