// The filters of file dialogs: as the program states them, and as Qt has them.
#pragma once

#include <string>

#include <QString>
#include <QStringList>

/// "Caption|*.a; *.b|All Files (*.*)|*.*|" as {"Caption (*.a *.b)", "All Files (*)"}. A caption keeps no
/// patterns of its own; "*.*" means every file, also one without an extension.
QStringList NameFilters(const std::string& filter);
/// "*.od7", ".od7" and "od7" as "od7".
QString Suffix(const std::string& extension);
