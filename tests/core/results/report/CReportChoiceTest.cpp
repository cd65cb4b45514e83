#include "core/results/report/CReportChoice.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A file that offers all but the sections of short-crested seas. Pages: summary 4, motion RAO 2 x 2 x 3 + 1,
/// load RAO 6 times that, roll damping 25, RMS 48, RMS loads 48, slamming and MSI 8 each, MII 16.
CPageCounts Counts()
{
    CPageCounts counts;
    counts.SpectrumKind = kSpectrumBretschneider;
    counts.Headings = {0, 90, 180};
    counts.SpeedCount = 2;
    counts.SeawayCount = 4;
    counts.FreqCount = 35;
    counts.PositionCount = 5;
    counts.LoadStationCount = 6;
    counts.OutRao = 2;
    counts.SlamPositions = 1;
    counts.MiiPositions = 2;
    counts.MsiPositions = 1;
    return counts;
}

/// The same with so many seaways that a page more than `pages` is needed for slamming.
CPageCounts SlammingTakes(int pages)
{
    CPageCounts counts = Counts();
    counts.SpeedCount = 1;
    counts.SeawayCount = pages;
    return counts;
}

std::vector<int> Selected(const CReportChoice& choice)
{
    std::vector<int> sections;
    for (int section = 0; section < kReportSectionCount; ++section)
    {
        if (choice.IsSelected(static_cast<EReportSection>(section)))
        {
            sections.push_back(section);
        }
    }
    return sections;
}
} // namespace

TEST(ReportChoice, BeginsWithNothing)
{
    const CReportChoice choice(Counts());
    EXPECT_THAT(Selected(choice), IsEmpty());
    EXPECT_FALSE(choice.IsAnythingSelected());
    EXPECT_FALSE(choice.IsCustomized());
    EXPECT_EQ(choice.Pages(), 0);
}

TEST(ReportChoice, WithoutAFileOffersNothing)
{
    CReportChoice choice;
    for (int section = 0; section < kReportSectionCount; ++section)
    {
        EXPECT_FALSE(choice.Offers(static_cast<EReportSection>(section))) << section;
    }
    choice.SelectAll(true);
    choice.Select(kSectionHydrostatics, true);
    EXPECT_THAT(Selected(choice), IsEmpty());
}

TEST(ReportChoice, TheEnvironmentFollowsTheSummary)
{
    CReportChoice choice(Counts());
    choice.Select(kSectionHydrostatics, true);
    EXPECT_THAT(Selected(choice), ElementsAre(kSectionHydrostatics, kSectionEnvironment));
    EXPECT_EQ(choice.Pages(), 4);
    choice.Select(kSectionHydrostatics, false);
    EXPECT_THAT(Selected(choice), IsEmpty());
}

TEST(ReportChoice, AllIsWhatTheFileOffers)
{
    CPageCounts counts = Counts();
    counts.OutRao = 0;
    counts.LoadFlag = 1;
    counts.MiiPositions = 0;
    CReportChoice choice(counts);
    choice.SelectAll(true);
    EXPECT_TRUE(choice.IsAllSelected());
    EXPECT_THAT(Selected(choice), ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao,
                                              kSectionRms, kSectionSlamming, kSectionMotionSickness));
    choice.SelectAll(false);
    EXPECT_FALSE(choice.IsAllSelected());
    EXPECT_THAT(Selected(choice), IsEmpty());
}

TEST(ReportChoice, ItIsNoLongerAllOnceASectionIsTakenOut)
{
    CReportChoice choice(Counts());
    choice.SelectAll(true);
    choice.Select(kSectionMotionRao, false);
    EXPECT_FALSE(choice.IsAllSelected());
    choice.Select(kSectionMotionRao, true);
    EXPECT_FALSE(choice.IsAllSelected());
}

TEST(ReportChoice, SectionsThatTheFileDoesNotOfferStayOut)
{
    CReportChoice choice(Counts());
    choice.Select(kSectionRmsShortCrested, true);
    EXPECT_THAT(Selected(choice), IsEmpty());
}

TEST(ReportChoice, Of499PagesIsAcceptedAndOf500Refused)
{
    CReportChoice choice(SlammingTakes(499));
    choice.Select(kSectionSlamming, true);
    EXPECT_EQ(choice.Pages(), 499);
    EXPECT_FALSE(choice.IsRefused());
    EXPECT_FALSE(choice.IsCustomized());

    choice = CReportChoice(SlammingTakes(500));
    choice.Select(kSectionSlamming, true);
    EXPECT_EQ(choice.Pages(), 500);
    EXPECT_TRUE(choice.IsRefused());
    EXPECT_TRUE(choice.IsCustomized());
}

TEST(ReportChoice, IsNotRefusedWhereTheUserCustomizes)
{
    CReportChoice choice(SlammingTakes(500));
    choice.Customize(true);
    choice.Select(kSectionSlamming, true);
    EXPECT_TRUE(choice.IsOverLimit());
    EXPECT_FALSE(choice.IsRefused());
}

TEST(ReportChoice, OverTheLimitStaysCustomizedWhateverTheUserWants)
{
    CReportChoice choice(SlammingTakes(500));
    choice.Customize(true);
    choice.Select(kSectionSlamming, true);
    choice.Customize(false);
    EXPECT_TRUE(choice.IsCustomized());
    choice.Select(kSectionSlamming, false);
    EXPECT_FALSE(choice.IsCustomized());
}

TEST(ReportChoice, TheUsersWishToCustomizeOutlivesTheLimit)
{
    CReportChoice choice(SlammingTakes(500));
    choice.Customize(true);
    choice.Select(kSectionSlamming, true);
    choice.Select(kSectionSlamming, false);
    EXPECT_TRUE(choice.IsCustomized());
}

TEST(ReportChoice, TheIrregularSectionsGoTogether)
{
    CReportChoice choice(Counts());
    choice.SelectAll(true);
    choice.ClearIrregular();
    EXPECT_THAT(Selected(choice), ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao,
                                              kSectionRollDamping, kSectionLoadRao));
    EXPECT_FALSE(choice.IsAllSelected());
}

TEST(ReportChoice, EachRegularSectionMixesWithEachIrregularOne)
{
    for (const EReportSection regular : {kSectionMotionRao, kSectionRollDamping, kSectionLoadRao})
    {
        for (const EReportSection irregular : {kSectionRms, kSectionRmsLoads, kSectionSlamming,
                                               kSectionMotionInterruption, kSectionMotionSickness})
        {
            CReportChoice choice(Counts());
            choice.Select(kSectionHydrostatics, true);
            choice.Select(irregular, true);
            EXPECT_FALSE(choice.MixesFamilies()) << irregular;
            choice.Select(regular, true);
            EXPECT_TRUE(choice.MixesFamilies()) << regular << " " << irregular;
            choice.Select(irregular, false);
            EXPECT_FALSE(choice.MixesFamilies()) << regular;
        }
    }
    CPageCounts counts = Counts();
    counts.SpreadAngle = 90;
    CReportChoice choice(counts);
    choice.Select(kSectionMotionRao, true);
    choice.Select(kSectionRmsShortCrested, true);
    EXPECT_TRUE(choice.MixesFamilies());
}
