// The files of speed-dependent gains that a user may give for rudder and fins. Their contents are the
// engine's business: the program only tests that they are there and copies them to where the engine looks.
#pragma once

#include "core/engine/CEngineInput.h"
#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <string>

/// A gain file as the project names it, and the engine's name for it.
struct CGainFile
{
    bool Used;
    const std::string& Path;
    const char* EngineName;
};

CGainFile RudderGains(const CProjectData& project);
CGainFile FinGains(const CProjectData& project);

/// The path of a gain file; a relative one begins in the engine's folder.
std::string GainFilePath(const std::string& path, const std::string& baseDir);

/// Whether the gain files in use are there, asked before a run writes anything. Shows a message for the first
/// that is not, the rudder's before the fins'.
bool GainFilesExist(const CProjectData& project, const std::string& baseDir, CMessages& messages);

/// Writes the line that tells whether gains come from a file, and copies that file into the engine's folder.
/// A file that is missing fails without a word: the user was asked before.
void GainFileLine(CEngineInput& input, const CGainFile& file);
