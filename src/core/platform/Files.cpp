#include "core/platform/Files.h"

#include "core/platform/CFileHandle.h"
#include "core/platform/CReplacementFile.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
bool WriteThrough(CFileHandle& file, std::string_view content)
{
    const bool written = file.Write(content) && file.Flush();
    return file.Close() && written;
}

/// Copies of a file's last content: under its name with "~" behind. Where a failed save has left such a copy,
/// the next goes under one more "~", so that the good content is never overwritten by a short one.
class CKeptContent
{
public:
    explicit CKeptContent(const std::string& path) : m_path(path) {}

    bool Keep()
    {
        m_older = KeptContents(m_path);
        std::error_code error;
        m_kept = m_path + std::string(m_older.size() + 1, '~');
        fs::rename(m_path, m_kept, error);
        return !error;
    }

    void PutBack() const
    {
        std::error_code error;
        fs::rename(m_kept, m_path, error);
    }

    void Discard() const
    {
        std::error_code error;
        fs::remove(m_kept, error);
        for (const std::string& older : m_older)
        {
            if (fs::is_regular_file(fs::symlink_status(older, error)))
            {
                fs::remove(older, error);
            }
        }
    }

private:
    std::string m_path;
    std::string m_kept;
    std::vector<std::string> m_older;
};

/// Overwrites an existing regular file.
ESaved SaveOverExisting(const std::string& path, std::string_view content, const struct stat& status)
{
    if (!CFileHandle(path, O_WRONLY).IsOpen())
    {
        return ESaved::NotOpened;
    }
    CKeptContent last(path);
    if (!last.Keep())
    {
        return ESaved::NotOpened;
    }
    CFileHandle file(path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file.IsOpen())
    {
        last.PutBack();
        return ESaved::NotOpened;
    }
    // The owner first: a change of it may take permissions away.
    static_cast<void>(::fchown(file.Get(), status.st_uid, status.st_gid) == 0);
    ::fchmod(file.Get(), status.st_mode & 07777);
    if (!WriteThrough(file, content))
    {
        return ESaved::Short;
    }
    last.Discard();
    return ESaved::Whole;
}
} // namespace

std::string ResolvedPath(const std::string& path)
{
    constexpr int mostLinks = 40; // as the system itself follows
    std::error_code error;
    fs::path resolved = fs::weakly_canonical(path, error);
    for (int k = 0; k < mostLinks && !error && fs::is_symlink(fs::symlink_status(resolved)); ++k)
    {
        // The link leads to no file: what it says is the name of one that may be made.
        resolved = fs::weakly_canonical(resolved.parent_path() / fs::read_symlink(resolved, error), error);
    }
    return error ? path : resolved.string();
}

std::optional<std::string> ReadFile(const std::string& path, std::size_t longest)
{
    std::error_code error;
    if (fs::is_directory(path, error))
    {
        return std::nullopt;
    }
    const CFileHandle file(path, O_RDONLY);
    if (!file.IsOpen())
    {
        return std::nullopt;
    }
    struct stat status = {};
    std::string content;
    if (::fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode))
    {
        content.reserve(std::min(longest, static_cast<std::size_t>(status.st_size)));
    }
    // What is no regular file, or grows meanwhile, is read to its end all the same.
    std::array<char, 1 << 16> buffer;
    while (content.size() < longest)
    {
        const std::size_t part = file.Read(buffer.data(), std::min(buffer.size(), longest - content.size()));
        if (part == 0)
        {
            break;
        }
        content.append(buffer.data(), part);
    }
    return content;
}

std::optional<std::string> ReadRegularFile(const std::string& path, std::size_t longest)
{
    return IsRegularFile(path) ? ReadFile(path, longest) : std::nullopt;
}

bool IsRegularFile(const std::string& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

bool WriteFile(const std::string& path, std::string_view content)
{
    CFileHandle file(path, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file.IsOpen())
    {
        return false;
    }
    const bool written = file.Write(content);
    return file.Close() && written;
}

bool ReplaceFile(const std::string& path, std::string_view content)
{
    CReplacementFile file(path);
    return file.Append(content) && file.FinishOnDisk();
}

std::vector<std::string> KeptContents(const std::string& path)
{
    std::vector<std::string> names;
    std::error_code error;
    std::string name = ResolvedPath(path) + "~";
    while (fs::exists(fs::symlink_status(name, error)))
    {
        names.push_back(name);
        name += "~";
    }
    return names;
}

ESaved SaveFile(const std::string& path, std::string_view content)
{
    const std::string target = ResolvedPath(path);
    struct stat status = {};
    if (::stat(target.c_str(), &status) == 0 && S_ISREG(status.st_mode))
    {
        return SaveOverExisting(target, content, status);
    }
    CFileHandle file(target, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file.IsOpen())
    {
        return ESaved::NotOpened;
    }
    return WriteThrough(file, content) ? ESaved::Whole : ESaved::Short;
}

bool FolderExists(const std::string& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

bool FileExists(const std::string& path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return fs::exists(status) && !fs::is_directory(status);
}

bool CanBeRead(const std::string& path)
{
    return ReadFile(path, 1).has_value();
}

bool IsReadOnly(const std::string& path)
{
    constexpr mode_t anyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 || S_ISDIR(status.st_mode))
    {
        return false;
    }
    // Who runs the program with all rights may write any file: for him the mark alone tells.
    return (status.st_mode & anyWriter) == 0 || ::access(path.c_str(), W_OK) != 0;
}

bool DeleteFile(const std::string& path)
{
    std::error_code error;
    fs::remove(path, error);
    return !error;
}

std::optional<std::time_t> FileTime(const std::string& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
    {
        return std::nullopt;
    }
    return status.st_mtime;
}

std::string JoinPath(const std::string& folder, const std::string& name)
{
    if (folder.empty() || folder.back() == '/')
    {
        return folder + name;
    }
    return folder + "/" + name;
}

std::string WithExtension(const std::string& path, const std::string& extension)
{
    const std::size_t nameStart = path.find_last_of('/') + 1;
    const std::size_t dot = path.find_last_of('.');
    const bool hasExtension = dot != std::string::npos && dot >= nameStart;
    return path.substr(0, hasExtension ? dot : path.size()) + "." + extension;
}

std::string FileName(const std::string& path)
{
    return path.substr(path.find_last_of('/') + 1);
}

bool IsAbsolute(const std::string& path)
{
    const bool drive = path.size() >= 2 && path[1] == ':';
    return drive || (!path.empty() && (path.front() == '/' || path.front() == '\\'));
}

std::string FullPath(const std::string& path)
{
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    if (error)
    {
        return path;
    }
    fs::path normal = full.lexically_normal();
    if (std::find(full.begin(), full.end(), "..") != full.end())
    {
        // Behind a link to a folder, ".." is that folder's parent: the file system has to say which.
        normal = normal.has_filename() ? fs::weakly_canonical(full.parent_path(), error) / full.filename()
                                       : fs::weakly_canonical(full, error) / "";
    }
    return error ? full.string() : normal.string();
}

std::string CurrentFolder()
{
    std::error_code error;
    return fs::current_path(error).string();
}

std::string UserName()
{
    const struct passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_name : "";
}

std::string HomeFolder()
{
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home != '\0')
    {
        return home;
    }
    const struct passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_dir : "";
}

void ChangeFolder(const std::string& folder)
{
    std::error_code error;
    fs::current_path(folder, error);
}

void ChangeToFolderOf(const std::string& path)
{
    ChangeFolder(path.substr(0, path.size() - FileName(path).size()));
}
