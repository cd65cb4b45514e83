// The input echo: the project as a results file carries it, in binary. One walk over its records serves
// completion, which writes it, and the readers.
#pragma once

#include "core/project/CProjectData.h"
#include "core/results/CResultsCursor.h"

#include <string>

/// The echo of a project, in the units of its run, unit words included. The first offset of the first station
/// is a mark in the file, and 0 in the project afterwards when its hull is defined by offsets.
std::string InputEcho(CProjectData& project);

/// Reads the values of an echo as they stand in the file, so in the units of the run, without the unit words
/// behind them; counts are checked. `NPOS` of the project is the file's plus 1. The cursor then stands at the
/// unit words. Throws CResultsError.
void ReadInputEcho(CResultsCursor& cursor, bool hasMagic, CProjectData& project);

/// Reads an echo whole, takes its values over into the units that the project is to keep them in, and sets
/// what follows from them, but for the completeness flags. Throws CResultsError; the project may then hold
/// part of the echo.
void RestoreInputEcho(CResultsCursor& cursor, bool hasMagic, CProjectData& project);
