// Part of a results file in the making: little-endian values one behind the other.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

class CResultsBytes
{
public:
    void Float(float value) { Append(value); }
    void Integer(int value) { Append(value); }
    /// A field of `width` bytes, filled with zeros; the text is cut so that at least one stands behind it.
    void Text(const std::string& text, std::size_t width)
    {
        m_bytes.append(text, 0, width - 1);
        m_bytes.append(width - std::min(text.size(), width - 1), '\0');
    }

    void Raw(std::string_view bytes) { m_bytes += bytes; }

    const std::string& Bytes() const { return m_bytes; }
    void Clear() { m_bytes.clear(); }

private:
    template <class Value>
    void Append(Value value)
    {
        char bytes[sizeof value];
        std::memcpy(bytes, &value, sizeof value);
        m_bytes.append(bytes, sizeof value);
    }

    std::string m_bytes;
};
