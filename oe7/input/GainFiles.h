// Gains that change with speed and heading, from files beside the input.
#pragma once

#include "oe7/input/CInput.h"

#include <string_view>
#include <vector>

namespace oe7
{

/// Lines of speed (knots), heading (degrees, negative: any), roll gains, low and high cut-off (rad/s), yaw
/// gains, and lateral gains per length unit (m). `#` begins a comment. Throws CInputError with the line, also
/// if there is none.
std::vector<CGainCondition<CRudderGains>> ParseRudderGains(std::string_view text, EUnits units);
/// Lines of speed, heading, roll gains, high cut-off and yaw gains.
std::vector<CGainCondition<CFinGains>> ParseFinGains(std::string_view text);

} // namespace oe7
