// Whole files in and out of memory, and the few path rules of the program. Paths are byte texts.
#pragma once

#include <cstddef>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A file's content, at most `longest` bytes of it; nothing if it can't be opened or is a folder.
std::optional<std::string> ReadFile(const std::string& path, std::size_t longest);

/// The same of a regular file only: nothing for a device or a pipe, which might never end.
std::optional<std::string> ReadRegularFile(const std::string& path, std::size_t longest);
/// True for a file that is neither a folder nor a device nor a pipe.
bool IsRegularFile(const std::string& path);

/// The file that a link leads to, also one that is not there yet; the path itself where none can be told.
std::string ResolvedPath(const std::string& path);

/// Replaces a file's content in place; false if it can't be opened or not all bytes reach it.
bool WriteFile(const std::string& path, std::string_view content);

/// Replaces a file that is the program's own affair: written beside it and renamed, so that no reader ever
/// sees half of it. False if that fails; the old file then stands.
bool ReplaceFile(const std::string& path, std::string_view content);

enum class ESaved
{
    Whole,     ///< the new content is on the disk
    NotOpened, ///< the file can't be opened for writing; it is as it was
    Short      ///< the disk took only part; the last content stands beside the file, under its name with "~"
               ///< behind
};

/// Overwrites a user's file. Its last content is kept beside it under the same name with "~" behind until the
/// new content is on the disk.
ESaved SaveFile(const std::string& path, std::string_view content);
/// Where short saves of a file have left its last contents: its name with one or more "~" behind, in that
/// order.
std::vector<std::string> KeptContents(const std::string& path);

/// True for anything that can be read as a file, so not for a folder.
bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);
/// True for a file that can be opened for reading, so not for a folder.
bool CanBeRead(const std::string& path);
/// True for a file, not a folder, that is marked as not to be written, or that this user may not write.
bool IsReadOnly(const std::string& path);
/// Takes a file away. True unless it still stands.
bool DeleteFile(const std::string& path);
/// The time of the last change; nothing if it can't be read.
std::optional<std::time_t> FileTime(const std::string& path);

/// Folder and name with the platform's separator between.
std::string JoinPath(const std::string& folder, const std::string& name);
/// The path with its extension, if any, replaced by ".extension".
std::string WithExtension(const std::string& path, const std::string& extension);
/// The last part of a path.
std::string FileName(const std::string& path);
/// Whether a path begins at a root, in either system's spelling.
bool IsAbsolute(const std::string& path);
/// The full path of a path that is relative to the current folder.
std::string FullPath(const std::string& path);

std::string CurrentFolder();
/// The name under which the user is known to the system.
std::string UserName();
/// The user's own folder: the environment variable HOME, else the one that the system has on record.
std::string HomeFolder();
/// Makes a folder the process's current one; nothing happens if that can't be done.
void ChangeFolder(const std::string& folder);
/// The same with the folder that a file stands in, as a file dialog leaves it.
void ChangeToFolderOf(const std::string& path);
