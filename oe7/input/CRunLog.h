// What a run has to tell besides its results.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace oe7
{

/// The calculation can't be done. The text is for the user: which line or value, and what is wrong with it.
class CInputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Warnings change the outcome of the run, notes don't. Each text is kept once.
class CRunLog
{
public:
    void Warn(const std::string& text);
    void Note(const std::string& text);

    const std::vector<std::string>& Warnings() const { return m_warnings; }
    const std::vector<std::string>& Notes() const { return m_notes; }

private:
    std::vector<std::string> m_warnings;
    std::vector<std::string> m_notes;
};

} // namespace oe7
