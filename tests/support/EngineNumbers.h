// The numbers that stand for the engine's results in tests. Each is made of what it means (quantity, speed,
// heading ...), neighbours are never alike, so that a table that is off by one shows. A number has as many
// decimals as the listing prints: what is read from there is the very same.
#pragma once

#include "tests/support/CEngineRun.h"

#include <cstdint>

/// What a number is. The indices that it takes, each from 0, stand behind it.
enum class EEngineNumber
{
    RaoAmplitude,     ///< speed, mode, heading, frequency; both files
    RaoPhase,         ///< the same
    LoadRaoAmplitude, ///< speed, component, load station, heading, frequency
    LoadRaoPhase,     ///< the same
    Rms,              ///< speed, seaway, kind, mode, heading
    LocalRms,         ///< speed, seaway, quantity, position, heading
    LoadRms,          ///< speed, seaway, component, load station, heading; both files
    LoadPeriod,       ///< the same
    Weight,           ///< station; this and the next three in still water
    Buoyancy,
    Shear,
    Moment,
    HullValue,  ///< EHullValue
    Metacentre, ///< none; the computed one
    BlockCoefficient,
    SectionX, ///< station
    SectionBeam,
    SectionDraft,
    SectionArea,
    SectionCoefficient,
    PositionX,      ///< position
    PositionHeight, ///< from the centre of gravity
    PositionDraft,
    PositionFreeboard,
    FormFactor,
    EffectiveWidth,
    Froude,        ///< speed, heading
    RollFrequency, ///< the same; this and the next two for roll damping
    RollStiffness,
    RollInertia,
    RollAngle,      ///< speed, heading, frequency
    Damping,        ///< speed, heading, frequency, component in file order
    AddedMass,      ///< speed, heading, frequency
    LiftDamping,    ///< speed, heading, frequency, column
    ViscousDamping, ///< the same
    Interruption,   ///< speed, seaway, position, heading, column behind the heading
    Incidence,      ///< speed, seaway, position, heading; of sickness
    Exposure,       ///< the same
    Clearance,      ///< speed, seaway, position; freeboard or depth, draft: zero speed and at speed, in turn
    RelativeMotion, ///< speed, seaway, position, heading; displacement, velocity
    Probability,    ///< speed, seaway, position, heading; wetness or emergence, keel, slam
    Rate,           ///< the same
    Pressure,       ///< speed, seaway, position, heading; expected, extreme
    Force,          ///< the same
    Other           ///< what no reader takes
};

enum EHullValue
{
    kHullDraft,
    kHullCentre, ///< aft of station 0
    kHullDisplacement,
    kHullTrim,
    kHullBeam
};

/// The decimals of a number: -1 for tens.
int Decimals(EEngineNumber number);
double MadeUp(EEngineNumber number, int a = 0, int b = 0, int c = 0, int d = 0, int e = 0);
inline double MadeUp(EHullValue value)
{
    return MadeUp(EEngineNumber::HullValue, value);
}

/// The metacentric height that the run works with, in the output system.
double UsedMetacentre(const CEngineRun& run);
/// The wave frequency of a row, as the listing prints it.
double WaveFrequency(const CEngineRun& run, int frequency);
/// As a row of motions tells it, with the variants of the run.
double EncounterFrequency(const CEngineRun& run, int speed, int heading, int frequency);
/// Wavelength by ship length; what a reader finds in a row that has not overflowed.
double WavelengthRatio(const CEngineRun& run, int speed, int heading, int frequency);
