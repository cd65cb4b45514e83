#include "tests/support/RecordText.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace
{
std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
    {
        text += line + "\n";
    }
    return text;
}

std::size_t Find(const std::vector<std::string>& lines, const std::string& label, int behind)
{
    for (std::size_t k = 0; k < lines.size(); ++k)
    {
        const std::size_t wanted = k + static_cast<std::size_t>(behind);
        if (lines[k].rfind(label, 0) == 0 && wanted < lines.size())
        {
            return wanted;
        }
    }
    ADD_FAILURE() << "no line behind " << label;
    return 0;
}

/// The line's first tokens.
std::string FirstTokens(const std::string& line, int count)
{
    std::istringstream stream(line);
    std::string kept;
    std::string token;
    for (int k = 0; k < count && stream >> token; ++k)
    {
        kept += (k == 0 ? "" : " ") + token;
    }
    return kept;
}

void CutTokens(std::vector<std::string>& lines, const std::string& label, int tokens, int behind = 1)
{
    std::string& line = lines[Find(lines, label, behind)];
    line = FirstTokens(line, tokens);
}

void FillOffsetLines(std::vector<std::string>& lines)
{
    for (std::size_t k = 0; k + 2 < lines.size(); ++k)
    {
        if (lines[k].find("//**Number of Offsets") == std::string::npos)
        {
            continue;
        }
        for (std::string* line : {&lines[k + 1], &lines[k + 2]})
        {
            std::istringstream stream(*line);
            int count = 0;
            for (std::string token; stream >> token; ++count)
            {
            }
            for (; count < 30; ++count)
            {
                *line += "-1.000 ";
            }
        }
    }
}
} // namespace

std::string LineBehind(const std::string& text, const std::string& label, int behind)
{
    const auto lines = Lines(text);
    return lines[Find(lines, label, behind)];
}

std::string WithLineBehind(const std::string& text, const std::string& label, const std::string& line,
                           int behind)
{
    auto lines = Lines(text);
    lines[Find(lines, label, behind)] = line;
    return Joined(lines);
}

std::string WithoutLines(const std::string& text, const std::string& label, int count)
{
    auto lines = Lines(text);
    const auto first = lines.begin() + static_cast<std::ptrdiff_t>(Find(lines, label, 0));
    lines.erase(first, first + count);
    return Joined(lines);
}

std::string AsPreviousGeneration(const std::string& text)
{
    auto lines = Lines(text);
    lines[1] = "od7";
    CutTokens(lines, "Record (r) ", 8);
    CutTokens(lines, "//**UNIT TYPES FOR RECORD (R)", 5);
    // The label of the fins' units stands directly behind their gains.
    CutTokens(lines, "//**UNIT TYPES FOR RECORD (U)", 6, -1);
    FillOffsetLines(lines);
    std::string previous = Joined(lines);
    previous = WithoutLines(previous, "//**Rudder Speed", 2);
    previous = WithoutLines(previous, "//**Fin Speed", 2);
    previous = WithoutLines(previous, "Record (r3)", 2);
    for (std::size_t at = 0; (at = previous.find("\nPosition", at)) != std::string::npos; ++at)
    {
        // The option line is the tenth of a position.
        std::size_t line = at + 1;
        for (int k = 0; k < 9; ++k)
        {
            line = previous.find('\n', line) + 1;
        }
        previous.erase(line, previous.find('\n', line) + 1 - line);
    }
    return previous;
}
