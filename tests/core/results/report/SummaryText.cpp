#include "tests/core/results/report/SummaryText.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

CSummaryHead SummaryHead()
{
    CSummaryHead head;
    head.Company = "Harbour Works";
    head.Client = "Northern Line";
    head.Contract = "K-17/3";
    head.Time.tm_year = 109;
    head.Time.tm_mon = 2;
    head.Time.tm_mday = 7;
    head.Time.tm_hour = 9;
    head.Time.tm_min = 5;
    head.Time.tm_sec = 3;
    return head;
}

std::string SummaryText(const CProjectData& project, ESummaryScope scope)
{
    return InputSummary(project, scope, SummaryHead());
}

std::vector<std::string> SummaryLines(const CProjectData& project, ESummaryScope scope)
{
    std::istringstream stream(SummaryText(project, scope));
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> SummaryBlock(const CProjectData& project, const std::string& first)
{
    const auto lines = SummaryLines(project);
    const auto begin = std::find_if(lines.begin(), lines.end(),
                                    [&first](const std::string& line) { return line.starts_with(first); });
    const auto end = std::find(begin, lines.end(), "</td></tr></TABLE><BR>");
    if (end == lines.end())
    {
        ADD_FAILURE() << "no block " << first;
        return {};
    }
    return {begin, end + 1};
}

std::string SummaryLine(const CProjectData& project, const std::string& begin)
{
    std::vector<std::string> found;
    for (const std::string& line : SummaryLines(project))
    {
        if (line.starts_with(begin))
        {
            found.push_back(line);
        }
    }
    EXPECT_EQ(found.size(), 1U) << "lines that begin with " << begin;
    return found.empty() ? "" : found.front();
}
