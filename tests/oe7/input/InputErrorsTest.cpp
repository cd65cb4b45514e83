#include "tests/oe7/support/CInputText.h"

#include <gmock/gmock.h>

namespace oe7
{
namespace
{
using testing::StartsWith;

/// A line of the barge's file in another wording, and what the engine says.
struct CWrongLine
{
    int Line;
    const char* Text;
    const char* Error;
};

class WrongLine : public testing::TestWithParam<CWrongLine>
{
};

TEST_P(WrongLine, IsToldWithItsNumberAndWhatIsWrong)
{
    const CWrongLine& wrong = GetParam();
    EXPECT_EQ(CInputText().Set(wrong.Line, wrong.Text).Error(),
              "line " + std::to_string(wrong.Line) + ": " + wrong.Error);
}

INSTANTIATE_TEST_SUITE_P(
    Controls, WrongLine,
    testing::Values(
        CWrongLine{2, "", "the input system is missing"},
        CWrongLine{2, "METRIK METRIC SALT", "the input system is \"METRIK\", it can be BRITISH, METRIC"},
        CWrongLine{2, "METRIC METRIC", "the water is missing"},
        CWrongLine{2, "METRIC METRIC SWEET", "the water is \"SWEET\", it can be SALT, FRESH"},
        CWrongLine{2, "METRIC METRIC SALT NOSPEEDCOR NOSWELLCOR MODAMP", "the last word, NOPPR, is missing"},
        CWrongLine{4, "LOADS RAW", "the choice of loads is \"LOADS\", it can be LOAD, NOLOAD"},
        CWrongLine{4, "LOAD", "the second word, RAW, is missing"},
        CWrongLine{5, "0.3 1.5", "the step of the wave frequencies is missing"},
        CWrongLine{5, "0.3 1.5 0", "the step of the wave frequencies is \"0\", which is not more than 0"},
        CWrongLine{5, "0 1.5 0.1", "the lowest wave frequency is \"0\", which is not more than 0"},
        CWrongLine{5, "1.5 0.3 0.1", "the highest wave frequency is less than the lowest"},
        CWrongLine{5, "0.3 1e3 0.1", "wave frequencies must lie between 0.001 and 100 rad/s"},
        CWrongLine{5, "1e-9 1 0.1", "wave frequencies must lie between 0.001 and 100 rad/s"},
        CWrongLine{6, "NOSAVEHY FRANK LATLONG NOHVCOR",
                   "the section method is \"FRANK\", it can be CONFORMAL, BOUND2D"},
        CWrongLine{6, "NOSAVEHY CONFORMAL NONE NOHVCOR",
                   "the choice of end terms is \"NONE\", it can be NOHYEND, SWAYYAW, LAT, LONG, LATLONG"},
        CWrongLine{7, "0 -1 0", "the highest encounter frequency is \"-1\", which is less than 0"},
        CWrongLine{7, "0.1 3 0",
                   "encounter frequencies need a highest above the lowest and a step, or three zeros"},
        CWrongLine{7, "3 0.1 0.1",
                   "encounter frequencies need a highest above the lowest and a step, or three zeros"}));

INSTANTIATE_TEST_SUITE_P(
    Sea, WrongLine,
    testing::Values(
        CWrongLine{8, "PIERSON",
                   "the spectrum is \"PIERSON\", it can be REGULAR, QUADRATIC, BRETSCHNEIDER, JONSWAP, "
                   "OCHIHUBBLE, INPUTUNI, TENPARAMETER, ODGPHINDCAST, INPUTDIR"},
        CWrongLine{9, "361 0", "the number of sea directions is \"361\", which is more than 360"},
        CWrongLine{9, "3.5 0", "the number of sea directions is \"3.5\", which is no whole number"},
        CWrongLine{9, "3 200", "the spreading angle is more than 180 degrees"},
        CWrongLine{10, "90 135", "a sea direction is missing"},
        CWrongLine{10, "90 135 180x", "a sea direction is \"180x\", which is no number"},
        CWrongLine{10, "90 135 1000", "a sea direction is beyond a full turn"},
        CWrongLine{11, "101", "the number of seaways is \"101\", which is more than 100"},
        CWrongLine{12, "3", "the wave period is missing"},
        CWrongLine{12, "-1 10", "the significant wave height is \"-1\", which is less than 0"},
        CWrongLine{12, "3 0", "the wave period is \"0\", which is not more than 0"}));

INSTANTIATE_TEST_SUITE_P(
    Ship, WrongLine,
    testing::Values(
        CWrongLine{13, "101 0", "the number of speeds is \"101\", which is more than 100"},
        CWrongLine{13, "2 0", "a speed is missing"},
        CWrongLine{13, "2 0 -8", "a speed is \"-8\", which is less than 0"},
        CWrongLine{14, "0 4 28", "the length between perpendiculars must be more than 0"},
        CWrongLine{14, "-100 4 28", "the length between perpendiculars must be more than 0"},
        CWrongLine{14, "100 nan 28", "KG is \"nan\", which is no number"},
        CWrongLine{14, "100 inf 28", "KG is \"inf\", which is no number"},
        CWrongLine{14, "100 1e400 28", "KG is \"1e400\", which is too large"},
        CWrongLine{14, "100 1e10 28", "KG is \"1e10\", which is too large"},
        CWrongLine{14, "100 0x10 28", "KG is \"0x10\", which is no number"},
        CWrongLine{14, "100 4,5 28", "KG is \"4,5\", which is no number"},
        CWrongLine{15, "GM DRYROLLRG", "the choice of GM is \"GM\", it can be GMCOMP, GMINPUT"},
        CWrongLine{16, "", "the roll radius of gyration is missing"},
        CWrongLine{17, "POINTS", "the kind of hull data is \"POINTS\", it can be OFFSETS, BEAMDRAFT"},
        CWrongLine{18, "", "the number of stations is missing"},
        CWrongLine{18, "1 1 1 1", "the number of stations is \"1\", which is less than 2"},
        CWrongLine{18, "102 102 1 1", "the number of stations is \"102\", which is more than 101"},
        CWrongLine{18, "999999999 5 1 1", "the number of stations is \"999999999\", which is more than 101"},
        CWrongLine{18, "5 5 0 1", "the beam factor is \"0\", which is not more than 0"},
        CWrongLine{18, "5 5 1 -1", "the draft factor is \"-1\", which is not more than 0"},
        CWrongLine{18, "5 5 1", "the draft factor is missing"},
        CWrongLine{23, "2", "here should stand the number of station 1"},
        CWrongLine{24, "-1", "the number of points is \"-1\", which is less than 0"},
        CWrongLine{24, "201", "the number of points is \"201\", which is more than 100"},
        CWrongLine{25, "0 5 10 10", "a half breadth is missing"},
        CWrongLine{25, "0 -5 10 10 10", "a half breadth is \"-5\", which is less than 0"},
        CWrongLine{26, "0 0 0 4.5", "a height is missing"},
        CWrongLine{39, "TRIM", "the kind of loading condition is \"TRIM\", it can be DRAFT, DISP"},
        CWrongLine{40, "5", "draft and trim are missing"},
        CWrongLine{40, "5 0 0", "draft and trim are missing"}));

INSTANTIATE_TEST_SUITE_P(
    MassesAndPositions, WrongLine,
    testing::Values(
        CWrongLine{41, "102", "the number of load stations is \"102\", which is more than 101"},
        CWrongLine{42, "1 2", "a load station is missing"},
        CWrongLine{46, "0 0 0 0", "the pitch radius of the bow overhang is missing"},
        CWrongLine{47, "0 0", "the roll radius of the stern overhang is missing"},
        CWrongLine{48, "101 20 0.01", "the number of positions is \"101\", which is more than 100"},
        CWrongLine{48, "1 20", "the exceedence parameter is missing"},
        CWrongLine{48, "1 20 1.5", "the exceedence parameter is more than 1"},
        CWrongLine{48, "1 -20 0.01", "the duration in hours is \"-20\", which is less than 0"},
        CWrongLine{49, "", "the motion word of the position is missing"},
        CWrongLine{49, "MII NOMSI",
                   "the motion word of the position is \"MII\", it can be NOSLAM, SLAMFORM, SLAMOFFSET, "
                   "SLAMWEDGE, DECKWET, EMERGE"},
        CWrongLine{49, "Corner DECKWET MII MSI",
                   "the choice of sickness is \"MSI\", it can be NOMSI, MSIBV, MSICOLWELL"},
        CWrongLine{50, "0.5 8 9", "the deck height of the position is missing"},
        CWrongLine{51, "0.25 0.17", "the time of the interruptions is missing"},
        CWrongLine{52, "", "the exposure is missing"}));

INSTANTIATE_TEST_SUITE_P(
    Appendages, WrongLine,
    testing::Values(CWrongLine{53, "21", "the number of bilge keel pairs is \"21\", which is more than 20"},
                    CWrongLine{54, "0 0", "the length of the skeg is missing"},
                    CWrongLine{55, "0 0 0 0 0 0 0 0", "the dihedral angle is missing"},
                    CWrongLine{56, "", "the choice of a rudder gain file is missing"},
                    CWrongLine{57, "0 0 0 0 0 0", "the high cut-off of the rudder is missing"},
                    CWrongLine{58, "0 0", "a yaw gain of the rudder is missing"},
                    CWrongLine{59, "0 0 0", "the place of the lateral gains is missing"},
                    CWrongLine{60, "21", "the number of foil pairs is \"21\", which is more than 20"},
                    CWrongLine{61, "TANK", "the stabilizer is \"TANK\", it can be NOSTAB, FIN, UTUBETANK"}));

TEST(InputError, OfALongWordQuotesItsBeginning)
{
    EXPECT_EQ(CInputText().Set(16, std::string(1000, '7') + "!").Error(),
              "line 16: the roll radius of gyration is \"" + std::string(40, '7') +
                  "...\", which is no number");
}

TEST(InputError, OfALoadingThatWasLeftOutNamesDisplacementAndCentre)
{
    EXPECT_EQ(CInputText().Set(39, "DISP").Erase(40, 40).Error(),
              "line 40: displacement and LCG are missing");
    EXPECT_EQ(CInputText().Set(4, "NOLOAD RAW").Set(39, "DISP").Erase(40, 47).Error(),
              "line 40: displacement and LCG are missing");
}

TEST(InputError, OfACutFileNamesWhatIsMissing)
{
    const int lines = 61;
    for (int last = 0; last < lines; ++last)
    {
        CInputText cut;
        cut.Erase(last + 1, lines);
        EXPECT_THAT(cut.Error(), testing::EndsWith(last == 39  ? "draft and trim are missing"
                                                   : last == 2 ? "ends in .bin"
                                                               : "is missing"))
            << "cut behind line " << last;
    }
}

TEST(InputError, OfMassesThatEndEarlyStandsAtTheEndOfTheFile)
{
    EXPECT_EQ(CInputText().Set(43, "1281.25").Erase(44, 61).Error(),
              "line 43: the mass of a station is missing");
}

TEST(InputError, OfCountsThatAreTooManyTogetherIsToldBeforeMemoryIsSpent)
{
    std::string speeds = "100";
    std::string directions;
    for (int k = 0; k < 360; ++k)
    {
        speeds += k < 100 ? " 10" : "";
        directions += " " + std::to_string(k);
    }
    // Too many waves; too much memory for the waves of one speed; too many summands of short-crested seas.
    EXPECT_THAT(CInputText().Set(13, speeds).Set(10, directions).Set(9, "360 0").Set(5, "0.2 20 0.4").Error(),
                StartsWith("the run is too large"));
    EXPECT_THAT(CInputText().Set(10, directions).Set(9, "360 0").Set(5, "0.001 99 1.65").Error(),
                StartsWith("the run is too large"));
    EXPECT_THAT(CInputText().Set(13, speeds).Set(10, directions).Set(9, "360 90").Error(),
                StartsWith("the run is too large"));
}

TEST(InputFile, TakesTheLargestRunOfTheFrontEnd)
{
    std::string directions;
    for (int k = 0; k < 24; ++k)
    {
        directions += " " + std::to_string(15 * k);
    }
    CInputText text;
    text.Set(13, "10 0 2 4 6 8 10 12 14 16 18").Set(10, directions).Set(9, "24 90").Set(5, "0.2 6.1 0.1");
    EXPECT_EQ(text.Read().FrequencyCount, 60);
}

} // namespace
} // namespace oe7
