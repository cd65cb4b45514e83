#include "gui/app/CContactInfoDlg.h"

CContactInfoDlg::CContactInfoDlg(QWidget* parent)
    : CInformationDlg("CContactInfoDlg", tr("Contact Information"), parent)
{
    const QString text = tr(
        "Ondara is made by Larkfield Marine Limited.\n\n"
        "Questions and fault reports go to whoever gave you this copy. The text of \"About\", the project "
        "file and the engine's files Ondara7.inp and ondara7.out help to find out what happened.\n\n"
        "It stands on the work of others: Qt for windows and dialogs, QCustomPlot for plots, Eigen for the "
        "engine's equations. Each comes under its own free licence.");
    LayOut(tr("Larkfield Marine Limited"), text);
}
