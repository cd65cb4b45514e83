#include "core/platform/CIniProfile.h"

#include "core/platform/Files.h"
#include "core/platform/TextReading.h"

#include <cstdlib>
#include <filesystem>

namespace
{
constexpr const char* kMaker = "Larkfield Marine Limited";
constexpr const char* kProgram = "Ondara";
constexpr std::size_t kLongestFile = 1 << 20;

std::string FullSection(const std::string& section)
{
    return std::string(kMaker) + "/" + kProgram + "/" + section;
}

std::string Escaped(const std::string& value)
{
    std::string text;
    for (const char c : value)
    {
        switch (c)
        {
        case '\\':
            text += "\\\\";
            break;
        case '\n':
            text += "\\n";
            break;
        case '\r':
            text += "\\r";
            break;
        default:
            text += c;
        }
    }
    return text;
}

std::string Unescaped(std::string_view text)
{
    std::string value;
    for (std::size_t k = 0; k < text.size(); ++k)
    {
        const bool escape = text[k] == '\\' && k + 1 < text.size();
        const char c = escape ? text[++k] : text[k];
        value += escape && c == 'n' ? '\n' : escape && c == 'r' ? '\r' : c;
    }
    return value;
}

} // namespace

CIniProfile::CIniProfile(const std::string& path)
    : m_path(FullPath(path)),
      m_entries(ReadEntries().value_or(CEntries()))
{
}

std::optional<std::string> CIniProfile::Find(const std::string& section, const std::string& entry) const
{
    const auto found = m_entries.find({FullSection(section), entry});
    return found == m_entries.end() ? std::nullopt : std::optional(found->second);
}

void CIniProfile::WriteProfileString(const std::string& section, const std::string& entry,
                                     const std::string& value)
{
    m_unsaved[{FullSection(section), entry}] = value;
    // Another program on the same store may have written since: what it wrote stands.
    const auto stored = ReadEntries();
    CEntries entries = stored.value_or(CEntries());
    entries.merge(m_entries);
    for (const auto& [key, unsaved] : m_unsaved)
    {
        entries[key] = unsaved;
    }
    m_entries = std::move(entries);
    if (stored && WriteEntries())
    {
        m_unsaved.clear();
    }
}

std::string CIniProfile::Folder() const
{
    return std::filesystem::path(m_path).parent_path().string();
}

std::string CIniProfile::DefaultPath()
{
    const char* configuration = std::getenv("XDG_CONFIG_HOME");
    const bool given = configuration != nullptr && *configuration != '\0';
    const std::string folder = given ? configuration : JoinPath(HomeFolder(), ".config");
    return JoinPath(JoinPath(folder, kMaker), std::string(kProgram) + ".ini");
}

std::optional<CIniProfile::CEntries> CIniProfile::ReadEntries() const
{
    CEntries entries;
    if (!FileExists(m_path))
    {
        return entries;
    }
    const auto content = ReadFile(m_path, kLongestFile);
    if (!content || content->size() == kLongestFile)
    {
        return std::nullopt;
    }
    std::string section;
    for (CLineReader reader(*content); !reader.AtEnd();)
    {
        const std::string_view line = reader.ReadLine(content->size());
        const std::size_t equals = line.find('=');
        if (line.size() >= 2 && line.front() == '[' && line.back() == ']')
        {
            section = line.substr(1, line.size() - 2);
        }
        else if (equals != std::string_view::npos)
        {
            entries[{section, std::string(line.substr(0, equals))}] = Unescaped(line.substr(equals + 1));
        }
    }
    return entries;
}

bool CIniProfile::WriteEntries() const
{
    std::string content;
    std::string section;
    for (const auto& [key, value] : m_entries)
    {
        if (content.empty() || key.first != section)
        {
            section = key.first;
            content += (content.empty() ? "[" : "\n[") + section + "]\n";
        }
        content += key.second + "=" + Escaped(value) + "\n";
    }
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(m_path).parent_path(), error);
    return ReplaceFile(m_path, content);
}
