#include "core/platform/CIniProfile.h"
#include "core/platform/Files.h"

#include "tests/support/CTestFolder.h"

#include <cstdlib>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
const std::string kSectionLine = "[Larkfield Marine Limited/Ondara/Settings]\n";

/// Sets a variable of the environment for a test's time.
class CVariable
{
public:
    CVariable(const char* name, const char* value) : m_name(name)
    {
        const char* before = std::getenv(name);
        m_wasSet = before != nullptr;
        m_before = m_wasSet ? before : "";
        ::setenv(name, value, 1);
    }
    ~CVariable()
    {
        if (m_wasSet)
        {
            ::setenv(m_name, m_before.c_str(), 1);
        }
        else
        {
            ::unsetenv(m_name);
        }
    }
    CVariable(const CVariable&) = delete;
    CVariable& operator=(const CVariable&) = delete;

private:
    const char* m_name;
    bool m_wasSet = false;
    std::string m_before;
};
} // namespace

TEST(CIniProfile, AStoreWithoutAFileIsEmpty)
{
    const CTestFolder folder;
    const CIniProfile profile(folder.File("Ondara.ini"));
    EXPECT_EQ(profile.Find("Settings", "ChkNegZInter"), std::nullopt);
    EXPECT_EQ(profile.GetProfileString("Settings", "ChkNegZInter"), "");
    EXPECT_EQ(profile.GetProfileString("Settings", "ChkNegZInter", "absent"), "absent");
    EXPECT_EQ(profile.GetProfileInt("Settings", "ChkNegZInter", 5), 5);
    EXPECT_FALSE(fs::exists(folder.File("Ondara.ini"))) << "reading makes no file";
}

TEST(CIniProfile, AWrittenValueIsFoundAtOnceAndByTheNextProgram)
{
    const CTestFolder folder;
    const std::string path = folder.File("Ondara.ini");
    CIniProfile profile(path);
    profile.WriteProfileString("Ondara", "LastLoadName", "/ships/Ferry.tv7");
    profile.WriteProfileInt("Settings", "ChkNegZInter", -3);
    for (const CIniProfile& store : {CIniProfile(path), profile})
    {
        EXPECT_EQ(store.GetProfileString("Ondara", "LastLoadName"), "/ships/Ferry.tv7");
        EXPECT_EQ(store.GetProfileInt("Settings", "ChkNegZInter", 5), -3);
        EXPECT_EQ(store.Find("Settings", "LastLoadName"), std::nullopt) << "sections are apart";
    }
}

TEST(CIniProfile, ValuesAreKeyedByMakerProgramSectionAndEntry)
{
    const CTestFolder folder;
    const std::string path = folder.File("Ondara.ini");
    CIniProfile profile(path);
    profile.WriteProfileInt("Settings", "B", 2);
    profile.WriteProfileString("Settings", "A", "one");
    profile.WriteProfileString("Ondara", "LastLoadName", "x");
    EXPECT_EQ(FileContent(path),
              "[Larkfield Marine Limited/Ondara/Ondara]\nLastLoadName=x\n\n" + kSectionLine + "A=one\nB=2\n");
}

TEST(CIniProfile, AnIntegerIsTheTextsLeadingNumber)
{
    const CTestFolder folder;
    const CIniProfile profile(
        folder.Write("Ondara.ini", kSectionLine + "A=12abc\nB=junk\nC=\nD=99999999999\n"));
    EXPECT_EQ(profile.GetProfileInt("Settings", "A", 5), 12);
    EXPECT_EQ(profile.GetProfileInt("Settings", "B", 5), 0);
    EXPECT_EQ(profile.GetProfileInt("Settings", "C", 5), 0);
    EXPECT_EQ(profile.GetProfileInt("Settings", "D", 5), 2147483647);
}

TEST(CIniProfile, AnyTextComesBackAsItWasWritten)
{
    const CTestFolder folder;
    const std::string path = folder.File("Ondara.ini");
    for (const std::string value : {"", " both ends ", "a=b", "[section]", "; no comment", "two\nlines\r\n",
                                    "C:\\new\\run", "\\", "ends in \\", "Schiff \xC3\xA4\xFF", "\t"})
    {
        CIniProfile(path).WriteProfileString("Settings", "Text", value);
        EXPECT_EQ(CIniProfile(path).Find("Settings", "Text"), value);
    }
}

TEST(CIniProfile, SectionsOfOtherProgramsStay)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ondara.ini", "[Other/Program]\nA=1\n\n" + kSectionLine + "A=2\n");
    CIniProfile(path).WriteProfileString("Settings", "A", "3");
    EXPECT_EQ(FileContent(path), kSectionLine + "A=3\n\n[Other/Program]\nA=1\n");
}

TEST(CIniProfile, WhatAnotherProgramWroteInBetweenStands)
{
    const CTestFolder folder;
    const std::string path = folder.File("Ondara.ini");
    CIniProfile first(path);
    CIniProfile second(path);
    first.WriteProfileString("Settings", "A", "first");
    first.WriteProfileString("Settings", "B", "first");
    second.WriteProfileString("Settings", "B", "second");
    first.WriteProfileString("Settings", "C", "first");
    const CIniProfile after(path);
    EXPECT_EQ(after.Find("Settings", "A"), "first");
    EXPECT_EQ(after.Find("Settings", "B"), "second");
    EXPECT_EQ(after.Find("Settings", "C"), "first");
    EXPECT_EQ(first.Find("Settings", "B"), "second");
}

TEST(CIniProfile, TheStoresFolderIsMade)
{
    const CTestFolder folder;
    const std::string path = folder.File("config/Larkfield/Ondara.ini");
    CIniProfile(path).WriteProfileString("Settings", "A", "1");
    EXPECT_EQ(CIniProfile(path).Find("Settings", "A"), "1");
}

TEST(CIniProfile, AStoreThatCantBeWrittenHoldsItsValuesWhileTheProgramRuns)
{
    const CTestFolder folder;
    folder.Write("config", "no folder");
    CIniProfile profile(folder.File("config/Ondara.ini"));
    profile.WriteProfileString("Settings", "A", "1");
    profile.WriteProfileString("Settings", "B", "2");
    EXPECT_EQ(profile.Find("Settings", "A"), "1");
    EXPECT_EQ(profile.Find("Settings", "B"), "2");
}

TEST(CIniProfile, AValueThatCouldntBeStoredIsStoredWithTheNextOne)
{
    const CTestFolder folder;
    const std::string path = folder.Write("Ondara.ini", kSectionLine + "A=old\n");
    CIniProfile profile(path);
    // A folder under the name that new content is first written to.
    const std::string obstacle = path + "." + std::to_string(::getpid()) + ".new";
    fs::create_directory(obstacle);
    profile.WriteProfileString("Settings", "A", "new");
    profile.WriteProfileString("Settings", "B", "2");
    EXPECT_EQ(profile.Find("Settings", "A"), "new");
    EXPECT_EQ(FileContent(path), kSectionLine + "A=old\n");
    fs::remove_all(obstacle);
    profile.WriteProfileString("Settings", "C", "3");
    EXPECT_EQ(FileContent(path), kSectionLine + "A=new\nB=2\nC=3\n");
}

TEST(CIniProfile, AnyBytesAreTakenAsAStore)
{
    const CTestFolder folder;
    const CIniProfile profile(
        folder.Write("Ondara.ini", "\xFF\xFE[\n]\n[]\n=\n[x\nA\n\n" + kSectionLine + "A=1\r\nB"));
    EXPECT_EQ(profile.Find("Settings", "A"), "1");
    EXPECT_EQ(profile.Find("Settings", "B"), std::nullopt);
}

TEST(CIniProfile, TheUsersStoreLiesInTheConfigurationFolder)
{
    const CVariable home("HOME", "/home/navarch");
    {
        const CVariable config("XDG_CONFIG_HOME", "/settings");
        EXPECT_EQ(CIniProfile::DefaultPath(), "/settings/Larkfield Marine Limited/Ondara.ini");
    }
    const CVariable config("XDG_CONFIG_HOME", "");
    EXPECT_EQ(CIniProfile::DefaultPath(), "/home/navarch/.config/Larkfield Marine Limited/Ondara.ini");
}

TEST(CIniProfile, WithoutHomeTheSystemTellsTheUsersFolder)
{
    const CVariable config("XDG_CONFIG_HOME", "");
    const CVariable home("HOME", "");
    EXPECT_THAT(CIniProfile::DefaultPath(), testing::StartsWith("/"));
    EXPECT_THAT(CIniProfile::DefaultPath(),
                testing::EndsWith("/.config/Larkfield Marine Limited/Ondara.ini"));
}

TEST(CIniProfile, AStoreThatCannotBeReadWholeIsNotOverwritten)
{
    const CTestFolder folder;
    const std::string content = "[Other]\nkey=" + std::string(2 << 20, 'x') + "\n";
    const std::string path = folder.Write("large.ini", content);
    CIniProfile profile(path);
    profile.WriteProfileString("Settings", "ChkNegZInter", "1");
    EXPECT_EQ(profile.GetProfileString("Settings", "ChkNegZInter"), "1");
    EXPECT_EQ(FileContent(path), content);
}

TEST(CIniProfile, ARelativePathStaysInTheFolderOfTheStart)
{
    const CTestFolder folder;
    ChangeFolder(folder.Path());
    CIniProfile profile("settings.ini");
    ChangeFolder("/");
    profile.WriteProfileString("Settings", "ChkNegZInter", "1");
    EXPECT_TRUE(FileExists(folder.File("settings.ini")));
}
