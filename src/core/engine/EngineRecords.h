// The groups of records of the engine's input, in the order of the file. The engine reads by position: order
// of lines, order of words and number formats are fixed. The letters are those of the same records in the
// project file.
#pragma once

#include "core/engine/CEngineInput.h"

/// (a) to (i): title, controls, frequencies, sea, ship speeds.
void EnvironmentRecords(CEngineInput& input);
/// (j) to (m2): ship data, stations, loading.
void HullRecords(CEngineInput& input);
/// (n) to (n6): masses by station, of a project that wants loads.
void MassRecords(CEngineInput& input);
/// (o): seakeeping positions.
void PositionRecords(CEngineInput& input);
/// (p) to (r3): bilge keels, skeg, rudder.
void AppendageRecords(CEngineInput& input);
/// (s): stationary foils.
void FoilRecords(CEngineInput& input);
/// (t) to (v): roll fins or anti-rolling tank.
void StabilizerRecords(CEngineInput& input);

// What stands for parts that a ship doesn't have.
constexpr const char* kNoSkeg = "0 0 0";
constexpr const char* kNoRudder = "0.00 0.00 0.00 0.00 0.00 0.00 0.00 0 0.00";
constexpr const char* kNoRollGains = "0.00 0.00 0.00 0.00 0.00 0.00 0.00";
constexpr const char* kNoYawGains = "0.00 0.00 0.00";
constexpr const char* kNoLateralGains = "0.00 0.00 0.00 1";

// What stands for frequencies that the user leaves to the program.
constexpr const char* kDefaultWaveFrequencies = "0.2 2.0 0.1";
constexpr const char* kDefaultEncounterFrequencies = "0.0 0.0 0.0";

constexpr const char* kResultsName = "ondara7.bin";
