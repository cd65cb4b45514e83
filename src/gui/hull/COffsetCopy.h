// The hull's offsets as the offset editor works on them: a copy of the project's, in the order in which the
// screen numbers the stations. With station 0 aft that is the project's order reversed.
#pragma once

#include "core/engine/SectionQuality.h"
#include "core/project/CProjectData.h"

#include <array>
#include <span>

class COffsetCopy
{
public:
    /// Takes the project's offsets, of which the first `stationCount` stations are in use.
    COffsetCopy(const CProjectData& project, int stationCount);

    // What it holds. Stations as the screen numbers them; rows 0 to 59; -1 where nothing is given.
    int StationCount() const { return m_stationCount; }
    int Unit() const { return m_unit; }
    float Y(int station, int row) const { return m_y[Slot(station, row)]; }
    float Z(int station, int row) const { return m_z[Slot(station, row)]; }
    std::span<const float> AllY() const { return m_y; }
    std::span<const float> AllZ() const { return m_z; }
    CStationOffsets Station(int station) const { return CStationOffsets::Of(m_y, m_z, station); }
    /// How many of the 60 rows hold both Y and Z.
    int PointCount(int station) const;
    /// The number of a station from the forward end.
    int FromForward(int station) const;

    // What the user does with points.
    void Set(int station, int row, float y, float z);
    void SwapRows(int station, int row);
    /// Divides the segment from a row to the next into equal pieces by points on the straight line. The rows
    /// behind move down; with fewer free rows than that takes it is divided into fewer pieces. Gives the
    /// count of pieces; nothing is done below 2.
    int Divide(int station, int row, int pieces);

    // What the user does with stations.
    /// Puts an empty station before this one. The caller sees to it that there are no more than 21.
    void InsertStation(int station);
    void DeleteStation(int station);
    void CopyStation(int from, int to);
    void ClearStation(int station);
    /// Takes a station from another copy, in this one's unit.
    void TakeStation(int station, const COffsetCopy& other);

    /// All numbers to the other unit. What isn't given stays so.
    void Convert();

    /// Whether any number shows as another text than in the other copy.
    bool ShowsOther(const COffsetCopy& other) const;
    /// Puts offsets, unit and the points' counts into the project, and marks the fields that change. True if
    /// any does.
    bool Store(CProjectData& project) const;

private:
    using CSlots = std::array<float, kMaxStations * kMaxOffsets>;

    static std::size_t Slot(int station, int row)
    {
        return static_cast<std::size_t>(station * kMaxOffsets + row);
    }
    /// The place of a station in the project; those out of use have the same in both.
    int InProject(int station) const;
    int RowsInUse(int station) const;

    CSlots m_y;
    CSlots m_z;
    int m_stationCount;
    int m_unit;
    int m_origin;
};
