// Every input of the project, in one object that lives as long as the application. Forms edit it at OK, the
// input file saves and loads it, the engine input is written from it.
#pragma once

#include "core/project/CKeywordTable.h"
#include "core/project/CParamArray.h"
#include "core/project/PlainFields.h"

#include <array>

class CProjectData : public CFileFields,
                     public CEnvironmentFields,
                     public CGeometryFields,
                     public CFormFields,
                     public CSessionFields,
                     public CCompletenessFlags
{
public:
    /// The keyword fields stay without name, limits and defaults until a reset.
    CProjectData();
    virtual ~CProjectData() = default;
    CProjectData(const CProjectData&) = delete;
    CProjectData& operator=(const CProjectData&) = delete;

    /// Puts keyword fields back to the keyword table: name, unit, scope, limits, `changed`, and every slot to
    /// the default. With a half named, only its fields; the others take their name alone.
    void ResetKeywords();
    void ResetKeywords(int scope);

    /// Puts the plain fields of a half to what a cleared half holds. That is not always what a new project
    /// holds: the cleared rudder hangs at 0 degrees and its lateral gains, like the fins' yaw gains, are -1.
    void ClearEnvironmentExtras();
    void ClearGeometryExtras();
    /// Puts the plain fields of both halves, and what forms remember, back to those of a new project.
    void ResetExtras();

    void ClearCompleteness();
    /// Sets all completeness flags from the data.
    void RecomputeCompleteness();

    /// The keyword fields in table order.
    const std::array<CParamArray*, kKeywordCount>& Fields() { return m_fields; }

    /// Calls `visit(name, field)` for each plain field.
    template <class Visitor>
    void EachPlainField(Visitor&& visit) const;
    /// Calls `visit(name, flag)` for each completeness flag, in order.
    template <class Visitor>
    void EachCompletenessFlag(Visitor&& visit) const;

#define KEYWORD(name, count, scope, minimum, maximum, initial) CParamArray name{count};
#include "core/project/Keywords.def"
#undef KEYWORD

private:
    void ResetKeyword(int index);

    const std::array<CParamArray*, kKeywordCount> m_fields;
};

template <class Visitor>
void CProjectData::EachPlainField(Visitor&& visit) const
{
#define VISIT_FIELD(type, name, initial) visit(#name, name);
    FILE_FIELDS(VISIT_FIELD)
    ENVIRONMENT_FIELDS(VISIT_FIELD)
    GEOMETRY_FIELDS(VISIT_FIELD)
    FORM_FIELDS(VISIT_FIELD)
    SESSION_FIELDS(VISIT_FIELD)
#undef VISIT_FIELD
}

template <class Visitor>
void CProjectData::EachCompletenessFlag(Visitor&& visit) const
{
#define COMPLETENESS(name) visit(#name, name);
#include "core/project/CompletenessFlags.def"
#undef COMPLETENESS
}
