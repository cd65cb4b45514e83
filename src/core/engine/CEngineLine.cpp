#include "core/engine/CEngineLine.h"

#include <algorithm>
#include <iterator>

CEngineLine& CEngineLine::Restart()
{
    m_text.clear();
    m_word = 0;
    m_empty = true;
    return *this;
}

void CEngineLine::BeginWord()
{
    if (!m_empty)
    {
        m_text += ' ';
    }
    m_empty = false;
    m_word = m_text.size();
}

CEngineLine& CEngineLine::Word(std::string_view text)
{
    BeginWord();
    std::copy_if(text.begin(), text.end(), std::back_inserter(m_text), [](char c) { return c != '\r'; });
    return *this;
}

CEngineLine& CEngineLine::Integer(int value)
{
    BeginWord();
    m_text += IntegerText(value);
    return *this;
}

CEngineLine& CEngineLine::Value(float value, int unit, const CEngineFormat& format)
{
    const double factor = m_units.Factor(format.Quantity, unit);
    double converted = value;
    // A value that isn't converted needs no first rounding. Where neighbouring floats are closer than one
    // unit of the last decimal, the float nearest to the rounded text is less than half such a unit away from
    // it and gives that text again; where they are farther apart, the nearest float is the value itself.
    if (format.RoundedFirst && factor != 1)
    {
        converted = static_cast<float>(NumberAtStart(FixedText(value, format.Decimals)));
    }
    BeginWord();
    AppendFixed(m_text, converted * factor, format.Decimals);
    return *this;
}

CEngineLine& CEngineLine::Value(const CParamArray& field, const CEngineFormat& format, int index)
{
    return Value(field.Value(index), field.unit, format);
}

CEngineLine& CEngineLine::ValueOr(std::string_view word, bool given, const CParamArray& field,
                                  const CEngineFormat& format, int index)
{
    return given ? Value(field, format, index) : Word(word);
}

CEngineLine& CEngineLine::Values(std::initializer_list<const CParamArray*> fields,
                                 const CEngineFormat& format, int index)
{
    for (const CParamArray* field : fields)
    {
        Value(*field, format, index);
    }
    return *this;
}

CEngineLine& CEngineLine::List(std::span<const float> values, int unit, const CEngineFormat& format)
{
    for (const float value : values)
    {
        Value(value, unit, format);
    }
    return *this;
}

CEngineLine& CEngineLine::Count(const CParamArray& field, int capacity, int index)
{
    BeginWord();
    const float count = field.Value(index);
    const float most = static_cast<float>(capacity);
    AppendFixed(m_text, count > most ? most : count, kInteger.Decimals);
    return *this;
}

CEngineLine& CEngineLine::Instead(std::string_view text, std::string_view other)
{
    if (std::string_view(m_text).substr(m_word) == text)
    {
        m_text.replace(m_word, std::string::npos, other);
    }
    return *this;
}

CEngineLine& CEngineLine::Blank()
{
    m_text += ' ';
    return *this;
}

std::span<const float> Slice(const CParamArray& field, int first, int count)
{
    return std::span(field.data).subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
}
