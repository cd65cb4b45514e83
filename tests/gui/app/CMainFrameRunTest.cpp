// The main window's part in a run of the engine: the running window, the timer, and the commands meanwhile.
#include "core/results/LastLoadName.h"
#include "gui/platform/QtText.h"
#include "tests/gui/app/CFrameTest.h"
#include "tests/support/CEngineRun.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{
constexpr const char* kSuccess = "Calculation Complete: The calculation completed successfully.";

/// A loaded sample, and an engine that is told when it ends.
struct CRunFrameTest : CFrameTest
{
    CRunFrameTest()
    {
        OpenSample();
        Recorder.Started.clear();
    }

    CRunningDlg* Window() { return Frame.findChild<CRunningDlg*>("CRunningDlg"); }
    QTimer& Timer() { return *Frame.findChild<QTimer*>("RunTimer"); }

    /// What a good engine leaves.
    void WriteGoodResults()
    {
        const CEngineRun run = EngineRunOf(App.Project);
        Folder.Write("ondara7.bin", EngineBinary(run));
        Folder.Write("ondara7.out", EngineListing(run));
        Folder.Write("ondara7.log", EngineLog(run));
    }
    void EndEngine()
    {
        Recorder.Running = false;
        Timer().setInterval(1);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !Timer().isActive(); }));
    }
};
} // namespace

TEST(Run, ShowsItsWindowWhileTheEngineRuns)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    ASSERT_NE(test.Window(), nullptr);
    EXPECT_TRUE(test.Window()->isVisible());
    EXPECT_FALSE(test.Window()->isModal());
    EXPECT_TRUE(test.Timer().isActive());
    EXPECT_EQ(test.Timer().interval(), 750);
    EXPECT_THAT(test.Recorder.Started, ElementsAre("start OE7.exe in " + test.Folder.Path()));
}

TEST(Run, WaitsAsLongAsTheEngineRuns)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    test.Timer().setInterval(1);
    test.Recorder.Cursors.clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return test.Recorder.Cursors.size() >= 6; })) << "three ticks";
    EXPECT_EQ(test.Recorder.Cursors[0], ECursor::Wait);
    EXPECT_EQ(test.Recorder.Cursors[1], ECursor::Arrow);
    EXPECT_TRUE(test.Timer().isActive());
    EXPECT_NE(test.Window(), nullptr);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(Run, AGoodOneIsToldAndItsResultsCanBeShown)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    test.WriteGoodResults();
    test.EndEngine();
    EXPECT_EQ(test.Window(), nullptr);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kSuccess));
    EXPECT_TRUE(test.Action("Output.Graph").isEnabled());
    EXPECT_TRUE(test.Action("Output.SaveAs").isEnabled());
    EXPECT_EQ(LastLoadName(test.Recorder), test.Folder.File("ship.tv7"));
    test.GiveForm("Output.Display", "CDisplayResultsDlg");
}

TEST(Run, AFailedOneIsTold)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    test.Folder.Write("ondara7.bin", "cut short");
    test.Folder.Write("ondara7.log", "0\n");
    test.EndEngine();
    EXPECT_EQ(test.Window(), nullptr);
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre(StartsWith("Calculation did not complete: The calculation did not complete.\n")));
    EXPECT_FALSE(test.Action("Output.Graph").isEnabled());
}

TEST(Run, ABadLogIsShown)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    test.WriteGoodResults();
    test.Folder.Write("ondara7.log", "1 a warning\n");
    test.EndEngine();
    EXPECT_EQ(test.Recorder.Started.back(), "text " + test.Folder.File("ondara7.log"));
}

TEST(Run, AMissingEngineShowsNothing)
{
    CRunFrameTest test;
    test.Recorder.Start = EStart::NotFound;
    test.Give("Calculate.Run");
    EXPECT_EQ(test.Window(), nullptr);
    EXPECT_FALSE(test.Timer().isActive());
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(Run, WithoutInputNoEngineIsStarted)
{
    CFrameTest test;
    test.Give("Calculate.Run");
    EXPECT_THAT(test.Recorder.Started, IsEmpty());
    ASSERT_EQ(test.Recorder.Messages.size(), 2U);
    EXPECT_EQ(test.Recorder.Messages[1], "Calculation Incomplete: The calculation did not complete.");
}

TEST(Run, ASecondOneKeepsTheWindow)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    const QPointer<CRunningDlg> window = test.Window();
    test.Give("Calculate.Run");
    EXPECT_EQ(test.Window(), window);
    EXPECT_EQ(test.Recorder.Started.size(), 2U);
    test.WriteGoodResults();
    test.EndEngine();
    EXPECT_TRUE(window.isNull());
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kSuccess));
}

TEST(Run, TheMainWindowIsOfUseMeanwhile)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    test.GiveForm("Vessel.Particulars", "CShipParticularsDlg");
    test.Recorder.Answer = true;
    test.Give("File.ClearEnvironment");
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, "");
    EXPECT_NE(test.Window(), nullptr);
}

TEST(Run, AFormIsOpenWhileItEnds)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    test.WriteGoodResults();
    test.GiveForm("Vessel.Particulars", "CShipParticularsDlg",
                  [&](QDialog& form)
                  {
                      test.EndEngine();
                      EXPECT_TRUE(form.isVisible());
                  });
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kSuccess));
}

TEST(Run, ClosingTheMainWindowEndsTheEngineWithoutAWord)
{
    CRunFrameTest test;
    test.Give("Calculate.Run");
    test.Recorder.Started.clear();
    test.Give("File.Exit");
    EXPECT_THAT(test.Recorder.Started, ElementsAre("end"));
    EXPECT_EQ(test.Window(), nullptr);
    EXPECT_FALSE(test.Timer().isActive());
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(RunningWindow, SaysWhatGoesOn)
{
    const CRunningDlg window;
    EXPECT_EQ(window.objectName(), "CRunningDlg");
    EXPECT_EQ(PlainText(window.windowTitle()), "Ondara Calculation Engine Running");
    EXPECT_EQ(window.findChild<QLabel*>("Text")->text(), "Calculations being performed.  ");
    EXPECT_EQ(window.findChild<QLabel*>("Elapsed")->text(), "Elapsed time: 0:00");
}

TEST(RunningWindow, KeepsCounting)
{
    const CRunningDlg window;
    auto* elapsed = window.findChild<QLabel*>("Elapsed");
    auto* timer = window.findChild<QTimer*>("ElapsedTimer");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 1000);
    elapsed->setText("stopped");
    timer->setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return elapsed->text().startsWith("Elapsed time: 0:"); }));
}

TEST(RunningWindow, StaysWhateverTheUserPresses)
{
    CRunningDlg window;
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    window.close();
    EXPECT_TRUE(window.isVisible());
}

TEST(RunningWindow, CountsMinutesAndHours)
{
    EXPECT_EQ(ElapsedText(0), "0:00");
    EXPECT_EQ(ElapsedText(59), "0:59");
    EXPECT_EQ(ElapsedText(61), "1:01");
    EXPECT_EQ(ElapsedText(3599), "59:59");
    EXPECT_EQ(ElapsedText(3600), "1:00:00");
    EXPECT_EQ(ElapsedText(36061), "10:01:01");
}

namespace
{
/// A ship that is loaded by displacement, whose waterline only the engine knows.
struct CWaterlineFrameTest : CRunFrameTest
{
    CWaterlineFrameTest()
    {
        App.Project.TRIMDEF.Set(1);
        App.Project.DISPUSER.Set(1000);
        App.Project.LCGPUSER.Set(App.Project.SHIPLEN.Value() / 2);
    }
};
} // namespace

TEST(CheckOffsets, TellsThatTheOffsetsAreSatisfactory)
{
    CRunFrameTest test;
    test.Give("Calculate.CheckOffsets");
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("Offset Checks: Geometry offsets are satisfactory."));
    EXPECT_THAT(test.Recorder.Started, IsEmpty());
}

TEST(CheckOffsets, OpensTheEditorAtTheStationThatIsWrong)
{
    CRunFrameTest test;
    CParamArray& y = test.App.Project.YAUSER;
    y.Set(3 * kMaxOffsets, 0);
    y.Set(3 * kMaxOffsets + 1, 0);
    std::string station;
    test.GiveForm("Calculate.CheckOffsets", "COffsetEditorDlg",
                  [&](QDialog& form) {
                      station =
                          PlainText(form.findChild<QWidget*>("StationReadout")->property("text").toString());
                  });
    EXPECT_EQ(station, "Station 3 Definition");
}

TEST(CheckOffsets, GoesOnOnlyWhenTheEngineHasEnded)
{
    CWaterlineFrameTest test;
    bool hasWaited = false;
    QTimer::singleShot(0, &test.Frame,
                       [&]
                       {
                           CRunningDlg* window = test.Window();
                           hasWaited =
                               window != nullptr && window->isModal() && test.Recorder.Messages.empty();
                           test.Recorder.Running = false;
                       });
    test.Give("Calculate.CheckOffsets");
    EXPECT_TRUE(hasWaited);
    EXPECT_THAT(test.Recorder.Started, ElementsAre("start OE7.exe in " + test.Folder.Path()));
    EXPECT_EQ(test.Window(), nullptr);
    EXPECT_FALSE(test.Recorder.Messages.empty());
}

TEST(CheckOffsets, EndsWithTheEngineIfTheUserStopsWaiting)
{
    CWaterlineFrameTest test;
    QTimer::singleShot(0, &test.Frame, [&] { test.Frame.findChild<QPushButton*>("Cancel")->click(); });
    test.Give("Calculate.CheckOffsets");
    EXPECT_THAT(test.Recorder.Started, ElementsAre("start OE7.exe in " + test.Folder.Path(), "end"));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(CheckOffsets, IsNotToBeHadWhileTheEngineRuns)
{
    CRunFrameTest test;
    EXPECT_TRUE(test.Action("Calculate.CheckOffsets").isEnabled());
    test.Give("Calculate.Run");
    EXPECT_FALSE(test.Action("Calculate.CheckOffsets").isEnabled());
    test.WriteGoodResults();
    test.EndEngine();
    EXPECT_TRUE(test.Action("Calculate.CheckOffsets").isEnabled());
}
