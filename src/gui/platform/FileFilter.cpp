#include "gui/platform/FileFilter.h"

#include "gui/platform/QtText.h"

namespace
{
QString WithoutPatterns(const QString& caption)
{
    const qsizetype bracket = caption.lastIndexOf('(');
    const bool hasPatterns = bracket >= 0 && caption.indexOf('*', bracket) >= 0;
    return (hasPatterns ? caption.left(bracket) : caption).trimmed();
}

QString SpacedPatterns(const QString& patterns)
{
    QStringList spaced;
    for (const QString& pattern : patterns.split(';', Qt::SkipEmptyParts))
    {
        const QString trimmed = pattern.trimmed();
        spaced << (trimmed == "*.*" ? QString("*") : trimmed);
    }
    return spaced.join(' ');
}
} // namespace

QStringList NameFilters(const std::string& filter)
{
    QStringList filters;
    const QStringList parts = ScreenText(filter).split('|');
    for (qsizetype k = 0; k + 1 < parts.size(); k += 2)
    {
        filters << WithoutPatterns(parts[k]) + " (" + SpacedPatterns(parts[k + 1]) + ")";
    }
    return filters;
}

QString Suffix(const std::string& extension)
{
    const QString text = ScreenText(extension);
    return text.mid(text.lastIndexOf('.') + 1);
}
