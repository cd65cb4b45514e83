#include "gui/hull/COffsetEditorDlg.h"

#include "core/project/UnitFactors.h"
#include "gui/forms/CChart2D.h"
#include "tests/gui/hull/CHull.h"

#include <QApplication>
#include <QClipboard>
#include <QTabWidget>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::FloatEq;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
enum EColumn
{
    kY,
    kZ
};

CChart2D& Plot(CFormDriver& form)
{
    return form.Find<CChart2D>("plot");
}

/// A user's click on a point of the plot.
void ClickPoint(CFormDriver& form, const QPointF& point)
{
    CChart2D& plot = Plot(form);
    auto* drawing = plot.findChild<QWidget*>();
    plot.Redraw();
    const QPointF place = plot.PixelOf(point.x(), point.y());
    QTest::mouseClick(drawing, Qt::LeftButton, {}, place.toPoint());
}
} // namespace

TEST(OffsetEditor, OpensAtTheMiddleStation)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EXPECT_EQ(form.Caption("StationReadout"), "Station 5 Definition");
    EXPECT_TRUE(form.IsChecked("station.5"));
    EXPECT_FALSE(form.IsChecked("station.4"));
    EXPECT_EQ(form.Text("StationCount"), "11");
    EXPECT_EQ(form.Caption("YAUSER.unit"), "meters");
}

TEST(OffsetEditor, HasAButtonForEachStation)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EXPECT_TRUE(form.Find<QWidget>("station.10").isVisible());
    EXPECT_FALSE(form.Find<QWidget>("station.11").isVisible());
    EXPECT_FALSE(form.Find<QWidget>("station.20").isVisible());
    EXPECT_EQ(form.Caption("station.10"), "10");
}

TEST(OffsetEditor, ShowsTheOffsetsOfTheStation)
{
    CHull hull;
    hull.Set(5, 3, 3.4567F, kNotGiven);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EXPECT_EQ(Table(form).Cells().RowCount(), 60);
    EXPECT_EQ(CellText(form, 0, kY), "0.000");
    EXPECT_EQ(CellText(form, 3, kY), "3.457");
    EXPECT_EQ(CellText(form, 3, kZ), "");
    EXPECT_EQ(CellText(form, 6, kY), "");
}

TEST(OffsetEditor, OpensAtTheStationThatWasAskedFor)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        hull.Project.OffsetEditRequested = 1;
        hull.Project.OffsetEditStation = 2;
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        EXPECT_TRUE(form.IsChecked(origin == 0 ? "station.2" : "station.8"));
        EXPECT_EQ(CellText(form, 5, kY), FixedText(hull.Y(2, 5), "%.3f"));
        EXPECT_EQ(hull.Project.OffsetEditRequested, 0);
    }
}

TEST(OffsetEditor, WithStationZeroAftTheScreenCountsFromAft)
{
    CHull hull(11, 1);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.0");
    EXPECT_EQ(CellText(form, 5, kY), FixedText(hull.Y(10, 5), "%.3f"));
    EditCell(form, 5, kZ, "9.5");
    form.Ok();
    EXPECT_EQ(hull.Z(10, 5), 9.5F);
    EXPECT_EQ(hull.Z(0, 5), 4);
}

TEST(OffsetEditor, ATypedOffsetIsStoredAtOk)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    TypeInCell(form, 5, kZ, "6.25"); // the edit is still under way at OK
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Z(5, 5), 6.25F);
    EXPECT_EQ(hull.Project.ZAUSERBL.changed, 1);
    EXPECT_EQ(hull.Session.Modified, 1);
    EXPECT_EQ(hull.Project.OffsetsComplete, 1);
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(OffsetEditor, OkWithoutAnEditChangesNothing)
{
    CHull hull;
    const std::vector<float> before = hull.Project.YAUSER.data;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_EQ(hull.Project.YAUSER.data, before);
    EXPECT_EQ(hull.Session.Modified, 0);
    EXPECT_EQ(hull.Project.YAUSER.changed, 0);
}

TEST(OffsetEditor, OkLeavesTheStationCountToTheHullsForm)
{
    CHull hull;
    hull.Project.WorkingStationCount = 10;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_EQ(hull.Project.NST.Value(), 11);
    EXPECT_EQ(hull.Project.WorkingStationCount, 10);
}

TEST(OffsetEditor, OpenedByTheChecksItWorksOnTheProjectsStationsAndStoresTheirCount)
{
    CHull hull;
    hull.Project.WorkingStationCount = 3;
    hull.Project.TRIMDEF.Set(0);
    hull.Project.DRAFTMID.Set(2);
    CFormDriver form(std::make_unique<COffsetEditorDlg>(hull.Context, nullptr, EOpenedFrom::OffsetChecks));
    EXPECT_EQ(form.Text("StationCount"), "11");
    EXPECT_EQ(Plot(form).LineCount(), 1); // the waterline
    form.Click("DeleteStation");
    form.Ok();
    EXPECT_EQ(hull.Project.NST.Value(), 10);
    EXPECT_EQ(hull.Project.NST.changed, 1);
}

TEST(OffsetEditor, CancelWithoutAChangeAsksNothing)
{
    CHull hull;
    hull.Set(5, 3, 3.45678F, 1.00004F); // more digits than the cells show
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.3");
    form.Click("station.5");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    EXPECT_EQ(hull.Y(5, 3), 3.45678F);
}

TEST(OffsetEditor, CancelAsksWhetherToSaveAChange)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    TypeInCell(form, 5, kZ, "6.25");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre("Save Offsets?: Save Offsets before exiting?"));
    EXPECT_EQ(hull.Project.ZAUSERBL.changed, 0);
    EXPECT_NE(hull.Z(5, 5), 6.25F);
}

TEST(OffsetEditor, YesAtCancelRunsOk)
{
    CHull hull;
    hull.Recorder.Answer = true;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 5, kZ, "6.25");
    form.Press(Qt::Key_Escape);
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Z(5, 5), 6.25F);
}

TEST(OffsetEditor, YesAtCancelStaysWhereOkStays)
{
    CHull hull;
    hull.Recorder.Answer = true;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 5, kY, "100001");
    form.Cancel();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Save Offsets?: Save Offsets before exiting?",
                            "Horizontal offset (Y) out of Range: Min. = 0.00   Max. = 100000.00"));
    EXPECT_NE(hull.Y(5, 5), 100001);
}

TEST(OffsetEditor, MinusOneInACellIsEmpty)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 5, kY, "-1");
    EditCell(form, 5, kZ, " ");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Y(5, 5), kNotGiven);
    EXPECT_EQ(hull.Z(5, 5), kNotGiven);
    EXPECT_EQ(hull.Project.NOFFUSER.Value(5), 5);
}

TEST(OffsetEditor, AClickOnTheUnitConvertsAllStations)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.0");
    form.Click("YAUSER.unit");
    EXPECT_EQ(form.Caption("YAUSER.unit"), "feet");
    EXPECT_EQ(CellText(form, 1, kY), "3.281");
    EXPECT_EQ(CellText(form, 6, kY), "");
    EXPECT_EQ(Plot(form).AxisTitle(EChartAxis::X).toStdString(), "Y [feet]");
    const float before = hull.Y(7, 3);
    form.Ok();
    EXPECT_EQ(hull.Project.YAUSER.unit, kUnitBritish);
    EXPECT_EQ(hull.Project.ZAUSERBL.unit, kUnitBritish);
    EXPECT_EQ(hull.Y(7, 3), before * kFeetPerMetre);
    EXPECT_EQ(hull.Y(0, 1), 3.281F); // the station on show, as it shows
    EXPECT_EQ(hull.Y(7, 6), kNotGiven);
}

TEST(OffsetEditor, AnEditUnderWayIsConvertedToo)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    TypeInCell(form, 5, kZ, "10");
    form.Click("YAUSER.unit");
    EXPECT_EQ(CellText(form, 5, kZ), "32.808");
}

TEST(OffsetEditor, ReadoutsFollowTheFocusedRow)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.0");
    Table(form).SetFocusCell(3, kY);
    EXPECT_EQ(form.Caption("YReadout"), "Y Coord: 3.000");
    EXPECT_EQ(form.Caption("ZReadout"), "Z Coord: 1.250");
    EditCell(form, 3, kZ, "1.5");
    EXPECT_EQ(form.Caption("ZReadout"), "Z Coord: 1.500");
    form.Click("station.7");
    EXPECT_EQ(form.Caption("StationReadout"), "Station 7 Definition");
}

TEST(OffsetEditor, ThePlotFollowsEveryEdit)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("station.0");
    EXPECT_THAT(Plot(form).Points(0), SizeIs(6));
    EditCell(form, 5, kY, "5.5");
    EXPECT_EQ(Plot(form).Points(0)[5], QPointF(5.5, 4));
    EditCell(form, 6, kY, "6");
    EXPECT_THAT(Plot(form).Points(0), SizeIs(6)); // a half filled row is no point
    EditCell(form, 6, kZ, "5");
    EXPECT_THAT(Plot(form).Points(0), SizeIs(7));
    EditCell(form, 2, kZ, "");
    EXPECT_THAT(Plot(form).Points(0), SizeIs(6));
    Table(form).SetFocusCell(0, kY);
    form.Click("DeletePair");
    EXPECT_EQ(Plot(form).Points(0)[0], QPointF(1, 0.125));
    form.Click("ClearStation");
    EXPECT_THAT(Plot(form).Points(0), IsEmpty());
}

TEST(OffsetEditor, APickedPointBecomesTheCurrentRow)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EditCell(form, 2, kZ, ""); // rows and points aren't the same
    ClickPoint(form, Plot(form).Points(0)[3]);
    EXPECT_EQ(Table(form).FocusRow(), 4);
}

TEST(OffsetEditor, TheBodyPlanShowsTheForeBodyOnTheRight)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        form.Find<QTabWidget>("pictures").setCurrentIndex(1);
        auto& plan = form.Find<CChart2D>("bodyplan");
        ASSERT_EQ(plan.SeriesCount(), 11);
        const int fore = origin == 0 ? 1 : 9;
        EXPECT_GT(plan.Points(fore)[5].x(), 0);
        EXPECT_LT(plan.Points(10 - fore)[5].x(), 0);
        EXPECT_GT(plan.Points(5)[5].x(), 0); // amidships
        EditCell(form, 5, kZ, "7");
        EXPECT_EQ(plan.Points(5)[5].y(), 7);
    }
}

TEST(OffsetEditor, BilgeKeelsShowAtTheirStations)
{
    CHull hull;
    CProjectData& project = hull.Project;
    project.IncludeBilgeKeels = 1;
    project.NBKPAIR.Set(2);
    const int slot = kMaxBilgeKeelRows; // the second pair's first row
    project.XSTBKFORE.Set(slot, 5);
    project.XSTBKAFT.Set(slot, 5.5F);
    project.YBK.Set(slot, 4);
    project.ZBKBL.Set(slot, 1);
    project.BBK.Set(slot, 1);
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    ASSERT_EQ(Plot(form).Points(2).size(), 3U);
    EXPECT_EQ(Plot(form).Name(2).toStdString(), "Pair 2");
    EXPECT_EQ(Plot(form).Points(2)[0], QPointF(4, 1));
    EXPECT_NEAR(Plot(form).Points(2)[1].x(), 4.70711, 1e-5);
    EXPECT_NEAR(Plot(form).Points(2)[1].y(), 0.29289, 1e-5);
    EXPECT_THAT(Plot(form).Points(1), IsEmpty());
    form.Click("station.6");
    EXPECT_THAT(Plot(form).Points(2), IsEmpty());
}

TEST(OffsetEditor, TheWaterlineShowsWhereTheDraftIsKnown)
{
    CHull hull;
    {
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        EXPECT_EQ(Plot(form).LineCount(), 0);
    }
    hull.Project.WorkingDraft = 2;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EXPECT_EQ(Plot(form).LineCount(), 1);
}

TEST(OffsetEditor, TheWaterlineFollowsTheTrimFromStationToStation)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        hull.Project.WorkingDraft = 2;
        hull.Project.WorkingTrim = 1; // by the stern
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        EXPECT_NEAR(Plot(form).LineValue(0), 2, 1e-6);
        form.Click("station.0");
        EXPECT_NEAR(Plot(form).LineValue(0), origin == 0 ? 1.5 : 2.5, 1e-6);
        form.Click("station.8");
        EXPECT_NEAR(Plot(form).LineValue(0), origin == 0 ? 2.3 : 1.7, 1e-6);
    }
}

TEST(OffsetEditor, ABlockOfASpreadsheetIsPasted)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    QApplication::clipboard()->setText("0\t0\n2.5\t0.1\n3.5\t1\n");
    Table(form).SetFocusCell(0, kY);
    QTest::keyClick(&Table(form), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Plot(form).Points(0)[1], QPointF(2.5, static_cast<double>(0.1F)));
    form.Ok();
    EXPECT_EQ(hull.Y(5, 1), 2.5F);
    EXPECT_EQ(hull.Z(5, 2), 1);
}

TEST(OffsetEditor, PagesThroughTheStationsByKeys)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    QTest::keyClick(&Table(form), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(form.IsChecked("station.6"));
    QTest::keyClick(&Table(form), Qt::Key_PageUp, Qt::ControlModifier);
    QTest::keyClick(&Table(form), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_TRUE(form.IsChecked("station.4"));
}

TEST(OffsetEditor, ImportEditSaveAndLoadKeepTheNumbers)
{
    CHull hull;
    hull.Recorder.Files = {SourceFile("samples/offsets/Sample02-metric.csv")};
    ASSERT_EQ(hull.File.ImportOffsets(), 1);
    hull.Project.WorkingStationCount = hull.Project.NST.Integer();
    {
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        for (int station = 0; station < 21; ++station)
        {
            form.Click(("station." + std::to_string(station)).c_str());
        }
        EditCell(form, 3, kZ, "4.321");
        form.Ok();
        ASSERT_FALSE(form.IsOpen());
    }
    const std::vector<float> y = hull.Project.YAUSER.data;
    const std::vector<float> z = hull.Project.ZAUSERBL.data;
    hull.Project.InputFilePath = hull.Folder.File("hull.od7");
    hull.File.Save();
    hull.File.OpenPath(hull.Project.InputFilePath);
    for (int station = 0; station < 21; ++station)
    {
        for (int row = 0; row < hull.Project.NOFFUSER.Integer(station); ++row)
        {
            const auto slot = static_cast<std::size_t>(station * kMaxOffsets + row);
            ASSERT_EQ(hull.Project.YAUSER.data[slot], y[slot]);
            ASSERT_EQ(hull.Project.ZAUSERBL.data[slot], z[slot]);
        }
    }
    EXPECT_EQ(hull.Z(20, 3), 4.321F);
}

TEST(OffsetEditor, TheBilgeKeelsFormIsNotThereYet)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    EXPECT_FALSE(form.IsEnabled("BilgeKeels"));
    EXPECT_NE(form.Find<QWidget>("BilgeKeels").toolTip(), "");
}

TEST(OffsetEditor, RowsWithoutAPointInFrontOfTheLastAreShown)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const auto isMarked = [&form](int row)
    {
        const QAbstractItemModel& cells = *Table(form).model();
        return cells.data(cells.index(row, kZ), Qt::BackgroundRole).isValid();
    };
    EXPECT_EQ(form.Caption("Gaps"), "");
    EditCell(form, 6, kY, "5.5"); // a point that is still being typed
    EXPECT_EQ(form.Caption("Gaps"), "");
    EditCell(form, 3, kZ, "");
    EXPECT_EQ(form.Caption("Gaps"), "Rows without a point: the last points will not be saved");
    EXPECT_TRUE(isMarked(3));
    EXPECT_FALSE(isMarked(4));
    form.Click("station.2");
    EXPECT_EQ(form.Caption("Gaps"), "");
    EXPECT_FALSE(isMarked(3));
}
