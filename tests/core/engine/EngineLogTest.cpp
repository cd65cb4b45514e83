#include "core/engine/EngineLog.h"

#include "tests/support/CTestProject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
void Check(CTestProject& test)
{
    CheckLog(test.Folder.Path(), test.Recorder.Platform);
}
} // namespace

TEST(EngineLog, TheFirstOfTheThreeWordsDecides)
{
    EXPECT_FALSE(ReportsProblem("0 good\n1 bad\n"));
    EXPECT_TRUE(ReportsProblem("1 bad\n0 good\n"));
    EXPECT_TRUE(ReportsProblem("some text\n\n -1 bad\n0\n"));
}

TEST(EngineLog, TheWordIsTheFirstOfItsLineAndComparedExactly)
{
    EXPECT_FALSE(ReportsProblem("error 1\n01\n1.\n+1\n-1.0\n10\n1\tbad\n"));
    EXPECT_TRUE(ReportsProblem("01\n1"));
    EXPECT_TRUE(ReportsProblem("1\r\n"));
}

TEST(EngineLog, ALogWithoutSuchALineReportsNothing)
{
    EXPECT_FALSE(ReportsProblem(""));
    EXPECT_FALSE(ReportsProblem("\n\n   \nno verdict"));
}

TEST(EngineLog, WhatIsLongerThanALineGoesOnInTheNext)
{
    EXPECT_TRUE(ReportsProblem(std::string(255, 'x') + "1 bad\n"));
    EXPECT_FALSE(ReportsProblem(std::string(254, 'x') + "1 bad\n"));
    EXPECT_FALSE(ReportsProblem(std::string(1 << 20, 'x')));
    EXPECT_FALSE(ReportsProblem(std::string(1 << 20, '\0')));
}

TEST(EngineLog, ALogWithAProblemIsShown)
{
    CTestProject test;
    test.Folder.Write("ondara7.log", "1 no convergence\n");
    Check(test);
    EXPECT_THAT(test.Recorder.Started, ElementsAre("text " + test.Folder.File("ondara7.log")));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(EngineLog, ALogWithoutAProblemIsNotShown)
{
    CTestProject test;
    test.Folder.Write("ondara7.log", "0\n");
    Check(test);
    EXPECT_THAT(test.Recorder.Events, IsEmpty());
}

TEST(EngineLog, ALogThatIsNotThereIsToldAndNotMade)
{
    CTestProject test;
    Check(test);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("File Read Error: Error reading log file!"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Stop));
    EXPECT_FALSE(FileExists(test.Folder.File("ondara7.log")));
}

TEST(EngineLog, ItsNameMayBeSpelledInAnyCase)
{
    CTestProject test;
    test.Folder.Write("Ondara7.LOG", "-1\n");
    Check(test);
    EXPECT_THAT(test.Recorder.Started, ElementsAre("text " + test.Folder.File("ondara7.log")));
}

TEST(EngineLog, AViewerThatDoesNotStartIsToldByItsReason)
{
    CTestProject test;
    test.Folder.Write("ondara7.log", "1\n");
    for (const EStart start : {EStart::OutOfMemory, EStart::NotFound, EStart::Refused})
    {
        test.Recorder.Start = start;
        Check(test);
    }
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("Out of Memory: There was insufficient memory to start the application.",
                            "Notepad Not Found: Notepad was not found!"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::None, EIcon::None));
}
