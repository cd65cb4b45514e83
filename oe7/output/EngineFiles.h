// The files that the engine leaves: the binary results, the printed listing, two tables of coefficients, the
// log.
#pragma once

#include "oe7/calculation/CResults.h"

#include <string>
#include <string_view>

namespace oe7
{

/// Stands at the head of the binary file and behind `OE7 --version`.
inline constexpr std::string_view kEngineVersion = "OE7 1.0";

// `stamp` reads like "Fri Nov 20 17:31:18 2026". In each file values that are no numbers become 0 and a
// warning.

/// The binary file, the end mark "CBDW" included.
std::string BinaryFile(const CInput& input, const CResults& results, std::string_view stamp, CRunLog& log);

/// The printed listing. Another program reads numbers out of it by marker words, counts of lines and places
/// of tokens.
std::string Listing(const CInput& input, const CResults& results, std::string_view stamp, CRunLog& log);

/// Ondara7_DimHyCo.csv: the radiation forces of the hull at every speed and grid frequency, SI, moments about
/// G.
std::string CoefficientTable(const CResults& results, CRunLog& log);
/// Ondara7_WaveForce.csv: the exciting forces at every speed, heading and output frequency, SI, moments about
/// G.
std::string WaveForceTable(const CResults& results, CRunLog& log);

} // namespace oe7
