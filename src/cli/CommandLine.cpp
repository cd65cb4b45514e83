#include "cli/CommandLine.h"

#include "cli/CArguments.h"
#include "cli/CStreamMessages.h"
#include "cli/CUsageError.h"
#include "cli/CWorkbench.h"
#include "cli/Commands.h"
#include "cli/ManualPage.h"
#include "cli/Wrapped.h"
#include "core/platform/CIniProfile.h"
#include "core/platform/Files.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <ostream>

namespace
{
constexpr const char* kProgram = "ondara-cli";
constexpr std::size_t kHelpWidth = 80;
constexpr const char* kDescription = "Ship motions in waves, without a screen: the project files, the "
                                     "calculations and the reports of Ondara, for scripts, batch work and "
                                     "tests.";

/// What an option writes in place of running a command.
class CAnswer : public CLI::Success
{
public:
    explicit CAnswer(const std::string& text) : CLI::Success("Answer", text, CLI::ExitCodes::Success) {}
};

/// The program's options and commands.
class CProgram
{
public:
    CProgram() : m_app(Wrapped(kDescription, kHelpWidth), kProgram)
    {
        m_app.set_help_flag("-h,--help", "Print this help and end");
        m_app.get_formatter()->label("SUBCOMMAND", "COMMAND");
        m_app.get_formatter()->label("Positionals", "Arguments");
        DeclareOptions();
        for (const auto& command : m_commands)
        {
            Declare(*command);
        }
        m_app.require_subcommand(1);
        m_app.footer("ondara-cli COMMAND --help tells more about a command.");
    }

    int Run(const std::vector<std::string>& words, std::ostream& output, std::ostream& errors)
    {
        try
        {
            m_app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
        }
        catch (const CAnswer& answer)
        {
            return Print(answer.what(), output, errors);
        }
        catch (const CLI::CallForHelp&)
        {
            return Print(m_app.help(), output, errors);
        }
        catch (const CLI::ParseError& error)
        {
            return Misused(UsageText(error), errors);
        }
        try
        {
            return RunCommand(output, errors);
        }
        catch (const CUsageError& error)
        {
            return Misused(error.what(), errors);
        }
    }

private:
    void DeclareOptions()
    {
        CArguments arguments(m_app);
        arguments.Folder("--base-dir", m_options.BaseDir,
                         "Folder that holds the engine and its files; default the current folder");
        auto* yes = m_app.add_flag("--yes", m_options.Yes, "Answer every question with Yes");
        auto* no = m_app.add_flag("--no")->description("Answer every question with No; the default");
        yes->excludes(no)->disable_flag_override();
        no->disable_flag_override();
        arguments.File("--profile", "FILE", m_options.Profile, "Settings store; default the user's own");
        m_app.add_flag_callback(
            "--version", [] { throw CAnswer(std::string(kProgram) + " " ONDARA_VERSION "\n"); },
            "Print the version and end");
        m_app.add_flag_callback("--man", [this] { throw CAnswer(ManualPage(m_app)); })->group("");
    }

    void Declare(CCommand& command)
    {
        CLI::App& sub = *m_app.add_subcommand(command.Name(), command.Summary());
        sub.footer(Wrapped(command.Description(), kHelpWidth) +
                   "\n\nThe options that ondara-cli --help lists may stand here too.");
        sub.group("Commands");
        sub.fallthrough(); // the program's options may stand behind the command too
        CArguments arguments(sub);
        command.Declare(arguments);
    }

    static int Print(const std::string& text, std::ostream& output, std::ostream& errors)
    {
        CStreamMessages messages(errors, false);
        return PrintText(text, output, messages) ? kExitDone : kExitFailed;
    }

    static int Misused(const std::string& fault, std::ostream& errors)
    {
        errors << kProgram << ": " << fault << " (" << kProgram << " --help tells more)\n";
        return kExitUsage;
    }

    std::string UsageText(const CLI::ParseError& error) const
    {
        if (!m_app.get_subcommands().empty() || error.get_name() != "RequiredError")
        {
            return error.what();
        }
        const auto words = m_app.remaining();
        return words.empty() ? "A command is required" : "There is no command " + words.front();
    }

    int RunCommand(std::ostream& output, std::ostream& errors)
    {
        const std::string name = m_app.get_subcommands().front()->get_name();
        const auto command = std::find_if(m_commands.begin(), m_commands.end(),
                                          [&](const auto& candidate) { return candidate->Name() == name; });
        if (!FolderExists(m_options.BaseDir))
        {
            errors << kProgram << ": "
                   << (m_options.BaseDir.empty() ? "the current folder is gone"
                                                 : m_options.BaseDir + " is no folder")
                   << '\n';
            return kExitFailed;
        }
        CWorkbench workbench(m_options, output, errors);
        return (*command)->Run(workbench) ? kExitDone : (*command)->FailureCode();
    }

    CProgramOptions m_options = {CurrentFolder(), CIniProfile::DefaultPath(), false};
    std::vector<std::unique_ptr<CCommand>> m_commands = AllCommands();
    CLI::App m_app;
};
} // namespace

int RunCommandLine(const std::vector<std::string>& words, std::ostream& output, std::ostream& errors)
{
    return CProgram().Run(words, output, errors);
}
