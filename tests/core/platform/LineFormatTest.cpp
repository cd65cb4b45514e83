#include "core/platform/LineFormat.h"

#include "tests/support/CCommaLocale.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace
{
template <class... Values>
std::string Line(std::string_view format, const Values&... values)
{
    std::string text;
    AppendFormat(text, format, std::array<CFormatValue, sizeof...(Values)>{CFormatValue(values)...});
    return text;
}
} // namespace

TEST(LineFormat, ValuesStandInThePlacesOfTheirPlaceholders)
{
    EXPECT_EQ("<TD>1.50</TD> 7 keel.", Line("<TD>%.2f</TD> %i %s.", 1.5F, 7, "keel"));
    EXPECT_EQ("12", Line("%d%s", 12, std::string()));
}

TEST(LineFormat, WidthPrecisionAndExponentsAreAsPrintfHasThem)
{
    EXPECT_EQ("13:05:09", Line("%i:%02i:%02i", 13, 5, 9));
    EXPECT_EQ(" 7", Line("%2.0d", 7));
    EXPECT_EQ("  ", Line("%2.0d", 0));
    EXPECT_EQ("4.20e+07", Line("%.2e", 4.202771e7F));
    EXPECT_EQ("180.0", Line("%3.1f", 180.0F));
    EXPECT_EQ("0.5", Line("%3.1f", 0.5F));
}

TEST(LineFormat, NumbersAreRoundedFromTheirExactValue)
{
    EXPECT_EQ("0.125 0.12 -0", Line("%.3f %.2f %.0f", 0.125F, 0.125F, -0.25F));
    EXPECT_EQ("0.001", Line("%.3f", 0.0005F)) << "the float lies above the tie";
}

TEST(LineFormat, WhatIsNoNumberPrintsAsTheCLibraryPrintsIt)
{
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ("nan inf -inf", Line("%.2f %.0f %.3f", std::nanf(""), infinity, -infinity));
}

TEST(LineFormat, APointIsWrittenWhateverTheLocale)
{
    const CCommaLocale comma;
    EXPECT_EQ("1.50 1.5 4.20e+07", Line("%.2f %3.1f %.2e", 1.5, 1.5, 4.202771e7));
}

TEST(LineFormat, APercentSignInAValueIsText)
{
    EXPECT_EQ("5 %s", Line("%s", "5 %s"));
}

TEST(LineFormat, APlaceholderThatDoesNotFitIsAnError)
{
    EXPECT_TRUE(TakesPlaceholder<float>('f'));
    EXPECT_FALSE(TakesPlaceholder<float>('i'));
    EXPECT_TRUE(TakesPlaceholder<int>('d'));
    EXPECT_FALSE(TakesPlaceholder<int>('f'));
    EXPECT_TRUE(TakesPlaceholder<const char*>('s'));
    EXPECT_FALSE(TakesPlaceholder<const char*>('i'));
}
