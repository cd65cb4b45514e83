#include "gui/hull/WorkingLoading.h"

#include "core/engine/Waterline.h"
#include "core/project/Sentinels.h"
#include "core/project/UnitConversion.h"

#include <algorithm>

namespace
{
float In(int unit, const CShownLength& length)
{
    return IsGiven(length.Value) ? length.Value * LengthFactor(length.Unit, unit) : length.Value;
}
} // namespace

void HandOverLoading(CProjectData& project, const CShownLength& draft, const CShownLength& trim)
{
    project.WorkingDraft = draft.Value;
    project.WorkingDraftUnit = draft.Unit;
    project.WorkingTrim = In(draft.Unit, trim);
}

float WorkingWaterline(const CProjectData& project, int fromForward, int stationCount, int unit)
{
    if (!IsGiven(project.WorkingDraft))
    {
        return kNotGiven;
    }
    const int handedOver = project.WorkingDraftUnit;
    CWaterline waterline;
    waterline.Length = 1; // only its share between two stations counts
    waterline.Spacing = 1 / static_cast<float>(std::max(stationCount - 1, 1));
    waterline.Draft = In(kUnitMetric, {project.WorkingDraft, handedOver});
    waterline.Trim = IsGiven(project.WorkingTrim) ? In(kUnitMetric, {project.WorkingTrim, handedOver}) : 0;
    constexpr int metric = 1; // the systems of input and output count the other way round
    return In(unit, {waterline.Height(fromForward, stationCount, metric), kUnitMetric});
}
