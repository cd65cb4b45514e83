// What the offset editor does with pairs and whole stations.
#include "gui/hull/COffsetEditorDlg.h"

#include "tests/gui/hull/CHull.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{
enum EColumn
{
    kY,
    kZ
};

std::string Shown(const CHull& hull, int station, int row)
{
    return FixedText(hull.Y(station, row), "%.3f");
}
} // namespace

TEST(OffsetEditorStations, AnInsertedPairMovesTheRowsBelow)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.0");
    Table(form).SetFocusCell(2, kZ);
    form.Click("InsertPair");
    EXPECT_EQ(CellText(form, 1, kY), "1.000");
    EXPECT_EQ(CellText(form, 2, kY), "");
    EXPECT_EQ(CellText(form, 3, kY), "2.000");
    EXPECT_EQ(CellText(form, 6, kZ), "4.000");
    form.Ok();
    EXPECT_EQ(hull.Y(0, 2), kNotGiven);
    EXPECT_EQ(hull.Y(0, 6), 5);
    EXPECT_EQ(hull.Y(1, 0), 0);
}

TEST(OffsetEditorStations, InsertingIntoAFullStationLosesTheLastPair)
{
    CHull hull;
    hull.Set(0, 58, 7, 58);
    hull.Set(0, 59, 7, 59);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.0");
    Table(form).SetFocusCell(50, kY);
    form.Click("InsertPair");
    EXPECT_EQ(CellText(form, 59, kZ), "58.000");
    form.Click("DeletePair");
    EXPECT_EQ(CellText(form, 58, kZ), "58.000");
    EXPECT_EQ(CellText(form, 59, kZ), "");
}

TEST(OffsetEditorStations, ACopiedStationIsPastedOverTheActiveOne)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.2");
    form.Click("CopyStation");
    form.Click("station.7");
    form.Click("PasteStation");
    EXPECT_EQ(CellText(form, 5, kY), Shown(hull, 2, 5));
    form.Ok();
    EXPECT_EQ(hull.Y(7, 5), hull.Y(2, 5));
}

TEST(OffsetEditorStations, CopyRemembersThePlaceAndNotTheContents)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.2");
    form.Click("CopyStation");
    EditCell(form, 5, kZ, "8.125");
    form.Click("station.7");
    form.Click("PasteStation");
    EXPECT_EQ(CellText(form, 5, kZ), "8.125");
}

TEST(OffsetEditorStations, PasteWithoutACopyDoesNothing)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("PasteStation");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(OffsetEditorStations, AnInsertedStationIsEmptyAndTheOthersMove)
{
    CHull hull;
    hull.Project.LOADFLAG.Set(1);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const std::string fifth = CellText(form, 5, kY);
    form.Click("InsertStation");
    EXPECT_EQ(form.Text("StationCount"), "12");
    EXPECT_TRUE(form.Find<QWidget>("station.11").isVisible());
    EXPECT_TRUE(form.IsChecked("station.5"));
    EXPECT_EQ(CellText(form, 5, kY), "");
    form.Click("station.6");
    EXPECT_EQ(CellText(form, 5, kY), fifth);
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Incomplete Data Set: Incomplete set of information",
                            "Warning: Stations were either added or deleted.\nPlease review the station "
                            "numbers in:  \n\n"));
    EXPECT_EQ(hull.Project.WorkingStationCount, 12);
    EXPECT_EQ(hull.Project.OffsetsComplete, 0);
    EXPECT_EQ(hull.Project.NOFFUSER.Value(5), 0);
    EXPECT_EQ(hull.Project.NOFFUSER.Value(11), 6);
}

TEST(OffsetEditorStations, ADeletedStationIsGone)
{
    CHull hull;
    const float sixth = hull.Y(6, 5);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("DeleteStation");
    EXPECT_EQ(form.Text("StationCount"), "10");
    EXPECT_FALSE(form.Find<QWidget>("station.10").isVisible());
    form.Ok();
    EXPECT_EQ(hull.Y(5, 5), sixth);
    EXPECT_EQ(hull.Project.WorkingStationCount, 10);
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre(StartsWith("Warning: Stations were either added or deleted.")));
}

TEST(OffsetEditorStations, DeletingTheLastStationGoesToTheNewLast)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.10");
    form.Click("DeleteStation");
    EXPECT_TRUE(form.IsChecked("station.9"));
    EXPECT_EQ(CellText(form, 5, kY), Shown(hull, 9, 5));
}

TEST(OffsetEditorStations, ThereAreTwoToTwentyOneStations)
{
    CHull full(21);
    {
        CFormDriver form = Opened<COffsetEditorDlg>(full);
        form.Click("InsertStation");
        EXPECT_EQ(form.Text("StationCount"), "21");
        EXPECT_EQ(CellText(form, 5, kY), Shown(full, 10, 5));
        form.Cancel();
    }
    CHull small(2);
    CFormDriver form = Opened<COffsetEditorDlg>(small);
    form.Click("DeleteStation");
    EXPECT_EQ(form.Text("StationCount"), "2");
    EXPECT_THAT(full.Recorder.Messages,
                ElementsAre("Number of Stations out of range: Min. = 2    Max. = 21"));
    EXPECT_THAT(small.Recorder.Messages,
                ElementsAre("Number of Stations out of range: Min. = 2    Max. = 21"));
}

TEST(OffsetEditorStations, InsertThenDeleteAsksNothingAtCancel)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        form.Click("InsertStation");
        form.Click("DeleteStation");
        form.Cancel();
        EXPECT_FALSE(form.IsOpen());
        EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    }
}

TEST(OffsetEditorStations, StationButtonsTakeTheScreenWithoutTests)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 5, kY, "200000");
    form.Click("InsertStation");
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    form.Click("station.6");
    EXPECT_EQ(CellText(form, 5, kY), "200000.000");
}

TEST(OffsetEditorStations, AClearedStationIsRestoredFromTheProject)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        form.Click("station.2");
        form.Click("ClearStation");
        EXPECT_EQ(CellText(form, 5, kY), "");
        form.Click("RestoreOriginal");
        EXPECT_EQ(CellText(form, 5, kY), Shown(hull, origin == 0 ? 2 : 8, 5));
        form.Cancel();
        EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    }
}

TEST(OffsetEditorStations, AStationIsRestoredInTheUnitOnShow)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.0");
    form.Click("YAUSER.unit");
    EditCell(form, 1, kY, "77");
    form.Click("RestoreOriginal");
    EXPECT_EQ(CellText(form, 1, kY), "3.281");
}

TEST(OffsetEditorStations, AnInsertedStationIsRestoredToWhatItsNumberHeldBefore)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        form.Click("station.3");
        form.Click("InsertStation");
        ASSERT_EQ(CellText(form, 5, kY), "");
        form.Click("RestoreOriginal");
        const int third = origin == 0 ? 3 : 7;
        EXPECT_EQ(CellText(form, 5, kY), Shown(hull, third, 5));
        form.Click("station.4");
        EXPECT_EQ(CellText(form, 5, kY), Shown(hull, third, 5)) << "moved";
        form.Click("RestoreOriginal");
        EXPECT_EQ(CellText(form, 5, kY), Shown(hull, origin == 0 ? 4 : 6, 5));
        EXPECT_EQ(form.Text("StationCount"), "12");
    }
}

TEST(OffsetEditorStations, AStationBehindTheFormerLastIsRestoredEmpty)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        form.Click("InsertStation");
        form.Click("station.11");
        form.Click("RestoreOriginal");
        EXPECT_EQ(CellText(form, 0, kY), "");
    }
}
