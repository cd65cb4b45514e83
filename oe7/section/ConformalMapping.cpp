#include "oe7/section/ConformalMapping.h"

#include <Eigen/QR>

#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kPi = std::numbers::pi;
constexpr int kPoints = 48;
constexpr int kPoles = 16;
} // namespace

CConformalMapping::CConformalMapping(const CLewisForm& form) : m_form(form)
{
    m_even.Stream.resize(kPoints, 1);
    m_odd.Stream.resize(kPoints, 2);
    constexpr double kStep = kPi / 2 / kPoints;
    for (int m = 0; m < kPoints; ++m)
    {
        const Complex zeta = std::polar(1.0, (m + 0.5) * kStep - kPi / 2);
        const Complex cube = zeta * zeta * zeta;
        const Complex place = form.M * (zeta + form.A1 / zeta + form.A3 / cube);
        const Complex slope = Complex(0, form.M) * (zeta - form.A1 / zeta - 3 * form.A3 / cube);
        const double speed = std::abs(slope);
        m_circle.push_back(zeta);
        m_panels.Add(place, speed > 0 ? slope / speed : Complex(0, 1), speed * kStep);
        m_even.Stream(m, 0) = -place.real();
        m_odd.Stream.row(m) << place.imag(), -std::norm(place) / 2;
    }
    for (CPoles* poles : {&m_even, &m_odd})
    {
        const int first = poles == &m_even ? 2 : 3;
        poles->Own.resize(kPoints, kPoles + first - 2);
        poles->PerWaveNumber.setZero(kPoints, poles->Own.cols());
        for (int n = 0; n < kPoles; ++n)
        {
            AddPole(*poles, n, first + 2 * n);
        }
    }
    // Sideways the stream function is free by a constant.
    m_odd.Own.col(kPoles).setConstant(Complex(0, 1));
}

void CConformalMapping::AddPole(CPoles& poles, Eigen::Index column, int power) const
{
    for (Eigen::Index m = 0; m < kPoints; ++m)
    {
        const Complex zeta = m_circle[static_cast<std::size_t>(m)];
        const auto term = [zeta, power](int exponent)
        { return std::pow(zeta, -power - exponent) / static_cast<double>(power + exponent); };
        poles.Own(m, column) = std::pow(zeta, -power);
        poles.PerWaveNumber(m, column) =
            Complex(0, -m_form.M) * (-term(-1) + m_form.A1 * term(1) + 3 * m_form.A3 * term(3));
    }
}

Eigen::MatrixXcd CConformalMapping::Potentials(const CPoles& poles, double waveNumber,
                                               const Eigen::VectorXcd& real,
                                               const Eigen::VectorXcd& imaginary)
{
    const Eigen::MatrixXcd shapes = poles.Own + waveNumber * poles.PerWaveNumber;
    const Eigen::Index count = shapes.cols();
    const Eigen::RowVectorXd scales = shapes.imag().colwise().norm().cwiseInverse();
    const Eigen::HouseholderQR<Eigen::MatrixXd> factors(shapes.imag() * scales.asDiagonal());
    // Only the source or dipole is complex in time: it is fitted to what the poles leave.
    Eigen::VectorXcd source(kPoints);
    source.real() = factors.householderQ().adjoint() * real.imag();
    source.imag() = factors.householderQ().adjoint() * imaginary.imag();
    const Eigen::MatrixXcd stream = (factors.householderQ().adjoint() * poles.Stream).cast<Complex>();
    const auto left = source.tail(kPoints - count);
    const Eigen::RowVectorXcd strengths =
        left.adjoint() * stream.bottomRows(kPoints - count) / left.squaredNorm();
    const Eigen::MatrixXcd triangle = factors.matrixQR()
                                          .topRows(count)
                                          .template triangularView<Eigen::Upper>()
                                          .toDenseMatrix()
                                          .cast<Complex>();
    const Eigen::MatrixXcd others =
        triangle.triangularView<Eigen::Upper>().solve(stream.topRows(count) - source.head(count) * strengths);
    const Eigen::VectorXcd waves = real.real() + Complex(0, 1) * imaginary.real();
    return (shapes.real() * scales.asDiagonal()).cast<Complex>() * others + waves * strengths;
}

CPotentials CConformalMapping::Solve(double waveNumber) const
{
    Eigen::MatrixX2cd source(kPoints, 2);
    Eigen::MatrixX2cd dipole(kPoints, 2);
    const Complex slope(0, -waveNumber);
    for (Eigen::Index m = 0; m < kPoints; ++m)
    {
        const auto k = static_cast<std::size_t>(m);
        const Complex u = slope * Complex(m_panels.Y[k], m_panels.Z[k]);
        const Complex exponential = std::exp(u);
        const Complex j = WaveIntegral(u, exponential);
        source.row(m) << -2.0 * j, 2 * kPi * exponential;
        dipole.row(m) << -2.0 * slope * (j - 1.0 / u), 2 * kPi * slope * exponential;
    }
    const Eigen::MatrixXcd sideways = Potentials(m_odd, waveNumber, dipole.col(0), dipole.col(1));
    CPotentials potentials(kPoints, 3);
    potentials << sideways.col(0), Potentials(m_even, waveNumber, source.col(0), source.col(1)),
        sideways.col(1);
    return potentials.allFinite() ? potentials : CPotentials::Zero(kPoints, 3);
}

} // namespace oe7
