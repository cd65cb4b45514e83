#include "core/results/report/InputSummary.h"
#include "core/results/report/CInputSummary.h"
#include "tests/core/results/report/SummaryText.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ContainsRegex;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{
struct CCommandTest : CTestProject
{
    CCommandTest()
    {
        Project.ActiveEnvironmentFile = "/ships/sea.od7";
        Project.ActiveGeometryFile = "/ships/hull.od7";
    }

    bool Show(ESummaryScope scope)
    {
        Recorder.ProfileFolder = Folder.Path();
        return ShowInputSummary(Project, scope, Session.BaseDir, SummaryHead().Time, Recorder.Platform,
                                [this](const std::string& path) { Opened.push_back(path); });
    }

    bool Written() const { return std::filesystem::exists(Folder.File("iview.html")); }

    std::vector<std::string> Opened;
};

/// A project at its defaults under fixed file names.
struct CNamedProject : CTestProject
{
    CNamedProject()
    {
        Project.ActiveEnvironmentFile = R"(C:\ships\sea.od7)";
        Project.ActiveGeometryFile = R"(C:\ships\hull.od7)";
    }

    void Open(const std::string& sample)
    {
        ASSERT_EQ(File.OpenPath(SourceFile("samples/" + sample)), EOpened::Whole);
        Project.ActiveEnvironmentFile = Project.ActiveGeometryFile = R"(C:\ships\)" + sample;
    }
};
} // namespace

TEST(InputSummaryCommand, WithoutAnEnvironmentFileNothingOfItIsShown)
{
    CCommandTest test;
    test.Project.ActiveEnvironmentFile.clear();
    EXPECT_FALSE(test.Show(ESummaryScope::Environment));
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("No File Loaded: There is no enviroment file loaded!"));
    EXPECT_FALSE(test.Written());
    EXPECT_THAT(test.Opened, IsEmpty());
}

TEST(InputSummaryCommand, WithoutAGeometryFileNothingOfItIsShown)
{
    CCommandTest test;
    test.Project.ActiveGeometryFile.clear();
    EXPECT_FALSE(test.Show(ESummaryScope::Geometry));
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("No File Loaded: There is no geometry file loaded!"));
    EXPECT_FALSE(test.Written());
    EXPECT_THAT(test.Opened, IsEmpty());
}

TEST(InputSummaryCommand, WithoutAnyFileNothingIsShown)
{
    CCommandTest test;
    test.Project.ActiveEnvironmentFile.clear();
    test.Project.ActiveGeometryFile.clear();
    EXPECT_FALSE(test.Show(ESummaryScope::Both));
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("No File Loaded: There is no file loaded to display!"));
    EXPECT_FALSE(test.Written());
    EXPECT_THAT(test.Opened, IsEmpty());
}

TEST(InputSummaryCommand, OneFileIsEnoughForBothHalves)
{
    CCommandTest test;
    test.Project.ActiveEnvironmentFile.clear();
    EXPECT_TRUE(test.Show(ESummaryScope::Both));
    EXPECT_TRUE(test.Show(ESummaryScope::Geometry));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(InputSummaryCommand, ReplacesTheDocumentInTheBaseFolderAndOpensIt)
{
    CCommandTest test;
    test.Folder.Write("iview.html", "old");
    test.Folder.Write("odview.ini",
                      "[Project]\nCompany=Harbour Works\nClientName=Northern Line\nContract=K-17/3\n");
    EXPECT_TRUE(test.Show(ESummaryScope::Both));
    EXPECT_EQ(FileContent(test.Folder.File("iview.html")), SummaryText(test.Project));
    EXPECT_THAT(test.Opened, ElementsAre(test.Folder.File("iview.html")));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(InputSummaryCommand, ADocumentThatCanNotBeWrittenIsToldAndNotOpened)
{
    CCommandTest test;
    test.Session.BaseDir = test.Folder.File("nowhere");
    EXPECT_FALSE(test.Show(ESummaryScope::Both));
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("Error Saving File: The file could not be saved."));
    EXPECT_THAT(test.Opened, IsEmpty());
}

TEST(InputSummary, AnUnchangedValueIsItalicAndAChangedOneBold)
{
    EXPECT_STREQ(MarkValue(0).Open, "<I>");
    EXPECT_STREQ(MarkValue(0).Close, "</I>");
    EXPECT_STREQ(MarkValue(1).Open, "<B>");
    EXPECT_STREQ(MarkValue(1).Close, "</B>");
}

TEST(InputSummary, AValueChangedBackIsBoldUntilTheNextReset)
{
    CNamedProject test;
    test.Project.SHIPLEN.Set(100);
    const char* line = "&nbsp&nbsp Length between Perpendiculars";
    const std::string before = SummaryLine(test.Project, line);
    EXPECT_THAT(before, HasSubstr("LBP: &nbsp&nbsp&nbsp <I>100.00</I> meters <BR>"));
    test.Project.SHIPLEN.changed = 1; // by a form; the value is what it was
    EXPECT_THAT(SummaryLine(test.Project, line), HasSubstr("LBP: &nbsp&nbsp&nbsp <B>100.00</B> meters <BR>"));
    test.File.ResetAll();
    EXPECT_THAT(SummaryLine(test.Project, line), HasSubstr("LBP: &nbsp&nbsp&nbsp <I>N/A</I> meters <BR>"));
}

TEST(InputSummary, ASampleJustLoadedHasNoChangedValue)
{
    const auto boldNumber = ContainsRegex("<B>[-0-9]");
    for (const char* sample : {"Sample01.od7", "Sample02.od7"})
    {
        CNamedProject test;
        test.Open(sample);
        EXPECT_THAT(SummaryLines(test.Project), Each(Not(boldNumber))) << sample;
        test.Project.ZAUSERBL.changed = 1;
        EXPECT_THAT(SummaryLines(test.Project), Contains(boldNumber)) << sample;
    }
}

TEST(InputSummary, AnUnsetValueIsNotAvailableIfItReadsLikeTheSentinel)
{
    EXPECT_EQ(GivenText(-1, "%.2f"), "N/A");
    EXPECT_EQ(GivenText(-1.004F, "%.2f"), "N/A");
    EXPECT_EQ(GivenText(-1.004F, "%.3f"), "-1.004");
    EXPECT_EQ(GivenText(-1, "%.3f", kAngleNotGiven), "-1.000");
    EXPECT_EQ(GivenText(-99, "%.3f", kAngleNotGiven), "N/A");
    EXPECT_EQ(GivenText(-111111, "%.4f", kGainNotGiven), "N/A");
}

TEST(InputSummary, TheContentsNameTheSectionsOfTheScope)
{
    CNamedProject test;
    const std::string environment = R"(<li><a HREF="#Env">Environment Specification</a>)";
    const std::string geometry = R"(<li><a HREF="#Geo">Ship Data Specification</a>)";
    const std::string general = R"(<li><a HREF="#General">General Data</a>)";
    const std::string end = "\n</ul>\n<HR SIZE=3>\n<p style = \"page-break-before: always\">\n";
    EXPECT_THAT(SummaryText(test.Project), HasSubstr(general + "\n" + environment + "\n" + geometry + end));
    EXPECT_THAT(SummaryText(test.Project, ESummaryScope::Environment),
                HasSubstr(general + "\n" + environment + end));
    EXPECT_THAT(SummaryText(test.Project, ESummaryScope::Geometry),
                HasSubstr(general + "\n" + geometry + end));
}

TEST(InputSummary, TheHalfThatIsNotShownHasItsFileLineEmpty)
{
    CNamedProject test;
    const std::string environment =
        "<U>Input Filename</U>:&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp Environment: &nbsp&nbsp&nbsp ";
    const std::string ship = "<BR>\n&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp Ship Data: &nbsp&nbsp&nbsp ";
    EXPECT_THAT(SummaryText(test.Project),
                HasSubstr(environment + R"(C:\ships\sea.od7)" + ship + R"(C:\ships\hull.od7<BR>)"));
    EXPECT_THAT(SummaryText(test.Project, ESummaryScope::Environment),
                HasSubstr(environment + R"(C:\ships\sea.od7)" + ship + "<BR>\n"));
    EXPECT_THAT(SummaryText(test.Project, ESummaryScope::Geometry),
                HasSubstr(environment + ship + R"(C:\ships\hull.od7<BR>)"));
}

TEST(InputSummary, ASectionOutOfScopeLeavesItsPageBreakOutToo)
{
    CNamedProject test;
    const auto breaks = [&test](ESummaryScope scope)
    {
        const auto lines = SummaryLines(test.Project, scope);
        return std::count(lines.begin(), lines.end(), R"(<p style = "page-break-before: always">)");
    };
    EXPECT_EQ(breaks(ESummaryScope::Both), 3);
    EXPECT_EQ(breaks(ESummaryScope::Environment), 2);
    EXPECT_EQ(breaks(ESummaryScope::Geometry), 2);
}

TEST(InputSummary, CarriageReturnsOfTextsAreDroppedAndNothingIsEscaped)
{
    CNamedProject test;
    test.Project.ProjectTitle = "A & B\r<i>\xE9</i> 100%s";
    EXPECT_THAT(SummaryText(test.Project), HasSubstr("\n<I>A & B<i>\xE9</i> 100%s</I><BR>\n"));
}

TEST(InputSummary, TheTimeIsThatOfTheCaller)
{
    CNamedProject test;
    EXPECT_EQ(SummaryLine(test.Project, "<BR><U>Current Time/Date</U>"),
              "<BR><U>Current Time/Date</U>: &nbsp&nbsp&nbsp&nbsp&nbsp Time: 9:05:03 "
              "&nbsp&nbsp&nbsp&nbsp&nbsp Date: 2009 03 07 <BR>");
}

TEST(InputSummary, UnitSystemsAndWaterAreNamed)
{
    CNamedProject test;
    test.Project.INSYS.Set(0);
    test.Project.WATERDEN.Set(1);
    test.Project.WATERDEN.changed = 1;
    EXPECT_THAT(SummaryLine(test.Project, "Unit System:"),
                HasSubstr(" Input = <I>BRITISH</I> &nbsp&nbsp&nbsp&nbsp Output = <I>METRIC</I> <BR>"));
    EXPECT_EQ(SummaryLine(test.Project, "Density and Viscosity:"),
              "Density and Viscosity:&nbsp&nbsp&nbsp&nbsp <B>Fresh Water</B>");
}

TEST(InputSummaryGolden, TheHullOfTheFirstSample)
{
    CNamedProject test;
    test.Open("Sample01.od7");
    ExpectGolden(SummaryText(test.Project), "report/summary-sample01.html");
}

TEST(InputSummaryGolden, TheFrigateOfTheSecondSample)
{
    CNamedProject test;
    test.Open("Sample02.od7");
    ExpectGolden(SummaryText(test.Project), "report/summary-sample02.html");
}

TEST(InputSummaryGolden, EverythingThatAProjectCanHold)
{
    CNamedProject test;
    CProjectData& p = test.Project;
    FillToMaximum(p);
    p.NST.Set(6);
    p.NSTLOAD.Set(4);
    p.NBKPAIR.Set(2);
    p.ILASTBK.Fill(2);
    p.NOFFUSER.Fill(9);
    p.NPOS.Set(4);
    for (int k = 0; k < 4; ++k)
    {
        p.RELMOCALC.Set(k, static_cast<float>(k + 1));
    }
    p.MSIExposureOption[1] = 0;
    p.MSIMethod[2] = 0;
    p.RudderGainFileUsed = 1;
    p.RudderGainFile = R"(C:\ships\rudder.txt)";
    p.FinGainFileUsed = 1;
    p.FinGainFile = R"(C:\ships\fin.txt)";
    for (CParamArray* field :
         {&p.SHIPLEN, &p.YAUSER, &p.TCLAT, &p.SECTKG, &p.RAGNFIN, &p.WVFREQMAX, &p.NSPEED})
    {
        field->changed = 1;
    }
    ExpectGolden(SummaryText(p), "report/summary-everything.html");
}

TEST(InputSummary, ANewProjectIsShownWithoutACountOutOfRange)
{
    CNamedProject test;
    const std::string text = SummaryText(test.Project);
    EXPECT_THAT(text, Not(HasSubstr("-1.0")));
    EXPECT_THAT(text, Not(HasSubstr("-111111")));
}

TEST(InputSummary, CountsBeyondTheArraysAreCut)
{
    CNamedProject test;
    CProjectData& p = test.Project;
    FillToMaximum(p);
    for (CParamArray* field : {&p.NST, &p.NOFFUSER, &p.NPOS, &p.NSLOFF, &p.NSPEED, &p.NSEADIR, &p.NSEAWAY,
                               &p.NBKPAIR, &p.NFOILPAIR, &p.NFINPAIR, &p.NSTLOAD})
    {
        field->Fill(1e30F);
    }
    p.ILASTBK.Fill(3e38F);
    p.IFIRSTBK.Fill(-3e38F);
    for (const float spectrum : {0.0F, 1.0F, 2.0F, 3.0F, 4.0F, 5.0F, 6.0F, 7.0F, 8.0F, 1e30F})
    {
        p.SPECTRUM.Set(spectrum);
        EXPECT_THAT(SummaryText(p), HasSubstr("\n</html>\n"));
    }
}
