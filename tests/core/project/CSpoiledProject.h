// A project in which no field holds what a reset sets.
#pragma once

#include "core/project/CProjectData.h"

#include <array>
#include <string>

inline constexpr int kStrange = 77;

inline void Spoil(int& field)
{
    field = kStrange;
}

inline void Spoil(float& field)
{
    field = kStrange;
}

inline void Spoil(std::string& field)
{
    field = "strange";
}

inline void Spoil(CSelection& field)
{
    field = {kStrange};
}

inline void Spoil(CSummaryValues& field)
{
    field.Numbers.fill(kStrange);
    field.Choice = field.Position = kStrange;
    field.Texts.fill("strange");
}

template <class CValue, std::size_t Count>
void Spoil(std::array<CValue, Count>& field)
{
    for (CValue& value : field)
    {
        Spoil(value);
    }
}

/// Puts something that no reset sets into every plain field.
inline void SpoilPlainFields(CProjectData& project)
{
#define SPOIL(type, name, initial) Spoil(project.name);
    FILE_FIELDS(SPOIL)
    ENVIRONMENT_FIELDS(SPOIL)
    GEOMETRY_FIELDS(SPOIL)
    FORM_FIELDS(SPOIL)
    SESSION_FIELDS(SPOIL)
#undef SPOIL
}

/// The same for the keyword fields.
inline void SpoilKeywords(CProjectData& project)
{
    for (CParamArray* field : project.Fields())
    {
        field->name = "strange";
        field->unit = field->scope = field->changed = kStrange;
        field->min = field->max = kStrange;
        field->Fill(kStrange);
    }
}

struct CSpoiledProject : CProjectData
{
    CSpoiledProject()
    {
        ResetKeywords();
        SpoilKeywords(*this);
        SpoilPlainFields(*this);
    }
};
