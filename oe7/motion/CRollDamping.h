// Roll damping by its components, after Ikeda and Himeno 1977 to 1981, Kato, and lifting surfaces. All values
// are moments about the axis through G per roll velocity, N m s.
#pragma once

#include "oe7/motion/BilgeKeels.h"
#include "oe7/motion/CSurfaces.h"

#include <string>

namespace oe7
{

/// The components of one speed, frequency and roll amplitude. The hull's wave damping isn't among them.
struct CRollComponents
{
    double HullLift = 0;
    double KeelLift = 0;
    double SurfaceLift = 0; ///< of rudder, skeg, foils and fins; in the equations with the surfaces
    double Eddy = 0;        ///< hull and skeg
    double Skin = 0;
    double Keels = 0;
    double Foils = 0; ///< viscous, of rudder, foils and fins

    /// What the roll equation takes besides waves and surfaces.
    double InEquation() const { return HullLift + KeelLift + Eddy + Skin + Keels + Foils; }
    double Lift() const { return HullLift + KeelLift + SurfaceLift; }
    /// Spread evenly over the length in the loads.
    double OfHull() const { return HullLift + KeelLift + Skin + Eddy + Keels; }
};

class CRollDamping
{
public:
    /// Hull lift is left out when the end term of roll holds it. Hull and surfaces must outlive this.
    CRollDamping(const CInput& input, const CHullCondition& hull, const std::vector<CSurface>& surfaces);

    /// At a speed (m/s), frequency w > 0 (rad/s) and roll amplitude (rad).
    CRollComponents At(double speed, double w, double amplitude) const;

    /// Lift of each appendage at a speed: rudder (if any), skeg (if any), keel pairs, foil pairs, fin pairs.
    std::vector<double> AppendageLift(double speed) const;
    /// Viscous damping of each: the same without the skeg.
    std::vector<double> AppendageViscous(double w, double amplitude) const;
    /// Names of the columns of both, "rudder", "skeg", "keel-pair-1", "foil-pair-1", "fin-pair-1".
    std::vector<std::string> LiftColumns() const;
    std::vector<std::string> ViscousColumns() const;

private:
    double Skin(double speed, double w, double amplitude) const;
    double Eddy(double speed, double w, double amplitude) const;

    const CHullCondition& m_hull;
    const std::vector<CSurface>& m_surfaces;
    std::vector<CBilgeKeelPair> m_keels;
    double m_viscosity = 0;    ///< m2/s
    double m_liftPerSpeed = 0; ///< N s2, of the bare hull
    double m_eddyIntegral = 0; ///< m5
};

} // namespace oe7
