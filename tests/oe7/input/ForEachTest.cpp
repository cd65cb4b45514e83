#include "oe7/input/ForEach.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace oe7
{
namespace
{
using testing::Each;
using testing::Eq;

class LoopOnThreads : public testing::TestWithParam<int>
{
};
INSTANTIATE_TEST_SUITE_P(ForEach, LoopOnThreads, testing::Values(-1, 0, 1, 2, 3, 16, 2000));

TEST_P(LoopOnThreads, RunsEachRoundOnce)
{
    std::vector<std::atomic<int>> calls(1000);
    ForEach(1000, GetParam(), [&](int k) { ++calls[static_cast<std::size_t>(k)]; });
    EXPECT_THAT(calls, Each(Eq(1)));
}

TEST_P(LoopOnThreads, RunsNothingForNoRound)
{
    ForEach(0, GetParam(), [](int) { FAIL(); });
    ForEach(-5, GetParam(), [](int) { FAIL(); });
}

TEST_P(LoopOnThreads, ThrowsTheFailureOfTheFirstRoundThatFails)
{
    try
    {
        ForEach(100, GetParam(),
                [](int k)
                {
                    if (k % 10 == 7)
                    {
                        throw std::runtime_error(std::to_string(k));
                    }
                });
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_STREQ(error.what(), "7");
    }
}

TEST_P(LoopOnThreads, BeginsNoRoundOnceOneHasFailed)
{
    std::atomic<int> rounds = 0;
    const auto work = [&rounds](int)
    {
        ++rounds;
        throw std::runtime_error("at once");
    };
    EXPECT_THROW(ForEach(1000000, GetParam(), work), std::runtime_error);
    EXPECT_LE(rounds, std::max(GetParam(), 1));
}

TEST(ForEach, HasNoMoreThreadsThanRounds)
{
    std::mutex mutex;
    std::set<std::thread::id> threads;
    ForEach(2, 100,
            [&](int)
            {
                const std::lock_guard lock(mutex);
                threads.insert(std::this_thread::get_id());
            });
    EXPECT_LE(threads.size(), 2U);
}

TEST(ForEach, WithOneThreadStaysOnTheCallersInOrder)
{
    const std::thread::id caller = std::this_thread::get_id();
    std::vector<int> rounds;
    ForEach(3, 1,
            [&](int k)
            {
                rounds.push_back(k);
                EXPECT_EQ(std::this_thread::get_id(), caller);
            });
    EXPECT_THAT(rounds, testing::ElementsAre(0, 1, 2));
}

} // namespace
} // namespace oe7
