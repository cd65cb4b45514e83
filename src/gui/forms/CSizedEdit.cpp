#include "gui/forms/CSizedEdit.h"

void CSizedEdit::ShowsCharacters(int count)
{
    m_characters = count;
    updateGeometry();
}

QSize CSizedEdit::sizeHint() const
{
    QSize size = QLineEdit::sizeHint();
    if (m_characters > 0)
    {
        // What is around the text is what the line edit has around its own 17 characters.
        constexpr int ownCharacters = 17;
        const QFontMetrics metrics = fontMetrics();
        const int around = size.width() - ownCharacters * metrics.horizontalAdvance(QLatin1Char('x'));
        size.setWidth(around + m_characters * metrics.horizontalAdvance(QLatin1Char('0')));
    }
    return size;
}
