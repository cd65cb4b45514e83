// Integrals over a straight panel of the Green function of a source below the free surface and of its
// derivative along the panel's normal: exact, as differences between the panel's ends. The points of a plane
// are complex, y + iz.
#pragma once

#include "oe7/section/WaveIntegral.h"

#include <numbers>

namespace oe7
{

/// A panel from the keel's side on; its normal into the water is -i times its direction.
struct CPanelLine
{
    Complex From;
    Complex Direction; ///< of length 1
    double Length = 0; ///< m
};

/// Over the panel, of sources and of doublets (the derivative along the normal).
struct CPanelIntegral
{
    double Source = 0;
    double Doublet = 0;
};

/// Of ln|P-Q| - ln|P-conj Q|, which doesn't depend on the frequency.
CPanelIntegral LogarithmIntegral(Complex field, const CPanelLine& panel);

/// Of -2 Re J(u), u = -iK (P-conj Q), from the differences between the panel's ends of J and of J + ln(-u). K
/// in 1/m.
inline CPanelIntegral StandingWave(Complex j, Complex smooth, Complex direction, double waveNumber)
{
    return {-2 * (smooth.real() * direction.imag() + smooth.imag() * direction.real()) / waveNumber,
            2 * j.imag()};
}

/// Of 2 pi Re e^u, from the difference of e^u: the part a quarter of a period apart.
inline CPanelIntegral RadiatedWave(Complex wave, Complex direction, double waveNumber)
{
    constexpr double kTwoPi = 2 * std::numbers::pi;
    return {kTwoPi * (wave.real() * direction.imag() + wave.imag() * direction.real()) / waveNumber,
            -kTwoPi * wave.imag()};
}

} // namespace oe7
