// Registers a step of the program and its yardstick as a pair of benchmarks.
#pragma once

#include <functional>
#include <string>

constexpr int kRuns = 15;
constexpr int kRunsOfLongSteps = 5;

/// Each is run `runs` times; the reporter prints the medians beside each other.
void Compare(const std::string& name, const std::function<void()>& program,
             const std::function<void()>& yardstick, int runs = kRuns);
