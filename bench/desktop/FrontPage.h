// What the child processes of the measurement of a start do.
#pragma once

/// The desktop program from its start until its front page is painted; gives its exit code.
int RunToFrontPage(int argc, char** argv);

/// The least that a program with a window takes: an empty one, painted once.
int RunBareWindow(int argc, char** argv);
