// The engine's printed results, read by marker words, counts of lines and places of words in a line.
#pragma once

#include "core/platform/TextReading.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

/// The results file of a run can't be completed: the listing lacks what is looked for, or can't be read, or
/// the file can't be written.
class CCompletionError : public std::runtime_error
{
public:
    CCompletionError() : std::runtime_error("Error writing results file!") {}
};

class CListing
{
public:
    // Within how many lines a marker is looked for.
    static constexpr int kNear = 1000;
    static constexpr int kFar = 10000;

    explicit CListing(std::string text);
    CListing(const CListing&) = delete;
    CListing& operator=(const CListing&) = delete;

    /// The line that the last read left; empty before the first read and behind the last line.
    std::string_view Line() const { return m_line; }
    /// Takes the next line, 255 characters of it at most; a longer one goes on in the next read.
    void ReadLine() { m_line = m_lines.ReadLine(kLongestLine); }
    void ReadLines(int count);
    /// Reads on to a line that contains a marker; the line at hand may be it. Throws CCompletionError when
    /// `limit` lines were read.
    void Scan(std::string_view marker, int limit);

    /// The number behind the line's first colon, if there is any word.
    std::optional<float> AfterColon() const;
    /// The words of the line.
    CTokens Tokens() const { return CTokens(m_line); }

private:
    static constexpr std::size_t kLongestLine = 255;

    std::string m_text;
    CLineReader m_lines{m_text};
    std::string_view m_line;
};

/// A word as a number: 0 if it is none.
float ListingNumber(std::string_view word);
/// A number in single precision, an infinity if it is too large.
float SinglePrecision(double value);
