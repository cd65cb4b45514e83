// Takes a results file whole into memory.
#pragma once

#include "core/platform/Files.h"
#include "core/results/ResultsLimits.h"

/// The bytes of a results file; nothing if it can't be opened or is no regular file.
inline std::optional<std::string> ReadResultsFile(const std::string& path)
{
    return ReadRegularFile(path, kLargestResultsFile);
}
