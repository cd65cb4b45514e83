#include "oe7/hull/CSection.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
using testing::ElementsAre;
using testing::FieldsAre;

TEST(Section, IsCutWhereItsSideRisesThroughTheWater)
{
    const CSection section = ClippedSection({{0, 2, 4}, {0, 0, 4}}, 1);
    EXPECT_THAT(section.Contour, ElementsAre(FieldsAre(0, -1), FieldsAre(2, -1), FieldsAre(2.5, 0)));
    EXPECT_DOUBLE_EQ(section.Beam, 5);
    EXPECT_DOUBLE_EQ(section.Draft, 1);
    EXPECT_DOUBLE_EQ(section.Area, 4.5);
    EXPECT_NEAR(section.CentroidZ, -(4 * 0.5 + 0.5 / 3) / 4.5, 1e-12);
    EXPECT_NEAR(section.Girth, 4 + 2 * std::hypot(0.5, 1), 1e-12);
    EXPECT_FALSE(section.Extended || section.Submerged || section.Dry());
    EXPECT_EQ(section.Waterline, 1);
}

TEST(Section, PointsBehindTheFirstCrossingDontCount)
{
    const CSection section = ClippedSection({{0, 2, 2, 3, 3, 4}, {0, 0, 2, 2, 0.5, 4}}, 1);
    EXPECT_THAT(section.Contour, ElementsAre(FieldsAre(0, -1), FieldsAre(2, -1), FieldsAre(2, 0)));
}

TEST(Section, APointOnTheWaterlineIsItsEnd)
{
    const CSection section = ClippedSection({{0, 2, 3, 4}, {0, 0, 1, 2}}, 1);
    EXPECT_THAT(section.Contour, ElementsAre(FieldsAre(0, -1), FieldsAre(2, -1), FieldsAre(3, 0)));
}

TEST(Section, IsLedFromTheCentreLineIfItBeginsBesideIt)
{
    const CSection section = ClippedSection({{1, 2}, {0, 2}}, 2);
    EXPECT_THAT(section.Contour, ElementsAre(FieldsAre(0, -2), FieldsAre(1, -2), FieldsAre(2, 0)));
}

TEST(Section, BeginsWhereItDipsIntoTheWater)
{
    const CSection section = ClippedSection({{0, 2, 3, 3}, {2, 0, 0, 4}}, 1);
    EXPECT_THAT(section.Contour,
                ElementsAre(FieldsAre(1, 0), FieldsAre(2, -1), FieldsAre(3, -1), FieldsAre(3, 0)));
    // The water between the sides isn't the ship's.
    EXPECT_DOUBLE_EQ(section.Area, 3);
    EXPECT_DOUBLE_EQ(section.Beam, 6);
}

TEST(Section, IsCarriedStraightUpIfItEndsBelowTheWater)
{
    const CSection section = ClippedSection({{0, 2, 3}, {0, 0, 2}}, 5);
    EXPECT_TRUE(section.Extended);
    EXPECT_THAT(section.Contour,
                ElementsAre(FieldsAre(0, -5), FieldsAre(2, -5), FieldsAre(3, -3), FieldsAre(3, 0)));
    EXPECT_DOUBLE_EQ(section.Beam, 6);
}

TEST(Section, ThatClosesBelowTheWaterIsSubmerged)
{
    const CSection section = ClippedSection({{0, 1, 0}, {0, 1, 2}}, 5);
    EXPECT_TRUE(section.Submerged);
    EXPECT_FALSE(section.Extended);
    EXPECT_THAT(section.Contour, ElementsAre(FieldsAre(0, -5), FieldsAre(1, -4), FieldsAre(0, -3)));
    EXPECT_EQ(section.Beam, 0);
    EXPECT_DOUBLE_EQ(section.Area, 2);
    EXPECT_NEAR(section.CentroidZ, -4, 1e-12);
    EXPECT_DOUBLE_EQ(section.Draft, 5);
}

TEST(Section, AboveTheWaterIsDry)
{
    for (const double waterline : {-1.0, 0.0})
    {
        const CSection section = ClippedSection({{0, 1, 2}, {0, 0, 2}}, waterline);
        EXPECT_TRUE(section.Dry());
        EXPECT_EQ(section.Area, 0);
        EXPECT_EQ(section.Draft, 0);
        EXPECT_EQ(section.Beam, 0);
    }
}

TEST(Section, RepeatedPointsCountOnce)
{
    const CSection section = ClippedSection({{0, 0, 2, 2, 2, 3, 3}, {0, 0, 0, 0, 1e-13, 1, 1}}, 1);
    EXPECT_THAT(section.Contour, ElementsAre(FieldsAre(0, -1), FieldsAre(2, -1), FieldsAre(3, 0)));
}

TEST(Section, OfASinglePointIsDry)
{
    EXPECT_TRUE(ClippedSection({{0, 0, 0}, {0, 0, 0}}, 1).Dry());
    EXPECT_TRUE(ClippedSection({{0}, {0}}, 1).Dry());
    EXPECT_TRUE(ClippedSection({}, 1).Dry());
}

TEST(Section, AFlatStemHasDraftAndGirthButNoArea)
{
    const CSection section = ClippedSection({{0, 0, 0, 1}, {0, 1, 6, 9}}, 4);
    EXPECT_THAT(section.Contour, ElementsAre(FieldsAre(0, -4), FieldsAre(0, -3), FieldsAre(0, 0)));
    EXPECT_EQ(section.Area, 0);
    EXPECT_EQ(section.CentroidZ, 0);
    EXPECT_DOUBLE_EQ(section.Draft, 4);
    EXPECT_DOUBLE_EQ(section.Girth, 8);
}

TEST(Section, FormedFromDimensionsIsDrawnInTwentyFourStepsAndHasExactlyTheGivenArea)
{
    const CSection section = FormedSection({4, 2, 0.8}, 2, 3);
    ASSERT_EQ(section.Contour.size(), 25);
    EXPECT_THAT(section.Contour.front(), FieldsAre(0, -2));
    EXPECT_THAT(section.Contour.back(), FieldsAre(2, 0));
    EXPECT_DOUBLE_EQ(section.Area, 6.4);
    EXPECT_EQ(section.Beam, 4);
    EXPECT_EQ(section.Draft, 2);
    EXPECT_EQ(section.Waterline, 3);
}

TEST(Section, FormedAsASemicircleLiesOnIt)
{
    const CSection section = FormedSection({4, 2, std::numbers::pi / 4}, 2, 2);
    for (const CPoint& point : section.Contour)
    {
        EXPECT_NEAR(std::hypot(point.Y, point.Z), 2, 1e-9);
    }
    EXPECT_NEAR(section.CentroidZ, -8 / (3 * std::numbers::pi), 2e-3);
    EXPECT_NEAR(section.Girth, 2 * std::numbers::pi, 2e-3);
}

TEST(Section, FormedKeepsItsCoefficientAtAnotherDraft)
{
    EXPECT_DOUBLE_EQ(FormedSection({4, 2, 0.8}, 1, 1).Area, 3.2);
    EXPECT_DOUBLE_EQ(FormedSection({13.9, 4.4, 0.98}, 4.4, 4.4).Draft, 4.4);
    EXPECT_TRUE(FormedSection({4, 2, 0.8}, 0, 0).Dry());
    EXPECT_TRUE(FormedSection({4, 2, 0.8}, -1, 0).Dry());
}

TEST(Section, FormedWithoutABeamIsAPlate)
{
    EXPECT_THAT(FormedSection({0, 2, 0.8}, 2, 2).Contour, ElementsAre(FieldsAre(0, -2), FieldsAre(0, 0)));
}
} // namespace
} // namespace oe7
