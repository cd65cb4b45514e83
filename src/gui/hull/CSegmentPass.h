// One pass over the long segments of stations: asks for each into how many pieces it is to be divided, and
// divides it.
#pragma once

#include "gui/forms/CFormContext.h"
#include "gui/hull/COffsetCopy.h"
#include "gui/hull/CSegmentDivisionDlg.h"

#include <functional>

class CSegmentPass
{
public:
    /// `show` brings a segment, from a row to the next, before the user's eyes.
    CSegmentPass(CFormContext& context, QWidget* parent, COffsetCopy& offsets,
                 std::function<void(int station, int row)> show);

    /// Goes through a station. False if it has no long segments.
    bool Check(int station);

private:
    int AskedPieces(int station, int row, const CSegmentQuestion& question);

    CFormContext& m_context;
    QWidget* m_parent;
    COffsetCopy& m_offsets;
    std::function<void(int, int)> m_show;
    ESegmentAnswer m_answer = ESegmentAnswer::Divide; ///< the last one; it may be for the rest of the pass
};
