// The maker of engine files, held against what is known of the engine's formats.
#include "tests/core/results/CListingWalk.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

namespace
{
CEngineRun SmallRun()
{
    CEngineRun run;
    run.StationCount = 5;
    run.Headings = {0, 45, 180, 195};
    run.Speeds = {0, 12.5F};
    run.Seaways = {{1.5F, 8}, {4.25F, 10.5F}};
    run.FrequencyCount = 4;
    run.Rudder = true;
    run.Skeg = true;
    run.KeelPairs = 1;
    run.FinPairs = 2;
    run.Loads = true;
    run.LoadStations = {1.5F, 3};
    const char* const labels[] = {"Keel", "Draft_mark", "Label", "Enc LFE", "Freeboard", "Sickness"};
    for (int i = 0; i < 6; ++i)
    {
        CEnginePosition position{labels[i], 0.5F * static_cast<float>(i), -2, 9.5F, i};
        position.Interruptions = i % 2 == 0;
        position.Sickness = i > 1;
        position.BureauVeritas = i == 3;
        position.LongestExposure = i == 4;
        run.Positions.push_back(position);
    }
    return run;
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

int IntegerAt(const std::string& bytes, std::size_t offset)
{
    int value = 0;
    std::memcpy(&value, bytes.data() + offset, 4);
    return value;
}

float RealAt(const std::string& bytes, std::size_t offset)
{
    float value = 0;
    std::memcpy(&value, bytes.data() + offset, 4);
    return value;
}

std::string TextAt(const std::string& bytes, std::size_t offset, std::size_t width)
{
    const std::string text = bytes.substr(offset, width);
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// The length that the counts give, by the order of the format.
std::size_t BinaryLength(const CEngineRun& run)
{
    const auto words = [](auto... counts) { return (static_cast<std::size_t>(counts) * ... * 4); };
    const int h = run.HeadingCount();
    const int loads = run.Loads ? static_cast<int>(run.LoadStations.size()) : 0;
    const int positions = run.PositionCount();
    std::size_t seaway = 36 + words(3, 8, h);
    seaway += positions > 0 ? 54 + words(21, positions, h) : 0;
    seaway += loads > 0 ? 32 + words(10, loads, h) : 0;
    std::size_t speed = 80 + words(8, h, run.FrequencyCount, 2);
    speed += loads > 0 ? 38 + words(5, loads, h, run.FrequencyCount, 2) : 0;
    speed += run.Spectrum == 0 ? 0 : seaway * run.Seaways.size();
    const std::size_t still = loads > 0 ? words(loads) + words(4, run.StationCount) : 0;
    return 248 + still + words(1 + 3 * positions) + words(1 + run.SpeedCount()) + words(1 + h) +
           words(1 + 2 * run.SeawayCount()) + 12 + speed * run.Speeds.size() + 4;
}

/// Runs of every shape that the formats tell apart.
std::vector<CEngineRun> AllShapes()
{
    std::vector<CEngineRun> runs(9, SmallRun());
    runs[1].Spectrum = kSpectrumRegular;
    runs[2].OutputLevel = 1;
    runs[2].Metric = false;
    runs[3].OutputLevel = 0;
    runs[3].Positions.clear();
    runs[4].Loads = false;
    runs[4].MetacentreGiven = true;
    runs[4].GivenMetacentre = 1.25F;
    runs[5].Seaways.clear();
    runs[6].OverflowAt = 1;
    runs[6].RunTogetherAt = 2;
    runs[7].Speeds.clear();
    runs[8].FirstFrequency = 8; // encounter frequencies of two and three digits
    runs[8].FrequencyStep = 30;
    runs[8].EncounterFrequencies = {0.25F, 3.5F, 0.125F};
    return runs;
}
} // namespace

TEST(EngineRun, EachNumberOfTheListingStandsInItsPlace)
{
    for (const CEngineRun& run : AllShapes())
    {
        CListingWalk walk(run, EngineListing(run));
        walk.Walk();
        EXPECT_GT(walk.Numbers(), 40);
    }
}

TEST(EngineRun, SpectraWithDirectionsOfTheirOwnListThirteenHeadingsOfRegularWaves)
{
    CTestProject project;
    FillToMaximum(project.Project);
    for (const int spectrum : {6, 7, 8})
    {
        project.Project.SPECTRUM.Set(static_cast<float>(spectrum));
        project.Project.NSPEED.Set(1);
        project.Project.NSEAWAY.Set(2);
        CEngineRun run = EngineRunOf(project.Project);
        EXPECT_EQ(run.HeadingCount(), 24);
        EXPECT_EQ(run.Headings.back(), 345);
        const std::string listing = EngineListing(run);
        CListingWalk(run, listing).Walk();
        std::size_t blocks = 0;
        for (const std::string& line : Lines(listing))
        {
            blocks += line == " SHIP MOTIONS AT CG IN REGULAR WAVES" ? 1U : 0U;
        }
        EXPECT_EQ(blocks, 13U);
    }
}

TEST(EngineRun, ListingsOfTheSamplesHoldTheirNumbersInPlace)
{
    for (const char* sample : {"samples/Sample01.od7", "samples/Sample02.od7"})
    {
        CTestProject project;
        ASSERT_EQ(project.File.OpenPath(SourceFile(sample)), EOpened::Whole);
        const CEngineRun run = EngineRunOf(project.Project);
        CListingWalk walk(run, EngineListing(run));
        walk.Walk();
        EXPECT_GT(walk.Numbers(), 1000);
        EXPECT_EQ(EngineBinary(run).size(), BinaryLength(run));
    }
}

TEST(EngineRun, PositionsWithoutLoadsHaveThirteenCourses)
{
    CTestProject project;
    FillToMaximum(project.Project);
    project.Project.SPECTRUM.Set(7);
    project.Project.LOADFLAG.Set(1);
    EXPECT_EQ(EngineRunOf(project.Project).HeadingCount(), 13);
    project.Project.NPOS.Set(1);
    EXPECT_EQ(EngineRunOf(project.Project).HeadingCount(), 24);
}

TEST(EngineRun, NoLineOfTheListingIsLongerThan254Characters)
{
    CEngineRun run = SmallRun();
    run.Title = std::string(300, 't');
    run.Positions[0].Label = std::string(300, 'L');
    for (const std::string& line : Lines(EngineListing(run)))
    {
        EXPECT_LE(line.size(), 254U) << line;
    }
}

TEST(EngineRun, MarkerWordsStandInNoOtherLines)
{
    const CEngineRun run = SmallRun();
    for (const std::string& line : Lines(EngineListing(run)))
    {
        const auto holds = [&line](const char* word) { return line.find(word) != std::string::npos; };
        EXPECT_TRUE(!holds("Enc") || holds("| Enc        WL/L") || holds("    Wave    Enc    Roll")) << line;
        EXPECT_TRUE(!holds("Label") || holds("   Label     ") || holds("   (Label in the line above)"))
            << line;
        EXPECT_TRUE(!holds("LFE") || holds("LFE lat")) << line;
        EXPECT_TRUE(!holds("Sickness") || line == "   Motion Sickness Incidence") << line;
        EXPECT_TRUE(!holds("Depth") || line.find("   Depth ") == 0) << line;
        EXPECT_TRUE(!holds("Draft") || !holds("Label") || holds("Freeboard")) << line;
    }
}

TEST(EngineRun, LabelsArePrintedInLowerCaseAndOneWord)
{
    const std::string listing = EngineListing(SmallRun());
    EXPECT_NE(listing.find("\n   enc_lfe\n   (Label in the line above)"), std::string::npos);
    EXPECT_NE(listing.find("\n   enc_lfe               "), std::string::npos);
    EXPECT_EQ(listing.find("Enc LFE"), std::string::npos);
    EXPECT_EQ(listing.find("Draft_mark"), std::string::npos);
}

TEST(EngineRun, TheBinaryFileIsAsLongAsItsCountsSay)
{
    for (const CEngineRun& run : AllShapes())
    {
        const std::string binary = EngineBinary(run);
        EXPECT_EQ(binary.size(), BinaryLength(run));
        EXPECT_EQ(binary.substr(binary.size() - 4), "CBDW");
    }
}

TEST(EngineRun, TheHeadOfTheBinaryFileStandsAtItsOffsets)
{
    CEngineRun run = SmallRun();
    run.SpreadAngle = 60;
    const std::string binary = EngineBinary(run);
    EXPECT_EQ(TextAt(binary, 0, 20), "OE7 1.0");
    EXPECT_EQ(TextAt(binary, 20, 100), "Fri Nov 20 17:31:18 2026");
    EXPECT_EQ(TextAt(binary, 120, 20), "METRIC");
    EXPECT_EQ(TextAt(binary, 140, 20), "SALT");
    EXPECT_EQ(TextAt(binary, 160, 20), "boundary element");
    EXPECT_EQ(TextAt(binary, 180, 20), "BRETSCHNEIDER");
    EXPECT_EQ(RealAt(binary, 200), 120.0F);
    EXPECT_EQ(IntegerAt(binary, 204), 5);
    EXPECT_EQ(RealAt(binary, 224), 5.6F);
    EXPECT_EQ(RealAt(binary, 232), 60.0F);
    EXPECT_EQ(IntegerAt(binary, 244), 2);
    EXPECT_EQ(RealAt(binary, 248), 1.5F);
}

TEST(EngineRun, TheBodyOfTheBinaryFileHoldsItsNumbersInOrder)
{
    using E = EEngineNumber;
    const CEngineRun run = SmallRun();
    const std::string binary = EngineBinary(run);
    std::size_t at = 248 + 8 + 4 * 4 * 5;
    EXPECT_EQ(RealAt(binary, at - 4), static_cast<float>(MadeUp(E::Moment, 4)));
    EXPECT_EQ(IntegerAt(binary, at), 6); // positions
    at += 4 + 4 * 18;
    EXPECT_EQ(RealAt(binary, at - 4), 9.5F);
    EXPECT_EQ(IntegerAt(binary, at), 2); // speeds
    EXPECT_EQ(RealAt(binary, at + 8), 12.5F);
    EXPECT_EQ(IntegerAt(binary, at + 12), 4); // headings
    EXPECT_EQ(RealAt(binary, at + 28), 195.0F);
    EXPECT_EQ(IntegerAt(binary, at + 32), 2); // seaways
    EXPECT_EQ(RealAt(binary, at + 40), 4.25F);
    EXPECT_EQ(RealAt(binary, at + 48), 10.5F);
    EXPECT_EQ(IntegerAt(binary, at + 52), 4); // frequencies
    EXPECT_EQ(RealAt(binary, at + 56), 0.2F);
    EXPECT_EQ(RealAt(binary, at + 60), 0.1F);
    at += 64 + 80;
    // Of the mode 2, heading 1, frequency 3.
    EXPECT_EQ(RealAt(binary, at + 8 * (2 * 16 + 4 + 3)),
              static_cast<float>(MadeUp(E::RaoAmplitude, 0, 2, 1, 3)));
    at += 8 * 8 * 16 + 38;
    // Of the component 4, load station 1, heading 3, frequency 2: its phase.
    EXPECT_EQ(RealAt(binary, at + 8 * (4 * 32 + 16 + 12 + 2) + 4),
              static_cast<float>(MadeUp(E::LoadRaoPhase, 0, 4, 1, 3, 2)));
    at += 8 * 5 * 32 + 36;
    EXPECT_EQ(RealAt(binary, at + 4 * (2 * 32 + 7 * 4 + 3)),
              static_cast<float>(MadeUp(E::Rms, 0, 0, 2, 7, 3)));
    at += 4 * 3 * 32 + 54;
    EXPECT_EQ(RealAt(binary, at + 4 * (20 * 24 + 5 * 4 + 1)),
              static_cast<float>(MadeUp(E::LocalRms, 0, 0, 20, 5, 1)));
    at += 4 * 21 * 24 + 32;
    EXPECT_EQ(RealAt(binary, at + 4 * (9 * 8 + 4 + 2)),
              static_cast<float>(MadeUp(E::LoadPeriod, 0, 0, 4, 1, 2)));
}

TEST(EngineRun, NeighboursAreNeverAlike)
{
    std::set<double> numbers;
    for (int speed = 0; speed < 3; ++speed)
    {
        for (int seaway = 0; seaway < 3; ++seaway)
        {
            for (int heading = 0; heading < 10; ++heading)
            {
                numbers.insert(MadeUp(EEngineNumber::Interruption, speed, seaway, 1, heading, 2));
                numbers.insert(MadeUp(EEngineNumber::LoadRms, speed, seaway, 1, 2, heading));
            }
        }
    }
    EXPECT_EQ(numbers.size(), 180U);
}

TEST(EngineRun, AProjectsRunIsWhatItsInputAsksFor)
{
    CTestProject project;
    FillToMinimum(project.Project);
    CProjectData& p = project.Project;
    p.SPECTRUM.Set(2);
    p.BretHs[0] = 10;
    p.BretUnit = kUnitBritish;
    p.BretTp[0] = 9;
    p.NSPEED.Set(1);
    p.SPDKNOT.Set(10);
    p.SPDKNOT.unit = 1; // metres per second
    p.NPOS.Set(2);      // one is calculated
    p.XSTPOS.Set(3.5F);
    const CEngineRun run = EngineRunOf(p);
    EXPECT_EQ(run.FirstFrequency, 0.2F);
    EXPECT_EQ(run.FrequencyCount, 19);
    EXPECT_EQ(run.Headings, std::vector<float>{180});
    // As the texts of the input have it.
    EXPECT_EQ(run.Seaways.at(0).Height, 3.05F);
    EXPECT_EQ(run.Seaways.at(0).Period, 9);
    EXPECT_EQ(run.Speeds.at(0), 19.44F);
    ASSERT_EQ(run.PositionCount(), 1);
    EXPECT_EQ(run.Positions[0].Label, "Position1");
    EXPECT_FALSE(run.Loads);
    EXPECT_FALSE(run.MetacentreGiven);
    EXPECT_EQ(run.LiftColumns(), 0);
}

TEST(EngineRun, UserFrequenciesAreCountedFromTheFirstToTheLast)
{
    CTestProject project;
    FillToMaximum(project.Project);
    CProjectData& p = project.Project;
    EXPECT_EQ(EngineRunOf(p).FrequencyCount, 37); // 0.2 to 2.0 by 0.05
    EXPECT_EQ(EngineRunOf(p).EncounterFrequencies[1], 3.0F);
    p.DWVFREQ.Set(0.001F);
    EXPECT_EQ(EngineRunOf(p).FrequencyCount, 60);
    p.DWVFREQ.Set(0);
    EXPECT_EQ(EngineRunOf(p).FrequencyCount, 1);
}

TEST(EngineRun, ThePartsThatTheInputLeavesOutHaveNoColumns)
{
    CTestProject project;
    FillToMaximum(project.Project);
    CProjectData& p = project.Project;
    EXPECT_EQ(EngineRunOf(p).LiftColumns(), 15);
    EXPECT_EQ(EngineRunOf(p).ViscousColumns(), 14);
    p.IncludeBilgeKeels = 0;
    EXPECT_EQ(EngineRunOf(p).LiftColumns(), 10);
    p.AppendedHull = 0;
    EXPECT_EQ(EngineRunOf(p).LiftColumns(), 4);
    p.FINTANKSTAB.Set(2);
    EXPECT_EQ(EngineRunOf(p).LiftColumns(), 0);
}

TEST(EngineRun, TheLogsFirstWordTellsTheOutcome)
{
    EXPECT_EQ(Lines(EngineLog({})).front(), "0 completed without problems");
    EXPECT_EQ(Lines(EngineLog({}, {"GM not positive"})).front(), "1 completed with 1 warning(s)");
    EXPECT_EQ(Lines(EngineLog({}, {"GM not positive"})).at(1), "Note: GM not positive");
    EXPECT_EQ(Lines(EngineErrorLog({}, "no hull")).front(), "-1 error: no hull");
}

TEST(EngineRun, TablesHaveALineForEachCondition)
{
    const CEngineRun run = SmallRun();
    EXPECT_EQ(Lines(EngineCoefficientTable(run)).size(), 4U);
    EXPECT_EQ(Lines(EngineWaveForceTable(run)).size(), 10U);
}

TEST(EngineRun, FilesAreSpoiledAsAsked)
{
    const CEngineRun run = SmallRun();
    const std::string listing = EngineListing(run);
    EXPECT_EQ(WithoutMarker(listing, "Label").find("Label"), std::string::npos);
    EXPECT_EQ(Lines(WithoutMarker(listing, "GMFLAG")).size(), Lines(listing).size() - 1);
    EXPECT_EQ(Lines(FirstLines(listing, 12)).size(), 12U);
    EXPECT_EQ(FirstLines(listing, 100000), listing);
    EXPECT_EQ(WithCarriageReturns("a\n\nb\n"), "a\r\n\r\nb\r\n");
    const std::string binary = EngineBinary(run);
    EXPECT_EQ(WithoutEndMark(binary) + "CBDW", binary);
}

TEST(EngineRun, TheLargestRunHasItsCountsAtTheirLimits)
{
    const CEngineRun run = LargestEngineRun();
    EXPECT_EQ(run.SpeedCount(), 10);
    EXPECT_EQ(run.SeawayCount(), 10);
    EXPECT_EQ(run.HeadingCount(), 36);
    EXPECT_LE(*std::max_element(run.Headings.begin(), run.Headings.end()), 180);
    EXPECT_EQ(run.FrequencyCount, 60);
    EXPECT_EQ(run.PositionCount(), 10);
    EXPECT_EQ(run.LoadStationCount(), 21);
    EXPECT_EQ(run.LiftColumns(), 15);
    EXPECT_EQ(EngineBinary(run).size(), BinaryLength(run));
}
