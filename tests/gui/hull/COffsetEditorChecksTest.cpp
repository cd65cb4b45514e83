// What the offset editor looks at before it leaves a station and at OK.
#include "gui/hull/COffsetEditorDlg.h"

#include "tests/gui/hull/CHull.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
enum EColumn
{
    kY,
    kZ
};

constexpr const char* kRowsOfStationFive = "Input Error: Station 5: Rows 3 and 4 may be ordered "
                                           "incorrectly. \n\nInterchange these 2 rows?";

std::string CentrelineQuestion(int station)
{
    return "Input Warning: Y offsets - Station " + std::to_string(station) +
           ": 2 consecutive values of 0.0 exactly on the centreline at the keel will result in a calculation "
           "error. \n\nWould you like to modify the second value";
}

/// Two points on the centreline at the keel of a station.
void AddCentrelinePair(CHull& hull, int station)
{
    hull.Set(station, 1, 0, 0.1F);
}

/// Makes the second of the rows 3 and 4 the lower and inner one.
void ExchangeRows(CHull& hull, int station)
{
    const float y = hull.Y(station, 2);
    const float z = hull.Z(station, 2);
    hull.Set(station, 2, hull.Y(station, 3), hull.Z(station, 3));
    hull.Set(station, 3, y, z);
}

std::vector<std::pair<int, int>> Selected(CFormDriver& form)
{
    std::vector<std::pair<int, int>> cells;
    for (const QModelIndex& cell : Table(form).selectionModel()->selectedIndexes())
    {
        cells.emplace_back(cell.row(), cell.column());
    }
    std::sort(cells.begin(), cells.end());
    return cells;
}
} // namespace

TEST(OffsetEditorChecks, AnEmptyFirstYIsRefusedWhileRowsFollow)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 0, kY, "");
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.5"));
    EXPECT_FALSE(form.IsChecked("station.3"));
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre("Error: First Y value must be 0.00"));
    EXPECT_THAT(hull.Recorder.Icons, ElementsAre(EIcon::Stop));
    EXPECT_THAT(Selected(form), ElementsAre(std::pair(0, 0)));
}

TEST(OffsetEditorChecks, AFirstYThatIsNotZeroPasses)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 0, kY, "0.5");
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.3"));
    form.Click("ClearStation");
    form.Click("station.4");
    EXPECT_TRUE(form.IsChecked("station.4"));
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(OffsetEditorChecks, AStationWithACellOutOfRangeIsNotLeft)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 4, kY, "-2");
    EditCell(form, 5, kY, "200000");
    EditCell(form, 3, kZ, "200000");
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.5"));
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Horizontal offset (Y) out of Range: Min. = 0.00   Max. = 100000.00"));
    EXPECT_THAT(Selected(form), ElementsAre(std::pair(4, 0)));
    EXPECT_EQ(CellText(form, 4, kY), "-2.000");
}

TEST(OffsetEditorChecks, ZReachesBelowTheBaseline)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 0, kZ, "-50");
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.3"));
    EditCell(form, 0, kZ, "-50.5");
    form.Click("station.4");
    EXPECT_TRUE(form.IsChecked("station.3"));
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Vertical Offset (Z) out of Range: Min. = -50.00   Max. = 100000.00"));
    EXPECT_THAT(Selected(form), ElementsAre(std::pair(0, 1)));
}

TEST(OffsetEditorChecks, RangesAreMetricAlsoInFeet)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("YAUSER.unit");
    EditCell(form, 5, kY, "300000"); // 91440 m
    EditCell(form, 0, kZ, "-160");   // -48.8 m
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.3"));
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    form.Click("station.5");
    EXPECT_EQ(CellText(form, 5, kY), "300000.000");
}

TEST(OffsetEditorChecks, ACentrelinePairIsAskedAboutAtTheChangeOfStation)
{
    CHull hull;
    AddCentrelinePair(hull, 5);
    hull.Recorder.Answer = true;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.5"));
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(CentrelineQuestion(5)));
    EXPECT_EQ(Table(form).FocusRow(), 1);
    EXPECT_EQ(Table(form).FocusColumn(), kY);
    form.Click("station.3"); // it was answered
    EXPECT_TRUE(form.IsChecked("station.3"));
    EXPECT_EQ(hull.Recorder.Messages.size(), 1U);
}

TEST(OffsetEditorChecks, NoAtACentrelinePairGoesOn)
{
    CHull hull;
    AddCentrelinePair(hull, 5);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.3"));
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(CentrelineQuestion(5)));
}

TEST(OffsetEditorChecks, ZerosAboveARiseInYAreFree)
{
    CHull hull;
    hull.Set(5, 3, 0, 2);
    hull.Set(5, 4, 0, 2.5F);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.3");
    EXPECT_TRUE(form.IsChecked("station.3"));
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(OffsetEditorChecks, AtOkTheCentrelinesOfAllStationsAreLookedAt)
{
    CHull hull;
    AddCentrelinePair(hull, 2);
    AddCentrelinePair(hull, 8);
    hull.Recorder.Answers = {false, true};
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_TRUE(form.IsChecked("station.8"));
    EXPECT_EQ(Table(form).FocusRow(), 1);
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(CentrelineQuestion(2), CentrelineQuestion(8)));
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Recorder.Messages.size(), 2U);
}

TEST(OffsetEditorChecks, WithStationZeroAftQuestionsNameTheStationOnTheScreen)
{
    CHull hull(11, 1);
    AddCentrelinePair(hull, 8);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(CentrelineQuestion(2)));
}

TEST(OffsetEditorChecks, RowsInTheWrongOrderAreInterchangedWithAYes)
{
    CHull hull;
    const float before = hull.Y(5, 2);
    ExchangeRows(hull, 5);
    hull.Recorder.Answer = true;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.4"); // only OK looks at it
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(kRowsOfStationFive));
    EXPECT_EQ(hull.Y(5, 2), before);
}

TEST(OffsetEditorChecks, RowsInTheWrongOrderStayWithANo)
{
    CHull hull;
    const float before = hull.Y(5, 2);
    ExchangeRows(hull, 5);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(kRowsOfStationFive));
    EXPECT_EQ(hull.Y(5, 3), before);
}

TEST(OffsetEditorChecks, NegativeZIsToldOnceAtOkIfTheOptionIsOn)
{
    for (const int option : {0, 1})
    {
        CHull hull;
        hull.Set(2, 0, 0, -0.5F);
        hull.Set(5, 0, 0, -0.5F);
        hull.Project.ChkNegZInter = option;
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        form.Click("station.3");
        EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
        form.Ok();
        EXPECT_FALSE(form.IsOpen());
        EXPECT_EQ(hull.Recorder.Messages.size(), static_cast<std::size_t>(option));
        if (option == 1)
        {
            EXPECT_EQ(hull.Recorder.Messages.front(),
                      "Warning: There are Z offset points with values less than 0!!");
        }
    }
}

namespace
{
/// Stations 3 and 7 have three points, far from each other.
struct CHullWithFewPoints : CHull
{
    CHullWithFewPoints()
    {
        Project.ChkSegLenInter = 1;
        for (const int station : {3, 7})
        {
            for (int row = 0; row < 6; ++row)
            {
                const auto far = static_cast<float>(row);
                Set(station, row, row < 3 ? 10 * far : kNotGiven, row < 3 ? far : kNotGiven);
            }
        }
    }
    const std::string Question =
        "Input Warning: Station(s) 3 and 7 have relatively few points defining them, when compared to the "
        "rest of the vessel.\n\nWould you like to modify these stations?";
};
} // namespace

TEST(OffsetEditorChecks, YesAtFewPointsStaysAtTheFirstSuchStation)
{
    CHullWithFewPoints hull;
    hull.Recorder.Answer = true;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 5, kZ, "5.5");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_TRUE(form.IsChecked("station.3"));
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(hull.Question));
    EXPECT_EQ(hull.Z(5, 5), 5.5F); // stored all the same
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Recorder.Messages.size(), 1U);
}

TEST(OffsetEditorChecks, NoAtFewPointsCloses)
{
    CHullWithFewPoints hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(hull.Question));
}

TEST(OffsetEditorChecks, FewPointsAreOnlyLookedForIfTheOptionIsOn)
{
    CHullWithFewPoints hull;
    hull.Project.ChkSegLenInter = 0;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(OffsetEditorChecks, EveryStationButTheLastNeedsThreePoints)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        const int last = origin == 0 ? 10 : 0;
        for (int row = 2; row < 6; ++row)
        {
            hull.Set(last, row, kNotGiven, kNotGiven);
        }
        {
            CFormDriver form = Opened<COffsetEditorDlg>(hull);
            form.Ok();
            EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
            EXPECT_EQ(hull.Project.OffsetsComplete, 1);
        }
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        for (int row = 2; row < 6; ++row)
        {
            EditCell(form, row, kY, "");
        }
        form.Ok();
        EXPECT_FALSE(form.IsOpen());
        EXPECT_THAT(hull.Recorder.Messages,
                    ElementsAre("Incomplete Data Set: Incomplete set of information"));
        EXPECT_EQ(hull.Project.OffsetsComplete, 0);
    }
}

TEST(OffsetEditorChecks, MessagesAtOkComeInOrder)
{
    CHull hull;
    AddCentrelinePair(hull, 2);
    ExchangeRows(hull, 5);
    hull.Set(7, 0, 0, -0.5F);
    hull.Project.ChkNegZInter = 1;
    hull.Project.LOADFLAG.Set(1);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.10");
    form.Click("InsertStation"); // empty, so that it is incomplete
    form.Ok();
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre(CentrelineQuestion(2), kRowsOfStationFive,
                            "Warning: There are Z offset points with values less than 0!!",
                            "Incomplete Data Set: Incomplete set of information",
                            "Warning: Stations were either added or deleted.\nPlease review the station "
                            "numbers in:  \n\n"));
}

TEST(OffsetEditorChecks, RowsThatACheckHasMarkedAreMarkedNoMoreAtTheNextStation)
{
    CHull hull;
    AddCentrelinePair(hull, 5);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.6"); // the question is answered with No
    ASSERT_EQ(hull.Recorder.Messages.size(), 1U);
    EXPECT_EQ(Selected(form).size(), 1U);
}

TEST(OffsetEditorChecks, AfterYesAtFewPointsCancelAsksNothingAndTheCopyStaysStored)
{
    CHullWithFewPoints hull;
    hull.Recorder.Answer = true;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("YAUSER.unit");
    EditCell(form, 5, kZ, "5.5");
    form.Ok();
    ASSERT_TRUE(form.IsOpen());
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(hull.Question));
    EXPECT_EQ(hull.Z(5, 5), 5.5F);
    EXPECT_EQ(hull.Project.YAUSER.unit, kUnitBritish);
    EXPECT_EQ(hull.Session.Modified, 1);
}
