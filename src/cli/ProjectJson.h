// A project as JSON, for scripts and tests.
#pragma once

#include "core/project/CProjectData.h"

#include <string>

/// The whole project: one object of "keywords", "fields" and "complete". Members stand on lines of their own,
/// indented by two; arrays on one line. Ends in a line feed.
std::string ProjectJson(CProjectData& project);
