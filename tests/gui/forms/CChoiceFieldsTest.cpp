#include "gui/forms/CChoiceFields.h"

#include "gui/forms/CFormDlg.h"
#include "tests/support/gui/CFormDriver.h"

#include <gmock/gmock.h>

#include <QGroupBox>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// An option group with stored numbers that aren't their places, a field that follows it, and a check box
/// whose set state is stored as 0.
class CChoices : public CFormDlg
{
public:
    explicit CChoices(CFormContext& context, QWidget* parent = nullptr)
        : CFormDlg(context, "CChoices", "Choices", 1, parent)
    {
        COptionField& mass = Options("Output", Project().ADDMASS);
        mass.Button(3, "No").Button(4, "Write to File");
        CNumberField& length = Length({}, Project().SHIPLEN, "%.2f");
        mass.Enables(4, {&length});
        mass.Clicked([this](int value) { Clicks.push_back(value); });
        EndGroup();
        Check("Loads", Project().LOADFLAG).Values(0, 1);
        Check("Skeg", {"IncludeSkeg", Project().IncludeSkeg});
    }

    std::vector<int> Clicks;
};

struct CChoiceProject : CFormProject
{
    CChoiceProject()
    {
        Project.ADDMASS.Set(3);
        Project.LOADFLAG.Set(1);
    }

    CFormDriver Open()
    {
        auto made = std::make_unique<CChoices>(Context);
        Form = made.get();
        return CFormDriver(std::move(made));
    }

    CChoices* Form = nullptr;
};
} // namespace

TEST(OptionField, ButtonsBearTheStoredNumber)
{
    CChoiceProject project;
    CFormDriver form = project.Open();
    EXPECT_EQ(form.Find<QGroupBox>("ADDMASS.group").title(), "Output");
    EXPECT_TRUE(form.IsChecked("ADDMASS.3"));
    form.Click("ADDMASS.4");
    EXPECT_FALSE(form.IsChecked("ADDMASS.3"));
    form.Ok();
    EXPECT_EQ(project.Project.ADDMASS.Value(), 4);
    EXPECT_EQ(project.Project.ADDMASS.changed, 1);
    EXPECT_EQ(project.Session.Modified, 1);
}

TEST(OptionField, TellsEachClickAlsoOnTheButtonThatIsOn)
{
    CChoiceProject project;
    CFormDriver form = project.Open();
    EXPECT_THAT(project.Form->Clicks, IsEmpty());
    form.Click("ADDMASS.3");
    form.Click("ADDMASS.4");
    form.Click("ADDMASS.4");
    EXPECT_THAT(project.Form->Clicks, ElementsAre(3, 4, 4));
}

TEST(OptionField, EnablesWhatFollowsIt)
{
    CChoiceProject project;
    CFormDriver form = project.Open();
    EXPECT_FALSE(form.IsEnabled("SHIPLEN"));
    form.Click("ADDMASS.4");
    EXPECT_TRUE(form.IsEnabled("SHIPLEN"));
    EXPECT_TRUE(form.IsEnabled("SHIPLEN.unit"));
}

TEST(OptionField, ValueWithoutAButtonShowsNoneAndIsKept)
{
    CChoiceProject project;
    project.Project.ADDMASS.Set(2.5F);
    CFormDriver form = project.Open();
    EXPECT_FALSE(form.IsChecked("ADDMASS.3"));
    EXPECT_FALSE(form.IsChecked("ADDMASS.4"));
    form.Ok();
    EXPECT_EQ(project.Project.ADDMASS.Value(), 2.5F);
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(OptionField, FractionIsTruncatedAndStoredAsItsButton)
{
    CChoiceProject project;
    project.Project.ADDMASS.Set(3.7F);
    CFormDriver form = project.Open();
    EXPECT_TRUE(form.IsChecked("ADDMASS.3"));
    form.Ok();
    EXPECT_EQ(project.Project.ADDMASS.Value(), 3);
    EXPECT_EQ(project.Session.Modified, 1);
}

TEST(OptionField, IsOneTabStopAtTheButtonThatIsOn)
{
    CChoiceProject project;
    project.Project.ADDMASS.Set(4);
    CFormDriver form = project.Open();
    EXPECT_EQ(form.Focus(), "ADDMASS.4");
    form.Press(Qt::Key_Up);
    EXPECT_TRUE(form.IsChecked("ADDMASS.3"));
    form.Press(Qt::Key_Tab);
    EXPECT_EQ(form.Focus(), "LOADFLAG");
    form.Press(Qt::Key_Backtab);
    EXPECT_EQ(form.Focus(), "ADDMASS.3");
}

TEST(CheckField, StoresItsOwnNumbers)
{
    CChoiceProject project;
    CFormDriver form = project.Open();
    EXPECT_FALSE(form.IsChecked("LOADFLAG"));
    form.Click("LOADFLAG");
    form.Click("IncludeSkeg");
    form.Ok();
    EXPECT_EQ(project.Project.LOADFLAG.Value(), 0);
    EXPECT_EQ(project.Project.LOADFLAG.changed, 1);
    EXPECT_EQ(project.Project.IncludeSkeg, 1);
    EXPECT_EQ(project.Session.Modified, 1);
}

TEST(CheckField, UntouchedModifiesNothing)
{
    CChoiceProject project;
    CFormDriver form = project.Open();
    form.Click("IncludeSkeg");
    form.Click("IncludeSkeg");
    form.Ok();
    EXPECT_EQ(project.Session.Modified, 0);
}
