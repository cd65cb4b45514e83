// A folder in which nobody may make or delete files for the time of a test.
#pragma once

#include <filesystem>
#include <string>

#include <sys/fsuid.h>

/// Lets nobody make or delete files in a folder for as long as it lives, not even who may do everything.
class CClosedFolder
{
public:
    explicit CClosedFolder(const std::string& path) : m_path(path)
    {
        std::filesystem::permissions(m_path, std::filesystem::perms(0555));
        m_user = static_cast<uid_t>(::setfsuid(kNobody));
    }
    ~CClosedFolder()
    {
        ::setfsuid(m_user);
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all);
    }
    CClosedFolder(const CClosedFolder&) = delete;
    CClosedFolder& operator=(const CClosedFolder&) = delete;

private:
    static constexpr uid_t kNobody = 65534;

    std::string m_path;
    uid_t m_user = 0;
};
