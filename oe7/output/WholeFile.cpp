#include "oe7/output/WholeFile.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace oe7
{
namespace
{
/// Into a new file only: what stands at the path may be a link or a pipe.
bool WriteNew(const fs::path& path, std::string_view content)
{
    std::error_code ignored;
    fs::remove(path, ignored);
    std::FILE* file = std::fopen(path.c_str(), "wbx");
    if (file == nullptr)
    {
        return false;
    }
    const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
    return std::fclose(file) == 0 && written;
}

/// Where no file may be made, one that is there may still be written.
bool WriteOver(const fs::path& path, std::string_view content)
{
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(path, error)))
    {
        return false;
    }
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    return stream.good();
}
} // namespace

void WriteWhole(const fs::path& path, std::string_view content)
{
    fs::path beside = path;
    beside += ".part";
    std::error_code failed;
    bool written = WriteNew(beside, content);
    if (written)
    {
        fs::rename(beside, path, failed);
        written = !failed;
    }
    if (!written)
    {
        fs::remove(beside, failed);
        written = WriteOver(path, content);
    }
    if (!written)
    {
        throw std::runtime_error("the file " + path.filename().string() + " can't be written");
    }
}

} // namespace oe7
