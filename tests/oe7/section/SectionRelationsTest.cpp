// What every section's potentials must satisfy, whatever its form.
#include "oe7/section/ConformalMapping.h"

#include "tests/oe7/section/SectionCases.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace oe7
{
namespace
{
struct CForm
{
    std::string Name;
    double Tolerance; ///< of the damping and of what goes both ways
    std::shared_ptr<CSectionSolver> Solver;
};

std::vector<CForm> Forms()
{
    return {{"semicircle", 0.003, std::make_shared<CBoundaryElements>(Semicircle(40))},
            {"rectangle", 0.003, std::make_shared<CBoundaryElements>(Rectangle(2, 40))},
            {"triangle", 0.003, std::make_shared<CBoundaryElements>(Triangle(40))},
            {"Lewis form", 0.01, std::make_shared<CConformalMapping>(LewisForm(2.5, 1, 2.375))}};
}

/// Calls check(panels, potentials, K, tolerance) for every form and wave.
template <class Check>
void ForEachSolution(Check check)
{
    for (const CForm& form : Forms())
    {
        for (const double k : {0.5, 1.0, 2.0})
        {
            SCOPED_TRACE(form.Name + " at K " + std::to_string(k));
            check(form.Solver->Panels(), form.Solver->Solve(k), k, form.Tolerance);
        }
    }
}

/// Int (n_j e - psi_j de/dn) dl over both sides, with e = exp(Kz + iKy).
Eigen::RowVector3cd FarField(const CPanels& panels, const CPotentials& potentials, double k)
{
    Eigen::RowVector3cd sum = Eigen::RowVector3cd::Zero();
    for (int n = 0; n < panels.Count(); ++n)
    {
        const auto at = static_cast<std::size_t>(n);
        for (const double side : {1.0, -1.0})
        {
            const Complex e = std::exp(Complex(k * panels.Z[at], side * k * panels.Y[at]));
            const Complex slope = k * Complex(panels.N3[at], side * panels.N2[at]) * e;
            const Eigen::RowVector3d mirror(side, 1, side);
            const Eigen::RowVector3cd normal = Normal(panels, n).cwiseProduct(mirror).cast<Complex>();
            const Eigen::RowVector3cd potential = potentials.row(n).cwiseProduct(mirror.cast<Complex>());
            sum += panels.Length[at] * (normal * e - potential * slope);
        }
    }
    return sum;
}

/// Exciting force of waves from starboard, per amplitude and density: pressure of the waves and of their
/// diffraction.
Eigen::RowVector3cd BeamWaveForce(const CPanels& panels, const CPotentials& potentials, double k)
{
    const double square = kGravity * k;
    Eigen::RowVector3cd sum = Eigen::RowVector3cd::Zero();
    for (int n = 0; n < panels.Count(); ++n)
    {
        const auto at = static_cast<std::size_t>(n);
        const double e = std::exp(k * panels.Z[at]) * panels.Length[at];
        const double c = std::cos(k * panels.Y[at]);
        const double s = std::sin(k * panels.Y[at]);
        const double n2 = panels.N2[at];
        const double n3 = panels.N3[at];
        const Complex i(0, 1);
        sum += Eigen::RowVector3cd(2.0 * i * kGravity * n2 * e * s, -2 * kGravity * n3 * e * c,
                                   2.0 * i * kGravity * panels.N4(n) * e * s);
        const Complex odd = -2.0 * i * square * (n3 * s + n2 * c) * e;
        sum +=
            potentials.row(n).cwiseProduct(Eigen::RowVector3cd(odd, 2 * square * (n3 * c - n2 * s) * e, odd));
    }
    return sum;
}
} // namespace

TEST(SectionRelations, SwayFromRollIsRollFromSway)
{
    ForEachSolution(
        [](const CPanels& panels, const CPotentials& potentials, double, double tolerance)
        {
            const CIntegrals integrals = Integrals(panels, potentials);
            const double scale = std::sqrt(std::abs(integrals(0, 0).real() * integrals(2, 2).real()));
            EXPECT_NEAR(integrals(0, 2).real(), integrals(2, 0).real(), tolerance * 2 / 3 * scale + 1e-9);
        });
}

TEST(SectionRelations, TheWavesCarryAwayWhatTheDampingTakes)
{
    ForEachSolution(
        [](const CPanels& panels, const CPotentials& potentials, double k, double tolerance)
        {
            const double w = std::sqrt(kGravity * k);
            const Eigen::Vector3cd damping = w * Integrals(panels, potentials).diagonal();
            const Eigen::RowVector3cd waves = FarField(panels, potentials, k);
            for (int mode = 0; mode < 3; ++mode)
            {
                const double amplitude = w / kGravity * std::abs(waves[mode]);
                const double expected = kGravity * kGravity / w * amplitude * amplitude;
                EXPECT_NEAR(w * damping[mode].imag(), w * expected, tolerance * w * expected + 1e-6) << mode;
            }
        });
}

TEST(SectionRelations, WaveForcesAreTheWavesThatMotionsSendOut)
{
    ForEachSolution(
        [](const CPanels& panels, const CPotentials& potentials, double k, double)
        {
            const double w = std::sqrt(kGravity * k);
            const Eigen::RowVector3cd forces = BeamWaveForce(panels, potentials, k);
            const Eigen::RowVector3cd waves = FarField(panels, potentials, k);
            for (int mode = 0; mode < 3; ++mode)
            {
                const double fromForce = w * std::norm(forces[mode]) / (kGravity * kGravity);
                const double fromWaves = w * std::norm(waves[mode]);
                EXPECT_NEAR(fromForce, fromWaves, 1e-5 * fromWaves + 1e-9) << mode;
            }
        });
}

TEST(SectionRelations, ARectanglesDampingIsTheKnownOneFromPressureAndFarAway)
{
    const CBoundaryElements section = Rectangle(2, 60);
    const CPotentials potentials = section.Solve(1);
    const double w = std::sqrt(kGravity);
    const Eigen::Vector3cd damping = w * Integrals(section.Panels(), potentials).diagonal();
    const Eigen::RowVector3cd waves = FarField(section.Panels(), potentials, 1);
    EXPECT_NEAR(damping[0].imag(), 5.390, 0.006);
    EXPECT_NEAR(damping[1].imag(), 0.6213, 0.002);
    EXPECT_NEAR(damping[2].imag(), 0.4831, 0.001);
    EXPECT_NEAR(w * std::norm(waves[0]), 5.388, 0.006);
    EXPECT_NEAR(w * std::norm(waves[1]), 0.6213, 0.002);
    EXPECT_NEAR(w * std::norm(waves[2]), 0.4826, 0.001);
}

} // namespace oe7
