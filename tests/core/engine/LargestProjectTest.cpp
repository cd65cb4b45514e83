// The largest project that arrays and files have room for, through everything that works on projects.
#include "core/engine/CEngineInputWriter.h"
#include "core/project/InputFileText.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
struct CLargestProject : CTestProject
{
    CLargestProject() { FillToMaximum(Project); }
};
} // namespace

TEST(LargestProject, EveryCountIsAtItsMaximum)
{
    CLargestProject largest;
    CProjectData& p = largest.Project;
    EXPECT_EQ(p.NST.Integer(), kMaxStations);
    for (int station = 0; station < kMaxStations; ++station)
    {
        EXPECT_EQ(p.NOFFUSER.Integer(station), kMaxOffsets);
    }
    EXPECT_EQ(p.NSEADIR.Integer(), kMaxSeaDirections);
    EXPECT_EQ(p.NPOS.Integer(), kMaxPositions);
    EXPECT_EQ(p.NBKPAIR.Integer(), kMaxBilgeKeelPairs);
    EXPECT_EQ(p.NFOILPAIR.Integer(), kMaxFoilPairs);
    EXPECT_EQ(p.NFINPAIR.Integer(), kMaxFinPairs);
}

TEST(LargestProject, IsCompleteInEachSection)
{
    CLargestProject largest;
    largest.Project.EachCompletenessFlag([](const char* name, int flag) { EXPECT_EQ(flag, 1) << name; });
}

TEST(LargestProject, ReadsBackWholeAndIsSavedWithTheSameBytes)
{
    CLargestProject largest;
    const std::string saved = InputFileText(largest.Project);
    CTestProject again;
    EXPECT_EQ(again.File.ReadContent(saved, EHalf::Both), EOpened::Whole);
    EXPECT_EQ(InputFileText(again.Project), saved);
    EXPECT_THAT(again.Recorder.Messages, testing::IsEmpty());
}

TEST(LargestProject, BecomesEngineInputWithoutAMessage)
{
    CLargestProject largest;
    CEngineInputWriter writer(largest.Project, largest.Folder.Path(), largest.Recorder.Platform);
    EXPECT_TRUE(writer.Write());
    EXPECT_THAT(largest.Recorder.Messages, testing::IsEmpty());
}
