// The trailer of a results file: where its sections begin.
#pragma once

#include "core/results/CResults.h"

#include <string_view>

constexpr float kTrailerMarker = -99.99F;

/// Throws CResultsError for a file that is too short for one. The places are not checked.
CResultsTrailer ReadTrailer(std::string_view bytes);
