// The parts of a results file between the engine's and the calculated section, but for the input echo.
#pragma once

#include "core/project/CProjectData.h"

#include <string>

/// Section C.
std::string ControlBytes(const CProjectData& project);
/// The title in front of section B.
std::string TitleBytes(const CProjectData& project);
/// The two file names in front of section A.
std::string FileNameBytes(const CProjectData& project);
