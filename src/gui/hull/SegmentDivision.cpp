#include "gui/hull/SegmentDivision.h"

#include <numeric>

void LowerToFit(std::vector<CLongSegment>& segments, int points)
{
    const auto total = [&segments, points]
    {
        return std::accumulate(segments.begin(), segments.end(), points,
                               [](int sum, const CLongSegment& segment) { return sum + segment.Pieces; });
    };
    bool lowered = true;
    while (lowered && total() > kMaxOffsets)
    {
        lowered = false;
        for (CLongSegment& segment : segments)
        {
            if (segment.Pieces > 1)
            {
                --segment.Pieces;
                lowered = true;
            }
        }
    }
}

int PointsLeft(int points, std::span<const CLongSegment> stillToCome)
{
    return std::accumulate(stillToCome.begin(), stillToCome.end(), kMaxOffsets - points,
                           [](int left, const CLongSegment& segment) { return left - (segment.Pieces - 1); });
}

bool HasRoom(int points, int pieces)
{
    return pieces <= kMaxOffsets + 1 - points;
}
