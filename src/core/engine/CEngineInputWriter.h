// Writes the calculation engine's input from the project, and tells the user what the project lacks for it.
#pragma once

#include "core/engine/CEngineInput.h"
#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <string>

constexpr const char* kEngineInputName = "Ondara7.inp";

class CEngineInputWriter
{
public:
    /// `baseDir` is the engine's folder: the input is written there.
    CEngineInputWriter(CProjectData& project, const std::string& baseDir, CPlatform& platform);

    /// Writes the whole input. True if this very write went through with no test failed; only then is
    /// `InputWritten` set, to 1. A failed test leaves the file cut short before the line that it stopped.
    bool Write();

    /// Writes the reduced input of a waterline pre-run: the ship's hull and loading in metric units among
    /// fixed records. Sets `InputWritten` to 1 or 0.
    bool WriteReduced();

private:
    bool WriteInput(float inSystem, void (*compose)(CEngineInput& input));

    CProjectData& m_project;
    std::string m_baseDir;
    CPlatform& m_platform;
};

/// Whether the waterline is known only to the engine: loading by displacement and LCG.
bool NeedsWaterlinePreRun(const CProjectData& project);
