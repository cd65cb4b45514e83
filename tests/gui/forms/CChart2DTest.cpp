#include "gui/forms/CChart2D.h"

#include "core/platform/Files.h"
#include "tests/support/CRecorder.h"
#include "tests/support/CTestFolder.h"

#include <cmath>
#include <limits>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gmock/gmock.h>

using testing::DoubleEq;
using testing::DoubleNear;

namespace
{
/// A chart on the screen with one section of three points.
struct CSection
{
    CChart2D Chart;

    CSection()
    {
        Chart.SetSeriesCount(1);
        Chart.SetPoints(0, {{0, 0}, {5, 2}, {6, 10}});
        Chart.SetFixedRange(0, 6, 0, 10, 1.136842131614685);
        Chart.resize(600, 500);
        Chart.show();
        Chart.Redraw();
    }

    /// What the mouse hits at a point of the plot.
    QWidget& View() { return *Chart.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly); }
    QPoint Pixel(double x, double y) const { return Chart.PixelOf(x, y).toPoint(); }
    void Click(const QPoint& place) { QTest::mouseClick(&View(), Qt::LeftButton, Qt::NoModifier, place); }
    void Wheel(const QPoint& place, int turns)
    {
        QWheelEvent event(place, View().mapToGlobal(QPointF(place)), {}, {0, 120 * turns}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&View(), &event);
    }
    /// Pixels a unit, along X over along Y: 1 where both axes have one scale.
    double Scale() const
    {
        const QPointF origin = Chart.PixelOf(0, 0);
        const QPointF one = Chart.PixelOf(1, 1);
        return (one.x() - origin.x()) / (origin.y() - one.y());
    }
};

int DarkPixels(const QImage& image, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
    {
        for (int x = area.left(); x <= area.right(); ++x)
        {
            count += qGray(image.pixel(x, y)) < 200 ? 1 : 0;
        }
    }
    return count;
}
} // namespace

TEST(ChartRange, IsStretchedToTheAspectFromZero)
{
    const CChartRanges wide = StretchedToAspect({{0, 6}, {0, 10}}, 1.2);
    EXPECT_EQ(wide.X, (CChartRange{0, 12}));
    EXPECT_EQ(wide.Y, (CChartRange{0, 10}));
    const CChartRanges high = StretchedToAspect({{-12, 12}, {0, 10}}, 1.2);
    EXPECT_EQ(high.X, (CChartRange{-12, 12}));
    EXPECT_EQ(high.Y, (CChartRange{0, 20}));
}

TEST(ChartRange, KeepsItsSharesOrItsEndNearZero)
{
    EXPECT_EQ(Stretched({-1, 3}, 2), (CChartRange{-2, 6}));
    EXPECT_EQ(Stretched({2, 3}, 2), (CChartRange{2, 4}));
    EXPECT_EQ(Stretched({-3, -2}, 2), (CChartRange{-4, -2}));
}

TEST(ChartRange, IsAlwaysUsable)
{
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(UsableRange({3, 1}), (CChartRange{1, 3}));
    EXPECT_EQ(UsableRange({infinite, -infinite}), (CChartRange{0, 1}));
    EXPECT_EQ(UsableRange({std::nan(""), 1}), (CChartRange{0, 1}));
    EXPECT_EQ(UsableRange({0, 0}), (CChartRange{-0.5, 0.5}));
    EXPECT_GT(UsableRange({1e30, 1e30}).Length(), 0);
    const CChartRanges ranges = StretchedToAspect({{0, 1}, {0, 2}}, 0);
    EXPECT_EQ(ranges.Y, (CChartRange{0, 2}));
}

TEST(Chart, FixedRangeHasTheAspectAndOneScale)
{
    CSection section;
    const CChartRanges fixed = section.Chart.FixedRange();
    EXPECT_DOUBLE_EQ(fixed.X.Length() / fixed.Y.Length(), 1.136842131614685);
    EXPECT_THAT(section.Scale(), DoubleNear(1, 0.01));
    const CChartRanges seen = section.Chart.VisibleRange();
    EXPECT_GE(seen.X.Length(), fixed.X.Length() * 0.999);
    EXPECT_GE(seen.Y.Length(), fixed.Y.Length() * 0.999);
    section.Chart.resize(900, 300);
    EXPECT_THAT(section.Scale(), DoubleNear(1, 0.01));
}

TEST(Chart, SectionsKeepTheirSizeFromOneToTheNext)
{
    CSection section;
    const CChartRanges before = section.Chart.VisibleRange();
    section.Chart.SetPoints(0, {{0, 1}, {1, 1.5}});
    section.Chart.SetFixedRange(0, 6, 0, 10, 1.136842131614685);
    section.Chart.Redraw();
    EXPECT_EQ(section.Chart.VisibleRange(), before);
}

TEST(Chart, AxisWithoutARangeTakesThatOfThePoints)
{
    CChart2D chart;
    chart.SetSeriesCount(2);
    chart.SetPoints(0, {{0, 0}, {10, 100}});
    chart.SetPoints(1, {{20, std::nan("")}, {5, 50}}); // a point that is no number has no place
    chart.SetRange(EChartAxis::Y, -5, 200);
    chart.Redraw();
    EXPECT_EQ(chart.VisibleRange().Y, (CChartRange{-5, 200}));
    EXPECT_THAT(chart.VisibleRange().X.Minimum, DoubleEq(-0.5));
    EXPECT_THAT(chart.VisibleRange().X.Maximum, DoubleEq(10.5));
    chart.SetAutomaticRange(EChartAxis::Y);
    chart.Redraw();
    EXPECT_EQ(chart.VisibleRange().Y, (CChartRange{-5, 105}));
}

TEST(Chart, HasARangeWithoutPoints)
{
    CChart2D chart;
    chart.Redraw();
    EXPECT_GT(chart.VisibleRange().X.Length(), 0);
    chart.SetSeriesCount(1);
    chart.SetPoints(0, {{3, 3}});
    chart.Redraw();
    EXPECT_GT(chart.VisibleRange().X.Length(), 0);
}

TEST(Chart, SeriesAreKeptPointByPoint)
{
    CChart2D chart;
    chart.SetSeriesCount(2);
    chart.SetPointCount(1, 2);
    chart.SetPoint(1, 1, 3, 4);
    chart.SetName(1, "Pair 1");
    EXPECT_EQ(chart.PointCount(0), 0);
    EXPECT_EQ(chart.PointCount(1), 2);
    EXPECT_EQ(chart.Points(1)[1], QPointF(3, 4));
    EXPECT_EQ(chart.Name(1), "Pair 1");
    chart.SetSeriesCount(1);
    EXPECT_EQ(chart.SeriesCount(), 1);
    chart.Redraw();
}

TEST(Chart, AxisTitleTellsTheUnit)
{
    CChart2D chart;
    chart.SetAxisTitle(EChartAxis::X, "Y", "meters");
    chart.SetAxisTitle(EChartAxis::Y, "Amplitude");
    EXPECT_EQ(chart.AxisTitle(EChartAxis::X), "Y [meters]");
    EXPECT_EQ(chart.AxisTitle(EChartAxis::Y), "Amplitude");
}

TEST(Chart, ClickOnAPointIsTold)
{
    CSection section;
    QSignalSpy clicked(&section.Chart, &CChart2D::PointClicked);
    section.Click(section.Pixel(5, 2) + QPoint(3, -2));
    ASSERT_EQ(clicked.size(), 1);
    EXPECT_EQ(clicked[0], QVariantList({0, 1}));
    section.Click(section.Pixel(3, 7));
    EXPECT_EQ(clicked.size(), 1);
}

TEST(Chart, NearestOfTwoPointsIsPicked)
{
    CSection section;
    section.Chart.SetSeriesCount(2);
    section.Chart.SetPoints(1, {{5.05, 2}});
    section.Chart.Redraw();
    QSignalSpy clicked(&section.Chart, &CChart2D::PointClicked);
    section.Click(section.Pixel(5.05, 2) + QPoint(2, 0));
    ASSERT_EQ(clicked.size(), 1);
    EXPECT_EQ(clicked[0], QVariantList({1, 0}));
}

TEST(Chart, WheelZoomsAndDoubleClickShowsAll)
{
    CSection section;
    const CChartRanges before = section.Chart.VisibleRange();
    section.Wheel(section.Pixel(3, 5), 3);
    const CChartRanges zoomed = section.Chart.VisibleRange();
    EXPECT_LT(zoomed.X.Length(), before.X.Length() * 0.7);
    EXPECT_THAT(section.Scale(), DoubleNear(1, 0.01));
    section.Chart.Redraw();
    EXPECT_THAT(section.Chart.VisibleRange().X.Length(), DoubleNear(zoomed.X.Length(), 1e-6));
    QTest::mouseDClick(&section.View(), Qt::LeftButton, Qt::NoModifier, section.Pixel(3, 5));
    EXPECT_THAT(section.Chart.VisibleRange().X.Length(), DoubleNear(before.X.Length(), 1e-3));
}

TEST(Chart, DragMovesThePlotAndPicksNothing)
{
    CSection section;
    QSignalSpy clicked(&section.Chart, &CChart2D::PointClicked);
    const CChartRanges before = section.Chart.VisibleRange();
    const QPoint from = section.Pixel(5, 2);
    QTest::mousePress(&section.View(), Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(&section.View(), from - QPoint(20, 0));
    QTest::mouseMove(&section.View(), from - QPoint(50, 0));
    QTest::mouseRelease(&section.View(), Qt::LeftButton, Qt::NoModifier, from - QPoint(50, 0));
    EXPECT_GT(section.Chart.VisibleRange().X.Minimum, before.X.Minimum + 0.1);
    EXPECT_EQ(clicked.size(), 0);
    section.Chart.ShowAll();
    EXPECT_THAT(section.Chart.VisibleRange().X.Minimum, DoubleNear(before.X.Minimum, 1e-6));
}

TEST(Chart, NewRangeEndsTheZoom)
{
    CSection section;
    section.Wheel(section.Pixel(3, 5), 3);
    section.Chart.SetFixedRange(0, 60, 0, 100, 1);
    section.Chart.Redraw();
    EXPECT_GE(section.Chart.VisibleRange().Y.Length(), 99.9);
}

TEST(Chart, LineCrossesTheWholePlot)
{
    CSection section;
    section.Chart.SetPoints(0, {});
    section.Chart.Redraw();
    const QRect area = section.Chart.PlotArea();
    const QPoint place(area.center().x(), section.Pixel(0, 4).y());
    const QRect right(area.right() - 20, place.y() - 2, 15, 5);
    const int before = DarkPixels(section.Chart.grab().toImage(), right);
    section.Chart.AddLine(EChartAxis::Y, 4, "Waterline", {.Colour = Qt::blue});
    section.Chart.Redraw();
    EXPECT_GE(DarkPixels(section.Chart.grab().toImage(), right), before + 10);
    section.Chart.ClearLines();
    section.Chart.Redraw();
    EXPECT_EQ(DarkPixels(section.Chart.grab().toImage(), right), before);
    EXPECT_EQ(section.Chart.LineCount(), 0);
}

TEST(Chart, HighlightIsARingAroundThePoint)
{
    CSection section;
    const QPoint place = section.Pixel(5, 2);
    const QRect around(place - QPoint(12, 12), QSize(25, 25));
    const int before = DarkPixels(section.Chart.grab().toImage(), around);
    section.Chart.HighlightPoint(0, 1);
    EXPECT_GT(DarkPixels(section.Chart.grab().toImage(), around), before + 10);
    section.Chart.HighlightPoint(-1, -1);
    EXPECT_EQ(DarkPixels(section.Chart.grab().toImage(), around), before);
    section.Chart.HighlightPoint(7, 99); // not there
    EXPECT_EQ(DarkPixels(section.Chart.grab().toImage(), around), before);
}

TEST(Chart, NumbersHaveAPointInAnyLocale)
{
    const QLocale user = QLocale();
    CSection told;
    told.Chart.SetFixedRange(0, 0.6, 0, 1, 1);
    told.Chart.Redraw();
    const QImage withPoints = told.Chart.grab().toImage();
    QLocale::setDefault(QLocale(QLocale::German));
    CSection section;
    section.Chart.SetFixedRange(0, 0.6, 0, 1, 1);
    section.Chart.Redraw();
    EXPECT_EQ(section.Chart.grab().toImage(), withPoints);
    QLocale::setDefault(user);
}

TEST(Chart, PicturesAreSaved)
{
    CTestFolder folder;
    CSection section;
    ASSERT_TRUE(section.Chart.SavePng(folder.File("plot.png")));
    const QImage picture(QString::fromStdString(folder.File("plot.png")));
    EXPECT_EQ(picture.width(), 3 * section.View().width());
    ASSERT_TRUE(section.Chart.SavePdf(folder.File("plot.pdf")));
    const auto pdf = ReadFile(folder.File("plot.pdf"), 10000000);
    ASSERT_TRUE(pdf);
    EXPECT_THAT(*pdf, testing::StartsWith("%PDF-"));
    EXPECT_THAT(*pdf, testing::HasSubstr("%%EOF"));
    EXPECT_FALSE(section.Chart.SavePng(folder.File("absent/plot.png")));
    EXPECT_FALSE(section.Chart.SavePdf(folder.File("absent/plot.pdf")));
    EXPECT_THAT(section.Scale(), DoubleNear(1, 0.01)); // on the screen as before
}

TEST(Chart, FontFollowsTheForm)
{
    CSection section;
    const int before = section.Chart.PlotArea().left();
    QFont larger = section.Chart.font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    section.Chart.setFont(larger);
    EXPECT_GT(section.Chart.PlotArea().left(), before);
    EXPECT_THAT(section.Scale(), DoubleNear(1, 0.01));
}

TEST(Chart, MenuAsksWhereThePictureGoes)
{
    const CTestFolder folder;
    CRecorder recorder;
    CChart2D chart(nullptr, &recorder.Platform);
    recorder.Files = {folder.File("plot.png"), "", folder.File("absent/plot.pdf")};
    chart.findChild<QAction*>("SavePng")->trigger();
    EXPECT_TRUE(FileExists(folder.File("plot.png")));
    chart.findChild<QAction*>("SavePdf")->trigger(); // cancelled
    EXPECT_TRUE(recorder.Messages.empty());
    chart.findChild<QAction*>("SavePdf")->trigger();
    ASSERT_EQ(recorder.Requests.size(), 3U);
    EXPECT_EQ(recorder.Requests[1].DefaultExtension, "*.pdf");
    EXPECT_TRUE(recorder.Requests[1].OverwritePrompt);
    ASSERT_EQ(recorder.Messages.size(), 1U);
    EXPECT_THAT(recorder.Messages[0], testing::HasSubstr("could not be saved"));
}

TEST(Chart, WithoutAPlatformNothingAsksForAFile)
{
    const CChart2D chart;
    EXPECT_EQ(chart.findChild<QAction*>("SavePng"), nullptr);
    EXPECT_NE(chart.findChild<QAction*>("CopyPicture"), nullptr);
}
