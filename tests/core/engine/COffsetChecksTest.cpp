#include "core/engine/COffsetChecks.h"

#include "tests/core/engine/CEngineProject.h"
#include "tests/support/StationPoints.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr const char* kSatisfactory = "Offset Checks: Geometry offsets are satisfactory.";
constexpr const char* kLong =
    "Input Warning: There are hull definition sectional offset segments that are long. \nThis may degrade "
    "the fidelity of the hydrodynamic modelling. \n\nWould you like to divide these segments into pieces?";
constexpr const char* kNegative = "Warning: There are Z offset points with values less than 0!!";

std::string Pair(const std::string& station)
{
    return "Input Error: Y sectional offsets - Station " + station +
           ": 2 consecutive values of 0.0 exactly on the centreline at the keel will result in a calculation "
           "error. \n\nPlease review your inputs";
}

std::string Few(const std::string& stations)
{
    return "Input Warning: Stations " + stations +
           " have relatively few points defining them, when compared to the rest of the vessel.\n\nWould you "
           "like to modify these stations?";
}

/// The message of two rows: a row is its number, Y and Z, as they are shown.
std::string Order(const std::string& station, const std::vector<std::string>& first,
                  const std::vector<std::string>& second)
{
    return "Input Error: Station " + station + ": Rows " + first[0] + " and " + second[0] +
           " may be ordered incorrectly. \n\nRow " + first[0] + ": Y offset: " + first[1] +
           " Z offset: " + first[2] + " \nRow " + second[0] + ": Y offset: " + second[1] +
           " Z offset: " + second[2] + "  \n\nInterchange these 2 rows?";
}

/// The four options: segment lengths, the same before a run, negative Z, the same before a run.
using COptions = std::array<int, 4>;

/// Notes what the options are when a message is shown.
class CWatcher : public CRecorder
{
public:
    explicit CWatcher(const CProjectData& project) : m_project(project) {}

    void MessageBox(const std::string& text, const std::string& title, EIcon icon) override
    {
        CRecorder::MessageBox(text, title, icon);
        Seen.push_back(Options());
    }
    COptions Options() const
    {
        return {m_project.ChkSegLenInter, m_project.ChkSegLenPreRun, m_project.ChkNegZInter,
                m_project.ChkNegZPreRun};
    }

    std::vector<COptions> Seen;

private:
    const CProjectData& m_project;
};

/// A hull of five stations that nothing is wrong with, at a draft of 6.25, and the checks of it.
struct CChecksTest : CEngineProject
{
    CChecksTest()
    {
        SetGoodHull(Project, 5);
        Project.TRIMST.Set(0);
        Checks.OpenOffsetEditor = [this]
        {
            Opened.push_back(Project.OffsetEditStation);
            OptionsAtOpening = Watcher.Options();
        };
        Checks.Modified = [this] { ++Changes; };
    }

    // A fault for each check.
    void PairAt(int station) { SetStation(Project, station, {{0, 0}, {0, 1}, {1, 2}}); }
    void DisorderAt(int station)
    {
        SetStation(Project, station, {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {2.5F, 1.5F}});
    }
    void LongSegmentAt(int station) { SetStation(Project, station, Wall({1, 1, 1, 3, 1})); }
    void FewPointsAt(int station) { SetStation(Project, station, Wall({3, 3})); }
    void NegativeZ() { Project.ZAUSERBL.Set(0, -0.5F); }

    void LoadByDisplacement()
    {
        Project.TRIMDEF.Set(1);
        Project.DISPUSER.Set(5000);
        Project.LCGPUSER.Set(50);
    }

    CWatcher Watcher{Project};
    bool Patient = true;
    std::vector<int> Opened; ///< the stations at which the offset editor was opened
    COptions OptionsAtOpening = {-1, -1, -1, -1};
    int Changes = 0;
    COffsetChecks Checks{Project, Folder.Path(), Watcher.Platform,
                         [this]
                         {
                             Watcher.Running = false;
                             return Patient;
                         }};
    const std::vector<std::string>& Messages = Watcher.Messages;
};
} // namespace

TEST(OffsetChecks, AGoodHullIsSatisfactory)
{
    CChecksTest test;
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(kSatisfactory));
    EXPECT_THAT(test.Watcher.Icons, ElementsAre(EIcon::None));
    EXPECT_THAT(test.Opened, IsEmpty());
    EXPECT_THAT(test.Watcher.Started, IsEmpty());
}

TEST(OffsetChecks, OfAHullOfSectionAreasNothingIsChecked)
{
    for (const float definition : {1.0F, -1.0F})
    {
        CChecksTest test;
        test.Project.HULLDEF.Set(definition);
        test.PairAt(0);
        test.NegativeZ();
        test.LoadByDisplacement();
        EXPECT_EQ(test.Checks.CheckOffsets(true, true), 1);
        EXPECT_THAT(test.Watcher.Events, IsEmpty());
    }
}

TEST(OffsetChecks, APairOnTheCentrelineIsToldAndTheEditorOpenedAtItsStation)
{
    CChecksTest test;
    test.PairAt(2);
    test.PairAt(3);
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(Pair("2")));
    EXPECT_THAT(test.Watcher.Icons, ElementsAre(EIcon::Stop));
    EXPECT_THAT(test.Opened, ElementsAre(2));
    EXPECT_EQ(test.Project.OffsetEditRequested, 1);
}

TEST(OffsetChecks, StationsAreNumberedAsInTheProjectAlsoWithStationZeroAft)
{
    CChecksTest test;
    test.Project.StationOrigin = 1;
    test.PairAt(1);
    test.Checks.Run();
    EXPECT_THAT(test.Messages, ElementsAre(Pair("1")));
}

TEST(OffsetChecks, APairStopsBeforeTheRowOrderIsLookedAt)
{
    CChecksTest test;
    test.DisorderAt(0);
    test.PairAt(4);
    test.NegativeZ();
    test.LoadByDisplacement();
    EXPECT_EQ(test.Checks.CheckOffsets(true, true), 0);
    EXPECT_THAT(test.Watcher.Events, ElementsAre(Pair("4")));
}

TEST(OffsetChecks, StationsBehindTheLastAreNotLookedAt)
{
    CChecksTest test;
    test.PairAt(5);
    SetStation(test.Project, 6, {{5, 5}, {4, 4}});
    test.LongSegmentAt(7);
    test.FewPointsAt(8);
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(kSatisfactory));
}

TEST(OffsetChecks, RowsInTheWrongOrderAreInterchangedOnYes)
{
    CChecksTest test;
    CProjectData& p = test.Project;
    SetStation(p, 1, {{0, 0}, {1, 0}, {2.5F, 1.25F}, {2, 0.9999F}, {3, 2}});
    test.Watcher.Answer = true;
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Messages,
                ElementsAre(Order("1", {"3", "2.500", "1.250"}, {"4", "2.000", "1.000"}), kSatisfactory));
    EXPECT_EQ(test.Watcher.Icons.front(), EIcon::Warning);
    EXPECT_EQ(p.YAUSER.Value(62), 2);
    EXPECT_EQ(p.ZAUSERBL.Value(62), 0.9999F);
    EXPECT_EQ(p.YAUSER.Value(63), 2.5F);
    EXPECT_EQ(p.ZAUSERBL.Value(63), 1.25F);
    EXPECT_EQ(p.YAUSER.changed, 1);
    EXPECT_EQ(p.ZAUSERBL.changed, 1);
    EXPECT_EQ(test.Changes, 1);
    EXPECT_THAT(test.Opened, IsEmpty());
}

TEST(OffsetChecks, OnNoTheyStayAndTheChecksGoOn)
{
    CChecksTest test;
    SetStation(test.Project, 1, {{0, 0}, {1, 0}, {3, 1}, {2, 0.5F}, {4, 1}});
    const std::vector<float> y = test.Project.YAUSER.data;
    const std::vector<float> z = test.Project.ZAUSERBL.data;
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Messages,
                ElementsAre(Order("1", {"3", "3.000", "1.000"}, {"4", "2.000", "0.500"}), kSatisfactory));
    EXPECT_EQ(test.Project.YAUSER.data, y);
    EXPECT_EQ(test.Project.ZAUSERBL.data, z);
}

TEST(OffsetChecks, AfterAnInterchangeTheScanGoesOnWithTheNewRows)
{
    const std::vector<CPoint> falling = {{3, 3}, {2, 2}, {1, 1}};
    CChecksTest yes;
    SetStation(yes.Project, 0, falling);
    yes.Watcher.Answer = true;
    yes.Checks.Run();
    EXPECT_THAT(yes.Messages,
                ElementsAre(Order("0", {"1", "3.000", "3.000"}, {"2", "2.000", "2.000"}),
                            Order("0", {"2", "3.000", "3.000"}, {"3", "1.000", "1.000"}), kSatisfactory));
    EXPECT_EQ(yes.Project.YAUSER.Value(0), 2);
    EXPECT_EQ(yes.Project.YAUSER.Value(1), 1);
    EXPECT_EQ(yes.Project.YAUSER.Value(2), 3);
    CChecksTest no;
    SetStation(no.Project, 0, falling);
    no.Checks.Run();
    EXPECT_THAT(no.Messages,
                ElementsAre(Order("0", {"1", "3.000", "3.000"}, {"2", "2.000", "2.000"}),
                            Order("0", {"2", "2.000", "2.000"}, {"3", "1.000", "1.000"}), kSatisfactory));
}

TEST(OffsetChecks, TheLastRowsOfAStationAreInOrderToo)
{
    CChecksTest test;
    std::vector<CPoint> points = Wall(std::vector<float>(kMaxOffsets - 1, 1));
    points[59] = {0.5F, 0.25F};
    SetStation(test.Project, 4, points);
    test.Checks.CheckOffsets(false, false);
    EXPECT_THAT(test.Messages, ElementsAre(Order("4", {"59", "1.000", "58.000"}, {"60", "0.500", "0.250"})));
    SetStation(test.Project, 3, Wall(std::vector<float>(kMaxOffsets - 1, 1)));
    SetStation(test.Project, 4, {{0, 0}, {1, 1}}); // lower than the last row of the station before it
    test.Watcher.Messages.clear();
    test.Checks.CheckOffsets(false, false);
    EXPECT_THAT(test.Messages, IsEmpty());
}

TEST(OffsetChecks, LongSegmentsEndTheCheckWithoutAWordOnNo)
{
    CChecksTest test;
    test.LongSegmentAt(1);
    test.LongSegmentAt(3);
    test.FewPointsAt(2);
    test.NegativeZ();
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(kLong));
    EXPECT_THAT(test.Watcher.Icons, ElementsAre(EIcon::Warning));
    EXPECT_THAT(test.Opened, IsEmpty());
    EXPECT_EQ(test.Project.OffsetEditStation, 3);
    EXPECT_EQ(test.Project.OffsetEditRequested, 0);
    EXPECT_EQ(test.Project.OffsetSegmentsRequested, 0);
}

TEST(OffsetChecks, OnYesTheEditorIsOpenedToDivideAtTheLastStationOfALongSegment)
{
    CChecksTest test;
    test.LongSegmentAt(1);
    test.LongSegmentAt(3);
    test.NegativeZ();
    test.Watcher.Answer = true;
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(kLong));
    EXPECT_THAT(test.Opened, ElementsAre(3));
    EXPECT_EQ(test.Project.OffsetEditRequested, 1);
    EXPECT_EQ(test.Project.OffsetSegmentsRequested, 1);
}

TEST(OffsetChecks, ALongSegmentAboveTheWaterlineIsFreeAtEachStation)
{
    for (const auto& [draft, trim, found] :
         std::vector<std::tuple<float, float, bool>>{{6.01F, 0.0F, true}, // segments from Z 3 to Z 6
                                                     {6.0F, 0.0F, false},
                                                     {5.9F, 0.3F, true}, // 0.15 more at the last station
                                                     {5.9F, -0.3F, false},
                                                     {-1.0F, 0.0F, true}}) // not given
    {
        CChecksTest test;
        test.LongSegmentAt(4);
        test.Project.DRAFTMID.Set(draft);
        test.Project.TRIMST.Set(trim);
        EXPECT_EQ(test.Checks.CheckOffsets(true, true), found ? 0 : 1) << draft;
    }
}

TEST(OffsetChecks, TheWaterlineIsInFeetWithBritishInputWhateverTheOffsetsAreIn)
{
    CChecksTest test;
    test.LongSegmentAt(2);
    test.Project.DRAFTMID.Set(2); // 6.56 feet
    test.Project.INSYS.Set(0);
    EXPECT_EQ(test.Checks.CheckOffsets(true, true), 0);
    test.Project.INSYS.Set(1);
    EXPECT_EQ(test.Checks.CheckOffsets(true, true), 1);
}

TEST(OffsetChecks, ALongSegmentOnTheCentrelineIsFreeInTheFirstHalf)
{
    for (const auto& [origin, station, found] : std::vector<std::tuple<int, int, bool>>{
             {0, 1, false}, {0, 2, true}, {0, 3, true}, {1, 1, true}, {1, 2, true}, {1, 3, false}})
    {
        CChecksTest test;
        test.Project.StationOrigin = origin;
        SetStation(test.Project, station, {{1, 0}, {2, 0}, {0, 0}, {0, 6}, {1, 6}, {2, 6}, {3, 6}, {4, 6}});
        EXPECT_EQ(test.Checks.CheckOffsets(true, true), found ? 0 : 1) << origin << ", " << station;
    }
}

TEST(OffsetChecks, StationsOfFewPointsAreAskedAboutAndNoGoesOn)
{
    CChecksTest test;
    test.FewPointsAt(1);
    test.FewPointsAt(4);
    test.Project.OffsetSegmentsRequested = 1;
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(Few("1 and 4"), kSatisfactory));
    EXPECT_EQ(test.Watcher.Icons.front(), EIcon::Warning);
    EXPECT_THAT(test.Opened, IsEmpty());
    EXPECT_EQ(test.Project.OffsetEditRequested, 0);
    EXPECT_EQ(test.Project.OffsetSegmentsRequested, 1);
}

TEST(OffsetChecks, OnYesTheEditorIsOpenedAtTheFirstOfThem)
{
    CChecksTest test;
    test.FewPointsAt(1);
    test.FewPointsAt(4);
    test.NegativeZ();
    test.Project.OffsetSegmentsRequested = 1;
    test.Watcher.Answer = true;
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(Few("1 and 4")));
    EXPECT_THAT(test.Opened, ElementsAre(1));
    EXPECT_EQ(test.Project.OffsetEditRequested, 1);
    EXPECT_EQ(test.Project.OffsetSegmentsRequested, 0);
}

TEST(OffsetChecks, NegativeZWarnsAndIsSatisfactoryAllTheSame)
{
    CChecksTest test;
    test.NegativeZ();
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(kNegative, kSatisfactory));
    EXPECT_EQ(test.Watcher.Icons.front(), EIcon::Warning);
}

TEST(OffsetChecks, NegativeZIsAlsoSeenInSlotsThatAreLeftFromEarlierEditing)
{
    for (const int slot : {7, 59, 5 * kMaxOffsets, kMaxStations * kMaxOffsets - 1})
    {
        CChecksTest test;
        test.Project.ZAUSERBL.Set(slot, -2);
        EXPECT_TRUE(test.Checks.Run());
        EXPECT_THAT(test.Messages, ElementsAre(kNegative, kSatisfactory));
    }
}

TEST(OffsetChecks, SegmentsAndPointsAreCheckedOnDemandOnly)
{
    CChecksTest test;
    test.LongSegmentAt(1);
    test.FewPointsAt(2);
    test.NegativeZ();
    test.LoadByDisplacement();
    EXPECT_EQ(test.Checks.CheckOffsets(false, true), 1);
    EXPECT_THAT(test.Watcher.Events, ElementsAre(kNegative));
}

TEST(OffsetChecks, NegativeZIsCheckedOnDemandOnly)
{
    CChecksTest test;
    test.NegativeZ();
    EXPECT_EQ(test.Checks.CheckOffsets(true, false), 1);
    EXPECT_THAT(test.Messages, IsEmpty());
}

TEST(OffsetChecks, TheWaterlineIsCalculatedBetweenRowOrderAndSegments)
{
    CChecksTest test;
    test.DisorderAt(0);
    test.FewPointsAt(2);
    test.NegativeZ();
    test.LoadByDisplacement();
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Watcher.Events,
                ElementsAre(Order("0", {"6", "3.000", "2.000"}, {"7", "2.500", "1.500"}), //
                            "start OE7.exe in " + test.Folder.Path(), "wait", "arrow", Few("2"), kNegative,
                            kSatisfactory));
}

TEST(OffsetChecks, TheEnginesDraftTellsWhatIsUnderWater)
{
    for (const float draft : {6.0F, 6.01F})
    {
        CChecksTest test;
        test.LongSegmentAt(1); // from Z 3 to Z 6
        test.LoadByDisplacement();
        test.Watcher.AtStart = [&]
        {
            std::string results(224, '\0');
            results[120] = 'M';
            std::memcpy(results.data() + 216, &draft, sizeof draft);
            test.Folder.Write("ondara7.bin", results);
        };
        EXPECT_EQ(test.Checks.CheckOffsets(true, true), draft > 6 ? 0 : 1);
    }
}

TEST(OffsetChecks, GivingUpTheEngineEndsThem)
{
    CChecksTest test;
    test.LongSegmentAt(1);
    test.NegativeZ();
    test.LoadByDisplacement();
    test.Patient = false;
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_THAT(test.Messages, IsEmpty());
}

TEST(OffsetChecks, OptionsAreOnWhileTheirStepRunsAndPutBack)
{
    CChecksTest test;
    test.DisorderAt(0);
    test.FewPointsAt(2);
    test.NegativeZ();
    const COptions before = {0, 2, 0, 0};
    test.Project.ChkSegLenPreRun = 2;
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(testing::HasSubstr("Rows"), Few("2"), kNegative, kSatisfactory));
    EXPECT_THAT(test.Watcher.Seen, ElementsAre(before, COptions{1, 1, 0, 0}, COptions{0, 2, 1, 1}, before));
    EXPECT_EQ(test.Watcher.Options(), before);
}

TEST(OffsetChecks, OptionsArePutBackAlsoWhereAStepStops)
{
    CChecksTest test;
    test.LongSegmentAt(2);
    EXPECT_FALSE(test.Checks.Run());
    test.SetStations(0);
    SetGoodHull(test.Project, 5);
    test.FewPointsAt(2);
    test.Watcher.Answer = true;
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_THAT(test.Messages, ElementsAre(kLong, Few("2")));
    EXPECT_THAT(test.Watcher.Seen, ElementsAre(COptions{1, 0, 0, 0}, COptions{1, 1, 0, 0}));
    EXPECT_EQ(test.Watcher.Options(), COptions{});
}

TEST(OffsetChecks, TheEditorFindsTheOptionsAsTheUserHasThem)
{
    CChecksTest test;
    test.LongSegmentAt(2);
    test.Watcher.Answer = true;
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_THAT(test.Opened, ElementsAre(2));
    EXPECT_EQ(test.OptionsAtOpening, COptions{});
}

TEST(OffsetChecks, AnEarlierHullsWaterlineIsForgottenAlsoWhereTheyStopBeforeTheEngine)
{
    CChecksTest test;
    test.LoadByDisplacement();
    test.PairAt(2);
    test.Project.WorkingDraft = 7;
    test.Project.WorkingTrim = 1;
    EXPECT_FALSE(test.Checks.Run());
    EXPECT_EQ(test.Project.WorkingDraft, kNotGiven);
    EXPECT_EQ(test.Project.WorkingTrim, 0);
}

TEST(OffsetChecks, WithoutADraftAllIsUnderWaterAlsoWithATrim)
{
    CChecksTest test;
    test.Project.DRAFTMID.Set(kNotGiven);
    test.Project.TRIMST.Set(50);
    for (const int station : {0, 4})
    {
        test.LongSegmentAt(station);
        EXPECT_FALSE(test.Checks.Run());
        SetGoodHull(test.Project, 5);
        test.Project.DRAFTMID.Set(kNotGiven);
        test.Project.TRIMST.Set(50);
    }
    EXPECT_THAT(test.Messages, ElementsAre(kLong, kLong));
}

TEST(OffsetChecks, OptionsThatAreOnStayOn)
{
    CChecksTest test;
    CProjectData& p = test.Project;
    p.ChkSegLenInter = p.ChkSegLenPreRun = p.ChkNegZInter = p.ChkNegZPreRun = 1;
    EXPECT_TRUE(test.Checks.Run());
    EXPECT_EQ(test.Watcher.Options(), (COptions{1, 1, 1, 1}));
}

TEST(OffsetChecks, AHullWithoutStationsIsSatisfactory)
{
    for (const float stations : {0.0F, -1.0F, -1e30F, std::numeric_limits<float>::quiet_NaN()})
    {
        CChecksTest test;
        test.PairAt(0);
        test.Project.NST.Set(stations);
        EXPECT_TRUE(test.Checks.Run());
        EXPECT_THAT(test.Messages, ElementsAre(kSatisfactory));
    }
}

TEST(OffsetChecks, NumbersOfWhateverKindComeToAnEnd)
{
    using CLimits = std::numeric_limits<float>;
    for (const float value : {CLimits::quiet_NaN(), CLimits::infinity(), -CLimits::infinity(), CLimits::max(),
                              -CLimits::max(), CLimits::denorm_min()})
    {
        CChecksTest test;
        CProjectData& p = test.Project;
        for (CParamArray* field : {&p.YAUSER, &p.ZAUSERBL})
        {
            for (int k = 0; k < field->Capacity(); k += 2)
            {
                field->Set(k, value);
            }
        }
        for (CParamArray* field : {&p.SHIPLEN, &p.DRAFTMID, &p.TRIMST, &p.INSYS, &p.NST})
        {
            field->Set(value);
            test.Watcher.Answer = !test.Watcher.Answer;
            test.Checks.Run();
        }
        EXPECT_TRUE(std::all_of(test.Opened.begin(), test.Opened.end(),
                                [](int station) { return station >= 0 && station < kMaxStations; }));
    }
}
