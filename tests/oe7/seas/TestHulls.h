// Hull conditions for tests of positions.
#pragma once

#include "oe7/hull/CHullCondition.h"

namespace oe7
{

/// 100 m long, five stations of 20 m beam and 5 m draft, G at midship in the waterline.
inline CHullCondition PlainHull()
{
    CHullCondition hull{CLengthRule(5, 100), {}};
    hull.Density = 1025;
    hull.Length = 100;
    hull.Kg = 5;
    hull.Draft = 5;
    hull.Volume = 6500;
    hull.LargestBeam = 20;
    hull.BlockCoefficient = 0.65;
    CSection section;
    section.Waterline = 5;
    section.Draft = 5;
    section.Beam = 20;
    hull.Sections.assign(5, section);
    return hull;
}

/// The reference ship at its displacement: sections by their beam and their lowest point.
inline CHullCondition ReferenceShip()
{
    constexpr double kXg = 60 - 64.267;
    CHullCondition hull{CLengthRule(11, 120, kXg), {}};
    hull.Density = 1025;
    hull.Length = 120;
    hull.Kg = 5.6;
    hull.Draft = 4.40593;
    hull.Trim = -0.155465;
    hull.Volume = 3951.22;
    hull.Xg = kXg;
    hull.LargestBeam = 14.000;
    hull.BlockCoefficient = 0.5338;
    const std::vector<double> halfBreadths{0, 1.613, 3.603, 5.371, 6.574, 7, 6.962, 6.787, 6.414, 5.798, 4.9};
    const std::vector<double> keels{0.6, 0, 0, 0, 0, 0, 0, 0, 0.919, 2.343, 4.05};
    for (std::size_t n = 0; n < keels.size(); ++n)
    {
        CSection section;
        section.Waterline = hull.Draft + hull.Trim * (static_cast<double>(n) / 10 - 0.5);
        section.Draft = section.Waterline - keels[n];
        section.Beam = 2 * halfBreadths[n];
        hull.Sections.push_back(section);
    }
    return hull;
}

inline CPosition Position(EWaterEvent event, double station, double y, double height, double deckHeight)
{
    CPosition position;
    position.Event = event;
    position.Station = station;
    position.Y = y;
    position.Height = height;
    position.DeckHeight = deckHeight;
    return position;
}

} // namespace oe7
