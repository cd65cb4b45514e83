#include "gui/forms/CFormDlg.h"

#include "tests/support/gui/AtDialog.h"
#include "tests/support/gui/CFormDriver.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTableWidget>
#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A form with one control of each kind, and what happened in it.
class CSample : public CFormDlg
{
public:
    explicit CSample(CFormContext& context, QWidget* parent = nullptr)
        : CFormDlg(context, "CSample", "Sample", 42, parent)
    {
        CNumberField& length = Length("Length", Project().SHIPLEN, "%.2f").RangeTitle("Length out of Range");
        WhenFocusLost(length,
                      [this]
                      {
                          AtFocusLost();
                          Events.emplace_back("focus lost");
                      });
        Number("Frequency", Project().ROLLNF, "%.4f")
            .FixedUnit("rad/sec")
            .RangeTitle("Frequency out of Range", kFiveDecimals)
            .Required();
        AddRow(MakeButton("Clear", "C&lear", [this] { Events.emplace_back("clear"); }));
        Table = new QTableWidget(2, 1, this);
        AddRow(Table);
        CompletenessFlag(Project().ParticularsComplete);
    }

    std::vector<std::string> Events;
    QTableWidget* Table;
    bool StaysAtCancel = false;
    std::function<void()> AtFocusLost = [] {};

protected:
    void StoreFields() override
    {
        Events.emplace_back("store");
        CFormDlg::StoreFields();
    }
    bool OnCancel() override
    {
        Events.emplace_back("cancel");
        return !StaysAtCancel;
    }
};

/// A project that the form takes as it is.
struct CSampleProject : CFormProject
{
    CSampleProject()
    {
        Project.SHIPLEN.Set(100);
        Project.ROLLNF.Set(0.5F);
    }

    CFormDriver Open()
    {
        auto made = std::make_unique<CSample>(Context);
        Form = made.get();
        return CFormDriver(std::move(made));
    }

    CSample* Form = nullptr;
};

/// Presses Enter on the control of a name.
void EnterOn(CFormDriver& form, const char* name)
{
    form.Find<QWidget>(name).setFocus();
    form.Press(Qt::Key_Return);
}
} // namespace

TEST(Form, HasItsNameTitleAndButtonsOfWhichNoneIsTheDefault)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    EXPECT_EQ(form.Form().objectName(), "CSample");
    EXPECT_EQ(form.Form().windowTitle(), "Sample");
    const std::pair<const char*, const char*> buttons[] = {
        {"OK", "&OK"}, {"Cancel", "&Cancel"}, {"Help", "&Help"}, {"Clear", "C&lear"}};
    for (const auto& [name, caption] : buttons)
    {
        EXPECT_EQ(form.Caption(name), caption);
        EXPECT_FALSE(form.Find<QPushButton>(name).isDefault());
        EXPECT_FALSE(form.Find<QPushButton>(name).autoDefault());
    }
}

TEST(Form, BeginsAtItsFirstControlWithTheTextSelected)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    EXPECT_EQ(form.Focus(), "SHIPLEN");
    EXPECT_EQ(form.Selected(), "100.00");
}

TEST(Form, BeginsAtTheFirstControlThatIsEnabled)
{
    CSampleProject project;
    auto made = std::make_unique<CSample>(project.Context);
    made->findChild<QWidget*>("SHIPLEN")->setEnabled(false);
    CFormDriver form(std::move(made));
    EXPECT_EQ(form.Focus(), "ROLLNF");
    EXPECT_EQ(form.Selected(), "0.5000");
}

// Enter

TEST(Enter, MovesOnAndSelectsTheWholeText)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    form.Press(Qt::Key_Return);
    EXPECT_EQ(form.Focus(), "ROLLNF");
    EXPECT_EQ(form.Selected(), "0.5000");
    form.Find<QWidget>("SHIPLEN").setFocus();
    form.Press(Qt::Key_Enter);
    EXPECT_EQ(form.Focus(), "ROLLNF");
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(project.Form->Events, ElementsAre("focus lost", "focus lost"));
}

TEST(Enter, PressesNoOtherButtonButSpaceDoes)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    EnterOn(form, "Clear");
    EXPECT_NE(form.Focus(), "Clear");
    EXPECT_THAT(project.Form->Events, ElementsAre("focus lost"));
    form.Find<QWidget>("Clear").setFocus();
    form.Press(Qt::Key_Space);
    EXPECT_THAT(project.Form->Events, ElementsAre("focus lost", "clear"));
}

TEST(Enter, RunsOkOnOk)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    EnterOn(form, "OK");
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Form().result(), QDialog::Accepted);
}

TEST(Enter, CancelsOnCancel)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    EnterOn(form, "Cancel");
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Form().result(), QDialog::Rejected);
}

TEST(Enter, DoesNothingOnHelp)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    EnterOn(form, "Help");
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Focus(), "Help");
    EXPECT_THAT(project.HelpTopics, IsEmpty());
}

TEST(Enter, HeldDownActsOnce)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(form.Form().focusWidget(), &repeated);
    EXPECT_EQ(form.Focus(), "SHIPLEN");
}

TEST(Enter, InAGridIsTheGrids)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    QTableWidget& table = *project.Form->Table;
    table.setFocus();
    table.setCurrentCell(0, 0);
    QTest::keyClick(&table, Qt::Key_F2);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "7");
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    ASSERT_NE(table.item(0, 0), nullptr);
    EXPECT_EQ(table.item(0, 0)->text(), "7");
    EXPECT_TRUE(form.IsOpen());
}

TEST(Enter, InAFormOverAnotherActsInThatOneAlone)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    CSample inner(project.Context, &form.Form());
    inner.open();
    QApplication::setActiveWindow(&inner);
    inner.findChild<QWidget*>("SHIPLEN")->setFocus();
    QTest::keyClick(inner.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(inner.focusWidget()->objectName(), "ROLLNF");
    EXPECT_EQ(form.Focus(), "SHIPLEN");
    inner.findChild<QWidget*>("OK")->setFocus();
    QTest::keyClick(inner.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(inner.isVisible());
    EXPECT_TRUE(form.IsOpen());
}

TEST(Enter, InAMessageOverTheFormAnswersTheMessage)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    form.Find<QWidget>("OK").setFocus();
    AtDialog<QMessageBox>("Question", [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    QMessageBox box(&form.Form());
    box.setObjectName("Question");
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.exec(), QMessageBox::Yes);
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(project.Form->Events, testing::Not(testing::Contains("store")));
}

TEST(Enter, AfterAFormIsGoneIsNobodys)
{
    CSampleProject project;
    {
        const CFormDriver form = project.Open();
    }
    QLineEdit edit;
    edit.show();
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

// The end of a form

TEST(Form, ThatGoesAwayWhileOpenRunsNoRule)
{
    CSampleProject project;
    int lost = 0;
    {
        auto made = std::make_unique<CSample>(project.Context);
        made->AtFocusLost = [&lost] { ++lost; };
        CFormDriver form(std::move(made));
        form.Type("SHIPLEN", "50");
        EXPECT_EQ(QApplication::focusWidget(), &form.Find<QWidget>("SHIPLEN"));
    }
    EXPECT_EQ(lost, 0);
}

// Cancel

TEST(Cancel, IsMeantByButtonEscapeMnemonicAndTheWindowsOwnButton)
{
    const std::function<void(CFormDriver&)> ways[] = {
        [](CFormDriver& form) { form.Cancel(); }, [](CFormDriver& form) { form.Press(Qt::Key_Escape); },
        [](CFormDriver& form)
        {
            form.Press(Qt::Key_C, Qt::AltModifier);
            EXPECT_TRUE(QTest::qWaitFor([&form] { return !form.IsOpen(); }));
        },
        [](CFormDriver& form) { form.Form().close(); }};
    for (const auto& cancel : ways)
    {
        CSampleProject project;
        CFormDriver form = project.Open();
        form.Type("SHIPLEN", "50");
        cancel(form);
        EXPECT_FALSE(form.IsOpen());
        EXPECT_EQ(project.Project.SHIPLEN.Value(), 100);
        EXPECT_EQ(project.Session.Modified, 0);
        EXPECT_THAT(project.Form->Events, ElementsAre("cancel"));
    }
}

TEST(Cancel, ThatTheFormRefusesLeavesItOpenWithItsRules)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    project.Form->StaysAtCancel = true;
    form.Press(Qt::Key_Escape);
    EXPECT_TRUE(form.IsOpen());
    form.Form().close();
    EXPECT_TRUE(form.IsOpen());
    form.Press(Qt::Key_Tab);
    EXPECT_THAT(project.Form->Events, ElementsAre("cancel", "cancel", "focus lost"));
}

TEST(Help, OpensTheTopicAndLeavesTheFormOpen)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    form.Click("Help");
    EXPECT_THAT(project.HelpTopics, ElementsAre(42));
    EXPECT_TRUE(form.IsOpen());
}

TEST(Help, IsOnTheKeyF1Too)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    form.Press(Qt::Key_F1);
    EXPECT_THAT(project.HelpTopics, ElementsAre(42));
    EXPECT_EQ(form.Focus(), "SHIPLEN");
}

// OK

TEST(Ok, ByItsMnemonicLetsTheFieldInHandLoseTheFocusFirst)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    form.Type("SHIPLEN", "50");
    form.Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&form] { return !form.IsOpen(); }));
    EXPECT_THAT(project.Form->Events, ElementsAre("focus lost", "store"));
    EXPECT_EQ(project.Project.SHIPLEN.Value(), 50);
}

TEST(Ok, WithAFailedCheckStoresNothing)
{
    CSampleProject project;
    CFormDriver form = project.Open();
    form.Type("SHIPLEN", "50");
    form.Type("ROLLNF", "0");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(project.Recorder.Messages,
                ElementsAre("Frequency out of Range: Min. = 0.00001   Max. = 100000.00"));
    EXPECT_EQ(project.Project.SHIPLEN.Value(), 100);
    EXPECT_THAT(project.Form->Events, testing::Not(testing::Contains("store")));
}

TEST(Ok, WithAFailedFieldThatIsHiddenOrDisabledStaysWithoutFocusingIt)
{
    for (const bool isHidden : {true, false})
    {
        CSampleProject project;
        CFormDriver form = project.Open();
        form.Set("ROLLNF", "0");
        auto& field = form.Find<QWidget>("ROLLNF");
        isHidden ? field.hide() : field.setEnabled(false);
        form.Ok();
        EXPECT_TRUE(form.IsOpen());
        EXPECT_EQ(project.Recorder.Messages.size(), 1U);
        EXPECT_EQ(form.Focus(), "OK");
        EXPECT_FALSE(form.Find<QLineEdit>("ROLLNF").hasSelectedText());
    }
}

TEST(Ok, WithAMissingValueStoresItAndTellsTheSectionIncomplete)
{
    CSampleProject project;
    project.Project.ParticularsComplete = 1;
    CFormDriver form = project.Open();
    form.Set("ROLLNF", "");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(project.Project.ROLLNF.Value(), -1);
    EXPECT_EQ(project.Project.ParticularsComplete, 0);
    EXPECT_EQ(project.Session.Modified, 1);
}

// A hull that has stations

TEST(HullHasStations, ElseAMessageTellsWhatIsMissing)
{
    CFormProject project;
    for (const float none : {-1.0F, 0.0F, 0.9F})
    {
        project.Recorder.Messages.clear();
        project.Project.NST.Set(none);
        EXPECT_FALSE(HullHasStations(project.Project, project.Recorder));
        EXPECT_THAT(project.Recorder.Messages, ElementsAre("Error: Number of Stations must be entered \n in "
                                                           "Hull Geometry Dialog box"));
    }
    project.Project.NST.Set(1);
    EXPECT_TRUE(HullHasStations(project.Project, project.Recorder));
    EXPECT_EQ(project.Recorder.Messages.size(), 1U);
}

namespace
{
/// More rows than any screen has room for.
class CTall : public CFormDlg
{
public:
    explicit CTall(CFormContext& context) : CFormDlg(context, "CTall", "Tall", 1, nullptr)
    {
        for (int k = 0; k < kMaxStations; ++k)
        {
            for (CParamArray* field : {&Project().BEAM, &Project().DRAFT, &Project().XST})
            {
                Number("Number", {*field, k}, "%.2f").RangeTitle("Number out of Range");
            }
        }
    }
};
} // namespace

TEST(Form, OneLargerThanTheScreenIsScrolledToWhereTheUserIs)
{
    CFormProject project;
    project.Project.XST.Set(20, 1000);
    CFormDriver form = Opened<CTall>(project);
    QDialog& dialog = form.Form();
    EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
    EXPECT_FALSE(form.Find<QWidget>("OK").visibleRegion().isEmpty());
    QWidget& first = form.Find<QWidget>("BEAM.0");
    QWidget& last = form.Find<QWidget>("XST.20");
    EXPECT_EQ(form.Focus(), "BEAM.0");
    EXPECT_TRUE(last.visibleRegion().isEmpty());
    form.Ok();
    EXPECT_EQ(form.Focus(), "XST.20"); // out of range
    EXPECT_FALSE(last.visibleRegion().isEmpty());
    EXPECT_TRUE(first.visibleRegion().isEmpty());
    form.Press(Qt::Key_Return);
    EXPECT_EQ(form.Focus(), "OK");
}
