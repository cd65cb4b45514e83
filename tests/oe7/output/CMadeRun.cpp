#include "tests/oe7/output/CMadeRun.h"

#include "oe7/output/EngineFiles.h"

#include <cmath>
#include <numbers>
#include <sstream>

namespace
{
using namespace oe7;

/// Numbers that never come again: the fractions of the multiples of the golden ratio.
class CNumbers
{
public:
    double Next(double least, double greatest)
    {
        const double multiple = ++m_count * std::numbers::phi;
        return least + (greatest - least) * (multiple - std::floor(multiple));
    }
    Complex Phasor(double greatest) { return std::polar(Next(0, greatest), Next(-3.1, 3.1)); }

private:
    int m_count = 0;
};

CHullCondition MadeHull(const CInput& input, CNumbers& numbers)
{
    CHullCondition hull{CLengthRule(input.StationCount, input.Length, -1.5), {}};
    hull.Density = input.Density();
    hull.Length = input.Length;
    hull.Kg = input.Kg;
    hull.Xg = -1.5;
    for (double* const value :
         {&hull.Draft, &hull.Kb, &hull.Bm, &hull.Gm, &hull.GmUsed, &hull.Lcf, &hull.LargestBeam})
    {
        *value = numbers.Next(1, 9);
    }
    hull.Trim = numbers.Next(0.1, 0.4);
    hull.Mass = numbers.Next(2e6, 5e6);
    hull.WaterplaneArea = numbers.Next(500, 900);
    hull.WettedSurface = numbers.Next(900, 1200);
    hull.BlockCoefficient = numbers.Next(0.5, 0.8);
    hull.C44 = numbers.Next(2e7, 6e7);
    for (int i = 0; i < input.StationCount; ++i)
    {
        CSection section;
        section.Contour = {{0, -1}, {1, 0}};
        section.Beam = numbers.Next(5, 14);
        section.Draft = numbers.Next(3, 6);
        section.Area = numbers.Next(20, 60);
        hull.Sections.push_back(section);
    }
    return hull;
}

CDampingRow MadeRow(const CResults& results, CNumbers& numbers)
{
    CDampingRow row;
    row.RollAngle = numbers.Next(0.01, 0.2);
    row.AddedMass = numbers.Next(1e6, 2e7);
    CRollComponents& parts = row.Components;
    for (double* const value : {&row.Wave, &parts.HullLift, &parts.KeelLift, &parts.SurfaceLift, &parts.Eddy,
                                &parts.Skin, &parts.Keels, &parts.Foils})
    {
        *value = numbers.Next(1e5, 2e6);
    }
    for (std::size_t i = 0; i < results.LiftColumns.size(); ++i)
    {
        row.AppendageLift.push_back(numbers.Next(1e5, 2e6));
    }
    for (std::size_t i = 0; i < results.ViscousColumns.size(); ++i)
    {
        row.AppendageViscous.push_back(numbers.Next(1e5, 2e6));
    }
    return row;
}

CDirectionResults MadeDirection(const CInput& input, const CResults& results, CNumbers& numbers)
{
    CDirectionResults direction;
    direction.Loads.resize(input.LoadStations.size());
    for (std::size_t n = 0; n < results.Frequencies.Output.size(); ++n)
    {
        direction.Encounter.push_back(numbers.Next(-2, 12));
        CMotionVector motions;
        for (Complex& motion : motions)
        {
            motion = numbers.Phasor(2);
        }
        direction.Motions.push_back(motions);
        CComplexVector6 forces;
        for (Complex& force : forces)
        {
            force = numbers.Phasor(1e6);
        }
        direction.Forces.push_back(forces);
        for (std::vector<CLoadVector>& cut : direction.Loads)
        {
            CLoadVector load;
            for (Complex& component : load)
            {
                component = numbers.Phasor(1e6);
            }
            cut.push_back(load);
        }
        direction.Damping.push_back(MadeRow(results, numbers));
    }
    return direction;
}

CPositionAtHeading MadePosition(const CPosition& position, CNumbers& numbers)
{
    CPositionAtHeading at;
    for (double& value : at.Local)
    {
        value = numbers.Next(0.1, 3);
    }
    at.LateralCount = numbers.Next(0, 2);
    at.LongitudinalCount = numbers.Next(0, 2);
    at.Incidence = numbers.Next(0, 60);
    at.Exposure = position.Exposure > 0 ? position.Exposure : numbers.Next(0.25, 24);
    for (double* const value :
         {&at.DeckProbability, &at.KeelProbability, &at.EmergenceProbability, &at.SlamProbability})
    {
        *value = numbers.Next(0, 1);
    }
    for (double* const value : {&at.DeckRate, &at.KeelRate, &at.EmergenceRate, &at.SlamRate})
    {
        *value = numbers.Next(0, 300);
    }
    for (double* const value :
         {&at.ExpectedPressure, &at.ExtremePressure, &at.ExpectedForce, &at.ExtremeForce})
    {
        *value = numbers.Next(1e4, 9e5);
    }
    return at;
}

CSeawayResults MadeSeaway(const CInput& input, const CHeadings& headings, int index, CNumbers& numbers)
{
    const CSeaSpectrum spectrum(input, index);
    CSeawayResults seaway;
    seaway.Height = spectrum.Height();
    seaway.Period = spectrum.Period();
    seaway.BandHeight = 0.99 * seaway.Height;
    seaway.Positions.resize(input.Positions.size());
    seaway.Loads.resize(input.LoadStations.size());
    for (int heading = 0; heading < headings.Count(); ++heading)
    {
        CModeRms rms;
        for (auto& kind : rms)
        {
            for (double& value : kind)
            {
                value = numbers.Next(0.01, 0.5);
            }
        }
        seaway.Rms.push_back(rms);
        for (std::size_t i = 0; i < input.Positions.size(); ++i)
        {
            seaway.Positions[i].push_back(MadePosition(input.Positions[i], numbers));
        }
        for (auto& cut : seaway.Loads)
        {
            std::array<CSeawayResults::CLoadRms, kLoadComponents> loads;
            for (CSeawayResults::CLoadRms& load : loads)
            {
                load = {numbers.Next(1e4, 9e7), numbers.Next(3, 20)};
            }
            cut.push_back(loads);
        }
    }
    return seaway;
}

CSpeedResults MadeSpeed(const CInput& input, const CResults& results, double knots, CNumbers& numbers)
{
    CSpeedResults speed;
    speed.Knots = knots;
    speed.Speed = knots * kKnot;
    speed.Froude = numbers.Next(0.05, 0.4);
    for (int heading = 0; heading < results.Headings.Count(); ++heading)
    {
        speed.Directions.push_back(MadeDirection(input, results, numbers));
    }
    for (const CPosition& position : input.Positions)
    {
        speed.Positions.push_back(PositionGeometry(input, results.Hull, position, speed.Speed));
        speed.Positions.back().Rise = numbers.Next(-0.5, 0.5);
    }
    for (std::size_t i = 0; i < results.Grid.size(); ++i)
    {
        CComplexMatrix6 radiation;
        for (Complex& element : radiation.reshaped())
        {
            element = numbers.Phasor(1e8);
        }
        speed.Radiation.push_back(radiation);
    }
    for (std::size_t i = 0; i < input.Seaways.size() && input.Spectrum != ESpectrum::Regular; ++i)
    {
        speed.Seaways.push_back(MadeSeaway(input, results.Headings, static_cast<int>(i), numbers));
    }
    return speed;
}

void NameColumns(const CInput& input, CResults& results)
{
    const auto name = [&results](const std::string& part, bool viscous)
    {
        results.LiftColumns.push_back(part);
        if (viscous)
        {
            results.ViscousColumns.push_back(part);
        }
    };
    const auto pairs = [&name](const std::string& part, std::size_t count)
    {
        for (std::size_t i = 1; i <= count; ++i)
        {
            name(part + "-pair-" + std::to_string(i), true);
        }
    };
    if (input.Rudder)
    {
        name("rudder", true);
    }
    if (input.Skeg)
    {
        name("skeg", false);
    }
    pairs("keel", input.BilgeKeels.size());
    pairs("foil", input.FoilPairs.size());
    pairs("fin", input.Fins ? input.Fins->Pairs.size() : 0);
}

CStillWater MadeStillWater(int stations, CNumbers& numbers)
{
    CStillWater still;
    for (int i = 0; i < stations; ++i)
    {
        still.Weight.push_back(numbers.Next(1e5, 5e6));
        still.Buoyancy.push_back(numbers.Next(1e5, 5e6));
        still.Shear.push_back(numbers.Next(-3e6, 3e6));
        still.Moment.push_back(numbers.Next(-9e7, 9e7));
    }
    return still;
}

CResults MadeResults(const CInput& input)
{
    CNumbers numbers;
    CRunLog log;
    CResults results{.Hull = MadeHull(input, numbers),
                     .Inertia = {numbers.Next(5e7, 9e7), numbers.Next(2e9, 4e9), numbers.Next(0.4, 0.9)},
                     .Headings = FindHeadings(input, log),
                     .Frequencies = CFrequencies(input),
                     .Grid = {0.0572, 0.5, 8.5776},
                     .HeaveFrequency = numbers.Next(1, 2),
                     .PitchFrequency = numbers.Next(1, 2),
                     .SlamForms = {},
                     .TankFrequency = {},
                     .Masses = {},
                     .StillWater = {},
                     .LiftColumns = {},
                     .ViscousColumns = {},
                     .Speeds = {}};
    for (std::size_t i = 0; i < input.Positions.size(); ++i)
    {
        results.SlamForms.push_back({numbers.Next(5, 30), numbers.Next(0.5, 3)});
    }
    if (input.Tank)
    {
        results.TankFrequency = numbers.Next(0.4, 0.9);
    }
    if (input.Loads)
    {
        const double mass = results.Hull.Mass;
        results.Masses = CMassMoments{mass, 0.25 * mass, 900 * mass, 0, 0, 25 * mass};
        results.StillWater = MadeStillWater(input.StationCount, numbers);
    }
    NameColumns(input, results);
    for (const double knots : input.Speeds)
    {
        results.Speeds.push_back(MadeSpeed(input, results, knots, numbers));
    }
    return results;
}

CPosition Place(const char* label, EWaterEvent event, bool interruptions, ESickness sickness, double exposure)
{
    CPosition position;
    position.Label = label;
    position.Event = event;
    position.Interruptions = interruptions;
    position.Sickness = sickness;
    position.Exposure = exposure;
    position.Station = 0.5 + 0.25 * static_cast<double>(event);
    position.Y = -2;
    position.Height = 1.25;
    position.DeckHeight = 11;
    position.LateralTipping = 0.25;
    position.LongitudinalTipping = 0.17;
    position.InterruptionTime = 60;
    return position;
}

void AddParts(CInput& input)
{
    input.Rudder = CRudder{};
    input.Skeg = CSkeg{4, 1, 10};
    input.BilgeKeels.resize(2);
    input.FoilPairs.resize(1);
    input.Fins = CFins{};
    input.Fins->Pairs.resize(1);
    input.Loads = true;
    input.LoadStations = {1, 2.5};
    input.Positions = {Place("Keel", EWaterEvent::SlamForm, true, ESickness::BureauVeritas, 2),
                       Place("Offset", EWaterEvent::SlamOffset, false, ESickness::None, 0),
                       Place("Wedge", EWaterEvent::SlamWedge, false, ESickness::Colwell, 0),
                       Place("Deck", EWaterEvent::DeckWetness, true, ESickness::None, 0),
                       Place("Prop", EWaterEvent::Emergence, false, ESickness::Colwell, 4.5),
                       Place("Bridge", EWaterEvent::None, false, ESickness::None, 0)};
}
} // namespace

CInput SmallInput()
{
    CInput input;
    input.Title = "Made up ship";
    input.RaoTables = ERaoTables::MotionAndDamping;
    input.LowestFrequency = 0.2;
    input.FrequencyStep = 0.3;
    input.FrequencyCount = 4;
    input.EndTerms = {true, true, true};
    input.HeaveCorrection = true;
    input.Spectrum = ESpectrum::Bretschneider;
    input.Directions = {0, 90, 195};
    input.Seaways = {{1.5, 8, 0, {}}, {4.25, 10.5, 0, {}}};
    input.Speeds = {0, 12.5};
    input.Length = 120;
    input.Kg = 5.6;
    input.PitchRadius = 29.886;
    input.RollValue = 5;
    input.StationCount = 5;
    input.Hours = 20;
    input.Exceedance = 0.01;
    AddParts(input);
    return input;
}

CMadeRun::CMadeRun(const CInput& input) : Input(input), Results(MadeResults(Input)) {}

std::string CMadeRun::Binary()
{
    return BinaryFile(Input, Results, kStamp, Log);
}

std::string CMadeRun::Listing()
{
    return oe7::Listing(Input, Results, kStamp, Log);
}

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> TokensOf(const std::string& line)
{
    std::vector<std::string> tokens;
    std::istringstream stream(line);
    for (std::string token; stream >> token;)
    {
        tokens.push_back(token);
    }
    return tokens;
}
