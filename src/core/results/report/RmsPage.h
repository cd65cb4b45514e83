// The pages of the RMS responses: those at the centre of gravity and those at the positions have one frame
// and one rule for their page breaks.
#pragma once

#include "core/results/report/IrregularSeas.h"

/// The frame at the head of a page: speed and sea, and at a position where it is.
void RmsFrame(CReport& report, const CSeasPage& page);
/// Goes on on a new page behind the first of the three tables, if the headings are too many for one.
void BreakBehindFirstTable(CReport& report, const CSeasPage& page);
/// The same behind the second.
void BreakBehindSecondTable(CReport& report, const CSeasPage& page);

/// The three tables of a position.
void RmsLocalTables(CReport& report, const CSeasPage& page);
