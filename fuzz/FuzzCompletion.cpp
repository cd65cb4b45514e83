// Any bytes as what the engine leaves. The first byte picks the project of the run; its highest bit tells
// that the rest begins with a binary file of the engine, whose length stands in the next two bytes
// (little-endian). Without it the binary file is the one that the engine would have made. What is left is the
// listing.
#include "fuzz/CFuzzProject.h"
#include "fuzz/CScratchFolder.h"
#include "fuzz/FuzzTarget.h"

#include "core/platform/Files.h"
#include "core/results/CResultFile.h"
#include "core/results/CResultsCursor.h"
#include "core/results/report/CReportWriter.h"
#include "tests/support/CEngineRun.h"
#include "tests/support/FullProject.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace
{
constexpr int kOwnBinary = 0x80;

struct CVariant
{
    float Spectrum;
    float OutputLevel;
    float PositionCount;
    float GMFlag;

    /// And of seaways: directional spectra have many headings.
    float SpeedCount() const { return IsDirectional(static_cast<int>(Spectrum)) ? 1 : 2; }
};

// Small runs, so that most of the time goes into the listing.
constexpr std::array<CVariant, 8> kVariants = {{{2, 2, 6, 0},
                                                {2, 2, 3, 1},
                                                {0, 2, 6, 0},
                                                {0, 0, 1, 1},
                                                {7, 2, 2, 0},
                                                {6, 1, 4, 0},
                                                {4, 0, 6, 1},
                                                {3, 1, 1, 0}}};

void Fill(CProjectData& project, const CVariant& variant)
{
    FillToMaximum(project);
    project.SPECTRUM.Set(variant.Spectrum);
    project.OUTRAO.Set(variant.OutputLevel);
    project.NPOS.Set(variant.PositionCount);
    project.GMFLAG.Set(variant.GMFlag);
    project.NSEADIR.Set(2);
    project.NSPEED.Set(variant.SpeedCount());
    project.NSEAWAY.Set(variant.SpeedCount());
    project.NST.Set(5);
    project.NSTLOAD.Set(2);
    project.WaveFreqUserInput = 1;
    project.WVFREQMIN.Set(0.2F);
    project.WVFREQMAX.Set(0.4F);
    project.DWVFREQ.Set(0.1F);
}

/// Takes the binary file off the front of the input.
std::string TakeBinary(std::string_view& input)
{
    if (input.size() < 2)
    {
        return {};
    }
    const auto byte = [&input](std::size_t at) { return static_cast<unsigned char>(input[at]); };
    const std::size_t length = std::min<std::size_t>(byte(0) + 256U * byte(1), input.size() - 2);
    const std::string binary(input.substr(2, length));
    input.remove_prefix(2 + length);
    return binary;
}

/// A completed file may lack what the listing lacked, so that a reader may refuse it; it never fails
/// otherwise.
void ReadCompleted(const std::string& path, const CProjectData& project)
{
    try
    {
        const CResults results = ReadResults(ReadFile(path, 1 << 24).value());
        CReportFlags all;
        all.fill(kSectionSelected);
        Require(!OutputReport(results, project, all, "").empty(), "a report is written");
    }
    catch (const CResultsError&)
    {
        return;
    }
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    static const CScratchFolder folder;
    std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
    CFuzzProject project;
    Fill(project.Project, kVariants[data[0] % kVariants.size()]);
    const std::string binary =
        (data[0] & kOwnBinary) != 0 ? TakeBinary(input) : EngineBinary(EngineRunOf(project.Project));
    const std::string path = JoinPath(folder.Path(), kResultsFileName);
    Require(WriteFile(path, binary) && WriteFile(JoinPath(folder.Path(), kListingFileName), input),
            "the engine's files are written");
    if (!CResultFile::EndsWithMarker(path))
    {
        return 0;
    }
    CResultFile(project.Project, folder.Path(), project.Recorder.Platform).Complete(path);
    const bool complete = project.Project.ResultsLoaded == 1;
    Require(project.Recorder.Messages.size() == (complete ? 0U : 1U), "a failed completion is told once");
    if (complete)
    {
        ReadCompleted(path, project.Project);
    }
    return 0;
}
