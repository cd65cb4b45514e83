// The commands of ondara-cli, in the order of its help.
#pragma once

#include "cli/CCommand.h"

#include <memory>
#include <vector>

std::vector<std::unique_ptr<CCommand>> AllCommands();
