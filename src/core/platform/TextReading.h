// Lines and tokens of a text held in memory, as bounded C line reads and strtok take them.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// Hands out a text line by line. A line is cut at a greatest length, and the next read goes on inside it.
class CLineReader
{
public:
    explicit CLineReader(std::string_view text) : m_rest(text) {}

    /// The next line without its line end, at most `longest` characters of it; empty at the end of the text.
    /// The line end is taken away when it comes within these characters or directly behind them. A carriage
    /// return before the line feed belongs to the line end. A NUL ends what is given of its line.
    std::string_view ReadLine(std::size_t longest);
    bool AtEnd() const { return m_rest.empty(); }
    /// Which line of the text, counted from 1, the last read took its characters from; 0 before the first
    /// read. Behind the last line it is one more than that line's.
    int LineNumber() const { return m_lineNumber; }

private:
    std::string_view m_rest;
    int m_lineNumber = 0;
    bool m_lineEnded = true; ///< the last read took the line end away
};

/// Splits a line as strtok does: runs of delimiters separate tokens, so that there is never an empty one.
class CTokens
{
public:
    explicit CTokens(std::string_view line, char delimiter = ' ') : m_rest(line), m_delimiter(delimiter) {}

    std::optional<std::string_view> Next();
    /// Takes the next token if it is a plain decimal number from end to end, as nearly all are: "12",
    /// "-0.50". Nothing, and the token is still there, for any other. Looks at each character once, where
    /// Next and NumberAtStart do twice.
    std::optional<double> NextPlainNumber();
    /// All that stands behind the last token and the one delimiter that ended it; nothing if that is empty.
    std::optional<std::string_view> Rest();

private:
    std::string_view m_rest;
    char m_delimiter;
};
