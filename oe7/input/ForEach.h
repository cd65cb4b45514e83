// A loop whose rounds are shared among threads.
#pragma once

#include <functional>

namespace oe7
{

/// Calls work(i) for i = 0..count-1, each once, in any order and on any of `threads` threads. Each round may
/// write only what belongs to it. The first exception of a round is thrown on when all threads have ended.
void ForEach(int count, int threads, const std::function<void(int)>& work);

} // namespace oe7
