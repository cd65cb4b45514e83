// Hands a document that the program has written to the system's viewer.
#pragma once

#include "core/platform/CPlatform.h"

#include <string>

/// Opens the document. Where nothing can be started for that, the user is told where it is.
void ShowDocument(const std::string& path, CPlatform& platform);
