#include "core/results/CListing.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
std::optional<float> AfterColon(const std::string& line)
{
    CListing listing(line);
    listing.ReadLine();
    return listing.AfterColon();
}

std::string Lines(int count)
{
    std::string text;
    for (int k = 1; k <= count; ++k)
    {
        text += "line " + std::to_string(k) + "\n";
    }
    return text;
}
} // namespace

TEST(Listing, LinesAreGivenWithoutTheirEndsAndEmptyOnesBehindTheLast)
{
    CListing listing("one\r\ntwo\n\nlast");
    EXPECT_EQ(listing.Line(), "");
    for (const char* expected : {"one", "two", "", "last", "", ""})
    {
        listing.ReadLine();
        EXPECT_EQ(listing.Line(), expected);
    }
}

TEST(Listing, WhatIsLongerThanALineGoesOnInTheNext)
{
    CListing listing(std::string(255, 'a') + "rest\nnext\n" + std::string(255, 'b') + "\r\nbehind\n");
    listing.ReadLine();
    EXPECT_EQ(listing.Line(), std::string(255, 'a'));
    listing.ReadLine();
    EXPECT_EQ(listing.Line(), "rest");
    listing.ReadLines(2);
    EXPECT_EQ(listing.Line(), std::string(255, 'b'));
    listing.ReadLine();
    EXPECT_EQ(listing.Line(), "behind");
}

TEST(Listing, AScanLooksAtTheLineAtHandFirst)
{
    CListing listing("Enc and Label\nEnc\n");
    listing.ReadLine();
    listing.Scan("Label", 1000);
    listing.Scan("Enc", 1);
    EXPECT_EQ(listing.Line(), "Enc and Label");
}

TEST(Listing, AMarkerIsTakenInItsExactCaseAnywhereInALine)
{
    CListing listing("marker\n the MARKER here\n");
    listing.Scan("MARKER", 1000);
    EXPECT_EQ(listing.Line(), " the MARKER here");
}

TEST(Listing, AMarkerInTheLastLineOfTheLimitIsNotFoundAnyMore)
{
    CListing found(Lines(20));
    found.Scan("line 9", 10);
    EXPECT_EQ(found.Line(), "line 9");
    CListing missed(Lines(20));
    EXPECT_THROW(missed.Scan("line 10", 10), CCompletionError);
}

TEST(Listing, TheCountOfAScanBeginsAnew)
{
    CListing listing(Lines(20));
    listing.Scan("line 9", 10);
    listing.Scan("line 18", 10);
    EXPECT_EQ(listing.Line(), "line 18");
}

TEST(Listing, AListingThatEndsEarlyRunsIntoTheLimit)
{
    CListing listing("only\n");
    EXPECT_THROW(listing.Scan("marker", 10000), CCompletionError);
}

TEST(Listing, TheNumberBehindAColonIsTheNextWord)
{
    EXPECT_EQ(AfterColon("GM (m)  :   1.25 m"), 1.25F);
    EXPECT_EQ(AfterColon("GM (m):1.25"), 1.25F);
    EXPECT_EQ(AfterColon("time : 12:30"), 12.0F); // the second colon belongs to the word
    EXPECT_EQ(AfterColon("GM : ***"), 0.0F);
    EXPECT_EQ(AfterColon("GM 1.25"), std::nullopt);
    EXPECT_EQ(AfterColon("GM (m) :   "), std::nullopt);
    EXPECT_EQ(AfterColon(""), std::nullopt);
    EXPECT_EQ(AfterColon(":5"), std::nullopt); // nothing stands before the colon: it doesn't divide
}

TEST(Listing, WordsThatAreNoNumbersAreZero)
{
    EXPECT_EQ(ListingNumber("1.5E+01"), 15.0F);
    EXPECT_EQ(ListingNumber("12abc"), 12.0F);
    EXPECT_EQ(ListingNumber("*****"), 0.0F);
    EXPECT_EQ(ListingNumber("1e300"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(ListingNumber("-1e300"), -std::numeric_limits<float>::infinity());
    EXPECT_EQ(ListingNumber("3.4028235e38"), std::numeric_limits<float>::max()) << "rounded, not too large";
    EXPECT_EQ(ListingNumber("-3.40282356e38"), -std::numeric_limits<float>::max());
    EXPECT_EQ(ListingNumber("3.4028236e38"), std::numeric_limits<float>::infinity());
}
