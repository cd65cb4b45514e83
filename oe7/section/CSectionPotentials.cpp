#include "oe7/section/CSectionPotentials.h"

#include "oe7/input/ForEach.h"

#include <cmath>

namespace oe7
{
namespace
{
/// Puts into the target, which has the size, what lies between the values at the grid's frequencies.
template <class ValueAt, class Target>
void Interpolate(const CGridWeights& weights, ValueAt valueAt, Target&& target)
{
    target.setZero();
    for (std::size_t k = 0; k < weights.Weight.size(); ++k)
    {
        if (weights.Weight[k] != 0)
        {
            target += weights.Weight[k] * valueAt(static_cast<std::size_t>(weights.Index[k]));
        }
    }
    target.imag() *= weights.Imaginary;
}
} // namespace

CSectionPotentials::CSectionPotentials(const CHullCondition& hull, ESectionMethod method,
                                       std::vector<double> grid, bool heaveCorrection, int threads)
    : m_hull(hull),
      m_grid(std::move(grid)),
      m_stations(hull.Sections.size())
{
    std::vector<std::unique_ptr<CSectionSolver>> solvers(m_stations.size());
    ForEach(StationCount(), threads,
            [&](int n)
            {
                const auto k = static_cast<std::size_t>(n);
                solvers[k] = MakeSectionSolver(hull.Sections[k], method, hull.LargestBeam);
            });
    SolveAll(solvers, threads);
    if (heaveCorrection)
    {
        FindHeaveCorrection();
    }
}

void CSectionPotentials::SolveAll(const std::vector<std::unique_ptr<CSectionSolver>>& solvers, int threads)
{
    const auto frequencies = static_cast<int>(m_grid.size());
    for (std::size_t n = 0; n < solvers.size(); ++n)
    {
        if (solvers[n])
        {
            m_stations[n].Panels = solvers[n]->Panels();
            m_stations[n].Potentials.resize(m_grid.size());
            m_stations[n].Integrals.resize(m_grid.size());
        }
    }
    ForEach(StationCount() * frequencies, threads,
            [&](int round)
            {
                const auto station = static_cast<std::size_t>(round / frequencies);
                if (solvers[station])
                {
                    Solve(*solvers[station], static_cast<std::size_t>(round % frequencies),
                          m_stations[station]);
                }
            });
}

void CSectionPotentials::Solve(const CSectionSolver& solver, std::size_t frequency, CStation& station) const
{
    const double w = m_grid[frequency];
    CPotentials& potentials = station.Potentials[frequency];
    potentials = solver.Solve(w * w / kGravity);
    potentials.col(2) += m_hull.Zg * potentials.col(0);
    CIntegrals& integrals = station.Integrals[frequency];
    integrals.setZero();
    for (int k = 0; k < station.Panels.Count(); ++k)
    {
        const auto panel = static_cast<std::size_t>(k);
        const double length = 2 * station.Panels.Length[panel]; // both sides
        const double n2 = station.Panels.N2[panel];
        const double n4 = station.Panels.N4(k) + m_hull.Zg * n2;
        const auto psi = potentials.row(k);
        integrals += length * CIntegrals(psi[0] * n2, (psi[2] * n2 + psi[0] * n4) / 2.0,
                                         psi[1] * station.Panels.N3[panel], psi[2] * n4);
    }
}

void CSectionPotentials::FindHeaveCorrection()
{
    if (!(m_hull.WaterplaneArea > 0))
    {
        return;
    }
    double square = 0;
    for (int n = 0; n < StationCount(); ++n)
    {
        const double beam = m_hull.Sections[static_cast<std::size_t>(n)].Beam;
        square += m_hull.Rule.Weights()[n] * beam * beam;
    }
    const double area = m_hull.WaterplaneArea;
    m_correctedBelow = std::sqrt(kGravity * 2 * std::max(square, 0.0)) / area;
    m_correction = Weights(m_correctedBelow);
}

CGridWeights CSectionPotentials::CorrectedWeights(double w) const
{
    CGridWeights weights = m_correction;
    const double part = w / m_correctedBelow;
    weights.Imaginary *= w < 0 ? -part * part : part * part;
    return weights;
}

void CSectionPotentials::PotentialsAt(int station, double w, CPotentials& potentials) const
{
    const CStation& solved = Station(station);
    potentials.resize(solved.Panels.Count(), 3);
    if (solved.Potentials.empty())
    {
        return;
    }
    const auto at = [&solved](std::size_t frequency) -> const CPotentials&
    { return solved.Potentials[frequency]; };
    Interpolate(Weights(w), at, potentials);
    if (IsHeaveCorrected(w))
    {
        Interpolate(
            CorrectedWeights(w), [&at](std::size_t frequency) { return at(frequency).col(1); },
            potentials.col(1));
    }
}

CSectionCoefficients CSectionPotentials::CoefficientsAt(int station, double w) const
{
    const CStation& solved = Station(station);
    if (solved.Integrals.empty())
    {
        return {};
    }
    const auto at = [&solved](std::size_t frequency) -> const CIntegrals&
    { return solved.Integrals[frequency]; };
    CIntegrals integrals;
    Interpolate(Weights(w), at, integrals);
    if (IsHeaveCorrected(w))
    {
        Interpolate(
            CorrectedWeights(w), [&at](std::size_t frequency) { return at(frequency).segment<1>(2); },
            integrals.segment<1>(2));
    }
    integrals *= Complex(0, -w * m_hull.Density);
    return {integrals[0], integrals[1], integrals[2], integrals[3]};
}

double CSectionPotentials::RollAddedMass(double w) const
{
    double mass = 0;
    for (int n = 0; n < StationCount(); ++n)
    {
        mass += m_hull.Rule.Weights()[n] * CoefficientsAt(n, w).Z44.imag() / w;
    }
    return mass;
}

} // namespace oe7
