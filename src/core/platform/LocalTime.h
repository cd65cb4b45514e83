// The time of day where the user is.
#pragma once

#include <ctime>

/// A moment in local time; 0 January 1900 for one that the system can't tell.
std::tm LocalTime(std::time_t moment);
