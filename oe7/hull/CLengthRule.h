// Interpolation and integration over the ship's length: from station 0 on, each pair of station intervals
// carries the parabola through its three stations; three remaining intervals carry the cubic through four;
// one, a straight line.
#pragma once

#include <Eigen/Core>

#include <array>
#include <span>
#include <vector>

namespace oe7
{

class CLengthRule
{
public:
    /// x is positive forward and measured from `origin`, itself measured from midship (m). At least two
    /// stations.
    CLengthRule(int stationCount, double length, double origin = 0);

    int StationCount() const { return m_stationCount; }
    double Length() const { return m_length; }
    /// Of a station; fractions and numbers beyond the ends are allowed.
    double X(double station) const
    {
        return m_length / 2 - station * m_length / (m_stationCount - 1) - m_origin;
    }
    double Bow() const { return X(0); }
    double Aft() const { return X(m_stationCount - 1); }

    /// L_n(x), n = 0..stations-1, for x between the ends; the last interval's polynomial beyond them.
    Eigen::RowVectorXd Basis(double x) const;
    /// W_n: weights of values at the stations, Int L_n dx over the whole length (Simpson's rule).
    const Eigen::RowVectorXd& Weights() const { return m_weights; }
    /// Row p = 0..highestPower: Int_from^bow x^p L_n(x) dx, Gauss points in every interval, intervals cut at
    /// `from`.
    Eigen::MatrixXd Moments(int highestPower, double from) const;
    /// Row p = 0..highestPower: Int_from^bow x^p L_n(x) e^(-iqx) dx, 6 Gauss points an interval.
    Eigen::MatrixXcd PhaseMoments(int highestPower, double q, double from) const;

private:
    /// A Gauss point and what the stations around it contribute there, times its weight.
    struct CNode
    {
        double X = 0;
        int First = 0; ///< station
        int Count = 0; ///< of stations, 4 at most
        std::array<double, 4> Weighted{};
    };
    /// Points of the interval -1..1 with their weights, and with them the points of all intervals from the
    /// bow on.
    struct CNodes
    {
        std::span<const std::array<double, 2>> Gauss;
        std::vector<CNode> Whole;
    };

    int Interval(double x) const;
    CNode MakeNode(int interval, double x, double weight) const;
    void AddNodes(const CNodes& nodes, int interval, double aft, std::vector<CNode>& added) const;
    CNodes AllNodes(std::span<const std::array<double, 2>> gauss) const;
    template <class Add>
    void ForEachNode(const CNodes& nodes, double from, const Add& add) const;
    template <class Value, class Factor>
    Eigen::MatrixX<Value> Sums(const CNodes& nodes, int highestPower, double from,
                               const Factor& factor) const;

    int m_stationCount;
    double m_length;
    double m_origin;
    CNodes m_nodes;
    CNodes m_phaseNodes;
    Eigen::RowVectorXd m_weights;
};

} // namespace oe7
