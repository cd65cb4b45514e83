#include "gui/forms/CChartRange.h"

#include <algorithm>
#include <cmath>

CChartRange UsableRange(const CChartRange& range)
{
    if (!std::isfinite(range.Minimum) || !std::isfinite(range.Maximum))
    {
        return {};
    }
    const auto [low, high] = std::minmax(range.Minimum, range.Maximum);
    const double middle = low / 2 + high / 2;
    const double shortest = std::max(1e-6, std::abs(middle) * 1e-6);
    if (high - low < shortest)
    {
        const double half = std::max(0.5, std::abs(middle) * 0.1);
        return {middle - half, middle + half};
    }
    return {low, high};
}

CChartRange Stretched(const CChartRange& range, double factor)
{
    const double fixed = std::clamp(0.0, range.Minimum, range.Maximum);
    return {fixed + (range.Minimum - fixed) * factor, fixed + (range.Maximum - fixed) * factor};
}

CChartRanges StretchedToAspect(const CChartRanges& ranges, double aspect)
{
    const CChartRange x = UsableRange(ranges.X);
    const CChartRange y = UsableRange(ranges.Y);
    if (!std::isfinite(aspect) || aspect <= 0)
    {
        return {x, y};
    }
    const double wanted = y.Length() * aspect;
    return x.Length() < wanted ? CChartRanges{Stretched(x, wanted / x.Length()), y}
                               : CChartRanges{x, Stretched(y, x.Length() / wanted)};
}
