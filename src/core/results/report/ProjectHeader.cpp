#include "core/results/report/ProjectHeader.h"

#include "core/platform/Files.h"
#include "core/platform/TextReading.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace
{
constexpr const char* kFile = "odview.ini";
constexpr std::size_t kLongestFile = 1 << 16;
constexpr std::size_t kLongestValue = 179;

const char* Key(int field)
{
    switch (field)
    {
    case kHeaderCompany:
        return "Company";
    case kHeaderClient:
        return "ClientName";
    case kHeaderContract:
        return "Contract";
    default:
        return nullptr;
    }
}

std::string_view WithoutBlanks(std::string_view text)
{
    constexpr const char* blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool IsSameWord(std::string_view a, std::string_view b)
{
    const auto same = [](char left, char right) {
        return std::tolower(static_cast<unsigned char>(left)) ==
               std::tolower(static_cast<unsigned char>(right));
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
}

/// The value of the first entry of a name in the section "Project".
std::string_view Entry(std::string_view content, std::string_view key)
{
    bool inside = false;
    for (CLineReader reader(content); !reader.AtEnd();)
    {
        const std::string_view line = WithoutBlanks(reader.ReadLine(content.size()));
        const std::size_t equals = line.find('=');
        if (line.starts_with('['))
        {
            inside = IsSameWord(WithoutBlanks(line.substr(1, line.find(']') - 1)), "Project");
        }
        else if (inside && equals != std::string_view::npos &&
                 IsSameWord(WithoutBlanks(line.substr(0, equals)), key))
        {
            return WithoutBlanks(line.substr(equals + 1));
        }
    }
    return {};
}
} // namespace

std::string ProjectHeaderField(int field, const std::string& folder)
{
    const char* key = Key(field);
    const auto content = key == nullptr ? std::nullopt : ReadFile(JoinPath(folder, kFile), kLongestFile);
    return content ? std::string(Entry(*content, key).substr(0, kLongestValue)) : std::string();
}
