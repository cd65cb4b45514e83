// The words of the engine's input file and what they mean, for reading and for naming values.
#pragma once

#include "oe7/input/CInput.h"

#include <array>
#include <string_view>

namespace oe7
{

/// A row of a table of words.
template <class Value>
struct CMeaning
{
    std::string_view Word;
    Value Meaning;
};

inline constexpr std::array<CMeaning<EUnits>, 2> kUnitWords = {{
    {"BRITISH", EUnits::British},
    {"METRIC", EUnits::Metric},
}};

inline constexpr std::array<CMeaning<EWater>, 2> kWaterWords = {{
    {"SALT", EWater::Salt},
    {"FRESH", EWater::Fresh},
}};

inline constexpr std::array<CMeaning<EWaterRise>, 3> kSpeedCorrectionWords = {{
    {"NOSPEEDCOR", EWaterRise::None},
    {"BOWSPEEDCOR", EWaterRise::Bow},
    {"SPEEDCOR", EWaterRise::Everywhere},
}};

inline constexpr std::array<CMeaning<EWaterRise>, 3> kSwellCorrectionWords = {{
    {"NOSWELLCOR", EWaterRise::None},
    {"BOWSWELLCOR", EWaterRise::Bow},
    {"SWELLCOR", EWaterRise::Everywhere},
}};

inline constexpr std::array<CMeaning<ERaoTables>, 3> kRaoWords = {{
    {"NORAO", ERaoTables::None},
    {"MOTION", ERaoTables::Motion},
    {"MODAMP", ERaoTables::MotionAndDamping},
}};

inline constexpr std::array<CMeaning<bool>, 2> kLoadWords = {{
    {"LOAD", true},
    {"NOLOAD", false},
}};

/// Each word stands for the method that the user chose in the front end, whose choice "Boundary Element"
/// travels as CONFORMAL and whose choice "Conformal Mapping" as BOUND2D: that pairing belongs to the file's
/// format, and the engine does what the user chose. What is printed names the method in plain words, never by
/// these.
inline constexpr std::array<CMeaning<ESectionMethod>, 2> kMethodWords = {{
    {"CONFORMAL", ESectionMethod::BoundaryElement},
    {"BOUND2D", ESectionMethod::ConformalMapping},
}};

inline constexpr std::array<CMeaning<CEndTerms>, 5> kEndTermWords = {{
    {"NOHYEND", {.Vertical = false, .Sway = false, .Roll = false}},
    {"SWAYYAW", {.Vertical = false, .Sway = true, .Roll = false}},
    {"LAT", {.Vertical = false, .Sway = true, .Roll = true}},
    {"LONG", {.Vertical = true, .Sway = false, .Roll = false}},
    {"LATLONG", {.Vertical = true, .Sway = true, .Roll = true}},
}};

inline constexpr std::array<CMeaning<bool>, 2> kHeaveCorrectionWords = {{
    {"NOHVCOR", false},
    {"HVCOR", true},
}};

inline constexpr std::array<CMeaning<ESpectrum>, 9> kSpectrumWords = {{
    {"REGULAR", ESpectrum::Regular},
    {"QUADRATIC", ESpectrum::Quadratic},
    {"BRETSCHNEIDER", ESpectrum::Bretschneider},
    {"JONSWAP", ESpectrum::Jonswap},
    {"OCHIHUBBLE", ESpectrum::OchiHubble},
    {"INPUTUNI", ESpectrum::Points},
    {"TENPARAMETER", ESpectrum::TenParameter},
    {"ODGPHINDCAST", ESpectrum::Hindcast},
    {"INPUTDIR", ESpectrum::Directional},
}};

inline constexpr std::array<CMeaning<bool>, 2> kGmWords = {{
    {"GMCOMP", false},
    {"GMINPUT", true},
}};

inline constexpr std::array<CMeaning<ERollInertia>, 3> kRollInertiaWords = {{
    {"WETROLLNF", ERollInertia::WetFrequency},
    {"DRYROLLRG", ERollInertia::DryRadius},
    {"WETROLLRG", ERollInertia::WetRadius},
}};

/// Whether sections are given by their dimensions.
inline constexpr std::array<CMeaning<bool>, 2> kHullWords = {{
    {"OFFSETS", false},
    {"BEAMDRAFT", true},
}};

/// Whether the loading condition is given by its displacement.
inline constexpr std::array<CMeaning<bool>, 2> kLoadingWords = {{
    {"DRAFT", false},
    {"DISP", true},
}};

inline constexpr std::array<CMeaning<EWaterEvent>, 6> kEventWords = {{
    {"NOSLAM", EWaterEvent::None},
    {"SLAMFORM", EWaterEvent::SlamForm},
    {"SLAMOFFSET", EWaterEvent::SlamOffset},
    {"SLAMWEDGE", EWaterEvent::SlamWedge},
    {"DECKWET", EWaterEvent::DeckWetness},
    {"EMERGE", EWaterEvent::Emergence},
}};

inline constexpr std::array<CMeaning<bool>, 2> kInterruptionWords = {{
    {"NOMII", false},
    {"MII", true},
}};

inline constexpr std::array<CMeaning<ESickness>, 3> kSicknessWords = {{
    {"NOMSI", ESickness::None},
    {"MSIBV", ESickness::BureauVeritas},
    {"MSICOLWELL", ESickness::Colwell},
}};

enum class EStabilizer
{
    None,
    Fins,
    Tank
};

inline constexpr std::array<CMeaning<EStabilizer>, 3> kStabilizerWords = {{
    {"NOSTAB", EStabilizer::None},
    {"FIN", EStabilizer::Fins},
    {"UTUBETANK", EStabilizer::Tank},
}};

} // namespace oe7
