#include "oe7/output/LogFile.h"

#include "core/engine/EngineLog.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ctime>

namespace oe7
{
namespace
{
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kStamp = "Fri Nov 20 17:31:18 2026";

TEST(Log, OfARunThatGoesOnIsThatOfOneThatNeverEnded)
{
    EXPECT_EQ(UnfinishedLog(), "-1 the calculation did not come to its end\n");
    EXPECT_TRUE(ReportsProblem(UnfinishedLog()));
}

TEST(Log, OfARunWithoutWarningsReportsNoProblem)
{
    CRunLog log;
    log.Note("a contour was carried up");
    const std::string text = FinishedLog(log, kStamp, 3.14159);
    EXPECT_EQ(text, "0 completed without problems\n"
                    "Note: a contour was carried up\n"
                    "Run of Fri Nov 20 17:31:18 2026\n"
                    "Note: it took 3.1 s\n");
    EXPECT_FALSE(ReportsProblem(text));
}

TEST(Log, OfARunWithWarningsCountsAndListsThemBeforeTheNotes)
{
    CRunLog log;
    log.Note("a note");
    log.Warn("no speed");
    EXPECT_THAT(FinishedLog(log, kStamp, 0), StartsWith("1 completed with 1 warning\n"
                                                        "Note: no speed\n"
                                                        "Note: a note\n"));
    log.Warn("no sea");
    const std::string text = FinishedLog(log, kStamp, 0);
    EXPECT_THAT(text, StartsWith("1 completed with 2 warnings\n"
                                 "Note: no speed\n"
                                 "Note: no sea\n"));
    EXPECT_TRUE(ReportsProblem(text));
}

TEST(Log, OfAFailureTellsTheErrorAndWhatWasWarnedOfBefore)
{
    CRunLog log;
    log.Warn("no speed");
    const std::string text = FailedLog("line 17: the draft is missing", log, kStamp);
    EXPECT_EQ(text, "-1 error: line 17: the draft is missing\n"
                    "Note: no speed\n"
                    "Run of Fri Nov 20 17:31:18 2026\n");
    EXPECT_TRUE(ReportsProblem(text));
}

TEST(Log, HasItsOutcomeInTheFirstLineOnlyWhateverTheTextsHold)
{
    CRunLog log;
    log.Warn("a\n0 b\r\n1 c");
    log.Note("d\n-1 e");
    const std::string text = FailedLog("f\n0 g\r0 h", log, "i\n1 j");
    EXPECT_EQ(text, "-1 error: f 0 g 0 h\n"
                    "Note: a 0 b  1 c\n"
                    "Note: d -1 e\n"
                    "Run of i 1 j\n");
}

TEST(RunStamp, IsInLocalTimeAndInEnglish)
{
    ::setenv("TZ", "UTC0", 1);
    ::tzset();
    EXPECT_EQ(RunStamp(1795195878), "Fri Nov 20 17:31:18 2026");
    EXPECT_EQ(RunStamp(0), "Thu Jan  1 00:00:00 1970");
    ::setenv("TZ", "XXX-2", 1);
    ::tzset();
    EXPECT_EQ(RunStamp(0), "Thu Jan  1 02:00:00 1970");
    ::unsetenv("TZ");
    ::tzset();
}

} // namespace
} // namespace oe7
