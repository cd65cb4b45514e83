// Roll damping by eddies of the bare hull (Ikeda and Himeno 1978), and the bilge radius that it shares with
// the keels'.
#pragma once

#include "oe7/hull/CHullCondition.h"

namespace oe7
{

/// Radius of the bilge (m) of a section of half beam to draft h0, an area coefficient and a draft (m).
double BilgeRadius(double h0, double coefficient, double draft);

/// Int C_R d^4 dx over the hull (m5), not negative: what its shape contributes at rest.
double EddyIntegral(const CHullCondition& hull);
/// The share of the eddies that the flow at a speed (m/s) leaves, at a frequency w > 0 (rad/s).
double EddyShareAtSpeed(double length, double speed, double w);

} // namespace oe7
