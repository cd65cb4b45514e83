// Ships and seas at the edge of what there can be: the calculation runs through and leaves numbers.
#include "oe7/output/EngineFiles.h"
#include "tests/oe7/calculation/CReferenceRun.h"

#include "core/platform/TextReading.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace oe7;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
constexpr const char* kStamp = "Fri Nov 20 17:31:18 2026";

struct CUnusual
{
    const char* Name;
    void (*Change)(CInput& input);
    const char* Warning = ""; ///< a part of the text; empty: none is expected
};

void PrintTo(const CUnusual& unusual, std::ostream* out)
{
    *out << unusual.Name;
}

void EachStation(CInput& input, int first, int last, const std::function<void(COffsets&)>& change)
{
    for (int i = first; i <= last; ++i)
    {
        change(input.Offsets.at(static_cast<std::size_t>(i)));
    }
}

void RaiseOutOfTheWater(COffsets& offsets)
{
    for (double& z : offsets.Z)
    {
        z += 20;
    }
}

/// The half breadths as a part of what they were.
template <int Percent>
void Narrow(COffsets& offsets)
{
    for (double& y : offsets.Y)
    {
        y *= Percent / 100.0;
    }
}

/// Each point again and again, up to 60.
void RepeatPoints(COffsets& offsets)
{
    COffsets repeated;
    const std::size_t count = offsets.Y.size();
    for (std::size_t i = 0; i < 60; ++i)
    {
        repeated.Y.push_back(offsets.Y[i * count / 60]);
        repeated.Z.push_back(offsets.Z[i * count / 60]);
    }
    offsets = repeated;
}

/// A bulb: closed, below the water.
void MakeBulb(COffsets& offsets)
{
    offsets.Y = {0, 1.2, 1.6, 1.2, 0};
    offsets.Z = {0.2, 0.6, 1.6, 2.6, 3.0};
}

void TwoStations(CInput& input)
{
    const COffsets middle = input.Offsets.at(5);
    input.Offsets = {middle, middle};
    input.StationCount = 2;
    input.ByDisplacement = false;
    input.Draft = 4.4;
    input.Trim = 0;
    input.LoadStations = {0, 0.5, 1};
    const std::vector<double> zeros(2, 0.0);
    input.Masses = {{3.25e6, 3.25e6}, zeros, zeros, {}, {}};
    input.BilgeKeels.clear();
    input.Skeg.reset();
    input.Rudder.reset();
    input.FoilPairs.clear();
    input.Fins.reset();
    for (CPosition& position : input.Positions)
    {
        position.Station /= 10;
    }
}

/// The ship without the mass distribution, which needs her own displacement.
void WithoutLoads(CInput& input)
{
    input.Loads = false;
    input.LoadStations.clear();
}

/// Sections by beam, draft and area coefficient, one of them without any.
void Formed(CInput& input)
{
    for (int i = 0; i < input.StationCount; ++i)
    {
        const double beam = 14 * std::sin(std::numbers::pi * i / 10);
        input.Dimensions.push_back({beam, i == 0 ? 0 : 4.4, 0.9});
    }
    input.Offsets.clear();
    input.ByDisplacement = false;
    input.Draft = 4.4;
    input.Trim = 0;
    input.Kg = 3;
    WithoutLoads(input);
}

void ByDraft(CInput& input)
{
    input.ByDisplacement = false;
    input.Draft = 4.4;
    input.Trim = 0;
    WithoutLoads(input);
}

const std::array kUnusual = {
    CUnusual{"NoSpeed", [](CInput& input) { input.Speeds.clear(); }, "speed"},
    CUnusual{"OnlySpeedsOfZero",
             [](CInput& input) {
                 input.Speeds = {0, 0};
             }},
    CUnusual{"NoSeaway", [](CInput& input) { input.Seaways.clear(); }},
    CUnusual{"NoSeaDirection", [](CInput& input) { input.Directions.clear(); }},
    CUnusual{"OneFrequency", [](CInput& input) { input.FrequencyCount = 1; }},
    CUnusual{"NoHeight", [](CInput& input) { input.Seaways.at(0).Height = 0; }},
    CUnusual{"RegularWithoutSteepness",
             [](CInput& input)
             {
                 input.Spectrum = ESpectrum::Regular;
                 input.Steepness = 0;
             }},
    CUnusual{"TwoStations", TwoStations},
    CUnusual{"DryEnds",
             [](CInput& input)
             {
                 ByDraft(input);
                 EachStation(input, 0, 1, RaiseOutOfTheWater);
                 EachStation(input, 9, 10, RaiseOutOfTheWater);
             }},
    CUnusual{"BulbAtTheBow",
             [](CInput& input)
             {
                 ByDraft(input);
                 EachStation(input, 0, 0, MakeBulb);
             }},
    CUnusual{"EndsLikePlates",
             [](CInput& input)
             {
                 ByDraft(input);
                 EachStation(input, 0, 1, Narrow<1>);
                 EachStation(input, 10, 10, Narrow<1>);
             }},
    CUnusual{"EndsWithoutBreadth",
             [](CInput& input)
             {
                 ByDraft(input);
                 EachStation(input, 0, 0, Narrow<0>);
                 EachStation(input, 10, 10, Narrow<0>);
             }},
    CUnusual{"SidesEndBelowTheWater",
             [](CInput& input)
             {
                 ByDraft(input);
                 EachStation(input, 3, 5,
                             [](COffsets& offsets)
                             {
                                 offsets.Y.resize(7);
                                 offsets.Z.resize(7);
                             });
             }},
    CUnusual{"SectionsByBeamAndDraft", Formed},
    CUnusual{"PointsRepeatedUpToSixty", [](CInput& input) { EachStation(input, 0, 10, RepeatPoints); }},
    CUnusual{"TopHeavy", [](CInput& input) { input.Kg = 9; }, "GM"},
    CUnusual{"GmOfZero", [](CInput& input) { input.Gm = 0; }, "GM"},
    CUnusual{"CentreOfGravityNotGiven", [](CInput& input) { input.Kg = -1; }},
    CUnusual{"RollRadiusOfZero", [](CInput& input) { input.RollValue = 0; }, "oll"},
    CUnusual{"RollFrequencyTooHigh",
             [](CInput& input)
             {
                 input.RollInertia = ERollInertia::WetFrequency;
                 input.RollValue = 50;
             },
             "oll"},
    CUnusual{"PositionsBeyondTheEnds",
             [](CInput& input)
             {
                 input.Positions.at(0).Station = -3;
                 input.Positions.at(1).Station = 14;
                 input.Positions.at(2).Height = 30;
                 input.Positions.at(3).DeckHeight = -30;
                 input.Positions.at(4).Station = 10.5;
             }},
    CUnusual{"LoadStationsAtTheVeryEnds",
             [](CInput& input) {
                 input.LoadStations = {0, 10};
             }},
    CUnusual{"NoMass",
             [](CInput& input) { std::fill(input.Masses.Masses.begin(), input.Masses.Masses.end(), 0); },
             "mass"},
    CUnusual{"KeelsWithoutBreadthOrLength",
             [](CInput& input)
             {
                 input.BilgeKeels.at(0).at(0).Breadth = 0;
                 input.BilgeKeels.at(0).at(1).Aft = input.BilgeKeels.at(0).at(1).Forward;
                 input.BilgeKeels.emplace_back();
             }},
    CUnusual{"SlammingOffsetsOnALine",
             [](CInput& input)
             {
                 input.Positions.at(2).SlamY = {0, 0};
                 input.Positions.at(2).SlamZ = {1, 1};
                 input.Positions.at(2).LoadHeight = 0;
             }},
    CUnusual{"FasterThanTheWaves",
             [](CInput& input)
             {
                 input.Speeds = {60};
                 input.Directions = {0, 10, 45, 180};
                 input.SpreadingAngle = 0;
             }},
};

/// The ship in long-crested waves of few directions, on a grid coarse enough for a fast test.
CInput FastShip()
{
    CInput input = ReferenceInput("ship");
    input.Directions = {0, 45, 90, 180};
    input.SpreadingAngle = 0;
    input.Grid = {0.3, 3, 0.5};
    input.FrequencyStep = 0.3;
    input.FrequencyCount = 7;
    return input;
}

template <class Values>
bool AllFinite(const Values& values)
{
    return std::all_of(std::begin(values), std::end(values),
                       [](const auto& v) { return std::isfinite(std::abs(v)); });
}

void ExpectNumbers(const CDirectionResults& direction)
{
    for (const CMotionVector& motions : direction.Motions)
    {
        EXPECT_TRUE(AllFinite(motions));
    }
    for (const CComplexVector6& forces : direction.Forces)
    {
        EXPECT_TRUE(forces.allFinite());
    }
    for (const auto& cut : direction.Loads)
    {
        for (const CLoadVector& loads : cut)
        {
            EXPECT_TRUE(loads.allFinite());
        }
    }
}

void ExpectNumbers(const CSeawayResults& seaway)
{
    for (const CModeRms& rms : seaway.Rms)
    {
        EXPECT_TRUE(AllFinite(rms[0]) && AllFinite(rms[1]) && AllFinite(rms[2]));
    }
    for (const auto& position : seaway.Positions)
    {
        for (const CPositionAtHeading& at : position)
        {
            EXPECT_TRUE(AllFinite(at.Local));
            EXPECT_TRUE(AllFinite(std::array{at.LateralCount, at.LongitudinalCount, at.Incidence, at.Exposure,
                                             at.DeckRate, at.KeelRate, at.EmergenceRate, at.SlamRate,
                                             at.ExtremePressure, at.ExtremeForce}));
        }
    }
    for (const auto& cut : seaway.Loads)
    {
        for (const auto& heading : cut)
        {
            for (const auto& load : heading)
            {
                EXPECT_TRUE(std::isfinite(load.Rms) && std::isfinite(load.Period));
            }
        }
    }
}

void ExpectNumbers(const CResults& results)
{
    for (const CSpeedResults& speed : results.Speeds)
    {
        std::for_each(speed.Directions.begin(), speed.Directions.end(),
                      [](const CDirectionResults& direction) { ExpectNumbers(direction); });
        std::for_each(speed.Seaways.begin(), speed.Seaways.end(),
                      [](const CSeawayResults& seaway) { ExpectNumbers(seaway); });
    }
}

/// Words of a text that printf writes for what is no number.
std::vector<std::string> NoNumbers(const std::string& text)
{
    static const std::set<std::string_view> kNoNumbers = {"nan", "-nan", "inf", "-inf"};
    std::vector<std::string> found;
    CLineReader lines(text);
    while (!lines.AtEnd())
    {
        const std::string_view line = lines.ReadLine(1000);
        CTokens tokens(line);
        for (auto token = tokens.Next(); token; token = tokens.Next())
        {
            if (kNoNumbers.contains(*token))
            {
                found.emplace_back(line);
            }
        }
    }
    return found;
}

class UnusualInput : public testing::TestWithParam<CUnusual>
{
};
} // namespace

INSTANTIATE_TEST_SUITE_P(All, UnusualInput, testing::ValuesIn(kUnusual),
                         [](const auto& unusual) { return unusual.param.Name; });

TEST_P(UnusualInput, RunsThroughAndLeavesNumbers)
{
    CInput input = FastShip();
    GetParam().Change(input);
    CReferenceRun run(input);
    ExpectNumbers(run.Results);
    EXPECT_THAT(BinaryFile(run.Input, run.Results, kStamp, run.Log), EndsWith("CBDW"));
    const std::string listing = Listing(run.Input, run.Results, kStamp, run.Log);
    EXPECT_THAT(listing, HasSubstr("END OF CALCULATION"));
    EXPECT_THAT(NoNumbers(listing), IsEmpty());
    EXPECT_EQ(CoefficientTable(run.Results, run.Log).find("nan"), std::string::npos);
    EXPECT_EQ(WaveForceTable(run.Results, run.Log).find("nan"), std::string::npos);
    std::string warnings;
    for (const std::string& warning : run.Log.Warnings())
    {
        warnings += warning + '\n';
    }
    const std::string expected = GetParam().Warning;
    EXPECT_EQ(warnings.empty(), expected.empty()) << warnings;
    EXPECT_THAT(warnings, HasSubstr(expected));
}

TEST(UnusualInput, AShipThatCannotFloatIsRefused)
{
    CRunLog log;
    CInput dry = FastShip();
    dry.ByDisplacement = false;
    dry.Draft = 0;
    EXPECT_THROW(Calculate(dry, log, {}), CInputError);
    CInput heavy = FastShip();
    heavy.Displacement = 1e9;
    EXPECT_THROW(Calculate(heavy, log, {}), CInputError);
}
