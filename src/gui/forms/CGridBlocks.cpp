// What a grid does with a block of cells: copy, cut, paste and empty.
#include "gui/forms/CGrid.h"
#include "gui/forms/GridClipboard.h"
#include "gui/platform/QtText.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>

namespace
{
struct CExtent
{
    int First;
    int Last;
};

CExtent ExtentOf(const std::vector<QModelIndex>& cells, int (QModelIndex::*place)() const)
{
    const auto [first, last] = std::minmax_element(cells.begin(), cells.end(),
                                                   [place](const QModelIndex& one, const QModelIndex& other)
                                                   { return (one.*place)() < (other.*place)(); });
    return {((*first).*place)(), ((*last).*place)()};
}
} // namespace

std::vector<QModelIndex> CGrid::Selected() const
{
    std::vector<QModelIndex> cells;
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    std::copy_if(selected.begin(), selected.end(), std::back_inserter(cells),
                 [this](const QModelIndex& cell) { return !isColumnHidden(cell.column()); });
    if (cells.empty() && currentIndex().isValid())
    {
        cells.push_back(currentIndex());
    }
    std::sort(cells.begin(), cells.end());
    return cells;
}

void CGrid::Copy() const
{
    const std::vector<QModelIndex> cells = Selected();
    if (cells.empty())
    {
        return;
    }
    const CExtent rows = ExtentOf(cells, &QModelIndex::row);
    const CExtent columns = ExtentOf(cells, &QModelIndex::column);
    const std::vector<int> seen = ColumnsInView(columns.First);
    CTextBlock block; // from the first to the last selected cell, with those between them empty
    for (int row = rows.First; row <= rows.Last; ++row)
    {
        std::vector<QString>& line = block.emplace_back();
        for (auto column = seen.begin(); column != seen.end() && *column <= columns.Last; ++column)
        {
            const bool isSelected =
                std::binary_search(cells.begin(), cells.end(), m_cells->index(row, *column));
            line.push_back(isSelected ? ScreenText(m_cells->Text(row, *column)) : QString());
        }
    }
    QApplication::clipboard()->setText(ClipboardText(block));
}

void CGrid::Cut()
{
    Copy();
    ClearSelected();
}

void CGrid::ClearSelected()
{
    std::vector<CCellEdit> edits;
    for (const QModelIndex& cell : Selected())
    {
        edits.push_back({cell.row(), cell.column(), {}});
    }
    m_cells->EditBlock(edits);
}

void CGrid::Paste()
{
    const QString text = QApplication::clipboard()->text();
    if (!text.isEmpty() && currentIndex().isValid())
    {
        PasteBlock(text);
    }
}

void CGrid::PasteBlock(const QString& text)
{
    const std::vector<QModelIndex> selected = Selected();
    const int firstRow = ExtentOf(selected, &QModelIndex::row).First;
    const int firstColumn = ExtentOf(selected, &QModelIndex::column).First;
    const std::vector<int> columns = ColumnsInView(firstColumn);
    const CTextBlock block =
        PastedBlock(text, m_cells->RowCount() - firstRow, static_cast<int>(columns.size()));
    std::vector<CCellEdit> edits;
    const bool isOne = block.size() == 1 && block.front().size() == 1;
    for (const QModelIndex& cell : isOne ? selected : std::vector<QModelIndex>())
    {
        edits.push_back({cell.row(), cell.column(), PlainText(block.front().front())});
    }
    QItemSelection pasted;
    for (std::size_t line = 0; !isOne && line < block.size(); ++line)
    {
        const int row = firstRow + static_cast<int>(line);
        const std::size_t width = block[line].size();
        for (std::size_t place = 0; place < width; ++place)
        {
            edits.push_back({row, columns[place], PlainText(block[line][place])});
        }
        pasted.select(m_cells->index(row, firstColumn), m_cells->index(row, columns[width - 1]));
    }
    if (!isOne)
    {
        SetFocusCell(firstRow, firstColumn);
        selectionModel()->select(pasted, QItemSelectionModel::ClearAndSelect);
    }
    m_cells->EditBlock(edits);
}
