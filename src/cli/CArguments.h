// Declares the arguments of the program or of a command, and where their values go. Of an option that is
// given twice the last one counts.
#pragma once

#include <string>
#include <vector>

namespace CLI
{
class App;
class Option;
} // namespace CLI

enum class EGiven
{
    MayLack,
    Always
};

class CArguments
{
public:
    explicit CArguments(CLI::App& app) : m_app(app) {}

    /// The path of a file by its place in the line. Always full: relative paths are taken from the folder in
    /// which the program was started.
    void File(const std::string& name, std::string& path, const std::string& help);
    /// The path of a file behind an option.
    void File(const std::string& option, const std::string& value, std::string& path, const std::string& help,
              EGiven given = EGiven::MayLack);
    /// A folder behind an option, as it was given.
    void Folder(const std::string& option, std::string& path, const std::string& help);
    /// One of several words behind an option.
    void Choice(const std::string& option, const std::vector<std::string>& choices, std::string& choice,
                const std::string& help, EGiven given = EGiven::MayLack);

private:
    void FilePath(CLI::Option& option);

    CLI::App& m_app;
};
