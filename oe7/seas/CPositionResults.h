// Motions, wetness, slamming, interruptions and sickness at a position on board.
#pragma once

#include "oe7/hull/CHullCondition.h"
#include "oe7/seas/Statistics.h"

namespace oe7
{

/// Form factor and effective width (m) of the impact pressure; 0 and 0 for positions without slamming.
struct CSlamForm
{
    double FormFactor = 0;
    double Width = 0;
};
/// Given, of a wedge (Wagner 1932), or of offsets (Ochi and Motter 1973). 0 and 0 also for shapes that have
/// none: a deadrise outside 0 to 90 degrees, offsets without breadth or area at the load height.
CSlamForm SlamForm(const CPosition& position);

/// Geometry of a position at a speed, metres.
struct CPositionGeometry
{
    double X = 0, Z = 0;  ///< from G
    double Draft = 0;     ///< of the section, at rest; of the point where there is no section
    double Freeboard = 0; ///< of the deck, at rest
    double Depth = 0;     ///< of the point, at rest
    double Rise = 0;      ///< of the water at speed

    double DraftAtSpeed() const { return Draft + Rise; }
    double FreeboardAtSpeed() const { return Freeboard - Rise; }
    double DepthAtSpeed() const { return Depth + Rise; }
};
/// Speed in m/s. The rise of the water at speed is a rule of thumb, its error up to half its size.
CPositionGeometry PositionGeometry(const CInput& input, const CHullCondition& hull, const CPosition& position,
                                   double speed);

/// At one heading. Metres, seconds, radians, newtons, pascals; accelerations m/s2.
struct CPositionAtHeading
{
    static constexpr int kLocalCount = 21;
    /// RMS: 0-2 vertical displacement, velocity, acceleration; 3-5 lateral; 6-8 longitudinal; 9-11 relative
    /// vertical; 12 lateral force estimator, 13 its rate; 14 longitudinal, 15 its rate; 16-18 wave elevation,
    /// its velocity and acceleration; 19, 20 zero-crossing periods of the vertical and the relative motion.
    std::array<double, kLocalCount> Local{};

    double LateralCount = 0, LongitudinalCount = 0; ///< interruptions in the given time
    double Incidence = 0;                           ///< percent, of sickness
    double Exposure = 0;                            ///< hours

    double DeckProbability = 0, DeckRate = 0; ///< per hour
    double KeelProbability = 0, KeelRate = 0;
    double EmergenceProbability = 0, EmergenceRate = 0; ///< of the point
    double SlamProbability = 0, SlamRate = 0;
    double ExpectedPressure = 0, ExtremePressure = 0; ///< Pa
    double ExpectedForce = 0, ExtremeForce = 0;       ///< N/m
};

/// At a speed in m/s. Only what the position asks for is found besides the local values; no value is infinite
/// or not a number.
CPositionAtHeading EvaluatePosition(const CInput& input, const CHullCondition& hull,
                                    const CPosition& position, double speed,
                                    const CHeadingResponse& response);

/// How often something of Rayleigh distributed height is above h (m): displacement and velocity RMS in m and
/// m/s.
struct CExceedance
{
    double Probability = 0; ///< of one oscillation
    double Rate = 0;        ///< per hour
};
CExceedance Exceedance(double h, double displacement, double velocity);

/// Sickness after McCauley and O'Hanlon 1976: percent, of an RMS acceleration in g, its mean frequency in Hz
/// and the time in hours.
double McCauleyIncidence(double acceleration, double frequency, double hours);
/// The hours at which the incidence is largest before people get used to it.
double WorstExposure(double acceleration, double frequency);
/// The weighting of vertical acceleration for sickness, ISO 2631-1, at a frequency in Hz.
double SicknessWeighting(double frequency);
double SquaredSicknessWeighting(double frequency);

} // namespace oe7
