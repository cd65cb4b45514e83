// What the damping tables and their breakdown by appendage share.
#pragma once

#include "core/results/CalculatedArrays.h"
#include "core/results/report/RegularSeas.h"

#include <string>
#include <vector>

/// The page that a table of roll damping stands on; indices into the results.
struct CDampingPage
{
    int Speed;
    int Heading;
    int Seaway;
};

/// An appendage with a column in the breakdown tables.
struct CAppendage
{
    std::string Name;  ///< "BK 1"
    int LiftColumn;    ///< in the table of lift damping
    int ViscousColumn; ///< in the table of viscous damping; -1 for the skeg, which has none

    bool IsFoilOrFin() const { return Name.front() == 'F'; }
};

/// What the section takes from the calculated section of the results.
struct CDampingData
{
    explicit CDampingData(const CResults& results);

    float Froude(int speed) const { return Frequencies.Froude[static_cast<std::size_t>(speed)]; }
    bool HasBreakdown() const { return m_hasColumns && Damping.HasBreakdown; }

    CFrequencyArrays Frequencies;
    CDampingArrays Damping;
    std::vector<CAppendage> Appendages; ///< rudder, skeg, bilge keels, foils, fins

private:
    bool m_hasColumns;
};

/// Both breakdowns of a page, each on pages of its own.
void DampingBreakdown(CReport& report, const CDampingData& data, const CDampingPage& at);
