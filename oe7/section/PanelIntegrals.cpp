#include "oe7/section/PanelIntegrals.h"

#include <cmath>

namespace oe7
{
namespace
{
/// Re(t ln t) - Re t.
double EndOfSource(Complex t)
{
    return t == 0.0 ? 0 : t.real() * (std::log(std::abs(t)) - 1) - t.imag() * std::arg(t);
}

/// The angle under which a panel is seen whose ends lie at t and t - length. None from its own line.
double Angle(Complex t, double length)
{
    return std::abs(t.imag()) < 1e-12 * length ? 0 : std::arg(t - length) - std::arg(t);
}
} // namespace

CPanelIntegral LogarithmIntegral(Complex field, const CPanelLine& panel)
{
    const double length = panel.Length;
    const Complex t = (field - panel.From) * std::conj(panel.Direction);
    const Complex s = (field - std::conj(panel.From)) * panel.Direction;
    return {EndOfSource(t) - EndOfSource(t - length) + EndOfSource(s - length) - EndOfSource(s),
            Angle(t, length) + Angle(s, length)};
}

} // namespace oe7
