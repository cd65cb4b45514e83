// The two message helpers of all forms.
#pragma once

#include "core/platform/CPlatform.h"

#include <string>

/// How CheckRange words the limits.
enum ERangeText
{
    kTwoDecimals = 1,  ///< "Min. = %.2f   Max. = %.2f"
    kIntegers = 2,     ///< "Min. = %i   Max. = %i"
    kFourDecimals = 3, ///< "Min. = %.4f   Max. = %.2f"
    kFiveDecimals = 4, ///< "Min. = %.5f   Max. = %.2f"
    kSixDecimals = 5   ///< "Min. = %.6f   Max. = %.2f"
};

/// 0 if minimum <= value <= maximum. Otherwise shows the limits, worded by `mode`, in a stop message titled
/// `caption` and gives 1. A mode that is none of these checks nothing and gives 0.
int CheckRange(CMessages& messages, float minimum, float maximum, float value, int mode,
               const std::string& caption);

/// True, after a message that asks for the value, if it is exactly the sentinel -1.
bool CheckEntered(CMessages& messages, float value, const std::string& name);
