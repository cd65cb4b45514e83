#include "oe7/calculation/CShipModel.h"

namespace oe7
{

CShipModel::CShipModel(const CInput& input, CRunLog& log, int threads)
    : Input(input),
      Threads(threads),
      Hull(FindCondition(input, log)),
      Potentials(Hull, input.Method, FrequencyGrid(input.Grid, input.Length), input.HeaveCorrection, threads),
      Inertia(FindInertia(input, Hull, Potentials, log)),
      Surfaces(FindSurfaces(input, Hull)),
      RollDamping(input, Hull, Surfaces),
      Headings(FindHeadings(input, log)),
      Frequencies(input)
{
    if (input.Spectrum != ESpectrum::Regular)
    {
        Seas.reserve(input.Seaways.size());
        for (int seaway = 0; seaway < static_cast<int>(input.Seaways.size()); ++seaway)
        {
            Seas.emplace_back(input, Headings, seaway);
        }
    }
    if (input.Loads)
    {
        Masses.emplace(input, Hull, Inertia, log);
        Loads.emplace(input, Hull, *Masses, Surfaces);
    }
}

} // namespace oe7
