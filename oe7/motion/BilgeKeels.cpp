#include "oe7/motion/BilgeKeels.h"

#include "oe7/motion/EddyMaking.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kPi = std::numbers::pi;
constexpr double kSmallestAmplitude = 1e-4; ///< rad

double Square(double value)
{
    return value * value;
}

CBilgeKeelPart MakePart(const CKeelSegment& segment, const CHullCondition& hull)
{
    const int station = hull.NearestStation(hull.X((segment.Forward + segment.Aft) / 2));
    const CSection& section = hull.Sections[static_cast<std::size_t>(station)];
    CBilgeKeelPart part;
    part.Length = std::abs(hull.X(segment.Aft) - hull.X(segment.Forward));
    part.Breadth = segment.Breadth;
    part.Radius = std::hypot(segment.Y, hull.Z(segment.Z));
    part.AxisDepth = section.Waterline - hull.Kg;

    const bool usable = section.Beam > 0 && section.Draft > 0;
    part.Draft = usable ? section.Draft : hull.Draft;
    const double beam = usable ? section.Beam : hull.LargestBeam;
    const double coefficient = usable ? std::clamp(section.Area / (beam * part.Draft), 0.3, 0.9999) : 0.9;
    part.H0 = beam / (2 * part.Draft);
    part.BilgeRadius = BilgeRadius(part.H0, coefficient, part.Draft);
    part.SpeedFactor = 1 + 0.3 * std::exp(-160 * (1 - coefficient));
    return part;
}

/// The moment of the pressures on the hull about the axis, per d^2: suction behind the keel (first, with the
/// coefficient `behind`) and pressure before it.
double HullPressure(const CBilgeKeelPart& part, double separation, double behind)
{
    const double h0 = part.H0;
    const double m1 = std::min(part.BilgeRadius / part.Draft, 0.95 * h0);
    const double m2 = part.AxisDepth / part.Draft;
    const double m3 = 1 - m1 - m2;
    const double m4 = h0 - m1;
    const double wide = h0 - 0.215 * m1;
    const double deep = 1 - 0.215 * m1;
    const double m5 = (0.414 * h0 + 0.0651 * m1 * m1 - (0.382 * h0 + 0.0106) * m1) / (wide * deep);
    const double m6 = (0.414 * h0 + 0.0651 * m1 * m1 - (0.382 + 0.0106 * h0) * m1) / (wide * deep);
    const bool beyondBilge = separation > 0.25 * kPi * part.BilgeRadius;
    const double m7 = beyondBilge ? separation / part.Draft - 0.25 * kPi * m1 : 0;
    const double m8 = beyondBilge
                          ? m7 + 0.414 * m1
                          : 1.414 * m1 * (1 - std::cos(std::min(separation / part.BilgeRadius, kPi / 2)));
    const double a2 = (m3 + m4) * m8 - m7 * m7;
    const double b2 =
        m4 * m4 * m4 / (3 * wide) + Square(1 - m1) * (2 * m3 - m2) / (6 * deep) + m1 * (m3 * m5 + m4 * m6);
    return std::max(-a2 * behind + 1.2 * b2, 0.0);
}

/// Of both keels, per length (N s).
double DampingPerLength(const CBilgeKeelPart& part, double density, double w, double amplitude)
{
    const double f = part.SpeedFactor;
    const double breadth = part.Breadth;
    // Keel breadth to the way of the water past it, the inverse of the Keulegan-Carpenter number.
    const double slowness = breadth / (kPi * part.Radius * std::max(amplitude, kSmallestAmplitude) * f);
    const double common = 4 / (3 * kPi) * density * Square(part.Radius * f) * w * amplitude;
    const double normal = 2 * part.Radius * breadth * (22.5 * slowness + 2.4);
    const double separation = 0.3 * kPi * f * part.Radius * amplitude + 1.95 * breadth;
    const double pressure = HullPressure(part, separation, -22.5 * slowness - 1.2);
    return common * (normal + Square(part.Draft) * pressure);
}
} // namespace

CBilgeKeelPair MakeBilgeKeels(const CKeelPair& keels, const CHullCondition& hull)
{
    CBilgeKeelPair pair;
    for (const CKeelSegment& segment : keels)
    {
        const CBilgeKeelPart part = MakePart(segment, hull);
        if (part.Length > 0 && part.Breadth > 0 && part.Radius > 0)
        {
            pair.push_back(part);
        }
    }
    return pair;
}

double KeelRollDamping(const CBilgeKeelPair& keels, double density, double w, double amplitude)
{
    double sum = 0;
    for (const CBilgeKeelPart& part : keels)
    {
        sum += DampingPerLength(part, density, w, amplitude) * part.Length;
    }
    return sum;
}

double KeelLiftDamping(const CBilgeKeelPair& keels, double density, double speed)
{
    const auto broadest = std::max_element(keels.begin(), keels.end(),
                                           [](const CBilgeKeelPart& a, const CBilgeKeelPart& b)
                                           { return a.Breadth < b.Breadth; });
    return broadest == keels.end() ? 0 : kPi * density * speed * Square(broadest->Breadth * broadest->Radius);
}

} // namespace oe7
