#include "gui/forms/CGrid.h"

#include "core/project/UnitFactors.h"
#include "gui/forms/CFormDlg.h"
#include "tests/support/gui/CFormDriver.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A form with a text box, a table of four rows ("Station", Y, Z, a check), and what a form has around it.
class CTableDlg : public CFormDlg
{
public:
    explicit CTableDlg(CFormContext& context) : CFormDlg(context, "CTableDlg", "Table", 1, nullptr)
    {
        Length("Length", Project().SHIPLEN, "%.2f");
        auto* unit = new CUnitCaption(kLengthUnits, this);
        unit->setObjectName("YAUSER.unit");
        AddRow(unit);
        Grid = new CGrid({{.Caption = "Station", .Kind = EGridCell::Label},
                          {.Field = "YAUSER", .Caption = "Y", .Format = "%.3f", .Unit = unit},
                          {.Field = "ZAUSERBL", .Caption = "Z", .Format = "%.3f"},
                          {.Field = "Slamming", .Caption = "Slamming", .Kind = EGridCell::Check}},
                         4, this);
        Grid->setObjectName("table");
        Grid->Cells().NumberRows(0, 0);
        AddRow(Grid);
        QPushButton* insert = MakeButton("InsertRow", "&Insert Row", [] {});
        QPushButton* remove = MakeButton("DeleteRow", "&Delete Row", [] {});
        AddRow(insert);
        AddRow(remove);
        Grid->RowButtons(*insert, *remove, [this] { return MayInsert; });
    }

    CGrid* Grid;
    bool MayInsert = true;
};

struct CTable : CFormProject
{
    std::unique_ptr<CTableDlg> Made = std::make_unique<CTableDlg>(Context);
    CGrid& Grid = *Made->Grid;
    CGridModel& Cells = Grid.Cells();
    CTableDlg& Dialog = *Made;
    CFormDriver Form{std::move(Made)};
    QSignalSpy Edited{&Grid, &CGrid::CellEdited};
    QSignalSpy Blocks{&Grid, &CGrid::BlockEdited};

    CTable() { Focus(0, 1); }

    void Focus(int row, int column)
    {
        Grid.setFocus();
        Grid.SetFocusCell(row, column);
    }
    void Fill(int column)
    {
        for (int row = 0; row < Cells.RowCount(); ++row)
        {
            Cells.SetText(row, column, IntegerText(10 * column + row));
        }
    }
    void Select(int row, int column, int lastRow, int lastColumn)
    {
        Focus(row, column);
        Grid.selectionModel()->select(
            QItemSelection(Cells.index(row, column), Cells.index(lastRow, lastColumn)),
            QItemSelectionModel::ClearAndSelect);
    }
    /// Keys go where the focus is, as on a keyboard.
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void Type(const char* text)
    {
        for (const char* key = text; *key != '\0'; ++key)
        {
            QTest::keyClick(QApplication::focusWidget(), *key);
        }
    }
    static void Paste(const char* text)
    {
        QApplication::clipboard()->setText(QString::fromUtf8(text));
        Key(Qt::Key_V, Qt::ControlModifier);
    }
    std::pair<int, int> Place() const { return {Grid.FocusRow(), Grid.FocusColumn()}; }
    bool IsEditing() const { return Grid.findChild<QWidget*>("CellEdit") != nullptr && !Grid.hasFocus(); }
    std::vector<std::string> Texts(int column) const
    {
        std::vector<std::string> texts;
        for (int row = 0; row < Cells.RowCount(); ++row)
        {
            texts.push_back(Cells.Text(row, column));
        }
        return texts;
    }
};

std::pair<int, int> At(int row, int column)
{
    return {row, column};
}
} // namespace

TEST(Grid, TypingReplacesTheTextOfTheCell)
{
    CTable table;
    table.Cells.SetText(0, 1, "5.000");
    CTable::Type("12.5");
    EXPECT_EQ(table.Cells.Text(0, 1), "5.000"); // until the edit ends
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Cells.Text(0, 1), "12.5");
    ASSERT_EQ(table.Edited.size(), 1);
    EXPECT_EQ(table.Edited[0], QVariantList({0, 1}));
    EXPECT_EQ(table.Blocks.size(), 1);
}

TEST(Grid, OnlyNumbersCanBeTyped)
{
    CTable table;
    CTable::Type("xe, ");
    EXPECT_FALSE(table.IsEditing());
    EXPECT_EQ(table.Place(), At(0, 1));
    CTable::Type("-a1.x5.e-2");
    CTable::Key(Qt::Key_Enter);
    EXPECT_EQ(table.Cells.Text(0, 1), "-1.5e-2");
}

TEST(Grid, F2EditsTheTextInPlace)
{
    CTable table;
    table.Cells.SetText(0, 1, "5.0");
    CTable::Key(Qt::Key_F2);
    CTable::Type("7");
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Cells.Text(0, 1), "5.07");
}

TEST(Grid, EnterEndsTheEditAndThenGoesDown)
{
    CTable table;
    CTable::Type("1");
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Place(), At(0, 1));
    EXPECT_FALSE(table.IsEditing());
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Place(), At(1, 1));
    EXPECT_TRUE(table.Form.IsOpen());
}

TEST(Grid, EnterOnTheLastRowGoesToTheNextControl)
{
    CTable table;
    table.Focus(3, 1);
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Form.Focus(), "InsertRow");
    EXPECT_TRUE(table.Form.IsOpen());
    table.Form.Find<QWidget>("SHIPLEN").setFocus();
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Form.Focus(), "table");
    EXPECT_EQ(table.Place(), At(3, 1));
}

TEST(Grid, TabGoesRightOverTheEndsOfRows)
{
    CTable table;
    std::vector<std::pair<int, int>> places;
    for (int step = 0; step < 3; ++step)
    {
        CTable::Key(Qt::Key_Tab);
        places.push_back(table.Place());
    }
    EXPECT_THAT(places, ElementsAre(At(0, 2), At(0, 3), At(1, 1)));
    CTable::Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(table.Place(), At(0, 3));
}

TEST(Grid, TabLeavesTheGridAtItsEnds)
{
    CTable table;
    table.Focus(3, 3);
    CTable::Key(Qt::Key_Tab);
    EXPECT_EQ(table.Form.Focus(), "InsertRow");
    CTable::Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(table.Form.Focus(), "table");
    table.Focus(0, 1);
    CTable::Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(table.Form.Focus(), "SHIPLEN");
}

TEST(Grid, TabPassesOverCellsThatMayNotBeEdited)
{
    CTable table;
    table.Cells.SetColumnReadOnly(2, true);
    table.Cells.SetEnabled(0, 3, false);
    CTable::Key(Qt::Key_Tab);
    EXPECT_EQ(table.Place(), At(1, 1));
}

TEST(Grid, TabAndArrowsEndAnEditAndMoveOn)
{
    CTable table;
    CTable::Type("1");
    CTable::Key(Qt::Key_Tab);
    EXPECT_EQ(table.Place(), At(0, 2));
    CTable::Type("2");
    CTable::Key(Qt::Key_Down);
    EXPECT_EQ(table.Place(), At(1, 2));
    CTable::Type("3");
    CTable::Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(table.Place(), At(1, 1));
    EXPECT_FALSE(table.IsEditing());
    EXPECT_EQ(table.Cells.Text(0, 1), "1");
    EXPECT_THAT(table.Texts(2), ElementsAre("2", "3", "", ""));
}

TEST(Grid, EscapeTakesTheEditBackAndLeavesTheFormOpen)
{
    CTable table;
    table.Cells.SetText(0, 1, "5");
    CTable::Type("7");
    CTable::Key(Qt::Key_Escape);
    EXPECT_EQ(table.Cells.Text(0, 1), "5");
    EXPECT_EQ(table.Edited.size(), 0);
    EXPECT_TRUE(table.Form.IsOpen());
    CTable::Key(Qt::Key_Escape);
    EXPECT_FALSE(table.Form.IsOpen());
}

TEST(Grid, WorksInAPlainDialogWithADefaultButton)
{
    QDialog dialog;
    CGrid grid({{.Field = "BEAM", .Caption = "Beam"}}, 3, &dialog);
    QPushButton button("OK", &dialog);
    button.setDefault(true);
    const QSignalSpy pressed(&button, &QPushButton::clicked);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    grid.setFocus();
    CTable::Type("7");
    CTable::Key(Qt::Key_Return);
    CTable::Key(Qt::Key_Return);
    CTable::Type("8");
    CTable::Key(Qt::Key_Escape);
    EXPECT_EQ(pressed.size(), 0);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(grid.Cells().Text(0, 0), "7");
    EXPECT_EQ(grid.Cells().Text(1, 0), "");
    grid.SetFocusCell(2, 0);
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(pressed.size(), 1);
}

TEST(Grid, DeleteEmptiesTheSelectedCellsThatMayBeEdited)
{
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace})
    {
        CTable table;
        table.Fill(1);
        table.Fill(2);
        table.Cells.SetReadOnly(1, 2, true);
        table.Select(0, 0, 2, 2);
        CTable::Key(key);
        EXPECT_THAT(table.Texts(0), ElementsAre("0", "1", "2", "3"));
        EXPECT_THAT(table.Texts(1), ElementsAre("", "", "", "13"));
        EXPECT_THAT(table.Texts(2), ElementsAre("", "21", "", "23"));
        EXPECT_EQ(table.Edited.size(), 5);
        EXPECT_EQ(table.Blocks.size(), 1);
    }
}

TEST(Grid, CopyTakesTheSelectedBlock)
{
    CTable table;
    table.Fill(1);
    table.Fill(2);
    table.Select(1, 0, 2, 2);
    CTable::Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "1\t11\t21\n2\t12\t22");
}

TEST(Grid, CutTakesAndEmpties)
{
    CTable table;
    table.Fill(1);
    table.Select(0, 1, 1, 1);
    CTable::Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "10\n11");
    EXPECT_THAT(table.Texts(1), ElementsAre("", "", "12", "13"));
}

TEST(Grid, BlockIsPastedFromTheFocusedCellOn)
{
    CTable table;
    table.Focus(1, 1);
    CTable::Paste("1\t2\n3\t4\n");
    EXPECT_THAT(table.Texts(1), ElementsAre("", "1", "3", ""));
    EXPECT_THAT(table.Texts(2), ElementsAre("", "2", "4", ""));
    EXPECT_EQ(table.Edited.size(), 4);
    EXPECT_EQ(table.Blocks.size(), 1);
    EXPECT_EQ(table.Grid.selectionModel()->selectedIndexes().size(), 4);
    EXPECT_EQ(table.Place(), At(1, 1));
}

TEST(Grid, PasteEndsAtTheGridAndPassesOverReadOnlyCells)
{
    CTable table;
    table.Cells.SetReadOnly(3, 1, true);
    table.Focus(2, 0);
    CTable::Paste("9\t1\t2\t1\t7\n9\t3\t4\t0\t7\n9\t5\t6\t1\t7");
    EXPECT_THAT(table.Texts(0), ElementsAre("0", "1", "2", "3"));
    EXPECT_THAT(table.Texts(1), ElementsAre("", "", "1", ""));
    EXPECT_THAT(table.Texts(2), ElementsAre("", "", "2", "4"));
    EXPECT_TRUE(table.Cells.IsChecked(2, 3));
    EXPECT_FALSE(table.Cells.IsChecked(3, 3));
}

TEST(Grid, PasteBeginsAtTheFirstCellOfASelection)
{
    CTable table;
    table.Select(1, 1, 2, 2);
    table.Grid.selectionModel()->setCurrentIndex(table.Cells.index(2, 2), QItemSelectionModel::NoUpdate);
    CTable::Paste("1\t2\n3\t4");
    EXPECT_THAT(table.Texts(1), ElementsAre("", "1", "3", ""));
}

TEST(Grid, OneValueFillsTheSelectedBlock)
{
    CTable table;
    table.Select(0, 1, 2, 2);
    CTable::Paste("7,5\n");
    EXPECT_THAT(table.Texts(1), ElementsAre("7.5", "7.5", "7.5", ""));
    EXPECT_THAT(table.Texts(2), ElementsAre("7.5", "7.5", "7.5", ""));
    EXPECT_EQ(table.Blocks.size(), 1);
}

TEST(Grid, HiddenColumnsAreNeitherCopiedNorPastedInto)
{
    CTable table;
    table.Fill(2);
    table.Grid.setColumnHidden(2, true);
    CTable::Paste("5\t1");
    EXPECT_THAT(table.Texts(1), ElementsAre("5", "", "", ""));
    EXPECT_THAT(table.Texts(2), ElementsAre("20", "21", "22", "23"));
    EXPECT_TRUE(table.Cells.IsChecked(0, 3));
    table.Select(0, 0, 0, 3);
    CTable::Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "0\t5\t1");
}

TEST(Grid, PasteOfAMillionLinesFillsTheGrid)
{
    CTable table;
    QApplication::clipboard()->setText(QStringLiteral("1\t2\n").repeated(1000000));
    CTable::Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(table.Texts(1), ElementsAre("1", "1", "1", "1"));
    EXPECT_EQ(table.Edited.size(), 8);
}

TEST(Grid, EmptyClipboardChangesNothing)
{
    CTable table;
    table.Fill(1);
    QApplication::clipboard()->clear();
    CTable::Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(table.Texts(1), ElementsAre("10", "11", "12", "13"));
}

TEST(Grid, PastedTextIsFreeInACellToo)
{
    CTable table;
    QApplication::clipboard()->setText("abc");
    CTable::Key(Qt::Key_F2);
    CTable::Key(Qt::Key_V, Qt::ControlModifier);
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Cells.Text(0, 1), "abc");
    EXPECT_EQ(table.Cells.Value(0, 1), 0);
}

TEST(Grid, CheckCellsTurnByMouseAndBlankKey)
{
    CTable table;
    const QPoint middle = table.Grid.visualRect(table.Cells.index(1, 3)).center();
    QTest::mouseClick(table.Grid.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_TRUE(table.Cells.IsChecked(1, 3));
    EXPECT_EQ(table.Place(), At(1, 3));
    CTable::Key(Qt::Key_Space);
    EXPECT_FALSE(table.Cells.IsChecked(1, 3));
    CTable::Type("1");
    EXPECT_FALSE(table.Cells.IsChecked(1, 3));
    EXPECT_EQ(table.Edited.size(), 2);
    table.Cells.SetReadOnly(1, 3, true);
    CTable::Key(Qt::Key_Space);
    EXPECT_FALSE(table.Cells.IsChecked(1, 3));
}

TEST(Grid, MarkedCellIsFocusedSelectedAndInView)
{
    CTable table;
    table.Cells.SetRowCount(60);
    table.Form.Find<QWidget>("SHIPLEN").setFocus();
    table.Grid.MarkCell(50, 2);
    EXPECT_EQ(table.Place(), At(50, 2));
    EXPECT_EQ(table.Form.Focus(), "table");
    EXPECT_THAT(table.Grid.selectionModel()->selectedIndexes(), ElementsAre(table.Cells.index(50, 2)));
    EXPECT_TRUE(table.Grid.viewport()->rect().contains(table.Grid.visualRect(table.Cells.index(50, 2))));
    table.Grid.MarkAlso(51, 2);
    EXPECT_EQ(table.Grid.selectionModel()->selectedIndexes().size(), 2);
    EXPECT_EQ(table.Place(), At(50, 2));
}

TEST(Grid, OkTakesTheEditThatIsUnderWay)
{
    CTable table;
    CTable::Type("4");
    table.Form.Ok();
    EXPECT_EQ(table.Cells.Text(0, 1), "4");
}

TEST(Grid, UnitCaptionConvertsTheColumnAndTheEditUnderWay)
{
    CTable table;
    table.Cells.SetText(1, 1, "10");
    table.Cells.SetText(1, 2, "10");
    CTable::Type("1");
    table.Form.Click("YAUSER.unit");
    EXPECT_THAT(table.Texts(1), ElementsAre("3.281", "32.808", "", ""));
    EXPECT_EQ(table.Cells.Text(1, 2), "10");
    EXPECT_EQ(table.Form.Caption("YAUSER.unit"), "feet");
    EXPECT_TRUE(table.Grid.hasFocus());
}

TEST(Grid, RowButtonsWorkOnTheFocusedRow)
{
    CTable table;
    table.Fill(1);
    const QSignalSpy moved(&table.Grid, &CGrid::RowsMoved);
    table.Focus(1, 2);
    table.Form.Click("InsertRow");
    EXPECT_THAT(table.Texts(1), ElementsAre("10", "", "11", "12"));
    EXPECT_TRUE(table.Grid.hasFocus());
    EXPECT_EQ(table.Place(), At(1, 2));
    table.Form.Click("DeleteRow");
    table.Form.Click("DeleteRow");
    EXPECT_THAT(table.Texts(1), ElementsAre("10", "12", "", ""));
    EXPECT_EQ(moved.size(), 3);
    table.Dialog.MayInsert = false;
    table.Form.Click("InsertRow");
    EXPECT_THAT(table.Texts(1), ElementsAre("10", "12", "", ""));
    EXPECT_EQ(moved.size(), 3);
}

TEST(Grid, RowButtonsTakeTheEditThatIsUnderWay)
{
    CTable table;
    CTable::Type("4");
    table.Form.Find<QPushButton>("InsertRow").click(); // as by its mnemonic, which leaves the focus
    EXPECT_THAT(table.Texts(1), ElementsAre("", "4", "", ""));
}

TEST(Grid, FocusCellIsTold)
{
    CTable table;
    const QSignalSpy moved(&table.Grid, &CGrid::FocusCellChanged);
    CTable::Key(Qt::Key_Down);
    ASSERT_EQ(moved.size(), 1);
    EXPECT_EQ(moved[0], QVariantList({1, 1}));
}

TEST(Grid, FirstCellThatMayBeEditedHasTheFocusAtFirst)
{
    CFormProject project;
    CTableDlg form(project.Context);
    form.show();
    QApplication::setActiveWindow(&form);
    form.Grid->setFocus();
    EXPECT_EQ(form.Grid->FocusRow(), 0);
    EXPECT_EQ(form.Grid->FocusColumn(), 1);
}

TEST(Grid, SizesFollowTheFont)
{
    CTable table;
    table.Cells.SetRowCount(60);
    const QSize before = table.Grid.sizeHint();
    QFont larger = table.Grid.font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    table.Grid.setFont(larger);
    EXPECT_GT(table.Grid.sizeHint().height(), before.height() * 3 / 2);
    EXPECT_GT(table.Grid.sizeHint().width(), before.width() * 3 / 2);
    EXPECT_GE(table.Grid.rowHeight(0), QFontMetrics(larger).height());
    EXPECT_GE(table.Grid.columnWidth(1), QFontMetrics(larger).horizontalAdvance("-8888.888"));
}

TEST(Grid, ColumnsFillTheGrid)
{
    CTable table;
    table.Grid.setFixedWidth(900);
    table.Form.Form().layout()->activate();
    QApplication::processEvents();
    EXPECT_EQ(table.Grid.horizontalHeader()->length(), table.Grid.viewport()->width());
}

TEST(Grid, EditMayMarkACellWhereItEnds)
{
    CTable table;
    QObject::connect(&table.Grid, &CGrid::CellEdited, &table.Grid,
                     [&table](int row, int column) { table.Grid.MarkCell(row + 1, column); });
    CTable::Type("7");
    CTable::Key(Qt::Key_Return);
    EXPECT_EQ(table.Edited.size(), 1);
    EXPECT_EQ(table.Place(), At(1, 1));
    EXPECT_FALSE(table.IsEditing());
    EXPECT_EQ(table.Cells.Text(0, 1), "7");
}

TEST(Grid, ContextMenuHasTheCommandsOfTheClipboard)
{
    CTable table;
    table.Fill(1);
    QStringList captions;
    for (const QAction* action : table.Grid.actions())
    {
        captions += action->text().section('\t', 0, 0).remove('&');
    }
    EXPECT_EQ(captions, QStringList({"Cut", "Copy", "Paste", "Clear"}));
    table.Grid.actions().front()->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "10");
    EXPECT_TRUE(table.Cells.IsBlank(0, 1));
}
