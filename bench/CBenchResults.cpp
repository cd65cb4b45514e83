#include "bench/CBenchResults.h"

#include "bench/Yardstick.h"
#include "core/platform/Files.h"
#include "core/platform/NumberText.h"
#include "core/results/CResultFile.h"
#include "core/results/CalculatedArrays.h"
#include "core/results/ResultsFile.h"
#include "core/results/report/CReportWriter.h"
#include "tests/support/CEngineRun.h"
#include "tests/support/FullProject.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <numeric>
#include <thread>

#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace
{
std::vector<int> All(int count)
{
    std::vector<int> indices(static_cast<std::size_t>(count));
    std::iota(indices.begin(), indices.end(), 0);
    return indices;
}

[[noreturn]] void Stop(const std::string& what)
{
    std::cerr << what << '\n';
    std::exit(EXIT_FAILURE);
}

/// The greatest memory of a running process until now, in MiB.
double MemorySoFar(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string line;
    while (std::getline(status, line))
    {
        if (constexpr std::string_view name = "VmHWM:"; line.starts_with(name))
        {
            return NumberAtStart(line.substr(name.size())) / 1024; // from KiB
        }
    }
    return 0;
}

template <class Receiver>
void Hold(const CResults& results)
{
    Receiver receiver(results);
    WalkCalculated(results, receiver);
    benchmark::DoNotOptimize(receiver);
}
} // namespace

CBenchResults::CBenchResults(int speedCount)
    : Path(JoinPath(Project.Folder, kResultsFileName)),
      ReportPath(JoinPath(Project.Folder, kOutputReportName))
{
    CProjectData& project = Project.Project;
    FillToLargestRun(project);
    project.NSPEED.Set(static_cast<float>(speedCount));
    const CEngineRun run = EngineRunOf(project);
    Binary = EngineBinary(run);
    Listing = EngineListing(run);
    project.ResultsFilePath = Path;
    project.SelectedSpeeds = All(run.SpeedCount());
    project.SelectedHeadings = All(run.HeadingCount());
    project.SelectedSeaways = All(run.SeawayCount());
    project.SelectedPositions = All(run.LoadStationCount());
}

void CBenchResults::WriteEngineFiles() const
{
    WriteBytes(Path, Binary);
    WriteBytes(JoinPath(Project.Folder, kListingFileName), Listing);
}

void CBenchResults::Complete()
{
    WriteEngineFiles();
    CResultFile(Project.Project, Project.Folder, Project.Recorder.Platform).Complete(Path);
    Project.RequireNoMessage();
}

void CBenchResults::ReadWhole() const
{
    const CResults results = ReadResults(ReadResultsFile(Path).value());
    Hold<CFrequencyArrays>(results);
    Hold<CDampingArrays>(results);
    Hold<CSlammingArrays>(results);
    Hold<CInterruptionArrays>(results);
    Hold<CSicknessArrays>(results);
    Hold<CLoadRmsArrays>(results);
}

void CBenchResults::WriteReport()
{
    CReportFlags flags;
    flags.fill(kSectionSelected);
    flags[kSectionRmsShortCrested] = kSectionNotSelected; // the same section as the other
    if (!CReportWriter(Project.Project, Project.Recorder.Platform, ReportPath).Write(flags))
    {
        Stop("the report was not written");
    }
}

double SumAsFloats(const std::string& path)
{
    const std::string bytes = ReadBytes(path);
    double sum = 0;
    for (std::size_t at = 0; at + sizeof(float) <= bytes.size(); at += sizeof(float))
    {
        float value = 0;
        std::memcpy(&value, bytes.data() + at, sizeof value);
        sum += static_cast<double>(value);
    }
    return sum;
}

double PeakMemory(const std::vector<std::string>& command)
{
    std::vector<char*> words;
    for (const std::string& word : command)
    {
        words.push_back(const_cast<char*>(word.c_str()));
    }
    words.push_back(nullptr);
    pid_t child = 0;
    if (::posix_spawn(&child, words.front(), nullptr, nullptr, words.data(), environ) != 0)
    {
        Stop("can't run " + command.front());
    }
    // What the system counts for a child that has ended includes this process's own memory at its start.
    double peak = 0;
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0)
    {
        peak = std::max(peak, MemorySoFar(child));
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    if (status != 0 || peak == 0)
    {
        Stop("can't measure " + command.front());
    }
    return peak;
}
