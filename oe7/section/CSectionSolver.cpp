#include "oe7/section/CSectionSolver.h"

#include "oe7/section/BoundaryElements.h"
#include "oe7/section/ConformalMapping.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kPlateHalfBreadth = 0.02; ///< of the draft
constexpr int kPlatePanels = 24;
constexpr int kPanels = 30;
constexpr double kLeastHalfBreadth = 0.1; ///< of a panel
// Half beam to draft: outside, the poles converge badly.
constexpr double kThinnestForm = 0.25;
constexpr double kFlattestForm = 6;

bool IsNothing(const CSection& section, double largestBeam)
{
    return section.Dry() || !(section.Draft > 0) ||
           (section.Area < 1e-7 * largestBeam * section.Draft && section.Draft < 1e-4 * largestBeam);
}

bool IsPlate(const CSection& section)
{
    double widest = 0;
    for (const CPoint& point : section.Contour)
    {
        widest = std::max(widest, point.Y);
    }
    return widest < kPlateHalfBreadth * section.Draft;
}

/// Whether more than `length` of the contour lies within `least` of the centre plane: not the tip of a keel.
bool HasDeadwood(const std::vector<CPoint>& contour, double least, double length)
{
    double thin = 0;
    for (std::size_t i = 1; i < contour.size(); ++i)
    {
        if (std::max(contour[i - 1].Y, contour[i].Y) < least)
        {
            thin += std::hypot(contour[i].Y - contour[i - 1].Y, contour[i].Z - contour[i - 1].Z);
        }
    }
    return thin > length;
}

/// Deadwood below a wider section gets a breadth: panels that are much nearer to their own image than they
/// are long can't be told from it, and sway would be that of no deadwood, or of nothing real.
std::vector<CPoint> Thickened(const CSection& section, double least)
{
    const std::vector<CPoint>& contour = section.Contour;
    std::vector<CPoint> points{contour.front()};
    const auto add = [&points, least](const CPoint& point)
    {
        if (points.size() == 1 && point.Y < least)
        {
            points.push_back({least, points.front().Z});
        }
        points.push_back({std::max(point.Y, least), point.Z});
    };
    std::for_each(contour.begin() + 1, contour.end() - 1, add);
    const CPoint& last = contour.back();
    if (!section.Submerged)
    {
        add(last);
        return points;
    }
    if (contour[contour.size() - 2].Y < least)
    {
        points.push_back({least, last.Z});
    }
    points.push_back(last);
    return points;
}

std::unique_ptr<CSectionSolver> ContourElements(const CSection& section)
{
    const double length = section.Girth / 2 / kPanels;
    const double least = kLeastHalfBreadth * length;
    const bool thicken = HasDeadwood(section.Contour, least, length);
    return std::make_unique<CBoundaryElements>(
        DividedContour(thicken ? Thickened(section, least) : section.Contour, length), section.Beam,
        section.Draft);
}

std::unique_ptr<CSectionSolver> FormElements(const CLewisForm& form, double beam, double draft, int panels)
{
    return std::make_unique<CBoundaryElements>(LewisContour(form, beam, draft, panels), beam, draft);
}

/// Half an ellipse, which keeps the sway added mass of a stem or of deadwood.
std::unique_ptr<CSectionSolver> PlateSolver(double draft)
{
    const double beam = 2 * kPlateHalfBreadth * draft;
    const double area = std::numbers::pi / 4 * beam * draft;
    return FormElements(LewisForm(beam, draft, area), beam, draft, kPlatePanels);
}

std::unique_ptr<CSectionSolver> FormSolver(const CSection& section)
{
    const CLewisForm form = LewisForm(section.Beam, section.Draft, section.Area);
    if (form.H0 < kThinnestForm || form.H0 > kFlattestForm)
    {
        return FormElements(form, section.Beam, section.Draft, kPanels);
    }
    return std::make_unique<CConformalMapping>(form);
}
} // namespace

double CPanels::N4(int panel) const
{
    const auto k = static_cast<std::size_t>(panel);
    return Y[k] * N3[k] - Z[k] * N2[k];
}

void CPanels::Add(Complex centre, Complex direction, double length)
{
    const Complex normal = Complex(0, -1) * direction;
    Y.push_back(centre.real());
    Z.push_back(centre.imag());
    N2.push_back(normal.real());
    N3.push_back(normal.imag());
    Length.push_back(length);
}

std::unique_ptr<CSectionSolver> MakeSectionSolver(const CSection& section, ESectionMethod method,
                                                  double largestBeam)
{
    if (IsNothing(section, largestBeam))
    {
        return nullptr;
    }
    if (IsPlate(section))
    {
        return PlateSolver(section.Draft);
    }
    // No Lewis form is without a waterline.
    if (method == ESectionMethod::ConformalMapping && section.Beam > 0)
    {
        return FormSolver(section);
    }
    return ContourElements(section);
}

} // namespace oe7
