#include "bench/Compare.h"

#include <benchmark/benchmark.h>

#include <utility>

namespace
{
using CBody = std::function<void(benchmark::State&)>;

benchmark::internal::Benchmark* Register(const std::string& name, CBody body, int runs)
{
    return benchmark::RegisterBenchmark(name.c_str(), std::move(body))
        ->Unit(benchmark::kMicrosecond)
        ->Repetitions(runs)
        ->ReportAggregatesOnly();
}
} // namespace

void Compare(const std::string& name, const std::function<void()>& program,
             const std::function<void()>& yardstick, int runs)
{
    for (const auto& [part, step] : {std::pair("/program", program), std::pair("/yardstick", yardstick)})
    {
        const auto body = [step = step](benchmark::State& state)
        {
            for (auto iteration : state)
            {
                static_cast<void>(iteration);
                step();
            }
        };
        Register(name + part, body, runs)->UseRealTime()->MinTime(0.05);
    }
}

void CompareTimes(const std::string& name, const std::function<double()>& program,
                  const std::function<double()>& yardstick, int runs)
{
    for (const auto& [part, step] : {std::pair("/program", program), std::pair("/yardstick", yardstick)})
    {
        const auto body = [step = step](benchmark::State& state)
        {
            for (auto iteration : state)
            {
                static_cast<void>(iteration);
                state.SetIterationTime(step());
            }
        };
        Register(name + part, body, runs)->UseManualTime()->Iterations(1);
    }
}
