#include "gui/environment/CUnitsDlg.h"

#include "tests/support/gui/CFormDriver.h"
#include "tests/support/gui/ControlTable.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
/// A metric project with a length, a mass and a length that is held in feet.
struct CMetric : CFormProject
{
    CMetric()
    {
        Project.SHIPLEN.Set(100);
        Project.DISPUSER.Set(1000);
        Project.KG.Set(10);
        Project.KG.unit = kUnitBritish;
    }

    CFormDriver Open() { return Opened<CUnitsDlg>(*this); }
};
} // namespace

TEST(Units, ShowWhatIsStored)
{
    CMetric project;
    project.Project.OUTSYS.Set(0);
    project.Project.WATERDEN.Set(1);
    CFormDriver form = project.Open();
    EXPECT_EQ(form.Form().windowTitle(), "Units / Water Density");
    EXPECT_TRUE(form.IsChecked("INSYS.1"));
    EXPECT_TRUE(form.IsChecked("OUTSYS.0"));
    EXPECT_TRUE(form.IsChecked("WATERDEN.1"));
    EXPECT_EQ(form.Caption("INSYS.0"), "British Units");
    EXPECT_EQ(form.Caption("WATERDEN.0"), "Salt Water");
}

TEST(Units, ClickOnAnInputSystemConvertsAtOnce)
{
    CMetric project;
    CFormDriver form = project.Open();
    form.Click("INSYS.0");
    EXPECT_TRUE(form.IsChecked("INSYS.0"));
    EXPECT_FALSE(form.IsChecked("INSYS.1"));
    EXPECT_EQ(project.Project.SHIPLEN.Value(), 100 * 3.28084F);
    EXPECT_EQ(project.Project.SHIPLEN.unit, kUnitBritish);
    EXPECT_EQ(project.Project.DISPUSER.Value(), 1000 * 0.9842065F);
    EXPECT_EQ(project.Project.KG.Value(), 10);
    EXPECT_EQ(project.Project.GMUSER.Value(), -1);
    EXPECT_EQ(project.Project.INSYS.Value(), 1); // only at OK
}

TEST(Units, ClickOnTheSystemThatIsOnMakesAMixedProjectUniform)
{
    CMetric project;
    CFormDriver form = project.Open();
    form.Click("INSYS.1");
    EXPECT_EQ(project.Project.KG.Value(), 10 * 0.3048F);
    EXPECT_EQ(project.Project.KG.unit, kUnitMetric);
    EXPECT_EQ(project.Project.SHIPLEN.Value(), 100);
}

TEST(Units, KeyboardConvertsToo)
{
    CMetric project;
    CFormDriver form = project.Open();
    EXPECT_EQ(form.Focus(), "INSYS.1");
    form.Press(Qt::Key_Up);
    EXPECT_TRUE(form.IsChecked("INSYS.0"));
    EXPECT_EQ(project.Project.SHIPLEN.unit, kUnitBritish);
    form.Press(Qt::Key_Down);
    EXPECT_EQ(project.Project.SHIPLEN.unit, kUnitMetric);
}

TEST(Units, ThereAndBackIsTheProductOfBothFactors)
{
    CMetric project;
    project.Project.KG.unit = kUnitMetric;
    CFormDriver form = project.Open();
    form.Click("INSYS.0");
    form.Click("INSYS.1");
    EXPECT_EQ(project.Project.KG.Value(), 10 * 3.28084F * 0.3048F);
    EXPECT_NEAR(project.Project.KG.Value(), 10.0, 1e-5);
}

TEST(Units, CancelTakesNoConversionBack)
{
    CMetric project;
    CFormDriver form = project.Open();
    form.Click("INSYS.0");
    form.Click("OUTSYS.0");
    form.Cancel();
    EXPECT_EQ(project.Project.SHIPLEN.unit, kUnitBritish);
    EXPECT_EQ(project.Project.INSYS.Value(), 1);
    EXPECT_EQ(project.Project.OUTSYS.Value(), 1);
    CFormDriver again = project.Open();
    EXPECT_TRUE(again.IsChecked("INSYS.1"));
}

TEST(Units, OkStoresTheChoicesAndMarksWhatChanged)
{
    CMetric project;
    CFormDriver form = project.Open();
    form.Click("INSYS.0");
    form.Click("WATERDEN.1");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(project.Project.INSYS.Value(), 0);
    EXPECT_EQ(project.Project.WATERDEN.Value(), 1);
    EXPECT_EQ(project.Project.INSYS.changed, 1);
    EXPECT_EQ(project.Project.WATERDEN.changed, 1);
    EXPECT_EQ(project.Project.OUTSYS.changed, 0);
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(Units, OutputAndWaterConvertNothing)
{
    CMetric project;
    CFormDriver form = project.Open();
    form.Click("OUTSYS.0");
    form.Click("WATERDEN.1");
    form.Ok();
    EXPECT_EQ(project.Project.SHIPLEN.Value(), 100);
    EXPECT_EQ(project.Project.KG.unit, kUnitBritish);
}

TEST(Units, HelpIsTheirOwnTopic)
{
    CMetric project;
    CFormDriver form = project.Open();
    form.Click("Help");
    EXPECT_THAT(project.HelpTopics, ElementsAre(110));
}

TEST(Units, OneTabStopForEachGroupAndThenTheButtons)
{
    CMetric project;
    CFormDriver form = project.Open();
    form.Click("WATERDEN.1");
    std::vector<std::string> stops;
    for (int k = 0; k < 6; ++k)
    {
        form.Press(Qt::Key_Tab);
        stops.push_back(form.Focus());
    }
    EXPECT_THAT(stops, ElementsAre("OK", "Cancel", "Help", "INSYS.1", "OUTSYS.1", "WATERDEN.1"));
}

TEST(Units, HaveTheirControls)
{
    CMetric project;
    CFormDriver form = project.Open();
    using enum EControl;
    ExpectControls(form.Form(), WithButtons({{"INSYS.group", Group, "Input"},
                                             {"INSYS.0", RadioButton, "British Units"},
                                             {"INSYS.1", RadioButton, "Metric Units"},
                                             {"OUTSYS.group", Group, "Output"},
                                             {"OUTSYS.0", RadioButton, "British Units"},
                                             {"OUTSYS.1", RadioButton, "Metric Units"},
                                             {"WATERDEN.group", Group, "Water Density"},
                                             {"WATERDEN.0", RadioButton, "Salt Water"},
                                             {"WATERDEN.1", RadioButton, "Fresh Water"}}));
}
