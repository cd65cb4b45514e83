// Keeps the tables that the engine writes as comma-separated text: moves each out of the engine's folder to
// a place beside the project. The tables themselves are neither read nor changed.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <string>

constexpr const char* kCoefficientTableName = "Ondara7_DimHyCo.csv"; ///< in the engine's folder
constexpr const char* kWaveForceTableName = "Ondara7_WaveForce.csv"; ///< the same

/// The table of added mass and damping, when the project asks for it. The engine's own copy goes in any case.
void ExportHydrodynamicCoefficients(const CProjectData& project, const std::string& baseDir,
                                    CPlatform& platform);
/// The same for the table of wave forces.
void ExportWaveForces(const CProjectData& project, const std::string& baseDir, CPlatform& platform);
