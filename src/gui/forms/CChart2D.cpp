#include "gui/forms/CChart2D.h"

#include "gui/forms/CChartView.h"

#include <QEvent>
#include <QVBoxLayout>

namespace
{
std::size_t Place(int number)
{
    return static_cast<std::size_t>(number);
}
} // namespace

CChart2D::CChart2D(QWidget* parent, CPlatform* platform)
    : QWidget(parent),
      m_platform(platform),
      m_view(new CChartView(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(m_view, &CChartView::PointClicked, this, &CChart2D::PointClicked);
    AddMenu();
}

void CChart2D::SetSeriesCount(int count)
{
    while (SeriesCount() > count)
    {
        m_view->removePlottable(m_view->Series.back().Curve);
        m_view->Series.pop_back();
    }
    while (SeriesCount() < count)
    {
        m_view->Series.push_back({{}, {}, {}, m_view->NewCurve()});
    }
}

int CChart2D::SeriesCount() const
{
    return static_cast<int>(m_view->Series.size());
}

void CChart2D::SetPointCount(int series, int count)
{
    m_view->Series[Place(series)].Points.resize(Place(count));
}

int CChart2D::PointCount(int series) const
{
    return static_cast<int>(Points(series).size());
}

void CChart2D::SetPoint(int series, int point, double x, double y)
{
    m_view->Series[Place(series)].Points[Place(point)] = {x, y};
}

void CChart2D::SetPoints(int series, std::vector<QPointF> points)
{
    m_view->Series[Place(series)].Points = std::move(points);
}

const std::vector<QPointF>& CChart2D::Points(int series) const
{
    return m_view->Series[Place(series)].Points;
}

void CChart2D::SetName(int series, const QString& name)
{
    m_view->Series[Place(series)].Name = name;
}

QString CChart2D::Name(int series) const
{
    return m_view->Series[Place(series)].Name;
}

void CChart2D::SetStyle(int series, const CSeriesStyle& style)
{
    m_view->Series[Place(series)].Style = style;
}

void CChart2D::AddLine(EChartAxis axis, double value, const QString& name, const CSeriesStyle& style)
{
    QCPCurve* curve = m_view->NewCurve();
    CChartView::SetLook(*curve, style, m_view->Lines.size());
    curve->setName(name);
    if (!name.isEmpty())
    {
        curve->addToLegend();
    }
    m_view->Lines.push_back({axis, value, curve});
}

void CChart2D::ClearLines()
{
    for (const CChartView::CLine& line : m_view->Lines)
    {
        m_view->removePlottable(line.Curve);
    }
    m_view->Lines.clear();
}

int CChart2D::LineCount() const
{
    return static_cast<int>(m_view->Lines.size());
}

double CChart2D::LineValue(int line) const
{
    return m_view->Lines[Place(line)].Value;
}

void CChart2D::SetTitle(const QString& title)
{
    m_view->SetTitle(title);
}

void CChart2D::SetAxisTitle(EChartAxis axis, const QString& title, const QString& unit)
{
    m_view->Axis(axis).setLabel(unit.isEmpty() ? title : QStringLiteral("%1 [%2]").arg(title, unit));
}

QString CChart2D::AxisTitle(EChartAxis axis) const
{
    return m_view->Axis(axis).label();
}

void CChart2D::SetRange(EChartAxis axis, double minimum, double maximum)
{
    m_view->SetAxisRange(axis, CChartRange{minimum, maximum});
}

void CChart2D::SetAutomaticRange(EChartAxis axis)
{
    m_view->SetAxisRange(axis, std::nullopt);
}

void CChart2D::SetFixedRange(double xMinimum, double xMaximum, double yMinimum, double yMaximum,
                             double aspect)
{
    m_view->SetFixedRange(StretchedToAspect({{xMinimum, xMaximum}, {yMinimum, yMaximum}}, aspect));
}

CChartRanges CChart2D::FixedRange() const
{
    return m_view->FixedRange().value_or(VisibleRange());
}

CChartRanges CChart2D::VisibleRange() const
{
    const QCPRange x = m_view->xAxis->range();
    const QCPRange y = m_view->yAxis->range();
    return {{x.lower, x.upper}, {y.lower, y.upper}};
}

void CChart2D::ShowLegend(bool shown, Qt::Alignment place)
{
    m_view->ShowLegend(shown, place);
}

void CChart2D::HighlightPoint(int series, int point)
{
    m_view->Highlighted = {series, point};
    Redraw();
}

void CChart2D::Redraw()
{
    m_view->Redraw();
}

void CChart2D::ShowAll()
{
    m_view->ShowAll();
}

QPointF CChart2D::PixelOf(double x, double y) const
{
    return {m_view->xAxis->coordToPixel(x), m_view->yAxis->coordToPixel(y)};
}

QRect CChart2D::PlotArea() const
{
    return m_view->axisRect()->rect();
}

QSize CChart2D::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 24};
}

QSize CChart2D::minimumSizeHint() const
{
    return sizeHint() / 2;
}

void CChart2D::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
    {
        m_view->FollowFont();
        updateGeometry();
        Redraw();
    }
}
