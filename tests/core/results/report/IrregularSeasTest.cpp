#include "core/results/report/IrregularSeas.h"

#include "core/results/CResultsCursor.h"
#include "tests/core/results/report/CReportCase.h"
#include "tests/core/results/report/CSeasCase.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace
{
CSeasPosition WithEverything(const std::string& label)
{
    CSeasPosition position;
    position.Label = label;
    position.RelMotionKind = 4;
    position.MiiKind = 1;
    position.MsiKind = 1;
    return position;
}

struct CSection
{
    void (*Write)(CReport&);
    const char* SpeedAnchor;
    const char* SteepnessLine;
    const char* SpectrumLine;
};

const CSection kSections[] = {
    {RmsSection, "RmsSpeed",
     R"(<TR> <TD>Wave Steepness (H/Wavelength):</TD> <TD><B>0.05</B></TD> <TD>Wave Slope (ka):</TD> <TD><B>0.157</B></TD> </TR>)",
     R"(<TR> <TD>Sea State:</TD> <TD><B>5</B></TD> <TD>Significant Wave Height:</TD> <TD><B>3.25</B> meters</TD> <TD>Wave Period:</TD> <TD><B>9.50</B> sec</TD> </TR>)"},
    {RmsLoadsSection, "RmsLdSpeed",
     R"(<TR> <TD>Wave Steepness (H/Wavelength):</TD> <TD><B>0.05</B></TD> <TD>Wave Slope (ka):</TD> <TD><B>0.157</B></TD> </TR>)",
     R"(<TR> <TD>Significant Wave Height:</TD> <TD><B>3.25</B> meters</TD> <TD>Wave Period:</TD> <TD><B>9.50</B> sec</TD> <TD>Sea State:</TD> <TD><B>5</B></TD> </TR>)"},
    {SlammingSection, "DeckSpeed",
     R"(<TR> <TD>Wave Steepness (H/Wavelength): <B>0.05</B></TD> <TD>Wave Slope (ka): <B>0.157</B></TD> </TR>)",
     R"(<TR> <TD>Sea State: <B>5</B></TD> <TD>Significant Wave Height: <B>3.25</B> meters</TD> <TD>Wave Period: <B>9.50</B> sec</TD> </TR>)"},
    {MotionInterruptionSection, "MiiSpeed",
     R"(<TR> Wave Steepness (H/Wavelength): <B>0.05</B></TD> <TD>Wave Slope (ka): <B>0.157</B></TD> </TR>)",
     R"(<TR> <TD>Sea State: <B>5</B></TD> <TD>Significant Wave Height: <B>3.25</B> meters</TD> <TD>Wave Period: <B>9.50</B> sec</TD> </TR>)"},
    {MotionSicknessSection, "MsiSpeed",
     R"(<TR> <TD>Wave Steepness (H/Wavelength): <B>0.05</B></TD> <TD>Wave Slope (ka): <B>0.157</B></TD></TR>)",
     R"(<TR> <TD>Sea State: <B>5</B></TD> <TD>Significant Wave Height: <B>3.25</B> meters </TD> <TD>Wave Period: <B>9.50</B> sec </TD></TR>)"},
};

class IrregularSeas : public testing::TestWithParam<CSection>
{
protected:
    IrregularSeas()
    {
        m_case.Add(WithEverything("Bridge"));
        m_case.SetLoadStations({10});
    }

    std::string Write() { return m_case.Section(GetParam().Write); }
    std::string Anchor(int place) const
    {
        return "<a NAME=\"" + std::string(GetParam().SpeedAnchor) + std::to_string(place) + "\"></a>";
    }
    /// The first line of the frame that tells the speed.
    static std::size_t PlaceOf(const std::string& text, const std::string& piece)
    {
        const std::size_t at = text.find(piece);
        EXPECT_NE(at, std::string::npos) << piece;
        return at;
    }

    CSeasCase m_case;
};

INSTANTIATE_TEST_SUITE_P(Sections, IrregularSeas, testing::ValuesIn(kSections),
                         [](const auto& section) { return std::string(section.param.SpeedAnchor); });
} // namespace

TEST_P(IrregularSeas, SeaLineOfRegularWavesTellsSteepnessAndSlope)
{
    m_case.Results.Head.SpectrumKind = kSpectrumRegular;
    const std::string text = Write();
    EXPECT_THAT(text, HasSubstr(std::string("\n") + GetParam().SteepnessLine + "\n"));
    EXPECT_THAT(text, Not(HasSubstr("Significant Wave Height")));
}

TEST_P(IrregularSeas, SeaLineOfSpectraOneToFourTellsSeaStateHeightAndPeriod)
{
    for (int kind = 1; kind <= 4; ++kind)
    {
        m_case.Results.Head.SpectrumKind = kind;
        const std::string text = Write();
        EXPECT_THAT(text, HasSubstr(std::string("\n") + GetParam().SpectrumLine + "\n")) << kind;
        EXPECT_THAT(text, Not(HasSubstr("Wave Steepness"))) << kind;
    }
}

TEST_P(IrregularSeas, SpectraFromFiveOnHaveNoSeaLine)
{
    m_case.RowsOfPositions = 13;
    m_case.RowsOfLoads = 24;
    for (const int kind : {5, 6, 7, 8, -1})
    {
        m_case.SetHeadings(IsDirectional(kind) ? 24 : 13);
        m_case.RowsOfLoads = IsDirectional(kind) ? 24 : 13;
        m_case.Results.Head.SpectrumKind = kind;
        m_case.Fill();
        const std::string text = Write();
        EXPECT_THAT(text, HasSubstr("Spectrum Name:")) << kind;
        EXPECT_THAT(text, Not(HasSubstr("Wave Steepness"))) << kind;
        EXPECT_THAT(text, Not(HasSubstr("Significant Wave Height"))) << kind;
    }
}

TEST_P(IrregularSeas, UnitOfTheWaveHeightFollowsTheOutputSystem)
{
    m_case.Results.Input->OUTSYS.Set(0);
    const std::string text = Write();
    EXPECT_THAT(text, HasSubstr("<B>3.25</B> feet"));
    // 3.25 feet are just below one metre: sea state 3.
    EXPECT_THAT(text, Not(HasSubstr("<B>5</B>")));
    EXPECT_THAT(text, HasSubstr("<B>3</B>"));
    EXPECT_THAT(text, Not(HasSubstr("meters")));
}

TEST_P(IrregularSeas, EachSpeedHasItsAnchorOnceBehindTheBreakOfItsFirstPage)
{
    m_case.SetSpeeds({5, 15});
    m_case.SetSeaways({1, 2});
    const std::string text = Write();
    EXPECT_EQ(CountOf(text, Anchor(1)), 1);
    EXPECT_EQ(CountOf(text, Anchor(2)), 1);
    EXPECT_THAT(text, HasSubstr("<I>north.od7</I><BR><BR>\n" + Anchor(1) + "\n<"));
    EXPECT_THAT(text, HasSubstr(std::string(kBreakLine) + "\n" + Anchor(2) + "\n<CENTER>"));
    EXPECT_EQ(CountOf(text, "<a NAME="), 3);
}

TEST_P(IrregularSeas, SpeedsAndSeawaysComeInTheOrderOfTheSelection)
{
    m_case.SetSpeeds({5, 15, 25});
    m_case.SetSeaways({1, 2, 3});
    m_case.Project.SelectedSpeeds = {2, 0};
    m_case.Project.SelectedSeaways = {1, 0};
    const std::string text = Write();
    EXPECT_LT(PlaceOf(text, Anchor(1)), PlaceOf(text, "<B>25"));
    EXPECT_LT(PlaceOf(text, "<B>25"), PlaceOf(text, Anchor(2)));
    EXPECT_LT(PlaceOf(text, Anchor(2)), PlaceOf(text, "<B>5"));
    EXPECT_LT(PlaceOf(text, "<B>2.00</B> meters"), PlaceOf(text, "<B>1.00</B> meters"));
    EXPECT_THAT(text, Not(HasSubstr("<B>15")));
    EXPECT_THAT(text, Not(HasSubstr("<B>3.00</B> meters")));
}

TEST_P(IrregularSeas, SelectedSpeedAndSeawayGiveTheirOwnValues)
{
    m_case.SetSpeeds({5, 15});
    m_case.SetSeaways({1, 2});
    const std::string both = Write();
    m_case.Project.SelectedSpeeds = {1};
    m_case.Project.SelectedSeaways = {1};
    const std::string one = Write();
    // What is written of one pair alone stands in the report of all as the last part, the anchor apart.
    const std::size_t content = PlaceOf(one, Anchor(1)) + Anchor(1).size();
    EXPECT_TRUE(both.ends_with(one.substr(content)));
}

TEST_P(IrregularSeas, EveryPageButTheFirstBeginsWithABreakAndTheBanner)
{
    m_case.SetSpeeds({5, 15});
    m_case.SetSeaways({1, 2});
    m_case.Add(WithEverything("Bow"));
    m_case.SetLoadStations({5, 10});
    const std::string text = Write();
    EXPECT_EQ(CountOf(text, kBreakLine) + 1, CountOf(text, "IRREGULAR SEAS RESPONSE"));
    // The centre of gravity or the shears have pages of their own.
    const bool loads = GetParam().Write == RmsLoadsSection;
    const bool rms = GetParam().Write == RmsSection;
    const int pages = loads ? 16 : rms ? 12 : 8;
    EXPECT_EQ(CountOf(text, kBreakLine), pages - 1);
    EXPECT_FALSE(text.find(std::string(kBreakLine) + "\n<BR><b><i>") != std::string::npos);
}

TEST_P(IrregularSeas, SectionEndsWithTheLinkToTheContents)
{
    const std::string text = Write();
    EXPECT_TRUE(text.ends_with("</td></tr></TABLE><BR>\n"
                               "<BR><b><i><a HREF=\"#TOC\">To the Table of Contents</a></i></b>\n"));
    EXPECT_EQ(CountOf(text, "#TOC"), 1);
}

TEST_P(IrregularSeas, StationsAreNumberedFromTheEndThatTheProjectAtHandNames)
{
    const bool loads = GetParam().Write == RmsLoadsSection;
    const std::string fore = Write();
    m_case.Project.StationOrigin = 1;
    const std::string aft = Write();
    EXPECT_THAT(fore, HasSubstr(loads ? "<B>10.00</B>" : "<B>2.50</B>"));
    EXPECT_THAT(aft, HasSubstr(loads ? "<B>10.00</B>" : "<B>17.50</B>"));
    EXPECT_THAT(aft, Not(HasSubstr("<B>2.50</B>")));
}

TEST_P(IrregularSeas, SpeedWithoutAPageHasItsAnchor)
{
    m_case.SetSpeeds({5, 15});
    m_case.Project.SelectedSeaways = {};
    const std::string text = Write();
    EXPECT_THAT(text, HasSubstr(Anchor(1) + "\n" + Anchor(2) + "\n<BR><b><i>"));
    EXPECT_EQ(CountOf(text, kBreakLine), 0);
}

TEST_P(IrregularSeas, CalculatedSectionThatEndsTooEarlyIsAnError)
{
    m_case.Fill();
    m_case.Results.Bytes.pop_back();
    if (GetParam().Write == RmsSection)
    {
        EXPECT_THAT(Write(), HasSubstr("Local Output")) << "takes nothing of the calculated section";
        return;
    }
    EXPECT_THROW(Write(), CResultsError);
}
