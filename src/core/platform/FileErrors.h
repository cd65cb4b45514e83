// What the user is told, with a beep, when a file can't be read or written.
#pragma once

#include "core/platform/CPlatform.h"

#include <string>

/// "The file could not be read."
void ShowReadError(CMessages& messages);
/// "The file could not be saved."
void ShowSaveError(CMessages& messages);
/// Tells of a file that its disk took only part of, and where its last content stands.
void ShowShortSave(const std::string& path, CMessages& messages);
std::string ShortSaveText(const std::string& path);
