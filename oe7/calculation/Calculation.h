// The whole calculation, from the input to the results.
#pragma once

#include "oe7/calculation/CResults.h"

#include <functional>

namespace oe7
{

struct CRunOptions
{
    int Threads = 0; ///< 0: as many as the machine has
    /// Told what is done, with the part of the whole that is finished, 0 to 1.
    std::function<void(std::string_view, double)> Progress;
};

/// Throws CInputError when the ship can't float or can't be calculated. The results are the same bit for bit
/// whatever the number of threads.
CResults Calculate(const CInput& input, CRunLog& log, const CRunOptions& options);

} // namespace oe7
