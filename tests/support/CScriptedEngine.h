// Puts a program into a folder that stands for the engine in tests: it writes the engine's files for a
// project, or fails as told.
#pragma once

#include <string>

/// The description that the program reads in the folder in which it is started: lines of a key and a value.
constexpr const char* kScriptedEngineDescription = "scripted-engine.txt";

class CScriptedEngine
{
public:
    /// Installs the program as OE7 into a folder. Without a project it ends with an error.
    explicit CScriptedEngine(const std::string& baseDir);

    /// The project whose run it stands for: a project file's path.
    CScriptedEngine& Project(const std::string& path) { return Add("project " + path); }
    /// How it fails:
    ///   no-file         ends with an error, without a binary file
    ///   short-file      the binary file has three bytes
    ///   no-marker       the binary file lacks its end mark
    ///   missing-listing-marker TEXT   the listing lacks the lines that hold the text
    ///   no-listing      there is no listing
    ///   log-error       all files are there, but the log tells of an error
    ///   log-warning     the log tells of a warning; this is no failure
    ///   no-log          there is no log
    ///   never-ends      writes nothing but the log and stays, five minutes at most
    ///   crash           ends by a signal, the binary file not yet written
    CScriptedEngine& Fail(const std::string& how) { return Add("fail " + how); }
    /// Lets it take its time before it writes.
    CScriptedEngine& Sleep(int milliseconds);

private:
    CScriptedEngine& Add(const std::string& line);

    std::string m_folder;
    std::string m_description;
};
