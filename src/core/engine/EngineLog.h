// The engine's log: its one word that says whether the engine has a problem to report.
#pragma once

#include "core/platform/CPlatform.h"

#include <string>
#include <string_view>

constexpr const char* kLogFileName = "ondara7.log"; ///< in the engine's folder

/// Whether a log reports a problem: the first line whose first word is "0", "1" or "-1" decides, and only "0"
/// says that there is none. A log without such a line reports nothing.
bool ReportsProblem(std::string_view log);

/// Shows the log if it reports a problem. A log that can't be read is told of.
void CheckLog(const std::string& baseDir, CPlatform& platform);

/// "There was insufficient memory to start the application."
void ShowOutOfMemory(CMessages& messages);
