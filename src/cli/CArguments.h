// Declares the arguments of the program or of a command, and where their values go. Of an option that is
// given twice the last one counts.
#pragma once

#include <functional>
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

/// The path of a file in full, and as it was given.
struct CGivenFile
{
    std::string Path;
    std::string Given;
};

class CArguments
{
public:
    explicit CArguments(CLI::App& app) : m_app(app) {}

    /// The path of a file by its place in the line. Always full: relative paths are taken from the folder in
    /// which the program was started.
    void File(const std::string& name, std::string& path, const std::string& help);
    /// The same, where it matters how the path was given.
    void File(const std::string& name, CGivenFile& file, const std::string& help);
    /// The path of a file behind an option.
    void File(const std::string& option, const std::string& value, std::string& path, const std::string& help,
              EGiven given = EGiven::MayLack);
    /// A folder behind an option, as it was given.
    void Folder(const std::string& option, std::string& path, const std::string& help);
    /// One of several words behind an option.
    void Choice(const std::string& option, const std::vector<std::string>& choices, std::string& choice,
                const std::string& help, EGiven given = EGiven::MayLack);
    /// Words with commas between, behind an option. `take` gets them, and tells what is wrong with them; the
    /// empty text means that nothing is.
    void List(const std::string& option, const std::string& help,
              const std::function<std::string(const std::vector<std::string>&)>& take);

private:
    void FilePath(CLI::Option& option);

    CLI::App& m_app;
};
