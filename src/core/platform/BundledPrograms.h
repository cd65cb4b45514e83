// Where the programs that come with this one are looked for.
#pragma once

#include <optional>
#include <string>
#include <vector>

/// The folder of the bundled programs, in full: the one that the environment variable ONDARA_PROGRAMS names;
/// without it, that of the running program.
std::string BundledProgramFolder();

/// The paths at which a program is looked for, in order: under its name and under its name without ".exe", in
/// the engine's folder, then in that of the bundled programs.
std::vector<std::string> BundledProgramPlaces(const std::string& program, const std::string& baseDir,
                                              const std::string& bundled);

/// The first of some places with a file that may be executed.
std::optional<std::string> FirstProgram(const std::vector<std::string>& places);

/// The path of a program that the system knows by its name alone.
std::optional<std::string> FindSystemProgram(const std::string& program);
