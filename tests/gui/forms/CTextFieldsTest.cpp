#include "gui/forms/CTextFields.h"

#include "core/platform/Files.h"
#include "gui/forms/CFormDlg.h"
#include "tests/support/gui/CFormDriver.h"

#include <gmock/gmock.h>

using testing::SizeIs;

namespace
{
class CTexts : public CFormDlg
{
public:
    explicit CTexts(CFormContext& context, QWidget* parent = nullptr)
        : CFormDlg(context, "CTexts", "Texts", 1, parent)
    {
        Text("Description", "ProjectTitle", Project().ProjectTitle, 5);
        File("Gains", "RudderGainFile", Project().RudderGainFile, {"", "", "All Files(*.*)|*.*|", false});
    }
};

/// Puts the folder back that the dialogs change.
struct CTextProject : CFormProject
{
    ~CTextProject() { ChangeFolder(Before); }

    std::string Before = CurrentFolder();
};
} // namespace

TEST(TextField, HoldsNoMoreThanItsCharacters)
{
    CTextProject project;
    CFormDriver form = Opened<CTexts>(project);
    form.Type("ProjectTitle", "abcdefg");
    form.Ok();
    EXPECT_EQ(project.Project.ProjectTitle, "abcde");
    EXPECT_EQ(project.Session.Modified, 1);
}

TEST(TextField, StaysAsItWasWhereItIsShownShortened)
{
    CTextProject project;
    project.Project.ProjectTitle = "abcdefg";
    CFormDriver form = Opened<CTexts>(project);
    EXPECT_EQ(form.Text("ProjectTitle"), "abcde");
    form.Ok();
    EXPECT_EQ(project.Project.ProjectTitle, "abcdefg");
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(FileField, BrowseBeginsAtTheTextAndTakesTheFullPath)
{
    CTextProject project;
    const CTestFolder elsewhere;
    const std::string path = elsewhere.Write("gains.txt", "");
    project.Project.RudderGainFile = "old.txt";
    project.Recorder.Files = {path};
    CFormDriver form = Opened<CTexts>(project);
    EXPECT_EQ(form.Caption("Browse"), "Browse ...");
    form.Click("Browse");
    ASSERT_THAT(project.Recorder.Requests, SizeIs(1));
    EXPECT_EQ(project.Recorder.Requests[0].InitialName, "old.txt");
    EXPECT_EQ(project.Recorder.Requests[0].Filter, "All Files(*.*)|*.*|");
    EXPECT_EQ(form.Text("RudderGainFile"), path);
    EXPECT_EQ(project.Session.WorkDir, elsewhere.Path());
    EXPECT_EQ(project.Project.RudderGainFile, "old.txt"); // until OK
    form.Ok();
    EXPECT_EQ(project.Project.RudderGainFile, path);
}

TEST(FileField, CancelledBrowsingKeepsTheText)
{
    CTextProject project;
    project.Project.RudderGainFile = "old.txt";
    CFormDriver form = Opened<CTexts>(project);
    form.Click("Browse");
    EXPECT_EQ(form.Text("RudderGainFile"), "old.txt");
    EXPECT_EQ(project.Session.WorkDir, project.Folder.Path());
    EXPECT_TRUE(form.IsOpen());
}
