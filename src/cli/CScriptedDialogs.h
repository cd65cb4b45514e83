// File dialogs that choose the files named on the command line.
#pragma once

#include "core/platform/CPlatform.h"

#include <deque>
#include <string>

class CScriptedDialogs : public CFileDialogs
{
public:
    /// The full path that the next dialog chooses. A dialog without one is cancelled.
    void Answer(const std::string& path) { m_answers.push_back(path); }

    std::optional<std::string> AskOpen(const CFileRequest& request) override;
    std::optional<std::string> AskSave(const CFileRequest& request) override;

private:
    std::deque<std::string> m_answers;
};
