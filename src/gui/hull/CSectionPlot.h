// The pictures of the offset editor: the active section, and the body plan of the whole hull.
#pragma once

#include "gui/hull/COffsetCopy.h"

#include <vector>

#include <QPointF>
#include <QTabWidget>

class CChart2D;
struct CPlatform;

class CSectionPlot : public QTabWidget
{
    Q_OBJECT

public:
    /// Draws `offsets`, which outlives it, with waterline and bilge keels from the project.
    CSectionPlot(const CProjectData& project, const COffsetCopy& offsets, CPlatform& platform,
                 QWidget* parent = nullptr);

    void ShowStation(int station);
    /// Draws anew what has changed in the offsets.
    void Draw();
    /// Puts a ring around a row's point; none where the row holds no point.
    void MarkRow(int row);
    /// Stresses the segment from a row to the next; -1 ends that.
    void MarkSegment(int row);

Q_SIGNALS:
    void Picked(int station, int row);

private:
    struct CSection
    {
        std::vector<QPointF> Points;
        std::vector<int> Rows; ///< of the points
    };

    CSection Section(int station) const;
    /// The body plan's picture, made when it is first wanted.
    CChart2D& BodyPlan();
    void DrawSection();
    void DrawBodyPlan();
    void DrawWaterline(CChart2D& chart) const;
    std::vector<QPointF> KeelPoints(int pair) const;
    void SetScale(CChart2D& chart, bool bothSides) const;
    void SetAxes(CChart2D& chart) const;
    bool IsAft(int station) const;
    void PickPoint(int station, int point);
    int MarkedPoint() const;

    const CProjectData& m_project;
    const COffsetCopy& m_offsets;
    CPlatform& m_platform;
    CChart2D* m_section;
    QWidget* m_bodyPage;
    CChart2D* m_bodyPlan = nullptr;
    int m_station = 0;
    int m_row = -1;
    int m_segment = -1;
};
