#include "bench/CRatioReporter.h"

#include "core/platform/NumberText.h"

void CRatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        if (run.aggregate_name != "median")
        {
            continue;
        }
        const std::string& name = run.run_name.function_name;
        m_medians[name] = run.GetAdjustedRealTime();
        const std::string pair = name.substr(0, name.find('/'));
        if (m_names.empty() || m_names.back() != pair)
        {
            m_names.push_back(pair);
        }
    }
}

void CRatioReporter::Finalize()
{
    std::ostream& out = GetOutputStream();
    out << FormatText("%-28s %14s %14s %7s\n", "", "program, us", "yardstick, us", "ratio");
    for (const std::string& name : m_names)
    {
        const double program = m_medians[name + "/program"];
        const double yardstick = m_medians[name + "/yardstick"];
        out << FormatText("%-28s %14.1f %14.1f %7.2f\n", name.c_str(), program, yardstick,
                          program / yardstick);
    }
}
