// The main window: clearing, opening, importing, recent files, dropped files, forms and the status bar.
#include "gui/app/CMainFrame.h"

#include "gui/platform/QtText.h"
#include "tests/gui/app/CFrameTest.h"
#include "tests/support/CTestProject.h"
#include "tests/support/RecordText.h"

#include <filesystem>

#include <gmock/gmock.h>

#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
constexpr const char* kReadError = "Error Reading File: The file could not be read.";
constexpr const char* kNoStations =
    "Error: Number of Stations must be entered \n in Hull Geometry Dialog box";

std::array<std::string, 4> Recent(const CFrameTest& test)
{
    return test.App.RecentFiles.Paths();
}

void Drop(CFrameTest& test, const QList<QUrl>& urls, bool accepted)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&test.Frame, &enter);
    EXPECT_EQ(enter.isAccepted(), accepted);
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                    Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&test.Frame, &drop);
    EXPECT_EQ(drop.isAccepted() && drop.dropAction() == Qt::CopyAction, accepted);
    QApplication::processEvents();
}

/// The texts of the recent files that the menu shows.
std::vector<std::string> Offered(CFrameTest& test)
{
    std::vector<std::string> captions;
    for (const char* name : {"File.Recent.0", "File.Recent.1", "File.Recent.2", "File.Recent.3"})
    {
        if (test.Action(name).isVisible())
        {
            captions.push_back(PlainText(test.Action(name).text()));
        }
    }
    return captions;
}
} // namespace

TEST(MainFrame, IsNamedAndTitled)
{
    CFrameTest test;
    EXPECT_EQ(test.Frame.objectName(), "CMainFrame");
    EXPECT_EQ(PlainText(test.Frame.windowTitle()), "Ondara  v3.5.0");
}

TEST(MainFrame, ClearBothNeedsItsYes)
{
    CFrameTest test;
    test.OpenSample();
    const std::string path = test.App.Project.InputFilePath;
    test.App.Modified = 1;
    test.Give("File.ClearBoth");
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("File Clear: Are you sure you want to clear all?"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Question));
    EXPECT_GT(test.App.Project.NST.Integer(), 0);
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, path);
    test.Recorder.Answer = true;
    test.Give("File.ClearBoth");
    EXPECT_EQ(test.App.Project.NST.Value(), -1);
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, "");
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, "");
    EXPECT_EQ(test.App.Project.InputFilePath, "noname");
    EXPECT_EQ(test.App.Modified, 0);
}

TEST(MainFrame, ClearGeometryLeavesTheEnvironment)
{
    CFrameTest test;
    test.OpenSample();
    const std::string path = test.App.Project.InputFilePath;
    const int directions = test.App.Project.NSEADIR.Integer();
    EXPECT_GT(directions, 0);
    test.Recorder.Answer = true;
    test.App.Project.RudderGainFile = "gains.txt";
    test.Give("File.ClearGeometry");
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("File Clear: Are you sure you want to clear the geometry?"));
    EXPECT_EQ(test.App.Project.NST.Value(), -1);
    EXPECT_EQ(test.App.Project.RudderGainFile, "");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, "");
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, path);
    EXPECT_EQ(test.App.Project.NSEADIR.Integer(), directions);
    EXPECT_EQ(test.App.Project.InputFilePath, path);
}

TEST(MainFrame, ClearEnvironmentLeavesTheGeometry)
{
    CFrameTest test;
    test.OpenSample();
    const std::string path = test.App.Project.InputFilePath;
    const int stations = test.App.Project.NST.Integer();
    test.Give("File.ClearEnvironment");
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, path) << "the answer was No";
    test.Recorder.Answer = true;
    test.App.Project.SpectrumFile = "waves.txt";
    test.Recorder.Messages.clear();
    test.Give("File.ClearEnvironment");
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("File Clear: Are you sure you want to clear the environment?"));
    EXPECT_EQ(test.App.Project.NSEADIR.Value(), -1);
    EXPECT_EQ(test.App.Project.SpectrumFile, "");
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, "");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, path);
    EXPECT_EQ(test.App.Project.NST.Integer(), stations);
}

TEST(MainFrame, OpenGeometryTakesTheGeometryOnly)
{
    CFrameTest test;
    test.Recorder.Files = {test.Sample("ship.od7")};
    test.Give("File.OpenGeometry");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, test.Folder.File("ship.od7"));
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, "");
    EXPECT_GT(test.App.Project.NST.Integer(), 0);
    EXPECT_EQ(test.App.Project.NSEADIR.Value(), -1);
}

TEST(MainFrame, OpenEnvironmentAsksForAFile)
{
    CFrameTest test;
    test.Give("File.OpenEnvironment");
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].DefaultExtension, "*.od7");
    EXPECT_EQ(test.App.Project.InputFilePath, "noname");
}

TEST(MainFrame, OpenEnvironmentTakesTheEnvironmentOfAnEarlierFileOnly)
{
    CTestProject sea;
    sea.Project.NSEADIR.Set(3);
    sea.Project.WAVESTEEP.Set(0.0625F);
    sea.Project.SHIPLEN.Set(55);
    CFrameTest test;
    test.OpenSample();
    const std::string ship = test.App.Project.ActiveGeometryFile;
    const float length = test.App.Project.SHIPLEN.Value();
    ASSERT_NE(length, 55);
    const std::vector<float> offsets = test.App.Project.YAUSER.data;
    const std::string path = test.Folder.Write("sea.od6", AsPreviousGeneration(InputFileText(sea.Project)));
    test.Recorder.Files = {path};
    test.Give("File.OpenEnvironment");
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(test.App.Project.NSEADIR.Integer(), 3);
    EXPECT_EQ(test.App.Project.WAVESTEEP.Value(), 0.0625F);
    EXPECT_EQ(test.App.Project.SHIPLEN.Value(), length);
    EXPECT_EQ(test.App.Project.YAUSER.data, offsets);
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, ship);
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, path);
    EXPECT_EQ(Recent(test)[0], path);
}

TEST(MainFrame, ImportOverwritesOffsetsAfterAQuestion)
{
    CFrameTest test;
    std::string offsets;
    for (const auto& entry : std::filesystem::directory_iterator(SourceFile("samples/offsets")))
    {
        offsets = entry.path().extension() == ".csv" ? entry.path().string() : offsets;
    }
    ASSERT_NE(offsets, "");
    test.Recorder.Files = {offsets};
    test.Give("File.ImportOffsets");
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("Import Geometry: Are you sure you want to overwrite existing offsets?"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Question));
    EXPECT_THAT(test.Recorder.Requests, IsEmpty());
    test.Recorder.Answer = true;
    test.Give("File.ImportOffsets");
    EXPECT_GT(test.App.Project.NST.Integer(), 0);
    EXPECT_EQ(test.App.Project.InputFilePath, offsets);
    EXPECT_EQ(test.App.Modified, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(MainFrame, RecentFilesAreFour)
{
    CFrameTest test;
    for (const char* name : {"a.od7", "b.od7", "c & d.od7"})
    {
        test.Recorder.Files = {test.Sample(name)};
        test.Give("File.OpenBoth");
    }
    EXPECT_THAT(Offered(test),
                ElementsAre("&1 " + test.Folder.File("c && d.od7"), "&2 " + test.Folder.File("b.od7"),
                            "&3 " + test.Folder.File("a.od7"),
                            "&4 " + test.Folder.File("Data/Sample01.od7")));
    test.Give("File.Recent.2");
    EXPECT_EQ(test.App.Project.InputFilePath, test.Folder.File("a.od7"));
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, test.Folder.File("a.od7"));
    EXPECT_THAT(Recent(test), ElementsAre(test.Folder.File("a.od7"), test.Folder.File("c & d.od7"),
                                          test.Folder.File("b.od7"), test.Folder.File("Data/Sample01.od7")));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(MainFrame, ARecentFileThatCanNotBeReadLeavesTheList)
{
    CFrameTest test;
    test.Give("File.Recent.0"); // the samples are not here
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kReadError));
    EXPECT_EQ(test.Recorder.Beeps, 1);
    EXPECT_THAT(Offered(test), ElementsAre("&1 " + test.Folder.File("Data/Sample02.od7")));
    test.Give("File.Recent.0");
    EXPECT_THAT(Offered(test), IsEmpty());
    EXPECT_THAT(Recent(test), ElementsAre("", "", "", ""));
}

TEST(MainFrame, TheFirstLocalFileThatIsDroppedIsOpened)
{
    CFrameTest test;
    const std::string path = test.Sample("dropped.od7");
    Drop(test,
         {QUrl("https://ships.example/a.od7"), QUrl::fromLocalFile(ScreenText(path)),
          QUrl::fromLocalFile(ScreenText(test.Sample("second.od7")))},
         true);
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, path);
    EXPECT_EQ(Recent(test)[0], path);
    EXPECT_EQ(Offered(test)[0], "&1 " + path);
}

TEST(MainFrame, ADroppedFileThatIsNoProjectIsToldAndNotListed)
{
    CFrameTest test;
    Drop(test, {QUrl::fromLocalFile(ScreenText(test.Folder.Write("letter.txt", "Dear all,\n")))}, true);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kReadError));
    EXPECT_EQ(Recent(test)[0], test.Folder.File("Data/Sample01.od7"));
}

TEST(MainFrame, WhatIsNoFileOfThisMachineIsNotTaken)
{
    CFrameTest test;
    Drop(test, {QUrl("https://ships.example/a.od7")}, false);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(test.App.Project.InputFilePath, "noname");
}

TEST(MainFrame, FormsThatNeedTheHullDoNotOpenWithoutStations)
{
    CFrameTest test;
    test.Give("Vessel.Skeg");
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kNoStations));
    test.Recorder.Messages.clear();
    test.App.Project.NST.Set(0);
    test.Give("Vessel.Skeg");
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kNoStations));
    test.App.Project.NST.Set(11);
    test.GiveForm("Vessel.Skeg", "CSkegDlg");
}

TEST(MainFrame, CommandsOpenTheirForms)
{
    CFrameTest test;
    test.GiveForm("File.Settings", "CUnitsDlg");
    test.GiveForm("Vessel.Particulars", "CShipParticularsDlg");
    test.GiveForm("File.Description", "CProjectDescriptionDlg");
    test.GiveForm("Help.About", "CAboutDlg");
}

TEST(MainFrame, SummariesAreWrittenAndOpened)
{
    CFrameTest test;
    test.Give("Calculate.DisplayBoth");
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("No File Loaded: There is no file loaded to display!"));
    test.OpenSample();
    const std::string document = test.Folder.File("iview.html");
    for (const auto& [command, hasGeometry, hasEnvironment] :
         {std::tuple("Calculate.DisplayBoth", true, true),
          std::tuple("Calculate.DisplayGeometry", true, false),
          std::tuple("Calculate.DisplayEnvironment", false, true)})
    {
        test.Recorder.Started.clear();
        test.Give(command);
        EXPECT_THAT(test.Recorder.Started, ElementsAre("open " + document)) << command;
        const std::string text = FileContent(document);
        EXPECT_EQ(text.find("#Geo\"") != std::string::npos, hasGeometry) << command;
        EXPECT_EQ(text.find("#Env\"") != std::string::npos, hasEnvironment) << command;
    }
}

TEST(MainFrame, TheStatusBarTellsOfTheHighlightedCommand)
{
    CFrameTest test;
    EXPECT_EQ(test.Text("Status.Message"), "Ready");
    auto* menu = qobject_cast<QMenu*>(test.Action("Calculate.Run").associatedObjects().constFirst());
    ASSERT_NE(menu, nullptr);
    menu->popup({});
    menu->setActiveAction(&test.Action("Calculate.Run"));
    EXPECT_EQ(test.Text("Status.Message"), "Run calculation engine");
    menu->hide();
    EXPECT_EQ(test.Text("Status.Message"), "Ready");
}

TEST(MainFrame, LongStatusTextsWidenNoWindow)
{
    CFrameTest test;
    const int before = test.Frame.minimumSizeHint().width();
    QStatusTipEvent tip(QString(1000, 'x'));
    QApplication::sendEvent(&test.Frame, &tip);
    EXPECT_EQ(test.Text("Status.Message").size(), 1000U);
    EXPECT_EQ(test.Frame.minimumSizeHint().width(), before);
}

TEST(MainFrame, TheClockShowsTimeAndDate)
{
    CFrameTest test;
    EXPECT_THAT(test.Text("Status.Time"), testing::MatchesRegex("[01][0-9]:[0-5][0-9] [AP]M"));
    EXPECT_THAT(test.Text("Status.Date"), testing::MatchesRegex("20[0-9][0-9] [01][0-9] [0-3][0-9]"));
    auto* clock = test.Frame.findChild<QTimer*>("ClockTimer");
    EXPECT_EQ(clock->interval(), 1000);
    auto* time = test.Frame.findChild<QLabel*>("Status.Time");
    time->setText("stopped");
    clock->setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return time->text() != "stopped"; }));
}

TEST(MainFrame, IsMaximizedAtAFirstStartAndThenAsItWasLeft)
{
    CFrameTest test;
    EXPECT_TRUE(test.Frame.isMaximized());
    test.Frame.showNormal();
    test.Frame.resize(777, 555);
    QApplication::processEvents();
    test.Give("File.Exit");
    EXPECT_FALSE(test.Frame.isVisible());
    CMainFrame next(test.App);
    next.ShowAsLeft();
    EXPECT_FALSE(next.isMaximized());
    EXPECT_EQ(next.size(), QSize(777, 555));
}

TEST(MainFrame, ClosesWithoutAQuestionWhateverWasChanged)
{
    CFrameTest test;
    test.App.Modified = 1;
    EXPECT_TRUE(test.Frame.close());
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_THAT(test.Recorder.Started, IsEmpty());
}

TEST(MainFrame, NothingIsRepaintedOnceItIsGone)
{
    CRecorder recorder;
    const CTestFolder folder;
    COndaraApp app(recorder.Platform);
    {
        const CMainFrame frame(app);
    }
    app.Start(folder.Path());
    EXPECT_EQ(app.Project.InputFilePath, "noname");
}

TEST(MainFrame, LoadsTheSettings)
{
    CRecorder recorder;
    recorder.Entries[{"Settings", "ChkSegLenInter"}] = "5";
    recorder.Entries[{"Settings", "ChkNegZPreRun"}] = "0";
    COndaraApp app(recorder.Platform);
    const CMainFrame frame(app);
    EXPECT_EQ(app.Project.ChkSegLenInter, 1);
    EXPECT_EQ(app.Project.ChkNegZPreRun, 0);
    EXPECT_EQ(app.Project.ChkNegZInter, 1) << "absent";
    EXPECT_EQ(recorder.Find("Settings", "ChkSegLenInter"), "0");
    EXPECT_EQ(recorder.ProfileWrites, 3);
}

TEST(MainFrame, ALongPathInTheMenuIsCutInTheMiddleAndToldWhole)
{
    CFrameTest test;
    const std::string path = "/" + std::string(300, 'x') + "/ship.od7";
    test.App.RecentFiles.Add(path);
    test.Frame.UpdateCommands();
    EXPECT_LT(Offered(test)[0].size(), 200U);
    EXPECT_THAT(Offered(test)[0], testing::EndsWith("ship.od7"));
    EXPECT_EQ(PlainText(test.Action("File.Recent.0").statusTip()), "Open " + path);
}

TEST(MainFrame, TheStatusBarTellsOfDisabledCommandsToo)
{
    CFrameTest test;
    QAction& action = test.Action("Vessel.MassDistribution");
    ASSERT_FALSE(action.isEnabled());
    QMenu* menu = nullptr;
    for (QMenu* candidate : test.Frame.menuBar()->findChildren<QMenu*>())
    {
        menu = candidate->actions().contains(&action) ? candidate : menu;
    }
    ASSERT_NE(menu, nullptr);
    menu->popup(QPoint(0, 0));
    QTest::mouseMove(menu, menu->actionGeometry(&action).center() - QPoint(3, 0));
    QTest::mouseMove(menu, menu->actionGeometry(&action).center());
    EXPECT_THAT(test.Text("Status.Message"), testing::HasSubstr("not available yet"));
    menu->close();
}
