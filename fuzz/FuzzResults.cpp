// Any bytes as a results file: read, restored into a project, estimated and written as a whole report.
#include "fuzz/CFuzzProject.h"
#include "fuzz/CScratchFolder.h"
#include "fuzz/FuzzTarget.h"

#include "core/platform/Files.h"
#include "core/project/InputFileText.h"
#include "core/results/CResultFile.h"
#include "core/results/CResultsCursor.h"
#include "core/results/report/CReportWriter.h"
#include "core/results/report/PageEstimate.h"

#include <numeric>
#include <optional>
#include <string>
#include <vector>

namespace
{
std::vector<int> All(std::size_t count)
{
    std::vector<int> indices(count);
    std::iota(indices.begin(), indices.end(), 0);
    return indices;
}

void SelectAll(CProjectData& project, const CResults& results)
{
    project.SelectedSpeeds = All(results.Control.Speeds.size());
    project.SelectedHeadings = All(results.Body.Headings.size());
    project.SelectedSeaways = All(results.Body.WaveHeights.size());
    project.SelectedPositions = All(results.Body.LoadStations.size());
}

/// Each section alone, so that one that fails hides no other.
void WriteReports(const CResults& results, CProjectData& project)
{
    SelectAll(project, results);
    for (std::size_t section = 0; section < kReportSectionCount; ++section)
    {
        CReportFlags flags;
        flags.fill(kSectionNotSelected);
        flags[section] = kSectionSelected;
        try
        {
            Require(!OutputReport(results, project, flags, "").empty(), "a report is written");
        }
        catch (const CResultsError&)
        {
            continue;
        }
    }
}

std::optional<CResults> Read(const std::string& bytes)
{
    try
    {
        return ReadResults(bytes);
    }
    catch (const CResultsError&)
    {
        return std::nullopt;
    }
}

void Restore(const std::string& path)
{
    CFuzzProject project;
    CResultFile file(project.Project, "", project.Recorder.Platform);
    const bool restored = file.RestoreProject(path);
    Require(restored == project.Recorder.Messages.empty(),
            "a file that isn't restored, and no other, is told");
    Require(project.Recorder.Messages.size() <= 1, "one message tells it");
    Require(!InputFileText(project.Project).empty(), "a restored project is written");
    file.ScanCounts(path);
    Require(file.HeadingCount <= kMaxHeadings && file.SeawayCount <= kMaxSeaways &&
                file.FreqCount <= kMaxFrequencies,
            "scanned counts are within the limits");
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const CScratchFolder folder;
    const std::string bytes(data, data + size);
    const std::string path = JoinPath(folder.Path(), "fuzzed.tv7");
    Require(WriteFile(path, bytes), "there is a file to restore from");
    Restore(path);
    if (const std::optional<CResults> results = Read(bytes))
    {
        CFuzzProject project;
        WriteReports(*results, project.Project);
    }
    return 0;
}
