// A project with a hull of smooth sections for tests of the hull's forms.
#pragma once

#include "tests/support/gui/CFormDriver.h"

#include "gui/forms/CGrid.h"

#include <QTest>

struct CHull : CFormProject
{
    /// Six points a station, none of them far from the next; each station a little broader than the last. The
    /// numbers are those that three decimals hold.
    explicit CHull(int stations = 11, int origin = 0)
    {
        Project.StationOrigin = origin;
        Project.NST.Set(static_cast<float>(stations));
        Project.WorkingStationCount = stations;
        Project.WorkingDraft = kNotGiven;
        for (int station = 0; station < stations; ++station)
        {
            for (int row = 0; row < static_cast<int>(std::size(kY)); ++row)
            {
                Set(station, row, kY[row] * (1 + static_cast<float>(station) / 8), kZ[row]);
            }
            Project.NOFFUSER.Set(station, 6);
        }
        for (CParamArray* field : {&Project.YAUSER, &Project.ZAUSERBL, &Project.NOFFUSER, &Project.NST})
        {
            field->changed = 0;
        }
    }

    /// A point by its place in the project.
    void Set(int station, int row, float y, float z)
    {
        Project.YAUSER.Set(station * kMaxOffsets + row, y);
        Project.ZAUSERBL.Set(station * kMaxOffsets + row, z);
    }
    float Y(int station, int row) const { return Project.YAUSER.Value(station * kMaxOffsets + row); }
    float Z(int station, int row) const { return Project.ZAUSERBL.Value(station * kMaxOffsets + row); }

    static constexpr float kY[] = {0, 1, 2, 3, 4, 5};
    static constexpr float kZ[] = {0, 0.125F, 0.5F, 1.25F, 2.5F, 4};
};

inline CGrid& Table(CFormDriver& form)
{
    return form.Find<CGrid>("table");
}

/// Edits a cell of a form's table as a user's edit ends.
inline void EditCell(CFormDriver& form, int row, int column, const char* text)
{
    Table(form).SetFocusCell(row, column);
    Table(form).model()->setData(Table(form).model()->index(row, column), QString::fromLatin1(text));
}

/// Types into a cell key by key; the edit isn't ended.
inline void TypeInCell(CFormDriver& form, int row, int column, const char* text)
{
    Table(form).SetFocusCell(row, column);
    QTest::keyClick(&Table(form), text[0]);
    QTest::keyClicks(Table(form).findChild<QLineEdit*>(), QString::fromLatin1(text + 1));
}

inline std::string CellText(CFormDriver& form, int row, int column)
{
    return Table(form).Cells().Text(row, column);
}
