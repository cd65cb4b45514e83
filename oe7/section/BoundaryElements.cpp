#include "oe7/section/BoundaryElements.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

namespace oe7
{
namespace
{
constexpr double kPi = std::numbers::pi;
constexpr int kInsidePoints = 6;

Complex Place(const CPoint& point)
{
    return {point.Y, point.Z};
}

/// Height of the contour at a half breadth, the lowest one; none where it doesn't reach.
std::optional<double> LowestHeight(const std::vector<CPoint>& points, double y)
{
    std::optional<double> lowest;
    for (std::size_t k = 1; k < points.size(); ++k)
    {
        const CPoint& a = points[k - 1];
        const CPoint& b = points[k];
        if (std::min(a.Y, b.Y) > y || std::max(a.Y, b.Y) < y)
        {
            continue;
        }
        const double z = a.Y == b.Y ? std::min(a.Z, b.Z) : a.Z + (b.Z - a.Z) * (y - a.Y) / (b.Y - a.Y);
        lowest = std::min(z, lowest.value_or(z));
    }
    return lowest;
}
} // namespace

/// What a frequency's waves are between the ends of the panels and the points of the equations.
struct CBoundaryElements::CWaves
{
    CWaves(const CBoundaryElements& section, double waveNumber);

    /// J and J + ln(-u) at the panels' ends, seen from the point of an equation and from its mirror image.
    void See(const CBoundaryElements& section, Eigen::Index equation);
    /// Adds the equation's standing waves.
    void AddTo(CWaveSystem& system, const CBoundaryElements& section, const CSymmetry& symmetry,
               Eigen::Index equation) const;

    double WaveNumber;
    Eigen::VectorXcd Fields; ///< e^(-iKP), one per equation
    Eigen::VectorXcd Ends;   ///< e^(iK conj Q), one per end

private:
    void SeeFrom(const CBoundaryElements& section, Complex field, Complex exponential, Eigen::Index column,
                 Eigen::VectorXcd& j, Eigen::VectorXcd& smooth);

    Eigen::VectorXcd m_u, m_exponentials, m_logarithms;
    Eigen::VectorXcd m_j, m_smooth, m_mirroredJ, m_mirroredSmooth;
};

CBoundaryElements::CWaves::CWaves(const CBoundaryElements& section, double waveNumber)
    : WaveNumber(waveNumber),
      Fields(section.EquationCount())
{
    const auto count = static_cast<Eigen::Index>(section.m_ends.size());
    for (Eigen::VectorXcd* values :
         {&Ends, &m_u, &m_exponentials, &m_logarithms, &m_j, &m_smooth, &m_mirroredJ, &m_mirroredSmooth})
    {
        values->resize(count);
    }
    for (Eigen::Index k = 0; k < count; ++k)
    {
        const Complex q = section.m_ends[static_cast<std::size_t>(k)];
        Ends[k] = std::exp(Complex(0, waveNumber) * std::conj(q));
    }
    for (Eigen::Index k = 0; k < Fields.size(); ++k)
    {
        Fields[k] = std::exp(Complex(0, -waveNumber) * section.m_fields[static_cast<std::size_t>(k)]);
    }
}

void CBoundaryElements::CWaves::SeeFrom(const CBoundaryElements& section, Complex field, Complex exponential,
                                        Eigen::Index column, Eigen::VectorXcd& j, Eigen::VectorXcd& smooth)
{
    const Eigen::Index count = j.size();
    const double logarithm = std::log(WaveNumber);
    for (Eigen::Index k = 0; k < count; ++k)
    {
        const Complex away = field - std::conj(section.m_ends[static_cast<std::size_t>(k)]);
        m_u[k] = {WaveNumber * away.imag(), -WaveNumber * away.real()};
        m_exponentials[k] = exponential * Ends[k];
        m_logarithms[k] = section.m_logarithms(k, column) + logarithm;
    }
    WaveIntegrals(static_cast<int>(count), m_u.data(), m_exponentials.data(), m_logarithms.data(), j.data());
    smooth = j + m_logarithms;
}

void CBoundaryElements::CWaves::See(const CBoundaryElements& section, Eigen::Index equation)
{
    const Complex field = section.m_fields[static_cast<std::size_t>(equation)];
    const Complex exponential = Fields[equation];
    SeeFrom(section, field, exponential, equation, m_j, m_smooth);
    SeeFrom(section, -std::conj(field), std::conj(exponential), section.EquationCount() + equation,
            m_mirroredJ, m_mirroredSmooth);
}

void CBoundaryElements::CWaves::AddTo(CWaveSystem& system, const CBoundaryElements& section,
                                      const CSymmetry& symmetry, Eigen::Index equation) const
{
    const auto difference =
        [&symmetry](const Eigen::VectorXcd& own, const Eigen::VectorXcd& mirrored, Eigen::Index k)
    { return own[k + 1] - own[k] + symmetry.Sign * (mirrored[k + 1] - mirrored[k]); };
    for (Eigen::Index k = 0; k < section.PanelCount(); ++k)
    {
        const CPanelIntegral wave =
            StandingWave(difference(m_j, m_mirroredJ, k), difference(m_smooth, m_mirroredSmooth, k),
                         section.m_lines[static_cast<std::size_t>(k)].Direction, WaveNumber);
        system.Real(equation, k) += wave.Doublet;
        for (Eigen::Index mode = 0; mode < system.Right.cols(); ++mode)
        {
            system.Right(equation, mode) += wave.Source * symmetry.Normals(k, mode);
        }
    }
}

CBoundaryElements::CBoundaryElements(const std::vector<CPoint>& points, double beam, double draft)
{
    AddPanels(points);
    AddInsidePoints(points, beam, draft);
    FindLogarithms();
    m_even.Normals.resize(PanelCount(), 1);
    m_odd.Sign = -1;
    m_odd.Normals.resize(PanelCount(), 2);
    for (int k = 0; k < m_panels.Count(); ++k)
    {
        m_even.Normals(k, 0) = m_panels.N3[static_cast<std::size_t>(k)];
        m_odd.Normals.row(k) << m_panels.N2[static_cast<std::size_t>(k)], m_panels.N4(k);
    }
    FillLogarithms(m_even);
    FillLogarithms(m_odd);
}

void CBoundaryElements::AddPanels(const std::vector<CPoint>& points)
{
    double girth = 0;
    for (std::size_t k = 1; k < points.size(); ++k)
    {
        girth += std::abs(Place(points[k]) - Place(points[k - 1]));
    }
    for (const CPoint& point : points)
    {
        const Complex place = Place(point);
        const double length = m_ends.empty() ? 0 : std::abs(place - m_ends.back());
        if (m_ends.empty() || length > 1e-9 * girth)
        {
            if (!m_ends.empty())
            {
                m_lines.push_back({m_ends.back(), (place - m_ends.back()) / length, length});
                m_fields.push_back((place + m_ends.back()) / 2.0);
                m_panels.Add(m_fields.back(), m_lines.back().Direction, length);
            }
            m_ends.push_back(place);
        }
    }
}

void CBoundaryElements::AddInsidePoints(const std::vector<CPoint>& points, double beam, double draft)
{
    if (beam <= 0)
    {
        return;
    }
    for (int k = 0; k < kInsidePoints; ++k)
    {
        const double y = 0.93 * beam / 2 * (k + 0.37) / kInsidePoints;
        const double height = LowestHeight(points, y).value_or(0);
        if (height <= -0.001 * draft)
        {
            m_fields.emplace_back(y, 0.15 * height);
        }
    }
}

void CBoundaryElements::FindLogarithms()
{
    const auto finite = [](Complex away)
    { return away == 0.0 ? Complex(0) : std::log(Complex(0, 1) * away); };
    m_logarithms.resize(static_cast<Eigen::Index>(m_ends.size()), 2 * EquationCount());
    for (Eigen::Index m = 0; m < EquationCount(); ++m)
    {
        const Complex field = m_fields[static_cast<std::size_t>(m)];
        for (Eigen::Index k = 0; k < m_logarithms.rows(); ++k)
        {
            const Complex mirrored = std::conj(m_ends[static_cast<std::size_t>(k)]);
            m_logarithms(k, m) = finite(field - mirrored);
            m_logarithms(k, EquationCount() + m) = finite(-std::conj(field) - mirrored);
        }
    }
}

void CBoundaryElements::FillLogarithms(CSymmetry& symmetry) const
{
    symmetry.Doublets.setZero(EquationCount(), PanelCount());
    symmetry.Doublets.diagonal().setConstant(kPi);
    Eigen::MatrixXd sources(EquationCount(), PanelCount());
    for (Eigen::Index m = 0; m < EquationCount(); ++m)
    {
        const Complex field = m_fields[static_cast<std::size_t>(m)];
        for (Eigen::Index k = 0; k < PanelCount(); ++k)
        {
            const CPanelLine& line = m_lines[static_cast<std::size_t>(k)];
            const CPanelIntegral own = LogarithmIntegral(field, line);
            const CPanelIntegral mirrored = LogarithmIntegral(-std::conj(field), line);
            symmetry.Doublets(m, k) += own.Doublet + symmetry.Sign * mirrored.Doublet;
            sources(m, k) = own.Source + symmetry.Sign * mirrored.Source;
        }
    }
    symmetry.Sources = sources * symmetry.Normals;
}

CWaveSystem CBoundaryElements::StartedSystem(const CSymmetry& symmetry, const CWaves& waves) const
{
    // The waves of a panel and its image together: e^(-iKP) +- conj(e^(-iKP)) times the panel's own.
    const bool even = symmetry.Sign > 0;
    CWaveSystem system{symmetry.Doublets, Eigen::VectorXd(EquationCount()), Eigen::VectorXd(PanelCount()),
                       symmetry.Sources, Eigen::RowVectorXd::Zero(symmetry.Normals.cols())};
    for (Eigen::Index m = 0; m < EquationCount(); ++m)
    {
        system.Rows[m] = 2 * (even ? waves.Fields[m].real() : waves.Fields[m].imag());
    }
    for (Eigen::Index k = 0; k < PanelCount(); ++k)
    {
        const Complex wave = (even ? Complex(1) : Complex(0, 1)) * (waves.Ends[k + 1] - waves.Ends[k]);
        const CPanelIntegral radiated =
            RadiatedWave(wave, m_lines[static_cast<std::size_t>(k)].Direction, waves.WaveNumber);
        system.Columns[k] = radiated.Doublet;
        system.Wave += radiated.Source * symmetry.Normals.row(k);
    }
    return system;
}

CPotentials CBoundaryElements::Solve(double waveNumber) const
{
    CWaves waves(*this, waveNumber);
    CWaveSystem even = StartedSystem(m_even, waves);
    CWaveSystem odd = StartedSystem(m_odd, waves);
    for (Eigen::Index m = 0; m < EquationCount(); ++m)
    {
        waves.See(*this, m);
        waves.AddTo(even, *this, m_even, m);
        waves.AddTo(odd, *this, m_odd, m);
    }
    const Eigen::MatrixXcd sideways = LeastSquares(odd);
    CPotentials potentials(PanelCount(), 3);
    potentials << sideways.col(0), LeastSquares(even), sideways.col(1);
    return potentials.allFinite() ? potentials : CPotentials::Zero(PanelCount(), 3);
}

std::vector<CPoint> DividedContour(const std::vector<CPoint>& contour, double longest)
{
    std::vector<CPoint> points;
    for (std::size_t k = 0; k < contour.size(); ++k)
    {
        if (k > 0)
        {
            const CPoint a = contour[k - 1];
            const CPoint b = contour[k];
            const double panels = longest > 0 ? std::round(std::hypot(b.Y - a.Y, b.Z - a.Z) / longest) : 1;
            for (int n = 1; n < panels; ++n)
            {
                points.push_back({a.Y + (b.Y - a.Y) * n / panels, a.Z + (b.Z - a.Z) * n / panels});
            }
        }
        points.push_back(contour[k]);
    }
    return points;
}

} // namespace oe7
