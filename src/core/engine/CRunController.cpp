#include "core/engine/CRunController.h"

#include "core/engine/CEngineInputWriter.h"
#include "core/engine/EngineLog.h"
#include "core/engine/GainFiles.h"
#include "core/platform/CWaitCursor.h"
#include "core/platform/EngineFolder.h"
#include "core/platform/Files.h"
#include "core/platform/NumberText.h"
#include "core/results/CResultFile.h"
#include "core/results/CsvExport.h"
#include "core/results/LastLoadName.h"

#include <cstdio>

void ShowRunFailure(CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox("The calculation did not complete.\nThis is probably due to an error during "
                        "execution.\nPlease ensure the input file to be correct\nand try again.",
                        "Calculation did not complete", EIcon::None);
}

CRunController::CRunController(CProjectData& project, const std::string& baseDir, CPlatform& platform,
                               CRunOwner& owner)
    : Complete([&project, baseDir, &platform](const std::string& path)
               { CResultFile(project, baseDir, platform).Complete(path); }),
      m_project(project),
      m_baseDir(baseDir),
      m_platform(platform),
      m_owner(owner)
{
}

void CRunController::Run()
{
    CreateEngineFiles();
    const bool filesOk = GainFilesExist(m_project, m_baseDir, m_platform.Messages);
    if (filesOk)
    {
        m_project.EngineRunning = 0;
        CEngineInputWriter(m_project, m_baseDir, m_platform).Write();
    }
    // The flag stands from the first good write on. So a failed test later starts the engine on the input
    // that it cut short, and a missing gain file starts it on the input of before: users see the engine fail.
    if (m_project.InputWritten == 1)
    {
        StartEngine();
    }
    else if (filesOk)
    {
        m_platform.Messages.MessageBox("The calculation did not complete.", "Calculation Incomplete",
                                       EIcon::Warning);
    }
}

void CRunController::CreateEngineFiles() const
{
    for (const char* name : {kListingFileName, kResultsFileName})
    {
        const std::string path = ClaimEngineFile(m_baseDir, name);
        if (!FileExists(path))
        {
            WriteFile(path, {});
        }
    }
}

void CRunController::StartEngine()
{
    const std::string results = JoinPath(m_baseDir, kResultsFileName);
    // What stands there would be taken for the new one.
    m_oldResultsStay = CanBeRead(results) && !DeleteFile(results) && !WriteFile(results, {});
    ChangeFolder(m_baseDir);
    if (CurrentFolder().empty())
    {
        std::perror("_getcwd error");
    }
    const EStart start = m_platform.Programs.StartProgram(kEngineProgram, m_baseDir);
    const CWaitCursor cursor(m_platform.Messages);
    // An engine that isn't there, or doesn't start, passes without a word.
    if (start == EStart::Started)
    {
        m_project.EngineRunning = 1;
    }
    if (m_project.EngineRunning == 1)
    {
        Await();
    }
}

void CRunController::Await()
{
    if (!m_running)
    {
        m_owner.ShowRunningWindow();
    }
    m_running = true;
    if (!m_owner.SetTimer(kRunTimer, kRunTimerPeriod))
    {
        m_platform.Messages.MessageBox("Unable to obtain timer", "IDT_TIMER_0", EIcon::None);
    }
}

bool CRunController::Tick(int timer)
{
    if (timer != kRunTimer)
    {
        return false;
    }
    const CWaitCursor cursor(m_platform.Messages);
    if (m_running && !m_platform.Programs.IsRunning())
    {
        m_running = false; // before any message box lets another tick in
        EndRun();
    }
    return true;
}

void CRunController::EndRun()
{
    CMessages& messages = m_platform.Messages;
    KillTimer();
    const std::string path = TakeEngineFile(m_baseDir, kResultsFileName);
    const bool endedWell = !m_oldResultsStay && CResultFile::EndsWithMarker(path);
    if (endedWell)
    {
        TakeEngineFile(m_baseDir, kListingFileName);
        Complete(path);
    }
    m_owner.DestroyRunningWindow();
    if (!endedWell)
    {
        ShowRunFailure(messages);
    }
    else if (m_project.ResultsLoaded == 1)
    {
        messages.MessageBox("The calculation completed successfully.", "Calculation Complete", EIcon::None);
    }
    messages.SetCursor(ECursor::Arrow);
    const bool succeeded = endedWell && m_project.ResultsLoaded == 1;
    if (succeeded)
    {
        SetLastLoadName(m_platform.Profile, WithExtension(m_project.InputFilePath, "tv7"));
        m_project.ResultsFilePath = path;
    }
    CheckLog(m_baseDir, m_platform);
    if (succeeded)
    {
        ExportHydrodynamicCoefficients(m_project, m_baseDir, m_platform);
        ExportWaveForces(m_project, m_baseDir, m_platform);
    }
}

void CRunController::KillTimer()
{
    if (!m_owner.KillTimer(kRunTimer))
    {
        m_platform.Messages.MessageBox("Unable to kill timer: " + IntegerText(kRunTimer), "StopTimer",
                                       EIcon::None);
    }
}

void CRunController::Stop()
{
    m_platform.Programs.EndPrograms();
    if (m_running)
    {
        m_running = false;
        m_owner.KillTimer(kRunTimer);
        m_owner.DestroyRunningWindow();
    }
}

void CRunController::StartGraph()
{
    CMessages& messages = m_platform.Messages;
    switch (m_platform.Programs.ShowProgram(kGraphProgram, m_baseDir, {m_project.ResultsFilePath}))
    {
    case EStart::OutOfMemory:
        ShowOutOfMemory(messages);
        break;
    case EStart::NotFound:
        messages.MessageBox("Tervis was not found!", "Viewer Not Found", EIcon::Stop);
        break;
    case EStart::Started:
    case EStart::Refused:
        break;
    }
}
