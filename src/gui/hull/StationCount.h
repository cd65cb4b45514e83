// What the forms of the hull ask and say of stations.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <string>

constexpr int kFewestStations = 2; ///< that a hull can be edited with; the most are kMaxStations

/// Whether a hull of so many stations can be edited; a message if not.
bool IsStationCount(int count, CMessages& messages);
/// The count that the hull's form has handed over to an editor; the project's where it has not.
int WorkingStations(const CProjectData& project);
/// Lists the parts of the ship that hold station numbers, and asks the user to look at them.
void ShowStationsChanged(const CProjectData& project, CMessages& messages);
