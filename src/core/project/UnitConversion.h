// Converts every stored number of a project to one system of units.
#pragma once

#include "core/project/CProjectData.h"

/// What a length under one unit flag is multiplied by under another.
float LengthFactor(int from, int to);

/// Converts the lengths and masses that are held in the other system, and sets their unit flags. `unit` is
/// kUnitMetric or kUnitBritish. Values that aren't given stay as they are.
void ConvertProject(CProjectData& project, int unit);

/// Stores the choices of the Units form: systems of input and output (0 British, 1 metric) and the water (0
/// salt, 1 fresh). A value that this changes is marked so. Converts nothing, and the project doesn't count as
/// modified.
void StoreUnitChoices(CProjectData& project, int inputSystem, int outputSystem, int water);
