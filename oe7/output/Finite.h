// What keeps values that are no numbers out of the files.
#pragma once

#include "oe7/input/CRunLog.h"

namespace oe7
{

/// The value itself; 0, and a warning, for a NaN, an infinity and what no 32-bit float holds.
double Finite(double value, CRunLog& log);

} // namespace oe7
