// The engine's log. The first word of its first line tells the outcome: 0, 1 (warnings) or -1; no other line
// begins so.
#pragma once

#include "oe7/input/CRunLog.h"

#include <ctime>
#include <string>
#include <string_view>

namespace oe7
{

/// The log of a calculation that has begun.
std::string UnfinishedLog();
/// The log of one that has come to its end, after so many seconds. `stamp` is that of RunStamp.
std::string FinishedLog(const CRunLog& log, std::string_view stamp, double seconds);
std::string FailedLog(std::string_view error, const CRunLog& log, std::string_view stamp);

/// A moment in local time, in English wherever the user is: "Fri Nov 20 17:31:18 2026".
std::string RunStamp(std::time_t moment);

} // namespace oe7
