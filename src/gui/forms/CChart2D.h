// A plot of series of points over two axes, as sections of a hull: zoom by wheel, drag, double click for all.
// What is set shows after Redraw.
#pragma once

#include "gui/forms/CChartRange.h"

#include <string>
#include <vector>

#include <QColor>
#include <QPointF>
#include <QWidget>

class CChartView;
struct CPlatform;

enum class EChartAxis
{
    X,
    Y
};

enum class ELine
{
    None,
    Solid,
    Dashed,
    Dotted
};

enum class EMarker
{
    None,
    Dot,
    Circle,
    Square,
    Diamond,
    Triangle,
    Cross
};

struct CSeriesStyle
{
    ELine Line = ELine::Solid;
    EMarker Marker = EMarker::None;
    QColor Colour = {}; ///< an invalid one gives the series the colour of its place
    double Width = 1.5; ///< of the line, in pixels
};

class CChart2D : public QWidget
{
    Q_OBJECT

public:
    /// With the platform given, the context menu saves pictures.
    explicit CChart2D(QWidget* parent = nullptr, CPlatform* platform = nullptr);

    // Series; new ones are empty.
    void SetSeriesCount(int count);
    int SeriesCount() const;
    void SetPointCount(int series, int count);
    int PointCount(int series) const;
    void SetPoint(int series, int point, double x, double y);
    /// A point that is no number breaks the line and isn't drawn.
    void SetPoints(int series, std::vector<QPointF> points);
    const std::vector<QPointF>& Points(int series) const;
    void SetName(int series, const QString& name);
    QString Name(int series) const;
    void SetStyle(int series, const CSeriesStyle& style);

    // Straight lines over the whole plot, as a waterline. They have a place in the legend and can't be
    // picked.
    /// `axis` is the one that the line crosses: Y for a horizontal line.
    void AddLine(EChartAxis axis, double value, const QString& name, const CSeriesStyle& style);
    void ClearLines();
    int LineCount() const;
    double LineValue(int line) const;

    // Axes. An axis without a range takes that of the points.
    void SetTitle(const QString& title);
    /// "TITLE [UNIT]"
    void SetAxisTitle(EChartAxis axis, const QString& title, const QString& unit = {});
    QString AxisTitle(EChartAxis axis) const;
    void SetRange(EChartAxis axis, double minimum, double maximum);
    void SetAutomaticRange(EChartAxis axis);
    /// Both axes in one scale: the ranges are stretched to the aspect, width to height, and on to the plot's
    /// shape on the screen.
    void SetFixedRange(double xMinimum, double xMaximum, double yMinimum, double yMaximum, double aspect);
    /// What SetFixedRange has made of its ranges by the aspect.
    CChartRanges FixedRange() const;
    /// What is in view now.
    CChartRanges VisibleRange() const;

    void ShowLegend(bool shown, Qt::Alignment place = Qt::AlignTop | Qt::AlignLeft);
    /// A ring around a point, at once; (-1, -1) takes it away.
    void HighlightPoint(int series, int point);
    void Redraw();
    /// Ends the user's zoom.
    void ShowAll();
    /// Where a point of the plot stands on the widget, in pixels.
    QPointF PixelOf(double x, double y) const;
    /// The area between the axes, in pixels.
    QRect PlotArea() const;

    // Pictures as on the screen. False if the file can't be written.
    bool SavePng(const std::string& path) const;
    bool SavePdf(const std::string& path) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A click on a point, or close to it.
    void PointClicked(int series, int point);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct CPicture;
    void AddMenu();
    void AskAndSave(const CPicture& picture);

    CPlatform* m_platform;
    CChartView* m_view;
};
