// Variances of responses in irregular waves (St. Denis and Pierson 1953).
#pragma once

#include "oe7/motion/CMotions.h"

#include <cmath>
#include <vector>

namespace oe7
{

/// What one component direction brings to a reported heading: at every refined frequency the wave, the true
/// encounter frequency (signed), the energy with its integration weight, the motions per unit wave amplitude.
struct CComponentResponse
{
    std::vector<CWave> Waves;
    std::vector<double> Encounter; ///< w_e, rad/s, true, signed
    std::vector<double> Energy;    ///< E_ij(w) times the trapezium weight, m2
    std::vector<CMotionVector> Motions;

    int Count() const { return static_cast<int>(Waves.size()); }
};

/// All components of one reported heading in one seaway at one speed.
using CHeadingResponse = std::vector<CComponentResponse>;

/// The value, or 0 in place of one that isn't a number or isn't finite.
inline double FiniteOrZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

/// |w_e|^n energy of one wave, n = 0, 2, 4, 5: what the moments of all responses to it share.
struct CWaveMoments
{
    double E0 = 0, E2 = 0, E4 = 0, E5 = 0;

    CWaveMoments(double encounter, double energy)
    {
        const double square = encounter * encounter;
        E0 = energy;
        E2 = square * energy;
        E4 = square * E2;
        E5 = std::abs(encounter) * E4;
    }
};

/// Spectral moments over the encounter frequency of a response r: sums of |r|^2 |w_e|^n energy.
struct CMoments
{
    double M0 = 0, M2 = 0, M4 = 0, M5 = 0;

    void Add(double squared, const CWaveMoments& wave)
    {
        M0 += squared * wave.E0;
        M2 += squared * wave.E2;
        M4 += squared * wave.E4;
        M5 += squared * wave.E5;
    }
    void Add(double squared, double encounter, double energy)
    {
        Add(squared, CWaveMoments(encounter, energy));
    }
    double Displacement() const; ///< RMS; as all others finite, 0 without energy
    double Velocity() const;
    double Acceleration() const;
    double ZeroCrossingPeriod() const; ///< s; 0 if there is no velocity
};

/// RMS displacement, velocity, acceleration of all modes: m and rad, per second, per second squared.
using CModeRms = std::array<std::array<double, kModes>, 3>;
CModeRms RmsOfModes(const CHeadingResponse& response);

} // namespace oe7
