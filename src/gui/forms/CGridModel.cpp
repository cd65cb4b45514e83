#include "gui/forms/CGridModel.h"

#include "gui/forms/FieldText.h"
#include "gui/platform/QtText.h"

#include <utility>

CGridModel::CGridModel(std::vector<CGridColumn> columns, QObject* parent)
    : QAbstractTableModel(parent),
      m_columns(std::move(columns))
{
}

void CGridModel::SetRowCount(int rows)
{
    const int before = RowCount();
    const int after = std::max(rows, 0);
    if (after > before)
    {
        beginInsertRows({}, before, after - 1);
        m_rows.resize(static_cast<std::size_t>(after), EmptyRow());
        endInsertRows();
    }
    else if (after < before)
    {
        beginRemoveRows({}, after, before - 1);
        m_rows.resize(static_cast<std::size_t>(after));
        endRemoveRows();
    }
}

int CGridModel::ColumnOf(const std::string& field) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&field](const CGridColumn& column) { return column.Field == field; });
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

void CGridModel::SetCaption(int column, const QString& caption)
{
    m_columns[static_cast<std::size_t>(column)].Caption = caption;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void CGridModel::SetText(int row, int column, const std::string& text)
{
    Cell(row, column).Text = text;
    Changed(row, column);
}

float CGridModel::Value(int row, int column) const
{
    const bool isCheck = Column(column).Kind == EGridCell::Check;
    return FieldValue(Text(row, column), isCheck ? 0 : Column(column).Sentinel);
}

void CGridModel::SetValue(int row, int column, float value)
{
    const CGridColumn& shown = Column(column);
    if (shown.Kind == EGridCell::Check)
    {
        SetChecked(row, column, value != 0 && IsGiven(value, shown.Sentinel));
        return;
    }
    SetText(row, column, FieldText(value, shown.Format, shown.Sentinel));
}

bool CGridModel::IsBlank(int row, int column) const
{
    return ::IsBlank(Text(row, column));
}

void CGridModel::ClearRow(int row)
{
    for (const int column : MovingColumns({}))
    {
        SetText(row, column, {});
    }
}

void CGridModel::NumberRows(int column, int first, int step)
{
    for (int row = 0; row < RowCount(); ++row)
    {
        SetText(row, column, IntegerText(first + row * step));
    }
}

void CGridModel::ConvertColumn(int column, float factor)
{
    const CGridColumn& shown = Column(column);
    for (int row = 0; row < RowCount(); ++row)
    {
        SetText(row, column, ConvertedText(Text(row, column), factor, shown.Format, shown.Sentinel));
    }
}

void CGridModel::InsertRow(int row, const std::vector<int>& columns)
{
    const int last = MovingRows() - 1;
    if (row < 0 || row > last)
    {
        return;
    }
    for (const int column : MovingColumns(columns))
    {
        for (int to = last; to > row; --to)
        {
            SetText(to, column, Text(to - 1, column));
        }
        SetText(row, column, {});
    }
}

void CGridModel::DeleteRow(int row, const std::vector<int>& columns)
{
    const int last = MovingRows() - 1;
    if (row < 0 || row > last)
    {
        return;
    }
    for (const int column : MovingColumns(columns))
    {
        for (int to = row; to < last; ++to)
        {
            SetText(to, column, Text(to + 1, column));
        }
        SetText(last, column, {});
    }
}

void CGridModel::SetReadOnly(int row, int column, bool readOnly)
{
    Cell(row, column).IsReadOnly = readOnly;
    Changed(row, column);
}

void CGridModel::SetColumnReadOnly(int column, bool readOnly)
{
    m_columns[static_cast<std::size_t>(column)].IsReadOnly = readOnly; // for rows still to come
    for (int row = 0; row < RowCount(); ++row)
    {
        SetReadOnly(row, column, readOnly);
    }
}

void CGridModel::SetEnabled(int row, int column, bool enabled)
{
    Cell(row, column).IsEnabled = enabled;
    Changed(row, column);
}

void CGridModel::SetBackground(int row, int column, const QColor& colour)
{
    CCell& cell = Cell(row, column);
    if (cell.Background != colour)
    {
        cell.Background = colour;
        Changed(row, column);
    }
}

bool CGridModel::MayChange(int row, int column) const
{
    const CCell& cell = Cell(row, column);
    return Column(column).Kind != EGridCell::Label && cell.IsEnabled && !cell.IsReadOnly;
}

void CGridModel::EditBlock(const std::vector<CCellEdit>& edits)
{
    std::vector<std::pair<int, int>> edited;
    for (const auto& [row, column, text] : edits)
    {
        if (Holds(row, column) && MayChange(row, column))
        {
            SetText(row, column, text);
            edited.emplace_back(row, column);
        }
    }
    for (const auto& [row, column] : edited)
    {
        if (Holds(row, column)) // what was done for the last may have taken rows away
        {
            Q_EMIT CellEdited(row, column);
        }
    }
    if (!edited.empty())
    {
        Q_EMIT BlockEdited();
    }
}

int CGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : RowCount();
}

int CGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount();
}

QVariant CGridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
    {
        return {};
    }
    const CCell& cell = Cell(index.row(), index.column());
    const bool isCheck = Column(index.column()).Kind == EGridCell::Check;
    switch (role)
    {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return isCheck ? QVariant() : QVariant(ScreenText(cell.Text));
    case Qt::CheckStateRole:
        return isCheck ? QVariant(IsChecked(index.row(), index.column()) ? Qt::Checked : Qt::Unchecked)
                       : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignCenter);
    case Qt::BackgroundRole:
        return cell.Background.isValid() ? QVariant(cell.Background) : QVariant();
    default:
        return {};
    }
}

bool CGridModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || !MayChange(index.row(), index.column()))
    {
        return false;
    }
    const bool isCheck = Column(index.column()).Kind == EGridCell::Check;
    if (role != (isCheck ? Qt::CheckStateRole : Qt::EditRole))
    {
        return false;
    }
    const std::string text =
        isCheck ? (value.toInt() != Qt::Unchecked ? "1" : "0") : PlainText(value.toString());
    EditBlock({{index.row(), index.column(), text}});
    return true;
}

QVariant CGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
    {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    if (section < 0 || section >= ColumnCount())
    {
        return {};
    }
    if (role == Qt::UserRole && !Column(section).Field.empty())
    {
        return ScreenText(Column(section).Field);
    }
    return role == Qt::DisplayRole ? QVariant(Column(section).Caption) : QVariant();
}

Qt::ItemFlags CGridModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || !Cell(index.row(), index.column()).IsEnabled)
    {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (MayChange(index.row(), index.column()))
    {
        const bool isCheck = Column(index.column()).Kind == EGridCell::Check;
        flags |= isCheck ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    }
    return flags;
}

bool CGridModel::Holds(int row, int column) const
{
    return row >= 0 && row < RowCount() && column >= 0 && column < ColumnCount();
}

std::vector<CGridModel::CCell> CGridModel::EmptyRow() const
{
    std::vector<CCell> row(m_columns.size());
    for (std::size_t column = 0; column < row.size(); ++column)
    {
        row[column].IsReadOnly = m_columns[column].IsReadOnly;
    }
    return row;
}

std::vector<int> CGridModel::MovingColumns(const std::vector<int>& named) const
{
    std::vector<int> columns = named;
    for (int column = 0; named.empty() && column < ColumnCount(); ++column)
    {
        if (Column(column).Kind != EGridCell::Label)
        {
            columns.push_back(column);
        }
    }
    return columns;
}

void CGridModel::Changed(int row, int column)
{
    const QModelIndex cell = index(row, column);
    Q_EMIT dataChanged(cell, cell);
}
