// What the program does with whole files of the engine's folder besides reading and writing them.
#pragma once

#include <string>

/// The path of a file that the program is about to write, in the spelling given. A file whose name differs in
/// case only is the same one: it takes this name, or goes where a file of this name stands beside it.
std::string ClaimEngineFile(const std::string& folder, const std::string& name);

/// Copies a file over another, also over one that may not be written; the copy may be. A file copied over
/// itself, whatever its two names, stays as it is. False if the copy can't be made; an older copy then
/// stands.
bool CopyFileOver(const std::string& source, const std::string& target);
