#include "core/results/RunValues.h"

#include "core/results/EchoUnits.h"

int RunPositions(const CProjectData& project)
{
    return project.NPOS.Count(kMaxPositions + 1) - (project.NPOS.Integer() > 0 ? 1 : 0);
}

int RunGMCode(const CProjectData& project)
{
    constexpr int computed = 2;
    const int flag = project.GMFLAG.Integer();
    return flag == 0 ? computed : flag;
}

float RunLength(const CProjectData& project)
{
    const CParamArray& length = project.SHIPLEN;
    return length.Value() * FactorIntoFile(EEchoQuantity::Length, project.INSYS.Integer(), length.unit);
}
