// A calculation as the engine's files tell of it, in few words, and those files for it. Stands for the engine
// in tests: what is in the files is made up, see EngineNumbers.h, but stands where the engine puts it.
#pragma once

#include "core/project/CProjectData.h"
#include "core/results/ResultsLimits.h"

#include <array>
#include <string>
#include <vector>

/// A place whose motions are calculated. Lengths in the output system.
struct CEnginePosition
{
    std::string Label;
    float Station = 0;
    float Y = 0;
    float Z = 0;        ///< above the baseline
    int MotionKind = 0; ///< as RELMOCALC: 0 none, 1 to 3 slamming, 4 deck wetness, 5 emergence
    bool Interruptions = false;
    bool Sickness = false;
    bool BureauVeritas = false;   ///< formulation of the sickness, else Colwell's
    bool LongestExposure = false; ///< the engine chooses the exposure, with the largest incidence
    float Exposure = 4;           ///< hours
};

/// Height in the output system, period in seconds.
struct CEngineSeaway
{
    float Height = 0;
    float Period = 0;
};

struct CEngineRun
{
    std::string Title = "Made up ship";
    std::string Stamp = "Fri Nov 20 17:31:18 2026";
    bool MetricInput = true;
    bool Metric = true; ///< output system
    int Spectrum = kSpectrumBretschneider;
    float SpreadAngle = 0; ///< degrees
    float Length = 120;
    float KeelToGravity = 5.6F;
    int StationCount = 11;
    bool Loads = false;
    std::vector<float> LoadStations; ///< looked at with `Loads` only
    float Hours = 20;
    float Exceedence = 0.01F;
    std::vector<CEnginePosition> Positions;
    std::vector<float> Speeds;   ///< knots
    std::vector<float> Headings; ///< degrees; what the body holds
    std::vector<CEngineSeaway> Seaways;
    float FirstFrequency = 0.2F; ///< rad/s
    float FrequencyStep = 0.1F;
    int FrequencyCount = 19;
    std::array<float, 3> EncounterFrequencies{}; ///< zeros for the engine's own
    int OutputLevel = 2;                         ///< 0 no tables, 1 motions, 2 roll damping too
    bool MetacentreGiven = false;
    float GivenMetacentre = 0; ///< in the input system
    bool Rudder = false;
    bool Skeg = false;
    int KeelPairs = 0;
    int FoilPairs = 0;
    int FinPairs = 0;

    // What the engine's fixed columns do to large numbers: at this place among the frequencies, in each table
    // of motions, the encounter frequency reads "0.123*******", or has run together with the wavelength
    // ratio.
    int OverflowAt = -1;
    int RunTogetherAt = -1;

    bool Regular() const { return Spectrum == kSpectrumRegular; }
    bool Directional() const { return IsDirectional(Spectrum); }
    int PositionCount() const { return static_cast<int>(Positions.size()); }
    int SpeedCount() const { return static_cast<int>(Speeds.size()); }
    int HeadingCount() const { return static_cast<int>(Headings.size()); }
    int SeawayCount() const { return static_cast<int>(Seaways.size()); }
    int LoadStationCount() const { return Loads ? static_cast<int>(LoadStations.size()) : 0; }
    /// Columns of the tables of lift, or of viscous damping, that belong to a part of the ship.
    int LiftColumns() const { return (Rudder ? 1 : 0) + (Skeg ? 1 : 0) + KeelPairs + FoilPairs + FinPairs; }
    int ViscousColumns() const { return LiftColumns() - (Skeg ? 1 : 0); }
};

/// The run that the engine makes of a project's input.
CEngineRun EngineRunOf(const CProjectData& project);
/// The run of the project of FillToLargestRun.
CEngineRun LargestEngineRun();

/// The binary file, end mark included.
std::string EngineBinary(const CEngineRun& run);
/// The printed listing.
std::string EngineListing(const CEngineRun& run);
/// The log of a run without problems; or, with texts, of one with warnings.
std::string EngineLog(const CEngineRun& run, const std::vector<std::string>& warnings = {});
/// The log of a run that failed.
std::string EngineErrorLog(const CEngineRun& run, const std::string& error);
/// The table of hydrodynamic coefficients, and that of wave forces.
std::string EngineCoefficientTable(const CEngineRun& run);
std::string EngineWaveForceTable(const CEngineRun& run);

/// A listing without the lines that hold a marker.
std::string WithoutMarker(const std::string& listing, const std::string& marker);
/// The first lines of a listing.
std::string FirstLines(const std::string& listing, int count);
/// A text with a carriage return at each line's end.
std::string WithCarriageReturns(const std::string& text);
/// A binary file without its end mark.
std::string WithoutEndMark(const std::string& binary);
