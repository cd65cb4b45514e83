// The ships of tests/oe7/reference, for which the engine's results are known.
#pragma once

#include "oe7/input/CInput.h"

#include <string>

namespace oe7
{

/// The input tests/oe7/reference/NAME.inp.
CInput ReferenceInput(const std::string& name);

/// 100 x 20 x 5 m, five stations, salt water, at rest and 8 knots, loads.
inline CInput ReferenceBarge()
{
    return ReferenceInput("barge");
}

/// 120 x 12 x 7.5 m, 21 stations, fresh water, no loads; offsets rounded to millimetres.
inline CInput ReferenceWigley()
{
    return ReferenceInput("wigley");
}

/// 120 m, 4050 t at the draft that belongs to it, salt water, 18 knots, bilge keels, skeg, rudder, foils and
/// fins.
inline CInput ReferenceShip()
{
    return ReferenceInput("ship");
}

/// The Wigley hull with exact offsets, as many below the design waterline as asked.
CInput FineWigley(int points);

} // namespace oe7
