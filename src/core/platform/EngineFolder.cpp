#include "core/platform/EngineFolder.h"

#include "core/platform/Files.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <vector>

#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
bool SameInAnyCase(const std::string& left, const std::string& right)
{
    const auto same = [](char a, char b)
    { return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b)); };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), same);
}

/// The time of the last change of a folder's file; the earliest there is if it can't be read.
fs::file_time_type LastWritten(const std::string& folder, const std::string& name)
{
    std::error_code error;
    const auto time = fs::last_write_time(JoinPath(folder, name), error);
    return error ? fs::file_time_type::min() : time;
}

/// The names of a folder's files that are `name` in any case.
std::vector<std::string> Spellings(const std::string& folder, const std::string& name)
{
    std::vector<std::string> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    {
        const std::string spelling = entry->path().filename().string();
        std::error_code ignored;
        if (SameInAnyCase(spelling, name) && !fs::is_directory(entry->symlink_status(ignored)))
        {
            found.push_back(spelling);
        }
    }
    return found;
}
} // namespace

std::string ClaimEngineFile(const std::string& folder, const std::string& name)
{
    const std::string path = JoinPath(folder, name);
    const std::vector<std::string> spellings = Spellings(folder.empty() ? "." : folder, name);
    bool claimed = std::find(spellings.begin(), spellings.end(), name) != spellings.end();
    for (const std::string& spelling : spellings)
    {
        std::error_code error;
        if (spelling != name && claimed)
        {
            fs::remove(JoinPath(folder, spelling), error);
        }
        else if (spelling != name)
        {
            fs::rename(JoinPath(folder, spelling), path, error);
            claimed = !error;
        }
    }
    return path;
}

std::string TakeEngineFile(const std::string& folder, const std::string& name)
{
    const std::vector<std::string> spellings = Spellings(folder.empty() ? "." : folder, name);
    std::string last = name;
    for (const std::string& spelling : spellings)
    {
        if (LastWritten(folder, spelling) > LastWritten(folder, last))
        {
            last = spelling;
        }
    }
    if (last != name)
    {
        std::error_code error;
        fs::rename(JoinPath(folder, last), JoinPath(folder, name), error);
    }
    return ClaimEngineFile(folder, name);
}

bool IsEngineFile(const std::string& path, const std::string& folder, const std::string& name)
{
    const std::string nameless = path.substr(0, path.size() - FileName(path).size());
    const bool sameFolder = ResolvedPath(nameless) == ResolvedPath(JoinPath(folder, ""));
    return (sameFolder && SameInAnyCase(FileName(path), name)) ||
           ResolvedPath(path) == ResolvedPath(JoinPath(folder, name));
}

bool CopyFileOver(const std::string& source, const std::string& target)
{
    std::error_code error;
    if (fs::equivalent(source, target, error))
    {
        return true;
    }
    const fs::file_status older = fs::status(target, error);
    if (fs::exists(older) && !fs::is_regular_file(older))
    {
        return false;
    }
    const std::string temporary = target + "." + std::to_string(::getpid()) + ".new";
    if (fs::copy_file(source, temporary, fs::copy_options::overwrite_existing, error))
    {
        const fs::file_status like = fs::exists(older) ? older : fs::status(temporary, error);
        fs::permissions(temporary, (like.permissions() & fs::perms::all) | fs::perms::owner_write, error);
        fs::rename(temporary, target, error);
        if (!error)
        {
            return true;
        }
    }
    std::error_code ignored;
    fs::remove(temporary, ignored);
    return false;
}
