#include "gui/app/COndaraView.h"

#include "gui/platform/QtText.h"

#include <algorithm>
#include <array>

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>

namespace
{
constexpr int kBands = 256;
constexpr double kFilesFrom = 0.8333333333333334; ///< of the height
constexpr QRgb kGrey = 0xFFC0C0C0;

QFont PageFont(int size)
{
    QFont font(QStringList{QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif")});
    font.setStyleHint(QFont::Serif);
    font.setWeight(QFont::Bold);
    font.setPixelSize(std::max(size, 1));
    return font;
}

/// White letters that stand out of the page, their shadow to the right and below.
void DrawRaised(QPainter& painter, const QPoint& baseline, const QString& text)
{
    const double depth = painter.font().pixelSize() / 40.0;
    const std::array<std::pair<double, QColor>, 3> layers = {
        {{2 * depth, Qt::black}, {depth, QColor::fromRgb(kGrey)}, {0, Qt::white}}};
    for (const auto& [offset, color] : layers)
    {
        painter.setPen(color);
        painter.drawText(QPointF(baseline) + QPointF(offset, offset), text);
    }
}
} // namespace

COndaraView::COndaraView(const CProjectData& project, QWidget* parent) : QWidget(parent), m_project(project)
{
    setObjectName("COndaraView");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(fontMetrics().averageCharWidth() * 40, fontMetrics().height() * 12);
}

QSize COndaraView::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 34};
}

void COndaraView::RepaintFiles()
{
    update(FilesArea());
}

QRect COndaraView::FilesArea() const
{
    const int top = static_cast<int>(height() * kFilesFrom);
    return {0, top, width(), height() - top};
}

int COndaraView::TextSize() const
{
    return QFontInfo(font()).pixelSize();
}

void COndaraView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PaintBackground(painter);
    PaintName(painter);
    PaintFiles(painter);
    Q_EMIT Painted();
}

void COndaraView::PaintBackground(QPainter& painter) const
{
    for (int i = 0; i < kBands; ++i)
    {
        const int top = i * height() / kBands;
        const int bottom = (i + 1) * height() / kBands;
        painter.fillRect(0, top, width(), bottom - top, QColor(0, 0, kBands - 1 - i));
    }
}

void COndaraView::PaintName(QPainter& painter) const
{
    const QString name = QStringLiteral("Ondara");
    const int size = std::max(2 * TextSize(), std::min(height() / 5, width() / 7));
    painter.setFont(PageFont(size));
    const QFontMetrics metrics = painter.fontMetrics();
    const int left = (width() - metrics.horizontalAdvance(name)) / 2;
    DrawRaised(painter, {left, height() / 24 + metrics.ascent()}, name);
}

void COndaraView::PaintFiles(QPainter& painter) const
{
    const std::array<std::pair<QString, const std::string&>, 2> lines = {
        {{tr("Active Environment File:"), m_project.ActiveEnvironmentFile},
         {tr("Active Geometry File:"), m_project.ActiveGeometryFile}}};
    const QRect area = FilesArea();
    const int lineHeight = area.height() / 2;
    painter.setFont(PageFont(std::min(TextSize() * 3 / 2, lineHeight * 2 / 3)));
    const QFontMetrics metrics = painter.fontMetrics();
    const int margin = metrics.averageCharWidth() * 2;
    const int captions =
        std::max(metrics.horizontalAdvance(lines[0].first), metrics.horizontalAdvance(lines[1].first));
    const int left = 2 * margin + captions;
    int baseline = area.top() + (lineHeight - metrics.height()) / 2 + metrics.ascent();
    for (const auto& [caption, file] : lines)
    {
        DrawRaised(painter, {margin, baseline}, caption);
        painter.setPen(Qt::white);
        painter.drawText(left, baseline,
                         metrics.elidedText(ScreenText(file), Qt::ElideMiddle, width() - left - margin));
        baseline += lineHeight;
    }
}
