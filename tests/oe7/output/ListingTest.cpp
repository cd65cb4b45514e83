#include "oe7/output/ListingWords.h"
#include "tests/oe7/output/CMadeRun.h"
#include "tests/support/CTestFolder.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

namespace
{
bool Holds(const std::string& line, const std::string& word)
{
    return line.find(word) != std::string::npos;
}

/// The place of the first line with a word, from a place on.
std::size_t LineWith(const std::vector<std::string>& lines, const std::string& word, std::size_t from = 0)
{
    while (from < lines.size() && !Holds(lines[from], word))
    {
        ++from;
    }
    EXPECT_LT(from, lines.size()) << "no " << word;
    return from;
}

std::size_t Count(const std::vector<std::string>& lines, const std::string& word)
{
    return static_cast<std::size_t>(std::count_if(
        lines.begin(), lines.end(), [&](const std::string& line) { return Holds(line, word); }));
}

/// Gives every number that may become large one value.
void SetAll(oe7::CResults& results, double value)
{
    for (oe7::CSpeedResults& speed : results.Speeds)
    {
        for (oe7::CPositionGeometry& geometry : speed.Positions)
        {
            geometry = {value, value, value, value, value, value};
        }
        for (oe7::CDirectionResults& direction : speed.Directions)
        {
            std::fill(direction.Encounter.begin(), direction.Encounter.end(), value);
            for (oe7::CMotionVector& motions : direction.Motions)
            {
                motions.fill(value);
            }
            for (oe7::CDampingRow& row : direction.Damping)
            {
                row.RollAngle = row.Wave = row.AddedMass = value;
                std::fill(row.AppendageLift.begin(), row.AppendageLift.end(), value);
                std::fill(row.AppendageViscous.begin(), row.AppendageViscous.end(), value);
            }
        }
        for (oe7::CSeawayResults& seaway : speed.Seaways)
        {
            for (oe7::CModeRms& rms : seaway.Rms)
            {
                rms[0].fill(value);
                rms[2].fill(value);
            }
            for (auto& headings : seaway.Positions)
            {
                for (oe7::CPositionAtHeading& at : headings)
                {
                    at.Local.fill(value);
                    at.DeckRate = at.KeelRate = at.SlamRate = at.EmergenceRate = at.LateralCount = value;
                    at.ExpectedPressure = at.ExtremePressure = at.ExpectedForce = at.ExtremeForce = value;
                }
            }
            for (auto& headings : seaway.Loads)
            {
                for (auto& loads : headings)
                {
                    loads.fill({value, value});
                }
            }
        }
    }
}

/// How many words stand in each row of the tables that a reader takes by words.
void ExpectRowsWhole(const std::vector<std::string>& lines)
{
    const auto rows = [&](const std::string& marker, std::size_t skip, std::size_t count, std::size_t words)
    {
        const std::size_t begin = LineWith(lines, marker) + skip;
        for (std::size_t i = begin; i < begin + count; ++i)
        {
            EXPECT_THAT(TokensOf(lines.at(i)), SizeIs(words)) << lines.at(i);
        }
    };
    rows("     Wave   Enc ", 2, 4, 12);
    rows("Appendage lift", 4, 4, 18);
    rows("Appendage viscous", 4, 4, 17);
    rows("LFE", 2, 3, 6);
    rows("Motion Sickness", 6, 3, 3);
    rows("Draft in the next line", 6, 3, 13);
    rows("   DECK WETNESS", 6, 3, 5);
    rows("   EMERGENCE", 6, 3, 5);
    rows("RMS Sea Loads at Station", 7, 3, 16);
    const std::size_t waves = LineWith(lines, "| Enc ");
    for (std::size_t i = waves + 2; i < waves + 6; ++i)
    {
        EXPECT_EQ(std::count(lines.at(i).begin(), lines.at(i).end(), '|'), 7) << lines.at(i);
        const std::vector<std::string> words = TokensOf(lines.at(i));
        ASSERT_THAT(words, SizeIs(1 + 6 * 3 + 3)) << lines.at(i);
        EXPECT_LE(words.at(20).size(), 5U);
    }
}
} // namespace

TEST(Listing, IsAsItWas)
{
    CMadeRun run;
    const std::string listing = run.Listing();
    ExpectGolden(listing, "oe7/listing.txt");
    EXPECT_THAT(run.Log.Warnings(), IsEmpty());
}

TEST(Listing, IsInTheUnitsOfTheOutput)
{
    oe7::CInput input = SmallInput();
    input.OutputUnits = oe7::EUnits::British;
    input.Speeds = {12.5};
    input.Seaways.resize(1);
    ExpectGolden(CMadeRun(input).Listing(), "oe7/listing-british.txt");
}

TEST(Listing, MarkerWordsStandInTheirPlacesOnly)
{
    for (const std::string& line : LinesOf(CMadeRun().Listing()))
    {
        EXPECT_TRUE(!Holds(line, "ENFREQMIN") || Holds(line, "   ENFREQMIN (rad/s)")) << line;
        EXPECT_TRUE(!Holds(line, "Enc") || Holds(line, "| Enc        WL/L") ||
                    Holds(line, "     Wave   Enc     Roll"))
            << line;
        EXPECT_TRUE(!Holds(line, "Label") || Holds(line, "   Label     ") ||
                    Holds(line, "   (Label in the line above)"))
            << line;
        EXPECT_TRUE(!Holds(line, "LFE") || Holds(line, "LFE lat")) << line;
        EXPECT_TRUE(!Holds(line, "Sickness") || line == "   Motion Sickness Incidence") << line;
        EXPECT_TRUE(!Holds(line, "Depth") || line.find("   Depth ") == 0) << line;
        EXPECT_TRUE(!Holds(line, "Draft") || Holds(line, "Freeboard") || Holds(line, "   Draft ") ||
                    Holds(line, "   Station           X       Beam      Draft"))
            << line;
        EXPECT_TRUE(!Holds(line, "Freeboard") || line.find("   Freeboard ") == 0 || Holds(line, "   Label "))
            << line;
        EXPECT_TRUE(!Holds(line, "Cb") || line.find("   Block coefficient, Cb ") == 0) << line;
    }
}

TEST(Listing, UserTextsHoldNoMarker)
{
    oe7::CInput input = SmallInput();
    for (const std::string_view marker : oe7::kMarkers)
    {
        const std::vector<std::string> plain = LinesOf(CMadeRun(input).Listing());
        oe7::CInput hostile = input;
        hostile.Title = "A " + std::string(marker) + " : 7";
        for (oe7::CPosition& position : hostile.Positions)
        {
            position.Label = std::string(marker);
        }
        const std::vector<std::string> lines = LinesOf(CMadeRun(hostile).Listing());
        ASSERT_EQ(lines.size(), plain.size());
        EXPECT_EQ(Count(lines, std::string(marker)), Count(plain, std::string(marker))) << marker;
    }
}

TEST(Listing, TellsTheMethodAndWhatItLeavesOut)
{
    oe7::CInput input = SmallInput();
    EXPECT_THAT(CMadeRun(input).Listing(), HasSubstr("sections by the boundary element method"));
    input.Method = oe7::ESectionMethod::ConformalMapping;
    const std::string listing = CMadeRun(input).Listing();
    EXPECT_THAT(listing, HasSubstr("sections by the conformal mapping method"));
    EXPECT_THAT(listing, HasSubstr("   Not modelled: three-dimensional interaction of the sections"));
}

TEST(Listing, EchoesRollAndMetacentreInTheUnitsOfTheInput)
{
    oe7::CInput input = SmallInput();
    input.InputUnits = oe7::EUnits::British;
    input.Gm = 0.3048;
    input.RollValue = 3.048;
    std::string listing = CMadeRun(input).Listing();
    EXPECT_THAT(listing, HasSubstr("   GMFLAG                    : GMINPUT\n"
                                   "   ROLLRGDEF                 : DRYROLLRG\n"
                                   "   GMUSER (ft)               :     1.0000\n"
                                   "   Value of the roll record  :    10.0000\n"));
    input.RollInertia = oe7::ERollInertia::WetFrequency;
    input.RollValue = 0.6;
    EXPECT_THAT(CMadeRun(input).Listing(), HasSubstr("   Value of the roll record  :     0.6000\n"));
}

TEST(Listing, SlamFormsByOffsetsStandBehindThoseThatAReaderTakes)
{
    const std::vector<std::string> lines = LinesOf(CMadeRun().Listing());
    const std::size_t first = LineWith(lines, "exceedence") + 10;
    EXPECT_THAT(lines.at(first), StartsWith("   keel "));
    EXPECT_THAT(lines.at(first + 1), StartsWith("   wedge "));
    EXPECT_THAT(lines.at(first + 2), StartsWith("   offset "));
    EXPECT_EQ(lines.at(first + 3), "");
    EXPECT_EQ(TokensOf(lines.at(first + 1)).at(2), "SLAMWEDGE");
}

TEST(Listing, ASectionWithoutBreadthHasNoCoefficient)
{
    CMadeRun run;
    run.Results.Hull.Sections[0] = {};
    run.Results.Hull.Sections[1].Beam = 0;
    const std::vector<std::string> lines = LinesOf(run.Listing());
    const std::size_t first = LineWith(lines, "SECTIONAL PROPERTIES") + 6;
    EXPECT_THAT(TokensOf(lines.at(first)),
                ElementsAre("0", "61.5000", "0.0000", "0.0000", "0.0000", "0.00000"));
    EXPECT_EQ(TokensOf(lines.at(first + 1)).at(5), "0.00000");
    EXPECT_THAT(run.Log.Warnings(), IsEmpty());
}

TEST(Listing, TablesPerFrequencyEndBeforeTheFirstHeadingAbove180)
{
    oe7::CInput input = SmallInput();
    input.Directions = {0, 180.5, 181, 90};
    EXPECT_EQ(Count(LinesOf(CMadeRun(input).Listing()), "SHIP MOTIONS AT CG"), 2U * 2U)
        << "readers look at whole degrees";
    input.Directions = {195, 0};
    EXPECT_EQ(Count(LinesOf(CMadeRun(input).Listing()), "SHIP MOTIONS AT CG"), 0U);
}

TEST(Listing, DirectionalSeasHaveTablesOfThirteenSeaDirections)
{
    oe7::CInput input = SmallInput();
    input.Spectrum = oe7::ESpectrum::TenParameter;
    input.Directions.clear();
    input.Speeds = {12.5};
    input.Positions.clear();
    const std::vector<std::string> lines = LinesOf(CMadeRun(input).Listing());
    EXPECT_EQ(Count(lines, "SHIP MOTIONS AT CG"), 13U);
    EXPECT_EQ(Count(lines, "Sea direction 180.00"), 1U);
    const std::size_t loads = LineWith(lines, "RMS Sea Loads at Station");
    EXPECT_THAT(lines.at(loads + 7 + 23), StartsWith("    345.00 "));
}

TEST(Listing, MotionsAreToldWithoutRollDampingAndTheReverseNever)
{
    oe7::CInput input = SmallInput();
    input.RaoTables = oe7::ERaoTables::Motion;
    std::string listing = CMadeRun(input).Listing();
    EXPECT_THAT(listing, HasSubstr("SHIP MOTIONS AT CG"));
    EXPECT_THAT(listing, Not(HasSubstr("Roll natural frequency")));
    input.RaoTables = oe7::ERaoTables::None;
    listing = CMadeRun(input).Listing();
    EXPECT_THAT(listing, Not(HasSubstr("SHIP MOTIONS AT CG")));
    EXPECT_THAT(listing, Not(HasSubstr("Enc")));
}

TEST(Listing, BreakdownTablesAreFilledUpForPartsThatTheShipLacks)
{
    oe7::CInput input = SmallInput();
    input.Rudder.reset();
    input.Skeg.reset();
    input.Fins.reset();
    input.BilgeKeels.clear();
    input.FoilPairs.clear();
    ExpectRowsWhole(LinesOf(CMadeRun(input).Listing()));
}

TEST(Listing, RowsHaveTheirWords)
{
    ExpectRowsWhole(LinesOf(CMadeRun().Listing()));
}

TEST(Listing, AmplitudesAreLimited)
{
    CMadeRun run;
    run.Results.Speeds[0].Directions[0].Motions[0].fill(1234567.0);
    const std::vector<std::string> lines = LinesOf(run.Listing());
    EXPECT_EQ(TokensOf(lines.at(LineWith(lines, "| Enc ") + 2)).at(2), "999.0000");
}

TEST(Listing, NoValueIsSoLargeThatWordsRunTogetherOrLinesBecomeTooLong)
{
    for (const double value : {99999.0, -1234567.0, 1e8, 1e12, -1e30, 3e38})
    {
        oe7::CInput input = SmallInput();
        input.Title = std::string(300, 't');
        input.Positions[0].Label = std::string(300, 'L');
        CMadeRun run(input);
        SetAll(run.Results, value);
        const std::vector<std::string> lines = LinesOf(run.Listing());
        ExpectRowsWhole(lines);
        for (const std::string& line : lines)
        {
            EXPECT_LE(line.size(), 254U) << line;
        }
    }
}

TEST(Listing, WhatIsNoNumberIsPrintedAsZero)
{
    CMadeRun run;
    SetAll(run.Results, std::nan(""));
    run.Results.Hull.C44 = 0;
    const std::string listing = run.Listing();
    for (const char* const text : {"nan", "inf"})
    {
        EXPECT_THAT(listing, Not(HasSubstr(text)));
    }
    ExpectRowsWhole(LinesOf(listing));
    EXPECT_THAT(run.Log.Warnings(), SizeIs(1));
}

TEST(Listing, LinesEndInALineFeedAlone)
{
    oe7::CInput input = SmallInput();
    input.Title = "Title\r";
    input.Positions[0].Label = "Label\r";
    const std::string listing = CMadeRun(input).Listing();
    EXPECT_EQ(listing.find('\r'), std::string::npos);
    EXPECT_EQ(listing.back(), '\n');
}

TEST(Listing, ARunOfNothingHasItsHead)
{
    oe7::CInput input = SmallInput();
    input.Speeds.clear();
    input.Directions.clear();
    input.Seaways.clear();
    const std::string listing = CMadeRun(input).Listing();
    EXPECT_THAT(listing, HasSubstr(" GENERAL HULL PARAMETERS"));
    EXPECT_THAT(listing, HasSubstr("   keel "));
    EXPECT_THAT(listing, HasSubstr("\n END OF CALCULATION\n"));
}

TEST(Listing, ATankTellsItsFrequency)
{
    oe7::CInput input = SmallInput();
    EXPECT_THAT(CMadeRun(input).Listing(), Not(HasSubstr("tank (rad/s)")));
    input.Tank = oe7::CUTubeTank{};
    EXPECT_THAT(CMadeRun(input).Listing(), HasSubstr("   Natural frequency of the tank (rad/s) "));
}
