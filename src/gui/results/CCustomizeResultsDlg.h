// Narrows a report to some of the run's speeds, headings, seaways and load stations: a list for each that the
// chosen sections use.
#pragma once

#include "core/results/report/ReportLists.h"
#include "gui/forms/CFormDlg.h"

class CIndexList;
class CPageCountLabel;

class CCustomizeResultsDlg : public CFormDlg
{
    Q_OBJECT

public:
    /// The sections with flag 0 of a results file with these counts.
    CCustomizeResultsDlg(CFormContext& context, const CPageCounts& counts, const CReportFlags& flags,
                         QWidget* parent = nullptr);

    /// Of the report as it was narrowed at OK; -1 before.
    int PageCount() const { return m_pageCount; }

protected:
    bool OnOk() override;

private:
    QStringList Entries(EReportList list) const;
    QString SeawayEntry(std::size_t seaway) const;
    void AddLists();
    void AddPageCount();
    /// The selected indices; those of a list that isn't shown are empty.
    CReportLists Selected() const;
    int Pages() const;
    void OnChange();

    const CPageCounts m_counts;
    const CReportFlags m_flags;
    std::array<CIndexList*, kReportListCount> m_lists = {};
    CPageCountLabel* m_pages;
    QLabel* m_hint;
    int m_pageCount = -1;
};
