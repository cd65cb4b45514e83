#include "gui/app/Desktop.h"

#include <csignal>

int main(int argc, char** argv)
{
    // A limit on file sizes is told of like a full disk, not by the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    return RunDesktop(argc, argv);
}
