#include "core/platform/BundledPrograms.h"

#include "core/platform/Files.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool MayBeExecuted(const std::string& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
}
} // namespace

std::string BundledProgramFolder()
{
    const std::string named = Environment("ONDARA_PROGRAMS");
    if (!named.empty())
    {
        return FullPath(named);
    }
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path().string();
}

std::vector<std::string> BundledProgramPlaces(const std::string& program, const std::string& baseDir,
                                              const std::string& bundled)
{
    const std::string ending = ".exe";
    std::vector<std::string> places;
    for (const std::string& folder : {baseDir, bundled})
    {
        const std::string place = FullPath(JoinPath(folder, program));
        if (!places.empty() && places.front() == place)
        {
            break; // both are the same folder
        }
        places.push_back(place);
        if (place.ends_with(ending))
        {
            places.push_back(place.substr(0, place.size() - ending.size()));
        }
    }
    return places;
}

std::optional<std::string> FirstProgram(const std::vector<std::string>& places)
{
    const auto found = std::find_if(places.begin(), places.end(), MayBeExecuted);
    return found == places.end() ? std::nullopt : std::optional(*found);
}

std::optional<std::string> FindSystemProgram(const std::string& program)
{
    std::string folders = Environment("PATH");
    while (!folders.empty())
    {
        const std::size_t length = std::min(folders.find(':'), folders.size());
        const std::string path = JoinPath(folders.substr(0, length), program);
        if (length > 0 && MayBeExecuted(path))
        {
            return path;
        }
        folders.erase(0, length + 1);
    }
    return std::nullopt;
}
