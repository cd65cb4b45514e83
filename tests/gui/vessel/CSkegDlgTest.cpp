#include "gui/vessel/CSkegDlg.h"

#include "tests/support/gui/CFormDriver.h"
#include "tests/support/gui/ControlTable.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A hull of eleven stations.
struct CHull : CFormProject
{
    CHull() { Project.NST.Set(11); }

    CFormDriver Open() { return Opened<CSkegDlg>(*this); }
};

/// One with a skeg, included.
struct CHullWithSkeg : CHull
{
    CHullWithSkeg()
    {
        Project.IncludeSkeg = 1;
        Project.XSTAFTSKEG.Set(9);
        Project.BSKEG.Set(0.5F);
        Project.ELSKEG.Set(12);
    }
};
} // namespace

TEST(Skeg, IsStoredAsShown)
{
    CHull hull;
    CFormDriver form = hull.Open();
    form.Click("IncludeSkeg");
    form.Type("XSTAFTSKEG", "9.5");
    form.Type("BSKEG", "0.4");
    form.Type("ELSKEG", "12");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Project.XSTAFTSKEG.Value(), 9.5F);
    EXPECT_EQ(hull.Project.BSKEG.Value(), 0.4F);
    EXPECT_EQ(hull.Project.ELSKEG.Value(), 12);
    EXPECT_EQ(hull.Project.IncludeSkeg, 1);
    EXPECT_EQ(hull.Project.AppendedHull, 1);
    EXPECT_EQ(hull.Project.SkegComplete, 1);
    EXPECT_EQ(hull.Session.Modified, 1);
    EXPECT_EQ(hull.Project.ELSKEG.changed, 1);
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(Skeg, StationIsCheckedAgainstTheLastStation)
{
    CHull hull;
    CFormDriver form = hull.Open();
    form.Click("IncludeSkeg");
    form.Type("XSTAFTSKEG", "10.5");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Station number out of Range: Min. = 0.00   Max. = 10.00"));
    EXPECT_EQ(form.Focus(), "XSTAFTSKEG");
    EXPECT_EQ(form.Selected(), "10.5");
    form.Type("XSTAFTSKEG", "10");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
}

TEST(Skeg, IsShownThroughItsFormats)
{
    CHullWithSkeg hull;
    hull.Project.BSKEG.unit = kUnitBritish;
    CFormDriver form = hull.Open();
    EXPECT_EQ(form.Form().windowTitle(), "Skeg Geometry");
    EXPECT_TRUE(form.IsChecked("IncludeSkeg"));
    EXPECT_EQ(form.Text("XSTAFTSKEG"), "9.00");
    EXPECT_EQ(form.Text("BSKEG"), "0.500");
    EXPECT_EQ(form.Text("ELSKEG"), "12.000");
    EXPECT_EQ(form.Caption("BSKEG.unit"), "feet");
    EXPECT_EQ(form.Caption("ELSKEG.unit"), "meters");
    EXPECT_EQ(form.Caption("XSTAFTSKEG.label"), "Station number of aftmost point where skeg meets hull");
}

TEST(Skeg, OkWithoutAChangeModifiesNothing)
{
    CHullWithSkeg hull;
    CFormDriver form = hull.Open();
    form.Ok();
    EXPECT_EQ(hull.Session.Modified, 0);
    EXPECT_EQ(hull.Project.BSKEG.changed, 0);
    EXPECT_EQ(hull.Project.SkegComplete, 1);
}

TEST(Skeg, FieldsCaptionsAndLabelsFollowTheCheckBox)
{
    CHullWithSkeg hull;
    CFormDriver form = hull.Open();
    const char* parts[] = {"XSTAFTSKEG", "XSTAFTSKEG.label", "BSKEG",        "BSKEG.label",
                           "BSKEG.unit", "ELSKEG",           "ELSKEG.label", "ELSKEG.unit"};
    for (const bool isIncluded : {true, false, true})
    {
        EXPECT_EQ(form.IsChecked("IncludeSkeg"), isIncluded);
        for (const char* part : parts)
        {
            EXPECT_EQ(form.IsEnabled(part), isIncluded) << part;
        }
        form.Click("IncludeSkeg");
    }
}

TEST(Skeg, ClearingTheBoxKeepsTheNumbersAndTheAppendedHull)
{
    CHullWithSkeg hull;
    hull.Project.AppendedHull = 1;
    CFormDriver form = hull.Open();
    form.Type("BSKEG", "0.75");
    form.Click("IncludeSkeg");
    form.Ok();
    EXPECT_EQ(hull.Project.IncludeSkeg, 0);
    EXPECT_EQ(hull.Project.AppendedHull, 1);
    EXPECT_EQ(hull.Project.XSTAFTSKEG.Value(), 9);
    EXPECT_EQ(hull.Project.BSKEG.Value(), 0.75F);
    EXPECT_EQ(hull.Session.Modified, 1);
}

TEST(Skeg, ChangeOfTheBoxAloneModifiesTheProject)
{
    CHullWithSkeg hull;
    CFormDriver form = hull.Open();
    form.Click("IncludeSkeg");
    form.Ok();
    EXPECT_EQ(hull.Session.Modified, 1);
    EXPECT_EQ(hull.Project.BSKEG.changed, 0);
    EXPECT_EQ(hull.Project.AppendedHull, 0);
}

TEST(Skeg, OfABareHullIsCompleteWithoutNumbers)
{
    CHull hull;
    CFormDriver form = hull.Open();
    form.Ok();
    EXPECT_EQ(hull.Project.SkegComplete, 1);
}

TEST(Skeg, IsIncompleteWithAnEmptyOrBlankNumber)
{
    for (const char* field : {"XSTAFTSKEG", "BSKEG", "ELSKEG"})
    {
        for (const char* text : {"", " "})
        {
            CHullWithSkeg hull;
            hull.Project.SkegComplete = 1;
            CFormDriver form = hull.Open();
            form.Set(field, text);
            form.Ok();
            EXPECT_FALSE(form.IsOpen());
            EXPECT_EQ(hull.Project.SkegComplete, 0) << field;
        }
    }
}

TEST(Skeg, NumbersAreCheckedInTheOrderOfTheFormAlsoWithTheBoxClear)
{
    const std::pair<const char*, const char*> cases[] = {
        {"XSTAFTSKEG", "Station number out of Range: Min. = 0.00   Max. = 10.00"},
        {"BSKEG", "Skeg breadth out of Range: Min. = 0.00   Max. = 10000.00"},
        {"ELSKEG", "Skeg length out of Range: Min. = 0.00   Max. = 100000.00"}};
    CHullWithSkeg hull;
    CFormDriver form = hull.Open();
    for (const auto& [field, message] : cases)
    {
        form.Set(field, "-1");
    }
    for (const auto& [field, message] : cases)
    {
        form.Ok();
        EXPECT_THAT(hull.Recorder.Messages, ElementsAre(message));
        EXPECT_EQ(form.Focus(), field);
        hull.Recorder.Messages.clear();
        form.Set(field, "0");
    }
    form.Set("BSKEG", "20000");
    form.Click("IncludeSkeg");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(cases[1].second));
    EXPECT_NE(form.Focus(), "BSKEG"); // which is disabled
    EXPECT_EQ(hull.Project.BSKEG.Value(), 0.5F);
}

TEST(Skeg, FeetAreCheckedAsMetresAndBehindAFailureLeftAlone)
{
    CHullWithSkeg hull;
    hull.Project.BSKEG.unit = kUnitBritish;
    hull.Project.ELSKEG.unit = kUnitBritish;
    CFormDriver form = hull.Open();
    form.Type("ELSKEG", "12.34567");
    form.Type("BSKEG", "32808");
    form.Type("XSTAFTSKEG", "11");
    form.Ok();
    EXPECT_EQ(form.Text("ELSKEG"), "12.34567");
    form.Type("XSTAFTSKEG", "10");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Project.ELSKEG.Value(), 12.346F);
    EXPECT_EQ(hull.Project.ELSKEG.unit, kUnitBritish);
}

// The station's number, from aft

TEST(SkegFromAft, IsShownAndStoredFromTheAftEnd)
{
    CHullWithSkeg hull;
    hull.Project.StationOrigin = 1;
    CFormDriver form = hull.Open();
    EXPECT_EQ(form.Text("XSTAFTSKEG"), "1.00");
    form.Type("XSTAFTSKEG", "2");
    form.Ok();
    EXPECT_EQ(hull.Project.XSTAFTSKEG.Value(), 8);
    CFormDriver again = hull.Open();
    EXPECT_EQ(again.Text("XSTAFTSKEG"), "2.00");
}

TEST(SkegFromAft, IsEmptyWhereNotGiven)
{
    CHullWithSkeg hull;
    hull.Project.StationOrigin = 1;
    hull.Project.XSTAFTSKEG.Set(-1);
    CFormDriver form = hull.Open();
    EXPECT_EQ(form.Text("XSTAFTSKEG"), "");
    form.Ok();
    EXPECT_EQ(hull.Project.XSTAFTSKEG.Value(), -1);
}

TEST(SkegFromAft, OneStationBeyondTheHullIsShownEmptyAndLost)
{
    CHullWithSkeg hull;
    hull.Project.StationOrigin = 1;
    hull.Project.XSTAFTSKEG.Set(11);
    CFormDriver form = hull.Open();
    EXPECT_EQ(form.Text("XSTAFTSKEG"), "");
    form.Ok();
    EXPECT_EQ(hull.Project.XSTAFTSKEG.Value(), -1);
}

TEST(SkegFromAft, LimitsHoldForTheNumberOnShow)
{
    CHullWithSkeg hull;
    hull.Project.StationOrigin = 1;
    CFormDriver form = hull.Open();
    form.Type("XSTAFTSKEG", "10.5");
    form.Ok();
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Station number out of Range: Min. = 0.00   Max. = 10.00"));
    form.Type("XSTAFTSKEG", "10");
    form.Ok();
    EXPECT_EQ(hull.Project.XSTAFTSKEG.Value(), 0);
}

TEST(Skeg, HelpIsTopic310)
{
    CHull hull;
    CFormDriver form = hull.Open();
    form.Click("Help");
    EXPECT_THAT(hull.HelpTopics, ElementsAre(310));
}

TEST(Skeg, HasItsControls)
{
    CHull hull;
    CFormDriver form = hull.Open();
    EXPECT_EQ(form.Form().windowTitle(), "Skeg Geometry");
    using enum EControl;
    ExpectControls(
        form.Form(),
        WithButtons({{"IncludeSkeg", CheckBox, "Include Skeg Information in Calculations"},
                     {"XSTAFTSKEG", TextBox, "Station number of aftmost point where skeg meets hull"},
                     {"BSKEG", TextBox, "Skeg Breadth"},
                     {"BSKEG.unit", UnitCaption, "meters"},
                     {"ELSKEG", TextBox, "Skeg Length"},
                     {"ELSKEG.unit", UnitCaption, "meters"}}));
}
