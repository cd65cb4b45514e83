// The stretch of an axis, and how two of them are brought to one scale.
#pragma once

struct CChartRange
{
    double Minimum = 0;
    double Maximum = 1;

    double Length() const { return Maximum - Minimum; }
    bool operator==(const CChartRange&) const = default;
};

struct CChartRanges
{
    CChartRange X;
    CChartRange Y;

    bool operator==(const CChartRanges&) const = default;
};

/// A range to draw: the ends in order, and of a length that isn't 0. What is no number gives 0 to 1.
CChartRange UsableRange(const CChartRange& range);
/// The range times a factor, seen from zero, or from the end that is nearer to zero: what begins on the
/// centreline or baseline still does, and what lies on both sides keeps its shares.
CChartRange Stretched(const CChartRange& range, double factor);
/// Stretches one of the two so that the lengths of X and Y stand as `aspect`, width to height: in a plot of
/// that shape both have one scale.
CChartRanges StretchedToAspect(const CChartRanges& ranges, double aspect);
