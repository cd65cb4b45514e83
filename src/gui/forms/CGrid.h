// A table of a form. It takes the keyboard as a spreadsheet does: typing starts an edit, Enter goes down, Tab
// right, Delete empties; blocks of cells are copied and pasted as text.
#pragma once

#include "gui/forms/CGridModel.h"

#include <functional>
#include <vector>

#include <QTableView>

class QAbstractButton;

class CGrid : public QTableView
{
    Q_OBJECT

public:
    explicit CGrid(std::vector<CGridColumn> columns, int rows = 0, QWidget* parent = nullptr);

    CGridModel& Cells() const { return *m_cells; }
    /// How many rows the grid is high at first; 12 unless told, fewer if it has fewer.
    void SetVisibleRows(int rows);
    /// Numbers before the rows, counted from 1. They are no column.
    void ShowRowNumbers();

    /// The row and column of the focused cell, -1 if there is none.
    int FocusRow() const { return currentIndex().row(); }
    int FocusColumn() const { return currentIndex().column(); }
    void SetFocusCell(int row, int column);
    /// Brings the user to a cell: focused, selected, in view, and the grid has the keyboard.
    void MarkCell(int row, int column);
    /// Selects another cell with the one that MarkCell has marked.
    void MarkAlso(int row, int column);

    /// Ends an edit that is under way and takes its text. For commands that leave the focus where it is.
    void EndEdit();
    /// The column in another unit, also the cell that is being edited.
    void ConvertColumn(int column, float factor);
    /// Makes the buttons insert and delete the focused row, unless the form's own test, which may show a
    /// message, gives false. The focus goes back to the grid.
    void RowButtons(QAbstractButton& insert, QAbstractButton& remove, std::function<bool()> mayInsert = {},
                    std::function<bool()> mayDelete = {});

    void Copy() const;
    void Cut();
    void Paste();
    /// Empties the selected cells that may be edited.
    void ClearSelected();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// As the cells' own signals.
    void CellEdited(int row, int column);
    void BlockEdited();
    void FocusCellChanged(int row, int column);
    /// A button of RowButtons has moved rows.
    void RowsMoved();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void AddMenu();
    bool OnCommand(const QKeyEvent& event);
    bool OnTyped(QKeyEvent& event);
    bool StepRow(int step);
    bool StepCell(int step);
    void MoveOn(int key);
    void MoveRows(void (CGridModel::*moveRows)(int, const std::vector<int>&),
                  const std::function<bool()>& may);
    std::vector<QModelIndex> Selected() const;
    std::vector<int> ColumnsInView(int from) const;
    void PasteBlock(const QString& text);
    void FitSizes();
    void FitColumns();
    int RowsHeight(int rows) const;
    int ColumnsWidth() const;

    CGridModel* m_cells;
    int m_visibleRows = 12;
    bool m_isCommitting = false;
    std::vector<int> m_columnWidths; ///< as wide as header and numbers need
};
