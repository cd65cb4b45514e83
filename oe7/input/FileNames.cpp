#include "oe7/input/FileNames.h"

#include "oe7/input/CRunLog.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

namespace fs = std::filesystem;

namespace oe7
{
namespace
{
constexpr std::size_t kLongestName = 200;
constexpr std::string_view kBinaryEnding = ".bin";
constexpr std::uintmax_t kLongestFile = 16 << 20; ///< bytes

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameName(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char left, char right) { return Lower(left) == Lower(right); });
}

bool IsRegular(const fs::path& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}
} // namespace

bool IsBinaryFileName(std::string_view name)
{
    return name.size() > kBinaryEnding.size() && name.size() <= kLongestName &&
           name.find_first_of("/\\:") == std::string_view::npos &&
           SameName(name.substr(name.size() - kBinaryEnding.size()), kBinaryEnding);
}

fs::path FindFile(const fs::path& folder, std::string_view name)
{
    const fs::path spelled = folder / name;
    if (IsRegular(spelled))
    {
        return spelled;
    }
    std::vector<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, error), end; !error && entry != end;
         entry.increment(error))
    {
        if (SameName(entry->path().filename().string(), name) && IsRegular(entry->path()))
        {
            found.push_back(entry->path());
        }
    }
    // The first by name, so that it doesn't depend on the order in which the folder is listed.
    return found.empty() ? spelled : *std::min_element(found.begin(), found.end());
}

std::string ReadTextFile(const fs::path& path, const std::string& name)
{
    std::error_code error;
    // A device or a pipe might never end.
    if (!IsRegular(path))
    {
        throw CInputError("the file " + name + " is not there");
    }
    if (fs::file_size(path, error) > kLongestFile)
    {
        throw CInputError("the file " + name + " is too long");
    }
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    if (!stream)
    {
        throw CInputError("the file " + name + " can't be read");
    }
    return content.str();
}

} // namespace oe7
