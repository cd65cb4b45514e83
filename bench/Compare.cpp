#include "bench/Compare.h"

#include <benchmark/benchmark.h>

#include <utility>

void Compare(const std::string& name, const std::function<void()>& program,
             const std::function<void()>& yardstick, int runs)
{
    for (const auto& [part, step] : {std::pair("/program", program), std::pair("/yardstick", yardstick)})
    {
        benchmark::RegisterBenchmark((name + part).c_str(),
                                     [step = step](benchmark::State& state)
                                     {
                                         for (auto iteration : state)
                                         {
                                             static_cast<void>(iteration);
                                             step();
                                         }
                                     })
            ->Unit(benchmark::kMicrosecond)
            ->UseRealTime()
            ->MinTime(0.05)
            ->Repetitions(runs)
            ->ReportAggregatesOnly();
    }
}
