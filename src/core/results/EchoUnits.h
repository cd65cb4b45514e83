// The units of the values in an input echo. The engine has all values in one system, the project each in its
// own: one table tells which values are converted, on the way into a file and back.
#pragma once

#include "core/project/CProjectData.h"

#include <span>
#include <vector>

enum class EEchoQuantity
{
    Length,
    Mass,
    Speed,          ///< knots under the flag 0, metres per second under 1
    OverhangRadius, ///< a length that comes back in feet from either system
    LateralGain     ///< per length, converted on the way back only
};

/// What a value is multiplied by on its way into the file, from the unit of its flag to the system of the
/// run.
float FactorIntoFile(EEchoQuantity quantity, int inSystem, int unit);
/// What it is multiplied by on its way back.
float FactorOutOfFile(EEchoQuantity quantity, int inSystem, int unit);

/// Values that one unit word stands for.
struct CEchoValues
{
    std::span<float> Values; ///< begins with the field's first slot; those that are converted on the way back
    const int* Unit;         ///< the flag by which they are converted on the way into the file
};

/// One unit word of the echo.
struct CUnitWord
{
    EEchoQuantity Quantity = EEchoQuantity::Length;
    bool Converts = true; ///< the run had these values in use
    int* Tag = nullptr;   ///< what the word holds
    std::vector<CEchoValues> Values;
    std::vector<int*> Followers; ///< flags that take the word over too
    bool IsRead = true;          ///< a word that isn't leaves its tag as it is
    bool OnlyWithMagic = false;  ///< not in files of the earlier form
};

/// The unit words of a project in the order of the file. What converts and how many values do is told from
/// the project as it is now.
std::vector<CUnitWord> UnitWords(CProjectData& project);
