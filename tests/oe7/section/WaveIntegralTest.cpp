#include "oe7/section/WaveIntegral.h"

#include "oe7/section/PanelIntegrals.h"
#include "tests/oe7/section/SectionCases.h"

#include <gtest/gtest.h>

#include <numbers>
#include <vector>

namespace oe7
{
namespace
{

void ExpectNear(Complex value, Complex expected, double tolerance)
{
    EXPECT_NEAR(value.real(), expected.real(), tolerance);
    EXPECT_NEAR(value.imag(), expected.imag(), tolerance);
}

Complex Seen(Complex field, Complex source, double waveNumber)
{
    return Complex(0, -waveNumber) * (field - std::conj(source));
}

/// The Green function.
Complex Green(Complex field, Complex source, double waveNumber)
{
    const Complex u = Seen(field, source, waveNumber);
    return {std::log(std::abs(field - source)) - std::log(std::abs(field - std::conj(source))) -
                2 * WaveIntegral(u).real(),
            2 * kPi * std::exp(u).real()};
}

constexpr Complex kFrom{0.4, -0.9};
constexpr Complex kTo{0.8, -0.6};
constexpr Complex kField{0.2, -0.3};
constexpr double kWaveNumber = 1.5;

CPanelLine Panel()
{
    return {kFrom, (kTo - kFrom) / std::abs(kTo - kFrom), std::abs(kTo - kFrom)};
}

/// Sources and doublets of the waves, both times complex.
std::array<Complex, 2> Waves(Complex field)
{
    const Complex u1 = Seen(field, kFrom, kWaveNumber);
    const Complex u2 = Seen(field, kTo, kWaveNumber);
    const Complex j = WaveIntegral(u2) - WaveIntegral(u1);
    const CPanelIntegral standing =
        StandingWave(j, j + std::log(-u2) - std::log(-u1), Panel().Direction, kWaveNumber);
    const CPanelIntegral radiated = RadiatedWave(std::exp(u2) - std::exp(u1), Panel().Direction, kWaveNumber);
    return {Complex(standing.Source, radiated.Source), Complex(standing.Doublet, radiated.Doublet)};
}
} // namespace

TEST(WaveIntegral, HasItsKnownValues)
{
    ExpectNear(WaveIntegral({-0.01, 0}), {3.97795040, 0}, 1e-7);
    ExpectNear(WaveIntegral({-0.5, 0.2}), {-0.38282293, 0.31806801}, 1e-7);
    ExpectNear(WaveIntegral({-0.5, -0.2}), {-0.38282293, -0.31806801}, 1e-7);
    ExpectNear(WaveIntegral({-1, 0}), {-0.69717488, 0}, 1e-7);
    ExpectNear(WaveIntegral({-2, 3}), {-0.14910072, -0.69924780}, 1e-7);
    ExpectNear(WaveIntegral({0, 5}), {3.04644568, 0.70300826}, 1e-7);
    ExpectNear(WaveIntegral({-10, 0.1}), {-0.11313129, -0.00131451}, 1e-7);
    ExpectNear(WaveIntegral({-40, 3}), {-0.02550738, -0.00196490}, 1e-7);
    ExpectNear(WaveIntegral({-0.1, 60}), {0.86671358, -2.72401658}, 1e-7);
}

TEST(WaveIntegral, IsThePrincipalValueOfTheWavesOfAllLengths)
{
    EXPECT_NEAR(WaveIntegral(Complex(0, -1) * Complex(0.5, -0.4)).real(), -0.77325179, 1e-7);
    EXPECT_NEAR(WaveIntegral(Complex(0, -2) * Complex(1.3, -0.2)).real(), -1.02967895, 1e-7);
    EXPECT_NEAR(WaveIntegral(Complex(0, -0.3) * Complex(3, -1)).real(), -1.58568543, 1e-7);
}

TEST(WaveIntegral, GoesOnSmoothlyFromEachWayOfReckoningToTheNext)
{
    // J' = J - 1/u across the borders, both ends' mean against the difference.
    for (const double radius : {12.0, 40.0})
    {
        for (double angle = 0.5; angle <= 1.5; angle += 0.01)
        {
            const Complex u = radius * std::polar(1.0, angle * kPi);
            const Complex step = 1e-4 * u;
            const Complex slope = (WaveIntegral(u + step) - WaveIntegral(u - step)) / (2.0 * step);
            ExpectNear(slope, WaveIntegral(u) - 1.0 / u, 1e-5);
        }
    }
    for (double radius = 12.5; radius < 40; radius += 0.5)
    {
        const double border = kPi - std::atan(0.5);
        const Complex inside = WaveIntegral(radius * std::polar(1.0, border + 1e-12));
        ExpectNear(WaveIntegral(radius * std::polar(1.0, border - 1e-12)), inside, 1e-9 * std::abs(inside));
    }
}

TEST(WaveIntegral, IsZeroWhereItIsSingular)
{
    EXPECT_EQ(WaveIntegral(Complex(0)), Complex(0));
}

TEST(WaveIntegral, ManyValuesAreThoseOfEach)
{
    std::vector<Complex> values, exponentials, logarithms;
    for (int k = 0; k < 203; ++k)
    {
        const Complex u = 0.25 * k * std::polar(1.0, (0.5 + std::fmod(0.37 * k, 1.0)) * kPi);
        values.push_back(u);
        exponentials.push_back(std::exp(u));
        logarithms.push_back(k == 0 ? Complex(0) : std::log(-u));
    }
    std::vector<Complex> result(values.size());
    WaveIntegrals(static_cast<int>(values.size()), values.data(), exponentials.data(), logarithms.data(),
                  result.data());
    for (std::size_t k = 0; k < values.size(); ++k)
    {
        const Complex alone = WaveIntegral(values[k]);
        ExpectNear(result[k], alone, 1e-11 * (1 + std::abs(alone)));
    }
}

TEST(GreenFunction, HasItsKnownValues)
{
    ExpectNear(Green({0.3, -0.5}, {0.8, -0.2}, 1), {1.2664603, 2.7381782}, 1e-6);
    ExpectNear(Green({0.3, -0.5}, {-0.8, -0.2}, 1), {2.6087078, 1.4152823}, 1e-6);
    ExpectNear(Green({1, -0.05}, {1.2, -0.05}, 4), {2.5218132, 2.9343510}, 1e-6);
}

TEST(GreenFunction, KeepsTheConditionOnTheFreeSurface)
{
    for (const double y : {-2.0, -0.1, 0.4, 3.0})
    {
        const Complex source(0.3, -0.7);
        const Complex slope = (Green({y, 1e-5}, source, 1.3) - Green({y, -1e-5}, source, 1.3)) / 2e-5;
        ExpectNear(slope, 1.3 * Green(y, source, 1.3), 1e-7);
    }
}

TEST(PanelIntegrals, HaveTheirKnownValues)
{
    const CPanelIntegral logarithm = LogarithmIntegral(kField, Panel());
    EXPECT_NEAR(logarithm.Source, -0.3019102, 1e-6);
    EXPECT_NEAR(logarithm.Doublet, 0.3625442, 1e-6);
    const auto [source, doublet] = Waves(kField);
    ExpectNear(source, {0.7850963, 0.5249171}, 1e-6);
    ExpectNear(doublet, {-0.1737308, -0.9689973}, 1e-6);
}

TEST(PanelIntegrals, AreTheGreenFunctionAlongThePanel)
{
    const Complex normal = Complex(0, -1) * Panel().Direction;
    Complex source = 0;
    Complex doublet = 0;
    constexpr int kParts = 400;
    for (int k = 0; k < kParts; ++k)
    {
        const Complex q = kFrom + (kTo - kFrom) * ((k + 0.5) / kParts);
        const double length = Panel().Length / kParts;
        source += Green(kField, q, kWaveNumber) * length;
        doublet +=
            (Green(kField, q + 1e-5 * normal, kWaveNumber) - Green(kField, q - 1e-5 * normal, kWaveNumber)) /
            2e-5 * length;
    }
    const CPanelIntegral logarithm = LogarithmIntegral(kField, Panel());
    const auto waves = Waves(kField);
    ExpectNear(logarithm.Source + waves[0], source, 1e-5);
    ExpectNear(logarithm.Doublet + waves[1], doublet, 1e-5);
}

TEST(PanelIntegrals, OnThePanelOrInItsLineItIsSeenUnderNoAngle)
{
    const Complex centre = (kFrom + kTo) / 2.0;
    const Complex ahead = kTo + (kTo - kFrom) / 4.0;
    // Only the image above the surface is left.
    for (const Complex field : {centre, ahead})
    {
        const double image = std::arg((field - std::conj(kTo)) / (field - std::conj(kFrom)));
        EXPECT_NEAR(LogarithmIntegral(field, Panel()).Doublet, image, 1e-12);
    }
}

} // namespace oe7
