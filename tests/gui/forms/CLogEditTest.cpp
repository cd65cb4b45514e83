#include "gui/forms/CLogEdit.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <gmock/gmock.h>

namespace
{
/// A text box above a log and one below it, with the focus in the first.
struct CLogForm : QDialog
{
    QLineEdit Before;
    CLogEdit Log;
    QLineEdit After;

    CLogForm()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&Before);
        layout->addWidget(&Log);
        layout->addWidget(&After);
        show();
        QApplication::setActiveWindow(this);
        Before.setFocus();
    }
};
} // namespace

TEST(LogEdit, LinesAreSeparatedAndNotEnded)
{
    CLogEdit log;
    log.AppendLine("one");
    log.AppendLine("");
    log.AppendLine("three");
    EXPECT_EQ(log.toPlainText(), "one\n\nthree");
}

TEST(LogEdit, ShowsTheLastLine)
{
    CLogForm form;
    for (int line = 0; line < 200; ++line)
    {
        form.Log.AppendLine(QString::number(line));
        form.Log.verticalScrollBar()->setValue(line % 2); // the user reads further up
    }
    form.Log.AppendLine("last");
    EXPECT_GT(form.Log.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(form.Log.verticalScrollBar()->value(), form.Log.verticalScrollBar()->maximum());
}

TEST(LogEdit, NothingCanBeTypedIntoIt)
{
    CLogForm form;
    form.Log.AppendLine("one");
    form.Log.setFocus();
    QTest::keyClicks(&form.Log, "x");
    EXPECT_EQ(form.Log.toPlainText(), "one");
}

TEST(LogEdit, HandsTheFocusBackUnlessItIsFocusable)
{
    CLogForm form;
    form.Log.setFocus();
    EXPECT_TRUE(form.Log.hasFocus());
    form.Before.setFocus();
    form.Log.SetFocusable(false);
    form.Log.setFocus();
    EXPECT_TRUE(form.Before.hasFocus());
    QTest::mouseClick(form.Log.viewport(), Qt::LeftButton);
    EXPECT_TRUE(form.Before.hasFocus());
    QTest::keyClick(&form.Before, Qt::Key_Tab);
    EXPECT_TRUE(form.After.hasFocus());
    form.Log.SetFocusable(true);
    form.Log.setFocus();
    EXPECT_TRUE(form.Log.hasFocus());
}
