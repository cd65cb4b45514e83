// The words that stand for option flags in the engine's input.
#pragma once

#include <array>

/// The words of a flag's values from 0 on, and the word of every other value.
struct CEngineWords
{
    std::array<const char*, 8> Words;
    const char* Other;

    /// Compares the flag as "%.0f" writes it, so that 0.3 is a 0; an unset flag has the other word.
    const char* Of(float flag) const;
};

constexpr CEngineWords kUnitWords{{"BRITISH"}, "METRIC"};
constexpr CEngineWords kWaterWords{{"SALT"}, "FRESH"};
constexpr CEngineWords kSpeedCorrectionWords{{"NOSPEEDCOR", "BOWSPEEDCOR"}, "SPEEDCOR"};
constexpr CEngineWords kSwellCorrectionWords{{"NOSWELLCOR", "BOWSWELLCOR"}, "SWELLCOR"};
constexpr CEngineWords kRaoWords{{"NORAO", "MOTION"}, "MODAMP"};
constexpr CEngineWords kLoadWords{{"LOAD", "NOLOAD"}, "LOAD"};
constexpr CEngineWords kHydroMethodWords{{"CONFORMAL"}, "BOUND2D"};
constexpr CEngineWords kEndEffectWords{{"NOHYEND", "SWAYYAW", "LAT", "LONG"}, "LATLONG"};
constexpr CEngineWords kLowFrequencyWords{{"NOHVCOR"}, "HVCOR"};
constexpr CEngineWords kSpectrumWords{{"REGULAR", "QUADRATIC", "BRETSCHNEIDER", "JONSWAP", "OCHIHUBBLE",
                                       "INPUTUNI", "TENPARAMETER", "ODGPHINDCAST"},
                                      "INPUTDIR"};
constexpr CEngineWords kMetacentreWords{{"GMCOMP"}, "GMINPUT"};
constexpr CEngineWords kRollRadiusWords{{"WETROLLNF", "DRYROLLRG"}, "WETROLLRG"};
constexpr CEngineWords kHullWords{{"OFFSETS"}, "BEAMDRAFT"};
constexpr CEngineWords kTrimWords{{"DRAFT"}, "DISP"};
constexpr CEngineWords kSlamWords{{"NOSLAM", "SLAMFORM", "SLAMOFFSET", "SLAMWEDGE", "DECKWET"}, "EMERGE"};
constexpr CEngineWords kInterruptionWords{{"NOMII"}, "MII"};
constexpr CEngineWords kStabilizerWords{{"NOSTAB", "FIN"}, "UTUBETANK"};
