#include "core/results/report/CReportChoice.h"

#include <algorithm>

namespace
{
// Sections of irregular seas stand together and are the last ones.
constexpr EReportSection kFirstRegular = kSectionMotionRao;
constexpr EReportSection kLastRegular = kSectionLoadRao;
constexpr EReportSection kFirstIrregular = kSectionRms;
constexpr EReportSection kLastIrregular = kSectionMotionSickness;
} // namespace

CReportChoice::CReportChoice()
{
    m_offered.fill(kSectionNotSelected);
    m_flags.fill(kSectionNotSelected);
}

CReportChoice::CReportChoice(const CPageCounts& counts) : m_counts(counts), m_offered(OfferedSections(counts))
{
    m_flags.fill(kSectionNotSelected);
}

void CReportChoice::Select(EReportSection section, bool selected)
{
    m_flags[section] = selected ? m_offered[section] : kSectionNotSelected;
    m_all = m_all && selected;
    if (section == kSectionHydrostatics)
    {
        m_flags[kSectionEnvironment] = m_flags[section];
    }
}

void CReportChoice::SelectAll(bool selected)
{
    m_all = selected;
    m_flags = m_offered;
    if (!selected)
    {
        m_flags.fill(kSectionNotSelected);
    }
}

void CReportChoice::ClearIrregular()
{
    m_all = false;
    std::fill(m_flags.begin() + kFirstIrregular, m_flags.begin() + kLastIrregular + 1, kSectionNotSelected);
}

bool CReportChoice::IsAnythingSelected() const
{
    return IsAnySelected(kSectionHydrostatics, kLastIrregular);
}

bool CReportChoice::MixesFamilies() const
{
    return IsAnySelected(kFirstRegular, kLastRegular) && IsAnySelected(kFirstIrregular, kLastIrregular);
}

bool CReportChoice::IsAnySelected(EReportSection first, EReportSection last) const
{
    const auto* const end = m_flags.begin() + last + 1;
    return std::find(m_flags.begin() + first, end, kSectionSelected) != end;
}
