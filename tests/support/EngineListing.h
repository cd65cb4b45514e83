// The parts of the engine's printed listing, in the order in which they stand.
#pragma once

#include "tests/support/CEngineRun.h"
#include "tests/support/CListingText.h"

/// What the engine was given, and the ship at rest.
void ListHead(CListingText& text, const CEngineRun& run);
/// The motions in regular waves, and roll damping, of a speed.
void ListRegularWaves(CListingText& text, const CEngineRun& run, int speed);
/// A seaway of a speed: the ship, its positions and its loads.
void ListSeaway(CListingText& text, const CEngineRun& run, int speed, int seaway);

/// A label as the listing prints it: in lower case, so that it is never taken for a heading, and in one word.
std::string ListedLabel(const std::string& label);
