// What a results file holds, read once into memory: head, body, control section and the input of the run.
// The calculated section behind it is walked when a report section asks for it (CalculatedSection.h).
#pragma once

#include "core/project/CProjectData.h"
#include "core/results/CHeldArray.h"
#include "core/results/ResultsLimits.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The words at fixed places in front.
struct CResultsHead
{
    std::string RunStamp; ///< as it stands, with the seconds and the year
    int SpectrumKind = kSpectrumUnknown;
    float Length = 0;
    int StationCount = 0;
    float VerticalCentreOfGravity = 0;
    float SpreadAngle = 0; ///< degrees; above 0 for short-crested seas
    int LoadStationCount = 0;
};

/// Where the sections that follow the engine's part begin, and what the trailer tells besides.
struct CResultsTrailer
{
    int SectionC = 0;
    int SectionB = 0;
    int SectionA = 0;
    std::optional<float> CalculatedGM; ///< as the file has it; there after a run with a computed GM
};

/// Section C: the words that control how the others are read.
struct CControlSection
{
    bool HasMagic = false;
    int StationNumbering = 0; ///< the project's StationOrigin when the run was completed
    float BilgeKeelCount = 0;
    float FinCount = 0;
    float FoilCount = 0;
    int PositionCount = 0;                             ///< less the centre of gravity; never negative
    std::array<int, kMaxPositions> RelMotionKind = {}; ///< truncated, as the next
    std::array<int, kMaxPositions> MiiKind = {};
    std::array<int, kMaxPositions> MsiKind = {};
    int SpeedCount = 0;
    std::vector<float> Speeds; ///< shown as knots
    int HasRudderColumn = 0;
    int HasSkegColumn = 0;
    int HasAppendageBreakdown = 0;
    // Columns of the appendage tables.
    int KeelColumns = 0;
    int FoilColumns = 0;
    int FinColumns = 0;
};

/// The engine's tables behind the head. Counts are within the limits; tables have the sizes of the counts.
struct CResultsBody
{
    std::vector<float> LoadStations;
    std::vector<float> StillWaterWeight; ///< these four: one value for each hull station, or empty
    std::vector<float> StillWaterBuoyancy;
    std::vector<float> StillWaterShear;
    std::vector<float> StillWaterMoment;
    int PositionCount = 0;
    std::vector<float> PositionStation;
    std::vector<float> PositionY;
    std::vector<float> PositionZ;
    int SpeedCount = 0; ///< as many as section C has, or more
    int HeadingCount = 0;
    std::vector<float> Headings; ///< degrees
    int SeawayCount = 0;
    std::vector<float> WaveHeights;
    std::vector<float> WavePeriods; ///< seconds
    int FreqCount = 0;
    float FirstFrequency = 0; ///< rad/s
    float FrequencyStep = 0;

    CHeldArray<4> RaoAmplitude; ///< speed, heading, mode, frequency
    CHeldArray<4> RaoPhase;
    CHeldArray<5> LoadRaoAmplitude; ///< speed, component, load station, heading, frequency
    CHeldArray<5> LoadRaoPhase;
    CHeldArray<5> RmsCg;    ///< speed, seaway, kind, mode, heading
    CHeldArray<5> RmsLocal; ///< speed, seaway, quantity, position, heading
};

/// The first words of section A.
struct CCalculatedHead
{
    float EncounterMinimum = 0; ///< rad/s; all three 0 for default encounter frequencies
    float EncounterMaximum = 0;
    float EncounterIncrement = 0;
    float InputGM = 0;
    float Draft = 0;
    float XCG = 0;
    float Displacement = 0;
    float BlockCoefficient = 0;

    struct CStation
    {
        float XCG = 0;
        float Beam = 0;
        float Draft = 0;
        float AreaCoefficient = 0;
    };
    std::vector<CStation> Stations; ///< as many as the head's station count

    struct CPosition
    {
        float Station = 0;
        float X = 0; ///< only in a file with the magic
        float Y = 0;
        float ZFromBaseline = 0;
        float ZFromCG = 0;
        float Draft = 0;
        float Freeboard = 0;
        std::optional<float> FormFactor;
        std::optional<float> EffectiveWidth;
    };
    std::vector<CPosition> Positions; ///< as many as the body's position count, at most kMaxPositions

    std::optional<float> Duration;   ///< hours; there if some position has slamming
    std::optional<float> Exceedence; ///< slamming exceedence parameter
};

struct CResults
{
    CResultsHead Head;
    CResultsTrailer Trailer;
    CControlSection Control;
    CResultsBody Body;
    CCalculatedHead Calculated;
    std::string ProjectTitle; ///< these three up to their first blank
    std::string GeometryFile;
    std::string EnvironmentFile;
    /// The input of the run with the values of the file as they stand, so in the units of the run; a label or
    /// file name is cut at its first blank. Its NPOS counts the centre of gravity as the project's does.
    std::unique_ptr<CProjectData> Input = std::make_unique<CProjectData>();
    std::string Bytes;           ///< the whole file
    std::size_t SpeedBlocks = 0; ///< where the speed blocks of section A begin in it
};

/// Reads a results file out of its bytes. Throws CResultsError for anything that can't be.
CResults ReadResults(std::string bytes);

/// Headings of at most 180 degrees: those with data per frequency.
int HeadingsTo180(const CResultsBody& body);
/// Sea state from a significant wave height in metres: 1 to 9.
int SeaState(double height);
