// Radiation and wave exciting forces of the hull after Salvesen, Tuck and Faltinsen 1970. Axes at G: x
// forward, y to port, z up; time factor exp(iwt); modes surge, sway, heave, roll, pitch, yaw at 0..5.
#pragma once

#include "oe7/motion/CSurfaces.h"
#include "oe7/section/CSectionPotentials.h"

namespace oe7
{

/// The bound of the encounter frequency, 0.3 sqrt(g/L) (rad/s), below which equations and forces aren't
/// evaluated.
double LowestEvaluated(double length);
/// A signed encounter frequency, brought up to the bound.
double EvaluatedFrequency(double encounter, double length);

/// The sectional coefficients at all stations at one signed frequency.
struct CStripCoefficients
{
    double Frequency = 0; ///< w, rad/s, signed
    Eigen::VectorXcd Z22, Z24, Z33, Z44;
};
CStripCoefficients StripCoefficients(const CSectionPotentials& potentials, double w);

/// -R = -w^2 A + iwB of the hull at a speed (m/s), surge empty; N/m, N, N m.
CComplexMatrix6 RadiationMatrix(const CHullCondition& hull, const CStripCoefficients& strips, double speed,
                                const CEndTerms& endTerms);

/// Forces per length and unit wave amplitude at every station (N/m2, N/m): Froude-Krylov F and diffraction H.
struct CSectionalForces
{
    double Frequency = 0; ///< the frequency w at which the diffraction part is taken, signed
    Eigen::VectorXcd F1, F2, F3, F4;
    Eigen::VectorXcd H2, H3, H4;
};
/// psi and the factor w_e are taken at w (signed, bounded).
CSectionalForces SectionalForces(const CHullCondition& hull, const CSectionPotentials& potentials,
                                 const CWave& wave, double w);

/// Of the hull per unit wave amplitude (N/m, N) at a speed in m/s. `phase` are the rule's PhaseMoments(1, k
/// cos(beta), aft end), which don't depend on the speed.
CComplexVector6 WaveForces(const CHullCondition& hull, const CSectionalForces& sections, const CWave& wave,
                           const Eigen::MatrixXcd& phase, double speed, const CEndTerms& endTerms);

/// Added mass (kg) and damping (kg/s) of surge at a speed (m/s).
double SurgeAddedMass(const CHullCondition& hull);
double SurgeDamping(const CHullCondition& hull, double speed);

} // namespace oe7
