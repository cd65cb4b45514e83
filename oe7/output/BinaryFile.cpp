#include "core/platform/LineFormat.h"
#include "oe7/input/InputFile.h"
#include "oe7/output/COutputUnits.h"
#include "oe7/output/EngineFiles.h"
#include "oe7/output/Finite.h"

#include <bit>
#include <cstdint>

namespace oe7
{
namespace
{
class CBinaryFile
{
public:
    CBinaryFile(const CInput& input, const CResults& results, CRunLog& log)
        : m_input(input),
          m_results(results),
          m_log(log),
          m_units(input.OutputUnits)
    {
    }

    std::string Write(std::string_view stamp);

private:
    // Values, little-endian.
    void Word(std::uint32_t word);
    void Real(double value) { Word(std::bit_cast<std::uint32_t>(Narrowed(Finite(value, m_log)))); }
    void Integer(int value) { Word(static_cast<std::uint32_t>(value)); }
    void Count(std::size_t count) { Integer(static_cast<int>(count)); }
    /// A field padded with blanks.
    void Text(std::string_view text, std::size_t width);
    void Reals(const std::vector<double>& values, const CUnit& unit = {});
    void Phasor(Complex value);

    // Parts of the file.
    void Head(std::string_view stamp);
    void StillWater();
    void Positions();
    void Conditions();
    void Speed(const CSpeedResults& speed);
    void MotionTransfer(const CSpeedResults& speed);
    void LoadTransfer(const CSpeedResults& speed);
    void Seaway(const CSeawayResults& seaway);
    void LocalRms(const CSeawayResults& seaway);
    void LoadRms(const CSeawayResults& seaway);

    std::size_t Cuts() const { return m_input.Loads ? m_input.LoadStations.size() : 0; }

    const CInput& m_input;
    const CResults& m_results;
    CRunLog& m_log;
    COutputUnits m_units;
    std::string m_bytes;
};

std::string CBinaryFile::Write(std::string_view stamp)
{
    Head(stamp);
    StillWater();
    Positions();
    Conditions();
    for (const CSpeedResults& speed : m_results.Speeds)
    {
        Speed(speed);
    }
    m_bytes += "CBDW";
    return std::move(m_bytes);
}

void CBinaryFile::Word(std::uint32_t word)
{
    for (int shift = 0; shift < 32; shift += 8)
    {
        m_bytes += static_cast<char>(static_cast<unsigned char>(word >> shift & 0xFFU));
    }
}

void CBinaryFile::Text(std::string_view text, std::size_t width)
{
    const std::string_view kept = text.substr(0, width);
    m_bytes += kept;
    m_bytes.append(width - kept.size(), ' ');
}

void CBinaryFile::Reals(const std::vector<double>& values, const CUnit& unit)
{
    for (const double value : values)
    {
        Real(unit.Of(value));
    }
}

void CBinaryFile::Phasor(Complex value)
{
    Real(std::abs(value));
    Real(PhaseDegrees(value));
}

void CBinaryFile::Head(std::string_view stamp)
{
    const CHullCondition& hull = m_results.Hull;
    const bool spread = m_input.Spectrum != ESpectrum::Regular && !m_input.IsDirectional();
    Text(kEngineVersion, 20);
    Text(stamp, 100);
    Text(UnitsWord(m_input.OutputUnits), 20);
    Text(WaterWord(m_input.Water), 20);
    Text(MethodName(m_input.Method), 20);
    Text(SpectrumWord(m_input.Spectrum), 20);
    Real(m_units.Length.Of(hull.Length));
    Integer(hull.StationCount());
    Real(m_units.Mass.Of(hull.Mass));
    Real(m_units.Length.Of(hull.Length / 2 - hull.Xg));
    Real(m_units.Length.Of(hull.Draft));
    Real(m_units.Length.Of(hull.Trim));
    Real(m_units.Length.Of(hull.Kg));
    Real(m_units.Length.Of(hull.GmUsed));
    Real(spread ? m_input.SpreadingAngle : 0);
    Real(m_units.Length.Of(hull.LargestBeam));
    Real(hull.BlockCoefficient);
    Count(Cuts());
}

void CBinaryFile::StillWater()
{
    if (Cuts() == 0)
    {
        return;
    }
    const CStillWater& still = m_results.StillWater.value();
    Reals(m_input.LoadStations);
    Reals(still.Weight, m_units.LargeForce);
    Reals(still.Buoyancy, m_units.LargeForce);
    Reals(still.Shear, m_units.Force);
    Reals(still.Moment, m_units.Moment);
}

void CBinaryFile::Positions()
{
    Count(m_input.Positions.size());
    for (const CPosition& position : m_input.Positions)
    {
        Real(position.Station);
    }
    for (const auto coordinate : {&CPosition::Y, &CPosition::Height})
    {
        for (const CPosition& position : m_input.Positions)
        {
            Real(m_units.Length.Of(position.*coordinate));
        }
    }
}

void CBinaryFile::Conditions()
{
    Count(m_results.Speeds.size());
    for (const CSpeedResults& speed : m_results.Speeds)
    {
        Real(speed.Knots);
    }
    Integer(m_results.Headings.Count());
    Reals(m_results.Headings.Reported);
    std::vector<double> heights(m_input.Seaways.size());
    std::vector<double> periods(m_input.Seaways.size());
    for (std::size_t i = 0; i < m_input.Seaways.size() && m_input.Spectrum != ESpectrum::Regular; ++i)
    {
        // Of the input, since there may be no speed.
        const CSeaSpectrum spectrum(m_input, static_cast<int>(i));
        heights[i] = spectrum.Height();
        periods[i] = spectrum.Period();
    }
    Count(m_input.Seaways.size());
    Reals(heights, m_units.Length);
    Reals(periods);
    Count(m_results.Frequencies.Output.size());
    Real(m_input.LowestFrequency);
    Real(m_input.FrequencyStep);
}

void CBinaryFile::Speed(const CSpeedResults& speed)
{
    Text(" SPEED " + FixedText(speed.Knots, "%.2f") + " KNOTS", 80);
    MotionTransfer(speed);
    if (Cuts() > 0)
    {
        LoadTransfer(speed);
    }
    for (const CSeawayResults& seaway : speed.Seaways)
    {
        Seaway(seaway);
    }
}

void CBinaryFile::MotionTransfer(const CSpeedResults& speed)
{
    for (std::size_t mode = 0; mode < kModes; ++mode)
    {
        for (const CDirectionResults& direction : speed.Directions)
        {
            for (const CMotionVector& motions : direction.Motions)
            {
                Phasor(motions[mode]);
            }
        }
    }
}

void CBinaryFile::LoadTransfer(const CSpeedResults& speed)
{
    Text(" LOAD RAO", 38);
    for (int component = 0; component < kLoadComponents; ++component)
    {
        const double scale = LoadScale(m_results.Hull, component);
        for (std::size_t cut = 0; cut < Cuts(); ++cut)
        {
            for (const CDirectionResults& direction : speed.Directions)
            {
                for (const CLoadVector& load : direction.Loads[cut])
                {
                    Phasor(load(component) / scale);
                }
            }
        }
    }
}

void CBinaryFile::Seaway(const CSeawayResults& seaway)
{
    Text(" RMS AT CG", 36);
    for (int kind = 0; kind < 3; ++kind)
    {
        for (int mode = 0; mode < kModes; ++mode)
        {
            for (const CModeRms& rms : seaway.Rms)
            {
                Real(m_units.Rms(kind, mode,
                                 rms[static_cast<std::size_t>(kind)][static_cast<std::size_t>(mode)]));
            }
        }
    }
    if (!m_input.Positions.empty())
    {
        LocalRms(seaway);
    }
    if (Cuts() > 0)
    {
        LoadRms(seaway);
    }
}

void CBinaryFile::LocalRms(const CSeawayResults& seaway)
{
    Text(" RMS AT POSITIONS", 54);
    for (int quantity = 0; quantity < CPositionAtHeading::kLocalCount; ++quantity)
    {
        for (const std::vector<CPositionAtHeading>& headings : seaway.Positions)
        {
            for (const CPositionAtHeading& position : headings)
            {
                Real(m_units.Local(quantity, position.Local[static_cast<std::size_t>(quantity)]));
            }
        }
    }
}

void CBinaryFile::LoadRms(const CSeawayResults& seaway)
{
    Text(" RMS LOADS", 32);
    for (int quantity = 0; quantity < 2 * kLoadComponents; ++quantity)
    {
        const int component = quantity / 2;
        for (const auto& headings : seaway.Loads)
        {
            for (const auto& components : headings)
            {
                const CSeawayResults::CLoadRms& load = components[static_cast<std::size_t>(component)];
                Real(quantity % 2 == 0 ? m_units.LoadRms(component, load.Rms) : load.Period);
            }
        }
    }
}
} // namespace

std::string BinaryFile(const CInput& input, const CResults& results, std::string_view stamp, CRunLog& log)
{
    return CBinaryFile(input, results, log).Write(stamp);
}

} // namespace oe7
