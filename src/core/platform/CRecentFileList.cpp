#include "core/platform/CRecentFileList.h"

#include <algorithm>

namespace
{
constexpr const char* kSection = "Recent File List";

std::string Entry(int index)
{
    return "File" + std::to_string(index + 1);
}
} // namespace

void CRecentFileList::Add(const std::string& path)
{
    auto paths = Paths();
    auto place = std::find(paths.begin(), paths.end(), path);
    if (place == paths.end())
    {
        place = paths.end() - 1;
    }
    std::rotate(paths.begin(), place, place + 1);
    paths.front() = path;
    Store(paths);
}

void CRecentFileList::Remove(const std::string& path)
{
    auto paths = Paths();
    const auto end = std::remove(paths.begin(), paths.end(), path);
    if (end != paths.end())
    {
        std::fill(end, paths.end(), std::string());
        Store(paths);
    }
}

bool CRecentFileList::IsEmpty() const
{
    const auto paths = Paths();
    return std::all_of(paths.begin(), paths.end(), [](const std::string& path) { return path.empty(); });
}

std::array<std::string, CRecentFileList::kEntries> CRecentFileList::Paths() const
{
    std::array<std::string, kEntries> paths;
    for (int k = 0; k < kEntries; ++k)
    {
        paths[static_cast<std::size_t>(k)] = m_profile.GetProfileString(kSection, Entry(k));
    }
    return paths;
}

void CRecentFileList::Store(const std::array<std::string, kEntries>& paths)
{
    for (int k = 0; k < kEntries; ++k)
    {
        const std::string& path = paths[static_cast<std::size_t>(k)];
        if (m_profile.GetProfileString(kSection, Entry(k)) != path)
        {
            m_profile.WriteProfileString(kSection, Entry(k), path);
        }
    }
}
