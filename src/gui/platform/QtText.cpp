#include "gui/platform/QtText.h"

#include <QStringDecoder>

QString ScreenText(const std::string& text)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return decoder.hasError() ? QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()))
                              : decoded;
}

std::string PlainText(const QString& text)
{
    return text.toStdString();
}
