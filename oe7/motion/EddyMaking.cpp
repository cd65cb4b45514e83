#include "oe7/motion/EddyMaking.h"

#include "oe7/hull/Lewis.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kPi = std::numbers::pi;
constexpr double kLeastDepth = 0.05;       ///< of the axis above the keel, of the draft
constexpr double kThinnest = 0.02;         ///< beam of a section that makes eddies, of its draft
constexpr double kLeastCoefficient = 0.05; ///< of the section about the axis

double Square(double value)
{
    return value * value;
}

/// Distance of a point of a Lewis section from its middle at the waterline; psi as theta, 0 at the keel.
double Distance(const CLewisForm& form, double psi)
{
    return form.M * std::hypot((1 + form.A1) * std::sin(psi) - form.A3 * std::sin(3 * psi),
                               (1 - form.A1) * std::cos(psi) + form.A3 * std::cos(3 * psi));
}

/// Where the flow about the rolling section is fastest: at the keel or at the bilge.
double FastestFlow(const CLewisForm& form)
{
    if (std::abs(form.A3) <= 1e-9)
    {
        return 0;
    }
    const double argument = form.A1 * (1 + form.A3) / (4 * form.A3);
    if (std::abs(argument) > 1)
    {
        return 0;
    }
    const double bilge = 0.5 * std::acos(argument);
    return Distance(form, bilge) > Distance(form, 0) ? bilge : 0;
}

/// The speed of the flow at psi beyond that of the section itself (m per rad).
double ExcessSpeed(const CLewisForm& form, double psi)
{
    const double a1 = form.A1;
    const double a3 = form.A3;
    const double scale =
        1 + a1 * a1 + 9 * a3 * a3 + 2 * a1 * (1 - 3 * a3) * std::cos(2 * psi) - 6 * a3 * std::cos(4 * psi);
    const double a = -2 * a3 * std::cos(5 * psi) + a1 * (1 - a3) * std::cos(3 * psi) +
                     ((6 - 3 * a1) * a3 * a3 + (a1 * a1 - 3 * a1) * a3 + a1 * a1) * std::cos(psi);
    const double b = -2 * a3 * std::sin(5 * psi) + a1 * (1 - a3) * std::sin(3 * psi) +
                     ((6 + 3 * a1) * a3 * a3 + (3 * a1 + a1 * a1) * a3 + a1 * a1) * std::sin(psi);
    return 2 * form.M / std::max(scale, 1e-12) * std::hypot(a, b);
}

/// C_p of the ratio gamma of the fastest to the mean flow.
double PressureCoefficient(double gamma)
{
    return 0.5 * (0.87 * std::exp(-gamma) - 4 * std::exp(-0.187 * gamma) + 3);
}

/// C_R d^4 (m4); `axis` is the depth of G below the local waterline (m).
double EddyOfSection(const CSection& section, double axis)
{
    const double draft = section.Draft;
    if (section.Dry() || !(section.Beam > kThinnest * draft))
    {
        return 0;
    }
    const CLewisForm form = LewisForm(section.Beam, draft, section.Area);
    const double sigma = form.Sigma;
    const double depth = std::max(draft - axis, kLeastDepth * draft);
    const double h0 = form.H0 * draft / depth;
    const double coefficient = std::max((sigma * draft - axis) / depth, kLeastCoefficient);
    const double f1 = 0.5 * (1 + std::tanh(20 * (sigma - 0.7)));
    const double f2 = 0.5 * (1 - std::cos(kPi * sigma)) -
                      1.5 * (1 - std::exp(-5 * (1 - sigma))) * Square(std::sin(kPi * sigma));
    const double f3 = 1 + 4 * std::exp(-1.65e5 * Square(1 - sigma));

    const double psi = FastestFlow(form);
    const double distance = Distance(form, psi);
    const double gamma = std::sqrt(kPi) * f3 / (2 * depth * std::sqrt(std::max(h0 * coefficient, 1e-3))) *
                         (distance + ExcessSpeed(form, psi));
    const double bilge = f1 * BilgeRadius(form.H0, sigma, draft) / draft;
    const double levers = (1 - bilge) * (depth / draft - bilge) + f2 * Square(form.H0 - bilge);
    return std::max(Square(distance * draft) * PressureCoefficient(gamma) * levers, 0.0);
}
} // namespace

double BilgeRadius(double h0, double coefficient, double draft)
{
    if (coefficient >= 1)
    {
        return 0;
    }
    const double radius = 2 * draft * std::sqrt(h0 * (coefficient - 1) / (kPi - 4));
    return std::min(radius, std::min(h0, 1.0) * draft);
}

double EddyIntegral(const CHullCondition& hull)
{
    double integral = 0;
    for (int n = 0; n < hull.StationCount(); ++n)
    {
        const CSection& section = hull.Sections[static_cast<std::size_t>(n)];
        integral += hull.Rule.Weights()(n) * EddyOfSection(section, section.Waterline - hull.Kg);
    }
    return std::max(integral, 0.0);
}

double EddyShareAtSpeed(double length, double speed, double w)
{
    if (!(speed > 0))
    {
        return 1;
    }
    const double k = 0.04 * w * length / speed;
    return k * k / (1 + k * k);
}

} // namespace oe7
