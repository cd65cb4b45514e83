#include "core/results/ResultsSections.h"

#include <algorithm>

namespace
{
bool HasSlamming(int relMotionKind)
{
    return relMotionKind >= 1 && relMotionKind <= 3;
}

void ReadStations(CResultsCursor& cursor, CCalculatedHead& head, int count)
{
    constexpr int kWords = 5;
    const CFloatRows rows = cursor.Rows(count, kWords);
    for (int k = 0; k < count; ++k)
    {
        // The fourth word is not shown.
        head.Stations.push_back({rows.At(k, 0), rows.At(k, 1), rows.At(k, 2), rows.At(k, 4)});
    }
}

void ReadPositions(CResultsCursor& cursor, CCalculatedHead& head, bool hasMagic, int count)
{
    for (int k = 0; k < count; ++k)
    {
        CCalculatedHead::CPosition position;
        position.Station = cursor.Float();
        position.X = hasMagic ? cursor.Float() : 0;
        position.Y = cursor.Float();
        position.ZFromBaseline = cursor.Float();
        position.ZFromCG = cursor.Float();
        position.Draft = cursor.Float();
        position.Freeboard = cursor.Float();
        head.Positions.push_back(position);
    }
}

/// Duration, exceedence and the forms; `kinds` are those of the positions that the file has.
void ReadSlamming(CResultsCursor& cursor, CCalculatedHead& head, const CControlSection& control)
{
    const auto* const kinds = control.RelMotionKind.data();
    if (std::any_of(kinds, kinds + head.Positions.size(), HasSlamming))
    {
        head.Duration = cursor.Float();
        head.Exceedence = cursor.Float();
    }
    for (std::size_t k = 0; k < head.Positions.size(); ++k)
    {
        if (kinds[k] == 1 || (kinds[k] == 3 && control.HasMagic))
        {
            head.Positions[k].FormFactor = cursor.Float();
            head.Positions[k].EffectiveWidth = cursor.Float();
        }
    }
}
} // namespace

CCalculatedHead ReadCalculatedHead(CResultsCursor& cursor, const CResultsHead& head,
                                   const CControlSection& control, int positionCount)
{
    CCalculatedHead calculated;
    for (float* value : {&calculated.EncounterMinimum, &calculated.EncounterMaximum,
                         &calculated.EncounterIncrement, &calculated.InputGM, &calculated.Draft,
                         &calculated.XCG, &calculated.Displacement, &calculated.BlockCoefficient})
    {
        *value = cursor.Float();
    }
    ReadStations(cursor, calculated, head.StationCount);
    ReadPositions(cursor, calculated, control.HasMagic, positionCount);
    ReadSlamming(cursor, calculated, control);
    return calculated;
}
