#include "core/results/report/ReportLists.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace
{
struct CSectionLists
{
    EReportSection Section;
    std::array<bool, kReportListCount> Uses; ///< speeds, headings, seaways, load stations
};

constexpr CSectionLists kSectionLists[] = {{kSectionMotionRao, {true, true, false, false}},
                                           {kSectionLoadRao, {true, true, false, true}},
                                           {kSectionRollDamping, {true, true, true, false}},
                                           {kSectionRms, {true, false, true, false}},
                                           {kSectionRmsShortCrested, {true, false, true, false}},
                                           {kSectionRmsLoads, {true, false, true, true}},
                                           {kSectionSlamming, {true, false, true, false}},
                                           {kSectionMotionInterruption, {true, false, true, false}},
                                           {kSectionMotionSickness, {true, false, true, false}}};
} // namespace

CSelection AllIndices(int count)
{
    CSelection all(static_cast<std::size_t>(count));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

bool UsesList(const CReportFlags& flags, EReportList list)
{
    return std::any_of(std::begin(kSectionLists), std::end(kSectionLists),
                       [&](const CSectionLists& section)
                       { return flags[section.Section] == kSectionSelected && section.Uses[list]; });
}

CReportLists WholeLists(const CPageCounts& counts)
{
    return {AllIndices(counts.SpeedCount), AllIndices(CountHeadings180(counts)),
            AllIndices(counts.SeawayCount), AllIndices(counts.LoadStationCount)};
}

CPageCounts NarrowedCounts(const CPageCounts& counts, const CReportFlags& flags, const CReportLists& lists)
{
    CPageCounts narrowed = counts;
    const auto narrow = [&](EReportList list, int& count)
    {
        if (UsesList(flags, list))
        {
            count = static_cast<int>(lists[list].size());
        }
    };
    narrow(kListSpeeds, narrowed.SpeedCount);
    narrow(kListSeaways, narrowed.SeawayCount);
    narrow(kListPositions, narrowed.LoadStationCount);
    if (UsesList(flags, kListHeadings))
    {
        narrowed.Headings.clear();
        for (const int heading : lists[kListHeadings])
        {
            narrowed.Headings.push_back(counts.Headings.at(static_cast<std::size_t>(heading)));
        }
    }
    return narrowed;
}

CSelection& SelectionOf(CProjectData& project, EReportList list)
{
    CSelection* const selections[kReportListCount] = {&project.SelectedSpeeds, &project.SelectedHeadings,
                                                      &project.SelectedSeaways, &project.SelectedPositions};
    return *selections[list];
}

void StoreLists(CProjectData& project, const CReportLists& lists)
{
    for (int list = 0; list < kReportListCount; ++list)
    {
        SelectionOf(project, static_cast<EReportList>(list)) = lists[static_cast<std::size_t>(list)];
    }
}
