// Reads little-endian values out of a results file in memory, never past its end.
#pragma once

#include "core/results/CFloatRows.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

/// What a results file holds can't be: a count beyond its bound, or a value behind the file's end.
class CResultsError : public std::runtime_error
{
public:
    CResultsError() : std::runtime_error("The file could not be read") {}
};

/// Every read and every move beyond the file throws CResultsError.
class CResultsCursor
{
public:
    explicit CResultsCursor(std::string_view bytes, std::ptrdiff_t position = 0);

    float Float();
    int Integer();
    /// The integer at the cursor, which stays.
    int PeekInteger() const;
    /// A field of `width` bytes up to its first blank or zero.
    std::string Text(std::size_t width);
    void Skip(std::size_t bytes);
    void Seek(std::ptrdiff_t position);
    std::size_t Position() const { return m_position; }

    /// A float that holds a count, truncated: 0 for a negative one, an error for one above `greatest`, a NaN
    /// or an infinity.
    int FloatCount(int greatest);
    /// The same of an integer.
    int Count(int greatest);
    /// `count` rows of `width` floats, as they stand in the file.
    CFloatRows Rows(int count, int width);

private:
    std::string_view Take(std::size_t bytes);

    std::string_view m_bytes;
    std::size_t m_position = 0;
};

/// A count as above: 0 for a negative one, an error for one that is above `greatest` or that no int holds.
int CheckedCount(float value, int greatest);
int CheckedCount(int value, int greatest);
