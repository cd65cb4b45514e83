#include "gui/results/CCustomizeResultsDlg.h"

#include "core/platform/NumberText.h"
#include "core/results/report/CReport.h"
#include "gui/forms/HelpTopics.h"
#include "gui/platform/QtText.h"
#include "gui/results/CIndexList.h"
#include "gui/results/CPageCountLabel.h"

#include <algorithm>

#include <QHBoxLayout>

namespace
{
struct CListCaption
{
    EReportList List;
    const char* Name;
    const char* Title;
    const char* Tip;
};

constexpr CListCaption kCaptions[] = {
    {kListSpeeds, "SelectedSpeeds", QT_TRANSLATE_NOOP("CCustomizeResultsDlg", "Ship Speeds"),
     QT_TRANSLATE_NOOP("CCustomizeResultsDlg", "Ship speeds in knots")},
    {kListHeadings, "SelectedHeadings", QT_TRANSLATE_NOOP("CCustomizeResultsDlg", "Ship Direction"),
     QT_TRANSLATE_NOOP("CCustomizeResultsDlg",
                       "Directions in degrees; those above 180 have no data for regular seas")},
    {kListSeaways, "SelectedSeaways", QT_TRANSLATE_NOOP("CCustomizeResultsDlg", "Seaway"),
     QT_TRANSLATE_NOOP("CCustomizeResultsDlg", "Seaways with their significant wave height and period")},
    {kListPositions, "SelectedPositions", QT_TRANSLATE_NOOP("CCustomizeResultsDlg", "Load Position"),
     QT_TRANSLATE_NOOP("CCustomizeResultsDlg", "Stations at which loads were calculated")}};

QString NumberEntry(float value)
{
    return ScreenText(FixedText(static_cast<double>(value), "%.2f"));
}
} // namespace

CCustomizeResultsDlg::CCustomizeResultsDlg(CFormContext& context, const CPageCounts& counts,
                                           const CReportFlags& flags, QWidget* parent)
    : CFormDlg(context, "CCustomizeResultsDlg", tr("Customize Results"), kHelpDisplayResults, parent),
      m_counts(counts),
      m_flags(flags),
      m_pages(new CPageCountLabel(this)),
      m_hint(new QLabel(this))
{
    AddLists();
    AddPageCount();
    OnChange();
}

void CCustomizeResultsDlg::AddLists()
{
    auto* row = new QHBoxLayout;
    for (const auto& [list, name, title, tip] : kCaptions)
    {
        auto* choice = new CIndexList(name, tr(title), Entries(list), this);
        choice->setToolTip(tr(tip));
        choice->setVisible(UsesList(m_flags, list));
        connect(choice, &CIndexList::SelectionChanged, this, &CCustomizeResultsDlg::OnChange);
        row->addWidget(choice, 1);
        m_lists[list] = choice;
    }
    Body().addLayout(row, 1);
}

void CCustomizeResultsDlg::AddPageCount()
{
    m_hint->setObjectName("Hint");
    auto* row = new QHBoxLayout;
    row->addWidget(m_hint, 1);
    m_pages->AddTo(*row);
    Body().addLayout(row);
}

QStringList CCustomizeResultsDlg::Entries(EReportList list) const
{
    QStringList entries;
    switch (list)
    {
    case kListSpeeds:
        std::transform(m_counts.Speeds.begin(), m_counts.Speeds.end(), std::back_inserter(entries),
                       NumberEntry);
        break;
    case kListHeadings:
        std::transform(m_counts.Headings.begin(), m_counts.Headings.end(), std::back_inserter(entries),
                       NumberEntry);
        break;
    case kListSeaways:
        for (std::size_t seaway = 0; seaway < m_counts.WaveHeights.size(); ++seaway)
        {
            entries.push_back(SeawayEntry(seaway));
        }
        break;
    default:
        for (const float station : m_counts.LoadStations)
        {
            entries.push_back(
                NumberEntry(StationLabel(station, m_counts.StationCount, Project().StationOrigin != 0)));
        }
        break;
    }
    return entries;
}

/// Only the seaways of a formula have a height and a period.
QString CCustomizeResultsDlg::SeawayEntry(std::size_t seaway) const
{
    const QString number = QString::number(seaway + 1);
    if (m_counts.SpectrumKind < kSpectrumQuadratic || m_counts.SpectrumKind > kSpectrumOchiHubble)
    {
        return tr("Seaway %1").arg(number);
    }
    const QString unit = m_counts.OutSys == 1 ? tr("m") : tr("ft");
    return tr("%1: %2 %3, %4 s")
        .arg(number, NumberEntry(m_counts.WaveHeights[seaway]), unit,
             NumberEntry(m_counts.WavePeriods[seaway]));
}

CReportLists CCustomizeResultsDlg::Selected() const
{
    CReportLists lists;
    for (const auto& [list, name, title, tip] : kCaptions)
    {
        if (UsesList(m_flags, list))
        {
            lists[list] = m_lists[list]->Selected();
        }
    }
    return lists;
}

int CCustomizeResultsDlg::Pages() const
{
    return EstimatePages(NarrowedCounts(m_counts, m_flags, Selected()), m_flags);
}

void CCustomizeResultsDlg::OnChange()
{
    m_pages->ShowPages(Pages());
    bool usesAny = false;
    bool isEmpty = false;
    for (const auto& [list, name, title, tip] : kCaptions)
    {
        const bool uses = UsesList(m_flags, list);
        usesAny = usesAny || uses;
        isEmpty = isEmpty || (uses && m_lists[list]->Selected().empty());
    }
    m_hint->setText(!usesAny  ? tr("The chosen section can't be narrowed.")
                    : isEmpty ? tr("Select at least one entry in each list.")
                              : QString());
}

bool CCustomizeResultsDlg::OnOk()
{
    const int pages = Pages();
    if (pages > kGreatestPageCount)
    {
        ShowPageLimit(Messages());
        return false;
    }
    StoreLists(Project(), Selected());
    m_pageCount = pages;
    return true;
}
