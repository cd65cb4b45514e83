// Files that are written whole or not at all.
#pragma once

#include <filesystem>
#include <string_view>

namespace oe7
{

/// Replaces a file: it is written beside it, as NAME.part, and renamed, so that no reader ever sees half of
/// it. Where that can't be done the file itself is written. Throws std::runtime_error, with its name, if
/// nothing can.
void WriteWhole(const std::filesystem::path& path, std::string_view content);

} // namespace oe7
