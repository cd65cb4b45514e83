// What the mouse does on a chart: picking points, zoom and its end, and the tip over a point.
#include "gui/forms/CChartView.h"

#include "core/platform/NumberText.h"
#include "gui/platform/QtText.h"

#include <QApplication>
#include <QToolTip>

std::optional<std::pair<int, int>> CChartView::PointAt(const QPointF& place) const
{
    std::optional<std::pair<int, int>> nearest;
    if (!axisRect()->rect().contains(place.toPoint()))
    {
        return nearest;
    }
    double reach = qMax(8.0, fontMetrics().height() * 0.5);
    for (std::size_t series = 0; series < Series.size(); ++series)
    {
        const std::vector<QPointF>& points = Series[series].Points;
        for (std::size_t point = 0; point < points.size(); ++point)
        {
            const QPointF drawn(xAxis->coordToPixel(points[point].x()),
                                yAxis->coordToPixel(points[point].y()));
            const double distance = QLineF(drawn, place).length();
            if (distance <= reach) // of points on one place the last, which lies on top
            {
                reach = distance;
                nearest = {static_cast<int>(series), static_cast<int>(point)};
            }
        }
    }
    return nearest;
}

QString CChartView::PointText(int series, int point) const
{
    const CSeries& told = Series[static_cast<std::size_t>(series)];
    const QPointF& place = told.Points[static_cast<std::size_t>(point)];
    const auto line = [](const QCPAxis& axis, double value)
    {
        const QString number = ScreenText(FormatText("%.6g", value));
        return axis.label().isEmpty() ? number : axis.label() + QStringLiteral(": ") + number;
    };
    const QString name = told.Name.isEmpty() ? QString() : told.Name + u'\n';
    return name + line(*xAxis, place.x()) + u'\n' + line(*yAxis, place.y());
}

bool CChartView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
    {
        return QCustomPlot::event(event);
    }
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const auto point = PointAt(help.pos());
    QToolTip::showText(help.globalPos(), point ? PointText(point->first, point->second) : QString(), this);
    return true;
}

void CChartView::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->position();
    QCustomPlot::mousePressEvent(event);
}

void CChartView::mouseReleaseEvent(QMouseEvent* event)
{
    QCustomPlot::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton)
    {
        return;
    }
    if ((event->position() - m_pressed).manhattanLength() >= QApplication::startDragDistance())
    {
        m_isZoomed = true;
        Redraw();
    }
    else if (const auto point = PointAt(event->position()))
    {
        Q_EMIT PointClicked(point->first, point->second);
    }
}

void CChartView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QCustomPlot::mouseDoubleClickEvent(event);
    ShowAll();
}

void CChartView::wheelEvent(QWheelEvent* event)
{
    if (!axisRect()->rect().contains(event->position().toPoint()))
    {
        event->ignore();
        return;
    }
    m_isZoomed = true;
    QCustomPlot::wheelEvent(event);
    event->accept();
    Redraw();
}

void CChartView::resizeEvent(QResizeEvent* event)
{
    FitRanges();
    QCustomPlot::resizeEvent(event);
}
