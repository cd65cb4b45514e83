#include "core/platform/Files.h"

#include "tests/support/CTestFolder.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
using testing::ElementsAre;

constexpr std::size_t kAnyLength = 1 << 20;

/// Runs an action in a process of its own and gives its result, which is a small number.
int InProcess(const std::function<int()>& action)
{
    const pid_t process = ::fork();
    if (process == 0)
    {
        ::_exit(action());
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Saves where no file may grow over `room` bytes, as on a disk that is full then.
ESaved SaveWithRoomFor(rlim_t room, const std::string& path, const std::string& content)
{
    return static_cast<ESaved>(InProcess(
        [&]
        {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {room, room};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            return static_cast<int>(SaveFile(path, content));
        }));
}

/// Saves without a superuser's rights.
ESaved SaveAsOrdinaryUser(const std::string& path, const std::string& content)
{
    constexpr uid_t nobody = 65534;
    return static_cast<ESaved>(InProcess(
        [&]
        {
            const bool ordinary = ::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
            return ordinary ? static_cast<int>(SaveFile(path, content)) : -1;
        }));
}

std::vector<std::string> Names(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
    {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

unsigned Permissions(const std::string& path)
{
    return static_cast<unsigned>(fs::status(path).permissions());
}

/// Gives a folder its rights back, so that it can be emptied.
class CReadOnlyFolder
{
public:
    explicit CReadOnlyFolder(std::string path) : m_path(std::move(path)) { ::chmod(m_path.c_str(), 0555); }
    ~CReadOnlyFolder() { ::chmod(m_path.c_str(), 0755); }
    CReadOnlyFolder(const CReadOnlyFolder&) = delete;
    CReadOnlyFolder& operator=(const CReadOnlyFolder&) = delete;

private:
    std::string m_path;
};
} // namespace

TEST(Files, AFileIsReadWhole)
{
    const CTestFolder folder;
    const std::string content("a\0b\r\n\xFF", 6);
    EXPECT_EQ(ReadFile(folder.Write("File", content), kAnyLength), content);
    EXPECT_EQ(ReadFile(folder.Write("Empty", ""), kAnyLength), "");
    const std::string large(200000, 'x');
    EXPECT_EQ(ReadFile(folder.Write("Large", large), kAnyLength), large);
}

TEST(Files, NoMoreThanTheGreatestLengthIsRead)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", std::string(100000, 'x'));
    EXPECT_EQ(ReadFile(path, 70000)->size(), 70000U);
    EXPECT_EQ(ReadFile("/dev/zero", 70000)->size(), 70000U);
}

TEST(Files, AMissingFileAndAFolderCantBeRead)
{
    const CTestFolder folder;
    EXPECT_EQ(ReadFile(folder.File("None"), kAnyLength), std::nullopt);
    EXPECT_EQ(ReadFile(folder.Path(), kAnyLength), std::nullopt);
    EXPECT_EQ(ReadFile("", kAnyLength), std::nullopt);
}

TEST(Files, ADeviceIsNoRegularFile)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "content");
    EXPECT_EQ(ReadRegularFile(path, 100), "content");
    EXPECT_EQ(ReadRegularFile("/dev/zero", 100), std::nullopt);
    EXPECT_EQ(ReadRegularFile(folder.Path(), 100), std::nullopt);
    EXPECT_EQ(ReadRegularFile(folder.File("none"), 100), std::nullopt);
}

TEST(Files, WritingReplacesTheContentInPlace)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "a long old content");
    EXPECT_TRUE(WriteFile(path, "new"));
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("File"));
}

TEST(Files, WritingTellsOfAFileThatCantBeOpenedAndOfAFullDisk)
{
    const CTestFolder folder;
    EXPECT_FALSE(WriteFile(folder.File("none/File"), "x"));
    EXPECT_FALSE(WriteFile(folder.Path(), "x"));
    EXPECT_FALSE(WriteFile("/dev/full", "x"));
}

TEST(Files, ReplacingLeavesNoOtherFile)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "old");
    EXPECT_TRUE(ReplaceFile(path, "new"));
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_TRUE(ReplaceFile(folder.File("Second"), ""));
    EXPECT_THAT(Names(folder.Path()), ElementsAre("File", "Second"));
}

TEST(Files, AReplacementThatFailsLeavesTheOldFile)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "old");
    const int replaced = InProcess(
        [&]
        {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {2, 2};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            return ReplaceFile(path, "new content") ? 1 : 0;
        });
    EXPECT_EQ(replaced, 0);
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("File"));
    EXPECT_FALSE(ReplaceFile(folder.File("none/File"), "x"));
    EXPECT_FALSE(ReplaceFile(folder.Path(), "x"));
    EXPECT_THAT(Names(folder.Path()), ElementsAre("File"));
}

TEST(Files, ReplacingFollowsALink)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "old");
    fs::create_symlink("File", folder.File("Link"));
    EXPECT_TRUE(ReplaceFile(folder.File("Link"), "new"));
    EXPECT_TRUE(fs::is_symlink(folder.File("Link")));
    EXPECT_EQ(FileContent(path), "new");
}

TEST(Files, ASavedFileHoldsTheNewContentAlone)
{
    const CTestFolder folder;
    const std::string path = folder.File("Ship.od7");
    EXPECT_EQ(SaveFile(path, "first"), ESaved::Whole);
    EXPECT_EQ(FileContent(path), "first");
    EXPECT_EQ(SaveFile(path, "2nd"), ESaved::Whole);
    EXPECT_EQ(FileContent(path), "2nd");
    EXPECT_EQ(SaveFile(path, ""), ESaved::Whole);
    EXPECT_EQ(FileContent(path), "");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7")) << "the kept content goes away";
}

TEST(Files, ANewFileOnAFullDiskIsShort)
{
    const CTestFolder folder;
    const std::string path = folder.File("Ship.od7");
    EXPECT_EQ(SaveWithRoomFor(4, path, "new content"), ESaved::Short);
    EXPECT_EQ(FileContent(path), "new ");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7"));
}

TEST(Files, ADeviceThatTakesNothingIsShort)
{
    const CTestFolder folder;
    fs::create_symlink("/dev/full", folder.File("Ship.od7"));
    EXPECT_EQ(SaveFile(folder.File("Ship.od7"), "content"), ESaved::Short);
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7"));
    EXPECT_TRUE(fs::is_symlink(folder.File("Ship.od7")));
}

TEST(Files, AFullDiskLeavesAShortFileAndTheLastContentBesideIt)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "last content");
    EXPECT_EQ(SaveWithRoomFor(4, path, "new content"), ESaved::Short);
    EXPECT_EQ(FileContent(path), "new ");
    EXPECT_EQ(FileContent(path + "~"), "last content");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7", "Ship.od7~"));
}

TEST(Files, ASecondFailingSaveKeepsTheGoodContent)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "last content");
    for (int k = 0; k < 3; ++k)
    {
        EXPECT_EQ(SaveWithRoomFor(4, path, "new content"), ESaved::Short);
        EXPECT_EQ(FileContent(path + "~"), "last content");
    }
}

TEST(Files, ALaterGoodSaveRemovesWhatWasKept)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "last content");
    SaveWithRoomFor(4, path, "new content");
    SaveWithRoomFor(4, path, "new content");
    EXPECT_EQ(SaveFile(path, "new content"), ESaved::Whole);
    EXPECT_EQ(FileContent(path), "new content");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7"));
}

TEST(Files, AFolderOfTheKeptNameIsLeftAlone)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "last content");
    fs::create_directory(path + "~");
    EXPECT_EQ(SaveFile(path, "new"), ESaved::Whole);
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7", "Ship.od7~"));
}

TEST(Files, APathThatCantBeAFileIsNotOpened)
{
    const CTestFolder folder;
    fs::create_symlink("Loop", folder.File("Loop"));
    const std::string file = folder.Write("Ship.od7", "last content");
    EXPECT_EQ(SaveFile(folder.Path(), "x"), ESaved::NotOpened);
    EXPECT_EQ(SaveFile(folder.File("none/Ship.od7"), "x"), ESaved::NotOpened);
    EXPECT_EQ(SaveFile(file + "/Ship.od7", "x"), ESaved::NotOpened);
    EXPECT_EQ(SaveFile(folder.File("Loop"), "x"), ESaved::NotOpened);
    EXPECT_EQ(SaveFile("", "x"), ESaved::NotOpened);
    EXPECT_EQ(SaveFile(folder.File(std::string(300, 'x')), "x"), ESaved::NotOpened);
    EXPECT_EQ(FileContent(file), "last content");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Loop", "Ship.od7"));
}

TEST(Files, AFileWhoseContentCantBeKeptIsNotOpened)
{
    const CTestFolder folder;
    const std::string name(255, 'x');
    const std::string path = folder.Write(name, "last content");
    EXPECT_EQ(SaveFile(path, "new"), ESaved::NotOpened) << "no longer name is possible";
    EXPECT_EQ(FileContent(path), "last content");
    EXPECT_THAT(Names(folder.Path()), ElementsAre(name));
}

TEST(Files, AWriteProtectedFileIsNotOpenedAndStaysAsItWas)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "last content");
    ::chmod(folder.Path().c_str(), 0777);
    ::chmod(path.c_str(), 0444);
    EXPECT_EQ(SaveAsOrdinaryUser(path, "new"), ESaved::NotOpened);
    EXPECT_EQ(FileContent(path), "last content");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7"));
}

TEST(Files, AFileInAWriteProtectedFolderIsNotOpenedAndStaysAsItWas)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "last content");
    ::chmod(path.c_str(), 0666);
    const CReadOnlyFolder readOnly(folder.Path());
    EXPECT_EQ(SaveAsOrdinaryUser(path, "new"), ESaved::NotOpened);
    EXPECT_EQ(FileContent(path), "last content");
    EXPECT_EQ(SaveAsOrdinaryUser(folder.File("New.od7"), "new"), ESaved::NotOpened);
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Ship.od7"));
}

TEST(Files, SavingFollowsALinkAndKeepsTheContentBesideTheFile)
{
    const CTestFolder folder;
    fs::create_directory(folder.File("ships"));
    const std::string path = folder.Write("ships/Ship.od7", "last content");
    const std::string link = folder.File("Link.od7");
    fs::create_symlink("ships/Ship.od7", link);
    EXPECT_EQ(SaveFile(link, "new"), ESaved::Whole);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_EQ(SaveWithRoomFor(1, link, "newer"), ESaved::Short);
    EXPECT_EQ(FileContent(path + "~"), "new");
    EXPECT_THAT(Names(folder.Path()), ElementsAre("Link.od7", "ships"));
}

TEST(Files, ALinkLeadsToItsFileAlsoWhereThatIsNotThereYet)
{
    const CTestFolder folder;
    fs::create_directory(folder.File("ships"));
    fs::create_symlink("ships/First", folder.File("Link"));
    fs::create_symlink("Second", folder.File("ships/First"));
    EXPECT_EQ(ResolvedPath(folder.File("Link")), folder.File("ships/Second"));
    folder.Write("ships/Second", "");
    EXPECT_EQ(ResolvedPath(folder.File("Link")), folder.File("ships/Second"));
    EXPECT_EQ(ResolvedPath(folder.File("none")), folder.File("none"));
    fs::create_symlink("Loop", folder.File("Loop"));
    EXPECT_EQ(ResolvedPath(folder.File("Loop")), folder.File("Loop"));
}

TEST(Files, SavingThroughALinkToNoFileMakesTheFile)
{
    const CTestFolder folder;
    fs::create_symlink("Ship.od7", folder.File("Link.od7"));
    EXPECT_EQ(SaveFile(folder.File("Link.od7"), "new"), ESaved::Whole);
    EXPECT_TRUE(fs::is_symlink(folder.File("Link.od7")));
    EXPECT_EQ(FileContent(folder.File("Ship.od7")), "new");
}

TEST(Files, SavingKeepsTheFilesPermissions)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "last content");
    for (const mode_t mode : {0600U, 0664U, 0755U})
    {
        ::chmod(path.c_str(), mode);
        EXPECT_EQ(SaveFile(path, "new"), ESaved::Whole);
        EXPECT_EQ(Permissions(path), mode);
    }
}

TEST(Files, AFileExistsUnlessItIsAFolder)
{
    const CTestFolder folder;
    EXPECT_TRUE(FileExists(folder.Write("File", "")));
    EXPECT_FALSE(FileExists(folder.Path()));
    EXPECT_FALSE(FileExists(folder.File("None")));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists(folder.File(std::string(300, 'x'))));
}

TEST(Files, TheTimeOfAFileIsThatOfItsLastChange)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "x");
    const timeval times[2] = {{1000000000, 0}, {1234567890, 0}};
    ASSERT_EQ(::utimes(path.c_str(), times), 0);
    EXPECT_EQ(FileTime(path), 1234567890);
    EXPECT_EQ(FileTime(folder.File("None")), std::nullopt);
}

TEST(Files, FolderAndNameJoinWithOneSeparator)
{
    EXPECT_EQ(JoinPath("/data", "a.inp"), "/data/a.inp");
    EXPECT_EQ(JoinPath("/data/", "a.inp"), "/data/a.inp");
    EXPECT_EQ(JoinPath("/", "a.inp"), "/a.inp");
    EXPECT_EQ(JoinPath("", "a.inp"), "a.inp");
}

TEST(Files, AnExtensionIsReplacedOrAdded)
{
    EXPECT_EQ(WithExtension("/ships/Ferry.csv", "od7"), "/ships/Ferry.od7");
    EXPECT_EQ(WithExtension("/ships/Ferry", "od7"), "/ships/Ferry.od7");
    EXPECT_EQ(WithExtension("/ships.old/Ferry", "od7"), "/ships.old/Ferry.od7");
    EXPECT_EQ(WithExtension("Ferry.a.b", "od7"), "Ferry.a.od7");
    EXPECT_EQ(WithExtension("Ferry.", "od7"), "Ferry.od7");
    EXPECT_EQ(WithExtension("", "od7"), ".od7");
}

TEST(Files, TheNameIsThePathsLastPart)
{
    EXPECT_EQ(FileName("/ships/Ferry.od7"), "Ferry.od7");
    EXPECT_EQ(FileName("Ferry.od7"), "Ferry.od7");
    EXPECT_EQ(FileName("/ships/"), "");
}

TEST(Files, APathFromARootIsAbsoluteInEitherSystemsSpelling)
{
    EXPECT_TRUE(IsAbsolute("/ships/Ferry.od7"));
    EXPECT_TRUE(IsAbsolute("C:\\Ferry.od7"));
    EXPECT_TRUE(IsAbsolute("\\\\server\\Ferry.od7"));
    EXPECT_FALSE(IsAbsolute("ships/Ferry.od7"));
    EXPECT_FALSE(IsAbsolute("Ferry.od7"));
    EXPECT_FALSE(IsAbsolute(""));
}

TEST(Files, AFullPathBeginsAtTheCurrentFolder)
{
    const CTestFolder folder;
    ChangeFolder(folder.Path());
    EXPECT_EQ(CurrentFolder(), folder.Path());
    EXPECT_EQ(FullPath("Ferry.od7"), folder.File("Ferry.od7"));
    EXPECT_EQ(FullPath("./ships/../Ferry.od7"), folder.File("Ferry.od7"));
    EXPECT_EQ(FullPath("/ships/Ferry.od7"), "/ships/Ferry.od7");
}

TEST(Files, UpFromALinkedFolderIsThatFoldersParent)
{
    const CTestFolder folder;
    fs::create_directories(folder.File("deep/inner"));
    fs::create_symlink(folder.File("deep/inner"), folder.File("link"));
    EXPECT_EQ(FullPath(folder.File("link/../Ferry.od7")), folder.File("deep/Ferry.od7"));
    EXPECT_EQ(FullPath(folder.File("link/..")), folder.File("deep/"));
}

TEST(Files, AFolderThatIsNoneLeavesTheCurrentOne)
{
    const CTestFolder folder;
    ChangeFolder(folder.Path());
    ChangeFolder(folder.File("none"));
    ChangeFolder("");
    ChangeFolder(folder.Write("File", ""));
    EXPECT_EQ(CurrentFolder(), folder.Path());
}

TEST(Files, KeptContentsAreNamedInTheOrderOfTheirSaves)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ship.od7", "short");
    EXPECT_TRUE(KeptContents(path).empty());
    folder.Write("Ship.od7~", "first");
    folder.Write("Ship.od7~~", "second");
    folder.Write("Ship.od7~~~~", "another program's");
    EXPECT_EQ(KeptContents(path), (std::vector<std::string>{path + "~", path + "~~"}));
}

TEST(Files, OnlyAFolderIsAFolder)
{
    const CTestFolder folder;
    EXPECT_TRUE(FolderExists(folder.Path()));
    EXPECT_FALSE(FolderExists(folder.Write("File", "")));
    EXPECT_FALSE(FolderExists(folder.File("none")));
    EXPECT_FALSE(FolderExists(""));
}

TEST(Files, OnlyAFileThatCanBeOpenedCanBeRead)
{
    const CTestFolder folder;
    EXPECT_TRUE(CanBeRead(folder.Write("File", "")));
    EXPECT_FALSE(CanBeRead(folder.Path()));
    EXPECT_FALSE(CanBeRead(folder.File("none")));
}

TEST(Files, AFileThatNobodyMayWriteIsReadOnly)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "");
    EXPECT_FALSE(IsReadOnly(path));
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read);
    EXPECT_TRUE(IsReadOnly(path));
    EXPECT_FALSE(IsReadOnly(folder.File("none")));
    fs::create_directory(folder.File("folder"));
    fs::permissions(folder.File("folder"), fs::perms::owner_read);
    EXPECT_FALSE(IsReadOnly(folder.File("folder")));
}

TEST(Files, ADeletedFileIsGoneAndAMissingOneNoFailure)
{
    const CTestFolder folder;
    const std::string path = folder.Write("File", "content");
    EXPECT_TRUE(DeleteFile(path));
    EXPECT_FALSE(FileExists(path));
    EXPECT_TRUE(DeleteFile(path));
    fs::create_directories(folder.File("folder/inner"));
    EXPECT_FALSE(DeleteFile(folder.File("folder")));
}

TEST(Files, AFileDialogLeavesTheFolderOfItsFile)
{
    const CTestFolder folder;
    ChangeFolder("/");
    ChangeToFolderOf(folder.File("none"));
    EXPECT_EQ(CurrentFolder(), folder.Path());
    ChangeToFolderOf("name");
    EXPECT_EQ(CurrentFolder(), folder.Path());
}
