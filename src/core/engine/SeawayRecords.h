// The records (h) of the engine's input: the sea in the form of the spectrum chosen.
#pragma once

#include "core/engine/CEngineInput.h"

// Values of SPECTRUM that other records look at.
constexpr int kRegularWaves = 0;
/// From here on the sea's directions come with the spectrum.
constexpr float kFirstSpectrumWithDirections = 6;

/// Writes the records behind the number of seaways; none for a spectrum that isn't a number from 0 to 8.
void SeawayRecords(CEngineInput& input);
