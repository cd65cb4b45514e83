#include "oe7/motion/StripTheory.h"

#include <gtest/gtest.h>

using namespace oe7;

namespace
{
constexpr Complex kI(0, 1);
constexpr double kSpeed = 6;       ///< m/s
constexpr double kFrequency = 0.9; ///< rad/s
constexpr CEndTerms kAll{true, true, true};
constexpr CEndTerms kNone{};

CHullCondition Hull()
{
    CHullCondition hull{CLengthRule(9, 100, 3), std::vector<CSection>(9)};
    hull.Length = 100;
    hull.Density = 1025;
    return hull;
}

/// Coefficients that are parabolas over the length, not alike at the two ends.
CStripCoefficients Strips(const CHullCondition& hull, double w)
{
    CStripCoefficients strips{w, Eigen::VectorXcd(9), Eigen::VectorXcd(9), Eigen::VectorXcd(9),
                              Eigen::VectorXcd(9)};
    for (int n = 0; n < 9; ++n)
    {
        const double x = hull.X(n) / 50;
        strips.Z22(n) = Complex(3, 5) * 1e4 * (1.5 - 0.2 * x - x * x);
        strips.Z24(n) = Complex(-2, 1) * 1e4 * (1.2 + 0.3 * x - 0.8 * x * x);
        strips.Z33(n) = Complex(7, 9) * 1e4 * (1.4 - 0.1 * x - 0.7 * x * x);
        strips.Z44(n) = Complex(2, 8) * 1e4 * (1.3 + 0.1 * x - 0.9 * x * x);
    }
    return strips;
}

/// Force per length by which the section moves a momentum H: its integral over the length and its moment,
/// where the momentum is shed at the aft end (with the end term) or not.
struct CRadiated
{
    Complex Force, Moment;
};

template <class Momentum>
CRadiated Radiated(const CHullCondition& hull, double w, const Momentum& momentum, bool shed)
{
    CRadiated sum;
    for (int n = 0; n < 9; ++n)
    {
        const Complex weighted = hull.Rule.Weights()(n) * momentum(n, hull.X(n));
        sum.Force += kI * w * weighted;
        sum.Moment += (kI * w * hull.X(n) + kSpeed) * weighted;
    }
    if (shed)
    {
        const Complex aft = kSpeed * momentum(8, hull.Rule.Aft());
        sum.Force += aft;
        sum.Moment += aft * hull.Rule.Aft();
    }
    return sum;
}

/// The forces of the motions from the sections' velocities and momenta (Salvesen, Tuck and Faltinsen 1970).
CComplexVector6 RadiatedForces(const CHullCondition& hull, const CStripCoefficients& z,
                               const CComplexVector6& eta, bool shed)
{
    const double w = z.Frequency;
    const auto v2 = [&](double x) { return kI * w * eta(1) + (kI * w * x - kSpeed) * eta(5); };
    const auto v3 = [&](double x) { return kI * w * eta(2) + (kSpeed - kI * w * x) * eta(4); };
    const Complex v4 = kI * w * eta(3);
    const auto h2 = [&](int n, double x) { return -(z.Z22(n) * v2(x) + z.Z24(n) * v4) / (kI * w); };
    const auto h3 = [&](int n, double x) { return -z.Z33(n) * v3(x) / (kI * w); };
    const auto h4 = [&](int n, double x) { return -(z.Z24(n) * v2(x) + z.Z44(n) * v4) / (kI * w); };
    const CRadiated sideways = Radiated(hull, w, h2, shed);
    const CRadiated vertical = Radiated(hull, w, h3, shed);
    CComplexVector6 force;
    force << 0, sideways.Force, vertical.Force, Radiated(hull, w, h4, shed).Force, -vertical.Moment,
        sideways.Moment;
    return force;
}

CComplexVector6 SomeMotions()
{
    CComplexVector6 eta;
    eta << 0, Complex(1, 0.5), Complex(-0.4, 1), Complex(0.2, 0.1), Complex(0.03, -0.01), Complex(0.02, 0.04);
    return eta;
}

void ExpectRadiated(double w, const CEndTerms& endTerms, bool shed)
{
    const CHullCondition hull = Hull();
    const CStripCoefficients strips = Strips(hull, w);
    const CComplexVector6 eta = SomeMotions();
    const CComplexVector6 force = -RadiationMatrix(hull, strips, kSpeed, endTerms) * eta;
    const CComplexVector6 expected = RadiatedForces(hull, strips, eta, shed);
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_NEAR(std::abs(force(i) - expected(i)), 0, 1e-10 * std::abs(expected(i))) << "mode " << i;
    }
}

TEST(Radiation, IsTheForceOfTheMomentaOfTheSections)
{
    ExpectRadiated(kFrequency, kNone, false);
    ExpectRadiated(kFrequency, kAll, true);
    ExpectRadiated(-kFrequency, kAll, true);
}

TEST(Radiation, TakesEndTermsOfTheModesAskedFor)
{
    const CHullCondition hull = Hull();
    const CStripCoefficients strips = Strips(hull, kFrequency);
    const CComplexMatrix6 none = RadiationMatrix(hull, strips, kSpeed, kNone);
    const auto changed = [&](const CEndTerms& terms)
    {
        std::string elements;
        const CComplexMatrix6 matrix = RadiationMatrix(hull, strips, kSpeed, terms);
        for (int i = 0; i < 6; ++i)
        {
            for (int j = 0; j < 6; ++j)
            {
                elements +=
                    matrix(i, j) != none(i, j) ? std::to_string(i + 1) + std::to_string(j + 1) + " " : "";
            }
        }
        return elements;
    };
    EXPECT_EQ(changed({true, false, false}), "33 35 53 55 ");
    EXPECT_EQ(changed({false, true, false}), "22 26 62 66 ");
    EXPECT_EQ(changed({false, true, true}), "22 24 26 42 44 46 62 64 66 ");
}

TEST(Radiation, AtRestIsSymmetric)
{
    const CHullCondition hull = Hull();
    const CComplexMatrix6 matrix = RadiationMatrix(hull, Strips(hull, kFrequency), 0, kAll);
    EXPECT_EQ(matrix, CComplexMatrix6(matrix.transpose()));
}

TEST(LowEncounterFrequencies, AreBroughtUpToTheBoundWithTheirSign)
{
    const double lowest = 0.3 * std::sqrt(9.81 / 120);
    EXPECT_NEAR(LowestEvaluated(120), lowest, 1e-12);
    EXPECT_EQ(EvaluatedFrequency(0.5, 120), 0.5);
    EXPECT_EQ(EvaluatedFrequency(-0.5, 120), -0.5);
    EXPECT_NEAR(EvaluatedFrequency(0.01, 120), lowest, 1e-12);
    EXPECT_NEAR(EvaluatedFrequency(-0.01, 120), -lowest, 1e-12);
    EXPECT_NEAR(EvaluatedFrequency(0, 120), lowest, 1e-12);
}

TEST(Surge, HasTheAddedMassOfASlenderShip)
{
    CHullCondition hull = Hull();
    hull.Volume = 4000;
    hull.Mass = 4.1e6;
    EXPECT_NEAR(SurgeAddedMass(hull), 4.1e6 / (3.14159265 * std::sqrt(250) - 14), 1);
    hull.Volume = 40000;
    EXPECT_NEAR(SurgeAddedMass(hull), 0.2 * 4.1e6, 1e-6);
}

TEST(Surge, IsDampedByFriction)
{
    CHullCondition hull = Hull();
    hull.WettedSurface = 1800;
    EXPECT_NEAR(SurgeDamping(hull, 10), 73800, 1e-6);
}
} // namespace
