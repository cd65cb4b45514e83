// How long loading, saving and writing the engine's input take for the largest project, each beside its
// yardstick. Times are medians of several runs, in real time, since part of each is the disk's.
#include "bench/CBenchProject.h"
#include "bench/CRatioReporter.h"
#include "bench/Yardstick.h"
#include "core/engine/CEngineInputWriter.h"
#include "core/platform/Files.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <iostream>

namespace
{
constexpr int kRuns = 15;

/// A step of the program, and the yardstick of the same step.
void Compare(const std::string& name, const std::function<void()>& program,
             const std::function<void()>& yardstick)
{
    for (const auto& [part, step] : {std::pair("/program", program), std::pair("/yardstick", yardstick)})
    {
        benchmark::RegisterBenchmark((name + part).c_str(),
                                     [step = step](benchmark::State& state)
                                     {
                                         for (auto iteration : state)
                                         {
                                             static_cast<void>(iteration);
                                             step();
                                         }
                                     })
            ->Unit(benchmark::kMicrosecond)
            ->UseRealTime()
            ->MinTime(0.05)
            ->Repetitions(kRuns)
            ->ReportAggregatesOnly();
    }
}

void CompareReading(CBenchProject& project, const CYardstick& yardstick, const std::string& text)
{
    Compare(
        "Loading the file", [&] { project.File.OpenPath(project.Path); },
        [&] { benchmark::DoNotOptimize(yardstick.ReadNumbers(ReadBytes(project.Path))); });
    Compare(
        "  of that, reading the text", [&] { project.File.ReadContent(text, EHalf::Both); },
        [&]
        {
            std::string copy(text);
            benchmark::DoNotOptimize(yardstick.ReadNumbers(copy));
        });
}

void CompareSaving(CBenchProject& project, CYardstick& yardstick)
{
    Compare(
        "Saving the file", [&] { project.File.Save(); },
        [&]
        {
            benchmark::DoNotOptimize(yardstick.WriteNumbers());
            WriteBytesToDisk(project.Path, yardstick.Copy());
        });
    Compare(
        "  of that, composing the text", [&] { benchmark::DoNotOptimize(InputFileText(project.Project)); },
        [&] { benchmark::DoNotOptimize(yardstick.WriteNumbers()); });
}

void CompareEngineInput(CBenchProject& project, CYardstick& yardstick)
{
    Compare(
        "Writing the engine's input",
        [&] { CEngineInputWriter(project.Project, project.Folder, project.Recorder.Platform).Write(); },
        [&]
        {
            benchmark::DoNotOptimize(yardstick.WriteNumbers());
            WriteBytes(JoinPath(project.Folder, "yardstick.inp"), yardstick.Copy());
        });
}
} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return EXIT_FAILURE;
    }
    CBenchProject project;
    CEngineInputWriter(project.Project, project.Folder, project.Recorder.Platform).Write();
    project.RequireNoMessage();
    const std::string text = ReadBytes(project.Path);
    const std::string input = ReadBytes(JoinPath(project.Folder, kEngineInputName));
    CYardstick fileYardstick(text);
    CYardstick inputYardstick(input);
    std::cout << "Project file: " << text.size() << " bytes, " << fileYardstick.NumberCount()
              << " numbers; engine's input: " << input.size() << " bytes, " << inputYardstick.NumberCount()
              << " numbers; medians of " << kRuns << " runs\n";

    CompareReading(project, fileYardstick, text);
    CompareSaving(project, fileYardstick);
    CompareEngineInput(project, inputYardstick);
    CRatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    project.RequireNoMessage();
    return EXIT_SUCCESS;
}
