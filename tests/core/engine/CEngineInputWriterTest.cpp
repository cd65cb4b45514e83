#include "tests/core/engine/CEngineProject.h"
#include "tests/support/CCommaLocale.h"

#include <filesystem>
#include <limits>

#include <unistd.h>

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

namespace
{
constexpr const char* kNotSaved = "Error Saving File: The file could not be saved.";

std::vector<std::string> Names(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
    {
        names.push_back(entry.path().filename().string());
    }
    return names;
}
} // namespace

TEST(EngineInputWriter, ACompleteProjectIsWrittenAndMarked)
{
    CEngineProject project;
    EXPECT_TRUE(project.Write());
    EXPECT_EQ(project.Project.InputWritten, 1);
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

TEST(EngineInputWriter, AFailedTestLeavesTheMarkOfAnEarlierWrite)
{
    CEngineProject project;
    EXPECT_TRUE(project.Write());
    project.Project.SPECTRUM.Set(-1);
    EXPECT_FALSE(project.Write()) << "the result is this very write's";
    EXPECT_EQ(project.Project.InputWritten, 1);
    EXPECT_EQ(project.LastLine(), "0.0 0.0 0.0") << "cut short";
    CEngineProject fresh;
    fresh.Project.SPECTRUM.Set(-1);
    EXPECT_FALSE(fresh.Write());
    EXPECT_EQ(fresh.Project.InputWritten, 0);
}

TEST(EngineInputWriter, AnOlderInputIsReplacedWhole)
{
    CEngineProject project;
    project.Folder.Write("Ondara7.inp", std::string(100000, 'x'));
    EXPECT_TRUE(project.Write());
    EXPECT_EQ(project.Text().find('x'), std::string::npos);
}

TEST(EngineInputWriter, AFileThatCanNotBeOpenedIsAllTheUserHears)
{
    CEngineProject project;
    fs::create_directory(project.Folder.File("Ondara7.inp"));
    project.Project.SPECTRUM.Set(-1);
    project.Project.InputWritten = 1;
    EXPECT_FALSE(project.Write());
    EXPECT_THAT(project.Recorder.Messages, ElementsAre(kNotSaved));
    EXPECT_THAT(project.Recorder.Icons, ElementsAre(EIcon::Stop));
    EXPECT_EQ(project.Recorder.Beeps, 1);
    EXPECT_EQ(project.Project.InputWritten, 1);
    EXPECT_FALSE(project.WriteReduced());
    EXPECT_EQ(project.Project.InputWritten, 0);
}

TEST(EngineInputWriter, AFolderThatIsNotThereCanNotBeWrittenTo)
{
    CEngineProject project;
    project.Session.BaseDir = project.Folder.File("none");
    EXPECT_FALSE(project.Write());
    EXPECT_THAT(project.Recorder.Messages, ElementsAre(kNotSaved));
}

TEST(EngineInputWriter, AFileOfAnotherCaseIsTheSameFile)
{
    CEngineProject project;
    project.Folder.Write("ONDARA7.INP", "old");
    EXPECT_TRUE(project.Write());
    EXPECT_THAT(Names(project.Folder.Path()), ElementsAre("Ondara7.inp"));
    EXPECT_EQ(project.Lines().at(0), "Test ship");
}

TEST(EngineInputWriter, OfSeveralSpellingsOneIsLeft)
{
    CEngineProject project;
    project.Folder.Write("ONDARA7.INP", "old");
    project.Folder.Write("ondara7.inp", "older");
    project.Folder.Write("Ondara7.inp", "oldest");
    EXPECT_TRUE(project.WriteReduced());
    EXPECT_THAT(Names(project.Folder.Path()), ElementsAre("Ondara7.inp"));
}

TEST(EngineInputWriter, TheProjectIsUntouched)
{
    CEngineProject project;
    SetEverything(project, 1, 1);
    project.Project.InputFilePath = project.Folder.File("before.od7");
    project.File.Save();
    EXPECT_TRUE(project.Write());
    project.Project.InputFilePath = project.Folder.File("after.od7");
    project.File.Save();
    EXPECT_EQ(FileContent(project.Folder.File("before.od7")), FileContent(project.Folder.File("after.od7")));
}

TEST(EngineInputWriter, EverythingInFeetForAMetricRun)
{
    CEngineProject project;
    SetEverything(project, 1, 1);
    EXPECT_TRUE(project.Write());
    ExpectGolden(project.Text(), "engine/everything-metric.inp");
}

TEST(EngineInputWriter, EverythingInMetresForABritishRun)
{
    CEngineProject project;
    SetEverything(project, 0, 0);
    EXPECT_TRUE(project.Write());
    ExpectGolden(project.Text(), "engine/everything-british.inp");
}

TEST(EngineInputWriter, EverythingInTheRunsOwnUnitsIsWrittenAsStored)
{
    CEngineProject project;
    SetEverything(project, 1, 0);
    EXPECT_TRUE(project.Write());
    ExpectGolden(project.Text(), "engine/everything-as-stored.inp");
}

TEST(EngineInputWriter, NumbersHaveAPointWhateverTheUsersLocale)
{
    const CCommaLocale comma;
    CEngineProject project;
    SetEverything(project, 1, 1);
    EXPECT_TRUE(project.Write());
    ExpectGolden(project.Text(), "engine/everything-metric.inp");
}

TEST(EngineInputWriter, HostileNumbersInEverySlotAreHarmless)
{
    for (const float hostile : {1e30F, -5.0F, -1e30F, 3.4e38F, std::numeric_limits<float>::quiet_NaN(),
                                std::numeric_limits<float>::infinity(), 0.5F})
    {
        for (const float spectrum : {hostile, 0.0F, 1.0F, 2.0F, 3.0F, 4.0F, 5.0F, 6.0F, 7.0F, 8.0F})
        {
            CEngineProject project;
            SetEverything(project, 1, 1);
            for (CParamArray* field : project.Project.Fields())
            {
                field->Fill(hostile);
            }
            project.Project.SPECTRUM.Set(spectrum);
            project.Project.HULLDEF.Set(spectrum < 4 ? 0.0F : hostile);
            project.Project.LOADFLAG.Set(0);
            project.Project.RELMOCALC.Fill(2);
            project.Project.FINTANKSTAB.Set(1);
            project.Project.SpectrumFile = project.Project.HindcastFile = project.Project.DirectionalFile =
                "sea";
            project.Project.BretUnit = project.Project.OchiUnit = -7;
            project.Write();
            EXPECT_EQ(project.Lines().at(0), "Everything on");
            project.WriteReduced();
            EXPECT_EQ(project.Lines().at(0), "Pre Run Waterline Calcs");
        }
    }
}

TEST(EngineInputWriter, EachCountAloneMayBeHostile)
{
    for (const float hostile : {1e30F, -5.0F, std::numeric_limits<float>::quiet_NaN()})
    {
        for (int k = 0; k < kKeywordCount; ++k)
        {
            CEngineProject project;
            SetEverything(project, 0, 1);
            project.Project.Fields()[static_cast<std::size_t>(k)]->Fill(hostile);
            project.Write();
            EXPECT_EQ(project.Lines().at(0), "Everything on");
        }
    }
}

TEST(WaterlineInput, IsWantedForLoadingByDisplacementAlone)
{
    CEngineProject project;
    for (const auto& [option, wanted] :
         {std::pair(0.0F, false), std::pair(1.0F, true), std::pair(2.0F, false), std::pair(-1.0F, false)})
    {
        project.Project.TRIMDEF.Set(option);
        EXPECT_EQ(NeedsWaterlinePreRun(project.Project), wanted) << option;
    }
}

TEST(WaterlineInput, FixedRecordsStandAroundTheShipsOwn)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.TRIMDEF.Set(1);
    p.DISPUSER.Set(1000);
    p.LCGPUSER.Set(50);
    project.SetStations(1);
    EXPECT_TRUE(project.WriteReduced());
    EXPECT_EQ(p.InputWritten, 1);
    EXPECT_EQ(project.Text(), "Pre Run Waterline Calcs\n"
                              "METRIC METRIC SALT BOWSPEEDCOR BOWSWELLCOR MODAMP NOPPR\n"
                              "ondara7.bin\n"
                              "NOLOAD RAW\n"
                              "0.2 2.0 0.1\n"
                              "NOSAVEHY BOUND2D LATLONG NOHVCOR\n"
                              "0.0 0.0 0.0\n"
                              "BRETSCHNEIDER\n"
                              "8 90.00\n"
                              "0.00 45.00 90.00 135.00 180.00 225.00 270.00 315.00\n"
                              "1\n"
                              "2.46 8.37\n"
                              "1 15.00\n"
                              "100.00 5.00 25.000\n"
                              "GMCOMP WETROLLNF\n"
                              "0.5000\n"
                              "OFFSETS\n"
                              "1 1 1.000 1.000\n"
                              "0\n"
                              "3 \n"
                              "0.000 2.000 4.000\n"
                              "0.000 3.000 6.000\n"
                              "DISP\n"
                              "1000.000 50.000\n"
                              "0 20.00 0.0100\n"
                              "0\n"
                              "0 0 0\n"
                              "0.00 0.00 0.00 0.00 0.00 0.00 0.00 0 0.00\n"
                              "0\n"
                              "0.00 0.00 0.00 0.00 0.00 0.00 0.00\n"
                              "0.00 0.00 0.00\n"
                              "0.00 0.00 0.00 1\n"
                              "0\n"
                              "NOSTAB\n");
}

TEST(WaterlineInput, AllIsMetricWhateverTheProjectsSystem)
{
    for (const float system : {0.0F, 1.0F})
    {
        CEngineProject project;
        SetEverything(project, 1, system);
        EXPECT_TRUE(project.WriteReduced());
        ExpectGolden(project.Text(), "engine/waterline.inp");
    }
}

TEST(WaterlineInput, NothingButTheShipIsTested)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.SPECTRUM.Set(-1);
    p.NSEADIR.Set(-1);
    p.WaveFreqUserInput = 1;
    p.WVFREQMIN.Set(-1);
    p.LOADFLAG.Set(0);
    p.LoadStationsUserInput = 1;
    p.FINTANKSTAB.Set(2);
    EXPECT_TRUE(project.WriteReduced());
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

TEST(WaterlineInput, AFailedTestClearsTheMarkAndEndsTheFile)
{
    CEngineProject project;
    project.Project.InputWritten = 1;
    project.Project.SHIPLEN.Set(-1);
    EXPECT_FALSE(project.WriteReduced());
    EXPECT_EQ(project.Project.InputWritten, 0);
    EXPECT_EQ(project.LastLine(), "1 15.00");
    EXPECT_THAT(project.Recorder.Messages,
                ElementsAre(Told("You have not specified a\nlength between perpendiculars.")));
}

TEST(WaterlineInput, FixedRecordsBehindAFailedTestAreNotWritten)
{
    CEngineProject project;
    project.SetStations(2);
    project.Project.SectionAreaUnit = 0;
    project.Project.TRIMDEF.Set(1);
    EXPECT_FALSE(project.WriteReduced());
    EXPECT_EQ(project.LastLine(), "0");
    EXPECT_THAT(project.Recorder.Messages, ::testing::SizeIs(2));
}

TEST(EngineInputWriter, AFullDiskIsTold)
{
    CEngineProject project;
    std::filesystem::create_symlink("/dev/full", project.Folder.File("Ondara7.inp"));
    EXPECT_FALSE(project.Write());
    EXPECT_EQ(project.Project.InputWritten, 0);
    EXPECT_THAT(project.Recorder.Messages,
                testing::ElementsAre("Error Saving File: The file could not be saved."));
}
