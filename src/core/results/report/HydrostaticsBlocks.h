// The larger blocks of the hydrostatics summary.
#pragma once

#include "core/results/report/CReport.h"

/// The seakeeping positions and what is computed at each, on a page of their own; one sentence without
/// positions.
void SeakeepingPositions(CReport& report);

/// Mass of the ship and still-water loads of its stations, on a page of their own. For results with loads.
void StillWaterLoads(CReport& report);
