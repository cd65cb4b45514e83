#include "oe7/section/WaveIntegral.h"

#include <Eigen/Core>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kEuler = 0.57721566490153286;
constexpr double kSeriesRadius = 12; ///< |u|, the series everywhere
constexpr double kFarRadius = 40;    ///< |u|, beyond: asymptotic; within: the series near the real axis
constexpr int kMostTerms = 160;
constexpr int kFarTerms = 20;
constexpr int kStepsPerUnit = 4; ///< of |u| in the table of term counts
constexpr int kLanes = 4;        ///< values that are summed side by side

/// 1/(n n!).
constexpr std::array<double, kMostTerms> SeriesCoefficients()
{
    std::array<double, kMostTerms> coefficients{};
    double inverseFactorial = 1;
    for (int n = 1; n < kMostTerms; ++n)
    {
        inverseFactorial /= n;
        coefficients[static_cast<std::size_t>(n)] = inverseFactorial / n;
    }
    return coefficients;
}
constexpr auto kCoefficients = SeriesCoefficients();

/// How many terms are needed until one is below 1e-17 of the largest.
constexpr int TermsNeeded(double radius)
{
    double largest = 0;
    double power = 1;
    for (int n = 1; n < kMostTerms; ++n)
    {
        power *= radius;
        const double term = power * kCoefficients[static_cast<std::size_t>(n)];
        largest = std::max(largest, term);
        if (term < 1e-17 * largest)
        {
            return n;
        }
    }
    return kMostTerms - 1;
}

constexpr auto TermTable()
{
    std::array<int, static_cast<std::size_t>(kFarRadius) * kStepsPerUnit + 1> table{};
    for (std::size_t k = 0; k < table.size(); ++k)
    {
        table[k] = TermsNeeded(static_cast<double>(k + 1) / kStepsPerUnit);
    }
    return table;
}
constexpr auto kTerms = TermTable();

using CLanes = Eigen::Array<double, kLanes, 1>;

/// sum of (-u)^n/(n n!), in each lane.
void SumSeries(const CLanes& real, const CLanes& imaginary, CLanes& sumReal, CLanes& sumImaginary)
{
    const double radius = std::sqrt((real.square() + imaginary.square()).maxCoeff());
    const int terms = kTerms[static_cast<std::size_t>(radius * kStepsPerUnit)];
    sumReal.setConstant(kCoefficients[static_cast<std::size_t>(terms)]);
    sumImaginary.setZero();
    for (int n = terms - 1; n >= 0; --n)
    {
        const CLanes next =
            kCoefficients[static_cast<std::size_t>(n)] - (real * sumReal - imaginary * sumImaginary);
        sumImaginary = -(real * sumImaginary + imaginary * sumReal);
        sumReal = next;
    }
}

bool IsInSeries(Complex u)
{
    const double square = std::norm(u);
    return square <= kSeriesRadius * kSeriesRadius ||
           (square <= kFarRadius * kFarRadius && std::abs(u.imag()) <= 0.5 * std::abs(u.real()));
}

Complex Inverse(Complex z)
{
    return std::conj(z) / std::norm(z);
}

/// sum of (-1)^n n!/u^(n+1).
Complex FarSum(Complex u)
{
    const Complex inverse = Inverse(u);
    Complex sum = 1;
    for (int n = kFarTerms - 1; n > 0; --n)
    {
        sum = 1.0 - static_cast<double>(n) * inverse * sum;
    }
    return sum * inverse;
}

/// e^u E1(u) by its continued fraction, from the front (Lentz's method).
Complex Fraction(Complex u)
{
    Complex value = u + 1.0;
    Complex c = value;
    Complex d = 0;
    for (int n = 1; n < 500; ++n)
    {
        const double a = -static_cast<double>(n) * n;
        const Complex b = u + (1.0 + 2.0 * n);
        d = Inverse(b + a * d);
        c = b + a * Inverse(c);
        const Complex factor = c * d;
        value *= factor;
        if (std::norm(factor - 1.0) < 1e-28)
        {
            break;
        }
    }
    return Inverse(value);
}

/// Outside the region of the series.
Complex BeyondSeries(Complex u, Complex exponential)
{
    const Complex jump = Complex(0, u.imag() < 0 ? -std::numbers::pi : std::numbers::pi) * exponential;
    return jump + (std::norm(u) > kFarRadius * kFarRadius ? FarSum(u) : Fraction(u));
}
} // namespace

Complex WaveIntegral(Complex u)
{
    return WaveIntegral(u, std::exp(u));
}

Complex WaveIntegral(Complex u, Complex exponential)
{
    if (u == 0.0)
    {
        return 0;
    }
    const Complex logarithm = std::log(-u);
    Complex result;
    WaveIntegrals(1, &u, &exponential, &logarithm, &result);
    return result;
}

void WaveIntegrals(int count, const Complex* u, const Complex* exponential, const Complex* logarithm,
                   Complex* result)
{
    for (int first = 0; first < count; first += kLanes)
    {
        const int end = std::min(first + kLanes, count);
        CLanes real = CLanes::Zero();
        CLanes imaginary = CLanes::Zero();
        for (int k = first; k < end; ++k)
        {
            const bool inSeries = IsInSeries(u[k]);
            real[k - first] = inSeries ? u[k].real() : 0;
            imaginary[k - first] = inSeries ? u[k].imag() : 0;
        }
        CLanes sumReal;
        CLanes sumImaginary;
        SumSeries(real, imaginary, sumReal, sumImaginary);
        for (int k = first; k < end; ++k)
        {
            const Complex sum(sumReal[k - first], sumImaginary[k - first]);
            result[k] = u[k] == 0.0        ? Complex(0)
                        : IsInSeries(u[k]) ? exponential[k] * (-kEuler - logarithm[k] - sum)
                                           : BeyondSeries(u[k], exponential[k]);
        }
    }
}

} // namespace oe7
