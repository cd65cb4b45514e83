#include "oe7/output/ListingWords.h"

#include <algorithm>

#include <gtest/gtest.h>

using oe7::ListedLabel;
using oe7::ListedTitle;

TEST(ListingWords, NoMarkerIsInLowerCase)
{
    for (const std::string_view marker : oe7::kMarkers)
    {
        EXPECT_TRUE(std::any_of(marker.begin(), marker.end(), [](char c) { return c >= 'A' && c <= 'Z'; }))
            << marker;
    }
}

TEST(ListingWords, ATitleIsPrintedAsItIs)
{
    EXPECT_EQ(ListedTitle("Reference Ship No. 3: full load"), "Reference Ship No. 3: full load");
    EXPECT_EQ(ListedTitle(""), "");
}

TEST(ListingWords, ATitleWithAMarkerIsPrintedInLowerCase)
{
    EXPECT_EQ(ListedTitle("Ship, Cb ENFREQMIN : 3"), "ship, cb enfreqmin : 3");
    EXPECT_EQ(ListedTitle("Offshore Endeavour at Full Draft"), "offshore endeavour at full draft");
}

TEST(ListingWords, ATitleStaysInItsLine)
{
    EXPECT_EQ(ListedTitle("one\ntwo\rthree\tfour"), "one two three four");
    EXPECT_EQ(ListedTitle(std::string(300, 't')).size(), 200U);
}

TEST(ListingWords, ALabelIsOneWordInLowerCase)
{
    EXPECT_EQ(ListedLabel("Draft_mark", 1), "draft_mark");
    EXPECT_EQ(ListedLabel("Enc LFE\tSickness", 1), "enc_lfe_sickness");
    EXPECT_EQ(ListedLabel(std::string(300, 'L'), 1), std::string(60, 'l'));
}

TEST(ListingWords, AnEmptyLabelIsNamedByItsNumber)
{
    EXPECT_EQ(ListedLabel("", 3), "position-3");
}
