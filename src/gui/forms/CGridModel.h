// The cells of a grid: texts as they show, in columns that hold a field each, and what may be done with a
// cell.
#pragma once

#include "core/platform/NumberText.h"
#include "core/project/Sentinels.h"

#include <algorithm>
#include <string>
#include <vector>

#include <QAbstractTableModel>
#include <QColor>

class CUnitCaption;

enum class EGridCell
{
    Number,
    Label, ///< a station or row number; never edited
    Check  ///< checked ("1") or not
};

/// One column, as a form's table tells it.
struct CGridColumn
{
    std::string Field = {}; ///< name of the field that it holds, empty for labels
    QString Caption = {};
    CFixedFormat Format = "%.2f";
    float Sentinel = kNotGiven;   ///< shows as an empty cell
    CUnitCaption* Unit = nullptr; ///< a click on it converts the column
    EGridCell Kind = EGridCell::Number;
    bool IsReadOnly = false;
};

struct CCellEdit
{
    int Row;
    int Column;
    std::string Text;
};

class CGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit CGridModel(std::vector<CGridColumn> columns, QObject* parent = nullptr);

    // Rows and columns. Rows that stay keep their cells, new ones are empty.
    void SetRowCount(int rows);
    int RowCount() const { return static_cast<int>(m_rows.size()); }
    int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    const CGridColumn& Column(int column) const { return m_columns[static_cast<std::size_t>(column)]; }
    /// The column of a field, -1 if none holds it.
    int ColumnOf(const std::string& field) const;
    void SetCaption(int column, const QString& caption);

    // Texts and numbers of cells. None of these counts as a user's edit.
    const std::string& Text(int row, int column) const { return Cell(row, column).Text; }
    void SetText(int row, int column, const std::string& text);
    /// The number in the text, the sentinel for an empty one; 1 or 0 for a checked cell or not.
    float Value(int row, int column) const;
    /// The value through the column's format; the sentinel shows as an empty cell.
    void SetValue(int row, int column, float value);
    bool IsBlank(int row, int column) const;
    bool IsChecked(int row, int column) const { return Value(row, column) != 0; }
    void SetChecked(int row, int column, bool checked) { SetText(row, column, checked ? "1" : "0"); }
    void ClearRow(int row);
    /// Labels the rows of a column `first`, `first` + `step`, ...
    void NumberRows(int column, int first, int step = 1);
    /// The column's numbers in another unit: times the factor, through the format. Empty cells stay empty.
    void ConvertColumn(int column, float factor);

    // Moving rows: the texts of all columns but labels, or of those named.
    /// Rows from this one on never move, as sums under a table; all rows move unless told.
    void SetMovingRows(int rows) { m_movingRows = rows; }
    int MovingRows() const { return m_movingRows < 0 ? RowCount() : std::min(m_movingRows, RowCount()); }
    /// Moves the rows from this one on down by one. The last falls off, this one becomes empty.
    void InsertRow(int row, const std::vector<int>& columns = {});
    /// Moves the rows below up by one. The last becomes empty.
    void DeleteRow(int row, const std::vector<int>& columns = {});

    // What may be done with a cell, and its look.
    void SetReadOnly(int row, int column, bool readOnly);
    void SetColumnReadOnly(int column, bool readOnly);
    /// A cell that is not enabled shows grey and can't be reached.
    void SetEnabled(int row, int column, bool enabled);
    /// An invalid colour gives the cell its own back.
    void SetBackground(int row, int column, const QColor& colour);
    /// Whether the user may edit or check the cell.
    bool MayChange(int row, int column) const;

    /// Puts texts into cells for the user, all before the first is told of. Cells outside the grid and those
    /// that the user may not change are left out.
    void EditBlock(const std::vector<CCellEdit>& edits);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// The end of a user's edit of one cell.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    /// The caption; with Qt::UserRole the name of the field.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// A user's edit of a cell has ended, by typing, pasting, emptying or checking.
    void CellEdited(int row, int column);
    /// All cells that one action of the user has edited were told; also after a single one.
    void BlockEdited();

private:
    struct CCell
    {
        std::string Text;
        bool IsReadOnly = false;
        bool IsEnabled = true;
        QColor Background;
    };

    const CCell& Cell(int row, int column) const
    {
        return m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
    CCell& Cell(int row, int column)
    {
        return m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
    bool Holds(int row, int column) const;
    std::vector<CCell> EmptyRow() const;
    std::vector<int> MovingColumns(const std::vector<int>& named) const;
    void Changed(int row, int column);

    std::vector<CGridColumn> m_columns;
    std::vector<std::vector<CCell>> m_rows;
    int m_movingRows = -1; ///< -1 for all
};
