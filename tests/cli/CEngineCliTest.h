// A sample ship, an engine that is scripted, and ondara-cli in their folder.
#pragma once

#include "tests/cli/CCliTest.h"
#include "tests/support/CScriptedEngine.h"

#include <string>

constexpr const char* kRunSuccess = "Calculation Complete: The calculation completed successfully.\n";
constexpr const char* kRunFailure =
    "Calculation did not complete: The calculation did not complete.\\nThis is probably due to an error "
    "during "
    "execution.\\nPlease ensure the input file to be correct\\nand try again.\n";
constexpr const char* kScanFailure = "Error In Generating Output File: Error writing results file!\n";

class CEngineCliTest : public CCliTest
{
public:
    CEngineCliTest()
    {
        Write("ship.od7", FileContent(SourceFile("samples/Sample01.od7")));
        Engine.Project(Folder.File("ship.od7"));
    }

    bool Has(const std::string& name) const { return FileExists(Folder.File(name)); }

    CScriptedEngine Engine{Folder.Path()};
};
