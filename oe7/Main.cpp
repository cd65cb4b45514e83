#include "oe7/output/CProgressLine.h"
#include "oe7/output/EngineFiles.h"
#include "oe7/output/EngineRun.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <iostream>
#include <optional>
#include <sstream>

namespace
{
constexpr int kMostThreads = 256;

int Run(oe7::CRunOptions options, bool progress)
{
    std::optional<oe7::CProgressLine> line;
    if (progress)
    {
        line.emplace(std::cerr);
        options.Progress = [&line](std::string_view what, double part) { line->Show(what, part); };
    }
    std::ostringstream errors;
    const int code = oe7::RunEngine(".", options, errors);
    line.reset();
    std::cerr << errors.str();
    return code;
}
} // namespace

int main(int count, char** words)
{
    // A limit on file sizes is told of like a full disk, not by the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    CLI::App app(
        "Calculates a ship's motions in waves by strip theory: reads Ondara7.inp in the current folder and "
        "writes ondara7.bin, ondara7.out, ondara7.log and two tables of coefficients beside it.",
        "OE7");
    oe7::CRunOptions options;
    bool progress = false;
    app.set_version_flag("--version", std::string(oe7::kEngineVersion));
    app.add_flag("--progress", progress, "Show on standard error how far the calculation has come");
    app.add_option("--threads", options.Threads,
                   "How many threads share the work; default: as many as the machine has")
        ->check(CLI::Range(1, kMostThreads))
        ->type_name("N");
    try
    {
        app.parse(count, words);
        return Run(options, progress);
    }
    catch (const CLI::ParseError& stop)
    {
        return app.exit(stop) == 0 ? 0 : 1;
    }
}
