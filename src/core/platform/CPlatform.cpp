#include "core/platform/CPlatform.h"

#include "core/platform/NumberText.h"

std::string CProfile::GetProfileString(const std::string& section, const std::string& entry,
                                       const std::string& absent) const
{
    return Find(section, entry).value_or(absent);
}

int CProfile::GetProfileInt(const std::string& section, const std::string& entry, int absent) const
{
    const auto text = Find(section, entry);
    return text ? IntegerAtStart(*text) : absent;
}

void CProfile::WriteProfileInt(const std::string& section, const std::string& entry, int value)
{
    WriteProfileString(section, entry, IntegerText(value));
}
