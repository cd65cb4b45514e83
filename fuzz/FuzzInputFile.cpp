// Any bytes as a project file, and all that the program does with what was read. The first byte picks the
// half.
#include "fuzz/CFuzzProject.h"
#include "fuzz/CScratchFolder.h"
#include "fuzz/FuzzTarget.h"

#include "core/engine/CEngineInputWriter.h"
#include "core/project/InputFileText.h"
#include "core/project/UnitConversion.h"

#include <array>
#include <string>

namespace
{
constexpr std::array<EHalf, 3> kHalves = {EHalf::Both, EHalf::Geometry, EHalf::Environment};

/// A failed read shows its one message, any other none.
void RequireOneMessage(EOpened opened, const CRecorder& recorder)
{
    const std::size_t expected = opened == EOpened::Whole ? 0 : 1;
    Require(recorder.Messages.size() == expected, "a failed read, and no other, shows one message");
}

void WriteEngineInputs(CFuzzProject& project)
{
    static const CScratchFolder folder;
    CEngineInputWriter writer(project.Project, folder.Path(), project.Recorder.Platform);
    const std::size_t messages = project.Recorder.Messages.size();
    const bool written = writer.Write();
    Require(!written || project.Recorder.Messages.size() == messages, "what is written shows no message");
    writer.WriteReduced();
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const EHalf half = kHalves[data[0] % kHalves.size()];
    const std::string content(data + 1, data + size);
    CFuzzProject project;
    const EOpened opened = project.File.ReadContent(content, half);
    RequireOneMessage(opened, project.Recorder);
    // A half opened alone leaves the other as it was, so that the whole can be written and read as well.
    if (opened == EOpened::Whole)
    {
        RequireSameAfterReading(project.Project);
    }
    project.Project.RecomputeCompleteness();
    WriteEngineInputs(project);
    for (const int unit : {kUnitBritish, kUnitMetric})
    {
        ConvertProject(project.Project, unit);
        Require(!InputFileText(project.Project).empty(), "a converted project is written");
        WriteEngineInputs(project);
    }
    return 0;
}
