#include "cli/Wrapped.h"

#include <sstream>

std::string Wrapped(const std::string& text, std::size_t width)
{
    std::istringstream words(text);
    std::string lines;
    std::size_t length = 0; // of the last line
    for (std::string word; words >> word; lines += word)
    {
        const bool fits = length + 1 + word.size() <= width;
        lines += lines.empty() ? "" : fits ? " " : "\n";
        length = lines.empty() || !fits ? word.size() : length + 1 + word.size();
    }
    return lines;
}
