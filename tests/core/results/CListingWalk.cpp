#include "tests/core/results/CListingWalk.h"

#include "core/platform/NumberText.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include <gtest/gtest.h>

namespace
{
using E = EEngineNumber;
} // namespace

CListingWalk::CListingWalk(const CEngineRun& run, const std::string& listing) : m_run(run)
{
    std::istringstream lines(listing);
    for (std::string line; std::getline(lines, line);)
    {
        m_lines.push_back(line);
    }
}

bool CListingWalk::Find(const std::string& marker)
{
    while (m_at < m_lines.size() && m_lines[m_at].find(marker) == std::string::npos)
    {
        ++m_at;
    }
    if (m_at >= m_lines.size() && !m_failed)
    {
        ADD_FAILURE() << "no \"" << marker << "\"";
        m_failed = true;
    }
    return !m_failed;
}

const std::string& CListingWalk::Next(int lines)
{
    static const std::string none;
    m_at += static_cast<std::size_t>(lines);
    return m_at < m_lines.size() ? m_lines[m_at] : none;
}

void CListingWalk::Expect(const std::string& what, const std::string& token, double value)
{
    ++m_numbers;
    // Exact: as many decimals are made up as are printed.
    const double read = NumberAtStart(token);
    if (!m_failed && static_cast<float>(read) != static_cast<float>(value))
    {
        ADD_FAILURE() << what << " reads " << token << " for " << value << " in line " << m_at + 1 << "\n"
                      << Next(0);
        m_failed = true;
    }
}

void CListingWalk::Colon(const std::string& what, double value)
{
    std::istringstream behind(Next(0).substr(std::min(Next(0).find(':'), Next(0).size() - 1) + 1));
    std::string word;
    behind >> word;
    Expect(what, word, value);
}

std::vector<std::string> CListingWalk::Tokens() const
{
    std::istringstream line(m_at < m_lines.size() ? m_lines[m_at] : "");
    std::vector<std::string> tokens;
    for (std::string token; line >> token;)
    {
        tokens.push_back(token);
    }
    return tokens;
}

void CListingWalk::Row(const std::string& what, std::size_t first, const std::vector<double>& values)
{
    std::vector<std::string> tokens = Tokens();
    tokens.resize(std::max(tokens.size(), first - 1 + values.size()), "none");
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        Expect(what + ", token " + std::to_string(first + i), tokens[first - 1 + i], values[i]);
    }
}

template <class Values>
void CListingWalk::HeadingRows(const std::string& what, Values&& values)
{
    for (int heading = 0; heading < m_run.HeadingCount(); ++heading)
    {
        std::vector<double> row = {static_cast<double>(m_run.Headings[static_cast<std::size_t>(heading)])};
        const std::vector<double> behind = values(heading);
        row.insert(row.end(), behind.begin(), behind.end());
        Next();
        Row(what + " of heading " + std::to_string(heading), 1, row);
        EXPECT_EQ(Tokens().size(), row.size()) << what;
    }
}

void CListingWalk::Head()
{
    Find("ENFREQMIN");
    for (const float frequency : m_run.EncounterFrequencies)
    {
        Colon("encounter frequencies", static_cast<double>(frequency));
        Next();
    }
    Find("GMFLAG");
    Next(2);
    Colon("input GM", static_cast<double>(m_run.GivenMetacentre));
    Find("GENERAL HULL PARAMETERS");
    Find("Displacement");
    for (const EHullValue value : {kHullDraft, kHullCentre, kHullDisplacement})
    {
        Colon("hull", MadeUp(value));
        Next();
    }
    Find("Cb");
    Colon("block coefficient", MadeUp(E::BlockCoefficient));
    Next(9);
    Colon("computed GM", MadeUp(E::Metacentre));
    Next();
    Colon("GM used", UsedMetacentre(m_run));
    Find("SECTIONAL PROPERTIES");
    Next(5);
    for (int i = 0; i < m_run.StationCount; ++i)
    {
        Next();
        Row("station", 1,
            {static_cast<double>(i), MadeUp(E::SectionX, i), MadeUp(E::SectionBeam, i),
             MadeUp(E::SectionDraft, i), MadeUp(E::SectionArea, i), MadeUp(E::SectionCoefficient, i)});
    }
}

void CListingWalk::Positions()
{
    Find("POSITIONS FOR SEAKEEPING CALCULATIONS");
    Find("Label");
    Next(2);
    for (int i = 0; i < m_run.PositionCount(); ++i)
    {
        const CEnginePosition& position = m_run.Positions[static_cast<std::size_t>(i)];
        Next();
        Row("position", 2,
            {static_cast<double>(position.Station), MadeUp(E::PositionX, i), static_cast<double>(position.Y),
             static_cast<double>(position.Z), MadeUp(E::PositionHeight, i)});
        Row("position", 8, {MadeUp(E::PositionDraft, i)});
        Row("position", 10, {MadeUp(E::PositionFreeboard, i)});
    }
    Next(4);
    EXPECT_EQ(Next(0).find("   Duration"), 0U);
    Colon("duration", static_cast<double>(m_run.Hours));
    EXPECT_NE(Next().find("exceedence"), std::string::npos);
    Next(9);
    for (int i = 0; i < m_run.PositionCount(); ++i)
    {
        const int kind = m_run.Positions[static_cast<std::size_t>(i)].MotionKind;
        if (kind == 1 || kind == 3)
        {
            Next();
            Row("slam pressure", 4, {MadeUp(E::FormFactor, i), MadeUp(E::EffectiveWidth, i)});
        }
    }
}

void CListingWalk::FrequencyRow(int speed, int heading, int frequency)
{
    const std::string& line = Next();
    std::vector<std::string> fields(1);
    for (const char letter : line)
    {
        if (letter == '|')
        {
            fields.emplace_back();
        }
        else
        {
            fields.back() += letter;
        }
    }
    ASSERT_EQ(fields.size(), 8U) << line;
    Expect("wave frequency", fields[0], WaveFrequency(m_run, frequency));
    const int modes[] = {2, 4, 3, 0, 1, 5}; // heave, pitch, roll, surge, sway, yaw
    for (std::size_t i = 0; i < 6; ++i)
    {
        std::istringstream field(fields[i + 1]);
        std::string amplitude;
        std::string phase;
        field >> amplitude >> phase;
        Expect("amplitude", amplitude, MadeUp(E::RaoAmplitude, speed, modes[i], heading, frequency));
        Expect("phase", phase, MadeUp(E::RaoPhase, speed, modes[i], heading, frequency));
    }
    std::istringstream last(fields[7]);
    std::string encounter;
    std::string ratio;
    last >> encounter >> ratio;
    if (frequency == m_run.OverflowAt)
    {
        EXPECT_EQ(encounter, "0.123*******");
    }
    else if (frequency == m_run.RunTogetherAt)
    {
        ASSERT_EQ(encounter.size(), 12U);
        ratio = encounter.substr(5);
    }
    else
    {
        EXPECT_EQ(encounter.size(), 5U);
    }
    Expect("encounter frequency", encounter.substr(0, 5),
           EncounterFrequency(m_run, speed, heading, frequency));
    if (frequency != m_run.OverflowAt)
    {
        Expect("wavelength ratio", ratio, WavelengthRatio(m_run, speed, heading, frequency));
    }
}

void CListingWalk::Breakdown(const std::string& what, EEngineNumber number, int columns, int speed,
                             int heading)
{
    Next(5);
    for (int frequency = 0; frequency < m_run.FrequencyCount; ++frequency)
    {
        std::vector<double> values = {WaveFrequency(m_run, frequency),
                                      EncounterFrequency(m_run, speed, heading, frequency),
                                      MadeUp(E::RollAngle, speed, heading, frequency)};
        for (int column = 0; column < columns; ++column)
        {
            values.push_back(MadeUp(number, speed, heading, frequency, column));
        }
        values.resize(number == E::LiftDamping ? 18 : 17, 0);
        Next();
        Row(what, 1, values);
        EXPECT_EQ(Tokens().size(), values.size());
    }
}

void CListingWalk::Damping(int speed, int heading)
{
    Find("Roll natural frequency");
    for (const E number : {E::RollFrequency, E::RollStiffness, E::RollInertia})
    {
        Colon("roll", MadeUp(number, speed, heading));
        Next();
    }
    Find("Enc");
    Next();
    for (int frequency = 0; frequency < m_run.FrequencyCount; ++frequency)
    {
        std::vector<double> values = {WaveFrequency(m_run, frequency),
                                      EncounterFrequency(m_run, speed, heading, frequency),
                                      MadeUp(E::RollAngle, speed, heading, frequency)};
        for (int component = 0; component < 7; ++component)
        {
            values.push_back(MadeUp(E::Damping, speed, heading, frequency, component));
        }
        Next();
        Row("damping", 1, values);
        EXPECT_EQ(Tokens().at(10), "|");
        Row("added mass", 12, {MadeUp(E::AddedMass, speed, heading, frequency)});
    }
    Breakdown("lift", E::LiftDamping, m_run.LiftColumns(), speed, heading);
    Breakdown("viscous damping", E::ViscousDamping, m_run.ViscousColumns(), speed, heading);
}

void CListingWalk::RegularWaves(int speed, int heading)
{
    Find("SHIP MOTIONS AT CG IN REGULAR WAVES");
    Next(3);
    Colon("Froude number", MadeUp(E::Froude, speed, heading));
    Next();
    EXPECT_EQ(Next(0).find("Enc"), std::string::npos);
    Find("Enc");
    Next();
    for (int frequency = 0; frequency < m_run.FrequencyCount && !m_failed; ++frequency)
    {
        FrequencyRow(speed, heading, frequency);
    }
    if (m_run.OutputLevel == 2)
    {
        Damping(speed, heading);
    }
}

void CListingWalk::Clearances(int speed, int seaway, int position, int first)
{
    Row("clearance at zero speed", 2, {MadeUp(E::Clearance, speed, seaway, position, first)});
    Row("clearance at speed", 4, {MadeUp(E::Clearance, speed, seaway, position, first + 1)});
}

void CListingWalk::Motion(int speed, int seaway, int position)
{
    const int kind = m_run.Positions[static_cast<std::size_t>(position)].MotionKind;
    const int events = kind <= 3 ? 3 : 1;
    Find(kind <= 3 ? "Draft" : kind == 4 ? "Freeboard" : "Depth");
    EXPECT_EQ(Tokens().at(0), kind == 5 ? "Depth" : "Freeboard");
    Clearances(speed, seaway, position, 0);
    if (kind <= 3)
    {
        Next();
        Clearances(speed, seaway, position, 2);
    }
    Next(4);
    HeadingRows("relative motion",
                [&](int heading)
                {
                    const auto of = [&](E number, int column)
                    { return MadeUp(number, speed, seaway, position, heading, column); };
                    std::vector<double> values = {of(E::RelativeMotion, 0), of(E::RelativeMotion, 1)};
                    for (int event = 0; event < events; ++event)
                    {
                        values.push_back(of(E::Probability, event));
                        values.push_back(of(E::Rate, event));
                    }
                    if (kind <= 3)
                    {
                        values.insert(values.end(), {of(E::Pressure, 0), of(E::Pressure, 1), of(E::Force, 0),
                                                     of(E::Force, 1)});
                    }
                    return values;
                });
}

void CListingWalk::Position(int speed, int seaway, int index)
{
    const CEnginePosition& position = m_run.Positions[static_cast<std::size_t>(index)];
    Next();
    Find("Label");
    if (position.Interruptions)
    {
        Find("LFE");
        Next();
        HeadingRows("interruptions",
                    [&](int heading)
                    {
                        std::vector<double> values;
                        for (int column = 0; column < 5; ++column)
                        {
                            values.push_back(MadeUp(E::Interruption, speed, seaway, index, heading, column));
                        }
                        return values;
                    });
    }
    if (position.Sickness)
    {
        const double given = static_cast<double>(position.Exposure);
        Find("Sickness");
        Next(2);
        Row("exposure", 4, {position.LongestExposure ? 0 : given});
        Next(3);
        HeadingRows("sickness",
                    [&](int heading)
                    {
                        const double chosen = MadeUp(E::Exposure, speed, seaway, index, heading);
                        return std::vector<double>{MadeUp(E::Incidence, speed, seaway, index, heading),
                                                   position.LongestExposure ? chosen : given};
                    });
    }
    if (position.MotionKind > 0)
    {
        Motion(speed, seaway, index);
    }
}

void CListingWalk::Loads(int speed, int seaway, int station)
{
    Find("RMS Sea Loads at Station");
    Next(6);
    HeadingRows("loads",
                [&](int heading)
                {
                    std::vector<double> values;
                    for (int component = 0; component < 5; ++component)
                    {
                        const double rms = MadeUp(E::LoadRms, speed, seaway, component, station, heading);
                        values.insert(values.end(),
                                      {rms, std::round(2 * rms * 1000) / 1000,
                                       MadeUp(E::LoadPeriod, speed, seaway, component, station, heading)});
                    }
                    return values;
                });
}

void CListingWalk::Walk()
{
    Head();
    if (m_run.PositionCount() > 0)
    {
        Positions();
    }
    for (int speed = 0; speed < m_run.SpeedCount() && !m_failed; ++speed)
    {
        for (int heading = 0; heading < m_run.HeadingCount() && m_run.OutputLevel > 0 && !m_failed; ++heading)
        {
            if (m_run.Headings[static_cast<std::size_t>(heading)] > 180)
            {
                break;
            }
            RegularWaves(speed, heading);
        }
        for (int seaway = 0; seaway < m_run.SeawayCount() && m_run.Spectrum != 0 && !m_failed; ++seaway)
        {
            for (int position = 0; position < m_run.PositionCount(); ++position)
            {
                Position(speed, seaway, position);
            }
            for (int station = 0; station < m_run.LoadStationCount(); ++station)
            {
                Loads(speed, seaway, station);
            }
        }
    }
}
