// The settings store as one INI file in the user's configuration folder, keyed by maker, program, section,
// entry.
#pragma once

#include "core/platform/CPlatform.h"

#include <map>
#include <string>
#include <utility>

class CIniProfile : public CProfile
{
public:
    /// Reads the file, if there is one. Each write goes to the file at once; a store that can't be written
    /// holds its values for as long as the program runs.
    explicit CIniProfile(const std::string& path);

    std::optional<std::string> Find(const std::string& section, const std::string& entry) const override;
    void WriteProfileString(const std::string& section, const std::string& entry,
                            const std::string& value) override;
    std::string Folder() const override;

    /// The user's own store.
    static std::string DefaultPath();

private:
    /// Section and entry; a section of another program is kept under its full name.
    using CKey = std::pair<std::string, std::string>;
    using CEntries = std::map<CKey, std::string>;

    /// Nothing if there is a file, but not all of it can be read: it is then never overwritten.
    std::optional<CEntries> ReadEntries() const;
    bool WriteEntries() const;

    std::string m_path;
    CEntries m_entries;
    CEntries m_unsaved; ///< written here, but not in the file
};
