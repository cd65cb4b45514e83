// What the user is told when a results file can't be read.
#pragma once

#include "core/platform/CPlatform.h"

/// It can't be opened.
void ShowResultsNotOpened(CMessages& messages);
/// What it holds can't be.
void ShowResultsDamaged(CMessages& messages);
