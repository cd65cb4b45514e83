#include "fuzz/CFuzzProject.h"

#include "core/project/InputFileFormat.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>

namespace
{
bool IsLineLengthReadable(std::string_view text)
{
    for (std::size_t line = 0; !text.empty(); ++line)
    {
        const std::size_t length = std::min(text.find('\n'), text.size());
        if (length > (line == 0 ? kLongestTitle : kLongestLine))
        {
            return false;
        }
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return true;
}

/// Whether a plain value, if it is a text, or all of several, can stand in a line.
template <class CValue>
bool IsOneLine(const CValue&)
{
    return true;
}
bool IsOneLine(const std::string& text)
{
    return text.find_first_of("\r\n") == std::string::npos;
}
bool IsOneLine(const CTenTexts& texts)
{
    return std::all_of(texts.begin(), texts.end(), [](const std::string& text) { return IsOneLine(text); });
}

bool AreWhole(const CParamArray& counts)
{
    return std::all_of(counts.data.begin(), counts.data.end(),
                       [](float count) { return std::trunc(count) == count; });
}

bool IsReadable(const CProjectData& project)
{
    bool readable = true;
    project.EachPlainField([&readable](const char*, const auto& value)
                           { readable = readable && IsOneLine(value); });
    for (const CParamArray* counts :
         {&project.NSEADIR, &project.NST, &project.NOFFUSER, &project.NPOS, &project.NSLOFF, &project.NBKPAIR,
          &project.NFOILPAIR, &project.NFINPAIR})
    {
        readable = readable && AreWhole(*counts);
    }
    return readable;
}
} // namespace

void Require(bool holds, std::string_view what)
{
    if (!holds)
    {
        std::cerr << "does not hold: " << what << '\n';
        std::abort();
    }
}

void RequireSameAfterReading(CProjectData& project)
{
    project.EXCITE.Set(std::max(project.EXCITE.Value(), InputFileFormat::kLeastExcitation));
    project.ADDMASS.Set(std::max(project.ADDMASS.Value(), InputFileFormat::kLeastAddedMass));
    const std::string text = InputFileText(project);
    if (!IsReadable(project) || !IsLineLengthReadable(text))
    {
        return;
    }
    CFuzzProject again;
    Require(again.File.ReadContent(text, EHalf::Both) == EOpened::Whole, "a written project is read whole");
    Require(InputFileText(again.Project) == text, "a project is written with the same bytes after reading");
}
