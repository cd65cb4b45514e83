// All of a calculation that doesn't depend on the speed: the ship afloat, her sections solved, her appendages
// and masses, the seas she meets.
#pragma once

#include "oe7/calculation/CResults.h"

#include <optional>

namespace oe7
{

class CShipModel
{
public:
    /// The input must outlive this. Throws CInputError when the ship can't float.
    CShipModel(const CInput& input, CRunLog& log, int threads);
    CShipModel(const CShipModel&) = delete;
    CShipModel& operator=(const CShipModel&) = delete;

    const CInput& Input;
    const int Threads;
    const CHullCondition Hull;
    const CSectionPotentials Potentials;
    const CInertia Inertia;
    const std::vector<CSurface> Surfaces;
    const CRollDamping RollDamping;
    const CHeadings Headings;
    const CFrequencies Frequencies;
    std::vector<CSeaState> Seas;        ///< one per seaway; none for REGULAR
    std::optional<CMassModel> Masses;   ///< with loads
    std::optional<CDynamicLoads> Loads; ///< with loads
};

} // namespace oe7
