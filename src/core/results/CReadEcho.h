// The archive that reads an input echo: values go into the project as they stand in the file.
#pragma once

#include "core/project/CProjectData.h"
#include "core/results/CResultsCursor.h"
#include "core/results/InputEchoTexts.h"

#include <initializer_list>
#include <limits>

class CReadEcho
{
public:
    CReadEcho(CResultsCursor& cursor, bool hasMagic) : m_cursor(cursor), m_hasMagic(hasMagic) {}

    void Value(CParamArray& field, int index = 0) { field.Set(index, m_cursor.Float()); }
    void Values(std::initializer_list<CParamArray*> fields, int index = 0)
    {
        for (CParamArray* field : fields)
        {
            Value(*field, index);
        }
    }
    int Count(CParamArray& field, int limit, int index = 0)
    {
        Value(field, index);
        return CheckedCount(field.Value(index), limit);
    }
    void List(CParamArray& field, int first, int count)
    {
        for (int k = first; k < first + count; ++k)
        {
            Value(field, k);
        }
    }
    void Number(float& value) { value = m_cursor.Float(); }
    void Number(CTenFloats& values, std::size_t slot) { Number(values[slot]); }
    void Integer(int& value) { value = m_cursor.Integer(); }
    void Flag(CParamArray& field, int index) { field.Set(index, static_cast<float>(m_cursor.Integer())); }
    void Text(std::string& text) { text = m_cursor.Text(kEchoTextWidth); }
    bool Switch(int& flag, int on, int off)
    {
        const bool isOn = Mark(on);
        if (!isOn && !Mark(off))
        {
            return false;
        }
        flag = isOn ? 1 : 0;
        return true;
    }
    bool Mark(int word)
    {
        if (m_cursor.PeekInteger() != word)
        {
            return false;
        }
        m_cursor.Integer();
        return true;
    }
    void Unread(std::initializer_list<CParamArray*> fields) { m_cursor.Skip(fields.size() * sizeof(float)); }

    void GMCode(CParamArray& field) { Value(field); }
    void LoadStations(CParamArray& field, int count) { List(field, 0, count); }
    int PositionCount(CParamArray& field)
    {
        const float count = m_cursor.Float();
        field.Set(count + 1);
        return CheckedCount(count, kMaxPositions);
    }
    int KeelRows(float first, float last)
    {
        for (const float end : {first, last})
        {
            CheckedCount(end, std::numeric_limits<int>::max());
        }
        return CheckedCount(KeelRowCount(first, last), kMaxBilgeKeelRows);
    }
    bool HasMagic() const { return m_hasMagic; }

protected:
    CResultsCursor& m_cursor;

private:
    bool m_hasMagic;
};
