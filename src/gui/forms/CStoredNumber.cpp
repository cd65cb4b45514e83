#include "gui/forms/CStoredNumber.h"

#include "core/platform/NumberText.h"

#include <limits>

CStoredNumber::CStoredNumber(CParamArray& field, int index)
    : m_name(field.Capacity() == 1 ? field.name : field.name + "." + IntegerText(index)),
      m_place(CSlot{&field, index}),
      m_unit(&field.unit)
{
}

CStoredNumber::CStoredNumber(const char* name, float& value, int* unit)
    : m_name(name),
      m_place(&value),
      m_unit(unit)
{
}

CStoredNumber::CStoredNumber(const char* name, int& value) : m_name(name), m_place(&value) {}

float CStoredNumber::Value() const
{
    if (const auto* slot = std::get_if<CSlot>(&m_place))
    {
        return slot->Field->Value(slot->Index);
    }
    if (float* const* value = std::get_if<float*>(&m_place))
    {
        return **value;
    }
    return static_cast<float>(*std::get<int*>(m_place));
}

bool CStoredNumber::Store(float value) const
{
    const bool differs = value != Value();
    if (const auto* slot = std::get_if<CSlot>(&m_place))
    {
        slot->Field->changed = differs ? 1 : slot->Field->changed;
        slot->Field->Set(slot->Index, value);
    }
    else if (float* const* place = std::get_if<float*>(&m_place))
    {
        **place = value;
    }
    else
    {
        *std::get<int*>(m_place) = Truncated(value);
    }
    return differs;
}

int CStoredNumber::Unit() const
{
    return m_unit != nullptr ? *m_unit : kUnitMetric;
}

void CStoredNumber::StoreUnit(int unit) const
{
    if (m_unit != nullptr)
    {
        *m_unit = unit;
    }
}

float CStoredNumber::Minimum() const
{
    const auto* slot = std::get_if<CSlot>(&m_place);
    return slot != nullptr ? slot->Field->min : std::numeric_limits<float>::lowest();
}

float CStoredNumber::Maximum() const
{
    const auto* slot = std::get_if<CSlot>(&m_place);
    return slot != nullptr ? slot->Field->max : std::numeric_limits<float>::max();
}
