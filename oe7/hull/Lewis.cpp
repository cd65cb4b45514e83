#include "oe7/hull/Lewis.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kPi = std::numbers::pi;
// Beyond these ratios the parameters lose their digits.
constexpr double kThinnest = 1e-6;
constexpr double kFlattest = 1e6;

/// The area coefficients between which the image of the circle neither crosses itself nor bends inward.
double LimitedCoefficient(double sigma, double h0)
{
    const double lowest = 3 * kPi / 32 * (2 - std::min(h0, 1 / h0)) + 1e-6;
    const double highest = kPi / 32 * (10 + h0 + 1 / h0) - 1e-6;
    return std::min(std::max(sigma, lowest), highest);
}
} // namespace

CLewisForm LewisForm(double beam, double draft, double area)
{
    CLewisForm form;
    form.H0 = std::clamp(beam / 2 / draft, kThinnest, kFlattest);
    form.Sigma = LimitedCoefficient(area / beam / draft, form.H0);
    const double ratio = (form.H0 - 1) / (form.H0 + 1);
    const double q = ratio * ratio;
    const double c = 3 + 4 * form.Sigma / kPi + (1 - 4 * form.Sigma / kPi) * q;
    form.A3 = (3 - c + std::sqrt(std::max(9 - 2 * c, 0.0))) / c;
    form.A1 = ratio * (form.A3 + 1);
    form.M = beam / 2 / (1 + form.A1 + form.A3);
    return form;
}

} // namespace oe7
