#include "tests/screenshots/ProgramPicture.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace
{
constexpr QRgb kTitleBar = 0xFFD8DEE9;
constexpr QRgb kTitleText = 0xFF23395D;
constexpr QRgb kBorder = 0xFF7C8BA1;
constexpr int kShadow = 6; ///< pixels

QPixmap Decorated(QWidget& window)
{
    window.show();
    QApplication::processEvents();
    const QPixmap inside = window.grab();
    window.hide();
    const int bar = 2 * window.fontMetrics().height();
    QPixmap whole(inside.width() + 2, inside.height() + bar + 1);
    whole.fill(QColor::fromRgb(kBorder));
    QPainter painter(&whole);
    const QRect title(1, 1, inside.width(), bar - 1);
    painter.fillRect(title, QColor::fromRgb(kTitleBar));
    QFont font = window.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor::fromRgb(kTitleText));
    painter.drawText(title, Qt::AlignCenter, window.windowTitle());
    const int side = bar * 2 / 3;
    painter.drawPixmap((bar - side) / 2, (bar - side) / 2, window.windowIcon().pixmap(side, side));
    painter.drawPixmap(1, bar, inside);
    return whole;
}
} // namespace

QPixmap ProgramPicture(QWidget& frame, QWidget& form)
{
    QPixmap picture = Decorated(frame);
    const QPixmap front = Decorated(form);
    // Beside the middle and low, where the front page has nothing to read.
    const QRect place(
        {(picture.width() - front.width()) * 9 / 10, (picture.height() - front.height()) * 3 / 4},
        front.size());
    QPainter painter(&picture);
    for (int i = kShadow; i > 0; --i)
    {
        painter.fillRect(place.translated(i / 2, i).adjusted(-i / 2, 0, i / 2, 0), QColor(0, 0, 0, 24));
    }
    painter.drawPixmap(place, front);
    return picture;
}
