// Registers a step of the program and its yardstick as a pair of benchmarks.
#pragma once

#include <functional>
#include <string>

constexpr int kRuns = 15;
constexpr int kRunsOfLongSteps = 5;

/// Each is run `runs` times; the reporter prints the medians beside each other.
void Compare(const std::string& name, const std::function<void()>& program,
             const std::function<void()>& yardstick, int runs = kRuns);

/// The same for steps that tell their seconds themselves.
void CompareTimes(const std::string& name, const std::function<double()>& program,
                  const std::function<double()>& yardstick, int runs = kRuns);
