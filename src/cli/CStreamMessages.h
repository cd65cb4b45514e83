// Message boxes as lines of a stream, each on one line: "TITLE: TEXT".
#pragma once

#include "core/platform/CPlatform.h"

#include <functional>
#include <iosfwd>
#include <string>

class CStreamMessages : public CMessages
{
public:
    /// `answer` is the one to every question, true for Yes.
    CStreamMessages(std::ostream& stream, bool answer) : m_stream(stream), m_answer(answer) {}

    void MessageBox(const std::string& text, const std::string& title, EIcon icon) override;
    /// The line ends in the answer, " [yes]" or " [no]".
    bool AskYesNo(const std::string& text, const std::string& title, EIcon icon) override;
    void MessageBeep() override {}

    /// A line of the program's own, which no message box of the desktop says.
    void PlainLine(const std::string& text);

    /// Makes room for a line that is about to be written.
    std::function<void()> BeforeLine = [] {};

private:
    void Line(const std::string& text);

    std::ostream& m_stream;
    bool m_answer;
};

/// Writes what the program was asked for. False, after a plain line, if the output doesn't take it.
bool PrintText(const std::string& text, std::ostream& output, CStreamMessages& messages);
