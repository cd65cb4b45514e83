// The program's icon, which is built into it.
#pragma once

#include <QIcon>

/// Also ":/ondara.svg" is there from the first call on.
QIcon ProgramIcon();
