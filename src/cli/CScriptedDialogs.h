// File dialogs that choose the files named on the command line.
#pragma once

#include "cli/CStreamMessages.h"

#include <deque>
#include <string>

class CScriptedDialogs : public CFileDialogs
{
public:
    explicit CScriptedDialogs(CStreamMessages& messages) : m_messages(messages) {}

    /// The full path that the next dialog chooses. A dialog without one is cancelled.
    void Answer(const std::string& path) { m_answers.push_back(path); }

    std::optional<std::string> AskOpen(const CFileRequest& request) override;
    /// A cancelled one tells what is lost by it.
    std::optional<std::string> AskSave(const CFileRequest& request) override;

private:
    CStreamMessages& m_messages;
    std::deque<std::string> m_answers;
};
