// Prints the medians of benchmarks in pairs, "NAME/program" and "NAME/yardstick", with their ratio.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

class CRatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    /// The table.
    void Finalize() override;

private:
    std::vector<std::string> m_names;        ///< in order
    std::map<std::string, double> m_medians; ///< microseconds, by "NAME/program" and "NAME/yardstick"
};
