#include "oe7/hull/CLengthRule.h"

#include <algorithm>
#include <complex>

namespace oe7
{
namespace
{
// Gauss-Legendre points of the interval -1..1 and their weights.
constexpr std::array<std::array<double, 2>, 4> kGauss{{{-0.861136311594052575, 0.347854845137453857},
                                                       {-0.339981043584856265, 0.652145154862546143},
                                                       {0.339981043584856265, 0.652145154862546143},
                                                       {0.861136311594052575, 0.347854845137453857}}};
constexpr std::array<std::array<double, 2>, 6> kPhaseGauss{{{-0.932469514203152028, 0.171324492379170345},
                                                            {-0.661209386466264514, 0.360761573048138608},
                                                            {-0.238619186083196909, 0.467913934572691047},
                                                            {0.238619186083196909, 0.467913934572691047},
                                                            {0.661209386466264514, 0.360761573048138608},
                                                            {0.932469514203152028, 0.171324492379170345}}};

/// L_n(t) of `count` points at t = 0, 1, ...
double Lagrange(int n, int count, double t)
{
    double value = 1;
    for (int k = 0; k < count; ++k)
    {
        if (k != n)
        {
            value *= (t - k) / (n - k);
        }
    }
    return value;
}
} // namespace

CLengthRule::CLengthRule(int stationCount, double length, double origin)
    : m_stationCount(stationCount),
      m_length(length),
      m_origin(origin),
      m_nodes(AllNodes(kGauss)),
      m_phaseNodes(AllNodes(kPhaseGauss)),
      m_weights(Moments(0, Aft()))
{
}

Eigen::RowVectorXd CLengthRule::Basis(double x) const
{
    const CNode node = MakeNode(Interval(x), x, 1);
    Eigen::RowVectorXd basis = Eigen::RowVectorXd::Zero(m_stationCount);
    for (int n = 0; n < node.Count; ++n)
    {
        basis(node.First + n) = node.Weighted[static_cast<std::size_t>(n)];
    }
    return basis;
}

Eigen::MatrixXd CLengthRule::Moments(int highestPower, double from) const
{
    return Sums<double>(m_nodes, highestPower, from, [](double) { return 1.0; });
}

Eigen::MatrixXcd CLengthRule::PhaseMoments(int highestPower, double q, double from) const
{
    return Sums<std::complex<double>>(m_phaseNodes, highestPower, from,
                                      [q](double x) { return std::polar(1.0, -q * x); });
}

/// The interval of x, the first or last one beyond the ends.
int CLengthRule::Interval(double x) const
{
    const double station = (X(0) - x) * (m_stationCount - 1) / m_length;
    // What isn't a number counts as the bow.
    return station > 0 ? static_cast<int>(std::min(station, m_stationCount - 2.0)) : 0;
}

CLengthRule::CNode CLengthRule::MakeNode(int interval, double x, double weight) const
{
    const int intervals = m_stationCount - 1;
    CNode node;
    node.X = x;
    node.Count = std::min(intervals, 2) + 1;
    node.First = interval - interval % 2;
    if (intervals % 2 == 1 && intervals > 1 && interval >= intervals - 3)
    {
        node.Count = 4;
        node.First = intervals - 3;
    }
    const double t = (X(0) - x) * intervals / m_length - node.First;
    for (int n = 0; n < node.Count; ++n)
    {
        node.Weighted[static_cast<std::size_t>(n)] = weight * Lagrange(n, node.Count, t);
    }
    return node;
}

/// The points of an interval from its forward end back to `aft`.
void CLengthRule::AddNodes(const CNodes& nodes, int interval, double aft, std::vector<CNode>& added) const
{
    const double half = (X(interval) - aft) / 2;
    for (const auto& [point, weight] : nodes.Gauss)
    {
        added.push_back(MakeNode(interval, aft + half * (1 + point), half * weight));
    }
}

CLengthRule::CNodes CLengthRule::AllNodes(std::span<const std::array<double, 2>> gauss) const
{
    CNodes nodes;
    nodes.Gauss = gauss;
    for (int interval = 0; interval < m_stationCount - 1; ++interval)
    {
        AddNodes(nodes, interval, X(interval + 1), nodes.Whole);
    }
    return nodes;
}

/// The points between `from` and the bow; an interval that `from` cuts gets points of its own.
template <class Add>
void CLengthRule::ForEachNode(const CNodes& nodes, double from, const Add& add) const
{
    if (from <= Aft())
    {
        std::for_each(nodes.Whole.begin(), nodes.Whole.end(), add);
    }
    else if (from < Bow())
    {
        const int interval = Interval(from);
        const auto uncut = nodes.Gauss.size() * static_cast<std::size_t>(interval);
        std::for_each_n(nodes.Whole.begin(), uncut, add);
        std::vector<CNode> rest;
        rest.reserve(nodes.Gauss.size());
        AddNodes(nodes, interval, from, rest);
        std::for_each(rest.begin(), rest.end(), add);
    }
}

template <class Value, class Factor>
Eigen::MatrixX<Value> CLengthRule::Sums(const CNodes& nodes, int highestPower, double from,
                                        const Factor& factor) const
{
    Eigen::MatrixX<Value> sums = Eigen::MatrixX<Value>::Zero(highestPower + 1, m_stationCount);
    ForEachNode(nodes, from,
                [&](const CNode& node)
                {
                    Value value = factor(node.X);
                    for (int power = 0; power <= highestPower; ++power, value *= node.X)
                    {
                        for (int n = 0; n < node.Count; ++n)
                        {
                            sums(power, node.First + n) += value * node.Weighted[static_cast<std::size_t>(n)];
                        }
                    }
                });
    return sums;
}

} // namespace oe7
