// Any bytes as an offset file, and the project that its stations go into.
#include "fuzz/CFuzzProject.h"
#include "fuzz/FuzzTarget.h"

#include "core/project/OffsetImport.h"

#include <string>

namespace
{
void RequireWithin(float value, float minimum, float maximum)
{
    Require(minimum <= value && value <= maximum, "an imported offset is within its limits");
}

void RequireWithinLimits(const COffsetTable& offsets)
{
    Require(offsets.StationCount >= 2 && offsets.StationCount <= kMaxStations,
            "2 to 21 stations are imported");
    for (int station = 0; station < offsets.StationCount; ++station)
    {
        const int count = offsets.Counts[static_cast<std::size_t>(station)];
        Require(count >= 3 && count <= kMaxOffsets, "a station has 3 to 60 offsets");
        for (int k = 0; k < count; ++k)
        {
            const auto slot = static_cast<std::size_t>(station * kMaxOffsets + k);
            RequireWithin(offsets.Y[slot], 0, 100000);
            RequireWithin(offsets.Z[slot], -50, 100000);
        }
    }
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string content(data, data + size);
    COffsetTable offsets;
    if (!ReadOffsets(content, offsets).empty())
    {
        return 0;
    }
    RequireWithinLimits(offsets);
    CFuzzProject project;
    StoreOffsets(offsets, project.Project);
    project.Project.RecomputeCompleteness();
    RequireSameAfterReading(project.Project);
    return 0;
}
