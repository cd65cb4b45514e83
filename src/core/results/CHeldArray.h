// A table of floats with several indices, sized once from the counts of a results file.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <vector>

template <std::size_t Dimensions>
class CHeldArray
{
public:
    using CSizes = std::array<int, Dimensions>;

    CHeldArray() = default;
    /// All values are 0. No size may be negative.
    explicit CHeldArray(const CSizes& sizes) : m_sizes(sizes)
    {
        std::size_t total = 1;
        for (const int size : sizes)
        {
            total *= static_cast<std::size_t>(size);
        }
        m_values.resize(total);
    }

    template <class... Indices>
    float& operator()(Indices... indices)
    {
        return m_values[Offset({static_cast<int>(indices)...})];
    }
    template <class... Indices>
    float operator()(Indices... indices) const
    {
        return m_values[Offset({static_cast<int>(indices)...})];
    }

    /// All values, the last index fastest.
    float* Values() { return m_values.data(); }

    int Size(std::size_t dimension) const { return m_sizes[dimension]; }

private:
    std::size_t Offset(const CSizes& indices) const
    {
        std::size_t offset = 0;
        for (std::size_t k = 0; k < Dimensions; ++k)
        {
            assert(indices[k] >= 0 && indices[k] < m_sizes[k]);
            offset = offset * static_cast<std::size_t>(m_sizes[k]) + static_cast<std::size_t>(indices[k]);
        }
        return offset;
    }

    CSizes m_sizes = {};
    std::vector<float> m_values;
};
