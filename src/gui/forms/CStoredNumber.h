// Where a number of a form comes from and goes to: one slot of a keyword field, or a plain field of the
// project.
#pragma once

#include "core/project/CParamArray.h"

#include <string>
#include <variant>

class CStoredNumber
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a form names the field itself
    CStoredNumber(CParamArray& field) : CStoredNumber(field, 0) {}
    CStoredNumber(CParamArray& field, int index);
    /// `unit` is the flag beside the value, if it has one.
    CStoredNumber(const char* name, float& value, int* unit = nullptr);
    CStoredNumber(const char* name, int& value);

    /// What its control is called: the field's name, with the slot behind a dot where there are several.
    const std::string& Name() const { return m_name; }
    float Value() const;
    /// Stores a value; true if it differs from the one before, float against float. A keyword field is then
    /// marked as changed.
    bool Store(float value) const;

    int Unit() const;
    /// Says nothing about changes: a unit flag is none.
    void StoreUnit(int unit) const;

    /// The limits of a keyword field; those of a plain field are the form's.
    float Minimum() const;
    float Maximum() const;

private:
    struct CSlot
    {
        CParamArray* Field;
        int Index;
    };

    std::string m_name;
    std::variant<CSlot, float*, int*> m_place;
    int* m_unit = nullptr;
};
