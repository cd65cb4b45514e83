// Lifting surfaces: rudder, skeg, foils and roll fins as flat blades (Whicker and Fehlner 1958 for the lift
// slope).
#pragma once

#include "oe7/hull/CHullCondition.h"

#include <Eigen/Core>

#include <complex>

namespace oe7
{

using Complex = std::complex<double>;
/// Modes surge, sway, heave, roll, pitch, yaw at 0..5.
using CVector6 = Eigen::Matrix<double, 6, 1>;
using CComplexVector6 = Eigen::Matrix<Complex, 6, 1>;
using CMatrix6 = Eigen::Matrix<double, 6, 6>;
using CComplexMatrix6 = Eigen::Matrix<Complex, 6, 6>;
using CComplexRow6 = Eigen::Matrix<Complex, 1, 6>;

/// Cosine and sine of an angle in degrees: exactly 0, 1, -1 at multiples of 90.
double CosineOfDegrees(double degrees);
double SineOfDegrees(double degrees);

/// A flat blade or a skeg.
struct CBlade
{
    Eigen::Vector3d Centre = Eigen::Vector3d::Zero(); ///< m from G
    Eigen::Vector3d Normal = Eigen::Vector3d::Zero();
    double Area = 0;                  ///< m2
    double LiftSlope = 0;             ///< per rad
    double FlowFactor = 1;            ///< inflow to ship speed
    double AddedMass = 0;             ///< kg, along the normal
    CVector6 Mode = CVector6::Zero(); ///< N: normal velocity per velocity of each mode

    double Arm() const { return Mode(3); }
    /// D: normal force per normal velocity at a speed (m/s), N s/m.
    double LiftDamping(double density, double speed) const;
    /// Normal force per angle, N/rad.
    double LiftForce(double density, double speed) const;
};

enum class ESurface
{
    Rudder,
    Skeg,
    Foils,
    Fins
};

/// The blades of a rudder, the skeg, or one pair.
struct CSurface
{
    ESurface Kind = ESurface::Rudder;
    int Pair = 0; ///< from 0, of foils and fins
    std::vector<CBlade> Blades;
};

/// All of the ship, in the order rudder, skeg, foil pairs, fin pairs.
std::vector<CSurface> FindSurfaces(const CInput& input, const CHullCondition& hull);

/// What surfaces add to the left side of the equations: added mass, damping and, from the inflow of a ship
/// that is turned, stiffness.
struct CSurfaceForces
{
    CMatrix6 AddedMass = CMatrix6::Zero();
    CMatrix6 Damping = CMatrix6::Zero();
    CMatrix6 Stiffness = CMatrix6::Zero();
};
/// Of all surfaces at a speed in m/s.
CSurfaceForces SurfaceForces(const std::vector<CSurface>& surfaces, double density, double speed);

/// A regular wave that a ship meets: unit amplitude, crest at G at t = 0.
struct CWave
{
    double Frequency = 0;  ///< w0, rad/s
    double WaveNumber = 0; ///< 1/m
    double Cosine = 0;     ///< of the sea direction; exactly 0, 1, -1 at multiples of 90 degrees
    double Sine = 0;

    CWave() = default;
    /// A direction in degrees: 180 head seas, 90 waves that travel to port.
    CWave(double frequency, double direction);
    /// w0 - k U cos(beta), rad/s, signed, at a speed in m/s.
    double EncounterFrequency(double speed) const { return Frequency - WaveNumber * speed * Cosine; }
};

/// Normal velocity of the undisturbed wave at a blade per unit amplitude, 1/s; zG the height of G above the
/// water (m).
Complex WaveNormalVelocity(const CBlade& blade, const CWave& wave, double zG);
/// Of all surfaces per unit wave amplitude.
CComplexVector6 SurfaceWaveForce(const std::vector<CSurface>& surfaces, const CWave& wave, double zG,
                                 double density, double speed);

/// Roll damping moment per roll velocity of a surface's blades together (N m s): by lift at a speed (m/s) ...
double LiftRollDamping(const CSurface& surface, double density, double speed);
/// ... and by viscous drag at a frequency w > 0 (rad/s) and roll amplitude (rad).
double ViscousRollDamping(const CSurface& surface, double density, double w, double amplitude);

} // namespace oe7
