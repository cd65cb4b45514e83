// What the writer and the readers of an input echo agree on besides its records.
#pragma once

#include <cmath>
#include <cstddef>

constexpr std::size_t kEchoTextWidth = 255;
/// Stands for the first offset of the first station.
constexpr float kFirstOffset = -99.99F;

/// Rows of a bilge keel from one station to another.
inline float KeelRowCount(float first, float last)
{
    return std::trunc(last) - std::trunc(first) + 1;
}
