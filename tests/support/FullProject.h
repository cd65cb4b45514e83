// The largest project there is, for measurements and for tests of limits; and the least that the engine
// takes.
#pragma once

#include "core/project/CProjectData.h"

/// Fills a project to its maximum: 21 stations of 60 offsets, every other count at its limit too, each part
/// of the ship and each option on, all values given. Numbers are plausible and differ from slot to slot. All
/// are metric, for an engine in metric units. The hull is a parabolic one.
void FillToMaximum(CProjectData& project);

/// Fills a project so that its run is the largest: as FillToMaximum, with each kind of motion among ten
/// calculated positions, all directions up to 180 degrees, and 60 wave frequencies.
void FillToLargestRun(CProjectData& project);

/// Gives a project at its defaults the values without which its engine input isn't written: regular waves
/// from one direction, ship data, a hull without stations.
void FillToMinimum(CProjectData& project);
