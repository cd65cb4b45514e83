// The program itself, and a signal that comes while its engine is at work.
#pragma once

#include "tests/cli/CEngineCliTest.h"

#include <string>
#include <vector>

/// Exit code and errors of a command that starts the engine, when a signal comes meanwhile. The engine is one
/// that never ends; none is left afterwards.
CCliRun Interrupted(CEngineCliTest& test, const std::vector<std::string>& words, int signal);
