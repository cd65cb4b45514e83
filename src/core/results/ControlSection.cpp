#include "core/results/ResultsSections.h"

#include "core/platform/NumberText.h"

#include <algorithm>

namespace
{
constexpr std::size_t kWord = 4;

/// Ten words that hold a position's choice as a float.
void ReadKinds(CResultsCursor& cursor, std::array<int, kMaxPositions>& kinds)
{
    for (int& kind : kinds)
    {
        kind = Truncated(cursor.Float());
    }
}

/// The magic and the words of fixed place up to the three lists.
void ReadFixedWords(CResultsCursor& cursor, CControlSection& control)
{
    control.HasMagic = TakeMagic(cursor);
    control.StationNumbering = cursor.Integer();
    cursor.Skip(kWord); // NST
    control.BilgeKeelCount = cursor.Float();
    control.FinCount = cursor.Float();
    control.FoilCount = cursor.Float();
    control.PositionCount = std::max(0, cursor.FloatCount(kMaxPositions + 1) - 1);
    cursor.Skip(kWord); // SPREADANG
}

/// The earliest files have no words for the appendage columns; what stands there tells them apart.
void ReadColumns(CResultsCursor& cursor, CControlSection& control)
{
    control.KeelColumns = CheckedCount(control.BilgeKeelCount, kMaxBilgeKeelPairs);
    control.FoilColumns = CheckedCount(control.FoilCount, kMaxFoilPairs);
    control.FinColumns = CheckedCount(control.FinCount, kMaxFinPairs);
    const int rudder = cursor.Integer();
    if (rudder != 0 && rudder != 1)
    {
        return;
    }
    control.HasRudderColumn = rudder;
    control.HasSkegColumn = cursor.Integer();
    control.HasAppendageBreakdown = 1;
    control.KeelColumns = cursor.Count(kMaxBilgeKeelPairs);
    control.FoilColumns = cursor.Count(kMaxFoilPairs);
    control.FinColumns = cursor.Count(kMaxFinPairs);
}
} // namespace

bool TakeMagic(CResultsCursor& cursor)
{
    const bool isThere = CResultsCursor(cursor).Text(kResultsMagic.size()) == kResultsMagic;
    cursor.Skip(isThere ? kResultsMagic.size() : 0);
    return isThere;
}

CControlSection ReadControlSection(CResultsCursor& cursor)
{
    CControlSection control;
    ReadFixedWords(cursor, control);
    ReadKinds(cursor, control.RelMotionKind);
    ReadKinds(cursor, control.MiiKind);
    if (control.HasMagic)
    {
        for (int& kind : control.MsiKind)
        {
            kind = cursor.Integer();
        }
    }
    control.SpeedCount = cursor.FloatCount(kMaxSpeeds);
    const CFloatRows speeds = cursor.Rows(control.SpeedCount, 1);
    control.Speeds.resize(static_cast<std::size_t>(control.SpeedCount));
    speeds.CopyTo(control.Speeds.data());
    ReadColumns(cursor, control);
    return control;
}
