// A floating box, and the masses that a test puts into it.
#pragma once

#include "oe7/loads/CMassModel.h"

/// 100 x 20 x 5 m in salt water, KG 4 m, five stations 25 m apart; no masses yet.
oe7::CInput BoxInput();

/// The box afloat with its masses.
struct CBoxShip
{
    explicit CBoxShip(const oe7::CInput& input);

    oe7::CRunLog Log;
    oe7::CHullCondition Hull;
    oe7::CInertia Inertia; ///< the radius of roll is 7 m
    oe7::CMassModel Masses;
};
