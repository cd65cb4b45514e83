// Draft and trim on their way from the form that they are typed into to the editors of the hull.
#pragma once

#include "core/project/CProjectData.h"

/// A length in the unit of a form's caption; -1 if it isn't given.
struct CShownLength
{
    float Value;
    int Unit;
};

/// Hands over draft and trim. The trim travels in the unit of the draft.
void HandOverLoading(CProjectData& project, const CShownLength& draft, const CShownLength& trim);
/// The height of the waterline that was handed over, in a unit, at a station counted from the forward end;
/// negative where the draft isn't known.
float WorkingWaterline(const CProjectData& project, int fromForward, int stationCount, int unit);
