// Directions around the circle.
#pragma once

#include <vector>

namespace oe7
{

/// An angle in degrees, brought to -180 <= angle < 180.
double FoldedAngle(double degrees);

/// The cell of each direction, degrees: half the sum of the gaps to its two neighbours on the circle, 360 for
/// a single one. Directions in degrees, in any order.
std::vector<double> CircleCells(const std::vector<double>& directions);

} // namespace oe7
