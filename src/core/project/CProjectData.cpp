#include "core/project/CProjectData.h"

CProjectData::CProjectData()
    : m_fields{
#define KEYWORD(name, count, scope, minimum, maximum, initial) &name,
#include "core/project/Keywords.def"
#undef KEYWORD
      }
{
    DIFOIL.Fill(kAngleNotGiven);
    DIFIN.Fill(kAngleNotGiven);
}

void CProjectData::ResetKeyword(int index)
{
    const CKeywordRow& row = KeywordTable()[static_cast<std::size_t>(index)];
    CParamArray& field = *m_fields[static_cast<std::size_t>(index)];
    field.unit = row.Unit;
    field.scope = row.Scope;
    field.min = row.Minimum;
    field.max = row.Maximum;
    field.changed = 0;
    // The table's -1 is a legal incidence.
    const bool incidence = &field == &DIFOIL || &field == &DIFIN;
    field.Fill(incidence ? kAngleNotGiven : row.Default);
}

void CProjectData::ResetKeywords()
{
    for (int k = 0; k < kKeywordCount; ++k)
    {
        m_fields[static_cast<std::size_t>(k)]->name = KeywordTable()[static_cast<std::size_t>(k)].Name;
        ResetKeyword(k);
    }
}

void CProjectData::ResetKeywords(int scope)
{
    for (int k = 0; k < kKeywordCount; ++k)
    {
        const CKeywordRow& row = KeywordTable()[static_cast<std::size_t>(k)];
        m_fields[static_cast<std::size_t>(k)]->name = row.Name;
        if (row.Scope == scope)
        {
            ResetKeyword(k);
        }
    }
}

void CProjectData::ClearEnvironmentExtras()
{
    static_cast<CEnvironmentFields&>(*this) = {};
}

void CProjectData::ClearGeometryExtras()
{
    CGeometryFields cleared;
    cleared.RudderRollStabilization = RudderRollStabilization;
    cleared.WarnMassLimit = WarnMassLimit;
    cleared.WorkingDraftUnit = WorkingDraftUnit;
    cleared.WorkingTrim = WorkingTrim;
    cleared.RudderDihedral = 0;
    cleared.RudderLateralGains = Slots<3>(kNotGiven);
    cleared.FinYawGains = Slots<3>(kNotGiven);
    static_cast<CGeometryFields&>(*this) = cleared;
}

void CProjectData::ResetExtras()
{
    static_cast<CEnvironmentFields&>(*this) = {};
    static_cast<CGeometryFields&>(*this) = {};
    static_cast<CFormFields&>(*this) = {};
}

void CProjectData::ClearCompleteness()
{
    static_cast<CCompletenessFlags&>(*this) = {};
}
