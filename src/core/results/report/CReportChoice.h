// The user's choice of report sections, as it stands while a form shows it: what can be chosen, what is, how
// many pages that has, and the rules of the limit and of the two families of sections.
#pragma once

#include "core/results/report/PageEstimate.h"

class CReportChoice
{
public:
    /// Nothing can be chosen.
    CReportChoice();
    /// What the file of these counts offers can be chosen, and nothing is yet.
    explicit CReportChoice(const CPageCounts& counts);

    /// The environment follows the summary. What the file doesn't offer stays out.
    void Select(EReportSection section, bool selected);
    /// All that the file offers, or nothing.
    void SelectAll(bool selected);
    /// The user's own wish to customize the report.
    void Customize(bool customized) { m_userCustomizes = customized; }
    /// Takes out all sections of irregular seas.
    void ClearIrregular();

    const CPageCounts& Counts() const { return m_counts; }
    const CReportFlags& Flags() const { return m_flags; }
    bool Offers(EReportSection section) const { return m_offered[section] == kSectionSelected; }
    bool IsSelected(EReportSection section) const { return m_flags[section] == kSectionSelected; }
    bool IsAnythingSelected() const;
    /// Whether all was chosen at once and nothing taken out since.
    bool IsAllSelected() const { return m_all; }
    int Pages() const { return EstimatePages(m_counts, m_flags); }
    bool IsOverLimit() const { return Pages() > kGreatestPageCount; }
    /// A report over the limit can't but be customized.
    bool IsCustomized() const { return m_userCustomizes || IsOverLimit(); }
    /// Whether a change has gone over the limit without the user's wish to customize: the sections of
    /// irregular seas are to be taken out then.
    bool IsRefused() const { return IsOverLimit() && !m_userCustomizes; }
    /// Whether sections of regular and of irregular seas are chosen, which can't be customized together.
    bool MixesFamilies() const;

private:
    bool IsAnySelected(EReportSection first, EReportSection last) const;

    CPageCounts m_counts;
    CReportFlags m_offered;
    CReportFlags m_flags;
    bool m_all = false;
    bool m_userCustomizes = false;
};
