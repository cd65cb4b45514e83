// The output report as a document of the engine's folder: written there, copied where the user wants it,
// shown.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"
#include "core/results/report/CReportWriter.h"

#include <string>

class CReportDocument
{
public:
    CReportDocument(CProjectData& project, CProjectSession& session, CPlatform& platform);

    /// Replaces the document by the report of the sections with flag 0. False after a message.
    bool Write(const CReportFlags& flags);
    /// Asks for a name and copies the document there. A message if that fails; nothing if the user cancels.
    void SaveAs();
    /// Opens the document.
    void Show();

private:
    CProjectData& m_project;
    CProjectSession& m_session;
    CPlatform& m_platform;
    std::string m_path;
};
