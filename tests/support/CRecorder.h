// The edges of the program for tests: every message is recorded, every question and file dialog answered from
// a script.
#pragma once

#include "core/platform/CPlatform.h"

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

class CRecorder : public CMessages, public CFileDialogs, public CProfile
{
public:
    // What the tests look at.
    std::vector<std::string> Messages; ///< "TITLE: TEXT"
    int Beeps = 0;
    std::vector<CFileRequest> Requests;
    std::map<std::pair<std::string, std::string>, std::string> Entries;
    int ProfileWrites = 0;

    // What the tests answer. An empty name is Cancel; without a name left, the dialog is cancelled.
    std::deque<std::string> Files;
    bool Answer = false;

    CPlatform Platform{*this, *this, *this};

    void MessageBox(const std::string& text, const std::string& title, EIcon icon) override;
    bool AskYesNo(const std::string& text, const std::string& title, EIcon icon) override;
    void MessageBeep() override { ++Beeps; }

    std::optional<std::string> AskOpen(const CFileRequest& request) override;
    std::optional<std::string> AskSave(const CFileRequest& request) override;

    std::optional<std::string> Find(const std::string& section, const std::string& entry) const override;
    void WriteProfileString(const std::string& section, const std::string& entry,
                            const std::string& value) override;

    std::vector<EIcon> Icons; ///< of the messages, in order
};
