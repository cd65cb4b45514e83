#include "gui/hull/WorkingLoading.h"

#include "core/project/UnitFactors.h"
#include "tests/support/CTestProject.h"

#include <gmock/gmock.h>

using testing::FloatEq;

TEST(WorkingLoading, TrimTravelsInTheUnitOfTheDraft)
{
    CTestProject test;
    HandOverLoading(test.Project, {6, kUnitMetric}, {3, kUnitBritish});
    EXPECT_EQ(test.Project.WorkingDraft, 6);
    EXPECT_EQ(test.Project.WorkingDraftUnit, kUnitMetric);
    EXPECT_EQ(test.Project.WorkingTrim, 3 * kMetresPerFoot);
    HandOverLoading(test.Project, {6, kUnitBritish}, {kNotGiven, kUnitMetric});
    EXPECT_EQ(test.Project.WorkingTrim, kNotGiven);
}

TEST(WorkingLoading, WaterlineIsTheDraftWithoutTrim)
{
    CTestProject test;
    HandOverLoading(test.Project, {6, kUnitMetric}, {kNotGiven, kUnitMetric});
    EXPECT_THAT(WorkingWaterline(test.Project, 0, 21, kUnitMetric), FloatEq(6));
    EXPECT_THAT(WorkingWaterline(test.Project, 20, 21, kUnitBritish), FloatEq(6 * kFeetPerMetre));
}

TEST(WorkingLoading, TrimByTheSternRaisesTheWaterlineAft)
{
    CTestProject test;
    HandOverLoading(test.Project, {6, kUnitMetric}, {2, kUnitMetric});
    EXPECT_THAT(WorkingWaterline(test.Project, 0, 21, kUnitMetric), FloatEq(5));
    EXPECT_THAT(WorkingWaterline(test.Project, 10, 21, kUnitMetric), FloatEq(6));
    EXPECT_THAT(WorkingWaterline(test.Project, 20, 21, kUnitMetric), FloatEq(7));
}

TEST(WorkingLoading, WithoutADraftThereIsNoWaterline)
{
    CTestProject test;
    HandOverLoading(test.Project, {kNotGiven, kUnitBritish}, {2, kUnitMetric});
    EXPECT_LT(WorkingWaterline(test.Project, 20, 21, kUnitMetric), 0);
    EXPECT_LT(WorkingWaterline(test.Project, 20, 21, kUnitBritish), 0);
}
