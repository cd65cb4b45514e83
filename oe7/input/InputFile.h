// The engine's input file and the files that it names.
#pragma once

#include "oe7/input/CInput.h"
#include "oe7/input/CRunLog.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace oe7
{

/// Reads Ondara7.inp (its name in any case) in a folder and the gain and spectrum files that belong to it,
/// all converted to SI. Throws CInputError with the line number and what is missing or wrong.
CInput ReadInput(const std::filesystem::path& folder, CRunLog& log);
/// The same from a text; other files are looked for in the folder.
CInput ParseInput(std::string_view text, const std::filesystem::path& folder, CRunLog& log);
/// The bytes of that file.
std::string ReadInputText(const std::filesystem::path& folder);
/// The name of the binary file in a text that may be wrong everywhere else; nothing if it isn't that of a
/// file in the folder, or names another of the run's files too.
std::optional<std::string> BinaryFileName(std::string_view text);

/// In plain words, as it is printed: "boundary element" or "conformal mapping".
std::string_view MethodName(ESectionMethod method);
/// The words of the file for the values, for the listing and the binary file's head.
std::string_view UnitsWord(EUnits units);
std::string_view WaterWord(EWater water);
std::string_view SpectrumWord(ESpectrum spectrum);
std::string_view SpeedCorrectionWord(EWaterRise rise);
std::string_view SwellCorrectionWord(EWaterRise rise);
std::string_view EndTermsWord(const CEndTerms& terms);
std::string_view RollInertiaWord(ERollInertia kind);
std::string_view EventWord(EWaterEvent event);

} // namespace oe7
