// The fields of a project that are no keyword fields, grouped by what resets them.
#pragma once

#include "core/project/CParamArray.h"
#include "core/project/PlainFieldList.h"
#include "core/project/Sentinels.h"

#include <array>
#include <string>
#include <vector>

constexpr int kMaxSeaways = 10;
constexpr int kMaxSeaDirections = 36;
constexpr int kMaxSpeeds = 10;
constexpr int kMaxStations = 21;
constexpr int kMaxOffsets = 60; ///< per station
constexpr int kMaxPositions = 10;
constexpr int kMaxSlamOffsets = 11; ///< per seakeeping position
constexpr int kMaxBilgeKeelPairs = 5;
constexpr int kMaxBilgeKeelRows = 21; ///< per bilge keel pair
constexpr int kMaxFoilPairs = 4;
constexpr int kMaxFinPairs = 4;

constexpr float kDefaultMsiExposure = 4.0F; ///< hours
constexpr float kVerticalDihedral = -90.0F; ///< degrees: a rudder that hangs straight down

using CTenFloats = std::array<float, 10>;
using CTenInts = std::array<int, 10>;
using CTenTexts = std::array<std::string, 10>;
using CThreeFloats = std::array<float, 3>;
using CThreeInts = std::array<int, 3>;
using CStationFloats = std::array<float, kMaxStations>;
/// Indices into the tables of a results file.
using CSelection = std::vector<int>;

/// State of the Seakeeping Summary form.
struct CSummaryValues
{
    std::array<float, 2> Numbers = {kNotGiven, kNotGiven};
    int Choice = -1;
    std::array<std::string, 3> Texts;
    int Position = -1;
};

/// An array with the same value in each slot.
template <std::size_t Count>
constexpr std::array<float, Count> Slots(float value)
{
    std::array<float, Count> slots = {};
    slots.fill(value);
    return slots;
}

#define DECLARE_FIELD(type, name, initial) type name = initial;

struct CFileFields
{
    FILE_FIELDS(DECLARE_FIELD)
};

struct CEnvironmentFields
{
    ENVIRONMENT_FIELDS(DECLARE_FIELD)
};

struct CGeometryFields
{
    GEOMETRY_FIELDS(DECLARE_FIELD)
};

struct CFormFields
{
    FORM_FIELDS(DECLARE_FIELD)
};

struct CSessionFields
{
    SESSION_FIELDS(DECLARE_FIELD)
};

/// Whether a section's required values are all present: 0 or 1.
struct CCompletenessFlags
{
#define COMPLETENESS(name) int name = 0;
#include "core/project/CompletenessFlags.def"
#undef COMPLETENESS
};

#undef DECLARE_FIELD
