// Stands for the engine in tests. Works in the current folder as the engine does, by its description there;
// see CScriptedEngine.h.
#include "core/platform/EngineFolder.h"
#include "core/project/CInputFile.h"
#include "tests/support/CEngineRun.h"
#include "tests/support/CRecorder.h"
#include "tests/support/CScriptedEngine.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <map>
#include <sstream>
#include <thread>

namespace
{
constexpr const char* kInput = "Ondara7.inp";
constexpr const char* kBinary = "ondara7.bin";
constexpr const char* kListing = "ondara7.out";
constexpr const char* kLog = "ondara7.log";

struct CDescription
{
    std::string Project;
    std::string Failure;
    std::string Marker; ///< of the listing, that is left out
    int SleepTime = 0;  ///< milliseconds

    bool Fails(const char* how) const { return Failure == how; }
};

CDescription ReadDescription()
{
    constexpr std::size_t longest = 100000;
    std::istringstream lines(ReadFile(kScriptedEngineDescription, longest).value_or(""));
    CDescription description;
    for (std::string key, value; lines >> key && std::getline(lines >> std::ws, value);)
    {
        if (key == "project")
        {
            description.Project = value;
        }
        else if (key == "sleep")
        {
            description.SleepTime = IntegerAtStart(value);
        }
        else if (key == "fail")
        {
            const std::size_t blank = value.find(' ');
            description.Failure = value.substr(0, blank);
            description.Marker = blank == std::string::npos ? "" : value.substr(blank + 1);
        }
    }
    return description;
}

void Write(const char* name, const std::string& content)
{
    WriteFile(ClaimEngineFile(".", name), content);
}

int EndWithError(const std::string& error)
{
    Write(kLog, EngineErrorLog({}, error));
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
}

void WaitFor(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

/// In the engine's order: the binary file last, then the log.
int Calculate(const CDescription& description, const CEngineRun& run)
{
    const std::string listing = EngineListing(run);
    if (!description.Fails("no-listing"))
    {
        Write(kListing, description.Marker.empty() ? listing : WithoutMarker(listing, description.Marker));
    }
    Write("Ondara7_DimHyCo.csv", EngineCoefficientTable(run));
    Write("Ondara7_WaveForce.csv", EngineWaveForceTable(run));
    if (description.Fails("crash"))
    {
        std::raise(SIGKILL);
    }
    if (description.Fails("no-file"))
    {
        return EndWithError("made up for a test");
    }
    const std::string binary = EngineBinary(run);
    Write(kBinary, description.Fails("short-file")  ? "CBD"
                   : description.Fails("no-marker") ? WithoutEndMark(binary)
                                                    : binary);
    if (description.Fails("log-error"))
    {
        return EndWithError("made up for a test");
    }
    Write(kLog, description.Fails("log-warning") ? EngineLog(run, {"made up for a test"}) : EngineLog(run));
    if (description.Fails("no-log"))
    {
        std::remove(kLog);
    }
    return 0;
}
} // namespace

int main()
{
    constexpr int fiveMinutes = 300000;
    const CDescription description = ReadDescription();
    Write(kLog, "-1 the calculation did not come to its end\n");
    std::remove(ClaimEngineFile(".", kBinary).c_str());
    if (description.Fails("no-listing"))
    {
        std::remove(ClaimEngineFile(".", kListing).c_str());
    }
    WaitFor(description.Fails("never-ends") ? fiveMinutes : description.SleepTime);
    if (!FileExists(kInput))
    {
        return EndWithError("there is no input");
    }

    CRecorder recorder;
    CProjectSession session{recorder};
    CProjectData project;
    CInputFile file{project, session, recorder.Platform};
    file.NewProject();
    if (description.Project.empty() || file.OpenPath(description.Project) != EOpened::Whole)
    {
        return EndWithError("there is no project to calculate: " + description.Project);
    }
    return Calculate(description, EngineRunOf(project));
}
