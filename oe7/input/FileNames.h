// The files in the engine's folder: what they are called, and how they are read.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace oe7
{

inline constexpr const char* kInputFile = "Ondara7.inp";
inline constexpr const char* kRudderGainFile = "RudderGain.inp";
inline constexpr const char* kFinGainFile = "FinGain.inp";
inline constexpr const char* kUsualBinaryFile = "ondara7.bin";
inline constexpr const char* kListingFile = "ondara7.out";
inline constexpr const char* kLogFile = "ondara7.log";
inline constexpr const char* kCoefficientFile = "Ondara7_DimHyCo.csv";
inline constexpr const char* kWaveForceFile = "Ondara7_WaveForce.csv";

/// Whether a name leads to a file of the folder itself and ends in ".bin", so that an input can't have a file
/// elsewhere or one of another kind overwritten.
bool IsBinaryFileName(std::string_view name);

/// The file of a folder that has this name, in any case; the one that is spelled so if there are several, and
/// also if there is none.
std::filesystem::path FindFile(const std::filesystem::path& folder, std::string_view name);

/// The bytes of a regular file. Throws CInputError, with the name, if it can't be read or is far too long.
std::string ReadTextFile(const std::filesystem::path& path, const std::string& name);

} // namespace oe7
