#include "tests/core/results/report/CSeasCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace
{
CSeasPosition WithSickness(const std::string& label, int formulation, int exposureFlag, float exposure)
{
    CSeasPosition position;
    position.Label = label;
    position.MsiKind = 1;
    position.Formulation = formulation;
    position.ExposureFlag = exposureFlag;
    position.Exposure = exposure;
    return position;
}

CSeasPosition WithInterruption(const std::string& label, int kind)
{
    CSeasPosition position;
    position.Label = label;
    position.MiiKind = kind;
    return position;
}
} // namespace

TEST(MotionInterruption, WholeSectionOfTwoPositions)
{
    CSeasCase seas;
    seas.Add(WithInterruption("Bridge", 1));
    seas.Add(WithInterruption("Engine", 0));
    seas.Add(WithInterruption("Bow", 1));
    ExpectGolden(seas.Section(MotionInterruptionSection), "report/MotionInterruption.html");
}

TEST(MotionInterruption, FlagOtherThanOneIsPassedOver)
{
    CSeasCase seas;
    seas.Add(WithInterruption("Bridge", 2));
    seas.Add(WithInterruption("Bow", -1));
    EXPECT_THAT(seas.Section(MotionInterruptionSection), Not(HasSubstr("Position Label")));
}

TEST(MotionInterruption, TitleIsChosenByTheSpreadingAngle)
{
    CSeasCase seas;
    seas.Add(WithInterruption("Bridge", 1));
    EXPECT_THAT(seas.Section(MotionInterruptionSection),
                HasSubstr("\n<B>Motion Interruption Index - Unidirectional Seas</B><BR>\n"));
    seas.Results.Head.SpreadAngle = 90;
    EXPECT_THAT(seas.Section(MotionInterruptionSection),
                HasSubstr("\n<B>Motion Interruption Index - Short-Crested Seas</B><BR>\n"));
}

TEST(MotionInterruption, RowHasHeadingAndFiveValues)
{
    CSeasCase seas;
    seas.SetHeadings(1);
    seas.Add(WithInterruption("Bridge", 1));
    EXPECT_THAT(seas.Section(MotionInterruptionSection),
                HasSubstr("\n<TR> <TD>10.0</TD> <TD>11.000</TD> <TD>12.000</TD> <TD>13.000</TD> "
                          "<TD>14.000</TD> <TD>15.000</TD> </TR>\n"));
}

TEST(MotionSickness, WholeSectionWithBothKindsOfExposure)
{
    CSeasCase seas;
    seas.Add(WithSickness("Bridge", 0, 0, 0));
    seas.Add(WithInterruption("Engine", 1));
    seas.Add(WithSickness("Bow", 1, 1, 4));
    ExpectGolden(seas.Section(MotionSicknessSection), "report/MotionSickness.html");
}

TEST(MotionSickness, BannerHasItsClosingTagsSwappedAndFourBlanksBeforeTheFileNames)
{
    CSeasCase seas;
    seas.Add(WithSickness("Bridge", 0, 0, 0));
    EXPECT_THAT(seas.Section(MotionSicknessSection),
                testing::StartsWith(
                    "<a NAME=\"MSI\"></a>\n\n\n"
                    "<CENTER><B>IRREGULAR SEAS RESPONSE  -  Motion Sickness Incidence</CENTER></B><BR>\n"
                    "<CENTER><I>Larkfield</CENTER></I>\n"
                    "<CENTER>Mon Nov 03 14:07</CENTER><BR>\n"
                    "<CENTER>Ferry</CENTER><BR>\n"
                    "Input Geometry File:&nbsp&nbsp&nbsp&nbsp <I>ferry.od7</I><BR>\n"
                    "Input Environment File:&nbsp&nbsp&nbsp&nbsp <I>north.od7</I><BR><BR>\n"));
}

TEST(MotionSickness, TitleIsChosenByTheSpreadingAngle)
{
    CSeasCase seas;
    seas.Add(WithSickness("Bridge", 0, 0, 0));
    EXPECT_THAT(seas.Section(MotionSicknessSection),
                HasSubstr("\n<B>Motion Sickness Incidence - Unidirectional Seas</B><BR>\n"));
    seas.Results.Head.SpreadAngle = 90;
    EXPECT_THAT(seas.Section(MotionSicknessSection),
                HasSubstr("\n<B>Motion Sickness Incidence - Short-Crested Seas</B><BR>\n"));
}

TEST(MotionSickness, ExposureForTheMaximumHasAColumnOfItsOwn)
{
    CSeasCase seas;
    seas.SetHeadings(1);
    seas.Add(WithSickness("Bridge", 1, 0, 0));
    const std::string text = seas.Section(MotionSicknessSection);
    EXPECT_THAT(text, HasSubstr("<B>Bureau Veritas</B> </TD></TR>\n<TR><TD>Exposure time selected to yield "
                                "maximum MSI prior to habituation</TD></TR>\n"));
    EXPECT_THAT(text,
                HasSubstr("<TR><TD>Heading (Deg.)</TD><TD>MSI (%)</TD><TD>Exposure Time (hours)</TD></TR>\n"
                          "<TR><TD>20.0</TD><TD>21.00</TD><TD>22.00</TD></TR>\n"));
}

TEST(MotionSickness, FixedExposureStandsInTheFrame)
{
    CSeasCase seas;
    seas.SetHeadings(1);
    seas.Add(WithSickness("Bridge", 0, 1, 2.5F));
    const std::string text = seas.Section(MotionSicknessSection);
    EXPECT_THAT(text,
                HasSubstr("<B>Colwell</B> </TD></TR>\n<TR><TD>Exposure Time: <B>2.50</B> hours</TD></TR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>Heading (Deg.)</TD><TD>MSI (%)</TD></TR>\n"
                                "<TR><TD>20.0</TD><TD>21.00</TD></TR>\n"));
}

TEST(MotionSickness, FileWithoutTheMagicHasNoData)
{
    CSeasCase seas;
    seas.Results.Control.HasMagic = false;
    seas.Add(WithInterruption("Bridge", 1));
    const std::string text = seas.Section(MotionSicknessSection);
    EXPECT_THAT(text, Not(HasSubstr("Position Label")));
    EXPECT_THAT(text, testing::EndsWith("<BR><BR>\n<a NAME=\"MsiSpeed1\"></a>\n<BR><b><i><a HREF=\"#TOC\">"
                                        "To the Table of Contents</a></i></b>\n"));
    // Its interruption data are found where they stand.
    EXPECT_THAT(seas.Section(MotionInterruptionSection), HasSubstr("<TR> <TD>10.0</TD> <TD>11.000</TD>"));
}
