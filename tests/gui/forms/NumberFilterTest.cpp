#include "gui/forms/NumberFilter.h"

#include <gtest/gtest.h>

TEST(NumberFilter, DigitsPassEverywhere)
{
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
    {
        EXPECT_TRUE(MayTypeIntoNumber(u"", 0, digit));
        EXPECT_TRUE(MayTypeIntoNumber(u"-1.5e3", 0, digit));
        EXPECT_TRUE(MayTypeIntoNumber(u"-1.5e3", 6, digit));
    }
}

TEST(NumberFilter, MinusPassesInFrontOfANumberWithoutOne)
{
    EXPECT_TRUE(MayTypeIntoNumber(u"", 0, u'-'));
    EXPECT_TRUE(MayTypeIntoNumber(u"12", 0, u'-'));
    EXPECT_FALSE(MayTypeIntoNumber(u"-12", 0, u'-'));
    EXPECT_FALSE(MayTypeIntoNumber(u"12", 1, u'-'));
    EXPECT_FALSE(MayTypeIntoNumber(u"-", 1, u'-'));
}

TEST(NumberFilter, MinusPassesRightBehindAnExponent)
{
    EXPECT_TRUE(MayTypeIntoNumber(u"1e", 2, u'-'));
    EXPECT_TRUE(MayTypeIntoNumber(u"1E5", 2, u'-'));
    EXPECT_TRUE(MayTypeIntoNumber(u"-1e5", 3, u'-'));
    EXPECT_FALSE(MayTypeIntoNumber(u"1e5", 3, u'-'));
    EXPECT_FALSE(MayTypeIntoNumber(u"1e5", 1, u'-'));
}

TEST(NumberFilter, ExponentNeedsANumberBeforeItAndPassesOnce)
{
    for (const char16_t exponent : {u'e', u'E'})
    {
        EXPECT_TRUE(MayTypeIntoNumber(u"1", 1, exponent));
        EXPECT_TRUE(MayTypeIntoNumber(u"-1", 2, exponent));
        EXPECT_TRUE(MayTypeIntoNumber(u".", 1, exponent));
        EXPECT_FALSE(MayTypeIntoNumber(u"", 0, exponent));
        EXPECT_FALSE(MayTypeIntoNumber(u"12", 0, exponent));
        EXPECT_FALSE(MayTypeIntoNumber(u"-12", 1, exponent));
        EXPECT_FALSE(MayTypeIntoNumber(u"1e5", 1, exponent));
        EXPECT_FALSE(MayTypeIntoNumber(u"1E5", 3, exponent));
    }
}

TEST(NumberFilter, PointPassesOnceAndNotBehindAnExponent)
{
    EXPECT_TRUE(MayTypeIntoNumber(u"", 0, u'.'));
    EXPECT_TRUE(MayTypeIntoNumber(u"12", 1, u'.'));
    EXPECT_TRUE(MayTypeIntoNumber(u"12e3", 1, u'.'));
    EXPECT_TRUE(MayTypeIntoNumber(u"-12", 0, u'.'));
    EXPECT_FALSE(MayTypeIntoNumber(u"1.2", 3, u'.'));
    EXPECT_FALSE(MayTypeIntoNumber(u"12e3", 3, u'.'));
    EXPECT_FALSE(MayTypeIntoNumber(u"12E3", 4, u'.'));
}

TEST(NumberFilter, NothingElsePasses)
{
    for (const char16_t other : {u' ', u'+', u',', u'a', u'x', u'n', u'\x0663', u'\xff11', u'\x200e'})
    {
        EXPECT_FALSE(MayTypeIntoNumber(u"", 0, other));
        EXPECT_FALSE(MayTypeIntoNumber(u"1", 1, other));
    }
}
