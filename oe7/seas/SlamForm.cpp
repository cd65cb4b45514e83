// Form factors of the impact pressure.
#include "oe7/hull/Lewis.h"
#include "oe7/seas/CPositionResults.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
/// The half section of the slam offsets, heights from its first point.
struct CSlamContour
{
    std::vector<double> Y;
    std::vector<double> Z;

    explicit CSlamContour(const CPosition& position) : Y(position.SlamY), Z(position.SlamZ)
    {
        const std::size_t count = std::min(Y.size(), Z.size());
        Y.resize(count);
        Z.resize(count);
        for (double& z : Z)
        {
            z -= position.SlamZ.front();
        }
    }
    double Top() const { return *std::max_element(Z.begin(), Z.end()); }
    double HalfBreadth(double height) const;
    double Area(double height) const;
};

/// Of the outermost crossing, 0 if there is none.
double CSlamContour::HalfBreadth(double height) const
{
    const double tolerance = 1e-9 * Top();
    double outermost = 0;
    for (std::size_t n = 1; n < Z.size(); ++n)
    {
        const auto [low, high] = std::minmax(Z[n - 1], Z[n]);
        if (height < low - tolerance || height > high + tolerance)
        {
            continue;
        }
        const double rise = Z[n] - Z[n - 1];
        const bool level = std::abs(rise) <= tolerance;
        const double part = level ? 0 : std::clamp((height - Z[n - 1]) / rise, 0.0, 1.0);
        const double y = level ? std::max(Y[n - 1], Y[n]) : Y[n - 1] + part * (Y[n] - Y[n - 1]);
        outermost = std::max(outermost, y);
    }
    return outermost;
}

/// Both sides, up to a height.
double CSlamContour::Area(double height) const
{
    std::vector<double> heights{0, height};
    std::copy_if(Z.begin(), Z.end(), std::back_inserter(heights),
                 [height](double z) { return z > 0 && z < height; });
    std::sort(heights.begin(), heights.end());
    double area = 0;
    for (std::size_t n = 1; n < heights.size(); ++n)
    {
        area += (HalfBreadth(heights[n - 1]) + HalfBreadth(heights[n])) * (heights[n] - heights[n - 1]);
    }
    return area;
}

CSlamForm Finite(const CSlamForm& form)
{
    return std::isfinite(form.FormFactor) && std::isfinite(form.Width) ? form : CSlamForm{};
}

CSlamForm WedgeForm(double deadrise, double height)
{
    const double tangent = std::tan(deadrise * std::numbers::pi / 180);
    if (!(deadrise > 0 && deadrise < 90 && height > 0))
    {
        return {};
    }
    // The width makes the largest pressure the force of the whole wedge.
    const double square = tangent * tangent;
    const double factor = 1 + std::pow(std::numbers::pi, 2) / 4 / square;
    const double width =
        std::min(std::pow(std::numbers::pi, 3) / 2 * height / (square * factor), 2 * height / tangent);
    return Finite({factor, width});
}

CSlamForm OffsetForm(const CPosition& position)
{
    if (std::min(position.SlamY.size(), position.SlamZ.size()) < 2)
    {
        return {};
    }
    const CSlamContour contour(position);
    const double height = position.LoadHeight > 0 ? position.LoadHeight : contour.Top() / 10;
    const double halfBreadth = contour.HalfBreadth(height);
    const double area = contour.Area(height);
    if (!(height > 0 && halfBreadth > 0 && area > 0))
    {
        return {};
    }
    const CLewisForm lewis = LewisForm(2 * halfBreadth, height, area);
    // The pressure falls linearly to nothing at the half breadth, on either side.
    return Finite({std::exp(1.377 + 2.419 * lewis.A1 - 0.873 * lewis.A3), halfBreadth});
}
} // namespace

CSlamForm SlamForm(const CPosition& position)
{
    switch (position.Event)
    {
    case EWaterEvent::SlamForm:
        return {position.FormFactor, position.Width};
    case EWaterEvent::SlamWedge:
        return WedgeForm(position.Deadrise, position.WedgeHeight);
    case EWaterEvent::SlamOffset:
        return OffsetForm(position);
    case EWaterEvent::None:
    case EWaterEvent::DeckWetness:
    case EWaterEvent::Emergence:
        break;
    }
    return {};
}

} // namespace oe7
