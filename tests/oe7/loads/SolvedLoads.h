// The loads of a ship that moves in a wave as her equations of motion tell.
#pragma once

#include "oe7/loads/CDynamicLoads.h"
#include "oe7/motion/CRollDamping.h"

struct CShipParts
{
    const oe7::CInput& Input;
    const oe7::CHullCondition& Hull;
    const oe7::CInertia& Inertia;
    const std::vector<oe7::CSurface>& Surfaces;
    const oe7::CDynamicLoads& Loads;
};

struct CWaveParts
{
    double Knots = 0;
    double Direction = 180; ///< degrees
    oe7::CWave Wave;
    oe7::CStripCoefficients Strips; ///< at the frequency of encounter, of the equations too
    oe7::CSectionalForces Sections;
};

/// At every load station of the input, per unit wave amplitude: N/m, N.
std::vector<oe7::CLoadVector> SolvedLoads(const CShipParts& ship, const CWaveParts& wave,
                                          const oe7::CRollComponents& damping);
