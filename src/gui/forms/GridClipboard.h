// Blocks of cells as the text that spreadsheets copy and paste.
#pragma once

#include <vector>

#include <QString>

/// The texts of the lines of a block.
using CTextBlock = std::vector<std::vector<QString>>;

/// Lines ended by line feeds, cells separated by tabs; no line feed behind the last line.
QString ClipboardText(const CTextBlock& block);

/// A pasted text as cells, at most `rows` lines and `columns` cells a line; the rest isn't looked at. Cells
/// are separated by tabs, or by semicolons where the text holds no tab. Without semicolons between the cells
/// a comma between two digits is a decimal point if the text holds no point. Blanks around a text go, and so
/// does what is far too long for a number.
CTextBlock PastedBlock(const QString& text, int rows, int columns);
