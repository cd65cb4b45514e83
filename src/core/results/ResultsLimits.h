// The largest dimensions of a results file. A count beyond them is an error of the file.
#pragma once

#include "core/project/PlainFields.h"

#include <cstddef>
#include <limits>

constexpr int kMaxHeadings = kMaxSeaDirections;
constexpr int kMaxFrequencies = 60;
constexpr int kMaxLoadStations = kMaxStations;
constexpr int kMotionModes = 8; ///< surge, sway, heave, roll, pitch, yaw, rudder, fin or tank
constexpr int kLoadComponents = 5;
constexpr int kRmsKinds = 3; ///< displacement, velocity, acceleration
constexpr int kLocalQuantities = 21;
constexpr float kGreatestReportedHeading = 180.0F; ///< degrees: headings above have no data per frequency
/// Places in a results file are 32-bit integers.
constexpr std::size_t kLargestResultsFile = std::numeric_limits<int>::max();

/// Spectra, by their place in the list of keywords.
enum ESpectrumKind
{
    kSpectrumUnknown = -1,
    kSpectrumRegular,
    kSpectrumQuadratic,
    kSpectrumBretschneider,
    kSpectrumJonswap,
    kSpectrumOchiHubble,
    kSpectrumMeasuredUnidirectional,
    kSpectrumTenParameter,
    kSpectrumHindcast,
    kSpectrumMeasuredDirectional
};

/// The spectra that bring their own sea directions.
constexpr bool IsDirectional(int spectrumKind)
{
    return spectrumKind >= kSpectrumTenParameter && spectrumKind <= kSpectrumMeasuredDirectional;
}
