// A line of a terminal that says how far a run has come.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <mutex>
#include <string>
#include <string_view>

namespace oe7
{

/// Any thread may show progress.
class CProgressLine
{
public:
    explicit CProgressLine(std::ostream& stream) : m_stream(stream) {}
    /// Takes the line away, so that others can be written.
    ~CProgressLine();
    CProgressLine(const CProgressLine&) = delete;
    CProgressLine& operator=(const CProgressLine&) = delete;

    /// Rewrites the line if it reads otherwise now. `part` is what is done of the whole, 0 to 1.
    void Show(std::string_view what, double part);

private:
    std::ostream& m_stream;
    std::mutex m_mutex;
    std::string m_shown;
};

} // namespace oe7
