#include "core/results/CsvExport.h"

#include "tests/support/CTestProject.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A project that wants both tables, and an engine's folder that has them.
struct CCsvTest : CTestProject
{
    CCsvTest()
    {
        fs::create_directory(Folder.File("ships"));
        Session.BaseDir = Folder.File("engine");
        fs::create_directory(Session.BaseDir);
        WriteTables();
        Project.ADDMASS.Set(4);
        Project.EXCITE.Set(3);
        Project.InputFilePath = Ship("frigate.v2.od7");
        fs::current_path(Folder.File("ships"));
    }

    void WriteTables() const
    {
        Folder.Write("engine/Ondara7_DimHyCo.csv", "coefficients\n");
        Folder.Write("engine/Ondara7_WaveForce.csv", "forces\n");
    }
    std::string Ship(const std::string& name) const { return Folder.File("ships/" + name); }
    void Protect(const std::string& name) const
    {
        Folder.Write("ships/" + name, "protected");
        fs::permissions(Ship(name), fs::perms::owner_read);
    }
    void Export()
    {
        ExportHydrodynamicCoefficients(Project, Session.BaseDir, Recorder.Platform);
        ExportWaveForces(Project, Session.BaseDir, Recorder.Platform);
        EXPECT_TRUE(fs::is_empty(Session.BaseDir)) << "the engine's tables are deleted in every case";
    }
    bool NothingKept() const { return fs::is_empty(Folder.File("ships")); }
};

std::string Question(const std::string& target)
{
    return "Save File?: Ondara cannot write the output file" + target +
           " \nbecause a file having that name already exists and has been set as Read-Only. \n\nWould you "
           "like to save the new output file using a different file name?";
}
} // namespace

TEST(CsvExport, TheTablesStandBesideTheProjectUnderItsName)
{
    CCsvTest test;
    test.Export();
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Hyd.csv")), "coefficients\n");
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Wav.csv")), "forces\n");
    EXPECT_THAT(test.Recorder.Events, IsEmpty());
}

TEST(CsvExport, AnOlderCopyIsReplaced)
{
    CCsvTest test;
    test.Folder.Write("ships/frigate.v2_Hyd.csv", "older and much longer than the new one");
    test.Export();
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Hyd.csv")), "coefficients\n");
}

TEST(CsvExport, ACopyGoesThroughALink)
{
    CCsvTest test;
    const std::string elsewhere = test.Folder.Write("elsewhere", "older");
    fs::create_symlink(elsewhere, test.Ship("frigate.v2_Hyd.csv"));
    test.Protect("frigate.v2_Wav.csv");
    fs::create_symlink(test.Folder.File("chosen"), test.Ship("link"));
    test.Recorder.Answer = true;
    test.Recorder.Files = {test.Ship("link")};
    test.Export();
    EXPECT_EQ(FileContent(elsewhere), "coefficients\n");
    EXPECT_TRUE(fs::is_symlink(test.Ship("frigate.v2_Hyd.csv")));
    EXPECT_EQ(FileContent(test.Folder.File("chosen")), "forces\n");
    EXPECT_TRUE(fs::is_symlink(test.Ship("link")));
}

TEST(CsvExport, OnlyWhatIsWantedAsAFileIsKept)
{
    CCsvTest test;
    test.Project.ADDMASS.Set(3);
    test.Project.EXCITE.Set(2);
    test.Export();
    EXPECT_TRUE(test.NothingKept());
    test.WriteTables();
    test.Project.ADDMASS.Set(5);
    test.Project.EXCITE.Set(4);
    test.Export();
    EXPECT_TRUE(test.NothingKept());
    test.WriteTables();
    test.Project.EXCITE.Set(3);
    test.Export();
    EXPECT_FALSE(FileExists(test.Ship("frigate.v2_Hyd.csv")));
    EXPECT_TRUE(FileExists(test.Ship("frigate.v2_Wav.csv")));
}

TEST(CsvExport, AProjectThatWasNeverSavedGivesTheTablesItsFirstName)
{
    CCsvTest test;
    test.Project.InputFilePath = "noname";
    test.Export();
    EXPECT_TRUE(FileExists(test.Ship("noname_Hyd.csv")));
    EXPECT_TRUE(FileExists(test.Ship("noname_Wav.csv")));
}

TEST(CsvExport, WithoutANameOfTheProjectTheTablesHaveTheirOwn)
{
    CCsvTest test;
    test.Project.InputFilePath = "";
    test.Export();
    EXPECT_TRUE(FileExists(test.Ship("Ondara7_HyCo.csv")));
    EXPECT_TRUE(FileExists(test.Ship("Ondara7_WaveFrc.csv")));
}

TEST(CsvExport, WithoutANameButWithAFolderTheyStandThere)
{
    CCsvTest test;
    fs::current_path("/");
    test.Project.InputFilePath = test.Ship("");
    test.Export();
    EXPECT_TRUE(FileExists(test.Ship("Ondara7_HyCo.csv")));
    EXPECT_TRUE(FileExists(test.Ship("Ondara7_WaveFrc.csv")));
}

TEST(CsvExport, AReadOnlyCopyIsAskedAboutAndStaysAfterNo)
{
    CCsvTest test;
    test.Protect("frigate.v2_Hyd.csv");
    test.Protect("frigate.v2_Wav.csv");
    test.Export();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(Question(test.Ship("frigate.v2_Hyd.csv")),
                                                    Question(test.Ship("frigate.v2_Wav.csv"))));
    EXPECT_THAT(test.Recorder.Requests, IsEmpty());
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Hyd.csv")), "protected");
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Wav.csv")), "protected");
}

TEST(CsvExport, AfterYesTheCopyGoesToTheChosenName)
{
    CCsvTest test;
    test.Protect("frigate.v2_Hyd.csv");
    test.Recorder.Answer = true;
    test.Recorder.Files = {test.Ship("other")};
    test.Export();
    EXPECT_EQ(FileContent(test.Ship("other")), "coefficients\n");
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Hyd.csv")), "protected");
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].Filter, "Comma Separated Files (*.csv)|*.csv|All Files(*.*)|*.*|");
    EXPECT_EQ(test.Recorder.Requests[0].InitialName, test.Ship("frigate.v2_Hyd.csv"));
    EXPECT_EQ(test.Recorder.Requests[0].DefaultExtension, "csv");
    EXPECT_TRUE(test.Recorder.Requests[0].OverwritePrompt);
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::None));
}

TEST(CsvExport, AfterYesAndCancelNothingIsKept)
{
    CCsvTest test;
    test.Protect("frigate.v2_Hyd.csv");
    test.Recorder.Answer = true;
    test.Export();
    EXPECT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Hyd.csv")), "protected");
}

TEST(CsvExport, AChosenNameThatIsReadOnlyTooStaysWithoutAWord)
{
    CCsvTest test;
    test.Protect("frigate.v2_Hyd.csv");
    test.Protect("other.csv");
    test.Recorder.Answer = true;
    test.Recorder.Files = {test.Ship("other.csv")};
    test.Export();
    EXPECT_EQ(FileContent(test.Ship("other.csv")), "protected");
    EXPECT_EQ(test.Recorder.Messages.size(), 1U);
}

TEST(CsvExport, ACopyThatFailsIsNotToldOf)
{
    CCsvTest test;
    test.Project.InputFilePath = test.Folder.File("gone/ship.od7");
    test.Export();
    test.Project.InputFilePath = test.Ship("ship.od7");
    test.Export(); // without any table
    EXPECT_THAT(test.Recorder.Events, IsEmpty());
    EXPECT_TRUE(test.NothingKept());
}

TEST(CsvExport, TheEnginesSpellingMayBeInAnyCase)
{
    CCsvTest test;
    fs::rename(test.Folder.File("engine/Ondara7_DimHyCo.csv"),
               test.Folder.File("engine/ondara7_dimhyco.CSV"));
    test.Export();
    EXPECT_EQ(FileContent(test.Ship("frigate.v2_Hyd.csv")), "coefficients\n");
}
