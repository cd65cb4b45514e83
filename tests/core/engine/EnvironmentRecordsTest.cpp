#include "tests/core/engine/CEngineProject.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

TEST(EnvironmentRecords, ControlsOfTheLeastProject)
{
    CEngineProject project;
    EXPECT_THAT(project.LinesBehind("Test ship", 11),
                ElementsAre("METRIC METRIC SALT BOWSPEEDCOR BOWSWELLCOR MODAMP NOPPR", "ondara7.bin",
                            "NOLOAD RAW", "0.2 2.0 0.1", "NOSAVEHY CONFORMAL LATLONG HVCOR", "0.0 0.0 0.0",
                            "REGULAR", "1 0.00", "180.00", "1", "0.0200"));
}

TEST(EnvironmentRecords, TheTitleIsWrittenAsItStandsWithoutCarriageReturns)
{
    CEngineProject project;
    project.Project.ProjectTitle = "  Fr\xe9gate\r 1 ";
    ASSERT_TRUE(project.Write());
    EXPECT_EQ(project.Lines().at(0), "  Fr\xe9gate 1 ");
}

TEST(EnvironmentRecords, AnEmptyTitleIsAnEmptyLine)
{
    CEngineProject project;
    project.Project.ProjectTitle.clear();
    ASSERT_TRUE(project.Write());
    EXPECT_EQ(project.Lines().at(0), "");
}

TEST(EnvironmentRecords, EachFlagHasItsWord)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.INSYS.Set(0);
    p.OUTSYS.Set(0);
    p.WATERDEN.Set(1);
    p.SPEEDCOR.Set(2);
    p.SWELLCOR.Set(0);
    p.OUTRAO.Set(1);
    p.LOADFLAG.Set(2);
    p.HYMETHOD.Set(1);
    p.HYEND.Set(0);
    p.LOWHVCOR.Set(0);
    EXPECT_THAT(project.LinesBehind("Test ship", 5),
                ElementsAre("BRITISH BRITISH FRESH SPEEDCOR NOSWELLCOR MOTION NOPPR", "ondara7.bin",
                            "LOAD RAW", "0.2 2.0 0.1", "NOSAVEHY BOUND2D NOHYEND NOHVCOR"));
}

TEST(EnvironmentRecords, WaveFrequenciesOfTheUser)
{
    CEngineProject project;
    project.Project.WaveFreqUserInput = 1;
    project.Project.DWVFREQ.Set(-1);
    EXPECT_EQ(project.LineBehind("NOLOAD RAW"), "0.2000 2.0000 -1.0000");
}

TEST(EnvironmentRecords, DefaultWaveFrequenciesNeedNoTest)
{
    CEngineProject project;
    project.Project.WVFREQMIN.Set(-1);
    project.Project.WVFREQMAX.Set(-1);
    EXPECT_EQ(project.LineBehind("NOLOAD RAW"), "0.2 2.0 0.1");
}

TEST(EnvironmentRecords, EncounterFrequenciesThatAreNotGivenAreZero)
{
    CEngineProject project;
    project.Project.EncFreqUserInput = 1;
    project.Project.ENFREQMAX.Set(3);
    EXPECT_EQ(project.LineBehind("NOSAVEHY CONFORMAL LATLONG HVCOR"), "0.00 3.0000 0.00");
    project.Project.ENFREQMIN.Set(-1.00001F);
    EXPECT_EQ(project.LineBehind("NOSAVEHY CONFORMAL LATLONG HVCOR"), "0.00 3.0000 0.00")
        << "the text decides";
}

TEST(EnvironmentRecords, SpreadOfAShortCrestedSea)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.SPECTRUM.Set(3);
    p.JonswapHs[0] = p.JonswapTp[0] = 2;
    p.SpreadOption = 1;
    p.SPREADANG.Set(90);
    EXPECT_EQ(project.LineBehind("JONSWAP"), "1 90.00");
    p.SPREADANG.Set(-1);
    EXPECT_EQ(project.LineBehind("JONSWAP"), "1 0.00");
    p.SpreadOption = 0;
    p.SPREADANG.Set(90);
    EXPECT_EQ(project.LineBehind("JONSWAP"), "1 0.00");
}

TEST(EnvironmentRecords, AnotherSpreadOptionLeavesTheBlank)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.SPECTRUM.Set(3);
    p.JonswapHs[0] = p.JonswapTp[0] = 2;
    p.SpreadOption = 2;
    EXPECT_EQ(project.LineBehind("JONSWAP"), "1 ");
}

TEST(EnvironmentRecords, ARegularSeaHasNoSpread)
{
    CEngineProject project;
    project.Project.SpreadOption = 1;
    project.Project.SPREADANG.Set(90);
    EXPECT_EQ(project.LineBehind("REGULAR"), "1 0.00");
}

TEST(EnvironmentRecords, DirectionsStandInOneLineHoweverMany)
{
    CEngineProject project;
    project.Project.NSEADIR.Set(36);
    std::string expected;
    for (int i = 0; i < 36; ++i)
    {
        project.Project.SEADIR.Set(i, static_cast<float>(i) * 10);
        expected += (i == 0 ? "" : " ") + FixedText(i * 10, "%.2f");
    }
    EXPECT_EQ(project.LineBehind("36 0.00"), expected);
}

TEST(EnvironmentRecords, NoDirectionsGiveAnEmptyLine)
{
    CEngineProject project;
    project.Project.NSEADIR.Set(0);
    EXPECT_THAT(project.LinesBehind("REGULAR", 3), ElementsAre("0 0.00", "", "1"));
}

TEST(EnvironmentRecords, SpectraWithDirectionsOfTheirOwnHaveNoDirectionRecords)
{
    for (const auto& [spectrum, word] :
         {std::pair(6.0F, "TENPARAMETER"), std::pair(7.0F, "ODGPHINDCAST"), std::pair(8.0F, "INPUTDIR")})
    {
        CEngineProject project;
        CProjectData& p = project.Project;
        p.SPECTRUM.Set(spectrum);
        p.NSEADIR.Set(-1);
        p.NSEAWAY.Set(0);
        p.HindcastFile = p.DirectionalFile = "sea.txt";
        EXPECT_EQ(project.LineBehind(word), "0");
    }
}

TEST(EnvironmentRecords, UnsetSpeedCountWritesZeroAndItsBlank)
{
    CEngineProject project;
    EXPECT_EQ(project.Project.NSPEED.Value(), -1);
    EXPECT_EQ(project.LineBehind("0.0200"), "0 ");
    EXPECT_THAT(project.Recorder.Messages, ElementsAre()) << "an environment with no speeds passes";
}

TEST(EnvironmentRecords, NoSpeedsWriteTheCountAndItsBlank)
{
    CEngineProject project;
    project.Project.NSPEED.Set(0);
    EXPECT_EQ(project.LineBehind("0.0200"), "0 ");
    project.Project.NSPEED.Set(-5);
    EXPECT_EQ(project.LineBehind("0.0200"), "-5 ");
}

TEST(EnvironmentRecords, SpeedsInMetresPerSecondBecomeKnotsInBothSystems)
{
    CEngineProject project;
    project.Project.NSPEED.Set(3);
    project.Project.SPDKNOT.Set(0, 0);
    project.Project.SPDKNOT.Set(1, 5.144F);
    project.Project.SPDKNOT.Set(2, 10.0049F);
    project.Project.SPDKNOT.unit = 1;
    EXPECT_EQ(project.LineBehind("0.0200"), "3 0.00 9.99 19.44") << "5.14 and 10.00 are converted";
    project.Project.INSYS.Set(0);
    EXPECT_EQ(project.LineBehind("0.0200"), "3 0.00 9.99 19.44");
}

TEST(EnvironmentRecords, SpeedsInKnotsAreLeftAloneInBothSystems)
{
    CEngineProject project;
    project.Project.NSPEED.Set(2);
    project.Project.SPDKNOT.Set(0, 12.5F);
    project.Project.SPDKNOT.Set(1, 20);
    EXPECT_EQ(project.LineBehind("0.0200"), "2 12.50 20.00");
    project.Project.INSYS.Set(0);
    EXPECT_EQ(project.LineBehind("0.0200"), "2 12.50 20.00");
}

TEST(EnvironmentRecords, AnyOptionButZeroWritesTheUsersEncounterFrequencies)
{
    CEngineProject project;
    project.Project.EncFreqUserInput = 2;
    project.Project.ENFREQMIN.Set(0.5F);
    EXPECT_EQ(project.LineBehind("NOSAVEHY CONFORMAL LATLONG HVCOR"), "0.5000 0.00 0.00");
}
