#include "core/results/report/ReportLists.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
CPageCounts Counts()
{
    CPageCounts counts;
    counts.SpectrumKind = kSpectrumBretschneider;
    counts.Headings = {0, 90, 180, 270};
    counts.SpeedCount = 3;
    counts.SeawayCount = 4;
    counts.FreqCount = 35;
    counts.PositionCount = 2;
    counts.LoadStationCount = 5;
    counts.SlamPositions = 2;
    return counts;
}

CReportFlags Flags(std::initializer_list<EReportSection> sections)
{
    CReportFlags flags;
    flags.fill(kSectionNotSelected);
    for (const EReportSection section : sections)
    {
        flags[section] = kSectionSelected;
    }
    return flags;
}

/// The lists that sections use, in order.
std::vector<int> Used(std::initializer_list<EReportSection> sections)
{
    std::vector<int> used;
    for (int list = 0; list < kReportListCount; ++list)
    {
        if (UsesList(Flags(sections), static_cast<EReportList>(list)))
        {
            used.push_back(list);
        }
    }
    return used;
}

int Pages(std::initializer_list<EReportSection> sections, const CReportLists& lists)
{
    return EstimatePages(NarrowedCounts(Counts(), Flags(sections), lists), Flags(sections));
}
} // namespace

TEST(ReportLists, OfEachSection)
{
    EXPECT_THAT(Used({}), IsEmpty());
    EXPECT_THAT(Used({kSectionHydrostatics, kSectionEnvironment}), IsEmpty());
    EXPECT_THAT(Used({kSectionMotionRao}), ElementsAre(kListSpeeds, kListHeadings));
    EXPECT_THAT(Used({kSectionLoadRao}), ElementsAre(kListSpeeds, kListHeadings, kListPositions));
    EXPECT_THAT(Used({kSectionRollDamping}), ElementsAre(kListSpeeds, kListHeadings, kListSeaways));
    EXPECT_THAT(Used({kSectionRmsLoads}), ElementsAre(kListSpeeds, kListSeaways, kListPositions));
    for (const EReportSection section : {kSectionRms, kSectionRmsShortCrested, kSectionSlamming,
                                         kSectionMotionInterruption, kSectionMotionSickness})
    {
        EXPECT_THAT(Used({section}), ElementsAre(kListSpeeds, kListSeaways)) << section;
    }
}

TEST(ReportLists, OfSeveralSectionsAreThoseOfAny)
{
    EXPECT_THAT(Used({kSectionLoadRao, kSectionRollDamping}),
                ElementsAre(kListSpeeds, kListHeadings, kListSeaways, kListPositions));
}

TEST(ReportLists, TheWholeHasAsManyHeadingsAsThereAreUpTo180Degrees)
{
    const CReportLists lists = WholeLists(Counts());
    EXPECT_THAT(lists[kListSpeeds], ElementsAre(0, 1, 2));
    EXPECT_THAT(lists[kListHeadings], ElementsAre(0, 1, 2));
    EXPECT_THAT(lists[kListSeaways], ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(lists[kListPositions], ElementsAre(0, 1, 2, 3, 4));
}

TEST(ReportLists, AreStoredInTheProject)
{
    CProjectData project;
    project.SelectedHeadings = {7};
    StoreLists(project, {CSelection{0, 2}, {}, {3}, {1, 4}});
    EXPECT_THAT(project.SelectedSpeeds, ElementsAre(0, 2));
    EXPECT_THAT(project.SelectedHeadings, IsEmpty());
    EXPECT_THAT(project.SelectedSeaways, ElementsAre(3));
    EXPECT_THAT(project.SelectedPositions, ElementsAre(1, 4));
}

TEST(ReportLists, NarrowTheEstimateOfTheSectionsThatUseThem)
{
    const CReportLists lists = {CSelection{0, 2}, {1, 2}, {3}, {0, 1, 4}};
    EXPECT_EQ(Pages({kSectionMotionRao}, lists), 2 * 2 * 2 + 1);
    EXPECT_EQ(Pages({kSectionLoadRao}, lists), 2 * 3 * 2 * 2 + 1);
    EXPECT_EQ(Pages({kSectionRollDamping}, lists), 1 * 2 * 2 + 1);
    EXPECT_EQ(Pages({kSectionRms}, lists), (2 + 1) * 1 * 2);
    EXPECT_EQ(Pages({kSectionRmsLoads}, lists), 1 * 3 * 2);
    EXPECT_EQ(Pages({kSectionSlamming}, lists), 2 * 1 * 2);
}

TEST(ReportLists, AnEmptyListLeavesTheFirstPageOfASection)
{
    EXPECT_EQ(Pages({kSectionMotionRao}, {}), 1);
    EXPECT_EQ(Pages({kSectionRms}, {}), 0);
}

TEST(ReportLists, WhatIsNotNarrowedCountsAsInTheFile)
{
    // With load stations the summary has four pages, without it has three: RMS don't narrow them.
    EXPECT_EQ(Pages({kSectionHydrostatics, kSectionRms}, {CSelection{0}, {}, {0}, {}}), 4 + 3);
    EXPECT_EQ(Pages({kSectionHydrostatics, kSectionRmsLoads}, {CSelection{0}, {}, {0}, {}}), 3 + 0);
}

TEST(ReportLists, ADirectionAbove180DegreesHasNoPages)
{
    EXPECT_EQ(Pages({kSectionMotionRao}, {CSelection{0}, {2, 3}, {}, {}}), 2 * 1 * 1 + 1);
}
