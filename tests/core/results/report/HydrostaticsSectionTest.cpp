#include "tests/core/results/report/CReportCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace
{
std::string Hydrostatics(const CReportCase& ship)
{
    return ship.Section(HydrostaticsSection);
}
} // namespace

TEST(Hydrostatics, WholeSectionWithPositionAndLoads)
{
    CReportCase ship;
    ship.SetRelativeMotion(1);
    ship.Results.Control.MsiKind[0] = 1;
    ExpectGolden(Hydrostatics(ship), "report/Hydrostatics.html");
}

TEST(Hydrostatics, WholeSectionInBritishUnitsFromTheStern)
{
    CReportCase ship;
    ship.SetSystems(1, 0);
    ship.Project.StationOrigin = 1647789135;
    ship.Results.Input->TRIMDEF.Set(1);
    ship.Results.Input->DISPUSER.Set(1000);
    ship.Results.Input->LCGPUSER.Set(50);
    ship.Results.Input->GMFLAG.Set(1);
    ExpectGolden(Hydrostatics(ship), "report/HydrostaticsBritish.html");
}

TEST(Hydrostatics, InputIsConvertedFromBritishToMetric)
{
    CReportCase ship;
    ship.SetSystems(0, 1);
    ship.Results.Input->DRAFTMID.Set(10);
    ship.Results.Input->TRIMST.Set(100);
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Midship Draft:</TD> <TD><B>3.05</B> meters</TD> <TD>Trim:</TD> "
                          "<TD><B>30.48</B> meters</TD> </TR>\n"));
    ship.Results.Input->TRIMDEF.Set(1);
    ship.Results.Input->DISPUSER.Set(1000);
    ship.Results.Input->LCGPUSER.Set(100);
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Displacement:</TD> <TD><B>1016.05</B> tonnes</TD> <TD>Distance to "
                          "LCG:</TD> <TD><B>30.48</B> meters</TD> </TR>\n"));
}

TEST(Hydrostatics, TrimDefinition2PrintsTheDisplacementRowWithoutValues)
{
    CReportCase ship;
    ship.Results.Input->TRIMDEF.Set(2);
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Displacement:</TD> <TD><B>0.00</B> tonnes</TD> <TD>Distance to LCG:</TD> "
                          "<TD><B>0.00</B> meters</TD> </TR>\n"));
}

TEST(Hydrostatics, WithoutTheMarkerThereIsNoCalculatedGM)
{
    CReportCase ship;
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Calculated Transverse GM:</TD> <TD><B>1.25</B> meters</TD> </TR>\n"));
    ship.Results.Trailer.CalculatedGM.reset();
    EXPECT_THAT(Hydrostatics(ship), Not(HasSubstr("Calculated Transverse GM")));
}

TEST(Hydrostatics, CalculatedGMIsNotConverted)
{
    CReportCase ship;
    ship.SetSystems(1, 0);
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Calculated Transverse GM:</TD> <TD><B>1.25</B> feet</TD> </TR>\n"));
}

TEST(Hydrostatics, InputGMIsShownOnlyWhereItWasGivenAndIsConverted)
{
    CReportCase ship;
    ship.SetSystems(1, 0);
    ship.Results.Input->GMFLAG.Set(2); // computed
    EXPECT_THAT(Hydrostatics(ship), Not(HasSubstr("Input Transverse GM")));
    ship.Results.Input->GMFLAG.Set(1);
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Input Transverse GM:</TD> <TD><B>4.92</B> feet</TD> </TR>\n"));
}

TEST(Hydrostatics, StationsAreNumberedFromTheEndOfTheProjectAtHand)
{
    CReportCase ship;
    EXPECT_THAT(Hydrostatics(ship), HasSubstr(" Station 0 = Fwd. Perpendicular<BR>\n"));
    EXPECT_THAT(Hydrostatics(ship), HasSubstr("<TR><TD>0</TD><TD>60.00</TD>"));
    ship.Project.StationOrigin = 1;
    const std::string text = Hydrostatics(ship);
    EXPECT_THAT(text, HasSubstr(" Station 4 = Fwd. Perpendicular<BR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>4</TD><TD>60.00</TD>"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>0</TD><TD>-60.00</TD>"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>Bow</TD><TD>3.00</TD><TD>45.00</TD>"));
    EXPECT_THAT(text, HasSubstr("<TR> <TD>4</TD> <TD>1000.00</TD>"));
}

TEST(Hydrostatics, HullWithoutOffsetsIsOfLewisForms)
{
    CReportCase ship;
    EXPECT_EQ(CountOf(Hydrostatics(ship), "<TD>OFFSETS</TD></TR>"), 5);
    ship.Results.Input->HULLDEF.Set(1);
    EXPECT_EQ(CountOf(Hydrostatics(ship), "<TD>LEWIS</TD></TR>"), 5);
}

TEST(Hydrostatics, WithoutTheMagicThePositionsHaveNoX)
{
    CReportCase ship;
    ship.Results.Control.HasMagic = false;
    ship.SetRelativeMotion(3);
    const std::string text = Hydrostatics(ship);
    EXPECT_THAT(text, HasSubstr("<TR><TD> Description </TD><TD> Station </TD><TD> X (m) </TD>"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>Bow</TD><TD>1.00</TD><TD></TD><TD>x</TD><TD></TD><TD></TD><TD></TD>"
                                "</TR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>Bow</TD><TD>1.00</TD><TD></TD><TD>2.50</TD><TD>12.00</TD>"
                                "<TD>4.75</TD><TD>5.12</TD><TD>6.88</TD><TD></TD><TD></TD></TR>\n"));
}

TEST(Hydrostatics, MarksTellWhatIsComputedAtAPosition)
{
    CReportCase ship;
    const auto marks = [&ship](int relativeMotion, int mii, int msi)
    {
        ship.SetRelativeMotion(relativeMotion);
        ship.Results.Control.MiiKind[0] = mii;
        ship.Results.Control.MsiKind[0] = msi;
        return Between(Hydrostatics(ship), "<TR><TD>Bow</TD><TD>1.00</TD><TD>45.00</TD>", "</TR>");
    };
    EXPECT_EQ(marks(0, 0, 0), "<TD></TD><TD></TD><TD></TD><TD></TD>");
    EXPECT_EQ(marks(2, 1, 0), "<TD>x</TD><TD></TD><TD>x</TD><TD></TD>");
    EXPECT_EQ(marks(3, 0, 1), "<TD>x</TD><TD></TD><TD></TD><TD>x</TD>");
    EXPECT_EQ(marks(4, 0, 2), "<TD></TD><TD>x</TD><TD></TD><TD>x</TD>");
    EXPECT_EQ(marks(5, 2, 0), "<TD></TD><TD></TD><TD>x</TD><TD></TD>");
}

TEST(Hydrostatics, DurationStandsOnlyWithSlamming)
{
    CReportCase ship;
    EXPECT_THAT(Hydrostatics(ship), Not(HasSubstr("Duration of Operation")));
    ship.SetRelativeMotion(2);
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<U>Seakeeping Parameters</U><BR>\n"
                          "Duration of Operation:&nbsp&nbsp&nbsp <B>20.00</B> hours<BR>\n"
                          "Slamming Exceedence Parameter:&nbsp&nbsp&nbsp <B>0.010</B><BR><BR>\n"));
}

TEST(Hydrostatics, WithoutPositionsASentenceStandsOnTheSamePage)
{
    CReportCase ship;
    ship.Results.Calculated.Positions.clear();
    ship.Results.Head.LoadStationCount = 0;
    const std::string text = Hydrostatics(ship);
    EXPECT_THAT(text, HasSubstr("</TABLE>\n</td></tr></TABLE><BR>\n"
                                "<B>Seakeeping calculations were not specified.</B><BR>\n<TABLE"));
    EXPECT_EQ(CountOf(text, kPageBreakLine), 0);
    EXPECT_EQ(CountOf(text, "HYDROSTATICS SUMMARY"), 1);
}

TEST(Hydrostatics, NoBilgeKeelsIsSaidWithoutALineBreak)
{
    CReportCase ship;
    ship.Results.Control.FinCount = -1;
    ship.Results.Control.FoilCount = 2;
    for (const float none : {0.0F, -1.0F, 0.9F})
    {
        ship.Results.Control.BilgeKeelCount = none;
        EXPECT_THAT(Hydrostatics(ship),
                    HasSubstr("<U>Appendages</U><BR>\n<B>Bilge keels were not specified.</B>\n"
                              "Number of fin stabilizer pairs:&nbsp&nbsp&nbsp <B>-1</B><BR>\n"
                              "Number of shaft bracket pairs:&nbsp&nbsp&nbsp <B>2</B>\n"
                              "</td></tr></TABLE><BR>\n"))
            << none;
    }
}

TEST(Hydrostatics, WithoutLoadsThereIsNoPageOfThem)
{
    CReportCase ship;
    ship.Results.Head.LoadStationCount = 0;
    const std::string text = Hydrostatics(ship);
    EXPECT_THAT(text, Not(HasSubstr("User Input Parameters")));
    EXPECT_THAT(text, Not(HasSubstr("Still Water Loading")));
}

TEST(StillWaterLoads, MassAndItsCentreAreSummedOverStationsBowAndStern)
{
    CReportCase ship;
    // 100 + ... + 500 + 10 + 20; their moments 500 + 1200 + 2100 + 3200 + 4500 + 80 + 180.
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Total Mass:</TD> <TD><B>1530.00</B> tonnes</TD> </TR>\n"
                          "<TR> <TD>Displacement:</TD> <TD><B>N/A</B></TD> </TR>\n"
                          "<TR> <TD>Input KG:</TD> <TD><B>7.25</B> meters</TD> </TR>\n"
                          "<TR> <TD>Calculated KG:</TD> <TD><B>7.69</B> meters</TD> </TR>\n"));
}

TEST(StillWaterLoads, InputIsConvertedOnce)
{
    CReportCase ship;
    ship.SetSystems(0, 1);
    ship.Results.Input->TRIMDEF.Set(1);
    ship.Results.Input->DISPUSER.Set(1000);
    EXPECT_THAT(Hydrostatics(ship),
                HasSubstr("<TR> <TD>Total Mass:</TD> <TD><B>1554.55</B> tonnes</TD> </TR>\n"
                          "<TR> <TD>Displacement:</TD> <TD><B>1016.05</B> tonnes</TD> </TR>\n"
                          "<TR> <TD>Input KG:</TD> <TD><B>2.21</B> meters</TD> </TR>\n"
                          "<TR> <TD>Calculated KG:</TD> <TD><B>2.34</B> meters</TD> </TR>\n"));
}

TEST(StillWaterLoads, NoMassHasItsCentreAtTheBaseLine)
{
    CReportCase ship;
    ship.Results.Input->NST.Set(0);
    ship.Results.Input->BOWTN.Set(0);
    ship.Results.Input->STERNTN.Set(0);
    EXPECT_THAT(Hydrostatics(ship), HasSubstr("<TR> <TD>Calculated KG:</TD> <TD><B>0.00</B> meters</TD>"));
}

TEST(StillWaterLoads, MassesThatTheInputDoesNotHaveCountNothing)
{
    CReportCase ship;
    ship.Results.Input->LOADFLAG.Set(2);
    const std::string text = Hydrostatics(ship);
    EXPECT_THAT(text, HasSubstr("<TR> <TD>Total Mass:</TD> <TD><B>0.00</B> tonnes</TD> </TR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR> <TD>Bow Overhang</TD> <TD>0.00</TD> </TR>\n"));
}

TEST(StillWaterLoads, OverhangsAreWeights)
{
    CReportCase ship;
    EXPECT_THAT(
        Hydrostatics(ship),
        HasSubstr("<TR><TD> Station </TD><TD> Weight kN </TD> <TD> Shear kN </TD> <TD> Bending Moment "
                  "kN-m </TD> </TR>\n<TR> <TD>Bow Overhang</TD> <TD>98.10</TD> </TR>\n"
                  "<TR> <TD>0</TD> <TD>1000.00</TD> <TD>0.00</TD> <TD>0.00</TD> </TR>\n"
                  "<TR> <TD>1</TD> <TD>2000.00</TD> <TD>100.00</TD> <TD>1500.00</TD> </TR>\n"));
    ship.SetSystems(0, 0);
    const std::string text = Hydrostatics(ship);
    EXPECT_THAT(text, HasSubstr("<TR><TD> Station </TD><TD> Mass 10^3lb </TD> <TD> Shear 10^3lb </TD> <TD> "
                                "Bending Moment 10^3ft-lb </TD> </TR>\n<TR> <TD>Bow Overhang</TD> "
                                "<TD>22.40</TD> </TR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR> <TD>Stern Overhang</TD> <TD>44.80</TD> </TR>\n"));
}
