// Hulls for tests, point by point.
#pragma once

#include "core/project/CProjectData.h"

#include <utility>
#include <vector>

/// Y and Z of a row; -1 for one that isn't given.
using CPoint = std::pair<float, float>;

/// Gives a station these points from its first row on, and none behind them.
inline void SetStation(CProjectData& project, int station, const std::vector<CPoint>& points)
{
    project.NOFFUSER.Set(station, static_cast<float>(points.size()));
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        const auto k = static_cast<std::size_t>(row);
        const CPoint point = k < points.size() ? points[k] : CPoint(kNotGiven, kNotGiven);
        project.YAUSER.Set(station * kMaxOffsets + row, point.first);
        project.ZAUSERBL.Set(station * kMaxOffsets + row, point.second);
    }
}

/// A flat bottom with a wall: nothing is wrong with it. Seven points at distances of 1, the last at Z 3.
inline std::vector<CPoint> GoodStation()
{
    return {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {3, 3}};
}

/// Any number of such stations.
inline void SetGoodHull(CProjectData& project, int stationCount)
{
    project.NST.Set(static_cast<float>(stationCount));
    for (int station = 0; station < stationCount; ++station)
    {
        SetStation(project, station, GoodStation());
    }
}

/// Points up a wall at Y 1, from Z 0 on, at these distances.
inline std::vector<CPoint> Wall(const std::vector<float>& distances)
{
    std::vector<CPoint> points = {{1.0F, 0.0F}};
    for (const float distance : distances)
    {
        points.emplace_back(1.0F, points.back().second + distance);
    }
    return points;
}
