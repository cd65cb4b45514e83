// Wrong usage that only a command can see, once it has looked into its files.
#pragma once

#include <stdexcept>
#include <string>

class CUsageError : public std::runtime_error
{
public:
    explicit CUsageError(const std::string& text) : std::runtime_error(text) {}
};
