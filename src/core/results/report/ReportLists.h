// Which of a run's speeds, headings, seaways and load stations a report has.
#pragma once

#include "core/results/report/PageEstimate.h"

#include <array>

enum EReportList
{
    kListSpeeds,
    kListHeadings,
    kListSeaways,
    kListPositions, ///< load stations
    kReportListCount
};

/// Indices into the tables of a results file, ascending.
using CReportLists = std::array<CSelection, kReportListCount>;

/// All indices of a table of `count` entries.
CSelection AllIndices(int count);

/// Whether one of the sections with flag 0 can be narrowed to a part of a list.
bool UsesList(const CReportFlags& flags, EReportList list);

/// All that a report takes where nobody narrows it. As many headings from the first on as there are of 0 to
/// 180 degrees.
CReportLists WholeLists(const CPageCounts& counts);

/// The counts of a report that has of each list that its sections use only what `lists` has.
CPageCounts NarrowedCounts(const CPageCounts& counts, const CReportFlags& flags, const CReportLists& lists);

/// The project's own selection of a list, which the writer of the report goes by.
CSelection& SelectionOf(CProjectData& project, EReportList list);
/// Hands all lists to the project.
void StoreLists(CProjectData& project, const CReportLists& lists);
