// What the engine is asked: the ship, the sea and what is wanted of them, as read from the engine's input
// file. All in SI: metres, kilograms, seconds; angles in degrees and speeds in knots where a comment says so.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace oe7
{

constexpr double kGravity = 9.81;         ///< m/s2
constexpr double kKnot = 0.514444;        ///< m/s
constexpr double kFoot = 0.3048;          ///< m
constexpr double kTonne = 1000;           ///< kg
constexpr double kLongTon = 1016.0469;    ///< kg
constexpr double kPoundForce = 4.4482216; ///< N

/// The 24 directions of directional spectra, and of the ship's courses in them, are 15 degrees apart.
constexpr int kCompassDirections = 24;
constexpr double kCompassStep = 15.0; ///< degrees

/// Into how many parts a step of the wave frequencies (rad/s) is divided, so that those computed are at most
/// 0.025 rad/s apart. A step that is a whole number of these isn't divided further by its rounding.
int RefinedParts(double step);

enum class EUnits
{
    British,
    Metric
};

enum class EWater
{
    Salt,
    Fresh
};

/// Where a rule of thumb for the rise of the water is applied.
enum class EWaterRise
{
    None,
    Bow,
    Everywhere
};

enum class ERaoTables
{
    None,
    Motion,
    MotionAndDamping
};

enum class ESectionMethod
{
    BoundaryElement,
    ConformalMapping
};

/// Which end terms of the strip theory are taken at the aftmost station.
struct CEndTerms
{
    bool Vertical = false; ///< heave and pitch
    bool Sway = false;     ///< sway and yaw
    bool Roll = false;

    bool operator==(const CEndTerms&) const = default;
};

enum class ESpectrum
{
    Regular,
    Quadratic,
    Bretschneider,
    Jonswap,
    OchiHubble,
    Points, ///< INPUTUNI
    TenParameter,
    Hindcast,   ///< ODGPHINDCAST
    Directional ///< INPUTDIR
};

/// One system of an Ochi-Hubble or ten parameter spectrum. Values of 0 or less make it empty.
struct COchiHubbleSystem
{
    double Height = 0;        ///< m, significant
    double PeakFrequency = 0; ///< rad/s
    double Lambda = 0;
    double Direction = 0;      ///< degrees, compass, from; ten parameter spectrum only
    double SpreadingPower = 0; ///< p of cos^2p; ten parameter spectrum only
};

struct CSeaway
{
    double Height = 0;          ///< m, significant
    double Period = 0;          ///< s
    double PeakEnhancement = 0; ///< JONSWAP
    std::array<COchiHubbleSystem, 2> Systems{};
};

/// A spectrum given by points, sorted by frequency.
struct CPointSpectrum
{
    std::vector<double> Frequencies; ///< rad/s
    std::vector<double> Densities;   ///< m2/(rad/s)
};

/// A directional spectrum given by points, frequencies sorted upward.
struct CDirectionalSpectrum
{
    std::vector<double> Frequencies;            ///< rad/s
    std::vector<double> Directions;             ///< degrees, compass, from
    std::vector<std::vector<double>> Densities; ///< [frequency][direction], m2/(rad/s rad)
};

enum class ERollInertia
{
    WetFrequency, ///< roll natural frequency in water, rad/s
    DryRadius,    ///< m
    WetRadius     ///< m
};

/// A station's section by points from the keel up, factors applied.
struct COffsets
{
    std::vector<double> Y; ///< m, half breadths
    std::vector<double> Z; ///< m above the baseline
};

/// A station's section by its main dimensions, factors applied.
struct CSectionDimensions
{
    double Beam = 0;        ///< m
    double Draft = 0;       ///< m
    double Coefficient = 0; ///< area/(beam draft)
};

/// A mass beyond one of the end stations.
struct COverhang
{
    double Mass = 0;        ///< kg
    double Kg = 0;          ///< m above the baseline
    double RollRadius = 0;  ///< m
    double Distance = 0;    ///< m, of its centre ahead of station 0, or behind the last station
    double PitchRadius = 0; ///< m
};

struct CMassDistribution
{
    std::vector<double> Masses;     ///< kg, one per station
    std::vector<double> Kg;         ///< m above the baseline, one per station
    std::vector<double> RollRadius; ///< m, one per station
    COverhang Bow;
    COverhang Stern;
};

enum class EWaterEvent
{
    None,
    SlamForm,
    SlamOffset,
    SlamWedge,
    DeckWetness,
    Emergence
};

enum class ESickness
{
    None,
    BureauVeritas,
    Colwell
};

/// A place on board. Station numbers are counted from the forward perpendicular, fractions and numbers
/// outside the stations allowed.
struct CPosition
{
    std::string Label;
    EWaterEvent Event = EWaterEvent::None;
    bool Interruptions = false;
    ESickness Sickness = ESickness::None;
    double Station = 0;
    double Y = 0;          ///< m, to port
    double Height = 0;     ///< m above the baseline
    double DeckHeight = 0; ///< m above the baseline
    double FormFactor = 0;
    double Width = 0;          ///< m
    double LoadHeight = 0;     ///< m, of the slam offsets
    std::vector<double> SlamY; ///< m
    std::vector<double> SlamZ; ///< m
    double Deadrise = 0;       ///< degrees
    double WedgeHeight = 0;    ///< m
    double LateralTipping = 0;
    double LongitudinalTipping = 0;
    double InterruptionTime = 0; ///< s
    double Exposure = 0;         ///< hours; 0: the time of the largest incidence
};

struct CKeelSegment
{
    double Forward = 0; ///< station
    double Aft = 0;     ///< station
    double Y = 0;       ///< m
    double Z = 0;       ///< m above the baseline
    double Breadth = 0; ///< m
};

/// One pair of bilge keels, segments in the order of the file.
using CKeelPair = std::vector<CKeelSegment>;

struct CSkeg
{
    double AftStation = 0;
    double Breadth = 0; ///< m, depth below the hull
    double Length = 0;  ///< m
};

/// A blade: the rudder, or the port one of a pair.
struct CFoil
{
    double Station = 0;
    double Y = 0;         ///< m, root
    double Z = 0;         ///< m above the baseline, root
    double Span = 0;      ///< m
    double RootChord = 0; ///< m
    double TipChord = 0;  ///< m
    double LiftSlope = 0; ///< per rad; 0 or less: computed
    double Dihedral = 0;  ///< degrees above the horizontal, port side
    bool Slipstream = false;
};

/// Gains on the acceleration, the velocity and the motion itself.
struct CGains
{
    double Acceleration = 0;
    double Velocity = 0;
    double Motion = 0;
};

/// A second-order servo. A frequency of 0 or less: it follows at once.
struct CServo
{
    double Frequency = 0; ///< rad/s
    double Damping = 0;   ///< fraction of critical
};

struct CRudderGains
{
    CGains Roll;        ///< rad per rad (rad/s, rad/s2)
    double LowCut = 0;  ///< rad/s
    double HighCut = 0; ///< rad/s
    CGains Yaw;
    CGains Lateral; ///< rad per m (m/s, m/s2)
};

struct CFinGains
{
    CGains Roll;
    double HighCut = 0; ///< rad/s
    CGains Yaw;
};

/// One line of a gain file.
template <class Gains>
struct CGainCondition
{
    double Speed = 0;   ///< knots
    double Heading = 0; ///< degrees, 0 to 180; negative: any
    Gains Values;
};

/// Gains of one set for all conditions, or of the nearest line of a file.
template <class Gains>
struct CGainSchedule
{
    Gains Fixed;
    std::vector<CGainCondition<Gains>> Conditions; ///< empty: the fixed ones

    /// The gains of the nearest speed (knots) and then of the nearest heading (degrees, folded to 0..180).
    const Gains& At(double speed, double heading) const;
};

struct CRudder
{
    CFoil Blade;
    CGainSchedule<CRudderGains> Gains;
    CServo Servo;
    bool GainsAtG = true;
    double LateralStation = 0; ///< of the point of the lateral gains, if not G
    double LateralHeight = 0;  ///< m above the baseline
};

struct CFins
{
    std::vector<CFoil> Pairs;
    CGainSchedule<CFinGains> Gains;
    CServo Servo;
};

struct CUTubeTank
{
    double Length = 0;      ///< m, along the ship
    double DuctWidth = 0;   ///< m
    double LegWidth = 0;    ///< m, at the bottom
    double FluidDepth = 0;  ///< m
    double Inclination = 0; ///< degrees, of the outer walls
    double DuctHeight = 0;  ///< m
    double Height = 0;      ///< m, of the duct's bottom above the baseline
    double Station = 0;
    double SpecificGravity = 0;
    double HighResistance = 0; ///< at and above the break frequency
    double ZeroResistance = 0; ///< at frequency 0
    double BreakFrequency = 0; ///< rad/s
};

struct CInput
{
    std::string Title;
    EUnits InputUnits = EUnits::Metric;
    EUnits OutputUnits = EUnits::Metric;
    EWater Water = EWater::Salt;
    EWaterRise SpeedCorrection = EWaterRise::None;
    EWaterRise SwellCorrection = EWaterRise::None;
    ERaoTables RaoTables = ERaoTables::None;
    std::string BinaryFile;
    bool Loads = false;

    double LowestFrequency = 0; ///< rad/s, waves
    double FrequencyStep = 0;   ///< rad/s
    int FrequencyCount = 0;     ///< 60 at most

    ESectionMethod Method = ESectionMethod::BoundaryElement;
    CEndTerms EndTerms;
    bool HeaveCorrection = false; ///< in low frequencies
    /// Lowest, highest, step of the grid on which sections are solved, rad/s, as given; three zeros: default.
    std::array<double, 3> Grid{};

    ESpectrum Spectrum = ESpectrum::Bretschneider;
    double SpreadingAngle = 0;      ///< degrees; 0 for directional spectra and REGULAR
    std::vector<double> Directions; ///< degrees, sea directions as given; empty for directional spectra
    double Steepness = 0;           ///< H/lambda, REGULAR
    /// One per seaway. For spectra from a file all are alike, and so they are for REGULAR.
    std::vector<CSeaway> Seaways;
    CPointSpectrum Points;
    CDirectionalSpectrum DirectionalPoints;

    std::vector<double> Speeds; ///< knots
    double Length = 0;          ///< m, between perpendiculars
    double Kg = 0;              ///< m
    double PitchRadius = 0;     ///< m, always positive: a quarter of the length if not given
    std::optional<double> Gm;   ///< m, if given
    ERollInertia RollInertia = ERollInertia::DryRadius;
    double RollValue = 0; ///< rad/s or m

    int StationCount = 0;
    std::vector<COffsets> Offsets;              ///< one per station, or
    std::vector<CSectionDimensions> Dimensions; ///< one per station
    bool ByDisplacement = false;
    double Draft = 0;              ///< m at midship
    double Trim = 0;               ///< m by the stern
    double Displacement = 0;       ///< kg
    double CentreFromStation0 = 0; ///< m, LCG aft of station 0

    std::vector<double> LoadStations; ///< empty without loads
    CMassDistribution Masses;         ///< with loads

    double Hours = 0;
    double Exceedance = 0; ///< the exceedence parameter
    std::vector<CPosition> Positions;

    std::vector<CKeelPair> BilgeKeels;
    std::optional<CSkeg> Skeg;
    std::optional<CRudder> Rudder;
    std::vector<CFoil> FoilPairs;
    std::optional<CFins> Fins;
    std::optional<CUTubeTank> Tank;

    bool IsDirectional() const
    {
        return Spectrum == ESpectrum::TenParameter || Spectrum == ESpectrum::Hindcast ||
               Spectrum == ESpectrum::Directional;
    }
    double Density() const { return Water == EWater::Salt ? 1025.0 : 1000.0; }         ///< kg/m3
    double Viscosity() const { return Water == EWater::Salt ? 1.1883e-6 : 1.1386e-6; } ///< m2/s
};

} // namespace oe7
