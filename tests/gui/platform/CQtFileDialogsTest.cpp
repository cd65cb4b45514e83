#include "gui/platform/CQtFileDialogs.h"

#include "core/platform/Files.h"
#include "tests/support/CTestFolder.h"
#include "tests/support/CVariable.h"
#include "tests/support/gui/AtDialog.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

using testing::ElementsAre;
using testing::Optional;

namespace
{
constexpr const char* kFilter = "Ondara Files (*.od7; *.od6)|*.od7; *.od6|All Files (*.*)|*.*|";

/// A folder of its own as the current one, and Qt's own dialogs, whose settings stand in that folder.
class FileDialogs : public testing::Test
{
protected:
    FileDialogs() : m_settings("XDG_CONFIG_HOME", Folder.Path()), m_before(CurrentFolder())
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        ChangeFolder(Folder.Path());
    }
    ~FileDialogs() override
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
        ChangeFolder(m_before);
    }

    CTestFolder Folder;
    CQtFileDialogs Dialogs;

private:
    CVariable m_settings;
    std::string m_before;
};

QLineEdit& NameBox(QFileDialog& dialog)
{
    return *dialog.findChild<QLineEdit*>("fileNameEdit");
}

/// Types a name over what stands in the dialog and presses Enter.
void TypeName(QFileDialog& dialog, const std::string& name)
{
    QTest::keyClicks(dialog.focusWidget(), QString::fromStdString(name));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

/// Pastes a name and presses Enter; typing a path would open a list of the names in the folder.
void PasteName(QFileDialog& dialog, const std::string& name)
{
    NameBox(dialog).selectAll();
    NameBox(dialog).insert(QString::fromStdString(name));
    QTest::keyClick(&NameBox(dialog), Qt::Key_Return);
}

void AtFileDialog(std::function<void(QFileDialog&)> act)
{
    AtDialog<QFileDialog>("FileDialog", std::move(act));
}
} // namespace

TEST_F(FileDialogs, OpenGivesTheFullPathOfATypedName)
{
    const std::string path = Folder.Write("ship.od7", "");
    AtFileDialog([](QFileDialog& dialog) { TypeName(dialog, "ship.od7"); });
    EXPECT_THAT(Dialogs.AskOpen({"*.od7", "noname", kFilter, false}), Optional(path));
}

TEST_F(FileDialogs, OpenTakesAFullPath)
{
    const CTestFolder elsewhere;
    const std::string path = elsewhere.Write("ship.od7", "");
    AtFileDialog([&path](QFileDialog& dialog) { PasteName(dialog, path); });
    EXPECT_THAT(Dialogs.AskOpen({"*.od7", "noname", kFilter, false}), Optional(path));
}

TEST_F(FileDialogs, OpenRefusesANameWithoutAFile)
{
    bool isStillOpen = false;
    AtFileDialog(
        [&isStillOpen](QFileDialog& dialog)
        {
            QTimer::singleShot(0, qApp,
                               [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept(); });
            TypeName(dialog, "nothing.od7");
            isStillOpen = dialog.isVisible();
        });
    EXPECT_EQ(Dialogs.AskOpen({"*.od7", "", kFilter, false}), std::nullopt);
    EXPECT_TRUE(isStillOpen);
}

TEST_F(FileDialogs, EscapeGivesNoFile)
{
    Folder.Write("ship.od7", "");
    bool wasShown = false;
    AtFileDialog(
        [&wasShown](QFileDialog& dialog)
        {
            wasShown = true;
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    EXPECT_EQ(Dialogs.AskOpen({"*.od7", "ship.od7", kFilter, false}), std::nullopt);
    EXPECT_TRUE(wasShown);
}

TEST_F(FileDialogs, BeginInTheCurrentFolderWithTheInitialName)
{
    AtFileDialog(
        [this](QFileDialog& dialog)
        {
            EXPECT_EQ(dialog.directory().path().toStdString(), Folder.Path());
            EXPECT_EQ(NameBox(dialog).text(), "noname");
            EXPECT_EQ(dialog.focusWidget(), &NameBox(dialog));
            EXPECT_EQ(NameBox(dialog).selectedText(), "noname");
        });
    EXPECT_EQ(Dialogs.AskSave({"*.od7", "noname", kFilter, true}), std::nullopt);
}

TEST_F(FileDialogs, BeginInTheFolderOfAFullInitialName)
{
    const CTestFolder elsewhere;
    AtFileDialog(
        [&elsewhere](QFileDialog& dialog)
        {
            EXPECT_EQ(dialog.directory().path().toStdString(), elsewhere.Path());
            EXPECT_EQ(NameBox(dialog).text(), "ship.od7");
        });
    EXPECT_EQ(Dialogs.AskSave({"*.od7", elsewhere.File("ship.od7"), kFilter, true}), std::nullopt);
    AtFileDialog([this](QFileDialog& dialog)
                 { EXPECT_EQ(dialog.directory().path().toStdString(), Folder.Path()); });
    EXPECT_EQ(Dialogs.AskSave({"*.od7", "/no/such/folder/ship.od7", kFilter, true}), std::nullopt);
}

TEST_F(FileDialogs, LeaveTheCurrentFolder)
{
    const CTestFolder elsewhere;
    const std::string path = elsewhere.Write("ship.od7", "");
    AtFileDialog([&path](QFileDialog& dialog) { PasteName(dialog, path); });
    EXPECT_THAT(Dialogs.AskOpen({"*.od7", path, kFilter, false}), Optional(path));
    EXPECT_EQ(CurrentFolder(), Folder.Path());
}

TEST_F(FileDialogs, SaveAddsTheDefaultExtensionToANameWithoutOne)
{
    AtFileDialog([](QFileDialog& dialog) { TypeName(dialog, "ship"); });
    EXPECT_THAT(Dialogs.AskSave({"*.od7", "noname", kFilter, true}), Optional(Folder.File("ship.od7")));
    AtFileDialog([](QFileDialog& dialog) { TypeName(dialog, "ship.txt"); });
    EXPECT_THAT(Dialogs.AskSave({"*.od7", "noname", kFilter, true}), Optional(Folder.File("ship.txt")));
}

TEST_F(FileDialogs, SaveAsksBeforeOverwritingOnlyWhereWanted)
{
    const std::string path = Folder.Write("ship.od7", "");
    int questions = 0;
    const auto save = [&questions](QFileDialog& dialog, QMessageBox::StandardButton answer)
    {
        QTimer::singleShot(0, qApp,
                           [&questions, answer]
                           {
                               if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                               {
                                   ++questions;
                                   QTest::mouseClick(box->button(answer), Qt::LeftButton);
                               }
                           });
        TypeName(dialog, "ship.od7");
    };
    AtFileDialog([&save](QFileDialog& dialog) { save(dialog, QMessageBox::Yes); });
    EXPECT_THAT(Dialogs.AskSave({"*.od7", "", kFilter, true}), Optional(path));
    EXPECT_EQ(questions, 1);
    AtFileDialog([&save](QFileDialog& dialog) { save(dialog, QMessageBox::No); });
    EXPECT_EQ(Dialogs.AskSave({"*.od7", "", kFilter, true}), std::nullopt);
    EXPECT_EQ(questions, 2);
    AtFileDialog([&save](QFileDialog& dialog) { save(dialog, QMessageBox::No); });
    EXPECT_THAT(Dialogs.AskSave({"*.od7", "", kFilter, false}), Optional(path));
    EXPECT_EQ(questions, 2);
}

TEST_F(FileDialogs, OfferTheFilters)
{
    AtFileDialog(
        [](QFileDialog& dialog)
        {
            EXPECT_THAT(dialog.nameFilters(), ElementsAre("Ondara Files (*.od7 *.od6)", "All Files (*)"));
            EXPECT_EQ(dialog.selectedNameFilter(), "Ondara Files (*.od7 *.od6)");
        });
    EXPECT_EQ(Dialogs.AskOpen({"*.od7", "", kFilter, false}), std::nullopt);
}

TEST_F(FileDialogs, AreQtsOwnWhereNativeOnesAreSwitchedOff)
{
    AtFileDialog([](QFileDialog& dialog)
                 { EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog)); });
    Dialogs.AskOpen({"*.od7", "", kFilter, false});
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
    AtFileDialog([](QFileDialog& dialog)
                 { EXPECT_FALSE(dialog.testOption(QFileDialog::DontUseNativeDialog)); });
    Dialogs.AskOpen({"*.od7", "", kFilter, false});
}

TEST_F(FileDialogs, GiveNamesOutsideAsciiAsUtf8)
{
    const std::string path = Folder.Write("m\xc3\xa4rz.od7", "");
    AtFileDialog([](QFileDialog& dialog) { PasteName(dialog, "m\xc3\xa4rz.od7"); });
    EXPECT_THAT(Dialogs.AskOpen({"*.od7", "", kFilter, false}), Optional(path));
}
