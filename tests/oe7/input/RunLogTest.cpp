#include "oe7/input/CRunLog.h"

#include <gmock/gmock.h>

namespace oe7
{
namespace
{
using testing::ElementsAre;

TEST(RunLog, KeepsEachTextOnceInOrder)
{
    CRunLog log;
    log.Warn("b");
    log.Warn("a");
    log.Warn("b");
    log.Note("b");
    log.Note("b");
    EXPECT_THAT(log.Warnings(), ElementsAre("b", "a"));
    EXPECT_THAT(log.Notes(), ElementsAre("b"));
}

} // namespace
} // namespace oe7
