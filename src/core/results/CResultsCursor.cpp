#include "core/results/CResultsCursor.h"

#include <cmath>
#include <cstring>

namespace
{
template <class Value>
Value ValueOf(std::string_view bytes)
{
    Value value = {};
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

constexpr std::string_view kTextEnds("\0 ", 2);
} // namespace

CResultsCursor::CResultsCursor(std::string_view bytes, std::ptrdiff_t position) : m_bytes(bytes)
{
    Seek(position);
}

std::string_view CResultsCursor::Take(std::size_t bytes)
{
    const std::string_view taken = m_bytes.substr(m_position, bytes);
    Skip(bytes);
    return taken;
}

float CResultsCursor::Float()
{
    return ValueOf<float>(Take(sizeof(float)));
}

int CResultsCursor::Integer()
{
    return ValueOf<int>(Take(sizeof(int)));
}

int CResultsCursor::PeekInteger() const
{
    return CResultsCursor(*this).Integer();
}

std::string CResultsCursor::Text(std::size_t width)
{
    const std::string_view field = Take(width);
    return std::string(field.substr(0, field.find_first_of(kTextEnds)));
}

void CResultsCursor::Skip(std::size_t bytes)
{
    if (bytes > m_bytes.size() - m_position)
    {
        throw CResultsError();
    }
    m_position += bytes;
}

void CResultsCursor::Seek(std::ptrdiff_t position)
{
    if (position < 0 || static_cast<std::size_t>(position) > m_bytes.size())
    {
        throw CResultsError();
    }
    m_position = static_cast<std::size_t>(position);
}

int CResultsCursor::FloatCount(int greatest)
{
    return CheckedCount(Float(), greatest);
}

int CResultsCursor::Count(int greatest)
{
    return CheckedCount(Integer(), greatest);
}

CFloatRows CResultsCursor::Rows(int count, int width)
{
    const auto values = static_cast<std::size_t>(count) * static_cast<std::size_t>(width);
    return {Take(values * sizeof(float)).data(), count, width};
}

int CheckedCount(float value, int greatest)
{
    constexpr float tooLarge = 2147483648.0F;
    if (!std::isfinite(value) || value >= tooLarge || value < -tooLarge)
    {
        throw CResultsError();
    }
    return CheckedCount(static_cast<int>(value), greatest);
}

int CheckedCount(int value, int greatest)
{
    if (value > greatest)
    {
        throw CResultsError();
    }
    return value < 0 ? 0 : value;
}
