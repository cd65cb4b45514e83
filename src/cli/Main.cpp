#include "cli/CommandLine.h"

#include <csignal>
#include <iostream>

int main(int count, char** words)
{
    // A limit on file sizes is told of like a full disk, not by the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    return RunCommandLine({words + 1, words + count}, std::cout, std::cerr);
}
