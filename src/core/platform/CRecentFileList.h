// The last files that the user opened, newest first, kept in the profile.
#pragma once

#include "core/platform/CPlatform.h"

#include <array>
#include <string>

class CRecentFileList
{
public:
    static constexpr int kEntries = 4;

    explicit CRecentFileList(CProfile& profile) : m_profile(profile) {}

    /// Puts a path first; it stands once only, and the oldest falls off the end.
    void Add(const std::string& path);
    void Remove(const std::string& path);

    bool IsEmpty() const;
    /// The paths; free places are empty texts.
    std::array<std::string, kEntries> Paths() const;

private:
    void Store(const std::array<std::string, kEntries>& paths);

    CProfile& m_profile;
};
