// What in a section's offsets would spoil the model that the engine makes of it: looks at one station at a
// time, or at all of them, and changes nothing. The command Check Offsets looks at the project so, the offset
// editor at its working copy.
#pragma once

#include "core/project/CProjectData.h"

#include <span>
#include <vector>

/// The offsets of one station, row by row; -1 in Y or Z where a row holds no point.
struct CStationOffsets
{
    std::span<const float, kMaxOffsets> Y;
    std::span<const float, kMaxOffsets> Z;

    /// Row and number of stations are those of the two arrays, 60 slots a station.
    static CStationOffsets Of(std::span<const float> y, std::span<const float> z, int station);

    /// Whether a row holds both Y and Z.
    bool IsPresent(int row) const;
};

/// The points of all rows but the last: as many rows from the first on are taken for the section.
int PresentPoints(const CStationOffsets& offsets);

/// The row of the second of two points in succession that lie at Y 0 exactly, from row `from` on; 0 if there
/// are none. Only the points at the keel count, up to the first rise in Y.
int CentrelinePair(const CStationOffsets& offsets, int from = 1);

/// Whether a row and the one behind it may be in the wrong order: Y and Z both fall.
bool MayBeInWrongOrder(const CStationOffsets& offsets, int row);

/// The mean length of the segments between rows that follow each other; 0 without a segment.
float MeanSegment(const CStationOffsets& offsets);

/// The stations whose segments are on average more than 2.5 times as long as the median station's.
std::vector<int> StationsWithFewPoints(std::span<const float> y, std::span<const float> z, int stationCount);
/// "3", "3 and 4", "3, 4 and 5".
std::string StationList(const std::vector<int>& stations);

/// A segment that is long, and into how many pieces it would be divided: more, for a very short median, than
/// the station has room for.
struct CLongSegment
{
    int Row; ///< of its first point
    int Pieces;
};

/// The segments longer than 2.5 times the station's median one that lie under the waterline. A negative
/// waterline takes in all. With `sparesCentreline` those at Y 0 exactly are left out.
std::vector<CLongSegment> LongSegments(const CStationOffsets& offsets, float waterline,
                                       bool sparesCentreline);

/// Whether a station lies in the half of the ship whose segments on the centreline, as those of a bulb or a
/// cut-up stem, are meant to be long.
bool SparesCentreline(int station, int stationCount, int stationOrigin);

/// Whether any Z is below 0, in whatever slot.
bool HasNegativeZ(std::span<const float> z);
