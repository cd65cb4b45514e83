// What is taken from the listing, row by row.
#include "tests/core/results/CHandMadeRun.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
using CRows = std::vector<std::string>;

const std::string kCompletionFailed = "Error In Generating Output File: Error writing results file!";

CRows Empty(int count)
{
    return CRows(static_cast<std::size_t>(count));
}

/// A speed in regular waves of one heading.
struct CRegularRun : CHandMadeRun
{
    explicit CRegularRun(int output = 1)
    {
        P.NSPEED.Set(1);
        P.NSEAWAY.Set(1);
        P.NSEADIR.Set(1);
        P.SEADIR.Set(180);
        P.OUTRAO.Set(static_cast<float>(output));
        Sections();
    }
    CRegularRun& Motions(const CRows& rows)
    {
        Lines({"SHIP MOTIONS AT CG IN REGULAR WAVES", "", "", "Froude number : 0.25", "", "Enc", "freq"});
        Lines(rows);
        return *this;
    }
    CRegularRun& Damping(const CRows& rows)
    {
        Lines({"Roll natural frequency : 0.5", "C44 : 6E7", "I44 : 7E7", "Wave Enc", "freq"});
        Lines(rows);
        return *this;
    }
    /// The encounter frequency and the ratio of one row.
    void ExpectRow(const std::string& row, const CEchoBytes& expected)
    {
        Motions({row});
        Run(1, 1);
        Expect(CEchoBytes().Floats({0.25F}).Add(expected));
    }
};

const std::string kFields = " 0.2 | 1 2 | 3 4 | 5 6 | 7 8 | 9 10 | 11 12 | ";

/// A speed in irregular waves with one position, which is of no kind yet.
struct CIrregularRun : CHandMadeRun
{
    CIrregularRun()
    {
        P.SPECTRUM.Set(2);
        P.NSPEED.Set(1);
        P.NSEAWAY.Set(1);
        P.OUTRAO.Set(0);
        P.NPOS.Set(2);
        Sections();
        Lines({"POSITIONS FOR SEAKEEPING CALCULATIONS", "Label", "", "", "bow 1 2 3 4 5 | 6 | 7"});
        Lines({"", "", "", "hours : 20", "parameter : 0.01"});
    }
    const CEchoBytes Position = CEchoBytes().Floats({1, 2, 3, 4, 5, 6, 7});
    const CEchoBytes Duration = CEchoBytes().Floats({20, 0.01F});
};
} // namespace

TEST(ListingScrape, TheHead)
{
    CHandMadeRun run;
    run.Sections();
    run.Run(0, 0);
    run.Expect({});
}

TEST(ListingScrape, AComputedMetacentreStandsNineLinesBehindTheBlockCoefficient)
{
    for (const float flag : {0.0F, 2.0F, 3.0F})
    {
        CHandMadeRun run;
        run.P.GMFLAG.Set(flag);
        run.Lines({"1:1", "2:2", "3:3", "4:4", "5:5", "6:6", "7:7", "8:8", "GM : 2.25", "used : 1.75"});
        run.Sections();
        run.Run(0, 0);
        run.Expect({}, 20);
        const std::string bytes = FileContent(run.Path);
        EXPECT_EQ(ValueAt<float>(bytes, bytes.size() - 20), -99.99F);
        EXPECT_EQ(ValueAt<float>(bytes, bytes.size() - 16), flag == 3 ? 1.75F : 2.25F);
    }
}

TEST(ListingScrape, WithoutANumberForTheComputedMetacentreTheOriginOfStationsStandsInItsPlace)
{
    CHandMadeRun run;
    run.P.GMFLAG.Set(0);
    run.P.StationOrigin = 1647789135;
    run.Lines(Empty(10)).Sections();
    run.Run(0, 0);
    run.Expect({}, 20);
    const std::string bytes = FileContent(run.Path);
    EXPECT_EQ(ValueAt<int>(bytes, bytes.size() - 16), 1647789135);
}

TEST(ListingScrape, ARunWithAGivenMetacentreHasATrailerOfSixteenBytes)
{
    CHandMadeRun run;
    run.Sections();
    run.Run(0, 0);
    run.Expect({});
    const std::string bytes = FileContent(run.Path);
    EXPECT_EQ(ValueAt<float>(bytes, bytes.size() - 16), -99.99F);
    EXPECT_FALSE(run.Read().Trailer.CalculatedGM.has_value());
}

TEST(ListingScrape, StationsWithoutTheirNumber)
{
    CHandMadeRun run;
    run.P.NST.Set(2);
    run.Sections().Lines({" 0 1.5 2 3 4 5 6", " 1 ** 7"});
    run.Run(0, 0);
    run.Expect(CEchoBytes().Floats({1.5F, 2, 3, 4, 5}).Floats({0, 7}));
}

TEST(ListingScrape, ARunWithOnePositionOfTheFormHasNoPositionRecords)
{
    CHandMadeRun run;
    run.P.NPOS.Set(1);
    run.Sections();
    run.Run(0, 0);
    run.Expect({});
}

TEST(ListingScrape, PositionsWithoutSlammingHaveNoDuration)
{
    for (const float kind : {0.0F, 4.0F, 5.0F})
    {
        CIrregularRun run;
        run.P.NSPEED.Set(0);
        run.P.RELMOCALC.Set(0, kind);
        run.P.RELMOCALC.Set(1, 1); // no position of the run
        run.Run(0, 0);
        run.Expect(run.Position);
    }
}

TEST(ListingScrape, SlamFormsOfTheFirstAndTheThirdKind)
{
    CHandMadeRun run;
    run.P.NPOS.Set(5);
    for (int k = 0; k < 4; ++k)
    {
        run.P.RELMOCALC.Set(k, static_cast<float>(k));
    }
    run.P.RELMOCALC.Set(4, 1); // no position of the run
    run.Sections();
    run.Lines({"POSITIONS FOR SEAKEEPING CALCULATIONS and Label", "", ""});
    run.Lines({"a 1 2 3 4 5 | 6 | 7", "b 1 2 3 4 5 | 6 | 7", "c 1 2 3 4 5 | 6 | 7", "d 1 2 3 4 5 | 6 | 7"});
    run.Lines({"", "", "", "hours : 20", "parameter : 0.01"}).Lines(Empty(9));
    run.Lines({"b 2 SLAMFORM 15.5 2.5 9", "d 3 form factor 16.5 3.5"});
    run.Run(0, 0);
    run.Expect(CEchoBytes()
                   .Floats({1, 2, 3, 4, 5, 6, 7})
                   .Floats({1, 2, 3, 4, 5, 6, 7})
                   .Floats({1, 2, 3, 4, 5, 6, 7})
                   .Floats({1, 2, 3, 4, 5, 6, 7})
                   .Floats({20, 0.01F})
                   .Floats({15.5F, 2.5F, 16.5F, 3.5F}));
}

TEST(ListingScrape, AFrequencyRow)
{
    CRegularRun().ExpectRow(kFields + "0.162     12.8413", CEchoBytes().Floats({0.162F, 12.8413F}));
    CRegularRun().ExpectRow(kFields + "0.162 ", CEchoBytes().Floats({0.162F}));
    CRegularRun().ExpectRow(" 0.2 | 1 | 2", {});
}

TEST(ListingScrape, ARatioThatOverflowedItsFieldIsComputed)
{
    const float frequency = 0.123F;
    const double value = frequency;
    const auto ratio = static_cast<float>(61.638046 / (value * value) / 100.0);
    CRegularRun().ExpectRow(kFields + "0.123*******", CEchoBytes().Floats({frequency, ratio}));
    CRegularRun().ExpectRow(kFields + "0.000***",
                            CEchoBytes().Floats({0, std::numeric_limits<float>::infinity()}));
}

TEST(ListingScrape, AComputedRatioTakesTheLengthInTheUnitOfTheRun)
{
    CRegularRun run;
    run.P.SHIPLEN.unit = 1;
    const float length = 100 * 0.3048F;
    const auto ratio = static_cast<float>(61.638046 / (0.5 * 0.5) / static_cast<double>(length));
    run.ExpectRow(kFields + "0.500*******", CEchoBytes().Floats({0.5F, ratio}));
}

TEST(ListingScrape, OfTwelveCharactersWithoutStarsTheLastSevenAreTheRatio)
{
    CRegularRun().ExpectRow(kFields + "0.162123.456", CEchoBytes().Floats({0.162F, 123.456F}));
    CRegularRun().ExpectRow(kFields + "0.16212 9.5",
                            CEchoBytes().Floats({0.162F, 9.5F})); // seven: a word of its own
}

TEST(ListingScrape, HeadingsEndAtTheFirstAboveHalfACircle)
{
    CRegularRun run;
    run.P.SEADIR.Set(0, 90);
    run.P.SEADIR.Set(1, 180.9F); // truncated
    run.P.SEADIR.Set(2, 181);
    run.P.SEADIR.Set(3, 10);
    run.Motions({kFields + "1 2"}).Motions({kFields + "3 4"});
    run.Run(4, 1);
    run.Expect(CEchoBytes().Floats({0.25F, 1, 2}).Floats({0.25F, 3, 4}));
}

TEST(ListingScrape, RegularWavesBelongToTheFirstSeaway)
{
    CRegularRun run;
    run.P.NSEAWAY.Set(3);
    run.Motions({kFields + "1 2"});
    run.Run(1, 1);
    run.Expect(CEchoBytes().Floats({0.25F, 1, 2}));
    CRegularRun none;
    none.P.NSEAWAY.Set(0);
    none.Run(1, 1);
    none.Expect({});
}

TEST(ListingScrape, WithoutPrintedMotionsASpeedHasNothingInRegularWaves)
{
    CRegularRun run(0);
    run.Run(1, 1);
    run.Expect({});
}

TEST(ListingScrape, WithoutAppendagesTheDampingEndsInItsWord)
{
    CRegularRun run(2);
    run.P.NBKPAIR.Set(-1);
    run.Motions({kFields + "1 2"}).Damping({"0.2 1 2 3 4 5 6 7 8 9 | 10"});
    run.Run(1, 1);
    run.Expect(CEchoBytes()
                   .Floats({0.25F, 1, 2})
                   .Floats({0.5F, 6E7F, 7E7F})
                   .Floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})
                   .Integers({27}));
}

TEST(ListingScrape, AppendagesHaveTwoTablesTheSecondWithoutTheSkeg)
{
    CRegularRun run(2);
    run.P.IncludeRudder = 1;
    run.P.IncludeSkeg = 1;
    run.P.NBKPAIR.Set(2); // counts also without IncludeBilgeKeels
    run.P.NFOILPAIR.Set(-3);
    run.Motions({kFields + "1 2"}).Damping({"0.2 1 2 3 4 5 6 7 8 9 | 10"});
    run.Lines(Empty(5)).Lines({"0.2 11 12 | 13 14 15 | 16 0 0"});
    run.Lines(Empty(5)).Lines({"0.3 21 22 23 24 25 26"});
    run.Run(1, 1);
    run.Expect(CEchoBytes()
                   .Floats({0.25F, 1, 2})
                   .Floats({0.5F, 6E7F, 7E7F})
                   .Floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})
                   .Integers({26})
                   .Floats({0.2F, 11, 12, 13, 14, 15, 16})
                   .Floats({0.3F, 21, 22, 23, 24, 25}));
}

TEST(ListingScrape, InterruptionsOfAPosition)
{
    CIrregularRun run;
    run.P.MIIFLAG.Set(1);
    run.Lines({"Label", "LFE", "", "0 1 2 3 4 5 6", "15 1 2"});
    run.Run(2, 0);
    run.Expect(CEchoBytes().Add(run.Position).Floats({0, 1, 2, 3, 4, 5}).Floats({15, 1, 2}));
}

TEST(ListingScrape, SicknessAfterAFixedExposure)
{
    CIrregularRun run;
    run.P.MSIFlag[0] = 1;
    run.P.MSIMethod[0] = 2;
    run.Lines({"Label", "Sickness", "", "Exposure time is 2.5 hours", "", "", "", "0 1 2.5", "15 2 2.5"});
    run.Run(2, 0);
    run.Expect(
        CEchoBytes().Add(run.Position).Integers({1, 1}).Floats({2.5F}).Floats({0, 1, 0}).Floats({15, 2, 0}));
}

TEST(ListingScrape, SicknessWithTheExposureOfItsMaximum)
{
    CIrregularRun run;
    run.P.MSIFlag[0] = 1;
    run.P.MSIExposureOption[0] = 1;
    run.Lines({"Label", "Sickness", "", "Exposure time is 2.5 hours", "", "", "", "0 1 2.5", "15 2 3.5"});
    run.Run(2, 0);
    run.Expect(CEchoBytes()
                   .Add(run.Position)
                   .Integers({0, 0})
                   .Floats({0})
                   .Floats({0, 1, 2.5F})
                   .Floats({15, 2, 3.5F}));
}

TEST(ListingScrape, SlammingOfAPosition)
{
    CIrregularRun run;
    run.P.RELMOCALC.Set(2);
    run.Lines({"Label", "Freeboard 1 (zero) 2 (at), Draft", "Draft 3 (zero) 4 (at)", "", "", "", ""});
    run.Lines({"0 1 2 3 4 5 6 7 8 9 10 11 12", "15 1"});
    run.Run(2, 0);
    run.Expect(CEchoBytes()
                   .Add(run.Position)
                   .Add(run.Duration)
                   .Floats({1, 2, 3, 4})
                   .Floats({0, 1, 2, 3, 4, 5, 6})
                   .Integers({26})
                   .Floats({7, 8, 9, 10, 11, 12})
                   .Floats({15, 1})
                   .Integers({26}));
}

TEST(ListingScrape, DeckWetnessAndEmergenceOfAPosition)
{
    for (const float kind : {4.0F, 5.0F})
    {
        CIrregularRun run;
        run.P.RELMOCALC.Set(kind);
        run.Lines(
            {"Label", kind == 4 ? "Freeboard 1 (zero) 2 (at)" : "Depth 1 (zero) 2 (at)", "", "", "", ""});
        run.Lines({"0 1 2 3 4 5"});
        run.Run(1, 0);
        run.Expect(CEchoBytes().Add(run.Position).Floats({1, 2}).Floats({0, 1, 2, 3, 4}));
    }
}

TEST(ListingScrape, AMarkerInTheLineAtHandServesTheNextPositionToo)
{
    CIrregularRun run;
    run.P.NSEAWAY.Set(2); // the one line serves both
    run.Lines({"Label"});
    run.Run(1, 0);
    run.Expect(run.Position);
}

TEST(ListingScrape, LoadStations)
{
    const CRows block = {"RMS Sea Loads at Station", "", "", "", "", ""};
    const std::string row = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16";
    const CEchoBytes expected = CEchoBytes().Floats({2, 4, 5, 7, 8, 10, 11, 13, 14, 16});
    for (const float flag : {0.0F, 1.0F, 2.0F})
    {
        CHandMadeRun run;
        run.P.SPECTRUM.Set(2);
        run.P.NSPEED.Set(1);
        run.P.NSEAWAY.Set(1);
        run.P.OUTRAO.Set(0);
        run.P.LOADFLAG.Set(flag);
        run.P.NSTLOAD.Set(1);
        run.Sections().Lines(block).Lines({"", row});
        run.Run(1, 0);
        run.Expect(flag == 1 ? CEchoBytes() : expected);
    }
}

TEST(ListingScrape, SpectraWithDirectionsOfTheirOwnFixTheHeadingsAndTheProjectsSeaDirections)
{
    CHandMadeRun run;
    run.P.SPECTRUM.Set(7);
    run.P.NSPEED.Set(2);
    run.P.NSEAWAY.Set(2);
    run.P.OUTRAO.Set(0);
    run.P.LOADFLAG.Set(0);
    run.P.NSTLOAD.Set(1);
    run.P.NPOS.Set(2);
    run.P.MIIFLAG.Set(1);
    run.P.SEADIR.Fill(33);
    run.Sections();
    run.Lines({"POSITIONS FOR SEAKEEPING CALCULATIONS", "Label", "", "", "bow 1 2 3 4 5 | 6 | 7", "", "", "",
               "", ""});
    CEchoBytes expected = CEchoBytes().Floats({1, 2, 3, 4, 5, 6, 7});
    for (int speed = 0; speed < 2; ++speed)
    {
        for (int seaway = 0; seaway < 2; ++seaway)
        {
            // Until a load station has come there are thirteen headings.
            const int headings = seaway == 0 ? 13 : 24;
            run.Lines({"Label", "LFE", ""}).Lines(CRows(static_cast<std::size_t>(headings), "1 2 3 4 5 6"));
            run.Lines({"RMS Sea Loads at Station", "", "", "", "", "", ""});
            run.Lines(CRows(24, "0 1 0 2 3 0 4 5 0 6 7 0 8 9 0 10"));
            for (int k = 0; k < headings; ++k)
            {
                expected.Floats({1, 2, 3, 4, 5, 6});
            }
            for (int k = 0; k < 24; ++k)
            {
                expected.Floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
            }
        }
    }
    run.Run(2, 0);
    run.Expect(expected);
    EXPECT_EQ(run.P.SEADIR.Value(0), 0);
    EXPECT_EQ(run.P.SEADIR.Value(1), 15);
    EXPECT_EQ(run.P.SEADIR.Value(12), 180);
    EXPECT_EQ(run.P.SEADIR.Value(13), 33);
}

TEST(ListingScrape, AListingCutBehindItsHeadGivesOneMessageAndKeepsWhatWasFound)
{
    CRegularRun run;
    run.P.NSPEED.Set(10);
    run.P.NSEAWAY.Set(10);
    run.Motions({kFields + "1 2"});
    run.Run(3, 1);
    EXPECT_EQ(run.Recorder.Messages, std::vector{kCompletionFailed});
    EXPECT_EQ(run.Recorder.Beeps, 1);
    EXPECT_EQ(run.Recorder.Icons, std::vector{EIcon::Stop});
    EXPECT_EQ(run.P.ResultsLoaded, 0);
    const std::string bytes = FileContent(run.Path);
    const std::string found = CEchoBytes().Floats({1, 2, 3, 4, 5, 6, 7, 0.5F}).Floats({0.25F, 1, 2}).Bytes();
    EXPECT_EQ(bytes.substr(bytes.size() - found.size()), found);
}

TEST(ListingScrape, NothingIsAppendedBehindAFailedScan)
{
    CIrregularRun run;
    run.P.MSIFlag[0] = 1;
    run.P.NSPEED.Set(2);
    run.Lines({"Label"}); // and no sickness: its constants don't come
    run.Run(1, 0);
    EXPECT_EQ(run.Recorder.Messages, std::vector{kCompletionFailed});
    const std::string bytes = FileContent(run.Path);
    const std::string found = CEchoBytes().Floats({0.5F}).Add(run.Position).Bytes();
    EXPECT_EQ(bytes.substr(bytes.size() - found.size()), found);
}
