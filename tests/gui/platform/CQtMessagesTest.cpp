#include "gui/platform/CQtMessages.h"

#include "tests/support/gui/AtDialog.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QTest>

namespace
{
constexpr QMessageBox::StandardButtons kYesNo = QMessageBox::Yes | QMessageBox::No;

/// What the next message box showed, kept past its end.
struct CShown
{
    QString Title;
    QString Text;
    Qt::TextFormat Format = Qt::AutoText;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons Buttons;
    QWidget* Parent = nullptr;
    bool HasWaitCursor = false;
};

/// Notes what the next message box shows and then presses a key in it.
void PressAtMessage(CShown& shown, Qt::Key key)
{
    AtDialog<QMessageBox>("MessageBox",
                          [&shown, key](QMessageBox& box)
                          {
                              shown = {box.windowTitle(),
                                       box.text(),
                                       box.textFormat(),
                                       box.icon(),
                                       box.standardButtons(),
                                       box.parentWidget(),
                                       QApplication::overrideCursor() != nullptr};
                              QTest::keyClick(&box, key);
                          });
}

void PressMnemonicAtMessage(Qt::Key key)
{
    AtDialog<QMessageBox>("MessageBox",
                          [key](QMessageBox& box)
                          {
                              QApplication::setActiveWindow(&box); // no window manager does it here
                              QTest::keyClick(&box, key, Qt::AltModifier);
                              // The button goes down and up before it answers.
                              EXPECT_TRUE(QTest::qWaitFor([&box] { return !box.isVisible(); }));
                          });
}
} // namespace

TEST(Messages, AreShownExactlyAndAcknowledgedByEnter)
{
    CQtMessages messages;
    CShown shown;
    PressAtMessage(shown, Qt::Key_Return);
    messages.MessageBox("Min. = 0.00   <b>Max.</b> & \n10.00 ", "A  title ", EIcon::Stop);
    EXPECT_EQ(shown.Text, "Min. = 0.00   <b>Max.</b> & \n10.00 ");
    EXPECT_EQ(shown.Title, "A  title ");
    EXPECT_EQ(shown.Format, Qt::PlainText);
    EXPECT_EQ(shown.Icon, QMessageBox::Critical);
    EXPECT_EQ(shown.Buttons, QMessageBox::Ok);
}

TEST(Messages, HaveTheIconTheyAskFor)
{
    CQtMessages messages;
    const std::pair<EIcon, QMessageBox::Icon> icons[] = {{EIcon::None, QMessageBox::NoIcon},
                                                         {EIcon::Stop, QMessageBox::Critical},
                                                         {EIcon::Warning, QMessageBox::Warning},
                                                         {EIcon::Question, QMessageBox::Question},
                                                         {EIcon::Information, QMessageBox::Information}};
    for (const auto& [icon, expected] : icons)
    {
        CShown shown;
        PressAtMessage(shown, Qt::Key_Escape);
        messages.MessageBox("text", "title", icon);
        EXPECT_EQ(shown.Text, "text");
        EXPECT_EQ(shown.Icon, expected);
    }
}

TEST(Messages, TextThatIsNoUtf8IsShownAllTheSame)
{
    CQtMessages messages;
    CShown shown;
    PressAtMessage(shown, Qt::Key_Return);
    messages.MessageBox("/files/m\xe4rz.od7", "title", EIcon::None);
    EXPECT_EQ(shown.Text, QString::fromUtf8("/files/m\xc3\xa4rz.od7"));
}

TEST(Questions, AreAnsweredByEnterByMnemonicAndByEscape)
{
    CQtMessages messages;
    CShown shown;
    PressAtMessage(shown, Qt::Key_Return);
    EXPECT_TRUE(messages.AskYesNo("Save?", "Ondara", EIcon::Question));
    EXPECT_EQ(shown.Buttons, kYesNo);
    PressAtMessage(shown, Qt::Key_Escape);
    EXPECT_FALSE(messages.AskYesNo("Save?", "Ondara", EIcon::Question));
    PressMnemonicAtMessage(Qt::Key_Y);
    EXPECT_TRUE(messages.AskYesNo("Save?", "Ondara", EIcon::Question));
    PressMnemonicAtMessage(Qt::Key_N);
    EXPECT_FALSE(messages.AskYesNo("Save?", "Ondara", EIcon::Question));
}

TEST(Questions, AreAnsweredNoByTheWindowsOwnButton)
{
    CQtMessages messages;
    bool wasShown = false;
    AtDialog<QMessageBox>("MessageBox", [&wasShown](QMessageBox& box) { wasShown = box.close(); });
    EXPECT_FALSE(messages.AskYesNo("Save?", "Ondara", EIcon::Question));
    EXPECT_TRUE(wasShown);
}

TEST(Messages, OpenOverTheFormInFrontElseOverTheWindowInUse)
{
    CQtMessages messages;
    CShown shown;
    PressAtMessage(shown, Qt::Key_Return);
    messages.MessageBox("text", "title", EIcon::None);
    EXPECT_EQ(shown.Parent, nullptr);

    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    PressAtMessage(shown, Qt::Key_Return);
    messages.MessageBox("text", "title", EIcon::None);
    EXPECT_EQ(shown.Parent, &window);

    QDialog form(&window);
    form.open();
    PressAtMessage(shown, Qt::Key_Return);
    messages.MessageBox("text", "title", EIcon::None);
    EXPECT_EQ(shown.Parent, &form);
}

TEST(WaitCursor, IsAStateAndNoCount)
{
    CQtMessages messages;
    messages.SetCursor(ECursor::Arrow);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    messages.SetCursor(ECursor::Wait);
    messages.SetCursor(ECursor::Wait);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    messages.SetCursor(ECursor::Arrow);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(WaitCursor, ArrowTakesNobodyElsesCursorAway)
{
    CQtMessages messages;
    QApplication::setOverrideCursor(Qt::CrossCursor);
    messages.SetCursor(ECursor::Arrow);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    QApplication::restoreOverrideCursor();
}

TEST(WaitCursor, IsAwayWhileAMessageStands)
{
    CQtMessages messages;
    messages.SetCursor(ECursor::Wait);
    CShown shown;
    shown.HasWaitCursor = true;
    PressAtMessage(shown, Qt::Key_Return);
    messages.MessageBox("text", "title", EIcon::None);
    EXPECT_FALSE(shown.HasWaitCursor);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    messages.SetCursor(ECursor::Arrow);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}
