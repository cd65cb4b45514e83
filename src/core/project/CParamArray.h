// One named project parameter: its value or values, and what the keyword table says of it.
#pragma once

#include "core/platform/NumberText.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

/// Unit flag of a value: the system that it is stored in.
constexpr int kUnitMetric = 0;
constexpr int kUnitBritish = 1;

/// The half of a project that a value belongs to.
constexpr int kScopeBoth = 0;
constexpr int kScopeEnvironment = 1;
constexpr int kScopeGeometry = 2;

class CParamArray
{
public:
    explicit CParamArray(std::size_t capacity) : data(capacity) {}
    virtual ~CParamArray() = default;
    CParamArray(const CParamArray&) = delete;
    CParamArray& operator=(const CParamArray&) = delete;

    float Value(int index = 0) const { return data[static_cast<std::size_t>(index)]; }
    void Set(float value) { data[0] = value; }
    void Set(int index, float value) { data[static_cast<std::size_t>(index)] = value; }
    void Fill(float value) { std::fill(data.begin(), data.end(), value); }

    /// Counts and option indices are floats too: the integer in one, by truncation.
    int Integer(int index = 0) const { return Truncated(Value(index)); }
    /// A count that is used to index arrays of `capacity` slots: never less than 0 and never more than fits.
    int Count(int capacity, int index = 0) const { return std::clamp(Integer(index), 0, capacity); }
    int Capacity() const { return static_cast<int>(data.size()); }

    std::string name;
    int unit = kUnitMetric;
    int scope = kScopeBoth;
    float min = 0;
    float max = 0;
    std::vector<float> data; ///< never resized
    int changed = 0;         ///< 1 once a form has changed the value since the last reset
};
