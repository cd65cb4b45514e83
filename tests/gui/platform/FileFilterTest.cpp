#include "gui/platform/FileFilter.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(NameFilters, ArePairsOfCaptionAndPatterns)
{
    EXPECT_THAT(NameFilters("Ondara Files (*.csv; *.txt)|*.csv; *.txt|All Files (*.*)|*.*|"),
                ElementsAre("Ondara Files (*.csv *.txt)", "All Files (*)"));
}

TEST(NameFilters, NeedNoBlankBeforeAndNoPatternsInTheCaption)
{
    EXPECT_THAT(NameFilters("All Files(*.*)|*.*|"), ElementsAre("All Files (*)"));
    EXPECT_THAT(NameFilters("Results|*.tv7|"), ElementsAre("Results (*.tv7)"));
    EXPECT_THAT(NameFilters("Results (new)|*.tv7|"), ElementsAre("Results (new) (*.tv7)"));
}

TEST(NameFilters, OfNothingOrOfHalfAPairAreNone)
{
    EXPECT_THAT(NameFilters(""), IsEmpty());
    EXPECT_THAT(NameFilters("Results"), IsEmpty());
}

TEST(Suffix, IsWhatStandsBehindThePoint)
{
    EXPECT_EQ(Suffix("*.od7"), "od7");
    EXPECT_EQ(Suffix(".csv"), "csv");
    EXPECT_EQ(Suffix("html"), "html");
    EXPECT_EQ(Suffix(""), "");
}
