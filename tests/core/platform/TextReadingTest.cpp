#include "core/platform/TextReading.h"

#include "core/platform/NumberText.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

namespace
{
constexpr std::size_t kLongest = 10;
} // namespace

TEST(TextReading, ALineComesWithoutItsLineEnd)
{
    CLineReader lines("one\ntwo\n\nthree");
    EXPECT_EQ(lines.ReadLine(kLongest), "one");
    EXPECT_EQ(lines.ReadLine(kLongest), "two");
    EXPECT_EQ(lines.ReadLine(kLongest), "");
    EXPECT_FALSE(lines.AtEnd());
    EXPECT_EQ(lines.ReadLine(kLongest), "three");
    EXPECT_TRUE(lines.AtEnd());
}

TEST(TextReading, BehindTheLastLineAllLinesAreEmpty)
{
    CLineReader lines("one\n");
    EXPECT_EQ(lines.ReadLine(kLongest), "one");
    EXPECT_TRUE(lines.AtEnd());
    EXPECT_EQ(lines.ReadLine(kLongest), "");
    EXPECT_EQ(lines.ReadLine(kLongest), "");
    EXPECT_EQ(CLineReader("").ReadLine(kLongest), "");
}

TEST(TextReading, ALineOfTheGreatestLengthTakesItsLineFeedAlong)
{
    CLineReader lines("0123456789\nnext");
    EXPECT_EQ(lines.ReadLine(kLongest), "0123456789");
    EXPECT_EQ(lines.ReadLine(kLongest), "next");
}

TEST(TextReading, ALongerLineGoesOnInTheNextRead)
{
    CLineReader lines("0123456789A\nnext");
    EXPECT_EQ(lines.ReadLine(kLongest), "0123456789");
    EXPECT_EQ(lines.ReadLine(kLongest), "A");
    EXPECT_EQ(lines.ReadLine(kLongest), "next");

    CLineReader longLine(std::string_view("01234567890123456789\nnext"));
    EXPECT_EQ(longLine.ReadLine(kLongest), "0123456789");
    EXPECT_EQ(longLine.ReadLine(kLongest), "0123456789");
    EXPECT_EQ(longLine.ReadLine(kLongest), "next");
}

TEST(TextReading, ALongLineAtTheEndOfTheTextIsCutToo)
{
    CLineReader lines("0123456789AB");
    EXPECT_EQ(lines.ReadLine(kLongest), "0123456789");
    EXPECT_EQ(lines.ReadLine(kLongest), "AB");
    EXPECT_TRUE(lines.AtEnd());
}

TEST(TextReading, ACarriageReturnBeforeTheLineFeedBelongsToTheLineEnd)
{
    CLineReader lines("one\r\n\r\n0123456789\r\nnext\r");
    EXPECT_EQ(lines.ReadLine(kLongest), "one");
    EXPECT_EQ(lines.ReadLine(kLongest), "");
    EXPECT_EQ(lines.ReadLine(kLongest), "0123456789");
    EXPECT_EQ(lines.ReadLine(kLongest), "next\r") << "without a line feed it is a character";
}

TEST(TextReading, ACarriageReturnElsewhereIsACharacter)
{
    CLineReader lines("a\rb\r\r\nnext");
    EXPECT_EQ(lines.ReadLine(kLongest), "a\rb\r");
    EXPECT_EQ(lines.ReadLine(kLongest), "next");
}

TEST(TextReading, ACarriageReturnThatIsCutOffStillEndsTheLine)
{
    CLineReader lines("0123456789A\r\nnext");
    EXPECT_EQ(lines.ReadLine(kLongest), "0123456789");
    EXPECT_EQ(lines.ReadLine(kLongest), "A");
    EXPECT_EQ(lines.ReadLine(kLongest), "next");
}

TEST(TextReading, LinesAreNumberedAsTheyStandInTheText)
{
    CLineReader lines("one\n0123456789AB\r\n\nfour");
    EXPECT_EQ(lines.LineNumber(), 0);
    lines.ReadLine(kLongest);
    EXPECT_EQ(lines.LineNumber(), 1);
    lines.ReadLine(kLongest);
    EXPECT_EQ(lines.LineNumber(), 2);
    EXPECT_EQ(lines.ReadLine(kLongest), "AB");
    EXPECT_EQ(lines.LineNumber(), 2) << "still inside the long line";
    lines.ReadLine(kLongest);
    EXPECT_EQ(lines.LineNumber(), 3);
    EXPECT_EQ(lines.ReadLine(kLongest), "four");
    EXPECT_EQ(lines.LineNumber(), 4);
    lines.ReadLine(kLongest);
    EXPECT_EQ(lines.LineNumber(), 5) << "behind the last line";
}

TEST(TextReading, RunsOfDelimitersSeparateTokens)
{
    CTokens tokens("  one   two ");
    EXPECT_EQ(tokens.Next(), "one");
    EXPECT_EQ(tokens.Next(), "two");
    EXPECT_EQ(tokens.Next(), std::nullopt);
    EXPECT_EQ(tokens.Next(), std::nullopt);
}

TEST(TextReading, ALineOfDelimitersHasNoToken)
{
    EXPECT_EQ(CTokens("").Next(), std::nullopt);
    EXPECT_EQ(CTokens("    ").Next(), std::nullopt);
    EXPECT_EQ(CTokens(",,,", ',').Next(), std::nullopt);
}

TEST(TextReading, OnlyTheDelimiterSeparates)
{
    CTokens tokens("a b,,c\td,e", ',');
    EXPECT_EQ(tokens.Next(), "a b");
    EXPECT_EQ(tokens.Next(), "c\td");
    EXPECT_EQ(tokens.Next(), "e");
    EXPECT_EQ(CTokens("a\tb").Next(), "a\tb");
}

TEST(TextReading, ATokenThatTheLineLengthCutsGoesOnAsAnother)
{
    CLineReader lines("1.25 10.75 3\n");
    CTokens first(lines.ReadLine(kLongest - 2));
    EXPECT_EQ(first.Next(), "1.25");
    EXPECT_EQ(first.Next(), "10.");
    EXPECT_EQ(first.Next(), std::nullopt);
    CTokens second(lines.ReadLine(kLongest));
    EXPECT_EQ(second.Next(), "75");
    EXPECT_EQ(second.Next(), "3");
}

TEST(TextReading, TheRestIsWhatStandsBehindTheLastTokensDelimiter)
{
    CTokens tokens("1  label of  this ");
    EXPECT_EQ(tokens.Next(), "1");
    EXPECT_EQ(tokens.Rest(), " label of  this ");
    EXPECT_EQ(tokens.Rest(), std::nullopt);
    EXPECT_EQ(tokens.Next(), std::nullopt);
}

TEST(TextReading, ARestThatIsEmptyIsNone)
{
    CTokens tokens("1 ");
    tokens.Next();
    EXPECT_EQ(tokens.Rest(), std::nullopt);
    EXPECT_EQ(CTokens("").Rest(), std::nullopt);
    EXPECT_EQ(CTokens("all of it").Rest(), "all of it");
}

TEST(TextReading, APlainNumberIsTakenAsTheReadersOfTextTakeIt)
{
    for (const char* token :
         {"0", "-0", "12", "-0.50", "1.", "010", "1e3", "2.5e-2", "100000.001", "3.4028236e38"})
    {
        const std::string line = std::string("  ") + token + "  next";
        CTokens tokens(line);
        const auto number = tokens.NextPlainNumber();
        ASSERT_TRUE(number) << token;
        EXPECT_EQ(*number, NumberAtStart(token)) << token;
        EXPECT_EQ(std::signbit(*number), std::signbit(NumberAtStart(token))) << token;
        EXPECT_EQ(tokens.Next(), "next") << token;
    }
}

TEST(TextReading, WhatIsNoPlainNumberStaysTheNextToken)
{
    for (const char* token :
         {".5", "-.5", "+1", "-", "0x1A", "nan", "inf", "1e999", "1.5x", "1e", "1,5", "five"})
    {
        CTokens tokens(token);
        EXPECT_EQ(tokens.NextPlainNumber(), std::nullopt) << token;
        EXPECT_EQ(tokens.Next(), token);
    }
}

TEST(TextReading, ALineWithoutTokensHoldsNoPlainNumber)
{
    EXPECT_EQ(CTokens("").NextPlainNumber(), std::nullopt);
    EXPECT_EQ(CTokens("   ").NextPlainNumber(), std::nullopt);
}

TEST(TextReading, APlainNumberMayEndTheLine)
{
    CTokens tokens("1 -2.5");
    EXPECT_EQ(tokens.NextPlainNumber(), 1.0);
    EXPECT_EQ(tokens.NextPlainNumber(), -2.5);
    EXPECT_EQ(tokens.NextPlainNumber(), std::nullopt);
    EXPECT_EQ(tokens.Rest(), std::nullopt);
}
