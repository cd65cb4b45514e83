#include "gui/forms/GridClipboard.h"

#include <QStringList>

namespace
{
constexpr qsizetype kLongestCell = 256;
constexpr QChar kMinus(0x2212); ///< the minus sign of typeset tables

/// Cuts a part up to a separator off the text's front.
QStringView TakeUpTo(QStringView& text, QChar separator)
{
    const qsizetype end = text.indexOf(separator);
    const QStringView part = end < 0 ? text : text.first(end);
    text = end < 0 ? QStringView() : text.sliced(end + 1);
    return part;
}

QString WithDecimalPoint(QString text)
{
    const qsizetype comma = text.indexOf(u',');
    const bool isDecimal = comma > 0 && comma + 1 < text.size() && text[comma - 1].isDigit() &&
                           text[comma + 1].isDigit() && text.indexOf(u',', comma + 1) < 0;
    if (isDecimal)
    {
        text[comma] = u'.';
    }
    return text;
}

QString CellText(QStringView pasted, bool commaIsPoint)
{
    QString text = pasted.first(qMin(pasted.size(), kLongestCell)).toString().simplified();
    text.replace(kMinus, u'-');
    return commaIsPoint ? WithDecimalPoint(text) : text;
}
} // namespace

QString ClipboardText(const CTextBlock& block)
{
    QStringList lines;
    for (const std::vector<QString>& cells : block)
    {
        lines += QStringList(cells.begin(), cells.end()).join(u'\t');
    }
    return lines.join(u'\n');
}

CTextBlock PastedBlock(const QString& text, int rows, int columns)
{
    const bool withSemicolons = !text.contains(u'\t') && text.contains(u';');
    const QChar separator = withSemicolons ? u';' : u'\t';
    const bool commaIsPoint = !withSemicolons && !text.contains(u'.');
    const QChar lineEnd = text.contains(u'\n') ? u'\n' : u'\r';
    CTextBlock block;
    QStringView rest = text;
    while (!rest.isEmpty() && static_cast<int>(block.size()) < rows)
    {
        QStringView line = TakeUpTo(rest, lineEnd);
        if (line.endsWith(u'\r'))
        {
            line.chop(1);
        }
        std::vector<QString>& cells = block.emplace_back();
        do
        {
            cells.push_back(CellText(TakeUpTo(line, separator), commaIsPoint));
        } while (!line.isNull() && static_cast<int>(cells.size()) < columns);
    }
    return block;
}
