#include "gui/app/COndaraDoc.h"

#include "core/platform/FileErrors.h"

void COndaraDoc::SaveInput()
{
    // The name of a project that is new is "noname": its file arises in the current folder without a
    // question.
    Tell(m_app.Project.InputFilePath.empty() ? m_app.InputFile().SaveInputAs(EActiveNames::Stay)
                                             : m_app.InputFile().SaveInput());
}

void COndaraDoc::SaveInputAs()
{
    Tell(m_app.InputFile().SaveInputAs());
}

void COndaraDoc::Tell(std::optional<ESaved> saved) const
{
    if (saved == ESaved::Short)
    {
        ShowShortSave(m_app.Project.InputFilePath, m_app.Platform.Messages);
    }
}
