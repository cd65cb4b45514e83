// Wave loads at cuts through the hull: the external forces on the part forward of a cut minus its inertia
// (Salvesen, Tuck and Faltinsen 1970). Moments about (x0, 0, height of G). Order: horizontal shear, vertical
// shear (N), torsion, vertical bending, horizontal bending (N m). Positive vertical shear is a net upward
// force on the forward part, positive vertical bending hogging; the others are right-handed in the axes of
// the motions.
#pragma once

#include "oe7/loads/CMassModel.h"
#include "oe7/motion/CMotions.h"

#include <optional>

namespace oe7
{

constexpr int kLoadComponents = 5;
using CLoadVector = Eigen::Matrix<Complex, kLoadComponents, 1>;

/// Per unit wave amplitude a load is Wave + PerMotion * motions, the torsion less RollDamping * B * roll,
/// where B is the roll damping that is spread over the hull (N m s).
struct CLoadTransfer
{
    CLoadVector Wave = CLoadVector::Zero();
    Eigen::Matrix<Complex, kLoadComponents, kModes> PerMotion =
        Eigen::Matrix<Complex, kLoadComponents, kModes>::Zero();
    Complex RollDamping = 0;

    CLoadVector At(const CMotionVector& motions, double rollDamping) const;
};

/// What one wave at one speed brings to the loads. Without followers or controls, controls and tank bring
/// nothing.
struct CLoadCase
{
    double Speed = 0;     ///< m/s
    double Frequency = 0; ///< w, rad/s, signed, bounded
    const CWave* Wave = nullptr;
    const CStripCoefficients* Strips = nullptr;
    const CSectionalForces* Sections = nullptr;
    const CFollowers* Followers = nullptr;
    const CControls* Controls = nullptr;
};

class CDynamicLoads
{
public:
    /// One cut per load station of the input; one beyond the stations is taken at the nearer end. The hull
    /// condition and the surfaces must outlive this.
    CDynamicLoads(const CInput& input, const CHullCondition& hull, const CMassModel& masses,
                  const std::vector<CSurface>& surfaces);

    int CutCount() const { return static_cast<int>(m_cuts.size()); }
    /// The rule's PhaseMoments(1, q, x0) of every cut at q = k cos(beta), 1/m; they don't depend on the
    /// speed.
    std::vector<Eigen::MatrixXcd> Phases(double q) const;
    /// Lean: called for every speed, wave and cut. `phase` is the cut's of Phases.
    CLoadTransfer At(int cut, const CLoadCase& loadCase, const Eigen::MatrixXcd& phase) const;

private:
    using CLoadRow = Eigen::Matrix<double, kLoadComponents, 1>;
    using CMotionLoads = Eigen::Matrix<double, kLoadComponents, kModes>;

    /// A blade on the forward part, and its load per normal force.
    struct CCutBlade
    {
        ESurface Kind = ESurface::Rudder;
        const CBlade* Blade = nullptr;
        CLoadRow PerForce = CLoadRow::Zero();
    };

    /// All of a cut that doesn't depend on the wave.
    struct CCut
    {
        double X0 = 0;          ///< m from G
        double LengthShare = 0; ///< of the length forward of the cut
        bool HasTank = false;   ///< forward of the cut
        /// Per value at the stations: Int x^p dx forward of the cut, p = 0..2, and the value at the cut.
        Eigen::Matrix<double, 4, Eigen::Dynamic> Rule;
        CMotionLoads Stiffness = CMotionLoads::Zero(); ///< hydrostatic and of weight, per motion
        CMotionLoads Inertia = CMotionLoads::Zero();   ///< per w^2 and motion, added mass of blades included
        CMotionLoads Damping = CMotionLoads::Zero();   ///< of blades, per speed and velocity of a motion
        CMotionLoads Lift = CMotionLoads::Zero();      ///< of blades, per speed squared and motion
        std::vector<CCutBlade> Blades;
    };

    CCut Cut(double station, const CMassModel& masses) const;
    void AddHydrostatics(CCut& cut, const CMassMoments& mass) const;
    void AddSurfaces(CCut& cut) const;
    void AddRadiation(const CCut& cut, const CLoadCase& loadCase, CLoadTransfer& transfer) const;
    void AddWaves(const CCut& cut, const CLoadCase& loadCase, const Eigen::MatrixXcd& phase,
                  CLoadTransfer& transfer) const;
    void AddBlades(const CCut& cut, const CLoadCase& loadCase, CLoadTransfer& transfer) const;

    const CHullCondition& m_hull;
    const std::vector<CSurface>& m_surfaces;
    std::optional<double> m_tankX;       ///< m from G
    Eigen::RowVectorXd m_centroidHeight; ///< m from G, at the stations
    std::vector<CCut> m_cuts;
};

} // namespace oe7
