// A run of the engine in a test's folder, and its completion.
#pragma once

#include "core/platform/NumberText.h"
#include "core/results/CResultFile.h"
#include "core/results/CResults.h"
#include "tests/support/CEngineRun.h"
#include "tests/support/CTestProject.h"

#include <cstring>
#include <string>

struct CCompletion : CTestProject
{
    std::string Path = Folder.File(kResultsFileName);
    CResultFile Results{Project, Session.BaseDir, Recorder.Platform};

    /// The engine's files for the project as it is.
    CEngineRun RunEngine()
    {
        CEngineRun run = EngineRunOf(Project);
        WriteFiles(run);
        return run;
    }
    void WriteFiles(const CEngineRun& run)
    {
        Folder.Write(kResultsFileName, EngineBinary(run));
        Folder.Write(kListingFileName, EngineListing(run));
    }
    void Complete() { Results.Complete(Path); }
    CResults Read() const { return ReadResults(FileContent(Path)); }
};

template <class Value>
Value ValueAt(const std::string& bytes, std::size_t place)
{
    Value value = {};
    std::memcpy(&value, bytes.substr(place, sizeof value).data(), sizeof value);
    return value;
}
