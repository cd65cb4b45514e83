#include "core/engine/SectionQuality.h"

#include "core/platform/NumberText.h"
#include "core/project/Sentinels.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{
/// How many times the median a length may be.
constexpr float kLongest = 2.5F;
/// Pieces of a long segment for each median that it is long: they are two medians long or somewhat less.
constexpr float kPiecesPerMedian = 0.5F;
/// A median of next to nothing asks for pieces without end; no more are told than can be counted down.
constexpr float kMostPieces = 100000;

std::optional<float> SegmentLength(const CStationOffsets& offsets, int row)
{
    if (!offsets.IsPresent(row) || !offsets.IsPresent(row + 1))
    {
        return std::nullopt;
    }
    const auto k = static_cast<std::size_t>(row);
    const float dy = offsets.Y[k + 1] - offsets.Y[k];
    const float dz = offsets.Z[k + 1] - offsets.Z[k];
    return std::sqrt(dy * dy + dz * dz);
}

/// The value at a place of the ascending order, in which what is no number comes last; the last value for a
/// place behind it.
float Sorted(std::vector<float> values, std::size_t place)
{
    std::sort(values.begin(), values.end(),
              [](float a, float b) { return !std::isnan(a) && (a < b || std::isnan(b)); });
    return values[std::min(place, values.size() - 1)];
}

bool IsOnCentreline(const CStationOffsets& offsets, int row)
{
    const auto k = static_cast<std::size_t>(row);
    return offsets.Y[k] == 0 && offsets.Y[k + 1] == 0;
}
} // namespace

CStationOffsets CStationOffsets::Of(std::span<const float> y, std::span<const float> z, int station)
{
    const auto first = static_cast<std::size_t>(station) * kMaxOffsets;
    return {y.subspan(first).first<kMaxOffsets>(), z.subspan(first).first<kMaxOffsets>()};
}

bool CStationOffsets::IsPresent(int row) const
{
    const auto k = static_cast<std::size_t>(row);
    return IsGiven(Y[k]) && IsGiven(Z[k]);
}

int PresentPoints(const CStationOffsets& offsets)
{
    int count = 0;
    for (int row = 0; row + 1 < kMaxOffsets; ++row)
    {
        count += offsets.IsPresent(row) ? 1 : 0;
    }
    return count;
}

int CentrelinePair(const CStationOffsets& offsets, int from)
{
    const int count = PresentPoints(offsets);
    for (int row = 1; row < count; ++row)
    {
        const auto k = static_cast<std::size_t>(row);
        if (row >= from && offsets.Y[k - 1] == 0 && offsets.Y[k] == 0)
        {
            return row;
        }
        if (offsets.Y[k] > offsets.Y[k - 1])
        {
            break;
        }
    }
    return 0;
}

bool MayBeInWrongOrder(const CStationOffsets& offsets, int row)
{
    const auto k = static_cast<std::size_t>(row);
    return IsGiven(offsets.Y[k]) && IsGiven(offsets.Y[k + 1]) && offsets.Y[k + 1] < offsets.Y[k] &&
           offsets.Z[k + 1] < offsets.Z[k];
}

float MeanSegment(const CStationOffsets& offsets)
{
    float sum = 0;
    int count = 0;
    for (int row = 0; row + 1 < kMaxOffsets; ++row)
    {
        if (const auto length = SegmentLength(offsets, row))
        {
            sum += *length;
            ++count;
        }
    }
    return count > 0 ? sum / static_cast<float>(count) : 0;
}

std::vector<int> StationsWithFewPoints(std::span<const float> y, std::span<const float> z, int stationCount)
{
    std::vector<float> means;
    for (int station = 0; station < stationCount; ++station)
    {
        means.push_back(MeanSegment(CStationOffsets::Of(y, z, station)));
    }
    std::vector<int> found;
    if (means.empty())
    {
        return found;
    }
    const float median = Sorted(means, (means.size() - 1) / 2);
    for (int station = 0; station < stationCount; ++station)
    {
        if (means[static_cast<std::size_t>(station)] > kLongest * median)
        {
            found.push_back(station);
        }
    }
    return found;
}

std::string StationList(const std::vector<int>& stations)
{
    std::string list;
    for (std::size_t k = 0; k < stations.size(); ++k)
    {
        const bool isLast = k + 1 == stations.size();
        list += k == 0 ? "" : isLast ? " and " : ", ";
        list += IntegerText(stations[k]);
    }
    return list;
}

std::vector<CLongSegment> LongSegments(const CStationOffsets& offsets, float waterline, bool sparesCentreline)
{
    const int count = PresentPoints(offsets);
    std::vector<float> lengths;
    for (int row = 0; row + 1 < count; ++row)
    {
        if (const auto length = SegmentLength(offsets, row))
        {
            lengths.push_back(*length);
        }
    }
    std::vector<CLongSegment> found;
    if (lengths.empty())
    {
        return found;
    }
    const float median = Sorted(lengths, static_cast<std::size_t>(count - 1) / 2);
    for (int row = 0; row + 1 < count; ++row)
    {
        const auto length = SegmentLength(offsets, row);
        const auto k = static_cast<std::size_t>(row);
        const bool isUnderWater = waterline < 0 || (offsets.Z[k] < waterline && offsets.Z[k + 1] < waterline);
        if (length && *length > kLongest * median && isUnderWater &&
            !(sparesCentreline && IsOnCentreline(offsets, row)))
        {
            const float pieces = std::ceil(*length * kPiecesPerMedian / median);
            found.push_back({row, Truncated(std::min(pieces, kMostPieces))});
        }
    }
    return found;
}

bool SparesCentreline(int station, int stationCount, int stationOrigin)
{
    return stationOrigin == 0 ? station < stationCount / 2 : station > stationCount / 2;
}

bool HasNegativeZ(std::span<const float> z)
{
    return std::any_of(z.begin(), z.end(), [](float value) { return IsGiven(value) && value < 0; });
}
