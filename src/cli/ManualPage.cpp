#include "cli/ManualPage.h"

#include "cli/Wrapped.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace
{
struct CItem
{
    const char* Term;
    const char* Text;
};

constexpr CItem kExitCodes[] = {
    {"0", "Done."},
    {"1", "The command could not do its job; a message says why."},
    {"2", "Wrong usage: an unknown command or option, a missing argument, both --yes and --no."},
    {"130", "A run or a check was interrupted by Ctrl+C."},
    {"131", "A run or a check was interrupted by Ctrl+\\."},
    {"143", "A run or a check was asked to terminate; 129 when its terminal went away."},
};

constexpr CItem kEnvironment[] = {
    {"ONDARA_PROGRAMS",
     "Folder of the bundled programs, in which the engine is looked for when the base folder "
     "has none; default the folder of this program."},
    {"XDG_CONFIG_HOME", "Folder of the user's settings; default .config in the folder that HOME names."},
};

constexpr CItem kFiles[] = {
    {"*.od7", "Project files."},
    {"*.od7~", "The last content of a project file, after a disk had no room for all of the new one."},
    {"Ondara7.inp", "The engine's input, in the base folder."},
    {"OE7.exe, OE7", "The engine, in the base folder or with the bundled programs."},
    {"ondara7.bin", "The engine's results; after a good run the results file, in the base folder."},
    {"Ondara7Orig.bin", "A copy of the last results from before a check that needed the engine."},
    {"ondara7.out, ondara7.log", "The engine's listing and its log, in the base folder."},
    {"RudderGain.inp, FinGain.inp", "Copies of the gain files that a project uses, in the base folder."},
    {"*.tv7", "Results files."},
    {"oview.html", "The output report, in the base folder."},
    {"Larkfield Marine Limited/Ondara.ini",
     "The settings store in the folder of the user's settings, shared "
     "with the desktop program: the list of recent files, the last results file."},
};

constexpr CItem kExamples[] = {
    {"ondara-cli run ship.od7 --results ship.tv7", "Runs a calculation and keeps its results."},
    {"ondara-cli convert --half geometry --onto sea.od7 ship.od7 both.od7",
     "Joins the ship of one project with the sea of another."},
    {"ondara-cli dump ship.od7", "Shows what a project holds."},
    {"ondara-cli --base-dir engine engine-input ship.od7", "Gets the folder engine ready for a calculation."},
};

std::string Escaped(const std::string& text)
{
    std::string roff;
    for (const char c : text)
    {
        roff += c == '\\' ? "\\e" : c == '-' ? "\\-" : c == '~' ? "\\(ti" : std::string(1, c);
    }
    return roff;
}

/// Text in lines of a length that roff sources have. A point or an apostrophe at the start of one would be a
/// request.
std::string Paragraph(const std::string& text)
{
    constexpr std::size_t width = 76;
    std::istringstream lines(Wrapped(Escaped(text), width));
    std::string roff;
    for (std::string line; std::getline(lines, line);)
    {
        roff += (line.starts_with('.') || line.starts_with('\'') ? "\\&" : "") + line + "\n";
    }
    return roff;
}

std::string Entry(const std::string& term, const std::string& text)
{
    return ".TP\n" + term + "\n" + Paragraph(text);
}

std::string Bold(const std::string& text)
{
    return "\\fB" + Escaped(text) + "\\fR";
}
std::string Italic(const std::string& text)
{
    return "\\fI" + Escaped(text) + "\\fR";
}

template <std::size_t Count>
std::string Section(const char* title, const CItem (&items)[Count])
{
    std::string roff = std::string(".SH ") + title + "\n";
    for (const CItem& item : items)
    {
        roff += Entry(Bold(item.Term), item.Text);
    }
    return roff;
}

/// An argument as it is written on the command line.
std::string Written(const CLI::Option& option)
{
    if (option.get_positional())
    {
        return Italic(option.get_name());
    }
    std::string roff = Bold(option.get_name(false, true));
    if (option.get_items_expected_max() > 0)
    {
        roff += " " + Italic(option.get_type_name());
    }
    return roff;
}

std::string Synopsis(const CLI::App& command)
{
    std::string roff = Bold(command.get_name());
    for (const CLI::Option* option : command.get_options())
    {
        if (option != command.get_help_ptr())
        {
            roff += option->get_required() ? " " + Written(*option) : " [" + Written(*option) + "]";
        }
    }
    return roff + "\n";
}

std::string Options(const CLI::App& app)
{
    std::string roff;
    for (const CLI::Option* option : app.get_options())
    {
        if (!option->get_group().empty())
        {
            roff += Entry(Written(*option), option->get_description() + ".");
        }
    }
    return roff;
}

std::string Command(const CLI::App& command)
{
    std::string roff = ".SS " + Escaped(command.get_name()) + "\n" + Synopsis(command) + ".PP\n";
    roff += Paragraph(command.get_description() + ".") + Paragraph(command.get_footer());
    return roff + Options(command);
}
} // namespace

std::string ManualPage(const CLI::App& program)
{
    const std::string name = program.get_name();
    std::string roff = ".TH ONDARA\\-CLI 1 " ONDARA_RELEASE_DATE " \"Ondara " ONDARA_VERSION "\"\n";
    roff += ".SH NAME\n" + Escaped(name) + " \\- ship motions in waves, without a screen\n";
    roff += ".SH SYNOPSIS\n" + Bold(name) + " [" + Italic("options") + "] " + Italic("command") + " [" +
            Italic("arguments") + "]\n";
    roff += ".SH DESCRIPTION\n" + Paragraph(program.get_description());
    roff +=
        Paragraph("A message box of the desktop program is one line on standard error, its title, a colon "
                  "and its text, with a line feed in the text shown as \\n; a question has its answer behind "
                  "it, [yes] or [no]. Standard output carries only what the command is asked for.");
    roff += ".SH OPTIONS\n" + Options(program) + ".SH COMMANDS\n";
    for (const CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; }))
    {
        roff += Command(*command);
    }
    return roff + Section("EXIT STATUS", kExitCodes) + Section("ENVIRONMENT", kEnvironment) +
           Section("FILES", kFiles) + Section("EXAMPLES", kExamples);
}
