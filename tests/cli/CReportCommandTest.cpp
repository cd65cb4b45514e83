#include "core/platform/Files.h"
#include "core/results/report/CReportWriter.h"
#include "tests/cli/CCliTest.h"
#include "tests/support/CMadeResults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace
{
CReportFlags AllBut(std::initializer_list<EReportSection> sections)
{
    CReportFlags flags = {};
    for (const EReportSection section : sections)
    {
        flags[section] = kSectionNotSelected;
    }
    return flags;
}

CSelection UpTo(int count)
{
    CSelection all(static_cast<std::size_t>(count));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

/// The document for all that a made file has, but for `left out`.
std::string Document(const std::string& bytes, const CReportFlags& flags, int stationOrigin = 1)
{
    CProjectData project;
    project.StationOrigin = stationOrigin;
    const CResults results = ReadResults(bytes);
    project.SelectedSpeeds = UpTo(results.Control.SpeedCount);
    project.SelectedHeadings = UpTo(results.Body.HeadingCount);
    project.SelectedSeaways = UpTo(results.Body.SeawayCount);
    project.SelectedPositions = UpTo(results.Head.LoadStationCount);
    return OutputReport(results, project, flags, "");
}

CCliRun Misused(const std::string& fault)
{
    return {kExitUsage, "", "ondara-cli: " + fault + " (ondara-cli --help tells more)\n"};
}

const CReportFlags kOffered = AllBut({kSectionRmsShortCrested});
} // namespace

TEST(CliReport, WritesAllThatTheFileOffersIntoTheBaseFolder)
{
    CCliTest test;
    const std::string bytes = CMadeResults().Bytes();
    test.Write("run.tv7", bytes);
    CTestFolder base;
    EXPECT_EQ(test.Run({"--base-dir", base.Path(), "report", "run.tv7"}), Done());
    EXPECT_EQ(FileContent(base.File("oview.html")), Document(bytes, kOffered));
    EXPECT_EQ(test.Run({"report", "run.tv7", "--sections", "all"}), Done());
    EXPECT_EQ(test.Content("oview.html"), Document(bytes, kOffered));
    EXPECT_THAT(test.Files(), ElementsAre("oview.html", "run.tv7"));
    EXPECT_EQ(test.Content("run.tv7"), bytes);
}

TEST(CliReport, PositionsAreOfferedAsTheyStandInACurrentFile)
{
    CCliTest test;
    CMadeResults made;
    made.Positions = {{0, 0, 0, "a"}, {0, 0, 0, "b"}, {1, 1, 1, "c"}};
    test.Write("run.tv7", made.Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7"}), Done());
    EXPECT_THAT(test.Content("oview.html"),
                AllOf(HasSubstr("#Deck"), HasSubstr("#Interrupt"), HasSubstr("#MSI")));
    made.Positions.pop_back();
    test.Write("run.tv7", made.Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7"}), Done());
    EXPECT_THAT(test.Content("oview.html"), AllOf(HasSubstr("#Rms"), Not(HasSubstr("#Deck")),
                                                  Not(HasSubstr("#Interrupt")), Not(HasSubstr("#MSI"))));
}

TEST(CliReport, WritesTheSectionsThatAreNamedAndOffered)
{
    CCliTest test;
    const std::string bytes = CMadeResults().Bytes();
    test.Write("run.tv7", bytes);
    EXPECT_EQ(test.Run({"report", "run.tv7", "--sections", "load-rao,rms-short,roll-damping"}), Done());
    CReportFlags flags;
    flags.fill(kSectionNotSelected);
    flags[kSectionLoadRao] = flags[kSectionRollDamping] = kSectionSelected;
    EXPECT_EQ(test.Content("oview.html"), Document(bytes, flags));
}

TEST(CliReport, EachSectionHasItsName)
{
    CCliTest test;
    const std::pair<const char*, const char*> sections[] = {
        {"summary", "#Hydro"},     {"environment", "#Env"}, {"motion-rao", "#Rao"},  {"load-rao", "#LoadRao"},
        {"roll-damping", "#Roll"}, {"rms", "#Rms"},         {"rms-loads", "#RmsLd"}, {"slamming", "#Deck"},
        {"mii", "#Interrupt"},     {"msi", "#MSI"}};
    test.Write("run.tv7", CMadeResults().Bytes());
    for (const auto& [name, anchor] : sections)
    {
        EXPECT_EQ(test.Run({"report", "run.tv7", "--sections", name}), Done());
        const std::string document = test.Content("oview.html");
        for (const auto& each : sections)
        {
            const auto entry = std::string("<li><a HREF=\"") + each.second + "\">";
            EXPECT_EQ(document.find(entry) != std::string::npos, std::string(each.second) == anchor)
                << name << ": " << each.second;
        }
    }
    CMadeResults made;
    made.SpreadAngle = 45;
    test.Write("run.tv7", made.Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7", "--sections", "rms-short"}), Done());
    EXPECT_THAT(test.Content("oview.html"), HasSubstr("<li><a HREF=\"#Rms\">"));
}

TEST(CliReport, ListsNarrowTheReport)
{
    CCliTest test;
    const std::string bytes = CMadeResults().Bytes();
    test.Write("run.tv7", bytes);
    EXPECT_EQ(test.Run({"report", "run.tv7", "--speeds", "1", "--headings", "2,0", "--seaways", "1",
                        "--positions", "1"}),
              Done());
    CProjectData project;
    project.StationOrigin = 1;
    project.SelectedSpeeds = {1};
    project.SelectedHeadings = {2, 0};
    project.SelectedSeaways = {1};
    project.SelectedPositions = {1};
    EXPECT_EQ(test.Content("oview.html"), OutputReport(ReadResults(bytes), project, kOffered, ""));
}

TEST(CliReport, AnIndexThatTheFileDoesNotHaveIsWrongUsage)
{
    CCliTest test;
    test.Write("run.tv7", CMadeResults().Bytes());
    const std::pair<const char*, const char*> options[] = {
        {"--speeds", "2"}, {"--headings", "4"}, {"--seaways", "2"}, {"--positions", "2"}};
    for (const auto& [option, index] : options)
    {
        EXPECT_EQ(test.Run({"report", "run.tv7", option, std::string("0,1,") + index}),
                  Misused(std::string(option) + ": the results file has no index " + index));
    }
    EXPECT_THAT(test.Files(), ElementsAre("run.tv7"));
}

TEST(CliReport, AListThatHoldsNoIndicesIsWrongUsage)
{
    CCliTest test;
    test.Write("run.tv7", CMadeResults().Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7", "--speeds", "0,x"}), Misused("--speeds: no index: x"));
    for (const char* list : {"", ",", "0,", "1.5", "99999999999", "0 1", "+1", "--speeds=-1"})
    {
        EXPECT_EQ(test.Run({"report", "run.tv7", "--speeds", list}).ExitCode, kExitUsage) << list;
    }
    EXPECT_EQ(test.Run({"report", "run.tv7", "--speeds=-1"}), Misused("--speeds: no index: -1"));
    EXPECT_THAT(test.Files(), ElementsAre("run.tv7"));
}

TEST(CliReport, AnUnknownSectionIsWrongUsage)
{
    CCliTest test;
    test.Write("run.tv7", CMadeResults().Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7", "--sections", "summary,waves"}),
              Misused("--sections: no section of the report: waves"));
    EXPECT_THAT(test.Files(), ElementsAre("run.tv7"));
}

TEST(CliReport, WithoutAProjectStationsAreNumberedAsInTheRun)
{
    CCliTest test;
    for (const int numbering : {0, 1})
    {
        CMadeResults made;
        made.StationNumbering = numbering;
        test.Write("run.tv7", made.Bytes());
        EXPECT_EQ(test.Run({"report", "run.tv7"}), Done());
        EXPECT_EQ(test.Content("oview.html"), Document(made.Bytes(), kOffered, numbering));
    }
    EXPECT_NE(Document(CMadeResults().Bytes(), kOffered, 0), Document(CMadeResults().Bytes(), kOffered, 1));
}

TEST(CliReport, WithoutAProjectAFileOfTheEarlierFormCountsStationsFromTheBow)
{
    CCliTest test;
    CMadeResults made;
    made.Magic = false;
    made.StationNumbering = 1;
    test.Write("run.tv7", made.Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7", "--sections", "summary"}), Done());
    EXPECT_THAT(test.Content("oview.html"), HasSubstr("Station 0 = Fwd. Perpendicular<BR>"));
}

TEST(CliReport, AProjectAtHandNumbersTheStations)
{
    CCliTest test;
    const std::string bytes = CMadeResults().Bytes();
    test.Write("run.tv7", bytes);
    for (const int numbering : {0, 1})
    {
        test.Project.StationOrigin = numbering;
        test.Write("ship.od7");
        EXPECT_EQ(test.Run({"report", "run.tv7", "--project", "ship.od7"}), Done());
        EXPECT_EQ(test.Content("oview.html"), Document(bytes, kOffered, numbering));
    }
}

TEST(CliReport, AProjectThatCannotBeReadFails)
{
    CCliTest test;
    test.Write("run.tv7", CMadeResults().Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7", "--project", "ship.od7"}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("run.tv7"));
}

TEST(CliReport, WritesTheFileThatIsNamed)
{
    CCliTest test;
    test.Write("run.tv7", CMadeResults().Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7", "--output", "result.html"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("result.html", "run.tv7"));
    EXPECT_EQ(test.Content("result.html"), Document(test.Content("run.tv7"), kOffered));
}

TEST(CliReport, OutputThatCannotBeWrittenIsTold)
{
    CCliTest test;
    test.Write("run.tv7", CMadeResults().Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7", "--output", "nowhere/result.html"}),
              Failed("Error Saving File: The file could not be saved.\n"));
}

TEST(CliReport, AFileThatCannotBeOpenedIsTold)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"report", "nothing.tv7"}),
              Failed("Error Saving File: The file could not be read.\n"));
    EXPECT_FALSE(FileExists(test.Folder.File("oview.html")));
}

TEST(CliReport, ADamagedFileIsToldAndLeavesNoDocument)
{
    CCliTest test;
    CMadeResults made;
    const std::string bytes = made.Bytes();
    // Cut inside the calculated section, whose counts are all there.
    const std::string trailer = bytes.substr(bytes.size() - 20);
    const std::string cut = bytes.substr(0, bytes.size() - 400) + trailer;
    for (const std::string& content : {std::string(), bytes.substr(0, 300), cut})
    {
        test.Write("run.tv7", content);
        EXPECT_EQ(test.Run({"report", "run.tv7"}),
                  Failed("Error reading file: The file could not be read\n"));
        EXPECT_THAT(test.Files(), ElementsAre("run.tv7"));
    }
}

TEST(CliReport, OfAFileWithoutTheMagic)
{
    CCliTest test;
    CMadeResults made;
    made.Magic = false;
    test.Write("run.tv7", made.Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7"}), Done());
    EXPECT_EQ(test.Content("oview.html"),
              Document(made.Bytes(), AllBut({kSectionRmsShortCrested, kSectionMotionSickness}), 0));
}

TEST(CliReport, OfRegularWavesHasNoIrregularSection)
{
    CCliTest test;
    CMadeResults made;
    made.Keyword = "REGULAR";
    test.Write("run.tv7", made.Bytes());
    EXPECT_EQ(test.Run({"report", "run.tv7"}), Done());
    EXPECT_THAT(test.Content("oview.html"),
                AllOf(HasSubstr("#Rao"), HasSubstr("#Roll"), HasSubstr("#LoadRao"), Not(HasSubstr("#Rms"))));
}
