#include "cli/ReportSelection.h"

#include "cli/CUsageError.h"
#include "core/platform/NumberText.h"
#include "core/results/report/ReportLists.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace
{
constexpr const char* kAll = "all";

/// In the order of EReportSection.
constexpr const char* kSectionNames[kReportSectionCount] = {
    "summary",   "environment", "motion-rao", "roll-damping", "load-rao", "rms",
    "rms-short", "rms-loads",   "slamming",   "mii",          "msi"};

/// The section of a name; the count of sections for a name of none.
std::size_t Section(const std::string& name)
{
    const auto* const found = std::find(std::begin(kSectionNames), std::end(kSectionNames), name);
    return static_cast<std::size_t>(std::distance(std::begin(kSectionNames), found));
}

std::string NamesFault(const std::vector<std::string>& names)
{
    const auto fault = [&](const std::string& name)
    { return Section(name) == kReportSectionCount && !(name == kAll && names.size() == 1); };
    const auto found = std::find_if(names.begin(), names.end(), fault);
    return found == names.end() ? "" : "no section of the report: " + *found;
}

/// The index that a word of digits stands for; nothing for anything else.
std::optional<int> Index(const std::string& word)
{
    int index = 0;
    const char* const end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(word.data(), end, index);
    return error == std::errc() && rest == end && index >= 0 ? std::optional(index) : std::nullopt;
}
} // namespace

void CSectionOption::Declare(CArguments& arguments)
{
    std::string help = "Sections, comma separated: ";
    for (const char* name : kSectionNames)
    {
        help += std::string(name) + ", ";
    }
    arguments.List("--sections", help + "or all (the default), which is every one that the file offers",
                   [this](const std::vector<std::string>& words)
                   {
                       m_names = words;
                       return NamesFault(words);
                   });
}

CReportFlags CSectionOption::Flags(const CPageCounts& counts) const
{
    const CReportFlags offered = OfferedSections(counts);
    if (m_names.front() == kAll)
    {
        return offered;
    }
    CReportFlags flags;
    flags.fill(kSectionNotSelected);
    for (const std::string& name : m_names)
    {
        flags[Section(name)] = offered[Section(name)];
    }
    return flags;
}

void CIndexOption::Declare(CArguments& arguments, const char* option, const std::string& things)
{
    m_option = option;
    const auto take = [this](const std::vector<std::string>& words) -> std::string
    {
        m_indices.emplace();
        for (const std::string& word : words)
        {
            const auto index = Index(word);
            if (!index)
            {
                return "no index: " + word;
            }
            m_indices->push_back(*index);
        }
        return "";
    };
    arguments.List(option, "Indices of the " + things + ", from 0, comma separated; default all", take);
}

CSelection CIndexOption::Selection(int count) const
{
    if (!m_indices)
    {
        return AllIndices(count);
    }
    for (const int index : *m_indices)
    {
        if (index >= count)
        {
            throw CUsageError(m_option + ": the results file has no index " + IntegerText(index));
        }
    }
    return *m_indices;
}
