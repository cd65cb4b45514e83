// Spectra measured or computed elsewhere, from text files that the user names. Names are taken as they are
// given, relative to the folder. Errors are CInputError with file and line.
#pragma once

#include "oe7/input/CInput.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace oe7
{

/// Lines of frequency (rad/s) and density (m2 or ft2 per rad/s), up to a number of points.
CPointSpectrum ReadPointSpectrum(const std::filesystem::path& folder, const std::string& name, EUnits units,
                                 int count);
/// A line of date, time, place, wind and two counts; frequencies (Hz), directions and rows of densities
/// (m2/(Hz rad)).
CDirectionalSpectrum ReadHindcast(const std::filesystem::path& folder, const std::string& name);
/// A free line, a line with the units, two counts; frequencies (rad/s), directions and rows of densities.
CDirectionalSpectrum ReadDirectionalSpectrum(const std::filesystem::path& folder, const std::string& name);

// The same from the bytes of a file.
CPointSpectrum ParsePointSpectrum(std::string_view text, const std::string& name, EUnits units, int count);
CDirectionalSpectrum ParseHindcast(std::string_view text, const std::string& name);
CDirectionalSpectrum ParseDirectionalSpectrum(std::string_view text, const std::string& name);

} // namespace oe7
