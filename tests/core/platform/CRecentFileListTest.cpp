#include "core/platform/CRecentFileList.h"

#include "tests/support/CRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::ElementsAre;

const char* const kSection = "Recent File List";
} // namespace

TEST(CRecentFileList, ANewListIsEmpty)
{
    CRecorder recorder;
    const CRecentFileList list(recorder);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_THAT(list.Paths(), ElementsAre("", "", "", ""));
    EXPECT_EQ(recorder.ProfileWrites, 0);
}

TEST(CRecentFileList, TheNewestFileStandsFirst)
{
    CRecorder recorder;
    CRecentFileList list(recorder);
    list.Add("a");
    EXPECT_FALSE(list.IsEmpty());
    EXPECT_THAT(list.Paths(), ElementsAre("a", "", "", ""));
    list.Add("b");
    EXPECT_THAT(list.Paths(), ElementsAre("b", "a", "", ""));
}

TEST(CRecentFileList, TheOldestOfFourFallsOffTheEnd)
{
    CRecorder recorder;
    CRecentFileList list(recorder);
    for (const char* path : {"a", "b", "c", "d", "e"})
    {
        list.Add(path);
    }
    EXPECT_THAT(list.Paths(), ElementsAre("e", "d", "c", "b"));
}

TEST(CRecentFileList, AFileStandsInTheListOnce)
{
    CRecorder recorder;
    CRecentFileList list(recorder);
    for (const char* path : {"a", "b", "c", "d", "b"})
    {
        list.Add(path);
    }
    EXPECT_THAT(list.Paths(), ElementsAre("b", "d", "c", "a"));
}

TEST(CRecentFileList, RemovingClosesTheGap)
{
    CRecorder recorder;
    CRecentFileList list(recorder);
    for (const char* path : {"a", "b", "c", "d"})
    {
        list.Add(path);
    }
    list.Remove("c");
    EXPECT_THAT(list.Paths(), ElementsAre("d", "b", "a", ""));
    list.Remove("d");
    list.Remove("a");
    list.Remove("b");
    EXPECT_TRUE(list.IsEmpty());
}

TEST(CRecentFileList, RemovingAnUnknownFileWritesNothing)
{
    CRecorder recorder;
    CRecentFileList list(recorder);
    list.Add("a");
    recorder.ProfileWrites = 0;
    list.Remove("b");
    EXPECT_THAT(list.Paths(), ElementsAre("a", "", "", ""));
    EXPECT_EQ(recorder.ProfileWrites, 0);
}

TEST(CRecentFileList, TheListLivesInTheProfileUnderFourEntries)
{
    CRecorder recorder;
    CRecentFileList(recorder).Add("a");
    CRecentFileList(recorder).Add("b");
    EXPECT_EQ(recorder.GetProfileString(kSection, "File1"), "b");
    EXPECT_EQ(recorder.GetProfileString(kSection, "File2"), "a");
    EXPECT_EQ(recorder.GetProfileString(kSection, "File3"), "");
    recorder.WriteProfileString(kSection, "File4", "z");
    EXPECT_THAT(CRecentFileList(recorder).Paths(), ElementsAre("b", "a", "", "z"));
}

TEST(CRecentFileList, OnlyEntriesThatChangeAreWritten)
{
    CRecorder recorder;
    CRecentFileList list(recorder);
    list.Add("a");
    list.Add("b");
    recorder.ProfileWrites = 0;
    list.Add("b");
    EXPECT_EQ(recorder.ProfileWrites, 0);
    list.Add("a");
    EXPECT_EQ(recorder.ProfileWrites, 2);
}
