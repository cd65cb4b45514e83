// The one walk over the speed blocks of the calculated section. A report section hangs a receiver into it and
// is handed what it keeps.
#pragma once

#include "core/results/CFloatRows.h"
#include "core/results/CResults.h"

#include <array>

/// How many appendages have a column in the two breakdown tables; the skeg has none in the viscous one.
int LiftAppendages(const CControlSection& control);
int ViscousAppendages(const CControlSection& control);

/// Indices of speed, heading, seaway, position and load station begin at 0. Rows are valid during the call.
class CCalculatedReceiver
{
public:
    virtual ~CCalculatedReceiver() = default;

    /// Group 1: only headings of at most 180 degrees come.
    virtual void FroudeNumber(int /*speed*/, int /*heading*/, float /*number*/) {}
    /// For each frequency: encounter frequency, wavelength over ship length.
    virtual void Frequencies(int /*speed*/, int /*heading*/, const CFloatRows& /*rows*/) {}
    /// Roll natural frequency RNF, roll stiffness C44, roll inertia I44.
    virtual void RollConstants(int /*speed*/, int /*heading*/, const std::array<float, 3>& /*values*/) {}
    /// For each frequency ten values: encounter frequency, roll angle, total damping, wave, lift, eddy, skin,
    /// bilge keel viscous, foil viscous, added mass.
    virtual void Damping(int /*speed*/, int /*heading*/, const CFloatRows& /*rows*/) {}
    /// For each frequency: a word without meaning, encounter frequency, roll angle, then the appendages.
    virtual void LiftBreakdown(int /*speed*/, int /*heading*/, const CFloatRows& /*rows*/) {}
    virtual void ViscousBreakdown(int /*speed*/, int /*heading*/, const CFloatRows& /*rows*/) {}

    /// Group 2. For each heading: heading, lateral LFE and MII, longitudinal LFE and MII, total MII.
    virtual void Interruption(int /*speed*/, int /*seaway*/, int /*position*/, const CFloatRows& /*rows*/) {}
    /// For each heading: heading, MSI, and in a file with the magic the exposure time in hours. `formulation`
    /// is 0 for Colwell, `exposureFlag` 0 when the exposure is chosen for the maximum MSI.
    virtual void Sickness(int /*speed*/, int /*seaway*/, int /*position*/, int /*formulation*/,
                          int /*exposureFlag*/, float /*exposure*/, const CFloatRows& /*rows*/)
    {
    }
    /// Freeboard at zero speed and at speed, draft at zero speed and at speed; for each heading eleven
    /// values: heading, relative displacement and velocity, deck wetness probability and rate, keel emergence
    /// probability and rate, expected and extreme slam pressure, expected and extreme slam force.
    virtual void Slamming(int /*speed*/, int /*seaway*/, int /*position*/,
                          const std::array<float, 4>& /*levels*/, const CFloatRows& /*rows*/)
    {
    }
    /// Freeboard (deck wetness) or depth (emergence) at zero speed and at speed; for each heading: heading,
    /// relative displacement and velocity, probability and rate.
    virtual void WetnessOrEmergence(int /*speed*/, int /*seaway*/, int /*position*/,
                                    const std::array<float, 2>& /*levels*/, const CFloatRows& /*rows*/)
    {
    }

    /// Group 3. For each heading ten values: RMS and zero-crossing period of horizontal shear, vertical
    /// shear, torsion, vertical bending, horizontal bending.
    virtual void LoadRms(int /*speed*/, int /*seaway*/, int /*loadStation*/, const CFloatRows& /*rows*/) {}
};

/// The greatest count of rows that a block per heading has: that of the headings, but for spectra with sea
/// directions of their own.
int CalculatedRows(const CResults& results);

/// Walks the speed blocks. Throws CResultsError where the file ends too early.
void WalkCalculated(const CResults& results, CCalculatedReceiver& receiver);
