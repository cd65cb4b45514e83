#include "gui/forms/FormColumns.h"

#include <algorithm>
#include <array>
#include <vector>

#include <QGridLayout>
#include <QGroupBox>

namespace
{
constexpr int kLabel = 0;
constexpr int kBox = 1;
constexpr int kUnit = 2;

/// Rows, and how far they stand in from the form's own on each side.
struct CRows
{
    QGridLayout* Grid;
    int Left = 0;
    int Right = 0;
};

struct CColumns
{
    std::array<int, 3> Widths{}; ///< by column
    bool HasBoxes = false;
    bool BoxesGrow = false;
};

CColumns ColumnsOf(const CRows& rows)
{
    CColumns columns;
    for (int k = 0; k < rows.Grid->count(); ++k)
    {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        rows.Grid->getItemPosition(k, &row, &column, &rowSpan, &columnSpan);
        const QLayoutItem& item = *rows.Grid->itemAt(k);
        if (columnSpan == 1 && column <= kUnit)
        {
            int& width = columns.Widths[static_cast<std::size_t>(column)];
            width = std::max(width, item.sizeHint().width());
            columns.HasBoxes |= column == kBox;
            columns.BoxesGrow |= column == kBox && (item.expandingDirections() & Qt::Horizontal) != 0;
        }
    }
    columns.Widths[kLabel] += rows.Left;
    columns.Widths[kUnit] += rows.Right;
    return columns;
}

std::vector<CRows> RowsAndGroups(QGridLayout& rows)
{
    std::vector<CRows> all = {{&rows}};
    for (int k = 0; k < rows.count(); ++k)
    {
        auto* group = qobject_cast<QGroupBox*>(rows.itemAt(k)->widget());
        auto* inner = group != nullptr ? qobject_cast<QGridLayout*>(group->layout()) : nullptr;
        if (inner != nullptr)
        {
            group->ensurePolished();
            const QMargins margins = group->contentsMargins() + inner->contentsMargins();
            all.push_back({inner, margins.left(), margins.right()});
        }
    }
    return all;
}
} // namespace

void AlignColumns(QGridLayout& rows)
{
    const std::vector<CRows> all = RowsAndGroups(rows);
    CColumns widest;
    for (const CRows& each : all)
    {
        const CColumns columns = ColumnsOf(each);
        if (columns.HasBoxes)
        {
            widest.BoxesGrow |= columns.BoxesGrow;
            std::transform(columns.Widths.begin(), columns.Widths.end(), widest.Widths.begin(),
                           widest.Widths.begin(), [](int one, int other) { return std::max(one, other); });
        }
    }
    const QWidget& form = *rows.parentWidget();
    const int spacing = 2 * form.fontMetrics().averageCharWidth();
    for (const CRows& each : all)
    {
        if (ColumnsOf(each).HasBoxes)
        {
            each.Grid->setColumnMinimumWidth(kLabel, widest.Widths[kLabel] - each.Left);
            each.Grid->setColumnMinimumWidth(kBox, widest.Widths[kBox]);
            each.Grid->setColumnMinimumWidth(kUnit, widest.Widths[kUnit] - each.Right);
            each.Grid->setHorizontalSpacing(spacing);
            each.Grid->setColumnStretch(widest.BoxesGrow ? kBox : kUnit, 1);
        }
    }
}
