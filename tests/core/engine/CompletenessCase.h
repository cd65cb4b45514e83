// A project that lacks something, the messages that it gives, and where its input ends.
#pragma once

#include "tests/core/engine/CEngineProject.h"

#include <string>
#include <vector>

using CField = CParamArray CProjectData::*;
using CSeaField = CTenFloats CEnvironmentFields::*;

struct CCompletenessCase : CEngineProject
{
    /// Writes the input, which must fail with these messages and no others and leave a file with that last
    /// line.
    void ExpectMessages(const std::vector<std::string>& messages, const std::string& lastLine);
    void ExpectMessage(const std::string& message, const std::string& lastLine)
    {
        ExpectMessages({message}, lastLine);
    }
    /// The input must be written without a message.
    void ExpectNothing();

    void Unset(CField field, int slot = 0) { (Project.*field).Set(slot, -1); }
    void UnsetAll(CField field) { (Project.*field).Fill(-1); }

    /// Two seaways with all values of all spectra given.
    void SetSeas(float spectrum);
    /// Two positions that slam by a method (a value of RELMOCALC).
    void SetSlamming(float method);
    void SetKeels();
    void SetSkeg();
    void SetFoils();
    void SetFins();
    /// Masses, keels, foils and stabilizer each lack something.
    void SetLaterFailures();
};
