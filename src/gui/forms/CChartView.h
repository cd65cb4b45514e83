// The drawing of a chart: keeps its series and lines, puts them into the plot, and minds the mouse. Only the
// chart itself includes this.
#pragma once

#include "gui/forms/CChart2D.h"
#include "gui/forms/QCustomPlotHeader.h"

#include <optional>
#include <utility>

class CChartView : public QCustomPlot
{
    Q_OBJECT

public:
    explicit CChartView(QWidget* parent);

    struct CSeries
    {
        QString Name;
        CSeriesStyle Style;
        std::vector<QPointF> Points;
        QCPCurve* Curve;
    };
    struct CLine
    {
        EChartAxis Axis;
        double Value;
        QCPCurve* Curve;
    };

    std::vector<CSeries> Series;
    std::vector<CLine> Lines;
    std::pair<int, int> Highlighted = {-1, -1}; ///< series, point

    QCPCurve* NewCurve();
    /// Draws a curve in a style; an invalid colour becomes that of the place.
    static void SetLook(QCPCurve& curve, const CSeriesStyle& style, std::size_t place);
    QCPAxis& Axis(EChartAxis axis) const { return axis == EChartAxis::X ? *xAxis : *yAxis; }
    void SetTitle(const QString& title);
    void SetAxisRange(EChartAxis axis, std::optional<CChartRange> range);
    void SetFixedRange(const CChartRanges& ranges);
    const std::optional<CChartRanges>& FixedRange() const { return m_fixed; }
    void ShowLegend(bool shown, Qt::Alignment place);
    void ShowAll();
    /// Fonts and gaps by the font of the widget.
    void FollowFont();
    void Redraw();
    /// The point within a few pixels of a place.
    std::optional<std::pair<int, int>> PointAt(const QPointF& place) const;

Q_SIGNALS:
    void PointClicked(int series, int point);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void SetUpAxes();
    void DrawSeries(std::size_t place);
    void DrawLines();
    void DrawHighlight();
    void FitRanges();
    void SetTickCounts();
    void ApplyRanges(const CChartRanges& ranges);
    CChartRanges PlainRanges() const;
    CChartRange RangeOfPoints(EChartAxis axis) const;
    QString PointText(int series, int point) const;

    QCPTextElement* m_title = nullptr;
    QCPCurve* m_ring;
    std::optional<CChartRange> m_xRange;
    std::optional<CChartRange> m_yRange;
    std::optional<CChartRanges> m_fixed;
    bool m_isZoomed = false; ///< the user has chosen what is in view
    QPointF m_pressed;
};
