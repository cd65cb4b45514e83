// Reading the text of a project file: tokens, adjustments, generations, halves, damage.
#include "core/project/InputFileText.h"
#include "tests/support/CTestProject.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>

using testing::ElementsAre;

namespace
{
constexpr const char* kUnreadable = "Error Reading File: The file could not be read.";

/// The text of a project at its defaults, changed by the test.
std::string TextWith(const std::function<void(CProjectData&)>& change)
{
    CTestProject test;
    change(test.Project);
    return InputFileText(test.Project);
}

std::string DefaultText()
{
    return TextWith([](CProjectData&) {});
}

/// A project that a text was read into.
struct CReadProject : CTestProject
{
    explicit CReadProject(const std::string& text, EHalf half = EHalf::Both)
        : Opened(File.ReadContent(text, half))
    {
    }

    EOpened Opened;
};

std::string DefaultWith(const std::string& label, const std::string& line, int behind = 1)
{
    return WithLineBehind(DefaultText(), label, line, behind);
}
} // namespace

TEST(InputFileReader, WhatWasWrittenIsReadBackAndWrittenWithTheSameBytes)
{
    const std::string text = TextWith(
        [](CProjectData& p)
        {
            p.ProjectTitle = "Frigate, as built";
            p.NST.Set(21);
            p.NOFFUSER.Fill(60);
            p.YAUSER.Fill(1.125F);
            p.ZAUSERBL.Fill(-0.5F);
            p.NSEADIR.Set(36);
            p.SEADIR.Fill(12.5F);
            p.NPOS.Set(10);
            p.NSLOFF.Fill(11);
            p.NBKPAIR.Set(5);
            p.NFOILPAIR.Set(4);
            p.FINTANKSTAB.Set(1);
            p.NFINPAIR.Set(4);
            p.EXCITE.Set(3);
            p.ADDMASS.Set(4);
            p.SpectrumFile = "C:\\seas\\a b.txt";
            p.RudderGainFileUsed = 1;
            p.RudderGainFile = "gains with blanks.txt";
            p.MSIFlag[3] = 1;
        });
    CReadProject read(text);
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_THAT(read.Recorder.Messages, ElementsAre());
    EXPECT_EQ(InputFileText(read.Project), text);
}

TEST(InputFileReader, LabelsMaySayAnything)
{
    std::string text = DefaultText();
    text = WithLineBehind(text, "Record (b) ", "whatever", 0);
    text = WithLineBehind(text, "Record (b1)", "", 0);
    EXPECT_EQ(CReadProject(text).Opened, EOpened::Whole);
}

TEST(InputFileReader, TokensMayBeSplitByManyBlanks)
{
    CReadProject read(DefaultWith("Record (j)", "   100.5   4    25.25 1 0   1   comment"));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.SHIPLEN.Value(), 100.5F);
    EXPECT_EQ(read.Project.PITCHRG.Value(), 25.25F);
    EXPECT_EQ(read.Project.SHIPLEN.unit, 1);
    EXPECT_EQ(read.Project.PITCHRG.unit, 1);
}

TEST(InputFileReader, ATokenMustBeginAsAnInteger)
{
    for (const char* token : {"-1.00", "0.2000", "+5", "0x1A", "1e3", "007"})
    {
        EXPECT_EQ(CReadProject(DefaultWith("Record (g)", token)).Opened, EOpened::Whole) << token;
    }
    for (const char* token : {".5", "-.5", "nan", "inf", "x", "-", "+", "e5", ""})
    {
        CReadProject read(DefaultWith("Record (g)", token));
        EXPECT_EQ(read.Opened, EOpened::Damaged) << token;
        EXPECT_EQ(read.Project.SPECTRUM.Value(), -1) << token;
    }
}

TEST(InputFileReader, AKeywordsValueIsTakenByAtof)
{
    EXPECT_EQ(CReadProject(DefaultWith("Record (j)", "1e2 0x1A 7.5x 0 0 0")).Project.SHIPLEN.Value(), 100);
    EXPECT_EQ(CReadProject(DefaultWith("Record (j)", "1e2 0x1A 7.5x 0 0 0")).Project.KG.Value(), 26);
    EXPECT_EQ(CReadProject(DefaultWith("Record (j)", "1e2 0x1A 7.5x 0 0 0")).Project.PITCHRG.Value(), 7.5F);
}

TEST(InputFileReader, AnIntegerFieldIsTakenByAtoi)
{
    CReadProject read(DefaultWith("//**EXTRA VARIABLES FOR RECORD (G)", "1e3 1.7 -1.00"));
    EXPECT_EQ(read.Project.SeaDirectionUnit, 1);
    EXPECT_EQ(read.Project.SpreadOption, 1);
}

TEST(InputFileReader, AStationNumberMayBeginWithAPoint)
{
    const std::string text = TextWith([](CProjectData& p) { p.NST.Set(1); });
    CReadProject read(WithLineBehind(text, "//**OFFSETS**//", ".5 //**Station**//"));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.XST.Value(), 0.5F);
}

TEST(InputFileReader, AFailedTokenEndsTheReadingWithOneMessageAndKeepsWhatCameBefore)
{
    CReadProject read(DefaultWith("Record (j)", "120.00 junk junk 0 0 0"));
    EXPECT_EQ(read.Opened, EOpened::Damaged);
    EXPECT_THAT(read.Recorder.Messages, ElementsAre(kUnreadable));
    EXPECT_EQ(read.Recorder.Beeps, 1);
    EXPECT_EQ(read.Project.SHIPLEN.Value(), 120);
    EXPECT_EQ(read.Project.KG.Value(), -1);
    EXPECT_EQ(read.Project.SHIPLEN.unit, 0);
}

TEST(InputFileReader, AFailedReadStillTellsWhatIsComplete)
{
    std::string text = DefaultWith("Record (i)", "1 15.00 -1 -1 -1 -1 -1 -1 -1 -1 -1 0");
    text = WithLineBehind(text, "Record (j)", "junk");
    EXPECT_EQ(CReadProject(text).Project.SpeedsComplete, 1);
}

TEST(InputFileReader, AMissingTokenFails)
{
    EXPECT_EQ(CReadProject(DefaultWith("Record (j)", "120.00 4.00 30.00  0 0")).Opened, EOpened::Damaged);
}

TEST(InputFileReader, AFileThatEndsEarlyFails)
{
    const std::string text = DefaultText();
    for (std::size_t length = 0; length + 12 < text.size(); length += 97)
    {
        CReadProject read(text.substr(0, length));
        EXPECT_NE(read.Opened, EOpened::Whole) << length;
        EXPECT_THAT(read.Recorder.Messages, ElementsAre(kUnreadable)) << length;
    }
}

TEST(InputFileReader, CarriageReturnsAtLineEndsAreDropped)
{
    std::string text = TextWith([](CProjectData& p) { p.ProjectTitle = "From another system"; });
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2)
    {
        text.insert(at, "\r");
    }
    CReadProject read(text);
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.ProjectTitle, "From another system");
    EXPECT_EQ(read.Project.FileMagic, "od7b");
    EXPECT_EQ(read.Project.SpectrumFile, "");
}

TEST(InputFileReader, ExcitationBelowTwoIsRaisedAndAddedMassBelowThree)
{
    CReadProject low(DefaultText());
    EXPECT_EQ(low.Project.EXCITE.Value(), 2);
    EXPECT_EQ(low.Project.ADDMASS.Value(), 3);
    CReadProject high(TextWith(
        [](CProjectData& p)
        {
            p.EXCITE.Set(3);
            p.ADDMASS.Set(4);
        }));
    EXPECT_EQ(high.Project.EXCITE.Value(), 3);
    EXPECT_EQ(high.Project.ADDMASS.Value(), 4);
}

TEST(InputFileReader, ExcitationIsNotRaisedWhenItsLineFails)
{
    EXPECT_EQ(CReadProject(DefaultWith("Record (b)", "1 1 0 1 1 2 0")).Project.EXCITE.Value(), 0);
}

TEST(InputFileReader, MassesThatDifferFromTheSentinelAreNoted)
{
    // The overhang distances are 0 in a new project, which is a value.
    EXPECT_EQ(CReadProject(DefaultText()).Project.MassDataEntered, 1);
    const std::string none = TextWith(
        [](CProjectData& p)
        {
            for (auto* field : {&p.BOWCGFP, &p.BOWPRG, &p.STERNCGAP, &p.STERNPRG})
            {
                field->Set(-1);
            }
            p.NST.Set(1);
        });
    EXPECT_EQ(CReadProject(none).Project.MassDataEntered, 0);
    EXPECT_EQ(CReadProject(WithLineBehind(none, "Record (n4)", "2.50")).Project.MassDataEntered, 1);
}

TEST(InputFileReader, FinsWithoutFinStabilizationAreReadButNotCounted)
{
    const std::string text = TextWith(
        [](CProjectData& p)
        {
            p.FINTANKSTAB.Set(0);
            p.NFINPAIR.Set(2);
            p.SPANFIN.Set(1, 3.5F);
            p.TANKLEN.Set(9);
        });
    CReadProject read(text);
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.NFINPAIR.Value(), 0);
    EXPECT_EQ(read.Project.SPANFIN.Value(1), 3.5F);
    EXPECT_EQ(read.Project.TANKLEN.Value(), 9);
}

TEST(InputFileReader, AValueInTheLineOfAnEmptyListIsDropped)
{
    std::string text = DefaultWith("Record (g2)", "55.00");
    text = WithLineBehind(text, "Record (n2)", "junk");
    CReadProject read(text);
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.SEADIR.Value(), -1);
    EXPECT_EQ(read.Project.SECTTN.Value(), -1);
}

TEST(InputFileReader, CountsThatTheArraysCannotHoldFailAndAreNotStored)
{
    struct CCase
    {
        const char* Label;
        const char* Line;
        CParamArray CProjectData::*Field;
    };
    const CCase cases[] = {
        {"Record (g1)", "37 -1", &CProjectData::NSEADIR},   {"Record (l1)", "22 1 1", &CProjectData::NST},
        {"Record (o) ", "11 20 0.01", &CProjectData::NPOS}, {"Record (p) ", "6", &CProjectData::NBKPAIR},
        {"Record (s) ", "5", &CProjectData::NFOILPAIR},     {"Record (u) ", "5", &CProjectData::NFINPAIR},
        {"Record (l1)", "1e30 1 1", &CProjectData::NST},    {"Record (l1)", "-1e30 1 1", &CProjectData::NST},
    };
    for (const CCase& c : cases)
    {
        CReadProject read(DefaultWith(c.Label, c.Line));
        EXPECT_EQ(read.Opened, EOpened::Damaged) << c.Line;
        EXPECT_LE((read.Project.*c.Field).Value(), 0) << c.Line;
        EXPECT_GE((read.Project.*c.Field).Value(), -1) << c.Line;
    }
}

TEST(InputFileReader, OffsetCountsThatAStationCannotHoldFail)
{
    const std::string text = TextWith([](CProjectData& p) { p.NST.Set(1); });
    CReadProject read(WithLineBehind(text, "//**OFFSETS**//", "61 0 //**Number**//", 2));
    EXPECT_EQ(read.Opened, EOpened::Damaged);
    EXPECT_EQ(read.Project.NOFFUSER.Value(), 3);
    const std::string position = TextWith([](CProjectData& p) { p.NPOS.Set(1); });
    EXPECT_EQ(CReadProject(WithLineBehind(position, "Record (o1)", "12 0", 5)).Opened, EOpened::Damaged);
}

TEST(InputFileReader, CountsThatOnlyTheEngineUsesAreKeptAsRead)
{
    CReadProject read(DefaultWith("Record (g3)", "1e30"));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.NSEAWAY.Value(), 1e30F);
    EXPECT_EQ(CReadProject(DefaultWith("Record (n) ", "99")).Project.NSTLOAD.Value(), 99);
}

TEST(InputFileReader, NegativeCountsAreKeptAndMeanNoLines)
{
    CReadProject read(DefaultWith("Record (l1)", "-7 1 1"));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.NST.Value(), -7);
}

TEST(InputFileReader, TwinsWithoutATagOfTheirOwnTakeTheirTwins)
{
    CReadProject read(TextWith(
        [](CProjectData& p)
        {
            p.NST.Set(1);
            p.HSW.unit = p.ZETA1.unit = p.YAUSER.unit = 1;
        }));
    EXPECT_EQ(read.Project.TSW.unit, 1);
    EXPECT_EQ(read.Project.ZETA2.unit, 1);
    EXPECT_EQ(read.Project.ZAUSERBL.unit, 1);
}

TEST(InputFileReader, TheLateralFlagsComeFromTheLastFourTagsOfTheRudder)
{
    CReadProject read(DefaultWith("//**UNIT TYPES FOR RECORD (R)", "0 0 0 0 0 1 0 1 1"));
    EXPECT_THAT(read.Project.RudderLateralGainUnits, ElementsAre(1, 0, 1));
    EXPECT_EQ(read.Project.LateralPointZUnit, 1);
    EXPECT_EQ(read.Project.TCRUD.unit, 0);
}

TEST(InputFileReader, AMissingDihedralHangsStraightDownAndAJunkOneFails)
{
    CReadProject missing(DefaultWith("Record (r) ", "3.00 0 1 2 3 4 5 1"));
    EXPECT_EQ(missing.Opened, EOpened::Whole);
    EXPECT_EQ(missing.Project.RudderDihedral, -90);
    EXPECT_EQ(CReadProject(DefaultWith("Record (r) ", "3.00 0 1 2 3 4 5 1 -45.5")).Project.RudderDihedral,
              -45.5F);
    EXPECT_EQ(CReadProject(DefaultWith("Record (r) ", "3.00 0 1 2 3 4 5 1 junk")).Opened, EOpened::Damaged);
}

TEST(InputFileReader, AnOptionOtherThanZeroAsksForMotionSickness)
{
    const std::string text = TextWith([](CProjectData& p) { p.NPOS.Set(1); });
    const auto flag = [&text](const char* line)
    { return CReadProject(WithLineBehind(text, "Record (o1)", line, 10)).Project.MSIFlag[0]; };
    EXPECT_EQ(flag("0 0 0 4.00"), 0);
    EXPECT_EQ(flag("1 0 0 4.00"), 1);
    EXPECT_EQ(flag("7 0 0 4.00"), 1);
    EXPECT_EQ(CReadProject(WithLineBehind(text, "Record (o1)", "yes 0 0 4", 10)).Opened, EOpened::Damaged);
}

TEST(InputFileReader, APositionsLabelIsTheWholeLineAndMayBeEmpty)
{
    const std::string text = TextWith([](CProjectData& p) { p.NPOS.Set(1); });
    EXPECT_EQ(CReadProject(WithLineBehind(text, "Record (o1)", " two words ")).Project.PositionLabel[0],
              " two words ");
    CReadProject empty(WithLineBehind(text, "Record (o1)", ""));
    EXPECT_EQ(empty.Opened, EOpened::Whole);
    EXPECT_EQ(empty.Project.PositionLabel[0], "");
}

TEST(InputFileReader, SpectrumFileLinesAreWholeLinesAndEmptyMeansNone)
{
    CReadProject read(DefaultWith("Record (h4a)", "/my seas/one two.txt"));
    EXPECT_EQ(read.Project.SpectrumFile, "/my seas/one two.txt");
    EXPECT_EQ(read.Project.HindcastFile, "");
}

TEST(InputFileReader, AGainFilesNameMayHoldBlanks)
{
    CReadProject read(DefaultWith("//**Rudder Speed", "1 /gains/my rudder  file.txt"));
    EXPECT_EQ(read.Project.RudderGainFileUsed, 1);
    EXPECT_EQ(read.Project.RudderGainFile, "/gains/my rudder  file.txt");
    EXPECT_EQ(read.Project.FinGainFileUsed, 0);
    EXPECT_EQ(read.Project.FinGainFile, "NoFile");
}

TEST(InputFileReader, OnlyTheTokenOneUsesAGainFile)
{
    for (const char* token : {"01", "1.0", "2", "0", "-1"})
    {
        CReadProject read(DefaultWith("//**Fin Speed", std::string(token) + " f"));
        EXPECT_EQ(read.Opened, EOpened::Whole) << token;
        EXPECT_EQ(read.Project.FinGainFileUsed, 0) << token;
        EXPECT_EQ(read.Project.FinGainFile, "f") << token;
    }
    EXPECT_EQ(CReadProject(DefaultWith("//**Fin Speed", "yes f")).Opened, EOpened::Damaged);
    EXPECT_EQ(CReadProject(DefaultWith("//**Fin Speed", "")).Opened, EOpened::Damaged);
    EXPECT_EQ(CReadProject(DefaultWith("//**Fin Speed", "1")).Project.FinGainFile, "");
}

TEST(InputFileReader, AFileWithoutGainLinesFailsAtTheRollGainsAndKeepsWhatCameBefore)
{
    const std::string text = TextWith(
        [](CProjectData& p)
        {
            p.SPANRUD.Set(4);
            p.RudderGainFile = "left over";
        });
    CReadProject read(WithoutLines(text, "//**Rudder Speed", 2));
    EXPECT_EQ(read.Opened, EOpened::Damaged);
    EXPECT_THAT(read.Recorder.Messages, ElementsAre(kUnreadable));
    EXPECT_EQ(read.Project.SPANRUD.Value(), 4);
    EXPECT_EQ(read.Project.RudderGainFile, "");
    EXPECT_EQ(read.Project.FREQRUD.Value(), -1);
}

TEST(InputFileReader, ABlankGainLabelIsNoRecordLine)
{
    CReadProject read(WithLineBehind(DefaultText(), "//**Rudder Speed", "", 0));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.RudderGainFile, "NoFile");
}

TEST(InputFileReader, AMagicWithBlanksAndWordsAroundItIsFound)
{
    std::string text = DefaultText();
    text.replace(text.find("od7b"), 4, "  od7b of 2003");
    EXPECT_EQ(CReadProject(text).Opened, EOpened::Whole);
}

TEST(InputFileReader, ATitleOf255CharactersIsReadAndALongerOneFailsAsMagic)
{
    const auto opened = [](std::size_t length) {
        return CReadProject(TextWith([length](CProjectData& p) { p.ProjectTitle.assign(length, 't'); }))
            .Opened;
    };
    EXPECT_EQ(opened(255), EOpened::Whole);
    EXPECT_EQ(opened(256), EOpened::NotRecognised);
}

TEST(InputFileReader, ALineOver500CharactersIsCutAndReadOnInside)
{
    const std::string text = TextWith(
        [](CProjectData& p)
        {
            p.NST.Set(1);
            p.NOFFUSER.Set(0, 60);
            p.YAUSER.Fill(12345.678F); // 60 values of 9 characters and a blank: 600
        });
    CReadProject read(text);
    EXPECT_EQ(read.Opened, EOpened::Damaged);
    EXPECT_EQ(read.Project.YAUSER.Value(49), 12345.678F);
    EXPECT_EQ(read.Project.YAUSER.Value(50), -1);
}

TEST(InputFileReader, ATokenCutByTheLineLimitIsTakenAsItStands)
{
    const std::string text = TextWith([](CProjectData& p) { p.NST.Set(1); });
    // The third value begins at character 498: three of its digits belong to the line.
    const std::string line = "1 2 " + std::string(493, ' ') + "777888";
    CReadProject read(WithLineBehind(text, "//**OFFSETS**//", line, 3));
    EXPECT_EQ(read.Project.YAUSER.Value(2), 777);
    // What was cut off is the next line.
    EXPECT_EQ(read.Project.ZAUSERBL.Value(0), 888);
    EXPECT_EQ(read.Opened, EOpened::Damaged);
}

TEST(InputFileReader, AnOffsetLineOfExactly500CharactersIsReadWhole)
{
    const std::string text = TextWith([](CProjectData& p) { p.NST.Set(1); });
    const std::string line = "1 2 " + std::string(495, ' ') + "3";
    CReadProject read(WithLineBehind(text, "//**OFFSETS**//", line, 3));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.YAUSER.Value(2), 3);
}

// --- the previous generation

TEST(InputFileReader, ThePreviousGenerationIsReadWithDefaultsForWhatItLacks)
{
    const std::string text = AsPreviousGeneration(TextWith(
        [](CProjectData& p)
        {
            p.NST.Set(2);
            p.NPOS.Set(2);
            p.MSIFlag[1] = 1;
            p.MSIExposure[1] = 9;
            p.YAUSER.Fill(2);
            p.TANKLEN.Set(5);
            p.RudderDihedral = -30;
            p.FinYawGains[0] = 3;
            p.RudderGainFile = "gone";
        }));
    CReadProject read(text);
    EXPECT_EQ(read.Opened, EOpened::Whole);
    const CProjectData& p = read.Project;
    EXPECT_EQ(p.FileMagic, "od7");
    EXPECT_EQ(p.TANKLEN.Value(), 5);
    EXPECT_EQ(p.RudderDihedral, -90);
    EXPECT_EQ(p.RudderGainFile, "");
    EXPECT_EQ(p.MSIFlag[1], 0);
    EXPECT_EQ(p.MSIExposure[1], 4);
    EXPECT_THAT(p.FinYawGains, ElementsAre(-111111, -111111, -111111));
    EXPECT_THAT(p.RudderLateralGainUnits, ElementsAre(0, 0, 0));
    EXPECT_EQ(p.YAUSER.Value(2), 2);
    EXPECT_EQ(p.YAUSER.Value(3), -1);
}

TEST(InputFileReader, ThePreviousGenerationHasThirtyOffsetsOnALineAndTheLastMayBeMissing)
{
    const std::string text = AsPreviousGeneration(TextWith([](CProjectData& p) { p.NST.Set(1); }));
    const auto values = [](int count)
    {
        std::string line;
        for (int k = 0; k < count; ++k)
        {
            line += std::to_string(k + 1) + " ";
        }
        return line;
    };
    const auto read = [&](int count)
    { return CReadProject(WithLineBehind(text, "//**OFFSETS**//", values(count), 3)); };
    EXPECT_EQ(read(30).Project.YAUSER.Value(29), 30);
    const CReadProject short29(WithLineBehind(text, "//**OFFSETS**//", values(29), 3));
    EXPECT_EQ(short29.Opened, EOpened::Whole);
    EXPECT_EQ(short29.Project.YAUSER.Value(28), 29);
    EXPECT_EQ(short29.Project.YAUSER.Value(29), -1);
    EXPECT_EQ(read(28).Opened, EOpened::Damaged);
}

TEST(InputFileReader, ThePreviousGenerationDropsTheLinesOfAStationWithoutOffsets)
{
    const std::string text = AsPreviousGeneration(TextWith([](CProjectData& p) { p.NST.Set(1); }));
    for (const char* count : {"0 0", "-3 0"})
    {
        std::string none = WithLineBehind(text, "//**OFFSETS**//", count, 2);
        none = WithLineBehind(none, "//**OFFSETS**//", "junk", 3);
        none = WithLineBehind(none, "//**OFFSETS**//", "", 4);
        EXPECT_EQ(CReadProject(none).Opened, EOpened::Whole) << count;
    }
}

TEST(InputFileReader, ThePreviousGenerationsSlotsBehindThirtyStayUnset)
{
    const std::string text = AsPreviousGeneration(TextWith([](CProjectData& p) { p.NST.Set(1); }));
    CReadProject read(WithLineBehind(text, "//**OFFSETS**//", "40 0", 2));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.NOFFUSER.Value(), 40);
    EXPECT_EQ(read.Project.YAUSER.Value(30), -1);
}

// --- halves

TEST(InputFileReader, TheGeometryHalfTakesTheShipAndTheSharedValuesOnly)
{
    const std::string text = TextWith(
        [](CProjectData& p)
        {
            p.ProjectTitle = "not taken";
            p.INSYS.Set(0);
            p.LOADFLAG.Set(0);
            p.WVFREQMIN.Set(0.5F);
            p.SPECTRUM.Set(3);
            p.HSW.unit = 1;
            p.SHIPLEN.Set(120);
            p.SHIPLEN.unit = 1;
            p.StationOrigin = 1;
            p.WaveFreqUserInput = 1;
        });
    CReadProject read(text, EHalf::Geometry);
    EXPECT_EQ(read.Opened, EOpened::Whole);
    const CProjectData& p = read.Project;
    EXPECT_EQ(p.ProjectTitle, "");
    EXPECT_EQ(p.INSYS.Value(), 0);
    EXPECT_EQ(p.EXCITE.Value(), 2);
    EXPECT_EQ(p.LOADFLAG.Value(), 0);
    EXPECT_EQ(p.WVFREQMIN.Value(), 0.2F);
    EXPECT_EQ(p.ADDMASS.Value(), 1);
    EXPECT_EQ(p.SPECTRUM.Value(), -1);
    EXPECT_EQ(p.HSW.unit, 0);
    EXPECT_EQ(p.SHIPLEN.Value(), 120);
    EXPECT_EQ(p.SHIPLEN.unit, 1);
    EXPECT_EQ(p.StationOrigin, 1);
    EXPECT_EQ(p.WaveFreqUserInput, 1);
}

TEST(InputFileReader, DamageInTheEnvironmentDoesNotHurtTheGeometryHalf)
{
    std::string text = DefaultWith("Record (d) ", "junk");
    text = WithLineBehind(text, "Record (g1)", "9999 x");
    EXPECT_EQ(CReadProject(text, EHalf::Geometry).Opened, EOpened::Whole);
}

TEST(InputFileReader, TheEnvironmentHalfTakesTheSeaAndTheSharedValuesOnly)
{
    const std::string text = AsPreviousGeneration(TextWith(
        [](CProjectData& p)
        {
            p.ProjectTitle = "North Atlantic";
            p.OUTSYS.Set(0);
            p.SPECTRUM.Set(3);
            p.HSW.unit = 1;
            p.NSPEED.Set(2);
            p.StationOrigin = 1;
            p.SHIPLEN.Set(120);
            p.WaveFreqUserInput = 1;
        }));
    CReadProject read(text, EHalf::Environment);
    EXPECT_EQ(read.Opened, EOpened::Whole);
    const CProjectData& p = read.Project;
    EXPECT_EQ(p.ProjectTitle, "North Atlantic");
    EXPECT_EQ(p.OUTSYS.Value(), 0);
    EXPECT_EQ(p.SPECTRUM.Value(), 3);
    EXPECT_EQ(p.ADDMASS.Value(), 3);
    EXPECT_EQ(p.HSW.unit, 1);
    EXPECT_EQ(p.NSPEED.Value(), 2);
    EXPECT_EQ(p.StationOrigin, 0);
    EXPECT_EQ(p.SHIPLEN.Value(), -1);
    EXPECT_EQ(p.WaveFreqUserInput, 0);
}

TEST(InputFileReader, TheEnvironmentHalfEndsWhereTheShipBegins)
{
    const std::string text = AsPreviousGeneration(DefaultText());
    const std::string damaged = WithLineBehind(text, "Record (j)", "junk");
    EXPECT_EQ(CReadProject(damaged, EHalf::Environment).Opened, EOpened::Whole);
    EXPECT_EQ(CReadProject(text.substr(0, text.find("Record (j)")), EHalf::Environment).Opened,
              EOpened::Whole);
}

// --- hostile bytes

TEST(InputFileReader, AMissingDihedralBehindAFailedTokenKeepsWhatItWas)
{
    CReadProject read(DefaultWith("Record (r) ", "1.0 2.0"), EHalf::Geometry);
    EXPECT_EQ(read.Opened, EOpened::Damaged);
    EXPECT_EQ(read.Project.RudderDihedral, 0);
}

TEST(InputFileReader, ANulEndsItsLine)
{
    const std::string nul(1, '\0');
    EXPECT_EQ(CReadProject(DefaultWith("Record (k1)", "1.00" + nul + " 1")).Opened, EOpened::Damaged);
    EXPECT_EQ(CReadProject(DefaultWith("Record (k1)", "1.00 1" + nul + "x")).Opened, EOpened::Whole);
    CReadProject read("ti" + nul + "tle\nod7b" + nul + "x\n" + DefaultText().substr(6));
    EXPECT_EQ(read.Opened, EOpened::Whole);
    EXPECT_EQ(read.Project.ProjectTitle, "ti");
}

TEST(InputFileReader, ANumberBeyondAFloatIsTheLargestAndCanBeSavedAndReadAgain)
{
    CReadProject read(DefaultWith("Record (j)", "1e39 -1e999 5 0 0 0"));
    EXPECT_EQ(read.Project.SHIPLEN.Value(), std::numeric_limits<float>::max());
    EXPECT_EQ(read.Project.KG.Value(), -std::numeric_limits<float>::max());
    CReadProject again(InputFileText(read.Project));
    EXPECT_EQ(again.Opened, EOpened::Whole);
    EXPECT_EQ(again.Project.SHIPLEN.Value(), std::numeric_limits<float>::max());
}
