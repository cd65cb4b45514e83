// The output report on its way to the screen.
#include "core/results/report/CReportDocument.h"

#include "tests/core/results/CCompletion.h"
#include "tests/support/FullProject.h"

#include <gmock/gmock.h>

#include <filesystem>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
/// The results of a run, and the report of its hydrostatics.
struct CDocumentCase : CCompletion
{
    CDocumentCase()
    {
        FillToMinimum(Project);
        RunEngine();
        Complete();
        Recorder.Events.clear();
        Recorder.Messages.clear();
        Project.ResultsFilePath = Path;
        Flags.fill(kSectionNotSelected);
        Flags[kSectionHydrostatics] = kSectionSelected;
    }

    CReportFlags Flags;
    std::string Report = Folder.File(kOutputReportName);
    CReportDocument Document{Project, Session, Recorder.Platform};
};
} // namespace

TEST(ReportDocument, IsWrittenUnderAWaitCursorAndOpened)
{
    CDocumentCase test;
    EXPECT_TRUE(test.Document.Write(test.Flags));
    test.Document.Show();
    EXPECT_THAT(FileContent(test.Report), HasSubstr("HYDROSTATICS SUMMARY"));
    EXPECT_EQ(test.Project.ReportDataRead, 1);
    EXPECT_THAT(test.Recorder.Events, ElementsAre("wait", "arrow", "open " + test.Report));
}

TEST(ReportDocument, AFailureIsToldWithTheArrowBack)
{
    CDocumentCase test;
    test.Project.ResultsFilePath = test.Folder.File("gone.tv7");
    EXPECT_FALSE(test.Document.Write(test.Flags));
    EXPECT_THAT(test.Recorder.Events,
                ElementsAre("wait", "arrow", "beep", "Error Saving File: The file could not be read."));
    EXPECT_EQ(test.Project.ReportDataRead, 0);
}

TEST(ReportDocument, WithoutAProgramToShowItItsPlaceIsTold)
{
    CDocumentCase test;
    for (const EStart start : {EStart::NotFound, EStart::Refused, EStart::OutOfMemory})
    {
        test.Recorder.Start = start;
        test.Recorder.Messages.clear();
        test.Document.Show();
        EXPECT_THAT(test.Recorder.Messages,
                    ElementsAre("Open Report: The report is ready, but no program could be started to show "
                                "it.\nPlease open this file in a browser:\n" +
                                test.Report));
    }
}

TEST(ReportDocument, IsCopiedToTheNameThatTheUserGives)
{
    CDocumentCase test;
    std::filesystem::create_directory(test.Folder.File("reports"));
    const std::string copy = test.Folder.File("reports/seas.html");
    test.Project.ResultsFilePath = test.Folder.Write("frigate.tv7", FileContent(test.Path));
    test.Recorder.Files = {copy};
    ASSERT_TRUE(test.Document.Write(test.Flags));
    test.Document.SaveAs();
    EXPECT_EQ(FileContent(copy), FileContent(test.Report));
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    const CFileRequest& request = test.Recorder.Requests.front();
    EXPECT_EQ(request.DefaultExtension, "html");
    EXPECT_EQ(request.Filter, "Result Files (*.html)|*.html|All Files(*.*)|*.*|");
    EXPECT_EQ(request.InitialName, "frigate.html");
    EXPECT_TRUE(request.OverwritePrompt);
    EXPECT_EQ(test.Session.WorkDir, test.Folder.File("reports"));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(ReportDocument, CancelCopiesNothing)
{
    CDocumentCase test;
    ASSERT_TRUE(test.Document.Write(test.Flags));
    test.Document.SaveAs();
    EXPECT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(ReportDocument, IsNotCopiedOverAFileThatMayNotBeWrittenOrIntoNowhere)
{
    CDocumentCase test;
    ASSERT_TRUE(test.Document.Write(test.Flags));
    std::filesystem::create_directory(test.Folder.File("folder.html"));
    for (const std::string& target : {test.Folder.File("folder.html"), test.Folder.File("none/seas.html")})
    {
        test.Recorder.Messages.clear();
        test.Recorder.Files = {target};
        test.Document.SaveAs();
        EXPECT_THAT(test.Recorder.Messages, ElementsAre("Error Saving File: The file could not be saved."));
    }
}

TEST(ReportDocument, SavedUnderItsOwnNameStays)
{
    CDocumentCase test;
    ASSERT_TRUE(test.Document.Write(test.Flags));
    const std::string report = FileContent(test.Report);
    test.Recorder.Files = {test.Report};
    test.Document.SaveAs();
    EXPECT_EQ(FileContent(test.Report), report);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}
