// Roll damping of bilge keels (Ikeda, Himeno and Tanaka 1976), and their lift as slender wings.
#pragma once

#include "oe7/hull/CHullCondition.h"

namespace oe7
{

/// A piece of both keels of a pair with the section that it stands on.
struct CBilgeKeelPart
{
    double Length = 0;      ///< m
    double Breadth = 0;     ///< m
    double Radius = 0;      ///< m from the axis through G
    double Draft = 0;       ///< m, of the section
    double H0 = 0;          ///< of the section, half beam to draft
    double BilgeRadius = 0; ///< m
    double AxisDepth = 0;   ///< m of G below the local waterline
    double SpeedFactor = 1; ///< f, of the flow along the bilge
};

using CBilgeKeelPair = std::vector<CBilgeKeelPart>;

/// Pieces without an extent are left out.
CBilgeKeelPair MakeBilgeKeels(const CKeelPair& keels, const CHullCondition& hull);

/// Roll damping moment per roll velocity (N m s) of a pair at a frequency w > 0 (rad/s) and roll amplitude
/// (rad): normal force and pressure on the hull ...
double KeelRollDamping(const CBilgeKeelPair& keels, double density, double w, double amplitude);
/// ... and by lift at a speed (m/s), of the broadest piece alone.
double KeelLiftDamping(const CBilgeKeelPair& keels, double density, double speed);

} // namespace oe7
