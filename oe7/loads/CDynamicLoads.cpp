#include "oe7/loads/CDynamicLoads.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace oe7
{
namespace
{
enum ELoad
{
    eHorizontalShear,
    eVerticalShear,
    eTorsion,
    eVerticalBending,
    eHorizontalBending
};

enum EMode
{
    eSurge,
    eSway,
    eHeave,
    eRoll,
    ePitch,
    eYaw,
    eRudder,
    eFinOrTank
};

constexpr double kAtEnd = 1e-9;      ///< of the length: a cut so near to an end is at it
constexpr double kSmallestGm = 1e-6; ///< of the beam: below, it can't be scaled to another

/// Rows of CCut::Rule applied to values at the stations.
using CCutValues = Eigen::Matrix<Complex, 4, 1>;

CCutValues CutValues(const Eigen::Matrix<double, 4, Eigen::Dynamic>& rule, const Eigen::VectorXcd& values)
{
    CCutValues result;
    result.real() = rule * values.real();
    result.imag() = rule * values.imag();
    return result;
}

/// The value of a section quantity at the cut.
constexpr int kAtCut = 3;

/// Force (iw - U d/dx) H on the forward part and its moment about the cut, of H = -Z, and of H = -Z x.
struct CRadiationPart
{
    Complex Force, Moment, ForceX, MomentX;
};

CRadiationPart RadiationPart(const CCutValues& z, Complex iw, double speed, double x0)
{
    const Complex end = speed * z(kAtCut);
    return {-(iw * z(0) + end), -(iw * (z(1) - x0 * z(0)) + speed * z(0)), -(iw * z(1) + x0 * end),
            -(iw * (z(2) - x0 * z(1)) + speed * z(1))};
}

/// Without the angles of rudder and fin or tank.
template <class Matrix>
auto Motions(Matrix& matrix)
{
    return matrix.template leftCols<6>();
}

/// What the inertia of the part forward of the cut takes, per w^2 and motion.
template <class Matrix>
void SetInertia(Matrix& load, const CMassMoments& m, double x0)
{
    const double arm1 = m.M1 - x0 * m.M0;
    const double arm2 = m.M2 - x0 * m.M1;
    load(eHorizontalShear, eSway) = m.M0;
    load(eHorizontalShear, eYaw) = m.M1;
    load(eHorizontalShear, eRoll) = -m.Mz;
    load(eVerticalShear, eHeave) = m.M0;
    load(eVerticalShear, ePitch) = -m.M1;
    load(eTorsion, eRoll) = m.Mk;
    load(eTorsion, eSway) = -m.Mz;
    load(eTorsion, eYaw) = -m.Mxz;
    load(eVerticalBending, eHeave) = -arm1;
    load(eVerticalBending, ePitch) = arm2;
    load(eHorizontalBending, eSway) = arm1;
    load(eHorizontalBending, eYaw) = arm2;
    load(eHorizontalBending, eRoll) = -(m.Mxz - x0 * m.Mz);
}

/// The loads at x0 from a force along a blade's normal.
Eigen::Matrix<double, kLoadComponents, 1> LoadPerForce(const CBlade& blade, double x0)
{
    const double y = blade.Centre.y(), z = blade.Centre.z(), x = blade.Centre.x() - x0;
    const double ny = blade.Normal.y(), nz = blade.Normal.z();
    return {ny, nz, y * nz - z * ny, -x * nz, x * ny};
}
} // namespace

CLoadVector CLoadTransfer::At(const CMotionVector& motions, double rollDamping) const
{
    CLoadVector load = Wave + PerMotion * Eigen::Map<const Eigen::Matrix<Complex, kModes, 1>>(motions.data());
    load(eTorsion) -= RollDamping * rollDamping * motions[eRoll];
    return load;
}

CDynamicLoads::CDynamicLoads(const CInput& input, const CHullCondition& hull, const CMassModel& masses,
                             const std::vector<CSurface>& surfaces)
    : m_hull(hull),
      m_surfaces(surfaces),
      m_centroidHeight(hull.StationCount())
{
    if (input.Tank)
    {
        m_tankX = hull.X(input.Tank->Station);
    }
    for (int station = 0; station < hull.StationCount(); ++station)
    {
        m_centroidHeight(station) = hull.CentroidHeight(station);
    }
    for (const double station : input.LoadStations)
    {
        m_cuts.push_back(Cut(station, masses));
    }
}

CDynamicLoads::CCut CDynamicLoads::Cut(double station, const CMassModel& masses) const
{
    const CLengthRule& rule = m_hull.Rule;
    CCut cut;
    cut.X0 = std::clamp(rule.X(station), rule.Aft(), rule.Bow());
    cut.LengthShare = (rule.Bow() - cut.X0) / rule.Length();
    cut.Rule.resize(4, rule.StationCount());
    cut.Rule.topRows(3) = rule.Moments(2, cut.X0);
    // At the bow no hull is forward of the cut: nothing flows off there.
    const bool atBow = cut.LengthShare < kAtEnd;
    cut.Rule.row(kAtCut) = atBow ? Eigen::RowVectorXd::Zero(rule.StationCount()) : rule.Basis(cut.X0);
    const CMassMoments mass = masses.Forward(cut.X0);
    SetInertia(cut.Inertia, mass, cut.X0);
    AddHydrostatics(cut, mass);
    AddSurfaces(cut);
    return cut;
}

void CDynamicLoads::AddHydrostatics(CCut& cut, const CMassMoments& mass) const
{
    const int stations = m_hull.StationCount();
    Eigen::VectorXd beam(stations), lever(stations), inertia(stations);
    for (int station = 0; station < stations; ++station)
    {
        const CSection& section = m_hull.Sections[static_cast<std::size_t>(station)];
        beam(station) = section.Beam;
        lever(station) = section.Area * m_centroidHeight(station);
        inertia(station) = std::pow(section.Beam, 3) / 12;
    }
    const double weight = m_hull.Density * kGravity;
    const Eigen::Vector3d c = weight * cut.Rule.topRows<3>() * beam;
    const double hanging = weight * cut.Rule.row(0).dot(lever) - kGravity * mass.Mz;
    const bool scaled = m_hull.Gm > kSmallestGm * m_hull.LargestBeam;
    const double roll =
        (weight * cut.Rule.row(0).dot(inertia) + hanging) * (scaled ? m_hull.GmRoll / m_hull.Gm : 1);
    cut.Stiffness(eVerticalShear, eHeave) = -c(0);
    cut.Stiffness(eVerticalShear, ePitch) = c(1);
    cut.Stiffness(eVerticalBending, eHeave) = c(1) - cut.X0 * c(0);
    cut.Stiffness(eVerticalBending, ePitch) = -(c(2) - cut.X0 * c(1)) - hanging;
    cut.Stiffness(eTorsion, eRoll) = -roll;
}

void CDynamicLoads::AddSurfaces(CCut& cut) const
{
    // As the masses, surfaces behind the stations belong to a cut at the aft end: loads close there.
    const bool all = cut.LengthShare > 1 - kAtEnd;
    cut.HasTank = m_tankX && (all || *m_tankX >= cut.X0);
    for (const CSurface& surface : m_surfaces)
    {
        for (const CBlade& blade : surface.Blades)
        {
            if (!all && blade.Centre.x() < cut.X0)
            {
                continue;
            }
            const CLoadRow load = LoadPerForce(blade, cut.X0);
            const CLoadRow lift = load * blade.LiftDamping(m_hull.Density, 1);
            Motions(cut.Inertia) += load * blade.AddedMass * blade.Mode.transpose();
            Motions(cut.Damping) -= lift * blade.Mode.transpose();
            cut.Lift.col(ePitch) -= lift * blade.Normal.z();
            cut.Lift.col(eYaw) += lift * blade.Normal.y();
            cut.Blades.push_back({surface.Kind, &blade, load});
        }
    }
}

std::vector<Eigen::MatrixXcd> CDynamicLoads::Phases(double q) const
{
    std::vector<Eigen::MatrixXcd> phases;
    phases.reserve(m_cuts.size());
    for (const CCut& cut : m_cuts)
    {
        phases.push_back(m_hull.Rule.PhaseMoments(1, q, cut.X0));
    }
    return phases;
}

CLoadTransfer CDynamicLoads::At(int cut, const CLoadCase& loadCase, const Eigen::MatrixXcd& phase) const
{
    const CCut& place = m_cuts[static_cast<std::size_t>(cut)];
    const double w = loadCase.Frequency, speed = loadCase.Speed;
    CLoadTransfer transfer;
    transfer.PerMotion.real() = place.Stiffness + w * w * place.Inertia + speed * speed * place.Lift;
    transfer.PerMotion.imag() = w * speed * place.Damping;
    transfer.RollDamping = Complex(0, w * place.LengthShare);
    AddRadiation(place, loadCase, transfer);
    AddWaves(place, loadCase, phase, transfer);
    AddBlades(place, loadCase, transfer);
    if (place.HasTank && loadCase.Followers && loadCase.Followers->FinOrTank)
    {
        const CComplexVector6& force = loadCase.Followers->FinOrTank->Force;
        transfer.PerMotion(eHorizontalShear, eFinOrTank) += force(eSway);
        transfer.PerMotion(eTorsion, eFinOrTank) += force(eRoll);
        transfer.PerMotion(eHorizontalBending, eFinOrTank) += force(eYaw) - place.X0 * force(eSway);
    }
    return transfer;
}

void CDynamicLoads::AddRadiation(const CCut& cut, const CLoadCase& loadCase, CLoadTransfer& transfer) const
{
    const CStripCoefficients& strips = *loadCase.Strips;
    const auto part = [&](const Eigen::VectorXcd& z)
    { return RadiationPart(CutValues(cut.Rule, z), Complex(0, loadCase.Frequency), loadCase.Speed, cut.X0); };
    const CRadiationPart sway = part(strips.Z22), coupled = part(strips.Z24), heave = part(strips.Z33),
                         roll = part(strips.Z44);
    const Complex drift = loadCase.Speed / Complex(0, loadCase.Frequency);
    auto& load = transfer.PerMotion;
    load(eHorizontalShear, eSway) += sway.Force;
    load(eHorizontalShear, eRoll) += coupled.Force;
    load(eHorizontalShear, eYaw) += sway.ForceX - drift * sway.Force;
    load(eVerticalShear, eHeave) += heave.Force;
    load(eVerticalShear, ePitch) -= heave.ForceX - drift * heave.Force;
    load(eTorsion, eSway) += coupled.Force;
    load(eTorsion, eRoll) += roll.Force;
    load(eTorsion, eYaw) += coupled.ForceX - drift * coupled.Force;
    load(eVerticalBending, eHeave) -= heave.Moment;
    load(eVerticalBending, ePitch) += heave.MomentX - drift * heave.Moment;
    load(eHorizontalBending, eSway) += sway.Moment;
    load(eHorizontalBending, eRoll) += coupled.Moment;
    load(eHorizontalBending, eYaw) += sway.MomentX - drift * sway.Moment;
}

void CDynamicLoads::AddWaves(const CCut& cut, const CLoadCase& loadCase, const Eigen::MatrixXcd& phase,
                             CLoadTransfer& transfer) const
{
    const CSectionalForces& sections = *loadCase.Sections;
    const Complex drift = loadCase.Speed / Complex(0, loadCase.Frequency);
    const double q = loadCase.Wave->WaveNumber * loadCase.Wave->Cosine;
    const Complex end = drift * std::polar(1.0, -q * cut.X0);
    // Force and moment about the cut.
    const auto part = [&](const Eigen::VectorXcd& incident, const Eigen::VectorXcd& diffracted)
    {
        const Eigen::Vector2cd f = phase * incident, h = phase * diffracted;
        const Complex atCut = cut.Rule.row(kAtCut).cast<Complex>() * diffracted;
        const Complex force = f(0) + h(0);
        return std::pair(force + end * atCut, f(1) + h(1) - cut.X0 * force + drift * h(0));
    };
    const auto [swayForce, yawMoment] = part(sections.F2, sections.H2);
    const auto [heaveForce, bowUp] = part(sections.F3, sections.H3);
    const auto [rollMoment, unused] = part(sections.F4, sections.H4);
    const Complex surge = phase.row(0).cwiseProduct(m_centroidHeight.cast<Complex>()) * sections.F1;
    transfer.Wave(eHorizontalShear) = swayForce;
    transfer.Wave(eVerticalShear) = heaveForce;
    transfer.Wave(eTorsion) = rollMoment;
    transfer.Wave(eVerticalBending) = -bowUp + surge;
    transfer.Wave(eHorizontalBending) = yawMoment;
}

void CDynamicLoads::AddBlades(const CCut& cut, const CLoadCase& loadCase, CLoadTransfer& transfer) const
{
    for (const CCutBlade& place : cut.Blades)
    {
        const CBlade& blade = *place.Blade;
        const Complex perVelocity(blade.LiftDamping(m_hull.Density, loadCase.Speed),
                                  loadCase.Wave->Frequency * blade.AddedMass);
        transfer.Wave +=
            place.PerForce * (perVelocity * WaveNormalVelocity(blade, *loadCase.Wave, m_hull.Zg));
        const int angle = place.Kind == ESurface::Rudder ? eRudder : eFinOrTank;
        if (loadCase.Controls)
        {
            transfer.PerMotion.col(angle) +=
                place.PerForce * loadCase.Controls->BladeForcePerAngle(place.Kind, blade);
        }
    }
}

} // namespace oe7
