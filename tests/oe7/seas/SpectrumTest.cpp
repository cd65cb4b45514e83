#include "oe7/seas/CSpectrum.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>
#include <limits>
#include <numbers>

using namespace oe7;

namespace
{
constexpr double kPi = std::numbers::pi;
const std::array<double, 3> kFrequencies{0.5, 0.8, 1.2};

/// Int w^n S dw by trapeziums, fine enough for 1e-6.
double Moment(const std::function<double(double)>& density, double n)
{
    double sum = 0;
    for (int k = 1; k < 200000; ++k)
    {
        const double w = 0.0005 * k;
        sum += std::pow(w, n) * density(w) * 0.0005;
    }
    return sum;
}

/// Densities at kFrequencies, each within half of the last digit given.
void ExpectDensities(const std::function<double(double)>& density, const std::array<double, 3>& expected)
{
    for (std::size_t n = 0; n < expected.size(); ++n)
    {
        EXPECT_NEAR(density(kFrequencies[n]), expected[n], 0.5e-5) << kFrequencies[n];
    }
}

CSeaSpectrum Spectrum(ESpectrum kind, const CSeaway& seaway)
{
    CInput input;
    input.Spectrum = kind;
    input.Seaways = {CSeaway{}, seaway};
    return {input, 1};
}

std::function<double(double)> DensityOf(const CSeaSpectrum& spectrum)
{
    return [&spectrum](double w) { return spectrum.Density(w); };
}

CSeaway TwoSystems(const COchiHubbleSystem& first, const COchiHubbleSystem& second)
{
    CSeaway seaway;
    seaway.Systems = {first, second};
    return seaway;
}

double SumFromAllDirections(const CSeaSpectrum& spectrum, double w)
{
    double sum = 0;
    for (int direction = 0; direction < kCompassDirections; ++direction)
    {
        sum += spectrum.DensityFrom(direction, w);
    }
    return sum;
}

/// A directional spectrum of two frequencies, 0.5 and 0.6 rad/s, the same density at both.
CSeaSpectrum GivenFrom(const std::vector<double>& directions, const std::vector<double>& densities)
{
    CInput input;
    input.Spectrum = ESpectrum::Directional;
    input.Seaways.resize(1);
    input.DirectionalPoints = {{0.5, 0.6}, directions, {densities, densities}};
    return {input, 0};
}

constexpr double kCell = 15 * kPi / 180;
} // namespace

TEST(Spectra, BretschneiderHasItsDensitiesHeightAndEnergyPeriod)
{
    const CSeaSpectrum spectrum = Spectrum(ESpectrum::Bretschneider, {3, 9});
    ExpectDensities(DensityOf(spectrum), {0.18479, 0.98754, 0.23267});
    ExpectDensities([](double w) { return Bretschneider(3, 9, w); }, {0.18479, 0.98754, 0.23267});
    const double energy = Moment(DensityOf(spectrum), 0);
    EXPECT_NEAR(4 * std::sqrt(energy), 3, 1e-4);
    EXPECT_NEAR(2 * kPi * Moment(DensityOf(spectrum), -1) / energy, 7.715, 0.0005);
    EXPECT_EQ(spectrum.Height(), 3);
    EXPECT_EQ(spectrum.Period(), 9);
}

TEST(Spectra, QuadraticTakesItsPeriodAsTheEnergyPeriod)
{
    const CSeaSpectrum spectrum = Spectrum(ESpectrum::Quadratic, {3, 9});
    ExpectDensities(DensityOf(spectrum), {0.88777, 0.74428, 0.13418});
    EXPECT_NEAR(2 * kPi * Moment(DensityOf(spectrum), -1) / Moment(DensityOf(spectrum), 0), 9, 0.001);
    EXPECT_EQ(spectrum.Period(), 9) << "as given";
}

TEST(Spectra, JonswapIsScaledToTheHeight)
{
    const CSeaSpectrum spectrum = Spectrum(ESpectrum::Jonswap, {3, 9, 3.3});
    ExpectDensities(DensityOf(spectrum), {0.12123, 0.89257, 0.15259});
    EXPECT_NEAR(4 * std::sqrt(Moment(DensityOf(spectrum), 0)), 3, 0.003);
}

TEST(Spectra, JonswapWithoutAnEnhancementIsBretschneiders)
{
    for (const double enhancement : {1.0, 0.0, -2.0})
    {
        const CJonswap spectrum(3, 9, enhancement);
        EXPECT_NEAR(spectrum.Density(0.8) / 0.98754, 1, 2e-4) << "scaled over a band";
    }
}

TEST(Spectra, AnOchiHubbleSystemHasItsDensities)
{
    ExpectDensities([](double w) { return OchiHubble({3, 0.7, 1}, w); }, {0.17748, 0.99041, 0.23481});
    ExpectDensities([](double w) { return OchiHubble({2, 0.5, 3}, w); }, {1.33105, 0.04642, 0.00036});
}

TEST(Spectra, OchiHubbleIsTheSumOfItsSystems)
{
    const CSeaSpectrum spectrum = Spectrum(ESpectrum::OchiHubble, TwoSystems({3, 0.7, 1}, {2, 0.5, 3}));
    ExpectDensities(DensityOf(spectrum), {0.17748 + 1.33105, 0.99041 + 0.04642, 0.23481 + 0.00036});
    EXPECT_NEAR(spectrum.Height(), std::sqrt(13.0), 1e-12);
    const double energy = Moment(DensityOf(spectrum), 0);
    EXPECT_NEAR(energy, 13.0 / 16, 1e-5);
    EXPECT_NEAR(spectrum.Period(), 2 * kPi * Moment(DensityOf(spectrum), -1) / energy, 1e-4);
}

TEST(Spectra, AnEmptyOchiHubbleSystemCountsNeitherInEnergyNorInHeight)
{
    const CSeaSpectrum spectrum = Spectrum(ESpectrum::OchiHubble, TwoSystems({3, 0.7, 1}, {2, 0, 3}));
    ExpectDensities(DensityOf(spectrum), {0.17748, 0.99041, 0.23481});
    EXPECT_DOUBLE_EQ(spectrum.Height(), 3);
    const CSeaSpectrum none = Spectrum(ESpectrum::OchiHubble, TwoSystems({}, {-1, 0.5, 3}));
    EXPECT_EQ(none.Height(), 0);
    EXPECT_EQ(none.Period(), 0);
    EXPECT_EQ(none.Density(0.5), 0);
}

TEST(Spectra, ExtremeValuesGiveFiniteDensities)
{
    for (const double w : {1e-300, 1e-12, 1e-3, 1.0, 1e6, 1e300})
    {
        for (const double lambda : {1e-6, 1.0, 60.0, 1e5})
        {
            const double density = OchiHubble({3, 0.7, lambda}, w);
            EXPECT_TRUE(std::isfinite(density) && density >= 0) << w << ' ' << lambda;
        }
        EXPECT_TRUE(std::isfinite(Bretschneider(3, 9, w))) << w;
        EXPECT_TRUE(std::isfinite(CJonswap(3, 9, 1e300).Density(w))) << w;
    }
    EXPECT_NEAR(OchiHubble({4, 0.7, 200}, 0.7), 32.22, 0.01) << "Gamma(200) is no number of the machine";
}

TEST(Spectra, WithoutHeightPeriodOrFrequencyThereIsNoEnergy)
{
    EXPECT_EQ(Bretschneider(3, 9, 0), 0);
    EXPECT_EQ(Bretschneider(3, 9, -1), 0);
    EXPECT_EQ(Bretschneider(0, 9, 1), 0);
    EXPECT_EQ(Bretschneider(3, 0, 1), 0);
    EXPECT_EQ(CJonswap(3, 0, 3.3).Density(0.8), 0);
    EXPECT_EQ(CJonswap(0, 9, 3.3).Density(0.8), 0);
    EXPECT_EQ(CJonswap(3, 9, 3.3).Density(0), 0);
    EXPECT_EQ(OchiHubble({3, 0.7, 1}, 0), 0);
    EXPECT_EQ(OchiHubble({3, 0.7, 0}, 1), 0);
}

TEST(Spectra, ARegularSeaAndASeawayThatIsNotThereHaveNoEnergy)
{
    CInput input;
    input.Spectrum = ESpectrum::Regular;
    EXPECT_EQ(CSeaSpectrum(input, 0).Density(0.7), 0);
    input.Spectrum = ESpectrum::Jonswap;
    EXPECT_EQ(CSeaSpectrum(input, 3).Density(0.7), 0);
    EXPECT_EQ(CSeaSpectrum(input, -1).Height(), 0);
}

TEST(PointSpectra, AreLinearBetweenThePointsAndNothingOutside)
{
    CInput input;
    input.Spectrum = ESpectrum::Points;
    input.Points = {{0.4, 0.6, 1.0}, {0.0, 2.0, 1.0}};
    const CSeaSpectrum spectrum(input, 0);
    EXPECT_DOUBLE_EQ(spectrum.Density(0.5), 1);
    EXPECT_DOUBLE_EQ(spectrum.Density(0.6), 2);
    EXPECT_DOUBLE_EQ(spectrum.Density(0.7), 1.75);
    EXPECT_DOUBLE_EQ(spectrum.Density(1.0), 1) << "the last point belongs to it";
    EXPECT_EQ(spectrum.Density(0.39), 0);
    EXPECT_EQ(spectrum.Density(1.01), 0);
}

TEST(PointSpectra, ReportHeightAndEnergyPeriodOfThePoints)
{
    CInput input;
    input.Spectrum = ESpectrum::Points;
    input.Points = {{0.0, 0.5, 1.0}, {0.0, 2.0, 0.0}};
    const CSeaSpectrum spectrum(input, 0);
    EXPECT_DOUBLE_EQ(spectrum.Height(), 4) << "m0 is 1";
    EXPECT_DOUBLE_EQ(spectrum.Period(), 2 * kPi * 2) << "m-1 is 2, two trapeziums of 4 0.5/2";
}

TEST(PointSpectra, WithoutOrWithRepeatedPointsStayFinite)
{
    CInput input;
    input.Spectrum = ESpectrum::Points;
    EXPECT_EQ(CSeaSpectrum(input, 0).Density(0.5), 0);
    EXPECT_EQ(CSeaSpectrum(input, 0).Height(), 0);
    EXPECT_EQ(CSeaSpectrum(input, 0).Period(), 0);
    input.Points = {{0.5, 0.5, 0.7}, {1.0, 3.0, 3.0}};
    const CSeaSpectrum spectrum(input, 0);
    EXPECT_TRUE(std::isfinite(spectrum.Density(0.5)));
    EXPECT_DOUBLE_EQ(spectrum.Density(0.6), 3);
}

TEST(TenParameterSpectra, ShareTheEnergyOfEachSystemAmongAllDirections)
{
    const CSeaway seaway = TwoSystems({3, 0.7, 1, 90, 2}, {2, 0.5, 3, 200, 10});
    const CSeaSpectrum spectrum = Spectrum(ESpectrum::TenParameter, seaway);
    for (const double w : kFrequencies)
    {
        EXPECT_NEAR(SumFromAllDirections(spectrum, w),
                    OchiHubble(seaway.Systems[0], w) + OchiHubble(seaway.Systems[1], w), 1e-12);
        EXPECT_DOUBLE_EQ(spectrum.Density(w), SumFromAllDirections(spectrum, w));
    }
    EXPECT_NEAR(spectrum.Height(), std::sqrt(13.0), 1e-12);
}

TEST(TenParameterSpectra, FallByThePowerOfTheCosineOfHalfTheAngle)
{
    const CSeaSpectrum spectrum = Spectrum(ESpectrum::TenParameter, TwoSystems({3, 0.7, 1, 90, 2}, {}));
    const double most = spectrum.DensityFrom(6, 0.8);
    EXPECT_NEAR(spectrum.DensityFrom(10, 0.8) / most, std::pow(std::cos(kPi / 6), 4), 1e-12);
    EXPECT_NEAR(spectrum.DensityFrom(2, 0.8) / most, std::pow(std::cos(kPi / 6), 4), 1e-12);
    EXPECT_NEAR(spectrum.DensityFrom(0, 0.8) / most, 0.25, 1e-12);
    EXPECT_NEAR(spectrum.DensityFrom(18, 0.8) / most, 0, 1e-12) << "from behind";
}

TEST(TenParameterSpectra, WithoutAPowerComeFromEverywhereWithAHugeOneFromTheNearest)
{
    const CSeaSpectrum even = Spectrum(ESpectrum::TenParameter, TwoSystems({3, 0.7, 1, 40, 0}, {}));
    EXPECT_NEAR(even.DensityFrom(17, 0.8), even.Density(0.8) / 24, 1e-12);
    const CSeaSpectrum narrow = Spectrum(ESpectrum::TenParameter, TwoSystems({3, 0.7, 1, 40, 1e6}, {}));
    EXPECT_NEAR(narrow.DensityFrom(3, 0.8), narrow.Density(0.8), 1e-12);
    EXPECT_GT(narrow.Density(0.8), 0.9);
    EXPECT_TRUE(narrow.HasEnergyFrom(3));
    EXPECT_FALSE(narrow.HasEnergyFrom(15));
}

TEST(DirectionalSpectra, MultiplyDensitiesByTheDirectionCell)
{
    std::vector<double> directions;
    for (int n = 0; n < 12; ++n)
    {
        directions.push_back(30.0 * n);
    }
    std::vector<double> densities(12, 0.0);
    densities[4] = 5;
    const CSeaSpectrum spectrum = GivenFrom(directions, densities);
    EXPECT_NEAR(spectrum.DensityFrom(8, 0.55), 5 * 2 * kCell, 1e-12);
    EXPECT_NEAR(spectrum.Density(0.55), 5 * 2 * kCell, 1e-12);
    EXPECT_TRUE(spectrum.HasEnergyFrom(8));
    EXPECT_FALSE(spectrum.HasEnergyFrom(7));
    EXPECT_FALSE(spectrum.HasEnergyFrom(9));
}

TEST(DirectionalSpectra, ShareBetweenTheTwoNearestDirections)
{
    const CSeaSpectrum spectrum = GivenFrom({0, 20, 40, 180}, {0, 3, 0, 0});
    const double energy = 3 * 20 * kPi / 180;
    EXPECT_NEAR(spectrum.DensityFrom(1, 0.5), energy * 2 / 3, 1e-12);
    EXPECT_NEAR(spectrum.DensityFrom(2, 0.5), energy / 3, 1e-12);
    EXPECT_NEAR(spectrum.Density(0.5), energy, 1e-12);
}

TEST(DirectionalSpectra, ShareAcrossNorthAndTakeDirectionsInAnyOrderAndTurn)
{
    const CSeaSpectrum spectrum = GivenFrom({180, 357, 270 - 360, 90}, {0, 2, 0, 0});
    const double energy = 2 * 90 * kPi / 180;
    EXPECT_NEAR(spectrum.DensityFrom(23, 0.5), energy * 0.2, 1e-12);
    EXPECT_NEAR(spectrum.DensityFrom(0, 0.5), energy * 0.8, 1e-12);
}

TEST(DirectionalSpectra, ConserveTheEnergy)
{
    const std::vector<double> directions{11, 47, 110, 200, 301, 340};
    const CSeaSpectrum spectrum = GivenFrom(directions, {1, 1, 1, 1, 1, 1});
    EXPECT_NEAR(SumFromAllDirections(spectrum, 0.58), 2 * kPi, 1e-12) << "the cells fill the circle";
    EXPECT_NEAR(spectrum.Height(), 4 * std::sqrt(2 * kPi * 0.1), 1e-12);
    EXPECT_NEAR(spectrum.Period(), 2 * kPi * (1 / 0.5 + 1 / 0.6) / 2, 1e-12);
}

TEST(DirectionalSpectra, AreLinearBetweenFrequenciesAndNothingOutside)
{
    CInput input;
    input.Spectrum = ESpectrum::Hindcast;
    input.DirectionalPoints = {{0.5, 0.7}, {0, 90, 180, 270}, {{0, 1, 0, 0}, {0, 3, 0, 0}}};
    const CSeaSpectrum spectrum(input, 0);
    EXPECT_NEAR(spectrum.DensityFrom(6, 0.65), 2.5 * kPi / 2, 1e-12);
    EXPECT_EQ(spectrum.DensityFrom(6, 0.49), 0);
    EXPECT_EQ(spectrum.DensityFrom(6, 0.71), 0);
    EXPECT_EQ(spectrum.DensityFrom(6, 0), 0);
}

TEST(DirectionalSpectra, OfASingleOrNoDirectionOrWithOneThatIsNoNumberStayFinite)
{
    EXPECT_NEAR(GivenFrom({45}, {1}).DensityFrom(3, 0.5), 2 * kPi, 1e-12);
    EXPECT_EQ(GivenFrom({}, {}).Density(0.5), 0);
    EXPECT_EQ(GivenFrom({}, {}).Height(), 0);
    const double bad = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NEAR(SumFromAllDirections(GivenFrom({bad, 1e300, 45}, {1, 1, 1}), 0.5), 2 * kPi, 1e-9);
}
