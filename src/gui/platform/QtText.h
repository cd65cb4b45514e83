// Texts of the core, which are bytes, as texts of the screen, and back.
#pragma once

#include <string>

#include <QString>

/// Bytes as UTF-8; as Latin-1 if they are no UTF-8, so that no file's text is lost on the screen.
QString ScreenText(const std::string& text);
/// A text of the screen as UTF-8.
std::string PlainText(const QString& text);
