// What the user is told, with a beep, when a file can't be read or written.
#pragma once

#include "core/platform/CPlatform.h"

/// "The file could not be read."
void ShowReadError(CMessages& messages);
/// "The file could not be saved."
void ShowSaveError(CMessages& messages);
