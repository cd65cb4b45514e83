// The text of a project file, written from a project and read into one.
#pragma once

#include "core/platform/TextReading.h"
#include "core/project/CProjectData.h"

#include <string>

/// The part of a project that a reader stores.
enum class EHalf
{
    Both,
    Geometry,
    Environment
};

/// Longest line that a reader takes in one piece, and longest title line.
constexpr std::size_t kLongestLine = 500;
constexpr std::size_t kLongestTitle = 255;

/// The generations of the file, by the first word of its second line.
constexpr const char* kMagicCurrent = "od7b";
constexpr const char* kMagicPrevious = "od7";
constexpr int kRevisionCurrent = 1;
constexpr int kRevisionPrevious = 0;

/// The whole file, in the current generation. The project isn't changed.
std::string InputFileText(const CProjectData& project);

/// Reads what stands behind title and magic into one half of the project, or both. False at the first line
/// that holds no number where one belongs, or a count that the project has no room for: what was read up to
/// there is stored.
bool ReadInputFileText(CLineReader& lines, CProjectData& project, EHalf half, int revision);
