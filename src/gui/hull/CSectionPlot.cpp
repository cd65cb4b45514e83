#include "gui/hull/CSectionPlot.h"

#include "core/project/UnitConversion.h"
#include "gui/forms/CChart2D.h"
#include "gui/hull/WorkingLoading.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QVBoxLayout>

namespace
{
/// Width to height of the section's plot, whatever its shape on the screen.
constexpr double kAspect = 1.136842131614685;
constexpr double kKeelAngle = -std::numbers::pi / 4; ///< from the horizontal, outward and down
constexpr double kMargin = 0.04;                     ///< beside the hull, as a share of its size
constexpr int kActive = 0;                           ///< series of the active section

const CSeriesStyle kSectionStyle = {ELine::Solid, EMarker::Dot, QColor(0x1f, 0x5f, 0xa8), 2};
const CSeriesStyle kLongStyle = {ELine::Solid, EMarker::None, QColor(0xd6, 0x27, 0x28), 4};
const CSeriesStyle kWaterlineStyle = {ELine::Dashed, EMarker::None, QColor(0x0f, 0x8f, 0xa0), 1.2};
const CSeriesStyle kForeStyle = {ELine::Solid, EMarker::None, QColor(0x7a, 0x8c, 0xa3), 1};
const CSeriesStyle kAftStyle = {ELine::Solid, EMarker::None, QColor(0xa3, 0x8f, 0x7a), 1};
const CSeriesStyle kBoldStyle = {ELine::Solid, EMarker::None, QColor(0x1f, 0x5f, 0xa8), 3};

double In(int unit, float value, int ownUnit)
{
    return static_cast<double>(value) * static_cast<double>(LengthFactor(ownUnit, unit));
}
} // namespace

CSectionPlot::CSectionPlot(const CProjectData& project, const COffsetCopy& offsets, CPlatform& platform,
                           QWidget* parent)
    : QTabWidget(parent),
      m_project(project),
      m_offsets(offsets),
      m_platform(platform),
      m_section(new CChart2D(this, &platform)),
      m_bodyPage(new QWidget(this))
{
    setObjectName("pictures");
    setDocumentMode(true);
    setFocusPolicy(Qt::TabFocus);
    m_section->setObjectName("plot");
    addTab(m_section, tr("Section"));
    addTab(m_bodyPage, tr("Body Plan"));
    m_section->ShowLegend(true, Qt::AlignTop | Qt::AlignRight);
    connect(this, &QTabWidget::currentChanged, this, &CSectionPlot::Draw);
    connect(m_section, &CChart2D::PointClicked, this,
            [this](int series, int point)
            {
                if (series == kActive)
                {
                    PickPoint(m_station, point);
                }
            });
}

CChart2D& CSectionPlot::BodyPlan()
{
    if (m_bodyPlan == nullptr)
    {
        m_bodyPlan = new CChart2D(m_bodyPage, &m_platform);
        m_bodyPlan->setObjectName("bodyplan");
        auto* whole = new QVBoxLayout(m_bodyPage);
        whole->setContentsMargins(0, 0, 0, 0);
        whole->addWidget(m_bodyPlan);
        connect(m_bodyPlan, &CChart2D::PointClicked, this, &CSectionPlot::PickPoint);
    }
    return *m_bodyPlan;
}

void CSectionPlot::ShowStation(int station)
{
    m_station = station;
    Draw();
}

void CSectionPlot::MarkRow(int row)
{
    m_row = row;
    if (currentWidget() == m_section)
    {
        m_section->HighlightPoint(kActive, MarkedPoint());
    }
    else
    {
        BodyPlan().HighlightPoint(m_station, MarkedPoint());
    }
}

void CSectionPlot::MarkSegment(int row)
{
    m_segment = row;
    Draw();
}

void CSectionPlot::Draw()
{
    if (currentWidget() == m_section)
    {
        DrawSection();
    }
    else
    {
        DrawBodyPlan();
    }
    MarkRow(m_row);
}

CSectionPlot::CSection CSectionPlot::Section(int station) const
{
    CSection section;
    const CStationOffsets offsets = m_offsets.Station(station);
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        if (offsets.IsPresent(row))
        {
            section.Points.emplace_back(m_offsets.Y(station, row), m_offsets.Z(station, row));
            section.Rows.push_back(row);
        }
    }
    return section;
}

void CSectionPlot::DrawSection()
{
    const int pairs = m_project.IncludeBilgeKeels == 1 ? m_project.NBKPAIR.Count(kMaxBilgeKeelPairs) : 0;
    const int stressed = kActive + pairs + 1;
    m_section->SetSeriesCount(stressed + 1);
    m_section->SetPoints(kActive, Section(m_station).Points);
    m_section->SetStyle(kActive, kSectionStyle);
    m_section->SetTitle(tr("Station %1").arg(m_station));
    for (int pair = 0; pair < pairs; ++pair)
    {
        const std::vector<QPointF> points = KeelPoints(pair);
        m_section->SetName(kActive + 1 + pair, points.empty() ? QString() : tr("Pair %1").arg(pair + 1));
        m_section->SetPoints(kActive + 1 + pair, points);
        m_section->SetStyle(kActive + 1 + pair, {ELine::Solid, EMarker::None, {}, 3});
    }
    m_section->SetPoints(stressed, {});
    m_section->SetStyle(stressed, kLongStyle);
    m_section->SetName(stressed, {});
    if (m_segment >= 0 && m_segment + 1 < kMaxOffsets)
    {
        m_section->SetPoints(
            stressed,
            {QPointF(m_offsets.Y(m_station, m_segment), m_offsets.Z(m_station, m_segment)),
             QPointF(m_offsets.Y(m_station, m_segment + 1), m_offsets.Z(m_station, m_segment + 1))});
    }
    DrawWaterline(*m_section);
    SetAxes(*m_section);
    SetScale(*m_section, false);
}

void CSectionPlot::DrawBodyPlan()
{
    CChart2D& plan = BodyPlan();
    plan.SetSeriesCount(m_offsets.StationCount());
    for (int station = 0; station < m_offsets.StationCount(); ++station)
    {
        std::vector<QPointF> points = Section(station).Points;
        const bool isAft = IsAft(station);
        std::for_each(points.begin(), points.end(),
                      [isAft](QPointF& point) { point.rx() *= isAft ? -1 : 1; });
        plan.SetPoints(station, std::move(points));
        plan.SetStyle(station, station == m_station ? kBoldStyle : isAft ? kAftStyle : kForeStyle);
    }
    plan.SetTitle(tr("Body Plan, Station %1 in bold").arg(m_station));
    DrawWaterline(plan);
    SetAxes(plan);
    SetScale(plan, true);
}

/// The midship section counts for the fore body.
bool CSectionPlot::IsAft(int station) const
{
    return 2 * m_offsets.FromForward(station) > m_offsets.StationCount() - 1;
}

void CSectionPlot::DrawWaterline(CChart2D& chart) const
{
    chart.ClearLines();
    const float height = WorkingWaterline(m_project, m_offsets.FromForward(m_station),
                                          m_offsets.StationCount(), m_offsets.Unit());
    if (height >= 0)
    {
        chart.AddLine(EChartAxis::Y, static_cast<double>(height), tr("Waterline"), kWaterlineStyle);
    }
}

/// Root and tip of each row of the pair that reaches over the active station, with gaps between them.
std::vector<QPointF> CSectionPlot::KeelPoints(int pair) const
{
    const CProjectData& p = m_project;
    const auto station = static_cast<float>(m_offsets.FromForward(m_station));
    std::vector<QPointF> points;
    for (int slot = pair * kMaxBilgeKeelRows; slot < (pair + 1) * kMaxBilgeKeelRows; ++slot)
    {
        const auto [fore, aft] = std::minmax({p.XSTBKFORE.Value(slot), p.XSTBKAFT.Value(slot)});
        const bool isGiven = IsGiven(fore) && IsGiven(p.YBK.Value(slot)) && IsGiven(p.ZBKBL.Value(slot)) &&
                             IsGiven(p.BBK.Value(slot));
        if (!isGiven || station < fore || station > aft)
        {
            continue;
        }
        const int unit = m_offsets.Unit();
        const QPointF root(In(unit, p.YBK.Value(slot), p.YBK.unit),
                           In(unit, p.ZBKBL.Value(slot), p.ZBKBL.unit));
        const double breadth = In(unit, p.BBK.Value(slot), p.BBK.unit);
        points.push_back(root);
        points.push_back(root + breadth * QPointF(std::cos(kKeelAngle), std::sin(kKeelAngle)));
        points.emplace_back(std::nan(""), std::nan(""));
    }
    return points;
}

void CSectionPlot::SetAxes(CChart2D& chart) const
{
    const QString unit = m_offsets.Unit() == kUnitMetric ? "meters" : "feet";
    chart.SetAxisTitle(EChartAxis::X, tr("Y"), unit);
    chart.SetAxisTitle(EChartAxis::Y, tr("Z"), unit);
}

/// By the offsets of all stations, so that a section keeps its size beside its neighbours.
void CSectionPlot::SetScale(CChart2D& chart, bool bothSides) const
{
    double breadth = 0;
    CChartRange height = {0, 0};
    for (int station = 0; station < m_offsets.StationCount(); ++station)
    {
        for (const QPointF& point : Section(station).Points)
        {
            breadth = std::max(breadth, std::abs(point.x()));
            height = {std::min(height.Minimum, point.y()), std::max(height.Maximum, point.y())};
        }
    }
    breadth = breadth > 0 ? breadth : 1;
    height.Maximum = height.Length() > 0 ? height.Maximum : 1;
    const double above = height.Length() * kMargin;
    const double outside = breadth * (1 + kMargin);
    const double inside = bothSides ? -outside : -breadth * kMargin;
    const CChartRange shown = {height.Minimum - above, height.Maximum + above};
    const double ownAspect = (outside - inside) / shown.Length();
    chart.SetFixedRange(inside, outside, shown.Minimum, shown.Maximum, bothSides ? ownAspect : kAspect);
}

void CSectionPlot::PickPoint(int station, int point)
{
    const std::vector<int> rows = Section(station).Rows;
    if (point >= 0 && point < static_cast<int>(rows.size()))
    {
        Q_EMIT Picked(station, rows[static_cast<std::size_t>(point)]);
    }
}

int CSectionPlot::MarkedPoint() const
{
    const std::vector<int> rows = Section(m_station).Rows;
    const auto found = std::find(rows.begin(), rows.end(), m_row);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}
