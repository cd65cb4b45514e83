// A run of the engine in a folder, from its input to all files that it leaves there.
#pragma once

#include "oe7/calculation/Calculation.h"

#include <filesystem>
#include <iosfwd>

namespace oe7
{

/// Calculates what the input file of a folder asks for and writes the results beside it. Whatever fails is
/// told on `errors` and, if it can be written, in the log; then no binary file is left. Gives the program's
/// exit code: 0, or 1 for a failure. Throws nothing but what `errors` throws.
int RunEngine(const std::filesystem::path& folder, const CRunOptions& options, std::ostream& errors);

} // namespace oe7
