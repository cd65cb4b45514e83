#include "oe7/output/Finite.h"

#include <cmath>
#include <limits>

namespace oe7
{

double Finite(double value, CRunLog& log)
{
    constexpr double largest = std::numeric_limits<float>::max();
    if (std::abs(value) <= largest)
    {
        return value;
    }
    log.Warn("A result is not a number, or is too large; the files give it as 0");
    return 0;
}

} // namespace oe7
