#include "tests/core/results/report/CReportCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace
{
std::string Environment(const CReportCase& sea)
{
    return sea.Section(EnvironmentSection);
}
} // namespace

TEST(Environment, WholeSectionOfAJonswapSea)
{
    CReportCase sea;
    sea.SetSpectrum(kSpectrumJonswap);
    sea.Results.Head.SpreadAngle = 90;
    sea.Results.Input->PEAKENSW.Set(1, 2.5F);
    ExpectGolden(Environment(sea), "report/EnvironmentJonswap.html");
}

TEST(Environment, WholeSectionOfTwoWaveSystems)
{
    CReportCase sea;
    sea.SetSpectrum(kSpectrumOchiHubble);
    sea.SetSystems(1, 0);
    CProjectData& input = *sea.Results.Input;
    input.OchiHs1 = {1, 2};
    input.OchiTp1 = {0.4F, 0.5F};
    input.OchiLam1 = {3, 4};
    input.OchiHs2 = {10, 20};
    input.OchiTp2 = {0.6F, 0.7F};
    input.OchiLam2 = {5, 6};
    ExpectGolden(Environment(sea), "report/EnvironmentOchiHubble.html");
}

TEST(Environment, WholeSectionOfTenParameters)
{
    CReportCase sea;
    sea.SetSpectrum(kSpectrumTenParameter);
    CProjectData& input = *sea.Results.Input;
    for (int seaway = 0; seaway < 2; ++seaway)
    {
        const auto step = static_cast<float>(seaway);
        input.ZETA1.Set(seaway, 1 + step);
        input.OMEGA1.Set(seaway, 0.4F + step);
        input.LAMB1.Set(seaway, 3 + step);
        input.KAPA1.Set(seaway, 45 + step);
        input.EXPP1.Set(seaway, 6 + step);
        input.ZETA2.Set(seaway, 11 + step);
        input.OMEGA2.Set(seaway, 10.4F + step);
        input.LAMB2.Set(seaway, 13 + step);
        input.KAPA2.Set(seaway, 145 + step);
        input.EXPP2.Set(seaway, 16 + step);
    }
    ExpectGolden(Environment(sea), "report/EnvironmentTenParameter.html");
}

TEST(Environment, DefaultWaveFrequenciesAreToldByExactEquality)
{
    CReportCase sea;
    EXPECT_THAT(Environment(sea),
                HasSubstr("Default Wave Frequencies (rad/sec):<BR>\n"
                          "&nbsp&nbsp&nbsp Minimum:&nbsp&nbsp&nbsp <B>0.20</B><BR>\n"
                          "&nbsp&nbsp&nbsp Maximum:&nbsp&nbsp&nbsp <B>2.00</B><BR>\n"
                          "&nbsp&nbsp&nbsp Increment:&nbsp&nbsp&nbsp <B>0.10</B><BR><BR>\n"));
    sea.Results.Input->WVFREQMIN.Set(0.20001F);
    EXPECT_THAT(Environment(sea), HasSubstr("User Specified Wave Frequencies (rad/sec):<BR>\n"
                                            "&nbsp&nbsp&nbsp Minimum:&nbsp&nbsp&nbsp <B>0.20</B><BR>\n"));
}

TEST(Environment, EncounterFrequenciesAreDefaultWhenAllAreZero)
{
    CReportCase sea;
    EXPECT_THAT(Environment(sea), HasSubstr("Default Encounter Frequencies (rad/sec):<BR>\n"
                                            "(Based On Ship Length)<BR>\n"
                                            "&nbsp&nbsp&nbsp Minimum:&nbsp&nbsp&nbsp <B>0.00</B><BR>\n"));
    sea.Results.Calculated.EncounterMaximum = 1.5F;
    EXPECT_THAT(Environment(sea), HasSubstr("User Specified Encounter Frequencies (rad/sec):<BR>\n"
                                            "&nbsp&nbsp&nbsp Minimum:&nbsp&nbsp&nbsp <B>0.00</B><BR>\n"
                                            "&nbsp&nbsp&nbsp Maximum:&nbsp&nbsp&nbsp <B>1.50</B><BR>\n"));
}

TEST(Environment, RegularSeasHaveASteepnessAndNoCalculatedValues)
{
    CReportCase sea;
    sea.SetSpectrum(kSpectrumRegular);
    const std::string text = Environment(sea);
    EXPECT_THAT(text, HasSubstr("Seaway Spectrum:&nbsp&nbsp&nbsp <B>REGULAR</B>\n<BR>\n"
                                "&nbsp&nbsp&nbsp Wave Steepness:&nbsp&nbsp&nbsp 0.02\n<BR>\n"
                                "</td></tr></TABLE><BR>\n"));
    EXPECT_THAT(text, Not(HasSubstr("Calculated Values")));
}

TEST(Environment, MeasuredSpectraNameTheirFileBehindAnUnbalancedTag)
{
    CReportCase sea;
    sea.Results.Input->SpectrumFile = "uni.dat";
    sea.Results.Input->HindcastFile = "odgp.dat";
    sea.Results.Input->DirectionalFile = "dir.dat";
    sea.SetSpectrum(kSpectrumMeasuredUnidirectional);
    EXPECT_THAT(Environment(sea),
                HasSubstr("Seaway Spectrum:&nbsp&nbsp&nbsp <B>Measured Uni-Directional</B>\n<BR>\n"
                          "External File:&nbsp&nbsp&nbsp <I>uni.dat</><BR>\n</td></tr></TABLE><BR>\n"));
    sea.SetSpectrum(kSpectrumHindcast);
    EXPECT_THAT(Environment(sea), HasSubstr("External File:&nbsp&nbsp&nbsp <I>odgp.dat</><BR>\n"));
    sea.SetSpectrum(kSpectrumMeasuredDirectional);
    EXPECT_THAT(Environment(sea), HasSubstr("External File:&nbsp&nbsp&nbsp <I>dir.dat</><BR>\n"));
    sea.SetSpectrum(kSpectrumBretschneider);
    EXPECT_THAT(Environment(sea), Not(HasSubstr("External File")));
}

TEST(Environment, DirectionsStandTenOnALineAndAlsoAbove180)
{
    CReportCase sea;
    std::vector<float> headings;
    for (int k = 0; k < 36; ++k)
    {
        headings.push_back(10 * static_cast<float>(k));
    }
    sea.SetHeadings(headings);
    const std::string text = Environment(sea);
    for (const char* first : {"100.0", "200.0", "300.0"})
    {
        EXPECT_THAT(text, HasSubstr(std::string("&nbsp&nbsp&nbsp\n<BR>\n<I>") + first));
    }
    EXPECT_THAT(text,
                HasSubstr("Sea Directions: (degrees)<BR><BR>\n<I>0.0</I> &nbsp&nbsp&nbsp\n<I>10.0</I>"));
    EXPECT_THAT(text, HasSubstr("<I>350.0</I> &nbsp&nbsp&nbsp\n<BR><BR>\nUni-directional Seas:\n"));
    EXPECT_EQ(CountOf(Between(text, "(degrees)", "Uni-dir"), "<BR>\n"), 5); // with those around the list
}

TEST(Environment, SpreadingStandsInEverySeaThatIsNotDirectional)
{
    CReportCase sea;
    const std::string angle = "&nbsp&nbsp&nbsp &nbsp&nbsp&nbsp Spreading angle:&nbsp&nbsp&nbsp <B>";
    EXPECT_THAT(Environment(sea), HasSubstr("<BR><BR>\nUni-directional Seas:\n" + angle + "0.0</B>\n"));
    sea.Results.Head.SpreadAngle = 45;
    EXPECT_THAT(Environment(sea), HasSubstr("<BR><BR>\nShort-Crested Seas:\n" + angle + "45.0</B>\n"));
    for (const int kind : {kSpectrumTenParameter, kSpectrumHindcast, kSpectrumMeasuredDirectional})
    {
        sea.SetSpectrum(kind);
        EXPECT_THAT(Environment(sea), Not(HasSubstr("Spreading angle"))) << kind;
    }
}

TEST(Environment, SeaStateFollowsTheHeightInMetres)
{
    CReportCase sea;
    sea.Results.Body.WaveHeights = {8.0F, 8.3F};
    EXPECT_THAT(Environment(sea),
                HasSubstr("<TR><TD><I>8.00</I></TD> <TD><I>8.00</I></TD> <TD><I>7</I></TD> </TR>\n"));
    sea.SetSystems(0, 0); // 2.44 and 2.53 metres
    const std::string text = Environment(sea);
    EXPECT_THAT(text, HasSubstr("<TR><TD><I>8.00</I></TD> <TD><I>8.00</I></TD> <TD><I>4</I></TD> </TR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR><TD><I>8.30</I></TD> <TD><I>10.50</I></TD> <TD><I>5</I></TD> </TR>\n"));
    EXPECT_THAT(text, HasSubstr("Significant Wave Height (ft) "));
}

TEST(Environment, WithoutSeawaysThereAreNoCalculatedValues)
{
    CReportCase sea;
    sea.Results.Body.WaveHeights.clear();
    sea.Results.Body.WavePeriods.clear();
    sea.Results.Body.SeawayCount = 0;
    EXPECT_THAT(Environment(sea), Not(HasSubstr("Calculated Values")));
}

TEST(Environment, UserInputBeginsAPageThatTheControlParametersShare)
{
    CReportCase sea;
    EXPECT_EQ(CountOf(Environment(sea), kPageBreakLine), 0);
    sea.SetSpectrum(kSpectrumOchiHubble);
    const std::string text = Environment(sea);
    EXPECT_EQ(CountOf(text, kPageBreakLine), 1);
    EXPECT_THAT(text, HasSubstr(std::string(kPageBreakLine) +
                                "<CENTER><B>ENVIRONMENTAL SUMMARY</B></CENTER>\n<CENTER><I>"));
    EXPECT_GT(text.find("User Defined Control Parameters"), text.find("<U>User Input</U><BR>"));
}

TEST(Environment, CorrectionsAndMethodAreNamed)
{
    CReportCase sea;
    CProjectData& input = *sea.Results.Input;
    input.SPEEDCOR.Set(0);
    input.SWELLCOR.Set(1);
    std::string text = Environment(sea);
    EXPECT_THAT(text, HasSubstr("Motions Computed for:&nbsp&nbsp&nbsp <B>SALT WATER</B><BR>\n"));
    EXPECT_THAT(text, HasSubstr("Method Used:&nbsp&nbsp&nbsp <B>BOUND2D</B><BR><BR>\n"));
    EXPECT_THAT(text, HasSubstr("Speed Correction:&nbsp&nbsp&nbsp <B></B><BR>\n"));
    EXPECT_THAT(text, HasSubstr("Swell Correction:&nbsp&nbsp&nbsp <B>BOW SWELL CORRECTION</B><BR>\n"));
    input.WATERDEN.Set(1);
    input.HYMETHOD.Set(1);
    input.SPEEDCOR.Set(2);
    input.SWELLCOR.Set(2);
    text = Environment(sea);
    EXPECT_THAT(text, HasSubstr("<B>FRESH WATER</B>"));
    EXPECT_THAT(text, HasSubstr("<B>CONFORMAL MAPPING</B>"));
    EXPECT_THAT(text, HasSubstr("<B>ENTIRE SHIP SPEED CORRECTION</B>"));
    EXPECT_THAT(text, HasSubstr("<B>ENTIRE SHIP SWELL CORRECTION</B>"));
}

TEST(Environment, UnknownSpectrumHasNoName)
{
    CReportCase sea;
    sea.SetSpectrum(kSpectrumUnknown);
    EXPECT_THAT(Environment(sea), HasSubstr("Seaway Spectrum:&nbsp&nbsp&nbsp <B></B>\n"));
}
