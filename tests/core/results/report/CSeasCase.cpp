#include "tests/core/results/report/CSeasCase.h"

#include <gtest/gtest.h>

#include <cstring>
#include <numeric>
#include <sstream>

namespace
{
std::vector<int> AllOf(std::size_t count)
{
    std::vector<int> indices(count);
    std::iota(indices.begin(), indices.end(), 0);
    return indices;
}

float F(int value)
{
    return static_cast<float>(value);
}
} // namespace

CSeasCase::CSeasCase()
{
    Results.Head.RunStamp = "Mon Nov 03 14:07:52 2008";
    Results.Head.SpectrumKind = kSpectrumJonswap;
    Results.Head.StationCount = 21;
    Results.ProjectTitle = "Ferry";
    Results.GeometryFile = "ferry.od7";
    Results.EnvironmentFile = "north.od7";
    Results.Control.HasMagic = true;
    Results.Input->INSYS.Set(1);
    Results.Input->OUTSYS.Set(1);
    Results.Input->OUTRAO.Set(1);
    Results.Input->WAVESTEEP.Set(0.05F);
    Results.Calculated.Duration = 20.0F;
    Results.Calculated.Exceedence = 0.01F;
    Results.Body.FreqCount = 1;
    SetSpeeds({15});
    SetSeaways({3.25F});
    SetHeadings(2);
    Results.Body.Headings[1] = 45;
}

void CSeasCase::SetSpeeds(const std::vector<float>& speeds)
{
    Results.Control.Speeds = speeds;
    Results.Control.SpeedCount = static_cast<int>(speeds.size());
    Project.SelectedSpeeds = AllOf(speeds.size());
}

void CSeasCase::SetSeaways(const std::vector<float>& heights)
{
    Results.Body.WaveHeights = heights;
    Results.Body.SeawayCount = static_cast<int>(heights.size());
    Results.Body.WavePeriods.assign(heights.size(), 9.5F);
    Project.SelectedSeaways = AllOf(heights.size());
}

void CSeasCase::SetHeadings(int count)
{
    Results.Body.HeadingCount = count;
    Results.Body.Headings.clear();
    for (int heading = 0; heading < count; ++heading)
    {
        Results.Body.Headings.push_back(5 * F(heading));
    }
}

void CSeasCase::SetLoadStations(const std::vector<float>& stations)
{
    Results.Body.LoadStations = stations;
    Results.Head.LoadStationCount = static_cast<int>(stations.size());
    Project.SelectedPositions = AllOf(stations.size());
}

void CSeasCase::Add(const CSeasPosition& position)
{
    CResultsBody& body = Results.Body;
    const auto index = static_cast<std::size_t>(body.PositionCount);
    const float number = F(body.PositionCount);
    Results.Control.RelMotionKind[index] = position.RelMotionKind;
    Results.Control.MiiKind[index] = position.MiiKind;
    Results.Control.MsiKind[index] = position.MsiKind;
    Results.Input->PositionLabel[index] = position.Label;
    Results.Input->TCLAT.Set(body.PositionCount, 0.25F + 0.01F * number);
    Results.Input->TCLONG.Set(body.PositionCount, 0.17F + 0.01F * number);
    Results.Input->TIMEOP.Set(body.PositionCount, 60 + number);
    body.PositionStation.push_back(2.5F + number);
    body.PositionY.push_back(1.25F + number);
    body.PositionZ.push_back(-3.5F + number);
    Results.Calculated.Positions.push_back({});
    Results.Calculated.Positions.back().Draft = 6.25F + number;
    ++body.PositionCount;
    m_positions.push_back(position);
}

void CSeasCase::Fill()
{
    FillTables();
    FillCalculated();
    m_filled = true;
}

std::string CSeasCase::Section(void (*section)(CReport&))
{
    if (!m_filled)
    {
        Fill();
    }
    CReport report(Results, Project, Company);
    section(report);
    return report.Page.Text();
}

void CSeasCase::FillTables()
{
    CResultsBody& body = Results.Body;
    const int speeds = Results.Control.SpeedCount;
    body.RmsCg = CHeldArray<5>({speeds, body.SeawayCount, kRmsKinds, kMotionModes, body.HeadingCount});
    body.RmsLocal =
        CHeldArray<5>({speeds, body.SeawayCount, kLocalQuantities, body.PositionCount, body.HeadingCount});
    for (int speed = 0; speed < speeds; ++speed)
    {
        for (int seaway = 0; seaway < body.SeawayCount; ++seaway)
        {
            for (int heading = 0; heading < body.HeadingCount; ++heading)
            {
                const float base = F(1000 * speed + 100 * seaway) + 0.01F * F(heading);
                for (int k = 0; k < kRmsKinds * kMotionModes; ++k)
                {
                    const int kind = k / kMotionModes;
                    const int mode = k % kMotionModes;
                    body.RmsCg(speed, seaway, kind, mode, heading) = base + F(10 * kind + mode + 1);
                }
                for (int k = 0; k < kLocalQuantities * body.PositionCount; ++k)
                {
                    const int quantity = k % kLocalQuantities;
                    const int position = k / kLocalQuantities;
                    body.RmsLocal(speed, seaway, quantity, position, heading) =
                        base + F(quantity + 1) + 0.1F * F(position);
                }
            }
        }
    }
}

void CSeasCase::FillCalculated()
{
    const CResultsBody& body = Results.Body;
    Results.Bytes.assign(8, 'x');
    Results.SpeedBlocks = Results.Bytes.size();
    const int rows = RowsOfLoads > 0 ? RowsOfLoads : body.HeadingCount;
    for (int speed = 0; speed < Results.Control.SpeedCount; ++speed)
    {
        for (int seaway = 0; seaway < body.SeawayCount; ++seaway)
        {
            for (int heading = 0; seaway == 0 && heading < body.HeadingCount; ++heading)
            {
                if (body.Headings[static_cast<std::size_t>(heading)] <= 180)
                {
                    Float(0.2F + 0.01F * F(speed) + 0.001F * F(heading));
                    Rows(body.FreqCount, 2, 7);
                }
            }
            if (Results.Head.SpectrumKind == kSpectrumRegular)
            {
                continue;
            }
            for (int position = 0; position < body.PositionCount; ++position)
            {
                Position(speed, seaway, position);
            }
            for (int station = 0; station < Results.Head.LoadStationCount; ++station)
            {
                Rows(rows, 10, F(10000 * speed + 1000 * seaway + 100 * station));
            }
        }
    }
}

void CSeasCase::Position(int speed, int seaway, int position)
{
    const CSeasPosition& what = m_positions[static_cast<std::size_t>(position)];
    const int rows = RowsOfPositions > 0 ? RowsOfPositions : Results.Body.HeadingCount;
    const float base = F(10000 * speed + 1000 * seaway + 100 * position);
    if (what.MiiKind == 1)
    {
        Rows(rows, 6, base + 10);
    }
    if (what.MsiKind == 1)
    {
        Integer(what.Formulation);
        Integer(what.ExposureFlag);
        Float(what.Exposure);
        Rows(rows, Results.Control.HasMagic ? 3 : 2, base + 20);
    }
    if (what.RelMotionKind >= 1 && what.RelMotionKind <= 3)
    {
        Rows(1, 4, base + 30);
        SlammingRows(rows, base + 40);
    }
    if (what.RelMotionKind == 4 || what.RelMotionKind == 5)
    {
        Rows(1, 2, base + 30);
        Rows(rows, 5, base + 40);
    }
}

/// The value of a place is the base and its column, with the row behind the point.
void CSeasCase::Rows(int count, int columns, float base)
{
    for (int row = 0; row < count; ++row)
    {
        for (int column = 0; column < columns; ++column)
        {
            Float(base + F(column) + 0.1F * F(row));
        }
    }
}

void CSeasCase::SlammingRows(int count, float base)
{
    for (int row = 0; row < count; ++row)
    {
        const float first = base + 0.1F * F(row);
        Rows(1, 7, first);
        Integer(HasUnshownValues ? 26 : 27);
        if (HasUnshownValues)
        {
            Rows(1, 2, -777);
        }
        Rows(1, 4, first + 7);
    }
}

void CSeasCase::Float(float value)
{
    Results.Bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void CSeasCase::Integer(int value)
{
    Results.Bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

std::string LinesBetween(const std::string& text, const std::string& from, const std::string& to)
{
    std::istringstream lines(text);
    std::string piece;
    std::string line;
    bool inside = false;
    while (std::getline(lines, line))
    {
        inside = inside || line == from;
        if (inside)
        {
            piece += line + '\n';
        }
        if (inside && line == to)
        {
            return piece;
        }
    }
    ADD_FAILURE() << "no lines from " << from << " to " << to;
    return piece;
}

std::string LineBehind(const std::string& text, const std::string& line)
{
    const std::size_t at = ('\n' + text).find('\n' + line + '\n');
    if (at == std::string::npos)
    {
        ADD_FAILURE() << "no line " << line;
        return {};
    }
    const std::size_t start = at + line.size() + 1;
    return text.substr(start, text.find('\n', start) - start);
}
