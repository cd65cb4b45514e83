#include "oe7/hull/CHullCondition.h"

#include "core/platform/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace oe7
{
namespace
{
constexpr int kMostSteps = 60;
constexpr double kSmallestStep = 1e-7; ///< of the length
constexpr double kLeastGm = 0.02;      ///< of the beam, in the roll equation

/// A waterline that is tried for a wanted displacement.
struct CFloat
{
    double Draft = 0; ///< m at midship
    double Trim = 0;  ///< m by the stern
};

/// Integrals over the length, x from midship.
struct CIntegrals
{
    double Volume = 0;
    double VolumeMoment = 0; ///< Int x A dx
    double Waterplane = 0;
    double WaterplaneMoment = 0;  ///< Int x b dx
    double WaterplaneInertia = 0; ///< Int x^2 b dx
};

/// The design draft that the given drafts of formed sections belong to (m above the baseline).
double DesignDraft(const CInput& input)
{
    double draft = 0;
    for (const CSectionDimensions& section : input.Dimensions)
    {
        draft = std::max(draft, section.Draft);
    }
    return draft;
}

CSection SectionAt(const CInput& input, int station, double waterline)
{
    const auto n = static_cast<std::size_t>(station);
    if (n < input.Offsets.size())
    {
        return ClippedSection(input.Offsets[n], waterline);
    }
    const CSectionDimensions dimensions =
        n < input.Dimensions.size() ? input.Dimensions[n] : CSectionDimensions{};
    const double rise = input.ByDisplacement ? waterline - DesignDraft(input) : 0;
    return FormedSection(dimensions, dimensions.Draft + rise, waterline);
}

std::vector<CSection> SectionsAt(const CInput& input, const CFloat& afloat)
{
    std::vector<CSection> sections;
    for (int n = 0; n < input.StationCount; ++n)
    {
        const double aft = static_cast<double>(n) / (input.StationCount - 1) - 0.5;
        sections.push_back(SectionAt(input, n, afloat.Draft + afloat.Trim * aft));
    }
    return sections;
}

template <class Quantity>
Eigen::VectorXd Values(const std::vector<CSection>& sections, const Quantity& quantity)
{
    Eigen::VectorXd values(static_cast<Eigen::Index>(sections.size()));
    std::transform(sections.begin(), sections.end(), values.begin(), quantity);
    return values;
}

CIntegrals Integrate(const CInput& input, const std::vector<CSection>& sections)
{
    const CLengthRule rule(input.StationCount, input.Length);
    const Eigen::MatrixXd moments = rule.Moments(2, rule.Aft());
    const Eigen::VectorXd areas = moments * Values(sections, [](const CSection& s) { return s.Area; });
    const Eigen::VectorXd beams = moments * Values(sections, [](const CSection& s) { return s.Beam; });
    return {areas(0), areas(1), beams(0), beams(1), beams(2)};
}

/// Where the search for a waterline begins, and how large a step of it may be.
struct CStart
{
    CFloat Afloat;
    double LargestStep = 0; ///< m
};

CStart SearchStart(const CInput& input)
{
    if (input.Offsets.empty())
    {
        const double draft = DesignDraft(input);
        return {{draft, 0}, draft / 4};
    }
    double lowest = HUGE_VAL;
    double highest = -HUGE_VAL;
    for (const COffsets& offsets : input.Offsets)
    {
        for (const double z : offsets.Z)
        {
            lowest = std::min(lowest, z);
            highest = std::max(highest, z);
        }
    }
    const double depth = highest - lowest;
    return {{lowest + depth / 2, 0}, depth / 4};
}

/// The change of the waterline that brings volume (m3) and its moment about midship (m4) to what is wanted.
CFloat NewtonStep(const CIntegrals& now, double volume, double moment, double length, double largest)
{
    const double lack = volume - now.Volume;
    const double momentLack = moment - now.VolumeMoment;
    const double determinant =
        (now.WaterplaneMoment * now.WaterplaneMoment - now.Waterplane * now.WaterplaneInertia) / length;
    if (!(std::abs(determinant) > 0))
    {
        // Above or below all points: the waterplane tells nothing.
        return {std::copysign(largest, lack), 0};
    }
    const double draft =
        (-lack * now.WaterplaneInertia + momentLack * now.WaterplaneMoment) / length / determinant;
    const double trim = (now.Waterplane * momentLack - now.WaterplaneMoment * lack) / determinant;
    return {std::clamp(draft, -largest, largest), std::clamp(trim, -largest, largest)};
}

CFloat FindFloat(const CInput& input)
{
    if (!input.ByDisplacement)
    {
        return {input.Draft, input.Trim};
    }
    const double volume = input.Displacement / input.Density();
    const double moment = volume * (input.Length / 2 - input.CentreFromStation0);
    auto [afloat, largest] = SearchStart(input);
    for (int n = 0; volume > 0 && n < kMostSteps; ++n)
    {
        const CIntegrals now = Integrate(input, SectionsAt(input, afloat));
        const CFloat step = NewtonStep(now, volume, moment, input.Length, largest);
        afloat.Draft += step.Draft;
        afloat.Trim += step.Trim;
        if (std::max(std::abs(step.Draft), std::abs(step.Trim)) < kSmallestStep * input.Length)
        {
            return afloat;
        }
    }
    throw CInputError("No waterline was found that gives the displacement and LCG");
}

double Cubed(double value)
{
    return value * value * value;
}

void CheckAfloat(const CIntegrals& integrals, const CFloat& afloat)
{
    if (!(integrals.Volume > 0))
    {
        throw CInputError("The hull displaces no water");
    }
    if (!(integrals.Waterplane > 0))
    {
        throw CInputError("The hull has no waterplane: it lies below the water");
    }
    if (!(afloat.Draft > 0))
    {
        throw CInputError("The waterline amidships doesn't lie above the baseline");
    }
}

/// All that follows from the sections but not from G.
void SetForm(CHullCondition& hull, const CIntegrals& integrals)
{
    const Eigen::RowVectorXd& weights = hull.Rule.Weights();
    const auto integral = [&](const auto& quantity) { return weights.dot(Values(hull.Sections, quantity)); };
    hull.Volume = integrals.Volume;
    hull.Mass = hull.Density * hull.Volume;
    hull.Xg = integrals.VolumeMoment / hull.Volume;
    hull.WaterplaneArea = integrals.Waterplane;
    hull.Lcf = integrals.WaterplaneMoment / hull.WaterplaneArea;
    hull.WettedSurface = integral([](const CSection& s) { return s.Girth; });
    hull.Kb = integral([](const CSection& s) { return s.Area * (s.Waterline + s.CentroidZ); }) / hull.Volume;
    hull.Bm = integral([](const CSection& s) { return Cubed(s.Beam) / 12; }) / hull.Volume;
    for (const CSection& section : hull.Sections)
    {
        hull.LargestBeam = std::max(hull.LargestBeam, section.Beam);
    }
    hull.BlockCoefficient = hull.Volume / (hull.Length * hull.LargestBeam * hull.Draft);
}

/// Stability and stiffness about G.
void SetStiffness(CHullCondition& hull, const std::optional<double>& givenGm, CRunLog& log)
{
    hull.Zg = hull.Kg - hull.Waterline(0);
    hull.Gm = hull.Kb + hull.Bm - hull.Kg;
    hull.GmUsed = givenGm.value_or(hull.Gm);
    hull.GmRoll = hull.GmUsed;
    if (!(hull.GmUsed > 0))
    {
        hull.GmRoll = kLeastGm * hull.LargestBeam;
        log.Warn("GM isn't positive: the roll equation takes 0.02 times the beam");
    }
    const double weight = hull.Mass * kGravity;
    const double perArea = hull.Density * kGravity;
    // The square of the distance is part of the integrand that is interpolated, as in the strips' integrals.
    double inertia = 0;
    for (int n = 0; n < hull.StationCount(); ++n)
    {
        const double beam = hull.Sections[static_cast<std::size_t>(n)].Beam;
        inertia += hull.Rule.Weights()(n) * hull.X(n) * hull.X(n) * beam;
    }
    hull.C33 = perArea * hull.WaterplaneArea;
    hull.C35 = -hull.C33 * (hull.Lcf - hull.Xg);
    hull.C44 = weight * hull.GmRoll;
    hull.C55 = perArea * inertia + weight * (hull.Kb - hull.Kg);
}

void Check(const CHullCondition& hull)
{
    const std::array values{hull.Mass, hull.Xg,  hull.Zg,  hull.Gm,  hull.GmUsed, hull.WettedSurface,
                            hull.Lcf,  hull.C33, hull.C35, hull.C44, hull.C55,    hull.BlockCoefficient};
    if (!std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); }))
    {
        throw CInputError("The hydrostatics of the hull can't be calculated: its dimensions make no ship");
    }
}

void NoteExtended(const CHullCondition& hull, CRunLog& log)
{
    std::string stations;
    for (int n = 0; n < hull.StationCount(); ++n)
    {
        if (hull.Sections[static_cast<std::size_t>(n)].Extended)
        {
            stations += (stations.empty() ? "" : ", ") + IntegerText(n);
        }
    }
    if (!stations.empty())
    {
        log.Note("The points end below the water and were carried straight up to it at station " + stations);
    }
}
} // namespace

double CHullCondition::CentroidHeight(int station) const
{
    const CSection& section = Sections[static_cast<std::size_t>(station)];
    return section.Dry() ? 0 : Z(section.Waterline + section.CentroidZ);
}

int CHullCondition::NearestStation(double x) const
{
    const int last = StationCount() - 1;
    const double station = (Rule.Bow() - x) * last / Length;
    // The forward one of two that are as near. What isn't a number counts as the bow.
    return station > 0 ? static_cast<int>(std::min(std::ceil(station - 0.5), static_cast<double>(last))) : 0;
}

CHullCondition FindCondition(const CInput& input, CRunLog& log)
{
    if (input.StationCount < 2 || !(input.Length > 0))
    {
        throw CInputError("A hull needs a length and at least two stations");
    }
    const CFloat afloat = FindFloat(input);
    std::vector<CSection> sections = SectionsAt(input, afloat);
    const CIntegrals integrals = Integrate(input, sections);
    CheckAfloat(integrals, afloat);
    const double centre = integrals.VolumeMoment / integrals.Volume;
    CHullCondition hull{.Rule = CLengthRule(input.StationCount, input.Length, centre),
                        .Sections = std::move(sections),
                        .Density = input.Density(),
                        .Length = input.Length,
                        .Kg = input.Kg,
                        .Draft = afloat.Draft,
                        .Trim = afloat.Trim};
    SetForm(hull, integrals);
    SetStiffness(hull, input.Gm, log);
    Check(hull);
    NoteExtended(hull, log);
    return hull;
}

} // namespace oe7
