// The lines of pairs of lifting surfaces, which stationary foils and roll fins share.
#pragma once

#include "core/engine/CEngineInput.h"

/// The fields of one kind of surface; a pair's values stand in the same slot of each.
struct CFoilFields
{
    const CParamArray& Station;
    const CParamArray& RootBreadth;
    const CParamArray& RootHeight;
    const CParamArray& Span;
    const CParamArray& RootChord;
    const CParamArray& TipChord;
    const CParamArray& LiftSlopeGiven; ///< 1 where LiftSlope isn't left to the engine
    const CParamArray& LiftSlope;
    const CParamArray& Incidence;
};

/// Writes one line for each pair. Every incomplete pair gives the message.
void FoilLines(CEngineInput& input, int pairs, const CFoilFields& fields, const char* incomplete);
