// All that a run has found, in SI, for the files that are written from it.
#pragma once

#include "oe7/loads/CDynamicLoads.h"
#include "oe7/motion/CRollDamping.h"
#include "oe7/seas/CHeadings.h"
#include "oe7/seas/CPositionResults.h"

namespace oe7
{

/// One line of a roll damping table.
struct CDampingRow
{
    double RollAngle = 0; ///< rad
    double Wave = 0;      ///< N m s, of the hull's radiation
    double AddedMass = 0; ///< kg m2
    CRollComponents Components;
    std::vector<double> AppendageLift;    ///< N m s, columns of CResults::LiftColumns
    std::vector<double> AppendageViscous; ///< N m s, columns of CResults::ViscousColumns
};

/// Transfer functions and roll damping at one component direction, over the output frequencies.
struct CDirectionResults
{
    std::vector<double> Encounter; ///< rad/s, signed
    /// Non-dimensional: surge, sway, heave per wave amplitude, angles per wave slope. Conjugated where the
    /// encounter frequency is negative, so that the phase belongs to the time as it runs.
    std::vector<CMotionVector> Motions;
    std::vector<CComplexVector6>
        Forces; ///< N/m, N, per unit wave amplitude, surfaces included, conjugated likewise
    std::vector<std::vector<CLoadVector>>
        Loads; ///< [cut][frequency], N/m, N per unit wave amplitude, conjugated likewise
    std::vector<CDampingRow> Damping;
};

/// One seaway at one speed.
struct CSeawayResults
{
    double Height = 0;                 ///< m, significant
    double Period = 0;                 ///< s
    double BandHeight = 0;             ///< m, contained in the computed frequency band
    std::vector<CModeRms> Rms;         ///< [heading], m and rad
    std::vector<double> RollAngle;     ///< [heading], rad, of the equivalent linear damping
    std::vector<double> RollFrequency; ///< [heading], rad/s, likewise
    std::vector<std::vector<CPositionAtHeading>> Positions; ///< [position][heading]
    /// RMS (N, N m) and zero-crossing period (s) of a load component, [cut][heading][component].
    struct CLoadRms
    {
        double Rms = 0;
        double Period = 0;
    };
    std::vector<std::vector<std::array<CLoadRms, kLoadComponents>>> Loads;
};

struct CSpeedResults
{
    double Knots = 0;
    double Speed = 0; ///< m/s
    double Froude = 0;
    std::vector<CDirectionResults> Directions; ///< [reported index], at CHeadings::Components[index]
    std::vector<CPositionGeometry> Positions;
    std::vector<CComplexMatrix6> Radiation; ///< [grid frequency], -R without surfaces
    std::vector<CSeawayResults> Seaways;    ///< empty for REGULAR
};

struct CResults
{
    CHullCondition Hull;
    CInertia Inertia;
    CHeadings Headings;
    CFrequencies Frequencies;
    std::vector<double> Grid;            ///< rad/s, of the section coefficients
    double HeaveFrequency = 0;           ///< rad/s, natural
    double PitchFrequency = 0;           ///< rad/s, natural
    std::vector<CSlamForm> SlamForms;    ///< per position
    std::optional<double> TankFrequency; ///< rad/s
    std::optional<CMassMoments> Masses;  ///< all, with loads
    std::optional<CStillWater> StillWater;
    std::vector<std::string> LiftColumns; ///< of the appendage tables
    std::vector<std::string> ViscousColumns;
    std::vector<CSpeedResults> Speeds;
};

} // namespace oe7
