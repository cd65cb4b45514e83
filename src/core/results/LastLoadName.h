// The settings' memory of the last results file: written when a run completes, it follows the file when that
// is saved under a name. Empty as long as there is nothing to save.
#pragma once

#include "core/platform/CPlatform.h"

#include <string>

inline std::string LastLoadName(const CProfile& profile)
{
    return profile.GetProfileString("Ondara", "LastLoadName");
}

inline void SetLastLoadName(CProfile& profile, const std::string& path)
{
    profile.WriteProfileString("Ondara", "LastLoadName", path);
}
