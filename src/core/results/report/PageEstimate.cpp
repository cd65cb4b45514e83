#include "core/results/report/PageEstimate.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr int kManyFrequencies = 36; ///< from here on a table per frequency takes two pages
constexpr int kManyAppendageColumns = 13;

/// How many pages each section has.
class CEstimate
{
public:
    explicit CEstimate(const CPageCounts& counts) : m_counts(counts), m_headings180(CountHeadings180(counts))
    {
        for (std::size_t k = 0; k < counts.Headings.size(); ++k)
        {
            const float heading = counts.Headings[k];
            m_positionHeadings += heading > 0 || (k == 0 && heading == 0) ? 1 : 0;
        }
    }

    int Summary() const
    {
        if ((m_counts.SpectrumKind == kSpectrumOchiHubble && m_counts.SeawayCount > 2) ||
            (m_counts.SpectrumKind == kSpectrumTenParameter && m_counts.SeawayCount > 1))
        {
            return 5;
        }
        if (m_counts.LoadStationCount > 0)
        {
            return 4;
        }
        return m_counts.PositionCount > 0 ? 3 : 2;
    }

    int MotionRao() const { return (ManyFrequencies() ? 4 : 2) * m_counts.SpeedCount * m_headings180 + 1; }

    int LoadRao() const
    {
        return (ManyFrequencies() ? 4 : 2) * m_counts.LoadStationCount * m_counts.SpeedCount * m_headings180 +
               1;
    }

    int RollDamping() const
    {
        const int tables = Seas() * m_headings180;
        const int parts = ManyFrequencies() ? 2 : 1;
        int pages = parts * tables + 1;
        if (m_counts.AppendageColumns > 0)
        {
            pages += parts * (m_counts.AppendageColumns < kManyAppendageColumns ? 2 : 4) * tables;
        }
        return pages;
    }

    int Rms() const { return (m_headings180 > 12 ? 3 : 1) * RmsTables(); }

    int RmsShortCrested() const
    {
        return (m_headings180 > 10 ? 3 : m_positionHeadings > 9 ? 2 : 1) * RmsTables();
    }

    int RmsLoads() const { return (m_positionHeadings > 16 ? 2 : 1) * m_counts.LoadStationCount * Seas(); }

    int Slamming() const { return m_counts.SlamPositions * Seas(); }
    int MotionInterruption() const { return m_counts.MiiPositions * Seas(); }
    int MotionSickness() const { return m_counts.MsiPositions * Seas(); }

private:
    bool ManyFrequencies() const { return m_counts.FreqCount >= kManyFrequencies; }
    int Seas() const { return m_counts.SeawayCount * m_counts.SpeedCount; }
    int RmsTables() const { return (m_counts.PositionCount + 1) * Seas(); }

    const CPageCounts& m_counts;
    int m_headings180;
    int m_positionHeadings = 0;
};

bool OffersShortCrested(const CPageCounts& counts)
{
    return IsDirectional(counts.SpectrumKind) || (counts.SpreadAngle > 0 && !counts.Headings.empty());
}

void OfferIrregularSeas(const CPageCounts& counts, CReportFlags& flags)
{
    flags[OffersShortCrested(counts) ? kSectionRmsShortCrested : kSectionRms] = kSectionSelected;
    const auto offer = [&](EReportSection section, bool offered)
    { flags[section] = offered ? kSectionSelected : kSectionNotSelected; };
    offer(kSectionRmsLoads, counts.LoadFlag != 1);
    offer(kSectionSlamming, counts.SlamPositions > 0);
    offer(kSectionMotionInterruption, counts.MiiPositions > 0);
    offer(kSectionMotionSickness, counts.MsiPositions > 0);
}
} // namespace

int CountHeadings180(const CPageCounts& counts)
{
    const auto isReported = [](float heading) { return heading >= 0 && heading <= kGreatestReportedHeading; };
    return static_cast<int>(std::count_if(counts.Headings.begin(), counts.Headings.end(), isReported));
}

CReportFlags OfferedSections(const CPageCounts& counts)
{
    CReportFlags flags;
    flags.fill(kSectionNotSelected);
    flags[kSectionHydrostatics] = kSectionSelected;
    flags[kSectionEnvironment] = kSectionSelected;
    if (counts.OutRao >= 0 && counts.OutRao <= 2)
    {
        flags[kSectionMotionRao] = kSectionSelected;
    }
    if ((counts.OutRao == 1 || counts.OutRao == 2) && counts.LoadFlag != 1)
    {
        flags[kSectionLoadRao] = kSectionSelected;
    }
    if (counts.OutRao == 2)
    {
        flags[kSectionRollDamping] = kSectionSelected;
    }
    if (counts.SpectrumKind >= kSpectrumQuadratic)
    {
        OfferIrregularSeas(counts, flags);
    }
    return flags;
}

int EstimatePages(const CPageCounts& counts, const CReportFlags& flags)
{
    constexpr std::pair<EReportSection, int (CEstimate::*)() const> kSections[] = {
        {kSectionMotionRao, &CEstimate::MotionRao},
        {kSectionLoadRao, &CEstimate::LoadRao},
        {kSectionRollDamping, &CEstimate::RollDamping},
        {kSectionRms, &CEstimate::Rms},
        {kSectionRmsShortCrested, &CEstimate::RmsShortCrested},
        {kSectionRmsLoads, &CEstimate::RmsLoads},
        {kSectionSlamming, &CEstimate::Slamming},
        {kSectionMotionInterruption, &CEstimate::MotionInterruption},
        {kSectionMotionSickness, &CEstimate::MotionSickness}};
    const CEstimate estimate(counts);
    const auto isSelected = [&](EReportSection section) { return flags[section] == kSectionSelected; };
    // The environment belongs to the summary, so that both count once.
    int pages = isSelected(kSectionHydrostatics) || isSelected(kSectionEnvironment) ? estimate.Summary() : 0;
    for (const auto& [section, sectionPages] : kSections)
    {
        pages += isSelected(section) ? (estimate.*sectionPages)() : 0;
    }
    return pages;
}
