// The calculated section of a made file.
#include "tests/support/CMadeResults.h"

#include <algorithm>

void CMadeResults::CalculatedHead()
{
    Table("CalculatedHead", {}, 8);
    for (int station = 0; station < StationCount; ++station)
    {
        Table("Station", {station}, 5);
    }
    for (int position = 0; position < PositionCount(); ++position)
    {
        Table("Position", {position}, Magic ? 7 : 6);
    }
    const auto hasSlamming = [](const CPosition& position)
    { return position.RelMotionKind >= 1 && position.RelMotionKind <= 3; };
    if (std::any_of(Positions.begin(), Positions.end(), hasSlamming))
    {
        m_out.Floats({24, 0.01F});
    }
    for (int position = 0; position < PositionCount(); ++position)
    {
        const int kind = Positions[static_cast<std::size_t>(position)].RelMotionKind;
        if (kind == 1 || (kind == 3 && Magic))
        {
            Table("Form", {position}, 2);
        }
    }
}

void CMadeResults::CalculatedSpeed(int speed)
{
    m_rows = IsDirectional() ? 13 : HeadingCount();
    for (int seaway = 0; seaway < SeawayCount; ++seaway)
    {
        for (int heading = 0; heading < HeadingCount() && seaway == 0; ++heading)
        {
            if (Headings[static_cast<std::size_t>(heading)] <= 180)
            {
                RegularSea(speed, heading);
            }
        }
        if (IsRegular())
        {
            continue;
        }
        for (int position = 0; position < PositionCount(); ++position)
        {
            PositionBlock(speed, seaway, position);
        }
        m_rows = IsDirectional() && LoadStationCount > 0 ? 24 : m_rows;
        for (int station = 0; station < LoadStationCount; ++station)
        {
            PositionRows("LoadRms", speed, seaway, station, 10);
        }
    }
}

void CMadeResults::RegularSea(int speed, int heading)
{
    if (OutRao > 0)
    {
        m_out.Float(MadeValue("Froude", speed, heading));
        for (int k = 0; k < FreqCount; ++k)
        {
            Table("Frequencies", {speed, heading, k}, 2);
        }
    }
    if (OutRao == 2)
    {
        Table("RollConstants", {speed, heading}, 3);
        for (int k = 0; k < FreqCount; ++k)
        {
            Table("Damping", {speed, heading, k}, 10);
        }
        if (HasColumnWords)
        {
            m_out.Integer(HasBreakdown ? 26 : 27);
        }
        if (HasColumnWords && HasBreakdown)
        {
            const int appendages = Rudder + Keels + Foils + Fins;
            Breakdown("Lift", speed, heading, appendages + Skeg);
            Breakdown("Viscous", speed, heading, appendages);
        }
    }
}

void CMadeResults::Breakdown(const std::string& name, int speed, int heading, int appendages)
{
    for (int k = 0; k < FreqCount; ++k)
    {
        m_out.Float(-5);
        Table(name, {speed, heading, k}, 2 + appendages);
    }
}

void CMadeResults::PositionBlock(int speed, int seaway, int position)
{
    const CPosition& kinds = Positions[static_cast<std::size_t>(position)];
    if (kinds.Mii == 1)
    {
        PositionRows("Mii", speed, seaway, position, 6);
    }
    if (kinds.Msi == 1 && Magic)
    {
        m_out.Integer(1);
        m_out.Integer(0);
        m_out.Float(MadeValue("Exposure", speed, seaway, position));
        PositionRows("Msi", speed, seaway, position, 3);
    }
    if (kinds.RelMotionKind >= 1 && kinds.RelMotionKind <= 3)
    {
        Slamming(speed, seaway, position);
    }
    else if (kinds.RelMotionKind == 4 || kinds.RelMotionKind == 5)
    {
        Table("Levels", {speed, seaway, position}, 2);
        PositionRows("Wetness", speed, seaway, position, 5);
    }
}

void CMadeResults::Slamming(int speed, int seaway, int position)
{
    Table("Levels", {speed, seaway, position}, 4);
    for (int row = 0; row < m_rows; ++row)
    {
        for (int column = 0; column < 11; ++column)
        {
            if (column == 7)
            {
                m_out.Integer(SlamTag);
            }
            if (column == 7 && SlamTag == 26)
            {
                m_out.Floats({-3, -4});
            }
            m_out.Float(MadeValue("Slamming", speed, seaway, position, row, column));
        }
    }
}

void CMadeResults::PositionRows(const std::string& name, int speed, int seaway, int position, int columns)
{
    for (int row = 0; row < m_rows; ++row)
    {
        Table(name, {speed, seaway, position, row}, columns);
    }
}
