#include "core/project/OffsetImport.h"

#include "tests/support/CTestProject.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

using CLines = std::vector<std::string>;

/// Two stations of three and four offsets.
const CLines kSound = {"Metric", "2,FP=0",  "0,3",     "0.0,0.0", "1.5,2.0", "2.0,5.0",
                       "1,4",    "0.0,0.5", "2.5,1.5", "3.5,2.5", "4.5,6.5"};

std::string Text(const CLines& lines)
{
    std::string text;
    for (const std::string& line : lines)
    {
        text += line + "\n";
    }
    return text;
}

/// The sound file with one line, counted from 1, replaced.
std::string WithLine(std::size_t number, const std::string& line)
{
    CLines lines = kSound;
    lines[number - 1] = line;
    return Text(lines);
}

/// What the user is told of the content; empty for success.
std::string Failure(const std::string& content)
{
    COffsetTable offsets;
    return ReadOffsets(content, offsets);
}

COffsetTable ReadSound(const std::string& content)
{
    COffsetTable offsets;
    EXPECT_EQ(ReadOffsets(content, offsets), "");
    return offsets;
}

/// A file of any number of stations and offsets.
std::string Large(int stations, int offsetCount)
{
    CLines lines = {"British", std::to_string(stations) + ",AP=0"};
    for (int station = 0; station < stations; ++station)
    {
        lines.push_back(std::to_string(station) + "," + std::to_string(offsetCount));
        for (int k = 0; k < offsetCount; ++k)
        {
            lines.push_back(std::to_string(station) + "." + std::to_string(k) + "," + std::to_string(k));
        }
    }
    return Text(lines);
}

const std::string kUnits = "Error Line 1: Units must be either Metric or British";
const std::string kStations = "Error Line 2: Number of Stations: Min: 2, Max: 21";
const std::string kConvention = "Error Line 2: Station Convention Definition";
const std::string kNumbered = ": Stations must be numbered from smallest(0) to greatest";
const std::string kOffsets = ": Number of offsets: Min: 3, Max: 60";
const std::string kYRange = ": Y Offset: Min: 0.00, Max: 100,000";
const std::string kZRange = ": Z Offset: Min: -50.00, Max: 100,000";

std::string Line(int number)
{
    return "Error Line " + std::to_string(number);
}
} // namespace

TEST(OffsetImport, ASoundFileGivesItsStationsAndOffsets)
{
    const COffsetTable offsets = ReadSound(Text(kSound));
    EXPECT_EQ(offsets.Unit, kUnitMetric);
    EXPECT_EQ(offsets.StationCount, 2);
    EXPECT_EQ(offsets.StationOrigin, 0);
    EXPECT_EQ(offsets.Counts[0], 3);
    EXPECT_EQ(offsets.Counts[1], 4);
    EXPECT_EQ(offsets.Y[1], 1.5F);
    EXPECT_EQ(offsets.Z[2], 5.0F);
    EXPECT_EQ(offsets.Y[60], 0.0F);
    EXPECT_EQ(offsets.Z[60], 0.5F);
    EXPECT_EQ(offsets.Y[63], 4.5F);
    EXPECT_EQ(offsets.Z[63], 6.5F);
}

TEST(OffsetImport, TheLargestFileFits)
{
    const COffsetTable offsets = ReadSound(Large(21, 60));
    EXPECT_EQ(offsets.Unit, kUnitBritish);
    EXPECT_EQ(offsets.StationOrigin, 1);
    EXPECT_EQ(offsets.StationCount, 21);
    EXPECT_EQ(offsets.Counts[20], 60);
    EXPECT_EQ(offsets.Y[1259], 20.59F);
    EXPECT_EQ(offsets.Z[1259], 59.0F);
}

TEST(OffsetImport, MetresAndMetricAreBothMetric)
{
    for (const char* unit : {"metres", "Metric", "M", "m,British", ",,Metric"})
    {
        EXPECT_EQ(ReadSound(WithLine(1, unit)).Unit, kUnitMetric) << unit;
    }
    for (const char* unit : {"British", "b", "Bananas"})
    {
        EXPECT_EQ(ReadSound(WithLine(1, unit)).Unit, kUnitBritish) << unit;
    }
}

TEST(OffsetImport, AByteOrderMarkOfASpreadsheetIsNoPartOfTheUnits)
{
    EXPECT_EQ(Failure(WithLine(1, "\xEF\xBB\xBFMetric")), "");
    EXPECT_EQ(Failure(WithLine(1, "\xEF\xBBMetric")), kUnits);
    EXPECT_EQ(Failure("\xEF\xBB\xBF"), kUnits);
}

TEST(OffsetImport, FeetFailsAlthoughItNamesABritishUnit)
{
    EXPECT_EQ(Failure(WithLine(1, "Feet")), kUnits);
}

TEST(OffsetImport, AUnitThatIsMissingOrIndentedFails)
{
    EXPECT_EQ(Failure(""), kUnits);
    EXPECT_EQ(Failure(WithLine(1, "")), kUnits);
    EXPECT_EQ(Failure(WithLine(1, ",,,")), kUnits);
    EXPECT_EQ(Failure(WithLine(1, " Metric")), kUnits);
}

TEST(OffsetImport, TheStationCountIsAnIntegerFrom2To21)
{
    for (const char* line : {"1,FP=0", "22,FP=0", "-2,FP=0", "many,FP=0", ".5,FP=0", "FP=0", "", ",,",
                             "99999999999999999999,FP=0", "nan,FP=0"})
    {
        EXPECT_EQ(Failure(WithLine(2, line)), kStations) << line;
    }
    EXPECT_EQ(Failure(Large(2, 3)), "");
    EXPECT_EQ(Failure(Large(21, 3)), "");
    EXPECT_EQ(Failure(Large(22, 3)), kStations);
}

TEST(OffsetImport, TheStationConventionIsExactlyOneOfTwoTexts)
{
    for (const char* line : {"2", "2,", "2,fp=0", "2, FP=0", "2,FP=0 ", "2,FP=1", "2,FP=00", "2,FP"})
    {
        EXPECT_EQ(Failure(WithLine(2, line)), kConvention) << line;
    }
    EXPECT_EQ(ReadSound(WithLine(2, "2,FP=0")).StationOrigin, 0);
    EXPECT_EQ(ReadSound(WithLine(2, "2,AP=0")).StationOrigin, 1);
}

TEST(OffsetImport, IntegersAreReadInTheBasesOfScanf)
{
    EXPECT_EQ(ReadSound(WithLine(2, "0x2,FP=0")).StationCount, 2);
    EXPECT_EQ(ReadSound(WithLine(2, "02,FP=0")).StationCount, 2);
    EXPECT_EQ(ReadSound(WithLine(2, " 2.7,FP=0")).StationCount, 2);
    EXPECT_EQ(ReadSound(WithLine(3, "0.9,3.7")).Counts[0], 3);
    // Octal 010 is 8, so all lines up to the last are read as offsets of the first station.
    EXPECT_EQ(Failure(WithLine(3, "0,010")), Line(12) + kNumbered);
}

TEST(OffsetImport, AStationNumberOutOfSequenceFailsAtItsHeaderLine)
{
    for (const char* line : {"2,4", "0,4", "-1,4", "one,4", ""})
    {
        EXPECT_EQ(Failure(WithLine(7, line)), Line(7) + kNumbered) << line;
    }
    EXPECT_EQ(Failure(WithLine(3, "1,3")), Line(3) + kNumbered);
}

TEST(OffsetImport, AStationHas3To60Offsets)
{
    for (const char* line : {"0,2", "0,61", "0,-3", "0", "0,", "0,few", "0,4294967299"})
    {
        EXPECT_EQ(Failure(WithLine(3, line)), Line(3) + kOffsets) << line;
    }
    EXPECT_EQ(Failure(Large(2, 60)), "");
    EXPECT_EQ(Failure(Large(2, 61)), Line(3) + kOffsets);
}

TEST(OffsetImport, AYOfMinusOneFailsSoThatTheSentinelCantEnter)
{
    EXPECT_EQ(Failure(WithLine(5, "-1,2.0")), Line(5) + kYRange);
}

TEST(OffsetImport, YIsANumberFrom0To100000BothIncluded)
{
    for (const char* line : {"-0.001,2", "100001,2", "abc,2", "", ",", "nan,2", "inf,2", "-inf,2", "1e99,2"})
    {
        EXPECT_EQ(Failure(WithLine(11, line)), Line(11) + kYRange) << line;
    }
    EXPECT_EQ(ReadSound(WithLine(11, "0,2")).Y[63], 0.0F);
    EXPECT_EQ(ReadSound(WithLine(11, "100000,2")).Y[63], 100000.0F);
    EXPECT_EQ(ReadSound(WithLine(11, " .5xyz,2")).Y[63], 0.5F);
}

TEST(OffsetImport, ZIsANumberFromMinus50To100000BothIncluded)
{
    for (const char* line : {"1,-50.001", "1,100001", "1,abc", "1", "1,", "1,nan", "1,inf"})
    {
        EXPECT_EQ(Failure(WithLine(4, line)), Line(4) + kZRange) << line;
    }
    EXPECT_EQ(ReadSound(WithLine(4, "1,-50")).Z[0], -50.0F);
    EXPECT_EQ(ReadSound(WithLine(4, "1,-1")).Z[0], -1.0F);
    EXPECT_EQ(ReadSound(WithLine(4, "1,1e5")).Z[0], 100000.0F);
}

TEST(OffsetImport, RangesAreTestedOnTheSinglePrecisionValue)
{
    EXPECT_EQ(ReadSound(WithLine(4, "100000.001,100000.001")).Y[0], 100000.0F);
    EXPECT_EQ(ReadSound(WithLine(4, "1,-50.000001")).Z[0], -50.0F);
    EXPECT_EQ(Failure(WithLine(4, "100000.01,1")), Line(4) + kYRange);
}

TEST(OffsetImport, YIsTestedBeforeZ)
{
    EXPECT_EQ(Failure(WithLine(4, "-2,-99")), Line(4) + kYRange);
}

TEST(OffsetImport, FieldsBehindTheNamedOnesAreIgnored)
{
    EXPECT_EQ(Failure(Text({"Metric,x", "2,FP=0,comment", "0,3,,bow", "0,0,0", "1,1,nan", "2,2,-1", "1,3,y",
                            "0,0", "1,1", "2,2,", "behind the end"})),
              "");
}

TEST(OffsetImport, EmptyFieldsDontCount)
{
    const COffsetTable offsets = ReadSound(WithLine(5, ",,1.25,,,2.25"));
    EXPECT_EQ(offsets.Y[1], 1.25F);
    EXPECT_EQ(offsets.Z[1], 2.25F);
    EXPECT_EQ(Failure(WithLine(5, ",,5")), Line(5) + kZRange);
}

TEST(OffsetImport, AFileThatEndsEarlyFailsAtTheLineThatIsMissing)
{
    const std::vector<std::string> failures = {kUnits,
                                               kStations,
                                               Line(3) + kNumbered,
                                               Line(4) + kYRange,
                                               Line(5) + kYRange,
                                               Line(6) + kYRange,
                                               Line(7) + kNumbered,
                                               Line(8) + kYRange};
    for (std::size_t kept = 0; kept < failures.size(); ++kept)
    {
        std::string content = Text(CLines(kSound.begin(), kSound.begin() + static_cast<long>(kept)));
        EXPECT_EQ(Failure(content), failures[kept]);
        if (!content.empty())
        {
            content.pop_back();
            EXPECT_EQ(Failure(content), failures[kept]) << "without the last line feed";
        }
    }
}

TEST(OffsetImport, TheLastLineNeedsNoLineFeed)
{
    std::string content = Text(kSound);
    content.pop_back();
    EXPECT_EQ(ReadSound(content).Z[63], 6.5F);
}

TEST(OffsetImport, ABlankLineIsALine)
{
    EXPECT_EQ(Failure(WithLine(4, "\n0.0,0.0")), Line(4) + kYRange);
}

TEST(OffsetImport, CarriageReturnsBelongToTheLineEnd)
{
    std::string content;
    for (const std::string& line : kSound)
    {
        content += line + "\r\n";
    }
    EXPECT_EQ(ReadSound(content).StationCount, 2);
    EXPECT_EQ(Failure(WithLine(2, "2,FP=0\r ")), kConvention);
}

TEST(OffsetImport, ALineHolds255Characters)
{
    const std::string y(251, '0');
    const COffsetTable whole = ReadSound(WithLine(5, y + "1,25"));
    EXPECT_EQ(whole.Y[1], 1.0F);
    EXPECT_EQ(whole.Z[1], 25.0F);
    // One more: the last digit becomes the next line read, which then lacks its Z.
    EXPECT_EQ(Failure(WithLine(5, y + "1,253")), Line(5) + kZRange);
    // The piece behind the limit is read as a line of its own, and later failures name lines of the file.
    const std::string broken = "1.5,2.0" + std::string(248, ',');
    CLines lines = kSound;
    lines[4] = broken + "2.0,5.0";
    lines.erase(lines.begin() + 5);
    EXPECT_EQ(ReadSound(Text(lines)).Z[2], 5.0F);
    lines[8] = "3.5,-99";
    EXPECT_EQ(Failure(Text(lines)), Line(9) + kZRange);
}

TEST(OffsetImport, AnyBytesAreTakenWithoutHarm)
{
    std::string content;
    for (int k = 0; k < 3000; ++k)
    {
        content += static_cast<char>(k * 37 % 256);
    }
    EXPECT_EQ(Failure(content), kUnits);
    EXPECT_EQ(Failure("Metric\n" + content), kStations);
    EXPECT_EQ(Failure(std::string("M\0\n2,FP=0\n\0", 11)), Line(3) + kNumbered);
}

TEST(OffsetImport, StoringReplacesCountsConventionAndOffsets)
{
    CTestProject test;
    CProjectData& project = test.Project;
    StoreOffsets(ReadSound(Text(kSound)), project);
    EXPECT_EQ(project.NST.Integer(), 2);
    EXPECT_EQ(project.StationOrigin, 0);
    EXPECT_EQ(project.NOFFUSER.Integer(0), 3);
    EXPECT_EQ(project.NOFFUSER.Integer(1), 4);
    EXPECT_EQ(project.YAUSER.Value(1), 1.5F);
    EXPECT_EQ(project.ZAUSERBL.Value(1), 2.0F);
    EXPECT_EQ(project.YAUSER.Value(63), 4.5F);
    EXPECT_EQ(project.ZAUSERBL.Value(63), 6.5F);
    EXPECT_EQ(project.YAUSER.unit, kUnitMetric);

    StoreOffsets(ReadSound(Large(21, 60)), project);
    EXPECT_EQ(project.NST.Integer(), 21);
    EXPECT_EQ(project.StationOrigin, 1);
    EXPECT_EQ(project.NOFFUSER.Integer(20), 60);
    EXPECT_EQ(project.YAUSER.Value(1259), 20.59F);
    EXPECT_EQ(project.YAUSER.unit, kUnitBritish);
    EXPECT_EQ(project.ZAUSERBL.unit, kUnitMetric); // one flag rules both
}

TEST(OffsetImport, SlotsBehindTheCountKeepWhatTheyHeld)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.YAUSER.Fill(7);
    project.ZAUSERBL.Fill(8);
    project.NOFFUSER.Fill(9);
    StoreOffsets(ReadSound(Text(kSound)), project);
    EXPECT_EQ(project.YAUSER.Value(2), 2.0F);
    EXPECT_EQ(project.YAUSER.Value(3), 7.0F);
    EXPECT_EQ(project.ZAUSERBL.Value(59), 8.0F);
    EXPECT_EQ(project.YAUSER.Value(64), 7.0F);
    EXPECT_EQ(project.YAUSER.Value(120), 7.0F);
    EXPECT_EQ(project.NOFFUSER.Integer(2), 9);
}

TEST(OffsetImport, StoringLeavesSectionAreasAndCompletenessAlone)
{
    CTestProject test;
    test.Project.SectionAreaUnit = 0;
    StoreOffsets(ReadSound(Text(kSound)), test.Project);
    EXPECT_EQ(test.Project.SectionAreaUnit, 0);
    EXPECT_EQ(test.Project.OffsetsComplete, 0);
    EXPECT_EQ(test.Project.YAUSER.changed, 0);
}

TEST(OffsetImport, TheCommandAsksForACommaSeparatedFile)
{
    CTestProject test;
    test.Project.InputFilePath = "/ships/Ferry.od7";
    EXPECT_EQ(test.File.ImportOffsets(), 0);
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    const CFileRequest& request = test.Recorder.Requests[0];
    EXPECT_EQ(request.Filter, "Ondara Files (*.csv; *.txt)|*.csv; *.txt|All Files (*.*)|*.*|");
    EXPECT_EQ(request.DefaultExtension, "*.csv");
    EXPECT_EQ(request.InitialName, "/ships/Ferry.od7");
    EXPECT_FALSE(request.OverwritePrompt);
}

TEST(OffsetImport, CancelEndsTheCommandWithoutAWord)
{
    CTestProject test;
    test.Project.InputFilePath = "Ferry.od7";
    EXPECT_EQ(test.File.ImportOffsets(), 0);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(test.Recorder.Beeps, 0);
    EXPECT_EQ(test.Project.InputFilePath, "Ferry.od7");
    EXPECT_EQ(test.Session.WorkDir, test.Folder.Path());
    EXPECT_EQ(test.Session.Modified, 0);
}

TEST(OffsetImport, TheCommandStoresRemembersTheFileAndMarksTheProject)
{
    CTestProject test;
    std::filesystem::create_directory(test.Folder.File("hulls"));
    const std::string path = test.Folder.Write("hulls/Ferry.csv", Text(kSound));
    test.Recorder.Files = {path};
    EXPECT_EQ(test.File.ImportOffsets(), 1);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(test.Project.NST.Integer(), 2);
    EXPECT_EQ(test.Project.ZAUSERBL.Value(63), 6.5F);
    EXPECT_EQ(test.Project.InputFilePath, path);
    EXPECT_EQ(test.Session.WorkDir, test.Folder.File("hulls"));
    EXPECT_EQ(test.Session.Modified, 1);
}

TEST(OffsetImport, TheDialogOpensInTheRememberedDirectory)
{
    CTestProject test;
    std::filesystem::create_directory(test.Folder.File("hulls"));
    test.Session.WorkDir = test.Folder.File("hulls");
    std::filesystem::current_path("/");
    EXPECT_EQ(test.File.ImportOffsets(), 0);
    EXPECT_EQ(std::filesystem::current_path(), test.Folder.File("hulls"));
}

TEST(OffsetImport, AFileThatCantBeOpenedIsToldWithABeepAndAStopIcon)
{
    CTestProject test;
    const std::string missing = test.Folder.File("Missing.csv");
    test.Recorder.Files = {missing, test.Folder.Path()};
    EXPECT_EQ(test.File.ImportOffsets(), 0);
    EXPECT_EQ(test.Project.InputFilePath, missing);
    EXPECT_EQ(test.File.ImportOffsets(), 0) << "a folder is no file";
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("Error Reading File: The file could not be read.",
                                                    "Error Reading File: The file could not be read."));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Stop, EIcon::Stop));
    EXPECT_EQ(test.Recorder.Beeps, 2);
    EXPECT_EQ(test.Session.Modified, 0);
}

TEST(OffsetImport, AFailureIsToldAndLeavesTheProjectUntouched)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.StationOrigin = 1;
    project.YAUSER.unit = kUnitBritish;
    const std::string path = test.Folder.Write("Ferry.txt", WithLine(11, "-1,2"));
    test.Recorder.Files = {path};
    EXPECT_EQ(test.File.ImportOffsets(), 0);
    EXPECT_THAT(
        test.Recorder.Messages,
        ElementsAre("Error Reading File: There was an error importing offsets. \n Error Line 11: Y Offset: "
                    "Min: 0.00, Max: 100,000 \n\n Please check your inputs."));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Stop));
    EXPECT_EQ(test.Recorder.Beeps, 1);
    EXPECT_EQ(test.Session.Modified, 0);
    EXPECT_EQ(project.InputFilePath, path);
    EXPECT_EQ(project.NST.Value(), -1.0F);
    EXPECT_EQ(project.StationOrigin, 1);
    EXPECT_EQ(project.YAUSER.unit, kUnitBritish);
    EXPECT_THAT(project.YAUSER.data, testing::Each(-1.0F));
    EXPECT_THAT(project.ZAUSERBL.data, testing::Each(-1.0F));
    EXPECT_THAT(project.NOFFUSER.data, testing::Each(3.0F));
}
