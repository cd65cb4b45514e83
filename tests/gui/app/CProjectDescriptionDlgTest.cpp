#include "gui/app/CProjectDescriptionDlg.h"

#include "tests/support/gui/CFormDriver.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>

using testing::ElementsAre;

namespace
{
constexpr const char* kBox = "ProjectTitle";

/// A project that is described.
struct CDescribed : CFormProject
{
    CDescribed() { Project.ProjectTitle = "Frigate, first hull"; }
};
} // namespace

TEST(ProjectDescription, IsShownWithItsTextSelectedAndStoredAtOk)
{
    CDescribed project;
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    EXPECT_EQ(form.Form().windowTitle(), "Project Description");
    EXPECT_EQ(form.Caption("ProjectTitle.label"), "Description");
    EXPECT_EQ(form.Focus(), kBox);
    EXPECT_EQ(form.Selected(), "Frigate, first hull");
    form.Type(kBox, "Frigate, second hull");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(project.Project.ProjectTitle, "Frigate, second hull");
    EXPECT_EQ(project.Session.Modified, 1);
}

TEST(ProjectDescription, OkWithTheSameTextModifiesNothing)
{
    CDescribed project;
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    form.Type(kBox, "Frigate, first hull");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(ProjectDescription, CancelKeepsTheOldOne)
{
    CDescribed project;
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    form.Type(kBox, "another");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(project.Project.ProjectTitle, "Frigate, first hull");
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(ProjectDescription, HasRoomFor79Characters)
{
    CDescribed project;
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    const std::string longest(79, 'x');
    form.Type(kBox, (longest + "y").c_str());
    EXPECT_EQ(form.Text(kBox), longest);
    form.Set(kBox, std::string(200, 'z').c_str());
    form.Ok();
    EXPECT_EQ(project.Project.ProjectTitle, std::string(79, 'z'));
}

TEST(ProjectDescription, OfAFileMayBeLongerAndStaysSoUntilItIsEdited)
{
    CDescribed project;
    const std::string tooLong(100, 'x');
    project.Project.ProjectTitle = tooLong;
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    EXPECT_EQ(form.Text(kBox), std::string(79, 'x'));
    form.Ok();
    EXPECT_EQ(project.Project.ProjectTitle, tooLong);
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(ProjectDescription, BytesThatAreNoUtf8AreKeptUntilEdited)
{
    CDescribed project;
    project.Project.ProjectTitle = "M\xe4rz";
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    EXPECT_EQ(form.Text(kBox), "M\xc3\xa4rz");
    form.Ok();
    EXPECT_EQ(project.Project.ProjectTitle, "M\xe4rz");
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(ProjectDescription, PastedLinesBecomeOne)
{
    CDescribed project;
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    QApplication::clipboard()->setText("Frigate\r\nin ballast\nod7b");
    form.Press(Qt::Key_A, Qt::ControlModifier);
    form.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.Text(kBox), "Frigate in ballast od7b");
    form.Ok();
    EXPECT_EQ(project.Project.ProjectTitle, "Frigate in ballast od7b");
}

TEST(ProjectDescription, HelpIsItsOwnTopicAndLeavesTheFormOpen)
{
    CDescribed project;
    CFormDriver form = Opened<CProjectDescriptionDlg>(project);
    form.Click("Help");
    EXPECT_THAT(project.HelpTopics, ElementsAre(100));
    EXPECT_TRUE(form.IsOpen());
}
