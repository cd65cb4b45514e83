// What the program does with whole files of the engine's folder besides reading and writing them.
#pragma once

#include <string>

/// The path of a file that the program is about to write, in the spelling given. A file whose name differs in
/// case only is the same one: it takes this name, or goes where a file of this name stands beside it.
std::string ClaimEngineFile(const std::string& folder, const std::string& name);

/// The path of a file that the engine may have left, in the spelling given. Of files whose names differ in
/// case only the last written is it: it takes this name, and the others go.
std::string TakeEngineFile(const std::string& folder, const std::string& name);

/// Whether a path is that of a file of the engine's folder, through links or in another case too.
bool IsEngineFile(const std::string& path, const std::string& folder, const std::string& name);

/// Copies a file over another, also over one that may not be written; the copy may be, and is open to whom
/// the older one was. A link is replaced, not followed. A file copied over itself, whatever its two names,
/// stays as it is. False if the copy can't be made, or would take the place of a device or a pipe; what was
/// there then stands.
bool CopyFileOver(const std::string& source, const std::string& target);
