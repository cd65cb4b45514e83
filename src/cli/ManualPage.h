// The manual page of ondara-cli, made from the declarations that its help is made from.
#pragma once

#include <string>

namespace CLI
{
class App;
}

/// The page as roff, for man(1).
std::string ManualPage(const CLI::App& program);
