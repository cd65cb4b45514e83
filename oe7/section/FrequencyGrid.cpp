#include "oe7/section/FrequencyGrid.h"

#include "oe7/input/CInput.h"
#include "oe7/input/CRunLog.h"

#include <algorithm>
#include <cmath>

namespace oe7
{
namespace
{
constexpr int kDefaultCount = 46;
constexpr double kDefaultLowest = 0.2; ///< of sqrt(g/L)
constexpr double kDefaultHighest = 30;
constexpr double kLowestOfAll = 0.05;
constexpr int kFewest = 4;
constexpr int kMost = 100;
constexpr double kRounding = 1e-6; ///< of a step

std::vector<double> DefaultGrid(double unit)
{
    std::vector<double> grid;
    const double ratio = kDefaultHighest / kDefaultLowest;
    for (int n = 0; n < kDefaultCount; ++n)
    {
        grid.push_back(kDefaultLowest * unit * std::pow(ratio, n / (kDefaultCount - 1.0)));
    }
    return grid;
}

/// None if there would be far too many.
std::vector<double> SteppedGrid(const std::array<double, 3>& asked, double least)
{
    const auto [lowest, highest, step] = asked;
    const double first = std::max(0.0, std::ceil((least - lowest) / step - kRounding));
    const double last = std::floor((highest - lowest) / step + kRounding);
    if (!(step > 0) || !(last - first < kMost))
    {
        return {};
    }
    std::vector<double> grid;
    if (!(lowest > 0))
    {
        grid.push_back(least);
    }
    for (int n = 0; n <= last - first; ++n)
    {
        const double w = lowest + (first + n) * step;
        if (grid.empty() || w - grid.back() > kRounding * step)
        {
            grid.push_back(w);
        }
    }
    return grid;
}

void SetLagrange(const std::vector<double>& grid, double w, CGridWeights& weights)
{
    const auto count = static_cast<int>(grid.size());
    const auto above = static_cast<int>(std::upper_bound(grid.begin(), grid.end(), w) - grid.begin());
    const int taken = std::min(4, count);
    const int first = std::clamp(above - 2, 0, count - taken);
    std::array<double, 4> places{};
    for (int k = 0; k < taken; ++k)
    {
        weights.Index[static_cast<std::size_t>(k)] = first + k;
        places[static_cast<std::size_t>(k)] = std::log(grid[static_cast<std::size_t>(first + k)]);
    }
    const double place = std::log(w);
    for (std::size_t k = 0; k < static_cast<std::size_t>(taken); ++k)
    {
        weights.Weight[k] = 1;
        for (std::size_t m = 0; m < static_cast<std::size_t>(taken); ++m)
        {
            weights.Weight[k] *= m == k ? 1 : (place - places[m]) / (places[k] - places[m]);
        }
    }
}
} // namespace

std::vector<double> FrequencyGrid(const std::array<double, 3>& asked, double length)
{
    const double unit = std::sqrt(kGravity / length);
    if (asked == std::array<double, 3>{})
    {
        return DefaultGrid(unit);
    }
    std::vector<double> grid = SteppedGrid(asked, kLowestOfAll * unit);
    if (grid.size() < kFewest || grid.size() > kMost)
    {
        throw CInputError(
            "The encounter frequencies from the lowest to the highest in steps must be at least " +
            std::to_string(kFewest) + " and at most " + std::to_string(kMost));
    }
    return grid;
}

CGridWeights GridWeights(const std::vector<double>& grid, double w)
{
    CGridWeights weights;
    weights.Imaginary = w < 0 ? -1 : 1;
    const double size = std::abs(w);
    if (size > grid.front() && size < grid.back())
    {
        SetLagrange(grid, size, weights);
        return weights;
    }
    weights.Weight[0] = 1;
    if (size >= grid.back())
    {
        weights.Index[0] = static_cast<int>(grid.size()) - 1;
        weights.Imaginary *= std::pow(grid.back() / size, 4);
    }
    return weights;
}

} // namespace oe7
