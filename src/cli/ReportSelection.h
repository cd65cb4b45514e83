// The options that tell which sections of a report are wanted, and which speeds, headings, seaways and
// positions in them.
#pragma once

#include "cli/CArguments.h"
#include "core/results/report/PageEstimate.h"

#include <optional>
#include <string>
#include <vector>

class CSectionOption
{
public:
    void Declare(CArguments& arguments);
    /// 0 for each section that is both wanted and offered.
    CReportFlags Flags(const CPageCounts& counts) const;

private:
    std::vector<std::string> m_names = {"all"};
};

class CIndexOption
{
public:
    /// `things` says what the list has, for the help.
    void Declare(CArguments& arguments, const char* option, const std::string& things);
    /// The indices in the order of the list, all without one. Throws CUsageError for one that isn't below
    /// `count`.
    CSelection Selection(int count) const;

private:
    std::string m_option;
    std::optional<CSelection> m_indices;
};
