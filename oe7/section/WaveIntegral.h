// The wave part of the Green function of the plane (Wehausen and Laitone 1960; Frank 1967).
#pragma once

#include <complex>

namespace oe7
{

using Complex = std::complex<double>;

/// J(u) = e^u (E1(u) + i pi sgn(Im u)), sgn = +1 for a real u, for Re u <= 0, to 9 digits. J' = J - 1/u.
/// u = 0, where it is singular, gives 0.
Complex WaveIntegral(Complex u);
/// The same, with e^u at hand.
Complex WaveIntegral(Complex u, Complex exponential);

/// J of `count` values u, with e^u and ln(-u) (principal) at hand: faster by far, and fastest where
/// neighbours are of about the same size. Neighbours may change a value by its rounding.
void WaveIntegrals(int count, const Complex* u, const Complex* exponential, const Complex* logarithm,
                   Complex* result);

} // namespace oe7
