// The program ondara-cli as a function: parses its words, runs the one command among them.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

constexpr int kExitDone = 0;
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;

/// Gives the exit code: one of these, or 128 and the number of the signal that ended a run. `words` are
/// without the program's own name; `output` takes what the command is asked for, `errors` the messages. May
/// change the current folder, as file dialogs do.
int RunCommandLine(const std::vector<std::string>& words, std::ostream& output, std::ostream& errors);
