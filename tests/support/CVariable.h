// An environment variable for the time of a test.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets an environment variable for as long as it lives.
class CVariable
{
public:
    CVariable(const char* name, const std::string& value) : m_name(name)
    {
        const char* before = std::getenv(name);
        m_before = before != nullptr ? std::optional<std::string>(before) : std::nullopt;
        ::setenv(name, value.c_str(), 1);
    }
    ~CVariable()
    {
        if (m_before)
        {
            ::setenv(m_name, m_before->c_str(), 1);
        }
        else
        {
            ::unsetenv(m_name);
        }
    }
    CVariable(const CVariable&) = delete;
    CVariable& operator=(const CVariable&) = delete;

private:
    const char* m_name;
    std::optional<std::string> m_before;
};
