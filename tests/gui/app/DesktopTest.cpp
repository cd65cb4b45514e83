// The start of the program: its order, a second instance, and what it answers without a window.
#include "gui/app/Desktop.h"

#include "core/platform/CInstanceLock.h"
#include "core/platform/Files.h"
#include "tests/gui/app/CFrameTest.h"

#include <filesystem>

#include <gmock/gmock.h>

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QTest>

using testing::ElementsAre;
using testing::HasSubstr;

namespace
{
/// The program, with settings and lock in a folder of the test's own, from which it is started.
class CProgramTest
{
public:
    CProgramTest()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString folder = QString::fromStdString(Folder.Path());
        for (const char* name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
        {
            environment.insert(name, folder);
        }
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        Program.setProcessEnvironment(environment);
        Program.setWorkingDirectory(folder);
        std::filesystem::permissions(Folder.Path(), std::filesystem::perms::owner_all);
    }
    ~CProgramTest()
    {
        Program.kill();
        Program.waitForFinished();
    }

    void Start(const QStringList& arguments = {})
    {
        Program.start(QStringLiteral(ONDARA_BIN_DIR "/ondara"), arguments);
        EXPECT_TRUE(Program.waitForStarted());
    }
    int End()
    {
        EXPECT_TRUE(Program.waitForFinished());
        EXPECT_EQ(Program.exitStatus(), QProcess::NormalExit);
        return Program.exitCode();
    }
    std::string Output() { return Program.readAllStandardOutput().toStdString(); }
    std::string Settings() const
    {
        return ReadFile(Folder.File("Larkfield Marine Limited/Ondara.ini"), 100000).value_or("");
    }

    CTestFolder Folder;
    QProcess Program;
};
} // namespace

TEST(Desktop, AStartFindsFoldersScreenAndSamples)
{
    CFrameTest test;
    EXPECT_TRUE(test.Frame.isVisible());
    EXPECT_EQ(test.App.BaseDir, test.Folder.Path());
    EXPECT_EQ(test.App.WorkDir, test.Folder.Path());
    const QSize screen = QApplication::primaryScreen()->size();
    EXPECT_EQ(test.App.ScreenSize, std::to_string(screen.width()) + " x " + std::to_string(screen.height()));
    EXPECT_GT(test.App.IconSpacing, 0);
    EXPECT_EQ(test.App.Project.SHIPLEN.name, "SHIPLEN");
    EXPECT_THAT(test.App.RecentFiles.Paths(), ElementsAre(test.Folder.File("Data/Sample01.od7"),
                                                          test.Folder.File("Data/Sample02.od7"), "", ""));
}

TEST(Desktop, RecentFilesOfBeforeAreKept)
{
    CRecorder recorder;
    const CTestFolder folder;
    recorder.Entries[{"Recent File List", "File1"}] = "/ships/frigate.od7";
    COndaraApp app(recorder.Platform);
    CMainFrame frame(app);
    StartFrame(app, frame, folder.Path());
    EXPECT_THAT(app.RecentFiles.Paths(), ElementsAre("/ships/frigate.od7", "", "", ""));
    EXPECT_EQ(frame.findChild<QAction*>("File.Recent.0")->text(), "&1 /ships/frigate.od7");
}

TEST(Desktop, ItsPartsFitTogether)
{
    const CTestFolder folder;
    CDesktop desktop(folder.File("settings.ini"));
    StartFrame(desktop.App, desktop.Frame, folder.Path());
    EXPECT_TRUE(desktop.Frame.isVisible());
    EXPECT_TRUE(FileExists(folder.File("settings.ini")));
}

TEST(Program, StartsAndOffersTheSamplesOfItsFolder)
{
    CProgramTest test;
    test.Start();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return test.Settings().find("Sample01.od7") != std::string::npos; }, 30000));
    EXPECT_THAT(test.Settings(), HasSubstr("File1=" + test.Folder.File("Data/Sample01.od7")));
    EXPECT_EQ(test.Program.state(), QProcess::Running);
}

TEST(Program, ASecondInstanceEndsAtOnceWithoutAWord)
{
    CProgramTest test;
    const CInstanceLock first(test.Folder.File("ondara.lock"));
    ASSERT_TRUE(first.IsFirst());
    test.Start();
    EXPECT_EQ(test.End(), 0);
    EXPECT_EQ(test.Output(), "");
    EXPECT_EQ(test.Program.readAllStandardError().toStdString(), "");
    EXPECT_EQ(test.Settings(), "");
}

TEST(Program, AnswersWhoAsksForItsVersionOrHelp)
{
    CProgramTest test;
    const CInstanceLock first(test.Folder.File("ondara.lock"));
    test.Start({"--version"});
    EXPECT_EQ(test.End(), 0);
    EXPECT_EQ(test.Output(), "ondara 3.5.0\n");
    for (const char* option : {"--help", "-h"})
    {
        test.Start({option});
        EXPECT_EQ(test.End(), 0);
        EXPECT_THAT(test.Output(), HasSubstr("Usage: ondara [OPTIONS]\n"));
    }
}
