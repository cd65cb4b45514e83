// A line of a terminal that says how long a run has gone on. Where the stream is no terminal nothing is
// written.
#pragma once

#include <chrono>
#include <iosfwd>
#include <string>

class CProgressLine
{
public:
    CProgressLine(std::ostream& stream, bool terminal) : m_stream(stream), m_terminal(terminal) {}

    /// Begins to count seconds.
    void Begin(const std::string& text);
    /// Rewrites the line if a second has gone by.
    void Update();
    /// Takes the line away, so that others can be written.
    void End();

private:
    void Write();

    std::ostream& m_stream;
    bool m_terminal;
    std::string m_text; ///< empty when no line is shown
    std::string m_shown;
    std::chrono::steady_clock::time_point m_start;
    long m_seconds = 0;
};
