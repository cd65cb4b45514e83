#include "tests/core/results/report/SummaryText.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

namespace
{
constexpr const char* kFrame =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING=8 border="0" bordercolor="#CBD3E1" HSPACE=5 width = "80%">)";
constexpr const char* kEnd = "</td></tr></TABLE><BR>";

/// Two seaways of a spectrum, in feet, the values of each seaway counted up.
struct CSeaTest : CTestProject
{
    explicit CSeaTest(int spectrum)
    {
        Project.SPECTRUM.Set(static_cast<float>(spectrum));
        Project.NSEAWAY.Set(2);
    }

    static void Set(CParamArray& field, float first)
    {
        field.Set(0, first);
        field.Set(1, first + 10);
        field.unit = kUnitBritish;
    }
    static void Set(CTenFloats& values, float first)
    {
        values[0] = first;
        values[1] = first + 10;
    }

    std::vector<std::string> Block() const { return SummaryBlock(Project, "<U>Seaway Spectrum</U>"); }
};
} // namespace

TEST(SummaryEnvironment, TheMarkOfTheSpeedCountIsClosedOnTheNextLine)
{
    CTestProject test;
    test.Project.NSPEED.Set(2);
    test.Project.SPDKNOT.Set(0, 5);
    test.Project.SPDKNOT.Set(1, 7.5F);
    EXPECT_THAT(SummaryText(test.Project),
                HasSubstr("\n&nbsp&nbsp&nbsp Number of Ship Speeds:&nbsp&nbsp&nbsp <I>2.00<BR>\n</I>\n"
                          "&nbsp&nbsp&nbsp Ship Speeds:&nbsp&nbsp <I>5.00 &nbsp&nbsp7.50</I><BR><BR>\n"));
    test.Project.NSPEED.changed = 1;
    EXPECT_THAT(SummaryText(test.Project), HasSubstr(" <B>2.00<BR>\n</B>\n"));
}

TEST(SummaryEnvironment, WithoutSpeedsTheirLineIsEmptyAndTheCountNotAvailable)
{
    CTestProject test;
    EXPECT_THAT(SummaryText(test.Project),
                HasSubstr("\n&nbsp&nbsp&nbsp Number of Ship Speeds:&nbsp&nbsp&nbsp <I>N/A<BR>\n</I>\n"
                          "&nbsp&nbsp&nbsp Ship Speeds:&nbsp&nbsp <I></I><BR><BR>\n"));
}

TEST(SummaryEnvironment, SpeedsStandInTheUnitOfTheirFlag)
{
    CTestProject test;
    EXPECT_EQ(SummaryLine(test.Project, "<U>Vessel Speed</U>"), "<U>Vessel Speed</U> (Knots): <BR>");
    test.Project.SPDKNOT.unit = 1;
    EXPECT_EQ(SummaryLine(test.Project, "<U>Vessel Speed</U>"), "<U>Vessel Speed</U> (m/sec): <BR>");
}

TEST(SummaryEnvironment, ALineOfSeaDirectionsEndsBeforeEachTenth)
{
    CTestProject test;
    test.Project.NSEADIR.Set(21);
    for (int k = 0; k < 21; ++k)
    {
        test.Project.SEADIR.Set(k, 5.0F * static_cast<float>(k));
    }
    const std::string text = SummaryText(test.Project);
    EXPECT_THAT(text, HasSubstr("degrees</I><BR>\n&nbsp&nbsp <I>0.0</I> &nbsp&nbsp\n"));
    EXPECT_THAT(text, HasSubstr("<I>45.0</I> &nbsp&nbsp\n<BR>\n&nbsp&nbsp <I>50.0</I> &nbsp&nbsp\n"));
    EXPECT_THAT(text,
                HasSubstr("<I>95.0</I> &nbsp&nbsp\n<BR>\n&nbsp&nbsp <I>100.0</I> &nbsp&nbsp\n<BR><BR>\n"));
}

TEST(SummaryEnvironment, TheSpeedCorrectionIsOneOfTheTwo)
{
    const char* bow = "&nbsp&nbsp&nbsp Bow Speed Correction:";
    const char* ship = "&nbsp&nbsp&nbsp Entire Ship Correction:";
    CTestProject test;
    test.Project.SPEEDCOR.Set(0);
    EXPECT_THAT(SummaryLine(test.Project, bow), HasSubstr(" &nbsp&nbsp&nbsp <I>No</I> <BR>"));
    EXPECT_THAT(SummaryLine(test.Project, ship), HasSubstr(":&nbsp&nbsp&nbsp <I>No</I> <BR>"));
    test.Project.SPEEDCOR.Set(1);
    EXPECT_THAT(SummaryLine(test.Project, bow), HasSubstr("<I>Yes</I>"));
    EXPECT_THAT(SummaryLine(test.Project, ship), HasSubstr("<I>No</I>"));
    test.Project.SPEEDCOR.Set(2);
    test.Project.SPEEDCOR.changed = 1;
    EXPECT_THAT(SummaryLine(test.Project, bow), HasSubstr("<B>No</B>"));
    EXPECT_THAT(SummaryLine(test.Project, ship), HasSubstr("<B>Yes</B>"));
}

TEST(SummaryEnvironment, TheSwellCorrectionHasThreeAnswers)
{
    CTestProject test;
    for (const auto& [option, answer] :
         {std::pair(0, "<I>No</I>"), std::pair(1, "<I>Yes</I>"), std::pair(2, "<I>Entire Ship</I>")})
    {
        test.Project.SWELLCOR.Set(static_cast<float>(option));
        EXPECT_THAT(SummaryLine(test.Project, "&nbsp&nbsp&nbsp Bow Swell-up Correction:"), HasSubstr(answer));
    }
}

TEST(SummaryEnvironment, ThePrintOutsFollowTheRaoOption)
{
    const char* response = "&nbsp&nbsp&nbsp Regular Response Print-out:";
    const char* damping = "&nbsp&nbsp&nbsp Roll Damping Print-out:";
    const std::string gap = "&nbsp&nbsp&nbsp ";
    CTestProject test;
    test.Project.OUTRAO.Set(0);
    EXPECT_EQ(SummaryLine(test.Project, response), response + gap + "<I> &nbsp&nbsp No</I> <BR>");
    EXPECT_EQ(SummaryLine(test.Project, damping), damping + gap + "<I> &nbsp&nbsp No</I> <BR>");
    test.Project.OUTRAO.Set(1);
    EXPECT_EQ(SummaryLine(test.Project, response), response + gap + "<I> &nbsp&nbsp Yes</I> <BR>");
    EXPECT_EQ(SummaryLine(test.Project, damping), damping + gap + "<I> &nbsp&nbsp No</I> <BR>");
    test.Project.OUTRAO.Set(2);
    EXPECT_EQ(SummaryLine(test.Project, damping), damping + gap + "<I> &nbsp&nbsp Yes</I> <BR>");
}

TEST(SummaryEnvironment, AddedMassIsStoredFromFourOn)
{
    const char* line = "&nbsp&nbsp&nbsp Added Mass and Damping Stored:";
    CTestProject test;
    test.Project.ADDMASS.Set(3);
    EXPECT_THAT(SummaryLine(test.Project, line),
                HasSubstr(" <I>No</I> <BR> &nbsp&nbsp&nbsp Filename: <I>N/A</I><BR>"));
    test.Project.ADDMASS.Set(4);
    EXPECT_THAT(SummaryLine(test.Project, line),
                HasSubstr(" <I>Yes</I> <BR> &nbsp&nbsp&nbsp Filename: <I>Ondara7_DimHyCo.csv</I><BR>"));
}

TEST(SummaryEnvironment, FrequenciesHaveFourDecimals)
{
    CTestProject test;
    test.Project.WVFREQMIN.changed = 1;
    test.Project.DWVFREQ.Set(-1);
    EXPECT_EQ(SummaryLine(test.Project, "&nbsp&nbsp&nbsp Minimum:"),
              "&nbsp&nbsp&nbsp Minimum:&nbsp&nbsp <B>0.2000</B> <BR>");
    EXPECT_EQ(SummaryLine(test.Project, "&nbsp&nbsp&nbsp Increment:"),
              "&nbsp&nbsp&nbsp Increment:&nbsp&nbsp <I>N/A</I> <BR><BR>");
}

TEST(SummarySeaways, RegularWavesHaveASlopeAndNoSwell)
{
    CSeaTest test(0);
    test.Project.WAVESTEEP.Set(0.0175F);
    EXPECT_THAT(test.Block(), ElementsAre("<U>Seaway Spectrum</U>: &nbsp&nbsp&nbsp <I>Regular Waves</I>",
                                          "&nbsp&nbsp&nbsp Wave Slope:  <I>0.0175</I> <BR>",
                                          "<B>Swell Input Data: N/A </B><BR>", kEnd));
}

TEST(SummarySeaways, WithoutASpectrumItsNameIsEmpty)
{
    for (const int spectrum : {-1, 9})
    {
        EXPECT_THAT(CSeaTest(spectrum).Block(),
                    ElementsAre("<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I></I><BR>", kEnd));
    }
}

TEST(SummarySeaways, QuadraticSeawaysHaveHeightAndPeriod)
{
    CSeaTest test(1);
    CSeaTest::Set(test.Project.HSW, 2);
    CSeaTest::Set(test.Project.TSW, 7);
    test.Project.TSW.changed = 1;
    EXPECT_THAT(
        test.Block(),
        ElementsAre(
            "<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>Quadratic Regression</I><BR>", kFrame,
            "<TR><TD>Seaway</TD><TD>Significant Wave Height (feet)</TD><TD>Wave Period (sec)</TD></TR>",
            "<TR><TD>1</TD><TD><I>2.00</I></TD><TD><B>7.00</B></TD></TR>",
            "<TR><TD>2</TD><TD><I>12.00</I></TD><TD><B>17.00</B></TD></TR>", "</TABLE>", kEnd));
}

TEST(SummarySeaways, BretschneiderSeawaysHaveValuesOfTheirOwn)
{
    CSeaTest test(2);
    CSeaTest::Set(test.Project.BretHs, 3);
    test.Project.NSEAWAY.Set(1);
    EXPECT_THAT(
        test.Block(),
        ElementsAre(
            "<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>Bretschneider</I><BR>", kFrame,
            "<TR><TD>Seaway</TD><TD>Significant Wave Height (meters)</TD><TD>Wave Period (sec)</TD></TR>",
            "<TR><TD>1</TD><TD><I>3.00</I></TD><TD><I>N/A</I></TD></TR>", "</TABLE>", kEnd));
}

TEST(SummarySeaways, TheJonswapHeaderHasAMisplacedTag)
{
    CSeaTest test(3);
    CSeaTest::Set(test.Project.JonswapHs, 2);
    CSeaTest::Set(test.Project.JonswapTp, 7);
    test.Project.JonswapUnit = kUnitBritish;
    test.Project.PEAKENSW.changed = 1;
    EXPECT_THAT(
        test.Block(),
        ElementsAre("<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>JONSWAP</I><BR>", kFrame,
                    "<TR><TD>Seaway</TD><TD>Significant Wave Height (feet)</TD><TD>Wave Period "
                    "(sec)</TD><TR>Peak Enhancement Factor</TD></TR>",
                    "<TR><TD>1</TD><TD><I>2.00</I></TD><TD><I>7.00</I></TD><TD><B>3.30</B></TD></TR>",
                    "<TR><TD>2</TD><TD><I>12.00</I></TD><TD><I>17.00</I></TD><TD><B>3.30</B></TD></TR>",
                    "</TABLE>", kEnd));
}

TEST(SummarySeaways, OchiHubbleShowsTheSecondSystemAsWavesAndTheFirstAsSwell)
{
    CSeaTest test(4);
    CProjectData& p = test.Project;
    p.NSEAWAY.Set(1);
    CSeaTest::Set(p.OchiHs1, 1);
    CSeaTest::Set(p.OchiTp1, 2);
    CSeaTest::Set(p.OchiLam1, 3);
    CSeaTest::Set(p.OchiHs2, 4);
    CSeaTest::Set(p.OchiTp2, 5);
    CSeaTest::Set(p.OchiLam2, 6);
    EXPECT_THAT(
        test.Block(),
        ElementsAre(
            "<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>Ochi & Hubble</I><BR>", kFrame,
            "<TR><TD> Seaway </TD><TD> Significant Wave Height (meters) </TD> <TD> Peak Frequency (rad/s) "
            "</TD> <TD> Spectral Shape Parameter</TD></TR>",
            R"(<TR><TD colspan="4"> <B>Wave Input Data:</B></TD></TR>)",
            "<TR><TD> 1 </TD><TD> <I>4.00</I> </TD><TD> <I>5.00</I> </TD><TD> <I>6.00</I></TD></TR>",
            R"(<TR><TD colspan="4"> <B>Swell Input Data:</B></TD></TR>)",
            "<TR><TD>  1 </TD><TD> <I>1.00</I> </TD><TD> <I>2.00</I> </TD><TD> <I>3.00</I> </TD></TR>",
            "</TABLE>", kEnd));
}

TEST(SummarySeaways, TenParametersHaveTwoMoreColumns)
{
    CSeaTest test(6);
    CProjectData& p = test.Project;
    p.NSEAWAY.Set(1);
    float first = 1;
    for (CParamArray* field : {&p.ZETA1, &p.OMEGA1, &p.LAMB1, &p.KAPA1, &p.EXPP1, &p.ZETA2, &p.OMEGA2,
                               &p.LAMB2, &p.KAPA2, &p.EXPP2})
    {
        CSeaTest::Set(*field, first++);
    }
    p.KAPA2.changed = 1;
    EXPECT_THAT(
        test.Block(),
        ElementsAre(
            "<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>Ten parameter directional</I><BR>", kFrame,
            "<TR><TD> Seaway </TD><TD> Significant Wave Height (feet) </TD> <TD> Peak Frequency (rad/s) "
            "</TD> <TD> Spectral Shape Parameter</TD> <TD> Mean Compass Direction (deg) </TD> <TD> "
            "Spreading Parameter</TD></TR>",
            R"(<TR><TD colspan="6"> <B>Wave Input Data:</B></TD></TR>)",
            "<TR><TD> 1</TD><TD><I>6.00</I></TD><TD><I>7.00</I></TD><TD><I>8.00</I></TD><TD><B>9.00</B>"
            "</TD><TD><I>10.00</I></TD></TR>",
            R"(<TR><TD colspan="6"> <B>Swell Input Data:</B></TD></TR>)",
            "<TR><TD> 1</TD><TD><I>1.00</I></TD><TD><I>2.00</I></TD><TD><I>3.00</I></TD><TD><I>4.00</I>"
            "</TD><TD><I>5.00</I></TD></TR>",
            "</TABLE>", kEnd));
}

TEST(SummarySeaways, EachKindOfFileClosesItsLastLineInItsOwnWay)
{
    CSeaTest measured(5);
    measured.Project.SpectrumFile = "buoy.txt";
    EXPECT_THAT(measured.Block(),
                ElementsAre("<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>Measured Uni-directional</I><BR>",
                            "External File Name: <I>buoy.txt</I><BR>",
                            "<B>Wave Input Data:</B> <I>N/A</B><BR><BR>", kEnd));
    CSeaTest hindcast(7);
    hindcast.Project.HindcastFile = "hindcast.txt";
    EXPECT_THAT(hindcast.Block(),
                ElementsAre("<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>ODGP Hindcast</I><BR>",
                            "External File Name: <I>hindcast.txt</I><BR>",
                            "<B>Wave Input Data:</B> <I>N/A</B><BR><BR>}", kEnd));
    CSeaTest directional(8);
    directional.Project.DirectionalFile = "empty";
    EXPECT_THAT(directional.Block(),
                ElementsAre("<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>Measured Directional</I><BR>",
                            "External File Name: <I>N/A</I><BR>",
                            "<B>Wave Input Data:</B> <I>N/A</I><BR><BR>", kEnd));
}

TEST(SummarySeaways, LongCrestedSeasSpreadByZeroDegrees)
{
    CTestProject test;
    const char* line = "<U>Short Crested Sea Calculation</U>";
    test.Project.SPREADANG.Set(60);
    EXPECT_EQ(SummaryLine(test.Project, line),
              "<U>Short Crested Sea Calculation</U>:&nbsp&nbsp&nbsp <I>No</I> &nbsp&nbsp&nbsp Spreading "
              "Angle:&nbsp&nbsp&nbsp <I>0</I> degrees<BR>");
    test.Project.SpreadOption = 1;
    test.Project.SPREADANG.changed = 1;
    EXPECT_THAT(SummaryLine(test.Project, line),
                AllOf(HasSubstr("<I>Yes</I>"), HasSubstr("<B>60</B> degrees<BR>")));
}
