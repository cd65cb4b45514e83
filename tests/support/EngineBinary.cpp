#include "core/engine/EngineWords.h"
#include "tests/support/EngineNumbers.h"

#include <cstring>

namespace
{
class CEngineBinary
{
public:
    explicit CEngineBinary(const CEngineRun& run) : m_run(run) {}

    std::string Write();

private:
    using E = EEngineNumber;

    void Word(const void* word) { m_bytes.append(static_cast<const char*>(word), 4); }
    void Real(double value)
    {
        const auto real = static_cast<float>(value);
        Word(&real);
    }
    void Integer(int value) { Word(&value); }
    void Text(const std::string& text, std::size_t width)
    {
        m_bytes.append(text, 0, width);
        m_bytes.append(width - std::min(width, text.size()), ' ');
    }
    void Reals(const std::vector<float>& values)
    {
        for (const float value : values)
        {
            Real(static_cast<double>(value));
        }
    }

    void Head();
    void StillWater();
    void Positions();
    void Conditions();
    void Speed(int speed);
    void MotionRaos(int speed);
    void LoadRaos(int speed);
    void Seaway(int speed, int seaway);
    void LocalRms(int speed, int seaway);
    void LoadRms(int speed, int seaway);

    const CEngineRun& m_run;
    std::string m_bytes;
};

void CEngineBinary::Head()
{
    Text("OE7 1.0", 20);
    Text(m_run.Stamp, 100);
    Text(m_run.Metric ? "METRIC" : "BRITISH", 20);
    Text("SALT", 20);
    Text("boundary element", 20);
    Text(kSpectrumWords.Of(static_cast<float>(m_run.Spectrum)), 20);
    Real(static_cast<double>(m_run.Length));
    Integer(m_run.StationCount);
    Real(MadeUp(kHullDisplacement));
    Real(MadeUp(kHullCentre));
    Real(MadeUp(kHullDraft));
    Real(MadeUp(kHullTrim));
    Real(static_cast<double>(m_run.KeelToGravity));
    Real(UsedMetacentre(m_run));
    Real(m_run.Regular() || m_run.Directional() ? 0 : static_cast<double>(m_run.SpreadAngle));
    Real(MadeUp(kHullBeam));
    Real(MadeUp(E::BlockCoefficient));
    Integer(m_run.LoadStationCount());
}

void CEngineBinary::StillWater()
{
    if (m_run.LoadStationCount() == 0)
    {
        return;
    }
    Reals(m_run.LoadStations);
    for (const E quantity : {E::Weight, E::Buoyancy, E::Shear, E::Moment})
    {
        for (int station = 0; station < m_run.StationCount; ++station)
        {
            Real(MadeUp(quantity, station));
        }
    }
}

void CEngineBinary::Positions()
{
    Integer(m_run.PositionCount());
    for (const auto field : {&CEnginePosition::Station, &CEnginePosition::Y, &CEnginePosition::Z})
    {
        for (const CEnginePosition& position : m_run.Positions)
        {
            Real(static_cast<double>(position.*field));
        }
    }
}

void CEngineBinary::Conditions()
{
    Integer(m_run.SpeedCount());
    Reals(m_run.Speeds);
    Integer(m_run.HeadingCount());
    Reals(m_run.Headings);
    Integer(m_run.SeawayCount());
    for (const auto field : {&CEngineSeaway::Height, &CEngineSeaway::Period})
    {
        for (const CEngineSeaway& seaway : m_run.Seaways)
        {
            Real(m_run.Regular() ? 0 : static_cast<double>(seaway.*field));
        }
    }
    Integer(m_run.FrequencyCount);
    Real(static_cast<double>(m_run.FirstFrequency));
    Real(static_cast<double>(m_run.FrequencyStep));
}

void CEngineBinary::MotionRaos(int speed)
{
    for (int mode = 0; mode < kMotionModes; ++mode)
    {
        for (int heading = 0; heading < m_run.HeadingCount(); ++heading)
        {
            for (int frequency = 0; frequency < m_run.FrequencyCount; ++frequency)
            {
                Real(MadeUp(E::RaoAmplitude, speed, mode, heading, frequency));
                Real(MadeUp(E::RaoPhase, speed, mode, heading, frequency));
            }
        }
    }
}

void CEngineBinary::LoadRaos(int speed)
{
    Text(" LOAD RAO", 38);
    for (int component = 0; component < kLoadComponents; ++component)
    {
        for (int station = 0; station < m_run.LoadStationCount(); ++station)
        {
            for (int heading = 0; heading < m_run.HeadingCount(); ++heading)
            {
                for (int frequency = 0; frequency < m_run.FrequencyCount; ++frequency)
                {
                    Real(MadeUp(E::LoadRaoAmplitude, speed, component, station, heading, frequency));
                    Real(MadeUp(E::LoadRaoPhase, speed, component, station, heading, frequency));
                }
            }
        }
    }
}

void CEngineBinary::LocalRms(int speed, int seaway)
{
    Text(" RMS AT POSITIONS", 54);
    for (int quantity = 0; quantity < kLocalQuantities; ++quantity)
    {
        for (int position = 0; position < m_run.PositionCount(); ++position)
        {
            for (int heading = 0; heading < m_run.HeadingCount(); ++heading)
            {
                Real(MadeUp(E::LocalRms, speed, seaway, quantity, position, heading));
            }
        }
    }
}

void CEngineBinary::LoadRms(int speed, int seaway)
{
    Text(" RMS LOADS", 32);
    for (int component = 0; component < kLoadComponents; ++component)
    {
        for (const E quantity : {E::LoadRms, E::LoadPeriod})
        {
            for (int station = 0; station < m_run.LoadStationCount(); ++station)
            {
                for (int heading = 0; heading < m_run.HeadingCount(); ++heading)
                {
                    Real(MadeUp(quantity, speed, seaway, component, station, heading));
                }
            }
        }
    }
}

void CEngineBinary::Seaway(int speed, int seaway)
{
    Text(" RMS AT CG", 36);
    for (int kind = 0; kind < kRmsKinds; ++kind)
    {
        for (int mode = 0; mode < kMotionModes; ++mode)
        {
            for (int heading = 0; heading < m_run.HeadingCount(); ++heading)
            {
                Real(MadeUp(E::Rms, speed, seaway, kind, mode, heading));
            }
        }
    }
    if (m_run.PositionCount() > 0)
    {
        LocalRms(speed, seaway);
    }
    if (m_run.LoadStationCount() > 0)
    {
        LoadRms(speed, seaway);
    }
}

void CEngineBinary::Speed(int speed)
{
    Text(" SPEED " + FixedText(static_cast<double>(m_run.Speeds[static_cast<std::size_t>(speed)]), "%.2f") +
             " KNOTS",
         80);
    MotionRaos(speed);
    if (m_run.LoadStationCount() > 0)
    {
        LoadRaos(speed);
    }
    for (int seaway = 0; seaway < m_run.SeawayCount() && !m_run.Regular(); ++seaway)
    {
        Seaway(speed, seaway);
    }
}

std::string CEngineBinary::Write()
{
    Head();
    StillWater();
    Positions();
    Conditions();
    for (int speed = 0; speed < m_run.SpeedCount(); ++speed)
    {
        Speed(speed);
    }
    m_bytes += "CBDW";
    return std::move(m_bytes);
}
} // namespace

std::string EngineBinary(const CEngineRun& run)
{
    return CEngineBinary(run).Write();
}
