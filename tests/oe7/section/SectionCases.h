// Sections with known coefficients, and what their potentials amount to. Density 1.
#pragma once

#include "oe7/section/BoundaryElements.h"

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace oe7
{

constexpr double kPi = std::numbers::pi;

/// From a point on, in equal steps of a function of 0..1.
template <class Function>
std::vector<CPoint> Curve(int panels, Function point)
{
    std::vector<CPoint> points;
    for (int k = 0; k <= panels; ++k)
    {
        points.push_back(point(static_cast<double>(k) / panels));
    }
    return points;
}

inline CBoundaryElements Semicircle(int panels)
{
    const auto point = [](double part) {
        return CPoint{std::sin(kPi / 2 * part), -std::cos(kPi / 2 * part)};
    };
    return {Curve(panels, point), 2, 1};
}

/// Panels of about equal length, draft 1.
inline CBoundaryElements Rectangle(double beam, int panels)
{
    return {DividedContour({{0, -1}, {beam / 2, -1}, {beam / 2, 0}}, (beam / 2 + 1) / panels), beam, 1};
}

inline CBoundaryElements Triangle(int panels)
{
    return {Curve(panels, [](double part) { return CPoint{part, part - 1}; }), 2, 1};
}

/// Of radius 1 under water.
inline CBoundaryElements Circle(double depth, int panels)
{
    const auto point = [depth](double part) {
        return CPoint{std::sin(kPi * part), -depth - std::cos(kPi * part)};
    };
    return {Curve(panels, point), 0, depth + 1};
}

/// Int psi_k n_j dl over both sides, modes sway, heave, roll about (0,0).
using CIntegrals = Eigen::Matrix3cd;

inline Eigen::RowVector3d Normal(const CPanels& panels, int k)
{
    const auto n = static_cast<std::size_t>(k);
    return {panels.N2[n], panels.N3[n], panels.N4(k)};
}

inline CIntegrals Integrals(const CPanels& panels, const CPotentials& potentials)
{
    CIntegrals sum = CIntegrals::Zero();
    for (int k = 0; k < panels.Count(); ++k)
    {
        sum += 2 * panels.Length[static_cast<std::size_t>(k)] *
               Normal(panels, k).transpose().cast<Complex>() * potentials.row(k);
    }
    return sum;
}

/// a_jk and b_jk/w of the modes 2, 3, 4.
struct CCoefficients
{
    Eigen::Matrix3d Mass, Damping;

    double A(int j, int k) const { return Mass(j - 2, k - 2); }
    double B(int j, int k) const { return Damping(j - 2, k - 2); }
};

inline CCoefficients Coefficients(const CSectionSolver& solver, double waveNumber)
{
    const CIntegrals integrals = Integrals(solver.Panels(), solver.Solve(waveNumber));
    return {-integrals.real(), integrals.imag()};
}

} // namespace oe7
