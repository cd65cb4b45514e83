// Makes a locale that writes numbers with a decimal comma the process's own, for as long as it lives.
#pragma once

#include "tests/support/CTestFolder.h"

#include <string>

class CCommaLocale
{
public:
    /// Takes the German locale; where the system has not generated it, generates it first. Throws if that
    /// can't be done, so that a test never passes without the comma.
    CCommaLocale();
    ~CCommaLocale();
    CCommaLocale(const CCommaLocale&) = delete;
    CCommaLocale& operator=(const CCommaLocale&) = delete;

private:
    CTestFolder m_folder;
    std::string m_previous;
    bool m_generated = false;
};
