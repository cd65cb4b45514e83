// What a finished run has in another form than the project that it was started from.
#pragma once

#include "core/project/CProjectData.h"

/// Seakeeping positions: NPOS without the centre of gravity, 0 to kMaxPositions.
int RunPositions(const CProjectData& project);
/// GMFLAG as the files of a run have it: 2 for a computed GM.
int RunGMCode(const CProjectData& project);
/// SHIPLEN in the unit of the run.
float RunLength(const CProjectData& project);
