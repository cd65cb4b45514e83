// How much the engine takes in one run. The front end's own limits are lower; what is more than these is
// taken for a slip in the file before memory is spent on it.
#pragma once

namespace oe7
{

constexpr int kMostStations = 101;
constexpr int kMostOffsets = 100; ///< points of one station
constexpr int kMostFrequencies = 60;
constexpr int kMostDirections = 360;
constexpr int kMostSpeeds = 100;
constexpr int kMostSeaways = 100;
constexpr int kMostLoadStations = 101;
constexpr int kMostPositions = 100;
constexpr int kMostSlamOffsets = 101;
constexpr int kMostKeelPairs = 20;
constexpr int kMostFoilPairs = 20;
constexpr int kMostSpectrumPoints = 1000;
constexpr int kMostGainLines = 10000;

// What follows is about a minute of work each, or some hundred megabytes. Directions are those of component
// waves, frequencies the computed ones, places the positions, load stations and the centre of gravity.
constexpr double kMostWaves = 1e6;      ///< speeds x directions x frequencies
constexpr double kMostTransfers = 1e6;  ///< directions x frequencies x places
constexpr double kMostResponses = 5e6;  ///< speeds x directions x frequencies of the output x places
constexpr double kMostSeaResults = 1e6; ///< speeds x seaways x headings x places
constexpr double kMostSummands = 1e9;   ///< the same x directions of one sea x frequencies

constexpr double kLargestNumber = 1e9;      ///< of any kind, in any file
constexpr double kShortestShip = 0.001;     ///< m
constexpr double kLowestFrequency = 0.001;  ///< rad/s, of waves
constexpr double kHighestFrequency = 100.0; ///< rad/s, of waves

} // namespace oe7
