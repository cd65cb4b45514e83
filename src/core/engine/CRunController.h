// Turns the project into a finished calculation: writes the engine's input, starts the engine, watches it,
// and when it has ended completes its results, tells the outcome and keeps what belongs to it. Knows no
// screen and no clock: its owner brings a timer and a window that says that a run goes on.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <functional>
#include <string>

constexpr const char* kEngineProgram = "OE7.exe";
constexpr const char* kGraphProgram = "Tervis200.exe";
constexpr int kRunTimer = 4;
constexpr int kRunTimerPeriod = 750; ///< milliseconds

/// What the owner of a run controller brings.
class CRunOwner
{
public:
    virtual ~CRunOwner() = default;

    /// Arms a timer whose ticks go to CRunController::Tick; one that is armed begins anew. False if it can't.
    virtual bool SetTimer(int timer, int milliseconds) = 0;
    virtual bool KillTimer(int timer) = 0;
    virtual void ShowRunningWindow() = 0;
    virtual void DestroyRunningWindow() = 0;
};

class CRunController
{
public:
    /// `baseDir` is the engine's folder.
    CRunController(CProjectData& project, const std::string& baseDir, CPlatform& platform, CRunOwner& owner);

    /// The command Run. While a run goes on it takes the results file away and starts a second engine.
    void Run();
    /// A tick of a timer; false if that is another's. Nothing happens while the engine runs or none is
    /// awaited.
    bool Tick(int timer);
    /// Ends the engine without a word, and the run with it: neither completion nor messages follow.
    void Stop();
    /// True from a start of the engine to the tick that finds its end.
    bool IsRunning() const { return m_running; }

    /// The command Graph: shows the results file in the graph viewer.
    void StartGraph();

    /// Completes the results file at a path and sets `ResultsLoaded`; CResultFile does it.
    std::function<void(const std::string& path)> Complete;

private:
    void CreateEngineFiles() const;
    void StartEngine();
    void Await();
    void KillTimer();
    void EndRun();

    CProjectData& m_project;
    std::string m_baseDir;
    CPlatform& m_platform;
    CRunOwner& m_owner;
    bool m_running = false;
    bool m_oldResultsStay = false; ///< results of before could be neither deleted nor emptied
};

/// "The calculation did not complete." for an engine that left no results with its end marker.
void ShowRunFailure(CMessages& messages);
