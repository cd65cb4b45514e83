#include "gui/forms/CNumericEdit.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace
{
/// A window with a number box, which has the focus, and another one.
class NumericEdit : public testing::Test
{
protected:
    NumericEdit()
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(&Box);
        layout->addWidget(&Other);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        Box.setFocus();
    }

    std::string Typed(const char* text)
    {
        Box.clear();
        QTest::keyClicks(&Box, QString::fromLatin1(text));
        return Box.text().toStdString();
    }

private:
    QWidget m_window;

protected:
    CNumericEdit Box;
    CNumericEdit Other;
};
} // namespace

TEST_F(NumericEdit, TakesNumbersKeyByKey)
{
    for (const char* number : {"12.5", "-0.25", "1e-3", "-1.5E6", ".5", "1."})
    {
        EXPECT_EQ(Typed(number), number);
    }
}

TEST_F(NumericEdit, LeavesOutWhatIsNoNumber)
{
    EXPECT_EQ(Typed(" 1,000 m"), "1000");
    EXPECT_EQ(Typed("--5"), "-5");
    EXPECT_EQ(Typed("+5"), "5");
    EXPECT_EQ(Typed("1.2.3"), "1.23");
    EXPECT_EQ(Typed("e5"), "5");
    EXPECT_EQ(Typed("-e5"), "-5");
    EXPECT_EQ(Typed("1e5.5"), "1e55");
    EXPECT_EQ(Typed("nan"), "");
    EXPECT_EQ(Typed("0x1F"), "01");
}

TEST_F(NumericEdit, LooksAtTheTextWithoutWhatIsSelected)
{
    Box.setText("-1.5");
    Box.selectAll();
    QTest::keyClicks(&Box, "-.5");
    EXPECT_EQ(Box.text(), "-.5");
    Box.setText("-1.5e3");
    Box.setSelection(2, 1); // the point
    QTest::keyClicks(&Box, ".");
    EXPECT_EQ(Box.text(), "-1.5e3");
    Box.setText("12e3");
    Box.setSelection(0, 2);
    QTest::keyClicks(&Box, "e");
    EXPECT_EQ(Box.text(), "12e3"); // would stand in front; nothing is lost
}

TEST_F(NumericEdit, SelectionToTheLeftCountsTheSame)
{
    Box.setText("5-7");
    Box.setCursorPosition(1);
    Box.cursorBackward(true);
    QTest::keyClicks(&Box, "-");
    EXPECT_EQ(Box.text(), "5-7"); // behind the selection begins "-7"
    Box.setText("57");
    Box.setCursorPosition(1);
    Box.cursorBackward(true);
    QTest::keyClicks(&Box, "-");
    EXPECT_EQ(Box.text(), "-7");
}

TEST_F(NumericEdit, EditingKeysWork)
{
    Box.setText("123");
    QTest::keyClick(&Box, Qt::Key_Backspace);
    EXPECT_EQ(Box.text(), "12");
    QTest::keyClick(&Box, Qt::Key_Home);
    QTest::keyClick(&Box, Qt::Key_Delete);
    EXPECT_EQ(Box.text(), "2");
    QTest::keyClick(&Box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Box.text(), "2");
}

TEST_F(NumericEdit, TypedWithAltGrOrAltIsFilteredToo)
{
    Box.clear();
    QTest::sendKeyEvent(QTest::Click, &Box, Qt::Key_At, "@", Qt::ControlModifier | Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, &Box, Qt::Key_X, "x", Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, &Box, Qt::Key_unknown, QString(QChar(0x200e)), Qt::NoModifier);
    EXPECT_EQ(Box.text(), "");
    QTest::sendKeyEvent(QTest::Click, &Box, Qt::Key_5, "5", Qt::KeypadModifier);
    EXPECT_EQ(Box.text(), "5");
}

TEST_F(NumericEdit, PasteIsFree)
{
    Box.clear();
    QApplication::clipboard()->setText("  12 m, about");
    QTest::keyClick(&Box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Box.text(), "  12 m, about");
}

TEST_F(NumericEdit, InputMethodsAreFilteredToo)
{
    Box.clear();
    QInputMethodEvent composing("1e", {});
    QApplication::sendEvent(&Box, &composing);
    QInputMethodEvent letters;
    letters.setCommitString("1x");
    QApplication::sendEvent(&Box, &letters);
    EXPECT_EQ(Box.text(), "");
    EXPECT_EQ(Box.displayText(), "");
    QInputMethodEvent number;
    number.setCommitString("-1.5");
    QApplication::sendEvent(&Box, &number);
    EXPECT_EQ(Box.text(), "-1.5");
}

TEST_F(NumericEdit, TellsOfTheLostFocusAlsoWithoutAnEdit)
{
    const QSignalSpy lost(&Box, &CNumericEdit::FocusLost);
    Other.setFocus();
    EXPECT_EQ(lost.count(), 1);
    Box.setFocus();
    QTest::keyClicks(&Box, "5");
    EXPECT_EQ(lost.count(), 1);
    QTest::keyClick(&Box, Qt::Key_Tab);
    EXPECT_EQ(lost.count(), 2);
}

TEST_F(NumericEdit, OwnMenuTakesNoFocus)
{
    const QSignalSpy lost(&Box, &CNumericEdit::FocusLost);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), Box.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&Box, &event);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(lost.count(), 0);
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(lost.count(), 0);
    Other.setFocus();
    EXPECT_EQ(lost.count(), 1);
}

TEST_F(NumericEdit, HasRoomForTheLargestNumberInAnyFont)
{
    for (const int size : {9, 13, 20})
    {
        QFont font = Box.font();
        font.setPointSize(size);
        Box.setFont(font);
        EXPECT_GT(Box.sizeHint().width(), Box.fontMetrics().horizontalAdvance("-100000.00"));
        EXPECT_LT(Box.sizeHint().width(), Box.fontMetrics().horizontalAdvance("-100000.00-100000.00"));
    }
}
