#include "oe7/motion/StripTheory.h"

#include <cmath>
#include <numbers>

namespace oe7
{

namespace
{
constexpr Complex kI(0, 1);
constexpr double kLowestPerRoot = 0.3;      ///< lowest evaluated frequency to sqrt(g/L)
constexpr double kSurgeFriction = 0.004;    ///< damping of surge per density, wetted surface and speed
constexpr double kSlendernessShift = 14;    ///< in the denominator of the surge added mass
constexpr double kLeastSlenderness = 5;     ///< of that denominator
constexpr double kFullSurgeAddedMass = 0.2; ///< per mass, of ships that aren't slender
constexpr double kSmallAngle = 1e-6;        ///< sin(a)/a is 1 below

/// A coefficient's moments over the length, and its value at the aft end if the end term is taken.
struct CLengthSums
{
    Complex I0, I1, I2;
    Complex Aft;
};

CLengthSums SumsOf(const CHullCondition& hull, const Eigen::VectorXcd& z, bool endTerm)
{
    CLengthSums sums;
    for (int n = 0; n < hull.StationCount(); ++n)
    {
        const double x = hull.X(n);
        const Complex weighted = hull.Rule.Weights()(n) * z(n);
        sums.I0 += weighted;
        sums.I1 += weighted * x;
        sums.I2 += weighted * x * x;
    }
    sums.Aft = endTerm ? z(z.size() - 1) : 0;
    return sums;
}

/// Elements of the radiation matrix for a translation across the ship and the turn that goes with it, in the
/// sense of sway and yaw; heave and pitch turn the other way.
struct CElements
{
    double W = 0;     ///< rad/s
    double Speed = 0; ///< m/s
    double Aft = 0;   ///< m from G, of the aft end

    Complex ForceOfShift(const CLengthSums& z) const { return kI * W * z.I0 + Speed * z.Aft; }
    Complex MomentOfShift(const CLengthSums& z) const
    {
        return kI * W * z.I1 + Speed * z.I0 + Speed * Aft * z.Aft;
    }
    Complex ForceOfTurn(const CLengthSums& z) const
    {
        return kI * W * z.I1 - Speed * z.I0 + Speed * z.Aft * (Aft - Speed / (kI * W));
    }
    Complex MomentOfTurn(const CLengthSums& z) const
    {
        return kI * W * z.I2 + kI * (Speed * Speed / W) * z.I0 +
               Speed * z.Aft * Aft * (Aft - Speed / (kI * W));
    }
};

/// Sums over the panels of a half section, without their common factors.
struct CPanelSums
{
    double F1 = 0, F2 = 0, F3 = 0, F4 = 0;
    Complex H2, H3, H4;
};

CPanelSums SumsOf(const CPanels& panels, const CPotentials& psi, const CWave& wave, double zG)
{
    CPanelSums sums;
    for (int m = 0; m < panels.Count(); ++m)
    {
        const auto i = static_cast<std::size_t>(m);
        const double y = panels.Y[i];
        const double n2 = panels.N2[i];
        const double n3 = panels.N3[i];
        const double angle = wave.WaveNumber * y * wave.Sine;
        const double sine = std::sin(angle);
        const double cosine = std::cos(angle);
        const double ratio = std::abs(angle) < kSmallAngle ? 1 : sine / angle;
        const double decayed = std::exp(wave.WaveNumber * panels.Z[i]) * panels.Length[i];

        sums.F1 += n2 * y * ratio * decayed;
        sums.F2 += n2 * sine * decayed;
        sums.F3 += n3 * cosine * decayed;
        sums.F4 += (panels.N4(m) + zG * n2) * sine * decayed;
        const double sideways = (n3 * sine + wave.Sine * n2 * cosine) * decayed;
        sums.H2 += psi(m, 0) * sideways;
        sums.H3 += psi(m, 1) * ((n3 * cosine - wave.Sine * n2 * sine) * decayed);
        sums.H4 += psi(m, 2) * sideways;
    }
    return sums;
}

CSectionalForces NoForces(int stations, double w)
{
    CSectionalForces forces;
    forces.Frequency = w;
    for (Eigen::VectorXcd* values :
         {&forces.F1, &forces.F2, &forces.F3, &forces.F4, &forces.H2, &forces.H3, &forces.H4})
    {
        values->setZero(stations);
    }
    return forces;
}

/// What one station's forces are gathered with.
struct CGathering
{
    const Eigen::MatrixXcd& Phase; ///< the length rule's, orders 0 and 1 of x
    Complex Passage;               ///< m, U/(iw)
    Complex AftPhase;              ///< of the wave at the aft end
    double Aft = 0;                ///< m from G
};

/// Force across the ship and its moment in the sense of yaw.
struct CForceAndMoment
{
    Complex Force, Moment;
};

CForceAndMoment Gathered(const CGathering& gathering, const Eigen::VectorXcd& f, const Eigen::VectorXcd& h,
                         bool endTerm)
{
    const Eigen::Vector2cd along = gathering.Phase.topRows(2) * f + gathering.Phase.topRows(2) * h;
    const Complex diffraction = gathering.Phase.row(0) * h;
    const Complex end = endTerm ? gathering.Passage * h(h.size() - 1) * gathering.AftPhase : 0;
    return {along(0) + end, along(1) + gathering.Passage * diffraction + gathering.Aft * end};
}
} // namespace

double LowestEvaluated(double length)
{
    return kLowestPerRoot * std::sqrt(kGravity / length);
}

double EvaluatedFrequency(double encounter, double length)
{
    const double lowest = LowestEvaluated(length);
    if (std::abs(encounter) >= lowest)
    {
        return encounter;
    }
    return encounter < 0 ? -lowest : lowest;
}

CStripCoefficients StripCoefficients(const CSectionPotentials& potentials, double w)
{
    const int stations = potentials.StationCount();
    CStripCoefficients strips{w, Eigen::VectorXcd(stations), Eigen::VectorXcd(stations),
                              Eigen::VectorXcd(stations), Eigen::VectorXcd(stations)};
    for (int n = 0; n < stations; ++n)
    {
        const CSectionCoefficients section = potentials.CoefficientsAt(n, w);
        strips.Z22(n) = section.Z22;
        strips.Z24(n) = section.Z24;
        strips.Z33(n) = section.Z33;
        strips.Z44(n) = section.Z44;
    }
    return strips;
}

CComplexMatrix6 RadiationMatrix(const CHullCondition& hull, const CStripCoefficients& strips, double speed,
                                const CEndTerms& endTerms)
{
    const CElements element{strips.Frequency, speed, hull.Rule.Aft()};
    const CLengthSums z22 = SumsOf(hull, strips.Z22, endTerms.Sway);
    const CLengthSums z24 = SumsOf(hull, strips.Z24, endTerms.Roll);
    const CLengthSums z33 = SumsOf(hull, strips.Z33, endTerms.Vertical);
    const CLengthSums z44 = SumsOf(hull, strips.Z44, endTerms.Roll);

    CComplexMatrix6 matrix = CComplexMatrix6::Zero();
    matrix(2, 2) = element.ForceOfShift(z33);
    matrix(2, 4) = -element.ForceOfTurn(z33);
    matrix(4, 2) = -element.MomentOfShift(z33);
    matrix(4, 4) = element.MomentOfTurn(z33);
    matrix(1, 1) = element.ForceOfShift(z22);
    matrix(1, 5) = element.ForceOfTurn(z22);
    matrix(5, 1) = element.MomentOfShift(z22);
    matrix(5, 5) = element.MomentOfTurn(z22);
    matrix(1, 3) = element.ForceOfShift(z24);
    matrix(3, 1) = matrix(1, 3);
    matrix(3, 3) = element.ForceOfShift(z44);
    matrix(3, 5) = element.ForceOfTurn(z24);
    matrix(5, 3) = element.MomentOfShift(z24);
    return matrix;
}

CSectionalForces SectionalForces(const CHullCondition& hull, const CSectionPotentials& potentials,
                                 const CWave& wave, double w)
{
    const int stations = potentials.StationCount();
    const double weight = 2 * hull.Density * kGravity;
    const double diffraction = 2 * hull.Density * w * wave.Frequency;
    CSectionalForces forces = NoForces(stations, w);
    CPotentials psi;
    for (int n = 0; n < stations; ++n)
    {
        const CPanels& panels = potentials.Panels(n);
        if (panels.Count() == 0)
        {
            continue;
        }
        potentials.PotentialsAt(n, w, psi);
        const CPanelSums sums = SumsOf(panels, psi, wave, hull.Zg);
        forces.F1(n) = Complex(0, weight * wave.WaveNumber * wave.Cosine * sums.F1);
        forces.F2(n) = Complex(0, weight * sums.F2);
        forces.F3(n) = -weight * sums.F3;
        forces.F4(n) = Complex(0, weight * sums.F4);
        forces.H2(n) = -kI * diffraction * sums.H2;
        forces.H3(n) = diffraction * sums.H3;
        forces.H4(n) = -kI * diffraction * sums.H4;
    }
    return forces;
}

CComplexVector6 WaveForces(const CHullCondition& hull, const CSectionalForces& sections, const CWave& wave,
                           const Eigen::MatrixXcd& phase, double speed, const CEndTerms& endTerms)
{
    const double aft = hull.Rule.Aft();
    const CGathering gathering{phase, speed / (kI * sections.Frequency),
                               std::polar(1.0, -wave.WaveNumber * wave.Cosine * aft), aft};
    const CForceAndMoment vertical = Gathered(gathering, sections.F3, sections.H3, endTerms.Vertical);
    const CForceAndMoment sideways = Gathered(gathering, sections.F2, sections.H2, endTerms.Sway);
    // The surge force acts at the height of the sections' centroids.
    Complex surgeMoment = 0;
    for (int n = 0; n < hull.StationCount(); ++n)
    {
        surgeMoment += phase(0, n) * sections.F1(n) * hull.CentroidHeight(n);
    }

    CComplexVector6 force;
    force(0) = phase.row(0) * sections.F1;
    force(1) = sideways.Force;
    force(2) = vertical.Force;
    force(3) = Gathered(gathering, sections.F4, sections.H4, endTerms.Roll).Force;
    force(4) = -vertical.Moment + surgeMoment;
    force(5) = sideways.Moment;
    return force;
}

double SurgeAddedMass(const CHullCondition& hull)
{
    const double slenderness = std::sqrt(std::pow(hull.Length, 3) / hull.Volume);
    const double denominator = std::numbers::pi * slenderness - kSlendernessShift;
    return hull.Mass * (denominator > kLeastSlenderness ? 1 / denominator : kFullSurgeAddedMass);
}

double SurgeDamping(const CHullCondition& hull, double speed)
{
    return kSurgeFriction * hull.Density * hull.WettedSurface * speed;
}

} // namespace oe7
