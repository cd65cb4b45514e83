// The archive that writes an input echo: values go into the units of the run.
#pragma once

#include "core/results/CResultsBytes.h"
#include "core/results/EchoUnits.h"
#include "core/results/InputEchoTexts.h"
#include "core/results/RunValues.h"

#include <initializer_list>
#include <map>

class CWrittenEcho
{
public:
    CWrittenEcho(CResultsBytes& bytes, const CProjectData& project, const std::vector<CUnitWord>& words)
        : m_bytes(bytes),
          m_project(project)
    {
        for (const CUnitWord& word : words)
        {
            for (const CEchoValues& part : word.Values)
            {
                m_factors[part.Values.data()] =
                    FactorIntoFile(word.Quantity, project.INSYS.Integer(), *part.Unit);
            }
        }
    }

    void Value(const CParamArray& field, int index = 0)
    {
        m_bytes.Float(field.Value(index) * Factor(field.data.data()));
    }
    void Values(std::initializer_list<const CParamArray*> fields, int index = 0)
    {
        for (const CParamArray* field : fields)
        {
            Value(*field, index);
        }
    }
    int Count(const CParamArray& field, int limit, int index = 0)
    {
        m_bytes.Float(field.Value(index));
        return field.Count(limit, index);
    }
    void List(const CParamArray& field, int first, int count)
    {
        for (int k = first; k < first + count; ++k)
        {
            // Readers know the first offset of all by its mark.
            if (k == 0 && &field == &m_project.YAUSER)
            {
                m_bytes.Float(kFirstOffset);
            }
            else
            {
                Value(field, k);
            }
        }
    }
    void Number(const float& value) { m_bytes.Float(value * Factor(&value)); }
    void Number(const CTenFloats& values, std::size_t slot)
    {
        m_bytes.Float(values[slot] * Factor(values.data()));
    }
    void Integer(int value) { m_bytes.Integer(value); }
    void Flag(const CParamArray& field, int index) { m_bytes.Integer(field.Integer(index)); }
    void Text(const std::string& text) { m_bytes.Text(text, kEchoTextWidth); }
    bool Switch(int flag, int on, int off)
    {
        m_bytes.Integer(flag == 1 ? on : off);
        return true;
    }
    bool Mark(int word)
    {
        m_bytes.Integer(word);
        return true;
    }
    void Unread(std::initializer_list<const CParamArray*> fields) { Values(fields); }

    void GMCode(const CParamArray&) { m_bytes.Float(static_cast<float>(RunGMCode(m_project))); }
    void LoadStations(const CParamArray& field, int count) { List(field, 0, count); }
    /// The file's count leaves the centre of gravity out, and is -1 or less where the project has none.
    int PositionCount(const CParamArray& field)
    {
        m_bytes.Float(static_cast<float>(static_cast<double>(field.Integer()) - 1));
        return RunPositions(m_project);
    }
    int KeelRows(float first, float last)
    {
        return std::clamp(Truncated(KeelRowCount(first, last)), 0, kMaxBilgeKeelRows);
    }
    bool HasMagic() const { return true; }

private:
    /// Of the values of the field that begins there.
    float Factor(const float* field) const
    {
        const auto found = m_factors.find(field);
        return found == m_factors.end() ? 1 : found->second;
    }

    CResultsBytes& m_bytes;
    const CProjectData& m_project;
    std::map<const float*, float> m_factors;
};
