#include "tests/core/results/report/CReportCase.h"
#include "tests/core/results/report/CSeasCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace
{
CSeasPosition OfKind(const std::string& label, int kind)
{
    CSeasPosition position;
    position.Label = label;
    position.RelMotionKind = kind;
    return position;
}

std::string SectionOfKind(int kind, float spreadAngle = 0)
{
    CSeasCase seas;
    seas.Add(OfKind("Bow", kind));
    seas.Results.Head.SpreadAngle = spreadAngle;
    return seas.Section(SlammingSection);
}
} // namespace

TEST(SlammingSection, WholeSectionOfAllKinds)
{
    CSeasCase seas;
    for (const int kind : {1, 0, 2, 3, 4, 5})
    {
        seas.Add(OfKind("Kind" + std::to_string(kind), kind));
    }
    ExpectGolden(seas.Section(SlammingSection), "report/Slamming.html");
}

TEST(SlammingSection, WholeSectionInTheBritishSystem)
{
    CSeasCase seas;
    for (const int kind : {1, 4, 5})
    {
        seas.Add(OfKind("Kind" + std::to_string(kind), kind));
    }
    seas.Results.Input->OUTSYS.Set(0);
    seas.Results.Head.SpreadAngle = 90;
    seas.Project.StationOrigin = 1;
    ExpectGolden(seas.Section(SlammingSection), "report/SlammingBritish.html");
}

TEST(SlammingSection, PositionWithoutRelativeMotionIsPassedOver)
{
    CSeasCase seas;
    seas.Add(OfKind("Bow", 0));
    seas.Add(OfKind("Stern", 4));
    const std::string text = seas.Section(SlammingSection);
    EXPECT_THAT(text, Not(HasSubstr("<B>Bow</B>")));
    EXPECT_EQ(CountOf(text, "<B>Stern</B>"), 1);
    EXPECT_EQ(CountOf(text, kBreakLine), 0);
}

TEST(SlammingSection, KindThatIsNoneOfTheFiveIsPassedOver)
{
    EXPECT_THAT(SectionOfKind(6), Not(HasSubstr("Position Label")));
    EXPECT_THAT(SectionOfKind(-1), Not(HasSubstr("Position Label")));
}

TEST(SlammingSection, MethodIsNamedByTheKind)
{
    EXPECT_THAT(SectionOfKind(1), HasSubstr("Calc Method: <B>SlamForm</B>"));
    EXPECT_THAT(SectionOfKind(2), HasSubstr("Calc Method: <B>SlamOffset</B>"));
    EXPECT_THAT(SectionOfKind(3), HasSubstr("Calc Method: <B>SlamWedge</B>"));
}

TEST(SlammingSection, TitleIsChosenByTheKindAndTheSpreadingAngle)
{
    for (const int kind : {1, 2, 3})
    {
        EXPECT_THAT(SectionOfKind(kind),
                    HasSubstr("\n<B>Slamming And Deck Wetness - Unidirectional Seas</B><BR>\n"));
        EXPECT_THAT(SectionOfKind(kind, 1),
                    HasSubstr("\n<B>Slamming And Deck Wetness - Short-Crested Seas</B><BR>\n"));
    }
    EXPECT_THAT(SectionOfKind(4), HasSubstr("\n<B>Deck Wetness - Unidirectional Seas</B><BR>\n"));
    EXPECT_THAT(SectionOfKind(4, 1), HasSubstr("\n<B>Deck Wetness - Short-Crested Seas</B><BR>\n"));
    EXPECT_THAT(SectionOfKind(5), HasSubstr("\n<B>Emergence - Unidirectional Seas</B><BR>\n"));
    EXPECT_THAT(SectionOfKind(5, 1), HasSubstr("\n<B>Emergence - Short-Crested Seas</B><BR>\n"));
}

TEST(SlammingSection, DirectionalSpectrumWithoutSpreadingIsCalledUnidirectionalInTheTitle)
{
    CSeasCase seas;
    seas.Add(OfKind("Bow", 4));
    seas.Results.Head.SpectrumKind = kSpectrumHindcast;
    seas.RowsOfPositions = 13;
    EXPECT_THAT(seas.Section(SlammingSection), HasSubstr("<B>Deck Wetness - Unidirectional Seas</B><BR>"));
}

TEST(SlammingSection, RowsWithoutTheTwoUnshownValuesShowTheSame)
{
    CSeasCase with;
    with.Add(OfKind("Bow", 2));
    CSeasCase without;
    without.Add(OfKind("Bow", 2));
    without.HasUnshownValues = false;
    EXPECT_EQ(with.Section(SlammingSection), without.Section(SlammingSection));
}

TEST(SlammingSection, OnlyRowsThatTheFileHasAreWritten)
{
    CSeasCase seas;
    seas.Add(OfKind("Bow", 4));
    seas.SetHeadings(24);
    seas.Results.Head.SpectrumKind = kSpectrumTenParameter;
    seas.RowsOfPositions = 13;
    const std::string text = seas.Section(SlammingSection);
    EXPECT_EQ(CountOf(text, "<TR> <TD>4"), 13);
}

TEST(SlammingSection, FroudeNumberIsThatOfTheFirstHeadingUpTo180)
{
    CSeasCase seas;
    seas.Add(OfKind("Bow", 4));
    seas.Results.Body.Headings = {270, 45};
    EXPECT_THAT(seas.Section(SlammingSection), HasSubstr("Froude Number: <B>0.201</B>"));
}

TEST(SlammingSection, FroudeNumberThatTheFileDoesNotHaveIsZero)
{
    CSeasCase seas;
    seas.Add(OfKind("Bow", 4));
    seas.Results.Body.Headings = {270, 190};
    EXPECT_THAT(seas.Section(SlammingSection), HasSubstr("Froude Number: <B>0.000</B>"));
}
