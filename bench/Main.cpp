// How long loading, saving and writing the engine's input take for the largest project, completing, reading
// and reporting for the largest results file, and a large run of the bundled engine, each beside its
// yardstick. Times are medians of several runs, in real time, since part of each is the disk's.
#include "bench/CBenchEngine.h"
#include "bench/CBenchProject.h"
#include "bench/CBenchResults.h"
#include "bench/CRatioReporter.h"
#include "bench/Compare.h"
#include "bench/Yardstick.h"
#include "core/engine/CEngineInputWriter.h"
#include "core/platform/Files.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <iostream>

namespace
{
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

/// A report's numbers stand between tags.
constexpr std::string_view kReportSeparators = " \n<>";

void CompareCompletion(const std::string& name, CBenchResults& results, const CYardstick& listing)
{
    Compare(
        name, [&] { results.Complete(); },
        [&]
        {
            const std::string copy = JoinPath(results.Project.Folder, "yardstick.out");
            WriteBytes(JoinPath(results.Project.Folder, "yardstick.bin"), results.Binary);
            WriteBytes(copy, results.Listing);
            benchmark::DoNotOptimize(listing.ReadNumbers(ReadBytes(copy)));
        },
        kRunsOfLongSteps);
}

void CompareResults(CBenchResults& results, CYardstick& report)
{
    Compare(
        "Reading the results", [&] { results.ReadWhole(); },
        [&] { benchmark::DoNotOptimize(SumAsFloats(results.Path)); });
    Compare(
        "Writing the whole report", [&] { results.WriteReport(); },
        [&]
        {
            benchmark::DoNotOptimize(report.WriteNumbers());
            WriteBytes(JoinPath(results.Project.Folder, "yardstick.html"), report.Copy());
        },
        kRunsOfLongSteps);
}

/// What a report of the command line takes at most, as a process of its own.
void TellMemory(const CBenchResults& results, const std::string& program)
{
    const double file = static_cast<double>(ReadBytes(results.Path).size()) / (1 << 20);
    const double peak = PeakMemory({program, "--base-dir", results.Project.Folder, "--profile",
                                    JoinPath(results.Project.Folder, "profile.ini"), "report", results.Path});
    std::cout << FormatText(
        "Results file: %.1f MiB; peak memory of the whole report: %.1f MiB, twice the file and "
        "64 MiB are %.1f MiB\n",
        file, peak, 2 * file + 64);
}

void CompareEngine(const CBenchEngine& engine)
{
    Compare(
        "Engine, " + engine.Name, [&] { benchmark::DoNotOptimize(engine.Calculate()); },
        [&] { benchmark::DoNotOptimize(engine.SolveSections()); }, kRunsOfLongSteps);
}

/// What the engine takes at most, as a process of its own with all threads of the machine.
void TellEngineMemory(const CBenchEngine& engine, const std::string& program)
{
    std::cout << FormatText(
        "Peak memory of the engine, %s: %.1f MiB\n", engine.Name.c_str(),
        PeakMemory({"/bin/sh", "-c", "cd \"$0\" && exec \"$1\"", engine.Project.Folder, program}));
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

    CBenchResults half(kMaxSpeeds / 2);
    CBenchResults results;
    results.Complete();
    const std::filesystem::path programs = std::filesystem::absolute(argv[0]).parent_path();
    TellMemory(results, programs / "ondara-cli");
    results.WriteReport();
    const CYardstick halfListing(half.Listing);
    const CYardstick listing(results.Listing);
    CYardstick report(ReadBytes(results.ReportPath), kReportSeparators);
    std::cout << "Listing: " << results.Listing.size() << " bytes, " << listing.NumberCount()
              << " numbers; report: " << report.Text().size() << " bytes, " << report.NumberCount()
              << " numbers\n";
    CompareCompletion("Completing, half the speeds", half, halfListing);
    CompareCompletion("Completing the results", results, listing);
    CompareResults(results, report);

    const CBenchEngine elements(oe7::ESectionMethod::BoundaryElement);
    const CBenchEngine mapping(oe7::ESectionMethod::ConformalMapping);
    for (const CBenchEngine* engine : {&elements, &mapping})
    {
        TellEngineMemory(*engine, programs / "OE7");
        CompareEngine(*engine);
    }
    CRatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    project.RequireNoMessage();
    return EXIT_SUCCESS;
}
