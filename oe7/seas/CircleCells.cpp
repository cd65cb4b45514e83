#include "oe7/seas/CircleCells.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace oe7
{

double FoldedAngle(double degrees)
{
    const double angle = std::remainder(degrees, 360.0);
    return angle == 180 || !std::isfinite(angle) ? -180 : angle;
}

std::vector<double> CircleCells(const std::vector<double>& directions)
{
    const std::size_t count = directions.size();
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::vector<double> folded(count);
    std::transform(directions.begin(), directions.end(), folded.begin(), FoldedAngle);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return folded[a] < folded[b]; });

    std::vector<double> cells(count);
    for (std::size_t n = 0; n < count; ++n)
    {
        const std::size_t here = order[n];
        const std::size_t next = order[(n + 1) % count];
        const double gap = folded[next] - folded[here] + (n + 1 == count ? 360 : 0);
        cells[here] += gap / 2;
        cells[next] += gap / 2;
    }
    return cells;
}

} // namespace oe7
