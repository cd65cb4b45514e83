#include "core/results/report/CReportDocument.h"

#include "core/platform/EngineFolder.h"
#include "core/platform/FileErrors.h"
#include "core/platform/Files.h"
#include "core/platform/ShowDocument.h"

namespace
{
constexpr const char* kExtension = "html";
constexpr const char* kFilter = "Result Files (*.html)|*.html|All Files(*.*)|*.*|";
} // namespace

CReportDocument::CReportDocument(CProjectData& project, CProjectSession& session, CPlatform& platform)
    : m_project(project),
      m_session(session),
      m_platform(platform),
      m_path(JoinPath(session.BaseDir, kOutputReportName))
{
}

bool CReportDocument::Write(const CReportFlags& flags)
{
    return CReportWriter(m_project, m_platform, m_path).Write(flags);
}

void CReportDocument::SaveAs()
{
    const std::string suggested = WithExtension(FileName(m_project.ResultsFilePath), kExtension);
    ChangeFolder(m_session.WorkDir);
    const auto path = m_platform.FileDialogs.AskSave({kExtension, suggested, kFilter, true});
    if (path)
    {
        ChangeToFolderOf(*path);
        if (IsReadOnly(*path) || !CopyFileOver(m_path, ResolvedPath(*path)))
        {
            ShowSaveError(m_platform.Messages);
        }
    }
    m_session.WorkDir = CurrentFolder();
}

void CReportDocument::Show()
{
    ShowDocument(m_path, m_platform);
}
