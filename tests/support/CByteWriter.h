// Bytes of a results file, one little-endian value behind the other.
#pragma once

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <string>

class CByteWriter
{
public:
    void Float(float value) { Word(&value); }
    void Floats(std::initializer_list<float> values)
    {
        for (const float value : values)
        {
            Float(value);
        }
    }
    /// The same value several times.
    void Floats(int count, float value)
    {
        for (int k = 0; k < count; ++k)
        {
            Float(value);
        }
    }
    void Integer(int value) { Word(&value); }
    /// A field of a width, padded.
    void Text(std::string text, std::size_t width, char padding = ' ')
    {
        text.resize(width, padding);
        m_bytes += text;
    }

    /// Fills up to a place.
    void PadTo(std::size_t size) { m_bytes.resize(size, '\0'); }
    int Size() const { return static_cast<int>(m_bytes.size()); }
    const std::string& Bytes() const { return m_bytes; }

private:
    template <class Value>
    void Word(const Value* value)
    {
        static_assert(sizeof(Value) == 4);
        char word[4];
        std::memcpy(word, value, sizeof word);
        m_bytes.append(word, sizeof word);
    }

    std::string m_bytes;
};
