#include "gui/forms/CChartView.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
constexpr double kMargin = 0.05; ///< around points whose axis has no range
const QColor kInk(0x33, 0x33, 0x33);
const QColor kGrid(0xe4, 0xe4, 0xe4);
const QColor kZeroLine(0xb0, 0xb0, 0xb0);
const QColor kRing(0xd6, 0x27, 0x28);

/// Colours that are told apart also in print and by those who see no red.
constexpr std::array<QRgb, 8> kColours = {0x1f5fa8, 0xd9782d, 0x2f8f4e, 0x8e4fa8,
                                          0x8a5a3c, 0x0f8fa0, 0xb8332f, 0x6b6b6b};

Qt::PenStyle PenStyleOf(ELine line)
{
    switch (line)
    {
    case ELine::None:
        return Qt::NoPen;
    case ELine::Dashed:
        return Qt::DashLine;
    case ELine::Dotted:
        return Qt::DotLine;
    default:
        return Qt::SolidLine;
    }
}

QCPScatterStyle::ScatterShape ShapeOf(EMarker marker)
{
    switch (marker)
    {
    case EMarker::Dot:
        return QCPScatterStyle::ssDisc;
    case EMarker::Circle:
        return QCPScatterStyle::ssCircle;
    case EMarker::Square:
        return QCPScatterStyle::ssSquare;
    case EMarker::Diamond:
        return QCPScatterStyle::ssDiamond;
    case EMarker::Triangle:
        return QCPScatterStyle::ssTriangle;
    case EMarker::Cross:
        return QCPScatterStyle::ssCross;
    default:
        return QCPScatterStyle::ssNone;
    }
}

bool IsNumber(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}
} // namespace

CChartView::CChartView(QWidget* parent) : QCustomPlot(parent)
{
    setLocale(QLocale::c()); // numbers have a point, whatever the user's locale
    setFocusPolicy(Qt::NoFocus);
    setBackground(QBrush(Qt::white));
    setAntialiasedElements(QCP::aeAll);
    setNotAntialiasedElements(QCP::aeAxes | QCP::aeGrid);
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    setAutoAddPlottableToLegend(false);
    SetUpAxes();
    m_ring = NewCurve();
    m_ring->setLayer(QStringLiteral("overlay"));
    m_ring->setPen(Qt::NoPen);
    legend->setBrush(QColor(255, 255, 255, 220));
    legend->setBorderPen(QPen(kZeroLine));
    legend->setTextColor(kInk);
    FollowFont();
}

void CChartView::SetUpAxes()
{
    axisRect()->setupFullAxesBox(true);
    axisRect()->setRangeZoomFactor(0.85);
    for (QCPAxis* axis : {xAxis, yAxis, xAxis2, yAxis2})
    {
        const QPen pen(kInk, 1);
        axis->setBasePen(pen);
        axis->setTickPen(pen);
        axis->setSubTickPen(pen);
        axis->setTickLabelColor(kInk);
        axis->setLabelColor(kInk);
        axis->setTicks(axis == xAxis || axis == yAxis);
        axis->setTickLength(0, 5);
        axis->setSubTickLength(0, 3);
        axis->grid()->setPen(QPen(kGrid, 1));
        axis->grid()->setZeroLinePen(QPen(kZeroLine, 1));
    }
}

void CChartView::FollowFont()
{
    for (QCPAxis* axis : {xAxis, yAxis})
    {
        axis->setTickLabelFont(font());
        axis->setLabelFont(font());
        axis->setLabelPadding(fontMetrics().height() / 4);
    }
    legend->setFont(font());
    legend->setIconSize(fontMetrics().height() * 2, fontMetrics().height());
    if (m_title != nullptr)
    {
        QFont bold = font();
        bold.setBold(true);
        m_title->setFont(bold);
    }
}

QCPCurve* CChartView::NewCurve()
{
    auto* curve = new QCPCurve(xAxis, yAxis);
    curve->setSelectable(QCP::stNone);
    return curve;
}

void CChartView::SetLook(QCPCurve& curve, const CSeriesStyle& style, std::size_t place)
{
    const QColor colour = style.Colour.isValid() ? style.Colour : QColor(kColours[place % kColours.size()]);
    curve.setPen(QPen(colour, style.Width, PenStyleOf(style.Line), Qt::RoundCap, Qt::RoundJoin));
    QCPScatterStyle marker(ShapeOf(style.Marker), colour, Qt::white, 6);
    if (style.Marker == EMarker::Dot)
    {
        marker.setBrush(colour);
    }
    marker.setPen(QPen(colour, 1.2));
    curve.setScatterStyle(marker);
}

void CChartView::SetTitle(const QString& title)
{
    if (m_title == nullptr)
    {
        plotLayout()->insertRow(0);
        m_title = new QCPTextElement(this);
        m_title->setTextColor(kInk);
        plotLayout()->addElement(0, 0, m_title);
        FollowFont();
    }
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
}

void CChartView::SetAxisRange(EChartAxis axis, std::optional<CChartRange> range)
{
    std::optional<CChartRange>& own = axis == EChartAxis::X ? m_xRange : m_yRange;
    if (own != range || m_fixed)
    {
        own = range;
        m_fixed.reset();
        m_isZoomed = false;
    }
}

void CChartView::SetFixedRange(const CChartRanges& ranges)
{
    if (m_fixed != ranges)
    {
        m_fixed = ranges;
        m_isZoomed = false;
    }
}

void CChartView::ShowLegend(bool shown, Qt::Alignment place)
{
    legend->setVisible(shown);
    axisRect()->insetLayout()->setInsetAlignment(0, place);
}

void CChartView::ShowAll()
{
    m_isZoomed = false;
    Redraw();
}

void CChartView::Redraw()
{
    for (std::size_t place = 0; place < Series.size(); ++place)
    {
        DrawSeries(place);
    }
    FitRanges();
    DrawHighlight();
    replot(rpQueuedRefresh);
}

void CChartView::DrawSeries(std::size_t place)
{
    const CSeries& series = Series[place];
    QVector<QCPCurveData> points;
    points.reserve(static_cast<qsizetype>(series.Points.size()));
    for (const QPointF& point : series.Points)
    {
        const double missing = std::nan("");
        const bool isNumber = IsNumber(point);
        points.append({static_cast<double>(points.size()), isNumber ? point.x() : missing,
                       isNumber ? point.y() : missing});
    }
    series.Curve->data()->set(points, true);
    SetLook(*series.Curve, series.Style, place);
    series.Curve->setName(series.Name);
    if (series.Name.isEmpty())
    {
        series.Curve->removeFromLegend();
    }
    else
    {
        series.Curve->addToLegend();
    }
}

void CChartView::DrawLines()
{
    for (const CLine& line : Lines)
    {
        const bool isHorizontal = line.Axis == EChartAxis::Y;
        const QCPRange over = (isHorizontal ? xAxis : yAxis)->range();
        QVector<double> along = {over.lower, over.upper};
        QVector<double> across = {line.Value, line.Value};
        line.Curve->setData({0, 1}, isHorizontal ? along : across, isHorizontal ? across : along, true);
    }
}

void CChartView::DrawHighlight()
{
    const auto [series, point] = Highlighted;
    const bool isThere = series >= 0 && series < static_cast<int>(Series.size()) && point >= 0 &&
                         point < static_cast<int>(Series[static_cast<std::size_t>(series)].Points.size());
    m_ring->data()->clear();
    if (isThere)
    {
        const CSeries& marked = Series[static_cast<std::size_t>(series)];
        const QPointF& place = marked.Points[static_cast<std::size_t>(point)];
        m_ring->addData(0, place.x(), place.y());
    }
    m_ring->setScatterStyle(
        {QCPScatterStyle::ssCircle, QPen(kRing, 2), Qt::NoBrush, fontMetrics().height() * 0.8});
}

void CChartView::FitRanges()
{
    // The labels of the ticks take their place from the plot, so that its shape is known after a second look.
    for (int look = 0; look < 2; ++look)
    {
        setViewport(rect());
        updateLayout();
        if (!m_isZoomed)
        {
            ApplyRanges(m_fixed ? *m_fixed : PlainRanges());
        }
        else if (m_fixed)
        {
            xAxis->setScaleRatio(yAxis, 1);
        }
        SetTickCounts();
    }
    DrawLines();
}

/// As many ticks as have room for their numbers.
void CChartView::SetTickCounts()
{
    const QRect area = axisRect()->rect();
    const auto count = [](int length, int room) { return std::clamp(length / room, 2, 8); };
    xAxis->ticker()->setTickCount(count(area.width(), fontMetrics().averageCharWidth() * 9));
    yAxis->ticker()->setTickCount(count(area.height(), fontMetrics().height() * 3));
}

void CChartView::ApplyRanges(const CChartRanges& ranges)
{
    const QRect area = axisRect()->rect();
    const bool isShaped = m_fixed && area.height() > 0;
    const CChartRanges shown =
        isShaped ? StretchedToAspect(ranges, static_cast<double>(area.width()) / area.height()) : ranges;
    xAxis->setRange(shown.X.Minimum, shown.X.Maximum);
    yAxis->setRange(shown.Y.Minimum, shown.Y.Maximum);
}

CChartRanges CChartView::PlainRanges() const
{
    return {UsableRange(m_xRange ? *m_xRange : RangeOfPoints(EChartAxis::X)),
            UsableRange(m_yRange ? *m_yRange : RangeOfPoints(EChartAxis::Y))};
}

CChartRange CChartView::RangeOfPoints(EChartAxis axis) const
{
    CChartRange range = {HUGE_VAL, -HUGE_VAL};
    const auto include = [&range](double value) {
        range = {std::min(range.Minimum, value), std::max(range.Maximum, value)};
    };
    for (const CSeries& series : Series)
    {
        for (const QPointF& point : series.Points)
        {
            if (IsNumber(point))
            {
                include(axis == EChartAxis::X ? point.x() : point.y());
            }
        }
    }
    for (const CLine& line : Lines)
    {
        if (line.Axis == axis && std::isfinite(line.Value))
        {
            include(line.Value);
        }
    }
    const double margin = range.Length() * kMargin;
    return {range.Minimum - margin, range.Maximum + margin};
}
