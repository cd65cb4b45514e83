#include "oe7/hull/CSection.h"

#include "oe7/hull/Lewis.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kSamePoint = 1e-12; ///< m
constexpr int kLewisSteps = 24;

/// The points of a station about the local waterline, led from the centre line if they begin beside it.
std::vector<CPoint> AboutWaterline(const COffsets& offsets, double waterline)
{
    std::vector<CPoint> points;
    const std::size_t count = std::min(offsets.Y.size(), offsets.Z.size());
    if (count > 0 && offsets.Y[0] > 0)
    {
        points.push_back({0, offsets.Z[0] - waterline});
    }
    for (std::size_t n = 0; n < count; ++n)
    {
        points.push_back({offsets.Y[n], offsets.Z[n] - waterline});
    }
    return points;
}

CPoint Crossing(const CPoint& a, const CPoint& b)
{
    return {a.Y + (b.Y - a.Y) * (a.Z / (a.Z - b.Z)), 0};
}

/// What of the points lies below z = 0, up to where they first rise through it.
std::vector<CPoint> BelowWater(const std::vector<CPoint>& points)
{
    std::vector<CPoint> below;
    for (std::size_t n = 0; n < points.size(); ++n)
    {
        const bool wet = points[n].Z < 0;
        const bool wasWet = n > 0 && points[n - 1].Z < 0;
        if (n > 0 && wet != wasWet)
        {
            below.push_back(Crossing(points[n - 1], points[n]));
        }
        if (wasWet && !wet)
        {
            break;
        }
        if (wet)
        {
            below.push_back(points[n]);
        }
    }
    return below;
}

void DropRepeated(std::vector<CPoint>& points)
{
    const auto same = [](const CPoint& a, const CPoint& b)
    { return std::hypot(a.Y - b.Y, a.Z - b.Z) < kSamePoint; };
    points.erase(std::unique(points.begin(), points.end(), same), points.end());
}

/// Area, centroid, draft and girth of the contour; both sides count.
void Measure(CSection& section)
{
    double moment = 0;
    for (std::size_t n = 1; n < section.Contour.size(); ++n)
    {
        const CPoint& a = section.Contour[n - 1];
        const CPoint& b = section.Contour[n];
        section.Area += (a.Y + b.Y) * (b.Z - a.Z);
        moment += (b.Z - a.Z) * (a.Y * (2 * a.Z + b.Z) + b.Y * (a.Z + 2 * b.Z)) / 3;
        section.Girth += 2 * std::hypot(b.Y - a.Y, b.Z - a.Z);
    }
    for (const CPoint& point : section.Contour)
    {
        section.Draft = std::max(section.Draft, -point.Z);
    }
    section.CentroidZ = section.Area > 0 ? moment / section.Area : 0;
}
} // namespace

std::vector<CPoint> LewisContour(const CLewisForm& form, double beam, double draft, int steps)
{
    std::vector<CPoint> contour{{0, -draft}};
    for (int n = 1; n < steps; ++n)
    {
        const double theta = std::numbers::pi / 2 * n / steps;
        contour.push_back({form.M * ((1 + form.A1) * std::sin(theta) - form.A3 * std::sin(3 * theta)),
                           -form.M * ((1 - form.A1) * std::cos(theta) + form.A3 * std::cos(3 * theta))});
    }
    contour.push_back({beam / 2, 0});
    return contour;
}

CSection ClippedSection(const COffsets& offsets, double waterline)
{
    CSection section;
    section.Waterline = waterline;
    section.Contour = BelowWater(AboutWaterline(offsets, waterline));
    if (!section.Contour.empty() && section.Contour.back().Z < 0)
    {
        section.Extended = section.Contour.back().Y > 0;
        section.Submerged = !section.Extended;
        if (section.Extended)
        {
            section.Contour.push_back({section.Contour.back().Y, 0});
        }
    }
    DropRepeated(section.Contour);
    if (section.Contour.size() < 2)
    {
        // A single point displaces nothing.
        section.Contour.clear();
        section.Extended = section.Submerged = false;
        return section;
    }
    Measure(section);
    section.Beam = section.Submerged ? 0 : 2 * section.Contour.back().Y;
    return section;
}

CSection FormedSection(const CSectionDimensions& dimensions, double draft, double waterline)
{
    CSection section;
    section.Waterline = waterline;
    if (!(draft > 0))
    {
        return section;
    }
    const double beam = std::max(dimensions.Beam, 0.0);
    const double area = std::max(dimensions.Coefficient, 0.0) * beam * draft;
    // Without a breadth a station is a plate.
    section.Contour = beam > 0 ? LewisContour(LewisForm(beam, draft, area), beam, draft, kLewisSteps)
                               : std::vector<CPoint>{{0, -draft}, {0, 0}};
    Measure(section);
    // The dimensions are what was asked for: the curve of a full section bulges out below its draft.
    section.Area = area;
    section.Beam = beam;
    section.Draft = draft;
    return section;
}

} // namespace oe7
