#include "gui/hull/CSegmentPass.h"

#include "gui/hull/SegmentDivision.h"
#include "gui/hull/WorkingLoading.h"

#include <algorithm>

CSegmentPass::CSegmentPass(CFormContext& context, QWidget* parent, COffsetCopy& offsets,
                           std::function<void(int, int)> show)
    : m_context(context),
      m_parent(parent),
      m_offsets(offsets),
      m_show(std::move(show))
{
}

bool CSegmentPass::Check(int station)
{
    const CProjectData& project = m_context.Project;
    const int count = m_offsets.StationCount();
    const float waterline =
        WorkingWaterline(project, m_offsets.FromForward(station), count, m_offsets.Unit());
    std::vector<CLongSegment> segments = LongSegments(
        m_offsets.Station(station), waterline, SparesCentreline(station, count, project.StationOrigin));
    LowerToFit(segments, m_offsets.PointCount(station));
    int added = 0; // rows that the divisions before have put in
    for (std::size_t k = 0; k < segments.size(); ++k)
    {
        const int row = segments[k].Row + added;
        const int points = m_offsets.PointCount(station);
        const int left = PointsLeft(points, std::span(segments).subspan(k + 1));
        const int pieces = AskedPieces(
            station, row,
            {static_cast<int>(k + 1), static_cast<int>(segments.size()), points, left, segments[k].Pieces});
        added += std::max(m_offsets.Divide(station, row, pieces) - 1, 0);
    }
    return !segments.empty();
}

int CSegmentPass::AskedPieces(int station, int row, const CSegmentQuestion& question)
{
    if (m_answer == ESegmentAnswer::IgnoreAll)
    {
        return 0;
    }
    if (m_answer == ESegmentAnswer::DivideAll)
    {
        return question.Pieces;
    }
    m_show(station, row);
    CSegmentDivisionDlg form(m_context, question, m_parent);
    form.exec();
    m_answer = form.Answer();
    return form.Pieces();
}
