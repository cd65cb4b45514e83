// A project that the engine's input can be written from, and a look at that input.
#pragma once

#include "core/engine/CEngineInputWriter.h"
#include "tests/support/CTestProject.h"

#include <string>
#include <vector>

/// The least project that is complete: a regular sea, one direction, no speeds, no stations, no parts.
struct CEngineProject : CTestProject
{
    CEngineProject();

    bool Write() { return CEngineInputWriter(Project, Session.BaseDir, Recorder.Platform).Write(); }
    bool WriteReduced()
    {
        return CEngineInputWriter(Project, Session.BaseDir, Recorder.Platform).WriteReduced();
    }

    /// The input that stands in the folder.
    std::string Text() const { return FileContent(Folder.File("Ondara7.inp")); }
    std::vector<std::string> Lines() const;
    std::string LastLine() const;

    /// Writes the input and gives `count` lines behind the first line that reads `line`.
    std::vector<std::string> LinesBehind(const std::string& line, std::size_t count);
    std::string LineBehind(const std::string& line) { return LinesBehind(line, 1).at(0); }

    /// Gives each station three offsets and the hull the tag of completed offsets.
    void SetStations(int count);
    /// As SetStations, but by beam, draft and area.
    void SetSections(int count);
    /// Positions that are calculated; all values given.
    void SetPositions(int count);
    void SetFoil(int pair);
    void SetFin(int pair);
    void SetTank();
};

/// The message of a failed test, as the recorder keeps it.
inline std::string Told(const std::string& text)
{
    return "Execution Cannot Continue: " + text;
}

/// A project with every record in its longest form, stored in one system and written in another (values of
/// INSYS).
void SetEverything(CEngineProject& project, int unit, float inSystem);
