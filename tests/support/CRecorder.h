// The edges of the program for tests: every message is recorded, every question and file dialog answered from
// a script, and no program is started.
#pragma once

#include "core/platform/CPlatform.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

class CRecorder : public CMessages, public CFileDialogs, public CProfile, public CPrograms
{
public:
    // What the tests look at.
    std::vector<std::string> Messages; ///< "TITLE: TEXT"
    int Beeps = 0;
    std::vector<CFileRequest> Requests;
    std::map<std::pair<std::string, std::string>, std::string> Entries;
    int ProfileWrites = 0;
    std::vector<ECursor> Cursors;
    /// What was started: "start OE7.exe in FOLDER", "show NAME in FOLDER: ARGUMENT", "text PATH", "open
    /// PATH", "end".
    std::vector<std::string> Started;
    /// Messages, beeps ("beep"), cursors ("wait", "arrow") and starts in the order in which they came.
    std::vector<std::string> Events;

    // What the tests answer. An empty name is Cancel; without a name left, the dialog is cancelled.
    std::deque<std::string> Files;
    std::deque<bool> Answers; ///< to the next questions; those behind take Answer
    bool Answer = false;
    std::string ProfileFolder;
    EStart Start = EStart::Started;        ///< of the next programs
    bool Running = false;                  ///< whether a started program still runs
    std::function<void()> AtStart = [] {}; ///< what a started program does at once

    CPlatform Platform{*this, *this, *this, *this};

    void MessageBox(const std::string& text, const std::string& title, EIcon icon) override;
    bool AskYesNo(const std::string& text, const std::string& title, EIcon icon) override;
    void MessageBeep() override;
    void SetCursor(ECursor cursor) override;

    std::optional<std::string> AskOpen(const CFileRequest& request) override;
    std::optional<std::string> AskSave(const CFileRequest& request) override;

    std::optional<std::string> Find(const std::string& section, const std::string& entry) const override;
    void WriteProfileString(const std::string& section, const std::string& entry,
                            const std::string& value) override;
    std::string Folder() const override { return ProfileFolder; }

    EStart StartProgram(const std::string& program, const std::string& baseDir) override;
    bool IsRunning() override { return Running; }
    void EndPrograms() override;
    EStart ShowProgram(const std::string& program, const std::string& baseDir,
                       const std::vector<std::string>& arguments) override;
    EStart ShowText(const std::string& path) override;
    EStart ShellOpen(const std::string& path) override;

    std::vector<EIcon> Icons; ///< of the messages, in order

private:
    EStart Record(const std::string& start);
};
