#include "tests/oe7/loads/BoxShip.h"

using namespace oe7;

CInput BoxInput()
{
    constexpr int stations = 5;
    CInput input;
    input.Length = 100;
    input.Kg = 4;
    input.PitchRadius = 28.868;
    input.StationCount = stations;
    input.Offsets.assign(stations, {{0, 5, 10, 10, 10}, {0, 0, 0, 4.5, 9}});
    input.Draft = 5;
    input.Loads = true;
    input.Masses.Masses.assign(stations, 0);
    input.Masses.Kg.assign(stations, 0);
    input.Masses.RollRadius.assign(stations, 0);
    return input;
}

CBoxShip::CBoxShip(const CInput& input)
    : Hull(FindCondition(input, Log)),
      Inertia{.I44 = Hull.Mass * 49},
      Masses(input, Hull, Inertia, Log)
{
}
