#include "oe7/input/ForEach.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace oe7
{
namespace
{
/// Rounds of a loop that any number of threads take one after the other.
class CSharedLoop
{
public:
    CSharedLoop(int count, const std::function<void(int)>& work) : m_count(count), m_work(work) {}

    /// Takes rounds until none is left or one has failed.
    void Run()
    {
        while (!m_failed)
        {
            const int round = m_next++;
            if (round >= m_count)
            {
                return;
            }
            RunRound(round);
        }
    }

    void RethrowFailure() const
    {
        if (m_failure)
        {
            std::rethrow_exception(m_failure);
        }
    }

private:
    void RunRound(int round)
    {
        try
        {
            m_work(round);
        }
        catch (...)
        {
            KeepFailure(round);
        }
    }

    /// Of several failures that of the lowest round is kept. All rounds before it have been taken, and a
    /// round once taken is run, so that it is the same one with any number of threads.
    void KeepFailure(int round)
    {
        const std::lock_guard lock(m_mutex);
        if (!m_failure || round < m_failedRound)
        {
            m_failure = std::current_exception();
            m_failedRound = round;
        }
        m_failed = true;
    }

    const int m_count;
    const std::function<void(int)>& m_work;
    std::atomic<int> m_next = 0;
    std::atomic<bool> m_failed = false;
    std::mutex m_mutex;
    std::exception_ptr m_failure;
    int m_failedRound = 0;
};

/// Fewer threads than asked for, where the system has no more, do the same work.
std::vector<std::thread> StartWorkers(int count, CSharedLoop& loop)
{
    std::vector<std::thread> workers;
    workers.reserve(static_cast<std::size_t>(std::max(count, 0)));
    try
    {
        for (int k = 0; k < count; ++k)
        {
            workers.emplace_back([&loop] { loop.Run(); });
        }
    }
    catch (const std::system_error&)
    {
    }
    return workers;
}
} // namespace

void ForEach(int count, int threads, const std::function<void(int)>& work)
{
    CSharedLoop loop(count, work);
    std::vector<std::thread> workers = StartWorkers(std::min(threads, count) - 1, loop);
    loop.Run();
    for (std::thread& worker : workers)
    {
        worker.join();
    }
    loop.RethrowFailure();
}

} // namespace oe7
