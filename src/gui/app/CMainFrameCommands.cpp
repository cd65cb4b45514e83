// What the commands of the main window do, and its part in a run of the engine.
#include "core/engine/COffsetChecks.h"
#include "core/platform/Files.h"
#include "core/platform/LocalTime.h"
#include "core/platform/ShowDocument.h"
#include "gui/app/CMainFrame.h"
#include "gui/forms/CFormDlg.h"
#include "gui/forms/HelpTopics.h"
#include "gui/hull/COffsetEditorDlg.h"

namespace
{
constexpr int kEngineLookPeriod = 50; ///< milliseconds; the user waits for it
}

bool CMainFrame::AskToClear(const char* question)
{
    return m_app.Platform.Messages.AskYesNo(question, "File Clear", EIcon::Question);
}

void CMainFrame::ClearBoth()
{
    if (AskToClear("Are you sure you want to clear all?"))
    {
        m_app.InputFile().NewProject();
    }
}

void CMainFrame::ClearGeometry()
{
    ClearHalf(EHalf::Geometry, "Are you sure you want to clear the geometry?");
}

void CMainFrame::ClearEnvironment()
{
    ClearHalf(EHalf::Environment, "Are you sure you want to clear the environment?");
}

void CMainFrame::ClearHalf(EHalf half, const char* question)
{
    if (AskToClear(question))
    {
        m_app.InputFile().ClearHalf(half);
        m_app.RepaintView();
    }
}

void CMainFrame::OpenBoth()
{
    m_app.InputFile().OpenBoth();
}

void CMainFrame::OpenGeometry()
{
    m_app.InputFile().OpenGeometry();
}

void CMainFrame::OpenEnvironment()
{
    m_app.InputFile().OpenEnvironment();
}

void CMainFrame::ImportOffsets()
{
    m_app.InputFile().ImportOverOffsets();
}

void CMainFrame::SaveInput()
{
    m_doc.SaveInput();
}

void CMainFrame::SaveInputAs()
{
    m_doc.SaveInputAs();
}

void CMainFrame::OpenRecentFile(int index)
{
    const std::string path = m_app.RecentFiles.Paths().at(static_cast<std::size_t>(index));
    m_app.OpenRecentFile(path);
}

void CMainFrame::Exit()
{
    close();
}

void CMainFrame::OpenForm(const CFormEntry& form)
{
    if (!form.NeedsHull || HullHasStations(m_app.Project, m_app.Platform.Messages))
    {
        form.Make(m_context, this)->exec();
    }
}

void CMainFrame::DisplayBoth()
{
    ShowSummary(ESummaryScope::Both);
}

void CMainFrame::DisplayGeometry()
{
    ShowSummary(ESummaryScope::Geometry);
}

void CMainFrame::DisplayEnvironment()
{
    ShowSummary(ESummaryScope::Environment);
}

void CMainFrame::ShowSummary(ESummaryScope scope)
{
    ShowInputSummary(m_app.Project, scope, m_app.BaseDir, LocalTime(std::time(nullptr)), m_app.Platform,
                     [this](const std::string& path) { ShowDocument(path, m_app.Platform); });
}

void CMainFrame::CheckOffsets()
{
    COffsetChecks checks(m_app.Project, m_app.BaseDir, m_app.Platform, [this] { return WaitForEngine(); });
    checks.OpenOffsetEditor = [this] { COffsetEditorDlg(m_context, this, EOpenedFrom::OffsetChecks).exec(); };
    checks.Modified = [this] { m_app.Modified = 1; };
    checks.Run();
}

bool CMainFrame::WaitForEngine()
{
    CPrograms& programs = m_app.Platform.Programs;
    if (!programs.IsRunning())
    {
        return true;
    }
    CRunningDlg waiting(this);
    waiting.AllowCancel();
    QTimer look;
    connect(&look, &QTimer::timeout, &waiting,
            [&]
            {
                if (!programs.IsRunning())
                {
                    waiting.accept();
                }
            });
    look.start(kEngineLookPeriod);
    if (waiting.exec() == QDialog::Accepted)
    {
        return true;
    }
    programs.EndPrograms();
    return false;
}

void CMainFrame::Run()
{
    RunController().Run();
}

void CMainFrame::Graph()
{
    RunController().StartGraph();
}

CRunController& CMainFrame::RunController()
{
    if (!m_run)
    {
        CRunOwner& owner = *this;
        m_run.emplace(m_app.Project, m_app.BaseDir, m_app.Platform, owner);
    }
    return *m_run;
}

bool CMainFrame::SetTimer(int, int milliseconds)
{
    m_runTimer.start(milliseconds);
    return m_runTimer.isActive();
}

bool CMainFrame::KillTimer(int)
{
    m_runTimer.stop();
    return !m_runTimer.isActive();
}

void CMainFrame::ShowRunningWindow()
{
    m_running = std::make_unique<CRunningDlg>(this);
    m_running->show();
}

void CMainFrame::DestroyRunningWindow()
{
    m_running.reset();
}

void CMainFrame::StopRun()
{
    if (m_run && m_run->IsRunning())
    {
        m_run->Stop();
    }
}

CResultsCommands CMainFrame::ResultsCommands()
{
    CResultsCommands commands(m_app.Project, m_app, m_app.Platform);
    commands.UpdateTitle = [this] { UpdateTitle(); };
    return commands;
}

void CMainFrame::SaveResultsAs()
{
    ResultsCommands().SaveAs();
}

void CMainFrame::LoadResults()
{
    ResultsCommands().LoadResults();
}

void CMainFrame::LoadLastCalculated()
{
    ResultsCommands().LoadLastCalculated();
}

void CMainFrame::HelpContents()
{
    ShowHelp(kHelpContents);
}

void CMainFrame::HelpSearch()
{
    ShowHelp(kHelpContents);
}

void CMainFrame::ShowHelp(int)
{
    const std::string file = JoinPath(m_app.BaseDir, "OndaraHelp.chm");
    if (FileExists(file))
    {
        m_app.Platform.Programs.ShellOpen(file);
    }
}
