// How many pieces the long segments of a station may be divided into, so that its points don't run out.
#pragma once

#include "core/engine/SectionQuality.h"

#include <span>
#include <vector>

/// Lowers the proposals, all by one at a time, until they fit beside the points that the station has, or
/// until none of them is above 1.
void LowerToFit(std::vector<CLongSegment>& segments, int points);
/// The points that are left for a segment when those still to come are divided as proposed.
int PointsLeft(int points, std::span<const CLongSegment> stillToCome);
/// Whether a station of so many points has room for the pieces of one segment.
bool HasRoom(int points, int pieces);
