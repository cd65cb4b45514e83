#include "core/results/CResultsCommands.h"

#include "core/results/LastLoadName.h"
#include "tests/support/CTestProject.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr const char* kNotFound = "Cannot Find File: The last calculated file cannot be found.";
constexpr const char* kOverwrite = "Overwrite Inputs: Would you like to overwrite the input parameters with "
                                   "the ones associated with this result file?";

/// The end of a results file that holds the name of its input file: the two names of 255 bytes, section A of
/// a few bytes, the trailer's last word.
std::string ResultsWith(const std::string& inputFile, int sectionA = 600)
{
    std::string bytes(600, 'x');
    bytes.replace(90, 255, std::string(255, '\0'));
    bytes.replace(90, inputFile.size(), inputFile);
    bytes += "calculated";
    for (int k = 0; k < 4; ++k)
    {
        bytes += static_cast<char>(static_cast<unsigned>(sectionA) >> (8 * k));
    }
    return bytes;
}

/// A project with results in the engine's folder, and commands whose restoring is scripted.
struct CResultsTest : CTestProject
{
    CResultsTest()
    {
        fs::create_directory(Folder.File("engine"));
        fs::create_directory(Folder.File("work"));
        Session.BaseDir = Folder.File("engine");
        Session.WorkDir = Folder.File("work");
        Session.RepaintView = [this] { ++Repaints; };
        Folder.Write("engine/ondara7.bin", ResultsWith("/ships/frigate.od7"));
        Folder.Write("engine/ondara7.out", "listing");
        Project.ActiveGeometryFile = "geometry.od7";
        Project.ActiveEnvironmentFile = "environment.od7";
        Project.ResultsFilePath = "before";
        Project.SHIPLEN.Set(77);
        Commands.RestoreProject = [this](const std::string& path)
        {
            Restored.push_back(path);
            ShipLengthAtRestore = Project.SHIPLEN.Value();
        };
        Commands.UpdateTitle = [this] { TitleWith = Project.ActiveGeometryFile; };
    }

    /// All that the commands tell the project of results.
    void ExpectInUse(const std::string& path, const std::string& title, int loaded) const
    {
        EXPECT_EQ(Project.ResultsFilePath, path);
        EXPECT_EQ(Project.ResultsTitle, title);
        EXPECT_EQ(Project.ResultsLoaded, loaded);
    }
    void ExpectActive(const std::string& geometry, const std::string& environment) const
    {
        EXPECT_EQ(Project.ActiveGeometryFile, geometry);
        EXPECT_EQ(Project.ActiveEnvironmentFile, environment);
    }

    CResultsCommands Commands{Project, Session, Recorder.Platform};
    std::vector<std::string> Restored;
    float ShipLengthAtRestore = 0;
    std::string TitleWith = "not written";
    int Repaints = 0;
    const std::string Results = Folder.File("engine/ondara7.bin");
    const std::string Chosen = Folder.File("work/kept.tv7");
};
} // namespace

TEST(LoadLastCalculated, WithoutResultsThereIsAMessageAndNothingElse)
{
    CResultsTest test;
    fs::remove(test.Results);
    test.Commands.LoadLastCalculated();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kNotFound));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Warning));
    test.ExpectInUse("before", "noname", 0);
    test.ExpectActive("geometry.od7", "environment.od7");
}

TEST(LoadLastCalculated, YesRestoresTheProjectIntoAClearedOne)
{
    CResultsTest test;
    test.Recorder.Answer = true;
    test.Commands.LoadLastCalculated();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kOverwrite));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Question));
    EXPECT_THAT(test.Restored, ElementsAre(test.Results));
    EXPECT_EQ(test.ShipLengthAtRestore, -1);
    test.ExpectInUse(test.Results, test.Results, 1);
}

TEST(LoadLastCalculated, YesNamesTheProjectAfterItsInputFileInTheFolderOfTheResults)
{
    CResultsTest test;
    test.Recorder.Answer = true;
    test.Commands.LoadLastCalculated();
    const std::string name = test.Folder.File("engine/frigate.tv7");
    test.ExpectActive(name, name);
    EXPECT_EQ(test.TitleWith, name);
    EXPECT_GT(test.Repaints, 0);
}

TEST(LoadLastCalculated, AnInputFileOfAnotherMachineGivesItsNameToo)
{
    CResultsTest test;
    test.Recorder.Answer = true;
    test.Folder.Write("engine/ondara7.bin", ResultsWith("C:\\Ships\\ferry.v2.od7 rest"));
    test.Commands.LoadLastCalculated();
    test.ExpectActive(test.Folder.File("engine/ferry.v2.tv7"), test.Folder.File("engine/ferry.v2.tv7"));
}

TEST(LoadLastCalculated, AfterNoTheResultsPathSwitchesAllTheSameAndTheNamesAreEmpty)
{
    CResultsTest test;
    test.Commands.LoadLastCalculated();
    EXPECT_THAT(test.Restored, IsEmpty());
    EXPECT_EQ(test.Project.SHIPLEN.Value(), 77);
    EXPECT_EQ(test.TitleWith, "not written");
    test.ExpectInUse(test.Results, test.Results, 1);
    test.ExpectActive("", "");
    EXPECT_GT(test.Repaints, 0);
}

TEST(LoadLastCalculated, TheResultsMayBeSpelledInAnyCase)
{
    CResultsTest test;
    fs::rename(test.Results, test.Folder.File("engine/Ondara7.bin"));
    test.Commands.LoadLastCalculated();
    test.ExpectInUse(test.Results, test.Results, 1);
}

TEST(LoadLastCalculated, AFileWithoutANameGivesNone)
{
    const CTestFolder folder;
    for (const std::string& bytes : {std::string(), std::string("abc"), ResultsWith("name", 509),
                                     ResultsWith("name", -1), ResultsWith("name", 2147483647),
                                     ResultsWith("name", -2147483647), ResultsWith(" name"), ResultsWith("")})
    {
        EXPECT_EQ(StoredInputFile(folder.Write("results", bytes)), "");
    }
    EXPECT_EQ(StoredInputFile(folder.File("none")), "");
    EXPECT_EQ(StoredInputFile(folder.Write("results", ResultsWith(std::string(255, 'n')))),
              std::string(255, 'n'));
}

TEST(LoadResults, AsksForAFileOfResultsInTheFolderOfTheLastDialog)
{
    CResultsTest test;
    test.Commands.LoadResults();
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].Filter, "Results Files (*.tv7)|*.tv7|All Files (*.*)|*.*|");
    EXPECT_EQ(test.Recorder.Requests[0].DefaultExtension, "*.tv7");
    EXPECT_EQ(test.Recorder.Requests[0].InitialName, "noname");
    EXPECT_EQ(fs::current_path(), test.Folder.File("work"));
}

TEST(LoadResults, CancelChangesNothing)
{
    CResultsTest test;
    test.Commands.LoadResults();
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    test.ExpectInUse("before", "noname", 0);
    EXPECT_EQ(test.Session.WorkDir, test.Folder.File("work"));
}

TEST(LoadResults, TheFolderOfTheFileIsThatOfTheNextDialog)
{
    CResultsTest test;
    test.Recorder.Files = {test.Folder.File("engine/any.txt")};
    test.Commands.LoadResults();
    EXPECT_EQ(test.Session.WorkDir, test.Folder.File("engine"));
}

TEST(LoadResults, AFileOfTheOlderFormIsRefusedBeforeItIsOpenedAndIsTheTitleAlready)
{
    CResultsTest test;
    const std::string path = test.Folder.File("work/none.tvt");
    test.Recorder.Files = {path};
    test.Commands.LoadResults();
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("File Version Change: Older file versions cannot be read."));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Stop));
    test.ExpectInUse("before", path, 0);
}

TEST(LoadResults, AnyOtherTypeIsRefusedAndCaseCounts)
{
    for (const char* name :
         {"work/kept.TV7", "work/kept", "work/kept.tv7.bak", "work/kept.tv", "work.tv7/kept"})
    {
        CResultsTest test;
        test.Recorder.Files = {test.Folder.File(name)};
        test.Commands.LoadResults();
        EXPECT_THAT(test.Recorder.Messages, ElementsAre("Invalid File type.: The file could not be read."));
        EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Stop));
        test.ExpectInUse("before", test.Folder.File(name), 0);
    }
}

TEST(LoadResults, AFileThatCanNotBeOpenedIsToldOf)
{
    CResultsTest test;
    test.Recorder.Files = {test.Chosen};
    test.Commands.LoadResults();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kNotFound));
    test.ExpectInUse("before", test.Chosen, 0);
}

TEST(LoadResults, YesRestoresTheProjectAndTakesTheResults)
{
    CResultsTest test;
    test.Folder.Write("work/kept.tv7", ResultsWith("/ships/frigate.od7"));
    test.Recorder.Files = {test.Chosen};
    test.Recorder.Answer = true;
    test.Commands.LoadResults();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kOverwrite));
    EXPECT_THAT(test.Restored, ElementsAre(test.Chosen));
    EXPECT_EQ(test.ShipLengthAtRestore, -1);
    test.ExpectInUse(test.Chosen, test.Chosen, 1);
    test.ExpectActive(test.Chosen, test.Chosen);
    EXPECT_EQ(test.TitleWith, test.Chosen);
}

TEST(LoadResults, NoChangesTheActiveNamesOnly)
{
    CResultsTest test;
    test.Folder.Write("work/kept.tv7", ResultsWith("/ships/frigate.od7"));
    test.Recorder.Files = {test.Chosen};
    test.Commands.LoadResults();
    EXPECT_THAT(test.Restored, IsEmpty());
    EXPECT_EQ(test.Project.SHIPLEN.Value(), 77);
    EXPECT_EQ(test.TitleWith, "not written");
    test.ExpectInUse("before", test.Chosen, 0);
    test.ExpectActive(test.Chosen, test.Chosen);
    EXPECT_GT(test.Repaints, 0);
}

TEST(SaveResults, AsksForANameAndBeforeOverwriting)
{
    CResultsTest test;
    EXPECT_EQ(test.Commands.SaveAs(), EKept::Cancelled);
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].Filter, "Result Files (*.tv7)|*.tv7|All Files(*.*)|*.*|");
    EXPECT_EQ(test.Recorder.Requests[0].DefaultExtension, "tv7");
    EXPECT_EQ(test.Recorder.Requests[0].InitialName, "noname");
    EXPECT_TRUE(test.Recorder.Requests[0].OverwritePrompt);
    EXPECT_EQ(fs::current_path(), test.Folder.File("work"));
    test.ExpectInUse("before", "noname", 0);
}

TEST(SaveResults, CopiesTheResultsAndTheListing)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "ship.tv7");
    test.Folder.Write("work/kept.tv7", "older");
    test.Folder.Write("work/kept.out", "older listing");
    test.Recorder.Files = {test.Chosen};
    EXPECT_EQ(test.Commands.SaveAs(), EKept::Saved);
    EXPECT_EQ(FileContent(test.Chosen), FileContent(test.Results));
    EXPECT_EQ(FileContent(test.Folder.File("work/kept.out")), "listing");
    EXPECT_EQ(test.Project.ResultsFilePath, test.Chosen);
    EXPECT_EQ(test.Project.ResultsTitle, test.Chosen);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(SaveResults, ALastNameThatIsNotThatOfTheResultsInUseIsLeftAlone)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "ship.tv7");
    test.Recorder.Files = {test.Chosen};
    test.Commands.SaveAs();
    EXPECT_EQ(LastLoadName(test.Recorder), "ship.tv7");
}

TEST(SaveResults, TheLastNameFollowsTheResultsInUse)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "before");
    test.Recorder.Files = {test.Chosen};
    test.Commands.SaveAs();
    EXPECT_EQ(LastLoadName(test.Recorder), test.Chosen);
}

TEST(SaveResults, WithoutALastNameNothingIsCopiedButTheNameIsTaken)
{
    CResultsTest test;
    test.Recorder.Files = {test.Chosen};
    EXPECT_EQ(test.Commands.SaveAs(), EKept::NothingToSave);
    EXPECT_FALSE(FileExists(test.Chosen));
    EXPECT_EQ(test.Project.ResultsFilePath, test.Chosen);
    EXPECT_EQ(test.Project.ResultsTitle, test.Chosen);
    EXPECT_EQ(LastLoadName(test.Recorder), "");
}

TEST(SaveResults, TheFolderOfTheFileIsThatOfTheNextDialog)
{
    CResultsTest test;
    test.Recorder.Files = {test.Folder.File("engine/kept.tv7")};
    test.Commands.SaveAs();
    EXPECT_EQ(test.Session.WorkDir, test.Folder.File("engine"));
}

TEST(SaveResults, ACopyThatFailsIsNotToldOf)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "ship.tv7");
    fs::permissions(test.Folder.Write("work/kept.tv7", "protected"), fs::perms::owner_read);
    test.Recorder.Files = {test.Chosen};
    EXPECT_EQ(test.Commands.SaveAs(), EKept::ResultsNotCopied);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(FileContent(test.Chosen), "protected");
    EXPECT_EQ(FileContent(test.Folder.File("work/kept.out")), "listing");
}

TEST(SaveResults, ItsOwnerGetsToKnowWhichCopyFails)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "ship.tv7");
    fs::permissions(test.Folder.Write("work/kept.out", "protected"), fs::perms::owner_read);
    test.Recorder.Files = {test.Chosen, test.Chosen};
    EXPECT_EQ(test.Commands.SaveAs(), EKept::ListingNotCopied);
    EXPECT_EQ(FileContent(test.Chosen), FileContent(test.Results));
    EXPECT_EQ(FileContent(test.Folder.File("work/kept.out")), "protected");
    fs::permissions(test.Chosen, fs::perms::owner_read);
    EXPECT_EQ(test.Commands.SaveAs(), EKept::NothingCopied);
}

TEST(SaveResults, TheCopiesGoThroughLinks)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "ship.tv7");
    fs::create_symlink("../kept results", test.Chosen);
    fs::create_symlink(test.Folder.Write("kept listing", "older"), test.Folder.File("work/kept.out"));
    test.Recorder.Files = {test.Chosen};
    EXPECT_EQ(test.Commands.SaveAs(), EKept::Saved);
    EXPECT_EQ(FileContent(test.Folder.File("kept results")), FileContent(test.Results));
    EXPECT_EQ(FileContent(test.Folder.File("kept listing")), "listing");
    EXPECT_TRUE(fs::is_symlink(test.Chosen));
    EXPECT_TRUE(fs::is_symlink(test.Folder.File("work/kept.out")));
}

TEST(SaveResults, ResultsAndListingMayBeSpelledInAnyCase)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "ship.tv7");
    fs::rename(test.Results, test.Folder.File("engine/Ondara7.bin"));
    fs::rename(test.Folder.File("engine/ondara7.out"), test.Folder.File("engine/Ondara7.OUT"));
    test.Recorder.Files = {test.Chosen};
    EXPECT_EQ(test.Commands.SaveAs(), EKept::Saved);
    EXPECT_EQ(FileContent(test.Chosen), ResultsWith("/ships/frigate.od7"));
    EXPECT_EQ(FileContent(test.Folder.File("work/kept.out")), "listing");
}

TEST(SaveResults, ResultsThatAreSavedOverThemselvesStay)
{
    CResultsTest test;
    SetLastLoadName(test.Recorder, "ship.tv7");
    test.Recorder.Files = {test.Results};
    EXPECT_EQ(test.Commands.SaveAs(), EKept::Saved);
    EXPECT_EQ(FileContent(test.Results), ResultsWith("/ships/frigate.od7"));
    EXPECT_EQ(FileContent(test.Folder.File("engine/ondara7.out")), "listing");
}
