#include "gui/results/CCustomizeResultsDlg.h"

#include "tests/support/gui/CFormDriver.h"
#include "tests/support/gui/ControlTable.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QListWidget>
#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
const char* const kLists[] = {"SelectedSpeeds", "SelectedHeadings", "SelectedSeaways", "SelectedPositions"};

CPageCounts Counts()
{
    CPageCounts counts;
    counts.SpectrumKind = kSpectrumBretschneider;
    counts.Speeds = {0, 12.5F, 25};
    counts.SpeedCount = 3;
    counts.Headings = {0, 45, 180};
    counts.WaveHeights = {1.5F, 3.25F};
    counts.WavePeriods = {7, 9.75F};
    counts.SeawayCount = 2;
    counts.LoadStations = {2, 5, 10.5F};
    counts.LoadStationCount = 3;
    counts.StationCount = 21;
    counts.FreqCount = 20;
    counts.OutSys = 1;
    counts.SlamPositions = 1;
    return counts;
}

struct CCustomizeCase : CFormProject
{
    explicit CCustomizeCase(std::initializer_list<EReportSection> sections)
    {
        Flags.fill(kSectionNotSelected);
        for (const EReportSection section : sections)
        {
            Flags[section] = kSectionSelected;
        }
        for (auto* selection : {&Project.SelectedSpeeds, &Project.SelectedHeadings, &Project.SelectedSeaways,
                                &Project.SelectedPositions})
        {
            *selection = {99}; // of an earlier report
        }
    }

    CFormDriver Open() { return CFormDriver(std::make_unique<CCustomizeResultsDlg>(Context, Counts, Flags)); }

    CPageCounts Counts = ::Counts();
    CReportFlags Flags;
};

std::vector<std::string> Shown(CFormDriver& form)
{
    std::vector<std::string> shown;
    for (const char* name : kLists)
    {
        const std::string button = std::string(name) + ".SelectAll";
        EXPECT_EQ(form.Find<QListWidget>(name).isVisible(), form.Find<QWidget>(button.c_str()).isVisible());
        if (form.Find<QListWidget>(name).isVisible())
        {
            shown.emplace_back(name);
        }
    }
    return shown;
}

std::vector<std::string> Entries(CFormDriver& form, const char* name)
{
    const auto& list = form.Find<QListWidget>(name);
    std::vector<std::string> entries;
    for (int row = 0; row < list.count(); ++row)
    {
        entries.push_back(list.item(row)->text().toStdString());
    }
    return entries;
}

void ClickRow(CFormDriver& form, const char* name, int row)
{
    auto& list = form.Find<QListWidget>(name);
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualItemRect(list.item(row)).center());
}

bool IsRed(CFormDriver& form)
{
    return form.Find<QLabel>("PageCount").palette().color(QPalette::WindowText) == QColor(Qt::red);
}
} // namespace

TEST(CustomizeResults, ShowsTheListsThatTheSectionsUse)
{
    const std::pair<EReportSection, std::vector<std::string>> cases[] = {
        {kSectionMotionRao, {kLists[0], kLists[1]}},
        {kSectionLoadRao, {kLists[0], kLists[1], kLists[3]}},
        {kSectionRollDamping, {kLists[0], kLists[1], kLists[2]}},
        {kSectionRms, {kLists[0], kLists[2]}},
        {kSectionRmsShortCrested, {kLists[0], kLists[2]}},
        {kSectionRmsLoads, {kLists[0], kLists[2], kLists[3]}},
        {kSectionSlamming, {kLists[0], kLists[2]}},
        {kSectionMotionInterruption, {kLists[0], kLists[2]}},
        {kSectionMotionSickness, {kLists[0], kLists[2]}},
        {kSectionHydrostatics, {}}};
    for (const auto& [section, lists] : cases)
    {
        CCustomizeCase test({section});
        CFormDriver form = test.Open();
        EXPECT_EQ(Shown(form), lists) << section;
    }
}

TEST(CustomizeResults, HasItsTitleAndTheTextsOfTheRun)
{
    CCustomizeCase test({kSectionLoadRao});
    CFormDriver form = test.Open();
    EXPECT_EQ(form.Form().windowTitle(), "Customize Results");
    EXPECT_THAT(Entries(form, "SelectedSpeeds"), ElementsAre("0.00", "12.50", "25.00"));
    EXPECT_THAT(Entries(form, "SelectedHeadings"), ElementsAre("0.00", "45.00", "180.00"));
    EXPECT_THAT(Entries(form, "SelectedSeaways"), ElementsAre("1: 1.50 m, 7.00 s", "2: 3.25 m, 9.75 s"));
    EXPECT_THAT(Entries(form, "SelectedPositions"), ElementsAre("2.00", "5.00", "10.50"));
}

TEST(CustomizeResults, StationsCountFromTheEndThatTheProjectNames)
{
    CCustomizeCase test({kSectionLoadRao});
    test.Project.StationOrigin = 1;
    CFormDriver form = test.Open();
    EXPECT_THAT(Entries(form, "SelectedPositions"), ElementsAre("18.00", "15.00", "9.50"));
}

TEST(CustomizeResults, SeawaysAreInTheOutputSystemAndWithoutNumbersWhereTheyHaveNone)
{
    CCustomizeCase test({kSectionRms});
    test.Counts.OutSys = 0;
    EXPECT_EQ(Entries(*std::make_unique<CFormDriver>(test.Open()), "SelectedSeaways").front(),
              "1: 1.50 ft, 7.00 s");
    test.Counts.SpectrumKind = kSpectrumTenParameter;
    CFormDriver form = test.Open();
    EXPECT_THAT(Entries(form, "SelectedSeaways"), ElementsAre("Seaway 1", "Seaway 2"));
}

TEST(CustomizeResults, NothingIsSelectedAtFirst)
{
    CCustomizeCase test({kSectionMotionRao});
    CFormDriver form = test.Open();
    EXPECT_THAT(form.Find<QListWidget>("SelectedSpeeds").selectedItems(), IsEmpty());
    EXPECT_EQ(form.Caption("PageCount"), "1");
}

TEST(CustomizeResults, TheEstimateFollowsEveryChange)
{
    CCustomizeCase test({kSectionMotionRao});
    CFormDriver form = test.Open();
    form.Click("SelectedSpeeds.SelectAll");
    EXPECT_EQ(form.Caption("PageCount"), "1");
    ClickRow(form, "SelectedHeadings", 1);
    EXPECT_EQ(form.Caption("PageCount"), "7"); // 2 x 3 x 1 + 1
    ClickRow(form, "SelectedHeadings", 2);
    EXPECT_EQ(form.Caption("PageCount"), "13");
    ClickRow(form, "SelectedHeadings", 1); // takes it out again
    EXPECT_EQ(form.Caption("PageCount"), "7");
    form.Click("SelectedHeadings.Clear");
    EXPECT_EQ(form.Caption("PageCount"), "1");
}

TEST(CustomizeResults, OkStoresTheShownListsAndEmptiesTheOthers)
{
    CCustomizeCase test({kSectionRmsLoads});
    CFormDriver form = test.Open();
    ClickRow(form, "SelectedSpeeds", 2);
    ClickRow(form, "SelectedSpeeds", 0);
    ClickRow(form, "SelectedSeaways", 1);
    form.Click("SelectedPositions.SelectAll");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Form().result(), QDialog::Accepted);
    EXPECT_THAT(test.Project.SelectedSpeeds, ElementsAre(0, 2));
    EXPECT_THAT(test.Project.SelectedHeadings, IsEmpty());
    EXPECT_THAT(test.Project.SelectedSeaways, ElementsAre(1));
    EXPECT_THAT(test.Project.SelectedPositions, ElementsAre(0, 1, 2));
    EXPECT_EQ(static_cast<CCustomizeResultsDlg&>(form.Form()).PageCount(), 2 * 1 * 3);
}

TEST(CustomizeResults, CancelStoresNothing)
{
    CCustomizeCase test({kSectionMotionRao});
    CFormDriver form = test.Open();
    form.Click("SelectedSpeeds.SelectAll");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Form().result(), QDialog::Rejected);
    EXPECT_THAT(test.Project.SelectedSpeeds, ElementsAre(99));
    EXPECT_THAT(test.Project.SelectedHeadings, ElementsAre(99));
}

TEST(CustomizeResults, Refuses500PagesAndTakes499)
{
    CCustomizeCase test({kSectionSlamming});
    test.Counts.SlamPositions = 50;
    test.Counts.SpeedCount = 10;
    test.Counts.Speeds.assign(10, 12);
    CFormDriver form = test.Open();
    form.Click("SelectedSpeeds.SelectAll");
    ClickRow(form, "SelectedSeaways", 0);
    EXPECT_EQ(form.Caption("PageCount"), "500");
    EXPECT_TRUE(IsRed(form));
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("Error: The data generated by these selections will be greater than 500 pages.\n"
                            "This exceeds the capacity of OndaraView.\n"
                            "Please click on the Help button for further information"));
    EXPECT_THAT(test.Project.SelectedSpeeds, ElementsAre(99));
    ClickRow(form, "SelectedSpeeds", 0);
    EXPECT_EQ(form.Caption("PageCount"), "450");
    EXPECT_FALSE(IsRed(form));

    CCustomizeCase least({kSectionSlamming});
    least.Counts.SlamPositions = 499;
    CFormDriver other = least.Open();
    ClickRow(other, "SelectedSpeeds", 0);
    ClickRow(other, "SelectedSeaways", 0);
    EXPECT_EQ(other.Caption("PageCount"), "499");
    EXPECT_FALSE(IsRed(other));
    other.Ok();
    EXPECT_FALSE(other.IsOpen());
    EXPECT_THAT(least.Recorder.Messages, IsEmpty());
}

TEST(CustomizeResults, TellsOfAListWithoutASelection)
{
    CCustomizeCase test({kSectionMotionRao});
    CFormDriver form = test.Open();
    form.Click("SelectedSpeeds.SelectAll");
    EXPECT_EQ(form.Caption("Hint"), "Select at least one entry in each list.");
    form.Click("SelectedHeadings.SelectAll");
    EXPECT_EQ(form.Caption("Hint"), "");
}

TEST(CustomizeResults, TheKeyboardWalksFromListToListAndTheSpaceBarSelects)
{
    CCustomizeCase test({kSectionMotionRao});
    CFormDriver form = test.Open();
    EXPECT_EQ(form.Focus(), "SelectedSpeeds");
    form.Press(Qt::Key_Down);
    form.Press(Qt::Key_Space);
    EXPECT_EQ(form.Find<QListWidget>("SelectedSpeeds").selectedItems().size(), 1);
    std::vector<std::string> stops;
    for (int k = 0; k < 8; ++k)
    {
        form.Press(Qt::Key_Tab);
        stops.push_back(form.Focus());
    }
    EXPECT_THAT(stops,
                ElementsAre("SelectedSpeeds.SelectAll", "SelectedSpeeds.Clear", "SelectedHeadings",
                            "SelectedHeadings.SelectAll", "SelectedHeadings.Clear", "OK", "Cancel", "Help"));
    form.Press(Qt::Key_Space);
    EXPECT_THAT(test.HelpTopics, ElementsAre(800));
}

TEST(CustomizeResults, EnterInAListDoesNotCloseTheForm)
{
    CCustomizeCase test({kSectionMotionRao});
    CFormDriver form = test.Open();
    form.Press(Qt::Key_Return);
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Focus(), "SelectedSpeeds.SelectAll");
}

TEST(CustomizeResults, HasItsControls)
{
    CCustomizeCase customize({kSectionMotionRao});
    CFormDriver form = customize.Open();
    EXPECT_EQ(form.Form().windowTitle(), "Customize Results");
    using enum EControl;
    ExpectControls(form.Form(), WithButtons({{"SelectedSpeeds", List, "Ship Speeds"},
                                             {"SelectedSpeeds.SelectAll", Button, "Select All"},
                                             {"SelectedSpeeds.Clear", Button, "Clear"},
                                             {"SelectedHeadings", List, "Ship Direction"},
                                             {"SelectedHeadings.SelectAll", Button, "Select All"},
                                             {"SelectedHeadings.Clear", Button, "Clear"},
                                             {"SelectedSeaways", List, "Seaway"},
                                             {"SelectedSeaways.SelectAll", Button, "Select All"},
                                             {"SelectedSeaways.Clear", Button, "Clear"},
                                             {"SelectedPositions", List, "Load Position"},
                                             {"SelectedPositions.SelectAll", Button, "Select All"},
                                             {"SelectedPositions.Clear", Button, "Clear"},
                                             {"PageCount", Readout, "Number of Pages:"}}));
}
