// The bytes of an input echo, put together item by item as the tests of its writer and readers expect them.
#pragma once

#include <cstring>
#include <initializer_list>
#include <string>

class CEchoBytes
{
public:
    CEchoBytes& Floats(std::initializer_list<float> values)
    {
        for (const float value : values)
        {
            Put(value);
        }
        return *this;
    }
    /// The same value `count` times.
    CEchoBytes& Floats(int count, float value)
    {
        for (int k = 0; k < count; ++k)
        {
            Put(value);
        }
        return *this;
    }
    CEchoBytes& Integers(std::initializer_list<int> values)
    {
        for (const int value : values)
        {
            Put(value);
        }
        return *this;
    }
    /// A field with the text at its begin.
    CEchoBytes& Text(const std::string& text, std::size_t width = 255, char filler = '\0')
    {
        m_bytes += text + std::string(width - text.size(), filler);
        return *this;
    }
    CEchoBytes& Add(const CEchoBytes& other)
    {
        m_bytes += other.m_bytes;
        return *this;
    }

    const std::string& Bytes() const { return m_bytes; }

private:
    template <class Value>
    void Put(Value value)
    {
        char bytes[sizeof value];
        std::memcpy(bytes, &value, sizeof value);
        m_bytes.append(bytes, sizeof value);
    }

    std::string m_bytes;
};
