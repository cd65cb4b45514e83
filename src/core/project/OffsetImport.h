// Hull offsets from a comma-separated text file of a fairing program or a spreadsheet.
#pragma once

#include "core/project/CProjectData.h"

#include <array>
#include <string>
#include <string_view>

/// The stations of one file, forward or aft end first as `StationOrigin` says; Y and Z in the file's unit.
struct COffsetTable
{
    int Unit = kUnitMetric;
    int StationCount = 0;
    int StationOrigin = 0;
    std::array<int, kMaxStations> Counts = {};
    std::array<float, kMaxStations* kMaxOffsets> Y = {};
    std::array<float, kMaxStations* kMaxOffsets> Z = {};
};

/// Reads a file's content. Gives an empty text, or the first failure as the user is told of it.
std::string ReadOffsets(std::string_view content, COffsetTable& offsets);

/// Puts the stations into the project. Slots behind a station's last offset keep what they held.
void StoreOffsets(const COffsetTable& offsets, CProjectData& project);
