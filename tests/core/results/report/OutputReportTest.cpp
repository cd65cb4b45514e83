// The frame of the output report: head, contents, banner, order of sections, files in and out.
#include "core/platform/Files.h"
#include "core/results/report/CReportWriter.h"
#include "tests/core/results/CCompletion.h"
#include "tests/core/results/report/CReportCase.h"
#include "tests/support/FullProject.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

using testing::Not;

namespace
{
CReportFlags Flags(const std::vector<EReportSection>& sections)
{
    CReportFlags flags;
    flags.fill(kSectionNotSelected);
    for (const EReportSection section : sections)
    {
        flags[static_cast<std::size_t>(section)] = kSectionSelected;
    }
    return flags;
}

std::string Report(const CReportCase& ship, const std::vector<EReportSection>& sections)
{
    return OutputReport(ship.Results, ship.Project, Flags(sections), ship.Company);
}

/// The document from the heading of the contents to the end of their list.
std::string Contents(const std::string& document)
{
    return Between(document, "CONTENTS: OUTPUT DATA</B></a>\n", "<a NAME=");
}

/// The lines of a banner.
std::vector<std::string> Banner(const CReportCase& ship, EBanner kind)
{
    CReport report(ship.Results, ship.Project, ship.Company);
    report.Banner(kind);
    return Lines(report.Page.Text());
}

/// What a report writer does with the files of a run.
struct CWriterCase : CCompletion
{
    CWriterCase()
    {
        Recorder.ProfileFolder = Folder.Path();
        Project.ResultsFilePath = Path;
    }

    void FinishRun()
    {
        FillToMinimum(Project);
        RunEngine();
        Complete();
        Project.SelectedSpeeds = {0};
        Project.SelectedHeadings = {0};
        Project.SelectedSeaways = {0};
    }
    bool Write() { return CReportWriter(Project, Recorder.Platform, Output).Write(Written); }

    const CReportFlags Written = Flags({kSectionHydrostatics, kSectionMotionRao});
    std::string Output = Folder.File(kOutputReportName);
};
} // namespace

TEST(OutputReport, ContentsOfAllSections)
{
    CReportCase ship;
    std::vector<EReportSection> all;
    for (int section = 0; section < kReportSectionCount; ++section)
    {
        all.push_back(static_cast<EReportSection>(section));
    }
    const std::string text = Report(ship, all);
    ExpectGolden(text.substr(0, text.find("<a NAME=\"Hydro\">")), "report/Contents.html");
}

TEST(OutputReport, WithOneSectionTheContentsHaveOneEntry)
{
    const std::string text = Report(CReportCase(), {kSectionEnvironment});
    EXPECT_EQ(Contents(text), "<ul>\n<li><a HREF=\"#Env\">Environmental Summary</a>\n</ul>\n");
    EXPECT_THAT(text, Not(HasSubstr(kPageBreakLine)));
}

TEST(OutputReport, WithBothRmsFlagsTheEntryStandsOnceAndTheSectionTwice)
{
    const std::string text = Report(CReportCase(), {kSectionRms, kSectionRmsShortCrested});
    EXPECT_EQ(CountOf(text, "HREF=\"#Rms\""), 1);
    EXPECT_EQ(CountOf(text, "HREF=\"#RmsSpeed1\""), 1);
    EXPECT_EQ(CountOf(text, "<a NAME=\"Rms\"></a>\n"), 2);
    EXPECT_EQ(CountOf(text, "To the Table of Contents"), 2);
}

TEST(OutputReport, EachOfTheRmsFlagsGivesTheEntry)
{
    for (const EReportSection section : {kSectionRms, kSectionRmsShortCrested})
    {
        const std::string text = Report(CReportCase(), {section});
        EXPECT_EQ(CountOf(text, "HREF=\"#Rms\""), 1);
        EXPECT_EQ(CountOf(text, "<a NAME=\"Rms\"></a>\n"), 1);
    }
}

TEST(OutputReport, WithoutACompanyTheBannerHasAnEmptyItalicLine)
{
    CReportCase ship;
    ship.Company.clear();
    EXPECT_THAT(Report(ship, {kSectionHydrostatics}),
                HasSubstr("<CENTER><B>HYDROSTATICS SUMMARY</B></CENTER>\n<CENTER><I></CENTER></I>\n"));
}

TEST(OutputReport, SpeedsOfTheContentsAreNumberedByTheirPlaceInTheSelection)
{
    CReportCase ship;
    ship.Project.SelectedSpeeds = {1};
    EXPECT_EQ(Contents(Report(ship, {kSectionMotionRao})),
              "<ul>\n<li><a HREF=\"#Rao\">Regular Seas Response: Motion RAO</a>\n<ul>\n"
              "<li><a HREF=\"#RaoSpeed1\">Speed: 20.50</a>\n</ul>\n</ul>\n");
    ship.Project.SelectedSpeeds.clear();
    EXPECT_EQ(Contents(Report(ship, {kSectionMotionRao})),
              "<ul>\n<li><a HREF=\"#Rao\">Regular Seas Response: Motion RAO</a>\n<ul>\n</ul>\n</ul>\n");
}

TEST(OutputReport, SectionsStandInTheirOrderWithAPageBreakBetween)
{
    const std::string text =
        Report(CReportCase(), {kSectionLoadRao, kSectionRollDamping, kSectionHydrostatics});
    const std::string link = "<BR><b><i><a HREF=\"#TOC\">To the Table of Contents</a></i></b>\n";
    EXPECT_EQ(CountOf(text, link), 3);
    EXPECT_THAT(text, HasSubstr("</ul>\n<a NAME=\"Hydro\"></a>\n\n\n"));
    EXPECT_THAT(text, HasSubstr(link + kPageBreakLine + "<a NAME=\"Roll\"></a>\n\n\n"));
    EXPECT_THAT(text, HasSubstr(link + kPageBreakLine + "<a NAME=\"LoadRao\"></a>\n\n\n"));
    EXPECT_THAT(text, EndsWith(link + "</body> \n\n</html>\n"));
}

TEST(OutputReport, WithoutASectionTheDocumentIsHeadAndTail)
{
    EXPECT_THAT(
        Report(CReportCase(), {}),
        EndsWith("<a NAME=\"TOC\"><B>CONTENTS: OUTPUT DATA</B></a>\n<ul>\n</ul>\n</body> \n\n</html>\n"));
}

TEST(Banner, NamesTheRunAndItsFiles)
{
    EXPECT_THAT(Banner(CReportCase(), kBannerLoadRao),
                ElementsAre("<CENTER><B>REGULAR SEAS RESPONSE: LOAD RAO AT SPECIFIED LOCATIONS</B></CENTER>",
                            "<CENTER><I>Larkfield Marine Limited</CENTER></I>",
                            "<CENTER>Mon Nov 03 14:07</CENTER><BR>", "<CENTER>Trials</CENTER><BR>",
                            "Input Geometry File:&nbsp&nbsp&nbsp <I>ship.od7</I><BR>",
                            "Input Environment File:&nbsp&nbsp&nbsp <I>sea.od7</I><BR><BR>"));
}

TEST(Banner, TitlesOfTheKinds)
{
    const CReportCase ship;
    const auto title = [&ship](EBanner kind) { return Banner(ship, kind).front(); };
    EXPECT_EQ(title(kBannerHydrostatics), "<CENTER><B>HYDROSTATICS SUMMARY</B></CENTER>");
    EXPECT_EQ(title(kBannerEnvironment), "<CENTER><B>ENVIRONMENTAL SUMMARY</B></CENTER>");
    EXPECT_EQ(title(kBannerMotionRao), "<CENTER><B>REGULAR SEAS RESPONSE: MOTION RAO</B></CENTER>");
    EXPECT_EQ(title(kBannerRollDamping),
              "<CENTER><B>REGULAR SEAS RESPONSE: ROLL DAMPING COEFFICIENTS</B></CENTER>");
    EXPECT_EQ(title(kBannerSlamming),
              "<CENTER><B>IRREGULAR SEAS RESPONSE  -  Slamming And Deck Wetness</B></CENTER>");
    EXPECT_EQ(title(kBannerMotionInterruption),
              "<CENTER><B>IRREGULAR SEAS RESPONSE  -  Motion Interruption Index</B></CENTER>");
}

TEST(Banner, SeasAreNamedByAngleAndSpectrum)
{
    CReportCase ship;
    const auto titles = [&ship]
    { return Banner(ship, kBannerRms).front() + "|" + Banner(ship, kBannerRmsLoads).front(); };
    const auto expected = [](const std::string& seas)
    {
        return "<CENTER><B>IRREGULAR SEAS RESPONSE: RMS RESPONSES - " + seas +
               "</B></CENTER>|<CENTER><B>IRREGULAR SEAS RESPONSE: RMS LOADS - " + seas + "</B></CENTER>";
    };
    EXPECT_EQ(titles(), expected("Unidirectional Seas"));
    ship.SetSpectrum(kSpectrumHindcast);
    EXPECT_EQ(titles(), expected("Directional Seas"));
    ship.Results.Head.SpreadAngle = 30;
    EXPECT_EQ(titles(), expected("Short-Crested Seas"));
}

TEST(Banner, RunStampKeepsItsFirstTwoPiecesBetweenColons)
{
    CReportCase ship;
    const auto stamp = [&ship](const char* text)
    {
        ship.Results.Head.RunStamp = text;
        return Between(Banner(ship, kBannerHydrostatics)[2], "<CENTER>", "</CENTER>");
    };
    EXPECT_EQ(stamp("Mon Nov 03 14:07:52 2008"), "Mon Nov 03 14:07");
    EXPECT_EQ(stamp("Mon Nov 03"), "Mon Nov 03");
    EXPECT_EQ(stamp("::14::07:52"), "14:07");
    EXPECT_EQ(stamp("14:"), "14");
    EXPECT_EQ(stamp(":"), "");
    EXPECT_EQ(stamp(""), "");
}

TEST(Banner, OddBytesPassAsTheyStandWithoutCarriageReturns)
{
    CReportCase ship;
    ship.Results.ProjectTitle = "a<b>&\xFF\r\x01";
    EXPECT_EQ(Banner(ship, kBannerHydrostatics)[3], "<CENTER>a<b>&\xFF\x01</CENTER><BR>");
}

TEST(SpectrumNames, OfEachKind)
{
    std::vector<std::string> names;
    for (int kind = -1; kind <= 9; ++kind)
    {
        names.emplace_back(SpectrumName(kind));
    }
    EXPECT_THAT(names, ElementsAre("", "REGULAR", "Quadratic Regression", "Bretschneider", "JONSWAP",
                                   "Ochi & Hubble", "Measured Uni-Directional", "Ten Parameter Directional",
                                   "ODGP Hindcast", "Measured Directional", ""));
}

TEST(ReportUnits, InputIsConvertedOnlyBetweenSystems)
{
    CReportCase ship;
    const auto converted = [&ship](float input, float output)
    {
        ship.SetSystems(input, output);
        const CReport report(ship.Results, ship.Project, "");
        return std::vector<float>{report.LengthOut(10), report.MassOut(10)};
    };
    EXPECT_THAT(converted(1, 1), ElementsAre(10.0F, 10.0F));
    EXPECT_THAT(converted(0, 0), ElementsAre(10.0F, 10.0F));
    EXPECT_THAT(converted(1, 0), ElementsAre(10 * 3.2808399F, 10 * 0.98420650F));
    EXPECT_THAT(converted(0, 1), ElementsAre(10 * 0.3048F, 10 * 1.0160469F));
}

TEST(ReportUnits, WordsFollowTheOutputSystem)
{
    CReportCase ship;
    ship.SetSystems(0, 1);
    const auto words = [&ship]
    {
        const CReport report(ship.Results, ship.Project, "");
        return std::vector<std::string>{report.Length(), report.Mass(), report.ShortLength(), report.Area()};
    };
    EXPECT_THAT(words(), ElementsAre("meters", "tonnes", "m", "m^2"));
    ship.SetSystems(1, 0);
    EXPECT_THAT(words(), ElementsAre("feet", "LT", "ft", "ft^2"));
}

TEST(ReportWriter, MissingResultsAreSaidAndLeaveNoDocument)
{
    CWriterCase writer;
    writer.Project.ResultsFilePath = writer.Folder.File("none.tv7");
    EXPECT_FALSE(writer.Write());
    EXPECT_THAT(writer.Recorder.Messages, ElementsAre("Error Saving File: The file could not be read."));
    EXPECT_EQ(writer.Recorder.Beeps, 1);
    EXPECT_EQ(writer.Project.ReportDataRead, 0);
    EXPECT_FALSE(FileExists(writer.Output));
}

TEST(ReportWriter, UnreadableResultsAreSaidAndLeaveWhatWasReadBefore)
{
    for (const int before : {0, 1})
    {
        CWriterCase writer;
        writer.Project.ReportDataRead = before;
        writer.Project.ResultsFilePath = writer.Folder.Write("short.tv7", "too short");
        EXPECT_FALSE(writer.Write());
        EXPECT_THAT(writer.Recorder.Messages, ElementsAre("Error reading file: The file could not be read"));
        EXPECT_EQ(writer.Recorder.Beeps, 0);
        EXPECT_EQ(writer.Project.ReportDataRead, before);
        EXPECT_FALSE(FileExists(writer.Output));
    }
}

TEST(ReportWriter, DocumentOfAFinishedRunReplacesTheLastOne)
{
    CWriterCase writer;
    writer.FinishRun();
    writer.Folder.Write(kOutputReportName, "the last report");
    writer.Folder.Write("odview.ini", "[Project]\nCompany=Larkfield\n");
    EXPECT_TRUE(writer.Write());
    EXPECT_THAT(writer.Recorder.Messages, IsEmpty());
    EXPECT_EQ(writer.Project.ReportDataRead, 1);
    EXPECT_EQ(FileContent(writer.Output),
              OutputReport(writer.Read(), writer.Project, writer.Written, "Larkfield"));
}

TEST(ReportWriter, ResultsThatEndInTheirCalculatedSectionLeaveTheLastDocument)
{
    CWriterCase writer;
    writer.FinishRun();
    writer.Folder.Write(kOutputReportName, "the last report");
    std::string bytes = FileContent(writer.Path);
    bytes.erase(bytes.size() - 120, 100); // in front of the trailer
    writer.Folder.Write(kResultsFileName, bytes);
    EXPECT_FALSE(writer.Write());
    EXPECT_THAT(writer.Recorder.Messages, ElementsAre("Error reading file: The file could not be read"));
    EXPECT_EQ(writer.Project.ReportDataRead, 0);
    EXPECT_EQ(FileContent(writer.Output), "the last report");
    for (const auto& entry : std::filesystem::directory_iterator(writer.Folder.Path()))
    {
        EXPECT_NE(entry.path().extension(), ".new");
    }
}

TEST(ReportWriter, DocumentThatCannotBeWrittenIsSaid)
{
    CWriterCase writer;
    writer.FinishRun();
    writer.Output = writer.Folder.File("none/oview.html");
    EXPECT_FALSE(writer.Write());
    EXPECT_THAT(writer.Recorder.Messages, ElementsAre("Error Saving File: The file could not be saved."));
    EXPECT_EQ(writer.Recorder.Beeps, 1);
    EXPECT_EQ(writer.Project.ReportDataRead, 0);
}

TEST(OutputReport, GoesToItsSinkInPieces)
{
    const CReportCase ship;
    const CReportFlags flags = Flags({kSectionRollDamping, kSectionLoadRao});
    std::string document;
    std::size_t longest = 0;
    WriteOutputReport(ship.Results, ship.Project, flags, ship.Company,
                      [&](std::string_view piece)
                      {
                          document += piece;
                          longest = std::max(longest, piece.size());
                      });
    EXPECT_EQ(document, OutputReport(ship.Results, ship.Project, flags, ship.Company));
    EXPECT_LT(longest, document.size());
    EXPECT_LT(longest, 70000U);
}
