#include "tests/support/CMadeResults.h"

#include <cstdint>
#include <map>

namespace
{
constexpr float kMarker = -99.99F;
} // namespace

float MadeValueAt(const std::string& table, const std::vector<int>& indices)
{
    static std::map<std::pair<std::string, std::vector<int>>, float> values;
    const auto next = static_cast<float>(values.size() + 1) / 4;
    return values.try_emplace({table, indices}, next).first->second;
}

std::string CMadeResults::Bytes()
{
    m_out = {};
    IntegerCounts.clear();
    FloatCounts.clear();
    Head();
    BodyTables();
    for (int speed = 0; speed < static_cast<int>(Speeds.size()); ++speed)
    {
        SpeedBlock(speed);
    }
    SectionC = m_out.Size();
    ControlSection();
    m_out.Text(Title, 80, '\0');
    SectionB = m_out.Size();
    InputEcho();
    m_out.Text(GeometryFile, 255, '\0');
    m_out.Text(EnvironmentFile, 255, '\0');
    SectionA = m_out.Size();
    CalculatedHead();
    for (int speed = 0; speed < static_cast<int>(Speeds.size()); ++speed)
    {
        CalculatedSpeed(speed);
    }
    m_out.Float(kMarker);
    if (!GivenGM)
    {
        m_out.Float(1.5F);
    }
    m_out.Integer(SectionC);
    m_out.Integer(SectionB);
    m_out.Integer(SectionA);
    return m_out.Bytes();
}

void CMadeResults::Count(int value)
{
    IntegerCounts.push_back(static_cast<std::size_t>(m_out.Size()));
    m_out.Integer(value);
}

void CMadeResults::FloatCount(int value)
{
    FloatCounts.push_back(static_cast<std::size_t>(m_out.Size()));
    m_out.Float(static_cast<float>(value));
}

void CMadeResults::Table(const std::string& name, std::vector<int> indices, int inner)
{
    indices.push_back(0);
    for (int k = 0; k < inner; ++k)
    {
        indices.back() = k;
        m_out.Float(MadeValueAt(name, indices));
    }
}

void CMadeResults::Head()
{
    m_out.PadTo(20);
    m_out.Text(Stamp, 100);
    m_out.PadTo(180);
    m_out.Text(Keyword, 20);
    m_out.Float(120.5F);
    Count(StationCount);
    m_out.PadTo(224);
    m_out.Float(6.25F);
    m_out.PadTo(232);
    m_out.Float(SpreadAngle);
    m_out.PadTo(244);
    Count(LoadStationCount);
}

void CMadeResults::BodyTables()
{
    if (LoadStationCount > 0)
    {
        Table("LoadStations", {}, LoadStationCount);
        for (const char* name : {"Weight", "Buoyancy", "Shear", "Moment"})
        {
            Table(name, {}, StationCount);
        }
    }
    Count(PositionCount());
    for (const char* name : {"PositionStation", "PositionY", "PositionZ"})
    {
        Table(name, {}, PositionCount());
    }
    Count(static_cast<int>(Speeds.size()));
    m_out.Floats(static_cast<int>(Speeds.size()), 0);
    Count(HeadingCount());
    for (const float heading : Headings)
    {
        m_out.Float(heading);
    }
    Count(SeawayCount);
    Table("WaveHeights", {}, SeawayCount);
    Table("WavePeriods", {}, SeawayCount);
    Count(FreqCount);
    m_out.Floats({0.2F, 0.1F});
}

void CMadeResults::SpeedBlock(int speed)
{
    m_out.Text("Speed", 80);
    Rao(speed);
    for (int seaway = 0; seaway < SeawayCount && !IsRegular(); ++seaway)
    {
        Seaway(speed, seaway);
    }
}

void CMadeResults::Rao(int speed)
{
    const auto pairs = [this](const std::string& name, std::vector<int> indices)
    {
        indices.push_back(0);
        for (int k = 0; k < FreqCount; ++k)
        {
            indices.back() = k;
            m_out.Float(MadeValueAt(name + "Amplitude", indices));
            m_out.Float(MadeValueAt(name + "Phase", indices));
        }
    };
    for (int mode = 0; mode < 8; ++mode)
    {
        for (int heading = 0; heading < HeadingCount(); ++heading)
        {
            pairs("Rao", {speed, heading, mode});
        }
    }
    if (LoadStationCount == 0)
    {
        return;
    }
    m_out.Text("Load RAO", 38);
    for (int component = 0; component < 5; ++component)
    {
        for (int station = 0; station < LoadStationCount; ++station)
        {
            for (int heading = 0; heading < HeadingCount(); ++heading)
            {
                pairs("LoadRao", {speed, component, station, heading});
            }
        }
    }
}

void CMadeResults::Seaway(int speed, int seaway)
{
    m_out.Text("RMS", 36);
    for (int kind = 0; kind < 3; ++kind)
    {
        for (int mode = 0; mode < 8; ++mode)
        {
            Table("RmsCg", {speed, seaway, kind, mode}, HeadingCount());
        }
    }
    if (PositionCount() > 0)
    {
        m_out.Text("Local RMS", 54);
        for (int quantity = 0; quantity < 21; ++quantity)
        {
            for (int position = 0; position < PositionCount(); ++position)
            {
                Table("RmsLocal", {speed, seaway, quantity, position}, HeadingCount());
            }
        }
    }
    if (LoadStationCount > 0)
    {
        m_out.Text("RMS loads", 32);
        m_out.Floats(10 * LoadStationCount * HeadingCount(), -7);
    }
}

void CMadeResults::ControlSection()
{
    if (Magic)
    {
        m_out.Text("OD7b", 4);
    }
    m_out.Integer(StationNumbering);
    m_out.Float(static_cast<float>(StationCount));
    FloatCounts.push_back(static_cast<std::size_t>(m_out.Size()));
    m_out.Float(KeelWord);
    FloatCount(Fins);
    FloatCount(Foils);
    FloatCount(PositionCount() + 1);
    m_out.Float(SpreadAngle);
    const auto kindsOf = [&](int CPosition::*kind, bool asFloats)
    {
        for (std::size_t k = 0; k < 10; ++k)
        {
            const int value = k < Positions.size() ? Positions[k].*kind : 0;
            asFloats ? m_out.Float(static_cast<float>(value)) : m_out.Integer(value);
        }
    };
    kindsOf(&CPosition::RelMotionKind, true);
    kindsOf(&CPosition::Mii, true);
    if (Magic)
    {
        kindsOf(&CPosition::Msi, false);
    }
    FloatCount(static_cast<int>(Speeds.size()));
    for (const float speed : Speeds)
    {
        m_out.Float(speed);
    }
    if (HasColumnWords)
    {
        m_out.Integer(Rudder);
        m_out.Integer(Skeg);
        Count(Keels);
        Count(Foils);
        Count(Fins);
    }
}
