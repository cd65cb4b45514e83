#include "core/engine/EngineWords.h"

#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>

using ::testing::ElementsAre;

namespace
{
/// The words of -1, 0, 1, and so on.
std::vector<std::string> WordsUpTo(const CEngineWords& words, int last)
{
    std::vector<std::string> found;
    for (int value = -1; value <= last; ++value)
    {
        found.emplace_back(words.Of(static_cast<float>(value)));
    }
    return found;
}
} // namespace

TEST(EngineWords, FlagsOfTheControlRecords)
{
    EXPECT_THAT(WordsUpTo(kUnitWords, 1), ElementsAre("METRIC", "BRITISH", "METRIC"));
    EXPECT_THAT(WordsUpTo(kWaterWords, 1), ElementsAre("FRESH", "SALT", "FRESH"));
    EXPECT_THAT(WordsUpTo(kSpeedCorrectionWords, 2),
                ElementsAre("SPEEDCOR", "NOSPEEDCOR", "BOWSPEEDCOR", "SPEEDCOR"));
    EXPECT_THAT(WordsUpTo(kSwellCorrectionWords, 2),
                ElementsAre("SWELLCOR", "NOSWELLCOR", "BOWSWELLCOR", "SWELLCOR"));
    EXPECT_THAT(WordsUpTo(kRaoWords, 2), ElementsAre("MODAMP", "NORAO", "MOTION", "MODAMP"));
    EXPECT_THAT(WordsUpTo(kLoadWords, 2), ElementsAre("LOAD", "LOAD", "NOLOAD", "LOAD"));
    EXPECT_THAT(WordsUpTo(kHydroMethodWords, 1), ElementsAre("BOUND2D", "CONFORMAL", "BOUND2D"));
    EXPECT_THAT(WordsUpTo(kEndEffectWords, 4),
                ElementsAre("LATLONG", "NOHYEND", "SWAYYAW", "LAT", "LONG", "LATLONG"));
    EXPECT_THAT(WordsUpTo(kLowFrequencyWords, 1), ElementsAre("HVCOR", "NOHVCOR", "HVCOR"));
}

TEST(EngineWords, Spectra)
{
    EXPECT_THAT(WordsUpTo(kSpectrumWords, 9),
                ElementsAre("INPUTDIR", "REGULAR", "QUADRATIC", "BRETSCHNEIDER", "JONSWAP", "OCHIHUBBLE",
                            "INPUTUNI", "TENPARAMETER", "ODGPHINDCAST", "INPUTDIR", "INPUTDIR"));
}

TEST(EngineWords, FlagsOfShipAndPositions)
{
    EXPECT_THAT(WordsUpTo(kMetacentreWords, 1), ElementsAre("GMINPUT", "GMCOMP", "GMINPUT"));
    EXPECT_THAT(WordsUpTo(kRollRadiusWords, 2),
                ElementsAre("WETROLLRG", "WETROLLNF", "DRYROLLRG", "WETROLLRG"));
    EXPECT_THAT(WordsUpTo(kHullWords, 1), ElementsAre("BEAMDRAFT", "OFFSETS", "BEAMDRAFT"));
    EXPECT_THAT(WordsUpTo(kTrimWords, 2), ElementsAre("DISP", "DRAFT", "DISP", "DISP"));
    EXPECT_THAT(WordsUpTo(kSlamWords, 5),
                ElementsAre("EMERGE", "NOSLAM", "SLAMFORM", "SLAMOFFSET", "SLAMWEDGE", "DECKWET", "EMERGE"));
    EXPECT_THAT(WordsUpTo(kInterruptionWords, 1), ElementsAre("MII", "NOMII", "MII"));
    EXPECT_THAT(WordsUpTo(kStabilizerWords, 2), ElementsAre("UTUBETANK", "NOSTAB", "FIN", "UTUBETANK"));
}

TEST(EngineWords, AFlagIsComparedAsItsTextWithoutDecimals)
{
    EXPECT_STREQ(kSpectrumWords.Of(0.5F), "REGULAR");
    EXPECT_STREQ(kSpectrumWords.Of(2.6F), "JONSWAP");
    EXPECT_STREQ(kSpectrumWords.Of(-0.3F), "INPUTDIR") << "its text is \"-0\"";
}

TEST(EngineWords, HostileFlagsHaveTheOtherWord)
{
    for (const float flag : {1e30F, -5.0F, 10.0F, std::numeric_limits<float>::quiet_NaN(),
                             std::numeric_limits<float>::infinity()})
    {
        EXPECT_STREQ(kSpectrumWords.Of(flag), "INPUTDIR");
    }
}
