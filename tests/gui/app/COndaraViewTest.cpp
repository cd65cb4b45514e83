// The front page, by its pixels.
#include "gui/app/COndaraView.h"

#include "tests/gui/app/CFrameTest.h"

#include <set>

#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QTest>

namespace
{
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kGrey = 0xFFC0C0C0;
constexpr QRgb kBlack = 0xFF000000;

struct CViewTest
{
    explicit CViewTest(int width = 800, int height = 600) { View.resize(width, height); }

    QImage Image() { return View.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    CProjectData Project;
    COndaraView View{Project};
};

/// The pixels of a colour in the rows from `top` up to `bottom`.
int Count(const QImage& image, QRgb color, int top, int bottom)
{
    int count = 0;
    for (int y = top; y < bottom; ++y)
    {
        for (int x = 0; x < image.width(); ++x)
        {
            count += image.pixel(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

/// Notes what is painted.
class CPaintWatch : public QObject
{
public:
    explicit CPaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
        {
            Painted.push_back(static_cast<QPaintEvent*>(event)->region().boundingRect());
        }
        return false;
    }

    std::vector<QRect> Painted;
};
} // namespace

TEST(FrontPage, FadesFromBlueToBlackInBands)
{
    for (const int height : {600, 200, 257})
    {
        CViewTest test(800, height);
        const QImage image = test.Image();
        ASSERT_EQ(image.height(), height);
        for (int i = 0; i < 256; ++i)
        {
            for (int y = i * height / 256; y < (i + 1) * height / 256; ++y)
            {
                EXPECT_EQ(image.pixel(0, y), qRgb(0, 0, 255 - i)) << "row " << y << " of " << height;
                EXPECT_EQ(image.pixel(799, y), qRgb(0, 0, 255 - i));
            }
        }
    }
}

TEST(FrontPage, ShowsTheNameRaisedNearTheTop)
{
    CViewTest test;
    const QImage image = test.Image();
    for (const QRgb color : {kWhite, kGrey, kBlack})
    {
        EXPECT_GT(Count(image, color, 0, 200), 50) << std::hex << color;
        EXPECT_EQ(Count(image, color, 300, 500), 0) << std::hex << color;
    }
    int left = 800;
    int right = 0;
    for (int y = 0; y < 200; ++y)
    {
        for (int x = 0; x < 800; ++x)
        {
            left = image.pixel(x, y) == kWhite ? std::min(left, x) : left;
            right = image.pixel(x, y) == kWhite ? std::max(right, x) : right;
        }
    }
    EXPECT_NEAR(left + right, 800, 20) << "centred";
    EXPECT_GT(right - left, 200);
}

TEST(FrontPage, TheNameGrowsWithTheWindow)
{
    CViewTest small(500, 400);
    CViewTest large(1500, 1200);
    EXPECT_GT(Count(large.Image(), kWhite, 0, 400), 4 * Count(small.Image(), kWhite, 0, 133));
}

TEST(FrontPage, CaptionsAndFilesStandInTheLowestSixth)
{
    CViewTest test;
    const int captions = Count(test.Image(), kWhite, 500, 600);
    EXPECT_GT(captions, 100);
    EXPECT_EQ(Count(test.Image(), kWhite, 200, 500), 0);
    test.Project.ActiveGeometryFile = "/ships/frigate.od7";
    const int upper = Count(test.Image(), kWhite, 500, 550);
    EXPECT_GT(Count(test.Image(), kWhite, 500, 600), captions);
    test.Project.ActiveEnvironmentFile = "/seas/north.od7";
    EXPECT_GT(Count(test.Image(), kWhite, 500, 550), upper) << "the environment stands first";
    EXPECT_EQ(Count(test.Image(), kWhite, 200, 500), 0);
}

TEST(FrontPage, ALongPathEndsInsideThePage)
{
    CViewTest test;
    test.Project.ActiveGeometryFile = "/" + std::string(500, 'x') + "/ship.od7";
    const QImage image = test.Image();
    for (int y = 500; y < 600; ++y)
    {
        EXPECT_NE(image.pixel(799, y), kWhite);
    }
}

TEST(FrontPage, OfTheSmallestWindowStillHoldsItsTexts)
{
    CViewTest test;
    test.View.resize(test.View.minimumSize());
    const QImage image = test.Image();
    const int height = image.height();
    EXPECT_GT(Count(image, kWhite, 0, height / 2), 20);
    EXPECT_GT(Count(image, kWhite, height * 5 / 6, height), 20);
    EXPECT_EQ(Count(image, kWhite, height * 5 / 6 - 1, height * 5 / 6), 0) << "not cut";
}

TEST(FrontPage, OnlyTheLowestSixthIsRepaintedForOtherFiles)
{
    CFrameTest test;
    COndaraView& view = test.Frame.View();
    QApplication::processEvents();
    CPaintWatch watch(view);
    test.App.RepaintView();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !watch.Painted.empty(); }));
    const int top = static_cast<int>(view.height() * 0.8333333333333334);
    EXPECT_EQ(watch.Painted[0], QRect(0, top, view.width(), view.height() - top));
}

TEST(FrontPage, IsRepaintedAfterEachCommandThatChangesTheFiles)
{
    CFrameTest test;
    QApplication::processEvents();
    CPaintWatch watch(test.Frame.View());
    test.Recorder.Answer = true;
    test.OpenSample();
    for (const char* command :
         {"File.ClearGeometry", "File.ClearEnvironment", "File.SaveInput", "File.ClearBoth"})
    {
        QApplication::processEvents();
        watch.Painted.clear();
        test.Give(command);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !watch.Painted.empty(); })) << command;
    }
}
