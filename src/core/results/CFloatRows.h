// A table of floats in the bytes of a results file, which need not be aligned.
#pragma once

#include <cstddef>
#include <cstring>

class CFloatRows
{
public:
    CFloatRows() = default;
    CFloatRows(const char* bytes, int count, int width) : m_bytes(bytes), m_count(count), m_width(width) {}

    int Count() const { return m_count; }
    int Width() const { return m_width; }
    float At(int row, int column) const
    {
        float value = 0;
        const auto index = static_cast<std::size_t>(row) * static_cast<std::size_t>(m_width) +
                           static_cast<std::size_t>(column);
        std::memcpy(&value, m_bytes + index * sizeof value, sizeof value);
        return value;
    }
    /// All values, row by row, to a place that has room for them.
    void CopyTo(float* values) const
    {
        if (m_count > 0 && m_width > 0)
        {
            const auto total = static_cast<std::size_t>(m_count) * static_cast<std::size_t>(m_width);
            std::memcpy(values, m_bytes, total * sizeof *values);
        }
    }

private:
    const char* m_bytes = nullptr;
    int m_count = 0;
    int m_width = 0;
};
