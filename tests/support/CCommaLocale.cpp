#include "tests/support/CCommaLocale.h"

#include <clocale>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace
{
constexpr const char* kLocale = "de_DE.UTF-8";

bool TakeLocale()
{
    return std::setlocale(LC_ALL, kLocale) != nullptr && std::string(std::localeconv()->decimal_point) == ",";
}
} // namespace

CCommaLocale::CCommaLocale() : m_previous(std::setlocale(LC_ALL, nullptr))
{
    if (TakeLocale())
    {
        return;
    }
    const std::string command =
        std::string("PATH=$PATH:/usr/bin localedef -i de_DE -f UTF-8 '") + m_folder.File(kLocale) + "'";
    const int status = std::system(command.c_str());
    ::setenv("LOCPATH", m_folder.Path().c_str(), 1);
    m_generated = true;
    if (!TakeLocale())
    {
        throw std::runtime_error("no locale with a decimal comma (localedef ended with " +
                                 std::to_string(status) + "); the package \"locales\" brings it");
    }
}

CCommaLocale::~CCommaLocale()
{
    if (m_generated)
    {
        ::unsetenv("LOCPATH");
    }
    std::setlocale(LC_ALL, m_previous.c_str());
}
