#include "cli/CArguments.h"

#include "core/platform/Files.h"

#include <CLI/CLI.hpp>

namespace
{
/// What stands between the commas.
std::vector<std::string> Words(const std::string& list)
{
    std::vector<std::string> words(1);
    for (const char c : list)
    {
        c == ',' ? words.emplace_back() : words.back() += c;
    }
    return words;
}
} // namespace

void CArguments::FilePath(CLI::Option& option)
{
    option.transform([](const std::string& path) { return FullPath(path); });
    option.check([](const std::string& path)
                 { return FileName(path).empty() ? std::string("no name of a file") : std::string(); });
}

void CArguments::File(const std::string& name, std::string& path, const std::string& help)
{
    FilePath(*m_app.add_option(name, path, help)->required()->type_name(""));
}

void CArguments::File(const std::string& name, CGivenFile& file, const std::string& help)
{
    File(name, file.Path, help);
    m_app.get_option(name)->transform(
        [&file](const std::string& path)
        {
            file.Given = path;
            return path;
        });
}

void CArguments::File(const std::string& option, const std::string& value, std::string& path,
                      const std::string& help, EGiven given)
{
    FilePath(*m_app.add_option(option, path, help)
                  ->required(given == EGiven::Always)
                  ->type_name(value)
                  ->take_last());
}

void CArguments::Folder(const std::string& option, std::string& path, const std::string& help)
{
    m_app.add_option(option, path, help)->type_name("DIR")->take_last();
}

void CArguments::Choice(const std::string& option, const std::vector<std::string>& choices,
                        std::string& choice, const std::string& help, EGiven given)
{
    std::string words;
    for (const std::string& word : choices)
    {
        words += (words.empty() ? "" : "|") + word;
    }
    CLI::Validator member = CLI::IsMember(choices);
    member.description("");
    m_app.add_option(option, choice, help)
        ->required(given == EGiven::Always)
        ->type_name(words)
        ->take_last()
        ->check(member);
}

void CArguments::List(const std::string& option, const std::string& help,
                      const std::function<std::string(const std::vector<std::string>&)>& take)
{
    const auto takeText = [option, take](const std::string& text)
    {
        const std::string fault = take(Words(text));
        if (!fault.empty())
        {
            throw CLI::ValidationError(option, fault);
        }
    };
    m_app.add_option_function<std::string>(option, takeText, help)->type_name("LIST")->take_last();
}
