#include "gui/forms/CGridModel.h"

#include "core/project/UnitFactors.h"

#include <limits>

#include <QSignalSpy>
#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
struct CCells : CGridModel
{
    CCells()
        : CGridModel({{.Caption = "Station", .Kind = EGridCell::Label},
                      {.Field = "BEAM", .Caption = "Beam", .Format = "%.3f"},
                      {.Field = "DIFOIL", .Caption = "Dihedral", .Sentinel = kAngleNotGiven},
                      {.Field = "Slamming", .Caption = "Slamming", .Kind = EGridCell::Check}})
    {
        SetRowCount(4);
    }

    std::vector<std::string> Texts(int column) const
    {
        std::vector<std::string> texts;
        for (int row = 0; row < RowCount(); ++row)
        {
            texts.push_back(Text(row, column));
        }
        return texts;
    }
};
} // namespace

TEST(GridModel, ColumnIsFoundByTheNameOfItsField)
{
    const CCells cells;
    EXPECT_EQ(cells.headerData(1, Qt::Horizontal, Qt::UserRole).toString(), "BEAM");
    EXPECT_EQ(cells.headerData(1, Qt::Horizontal).toString(), "Beam");
    EXPECT_FALSE(cells.headerData(0, Qt::Horizontal, Qt::UserRole).isValid());
    EXPECT_EQ(cells.ColumnOf("DIFOIL"), 2);
    EXPECT_EQ(cells.ColumnOf("DRAFT"), -1);
}

TEST(GridModel, ValuesShowThroughTheFormatOfTheColumn)
{
    CCells cells;
    cells.SetValue(0, 1, 1.23456F);
    cells.SetValue(1, 1, kNotGiven);
    cells.SetValue(0, 2, -1);
    cells.SetValue(1, 2, kAngleNotGiven);
    EXPECT_EQ(cells.Text(0, 1), "1.235");
    EXPECT_EQ(cells.Value(0, 1), 1.235F);
    EXPECT_EQ(cells.Text(1, 1), "");
    EXPECT_EQ(cells.Value(1, 1), kNotGiven);
    EXPECT_EQ(cells.Text(0, 2), "-1.00");
    EXPECT_EQ(cells.Text(1, 2), "");
    EXPECT_EQ(cells.Value(1, 2), kAngleNotGiven);
}

TEST(GridModel, OneBlankIsNoValueAndTwoAreZero)
{
    CCells cells;
    cells.SetText(0, 1, " ");
    cells.SetText(1, 1, "  ");
    EXPECT_TRUE(cells.IsBlank(0, 1));
    EXPECT_EQ(cells.Value(0, 1), kNotGiven);
    EXPECT_FALSE(cells.IsBlank(1, 1));
    EXPECT_EQ(cells.Value(1, 1), 0);
}

TEST(GridModel, OnlyTheUsersEditIsTold)
{
    CCells cells;
    const QSignalSpy edited(&cells, &CGridModel::CellEdited);
    const QSignalSpy blocks(&cells, &CGridModel::BlockEdited);
    cells.SetValue(0, 1, 3);
    cells.SetText(0, 1, "4");
    cells.SetChecked(0, 3, true);
    EXPECT_EQ(edited.size(), 0);
    EXPECT_TRUE(cells.setData(cells.index(2, 1), "5.5"));
    ASSERT_EQ(edited.size(), 1);
    EXPECT_EQ(edited[0], QVariantList({2, 1}));
    EXPECT_EQ(blocks.size(), 1);
    EXPECT_EQ(cells.Text(2, 1), "5.5"); // as typed
}

TEST(GridModel, CellsThatMayNotBeEditedRefuse)
{
    CCells cells;
    cells.SetReadOnly(1, 1, true);
    cells.SetEnabled(2, 1, false);
    EXPECT_TRUE(cells.flags(cells.index(0, 1)).testFlag(Qt::ItemIsEditable));
    for (const auto& [row, column] : {std::pair(0, 0), std::pair(1, 1), std::pair(2, 1), std::pair(0, 3)})
    {
        EXPECT_FALSE(cells.flags(cells.index(row, column)).testFlag(Qt::ItemIsEditable));
        EXPECT_FALSE(cells.setData(cells.index(row, column), "7"));
        EXPECT_EQ(cells.Text(row, column), "");
    }
    EXPECT_FALSE(cells.flags(cells.index(2, 1)).testFlag(Qt::ItemIsEnabled));
    cells.SetReadOnly(1, 1, false);
    EXPECT_TRUE(cells.setData(cells.index(1, 1), "7"));
}

TEST(GridModel, ReadOnlyColumnStaysSoForRowsToCome)
{
    CCells cells;
    cells.SetColumnReadOnly(1, true);
    cells.SetRowCount(5);
    EXPECT_FALSE(cells.MayChange(0, 1));
    EXPECT_FALSE(cells.MayChange(4, 1));
    EXPECT_TRUE(cells.MayChange(4, 2));
}

TEST(GridModel, RowsThatStayKeepTheirTexts)
{
    CCells cells;
    cells.SetText(1, 1, "1");
    cells.SetText(3, 1, "3");
    cells.SetRowCount(2);
    cells.SetRowCount(4);
    EXPECT_THAT(cells.Texts(1), ElementsAre("", "1", "", ""));
    cells.SetRowCount(-1);
    EXPECT_EQ(cells.rowCount(), 0);
}

TEST(GridModel, CheckCellsAreCheckedAndNotTyped)
{
    CCells cells;
    const QSignalSpy edited(&cells, &CGridModel::CellEdited);
    const QModelIndex cell = cells.index(0, 3);
    EXPECT_EQ(cell.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_TRUE(cells.setData(cell, Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(cells.Value(0, 3), 1);
    EXPECT_EQ(edited.size(), 1);
    EXPECT_FALSE(cells.setData(cell, "0"));
    cells.SetReadOnly(0, 3, true);
    EXPECT_FALSE(cells.flags(cell).testFlag(Qt::ItemIsUserCheckable));
    EXPECT_FALSE(cells.setData(cell, Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_TRUE(cells.IsChecked(0, 3));
    EXPECT_FALSE(cells.setData(cells.index(0, 1), Qt::Checked, Qt::CheckStateRole));
    cells.SetValue(0, 3, kNotGiven);
    EXPECT_FALSE(cells.IsChecked(0, 3));
}

TEST(GridModel, InsertedRowIsEmptyAndTheLastFallsOff)
{
    CCells cells;
    cells.NumberRows(0, 3, -1);
    for (int row = 0; row < 4; ++row)
    {
        cells.SetText(row, 1, IntegerText(row));
    }
    cells.InsertRow(1);
    EXPECT_THAT(cells.Texts(1), ElementsAre("0", "", "1", "2"));
    EXPECT_THAT(cells.Texts(0), ElementsAre("3", "2", "1", "0"));
    cells.DeleteRow(0);
    EXPECT_THAT(cells.Texts(1), ElementsAre("", "1", "2", ""));
    cells.InsertRow(4);
    cells.DeleteRow(-1);
    EXPECT_THAT(cells.Texts(1), ElementsAre("", "1", "2", ""));
}

TEST(GridModel, RowsUnderTheTableStandStill)
{
    CCells cells;
    for (int row = 0; row < 4; ++row)
    {
        cells.SetText(row, 1, IntegerText(row));
        cells.SetText(row, 2, IntegerText(row));
    }
    cells.SetMovingRows(3);
    cells.InsertRow(0, {1});
    EXPECT_THAT(cells.Texts(1), ElementsAre("", "0", "1", "3"));
    EXPECT_THAT(cells.Texts(2), ElementsAre("0", "1", "2", "3"));
    cells.DeleteRow(1);
    EXPECT_THAT(cells.Texts(1), ElementsAre("", "1", "", "3"));
    EXPECT_THAT(cells.Texts(2), ElementsAre("0", "2", "", "3"));
    cells.InsertRow(3);
    EXPECT_THAT(cells.Texts(2), ElementsAre("0", "2", "", "3"));
}

TEST(GridModel, ColumnIsConvertedWithoutItsEmptyCells)
{
    CCells cells;
    cells.SetText(0, 1, "10");
    cells.SetText(2, 1, "-1.000"); // reads as not given
    cells.SetText(3, 1, "abc");
    cells.ConvertColumn(1, kFeetPerMetre);
    EXPECT_THAT(cells.Texts(1), ElementsAre("32.808", "", "-1.000", "0.000"));
}

TEST(GridModel, BlockIsWholeBeforeItsFirstCellIsTold)
{
    CCells cells;
    std::vector<std::vector<std::string>> seen;
    QObject::connect(&cells, &CGridModel::CellEdited, &cells, [&] { seen.push_back(cells.Texts(1)); });
    const QSignalSpy blocks(&cells, &CGridModel::BlockEdited);
    cells.EditBlock({{0, 1, "1"}, {1, 1, "2"}, {0, 0, "no"}, {9, 1, "no"}, {0, 9, "no"}, {-1, 1, "no"}});
    EXPECT_THAT(seen, ElementsAre(ElementsAre("1", "2", "", ""), ElementsAre("1", "2", "", "")));
    EXPECT_EQ(blocks.size(), 1);
    cells.EditBlock({{0, 0, "no"}});
    EXPECT_EQ(blocks.size(), 1);
}

TEST(GridModel, RowsMayGoWhileABlockIsTold)
{
    CCells cells;
    int told = 0;
    QObject::connect(&cells, &CGridModel::CellEdited, &cells,
                     [&]
                     {
                         ++told;
                         cells.SetRowCount(1);
                     });
    cells.EditBlock({{0, 1, "1"}, {3, 1, "2"}});
    EXPECT_EQ(told, 1);
}

TEST(GridModel, CellsAreCentredAndMayHaveAColour)
{
    CCells cells;
    EXPECT_EQ(cells.index(0, 1).data(Qt::TextAlignmentRole).toInt(), static_cast<int>(Qt::AlignCenter));
    EXPECT_FALSE(cells.index(0, 1).data(Qt::BackgroundRole).isValid());
    cells.SetBackground(0, 1, Qt::yellow);
    EXPECT_EQ(cells.index(0, 1).data(Qt::BackgroundRole).value<QColor>(), QColor(Qt::yellow));
}

TEST(GridModel, NumbersThatAreNoneDoNoHarm)
{
    CCells cells;
    cells.SetValue(0, 1, std::numeric_limits<float>::quiet_NaN());
    cells.SetValue(1, 1, std::numeric_limits<float>::max());
    cells.ConvertColumn(1, kFeetPerMetre);
    EXPECT_EQ(cells.Value(2, 1), kNotGiven);
}
