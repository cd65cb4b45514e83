#include "gui/hull/COffsetCopy.h"

#include "core/platform/NumberText.h"
#include "core/project/UnitFactors.h"

#include <algorithm>

namespace
{
constexpr int kFromAft = 1; ///< value of `StationOrigin`

float Converted(float value, int toUnit)
{
    return IsGiven(value) ? value * (toUnit == kUnitMetric ? kMetresPerFoot : kFeetPerMetre) : value;
}

bool ShowOther(std::span<const float> some, std::span<const float> others)
{
    return !std::equal(some.begin(), some.end(), others.begin(),
                       [](float one, float other)
                       { return one == other || FixedText(one, "%.3f") == FixedText(other, "%.3f"); });
}

bool StoreSlot(CParamArray& field, int slot, float value)
{
    if (field.Value(slot) == value)
    {
        return false;
    }
    field.Set(slot, value);
    field.changed = 1;
    return true;
}
} // namespace

COffsetCopy::COffsetCopy(const CProjectData& project, int stationCount)
    : m_stationCount(std::clamp(stationCount, 0, kMaxStations)),
      m_unit(project.YAUSER.unit == kUnitMetric ? kUnitMetric : kUnitBritish),
      m_origin(project.StationOrigin)
{
    for (int station = 0; station < kMaxStations; ++station)
    {
        const auto from = static_cast<std::ptrdiff_t>(Slot(InProject(station), 0));
        const auto to = static_cast<std::ptrdiff_t>(Slot(station, 0));
        std::copy_n(project.YAUSER.data.begin() + from, kMaxOffsets, m_y.begin() + to);
        std::copy_n(project.ZAUSERBL.data.begin() + from, kMaxOffsets, m_z.begin() + to);
    }
}

int COffsetCopy::PointCount(int station) const
{
    int count = 0;
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        count += Station(station).IsPresent(row) ? 1 : 0;
    }
    return count;
}

int COffsetCopy::FromForward(int station) const
{
    return m_origin == kFromAft ? m_stationCount - 1 - station : station;
}

int COffsetCopy::InProject(int station) const
{
    return station < m_stationCount ? FromForward(station) : station;
}

int COffsetCopy::RowsInUse(int station) const
{
    int rows = kMaxOffsets;
    while (rows > 0 && !IsGiven(Y(station, rows - 1)) && !IsGiven(Z(station, rows - 1)))
    {
        --rows;
    }
    return rows;
}

void COffsetCopy::Set(int station, int row, float y, float z)
{
    m_y[Slot(station, row)] = y;
    m_z[Slot(station, row)] = z;
}

void COffsetCopy::SwapRows(int station, int row)
{
    std::swap(m_y[Slot(station, row)], m_y[Slot(station, row + 1)]);
    std::swap(m_z[Slot(station, row)], m_z[Slot(station, row + 1)]);
}

int COffsetCopy::Divide(int station, int row, int pieces)
{
    const int fitting = std::min(pieces, kMaxOffsets - RowsInUse(station) + 1);
    if (fitting < 2)
    {
        return 0;
    }
    const auto divide = [this, station, row, fitting](CSlots& slots)
    {
        const auto begin = slots.begin() + static_cast<std::ptrdiff_t>(Slot(station, 0));
        const float first = begin[row];
        const float last = begin[row + 1];
        std::copy_backward(begin + row + 1, begin + kMaxOffsets - (fitting - 1), begin + kMaxOffsets);
        for (int point = 1; point < fitting; ++point)
        {
            const float share = static_cast<float>(point) / static_cast<float>(fitting);
            begin[row + point] = first + share * (last - first);
        }
    };
    divide(m_y);
    divide(m_z);
    return fitting;
}

void COffsetCopy::InsertStation(int station)
{
    for (CSlots* slots : {&m_y, &m_z})
    {
        const auto here = slots->begin() + static_cast<std::ptrdiff_t>(Slot(station, 0));
        std::copy_backward(here, slots->end() - kMaxOffsets, slots->end());
    }
    ++m_stationCount;
    ClearStation(station);
}

void COffsetCopy::DeleteStation(int station)
{
    for (CSlots* slots : {&m_y, &m_z})
    {
        const auto here = slots->begin() + static_cast<std::ptrdiff_t>(Slot(station, 0));
        std::copy(here + kMaxOffsets, slots->end(), here);
    }
    --m_stationCount;
    ClearStation(kMaxStations - 1);
}

void COffsetCopy::CopyStation(int from, int to)
{
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        Set(to, row, Y(from, row), Z(from, row));
    }
}

void COffsetCopy::ClearStation(int station)
{
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        Set(station, row, kNotGiven, kNotGiven);
    }
}

void COffsetCopy::TakeStation(int station, const COffsetCopy& other)
{
    const auto taken = [this, &other](float value)
    { return other.m_unit == m_unit ? value : Converted(value, m_unit); };
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        Set(station, row, taken(other.Y(station, row)), taken(other.Z(station, row)));
    }
}

void COffsetCopy::Convert()
{
    m_unit = m_unit == kUnitMetric ? kUnitBritish : kUnitMetric;
    for (CSlots* slots : {&m_y, &m_z})
    {
        std::transform(slots->begin(), slots->end(), slots->begin(),
                       [this](float value) { return Converted(value, m_unit); });
    }
}

bool COffsetCopy::ShowsOther(const COffsetCopy& other) const
{
    return m_stationCount != other.m_stationCount || ShowOther(m_y, other.m_y) || ShowOther(m_z, other.m_z);
}

bool COffsetCopy::Store(CProjectData& project) const
{
    bool differs = false;
    for (int station = 0; station < kMaxStations; ++station)
    {
        const int place = InProject(station);
        for (int row = 0; row < kMaxOffsets; ++row)
        {
            const int slot = place * kMaxOffsets + row;
            differs |= StoreSlot(project.YAUSER, slot, Y(station, row));
            differs |= StoreSlot(project.ZAUSERBL, slot, Z(station, row));
        }
        if (station < m_stationCount)
        {
            differs |= StoreSlot(project.NOFFUSER, place, static_cast<float>(PointCount(station)));
        }
    }
    project.YAUSER.unit = m_unit;
    project.ZAUSERBL.unit = m_unit;
    return differs;
}
