#include "gui/vessel/CShipParticularsDlg.h"

#include "tests/support/gui/CFormDriver.h"
#include "tests/support/gui/ControlTable.h"

#include <gmock/gmock.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr const char* kFromSmallest = ": Min. = 0.00001   Max. = 100000.00";

/// A ship that is complete: computed metacentric height, roll by its natural frequency.
struct CShip : CFormProject
{
    CShip()
    {
        Project.SHIPLEN.Set(100);
        Project.KG.Set(5);
        Project.PITCHRG.Set(25);
        Project.ROLLNF.Set(0.5F);
    }

    CFormDriver Open() { return Opened<CShipParticularsDlg>(*this); }
};
} // namespace

TEST(Particulars, AreShownThroughTheirFormats)
{
    CShip ship;
    ship.Project.KG.Set(-2.345F);
    ship.Project.SHIPLEN.unit = kUnitBritish;
    CFormDriver form = ship.Open();
    EXPECT_EQ(form.Form().windowTitle(), "Ship Particulars");
    EXPECT_EQ(form.Text("SHIPLEN"), "100.00");
    EXPECT_EQ(form.Text("KG"), "-2.35"); // -2.345 as a float lies below
    EXPECT_EQ(form.Text("PITCHRG"), "25.000");
    EXPECT_EQ(form.Text("GMUSER"), "");
    EXPECT_EQ(form.Text("ROLLNF"), "0.5000");
    EXPECT_EQ(form.Text("ROLLRG"), "");
    EXPECT_EQ(form.Text("WETROLLRG"), "");
    EXPECT_EQ(form.Caption("SHIPLEN.unit"), "feet");
    EXPECT_EQ(form.Caption("KG.unit"), "meters");
    EXPECT_EQ(form.Caption("ROLLNF.unit"), "rad/sec");
    EXPECT_EQ(form.Caption("SHIPLEN.label"), "Length Between Perpendiculars");
    EXPECT_TRUE(form.IsChecked("GMFLAG.0"));
    EXPECT_TRUE(form.IsChecked("ROLLRGDEF.0"));
}

TEST(Particulars, AreStoredAtOkWithUnitsAndMarks)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("SHIPLEN.unit");
    form.Type("KG", "6.5");
    form.Click("GMFLAG.1");
    form.Type("GMUSER", "1.25");
    form.Click("ROLLRGDEF.2");
    form.Type("WETROLLRG", "4.5");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(ship.Recorder.Messages, IsEmpty());
    EXPECT_EQ(ship.Project.SHIPLEN.Value(), 328.08F);
    EXPECT_EQ(ship.Project.SHIPLEN.unit, kUnitBritish);
    EXPECT_EQ(ship.Project.KG.Value(), 6.5F);
    EXPECT_EQ(ship.Project.KG.unit, kUnitMetric);
    EXPECT_EQ(ship.Project.GMFLAG.Value(), 1);
    EXPECT_EQ(ship.Project.GMUSER.Value(), 1.25F);
    EXPECT_EQ(ship.Project.ROLLRGDEF.Value(), 2);
    EXPECT_EQ(ship.Project.WETROLLRG.Value(), 4.5F);
    EXPECT_EQ(ship.Project.ROLLRG.Value(), -1);
    for (const CParamArray* field : {&ship.Project.SHIPLEN, &ship.Project.KG, &ship.Project.GMFLAG,
                                     &ship.Project.GMUSER, &ship.Project.ROLLRGDEF, &ship.Project.WETROLLRG})
    {
        EXPECT_EQ(field->changed, 1) << field->name;
    }
    for (const CParamArray* field : {&ship.Project.PITCHRG, &ship.Project.ROLLNF, &ship.Project.ROLLRG})
    {
        EXPECT_EQ(field->changed, 0) << field->name;
    }
    EXPECT_EQ(ship.Session.Modified, 1);
    EXPECT_EQ(ship.Project.ParticularsComplete, 1);
}

TEST(Particulars, CancelLeavesTheProject)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Type("SHIPLEN", "200");
    form.Click("KG.unit");
    form.Click("ROLLRGDEF.1");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(ship.Project.SHIPLEN.Value(), 100);
    EXPECT_EQ(ship.Project.KG.unit, kUnitMetric);
    EXPECT_EQ(ship.Project.ROLLRGDEF.Value(), 0);
    EXPECT_EQ(ship.Session.Modified, 0);
    EXPECT_EQ(ship.Project.ParticularsComplete, 0);
}

TEST(Particulars, HeightIsEnabledWithItsCaptionWhileUserSpecified)
{
    CShip ship;
    CFormDriver form = ship.Open();
    EXPECT_FALSE(form.IsEnabled("GMUSER"));
    EXPECT_FALSE(form.IsEnabled("GMUSER.unit"));
    form.Click("GMFLAG.1");
    EXPECT_TRUE(form.IsEnabled("GMUSER"));
    EXPECT_TRUE(form.IsEnabled("GMUSER.unit"));
    form.Click("GMFLAG.0");
    EXPECT_FALSE(form.IsEnabled("GMUSER"));
}

TEST(Particulars, ExactlyOneRollFieldIsEnabledWithItsCaption)
{
    CShip ship;
    CFormDriver form = ship.Open();
    const std::pair<const char*, std::array<bool, 3>> cases[] = {{"ROLLRGDEF.1", {false, true, false}},
                                                                 {"ROLLRGDEF.2", {false, false, true}},
                                                                 {"ROLLRGDEF.0", {true, false, false}}};
    for (const auto& [button, expected] : cases)
    {
        form.Click(button);
        EXPECT_EQ(form.IsEnabled("ROLLNF"), expected[0]) << button;
        EXPECT_TRUE(form.IsEnabled("ROLLNF.unit")) << button;
        EXPECT_EQ(form.IsEnabled("ROLLRG"), expected[1]) << button;
        EXPECT_EQ(form.IsEnabled("ROLLRG.unit"), expected[1]) << button;
        EXPECT_EQ(form.IsEnabled("WETROLLRG"), expected[2]) << button;
        EXPECT_EQ(form.IsEnabled("WETROLLRG.unit"), expected[2]) << button;
    }
}

TEST(Particulars, EachCaptionConvertsItsOwnFieldThroughItsFormat)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("PITCHRG.unit");
    EXPECT_EQ(form.Text("PITCHRG"), "82.021");
    EXPECT_EQ(form.Caption("PITCHRG.unit"), "feet");
    EXPECT_EQ(form.Text("SHIPLEN"), "100.00");
    EXPECT_EQ(form.Caption("SHIPLEN.unit"), "meters");
    form.Click("KG.unit");
    EXPECT_EQ(form.Text("KG"), "16.40");
}

TEST(Particulars, OrderOfTheKeysIsThatOfReading)
{
    CShip ship;
    CFormDriver form = ship.Open();
    std::vector<std::string> stops;
    for (int k = 0; k < 10; ++k)
    {
        stops.push_back(form.Focus());
        form.Press(Qt::Key_Tab);
    }
    EXPECT_THAT(stops, ElementsAre("SHIPLEN", "KG", "PITCHRG", "GMFLAG.0", "ROLLRGDEF.0", "ROLLNF", "OK",
                                   "Cancel", "Help", "SHIPLEN"));
}

// A quarter of the length

TEST(PitchRadius, IsAQuarterOfTheLengthWhenThatLosesTheFocus)
{
    CFormProject project;
    CFormDriver form = Opened<CShipParticularsDlg>(project);
    form.Type("SHIPLEN", "100");
    EXPECT_EQ(form.Text("PITCHRG"), "");
    form.Press(Qt::Key_Tab);
    EXPECT_EQ(form.Text("PITCHRG"), "25.000");
}

TEST(PitchRadius, IsAQuarterOfAnUntouchedLengthToo)
{
    CShip ship;
    ship.Project.PITCHRG.Set(-1);
    CFormDriver form = ship.Open();
    form.Press(Qt::Key_Return);
    EXPECT_EQ(form.Text("PITCHRG"), "25.000");
}

TEST(PitchRadius, IsToldInItsOwnUnit)
{
    CFormProject project;
    CFormDriver form = Opened<CShipParticularsDlg>(project);
    form.Click("PITCHRG.unit");
    form.Type("SHIPLEN", "100");
    form.Press(Qt::Key_Tab);
    EXPECT_EQ(form.Text("PITCHRG"), "82.021");

    CFormDriver other = Opened<CShipParticularsDlg>(project);
    other.Click("SHIPLEN.unit");
    other.Type("SHIPLEN", "100");
    other.Press(Qt::Key_Tab);
    EXPECT_EQ(other.Text("PITCHRG"), "7.620");

    CFormDriver same = Opened<CShipParticularsDlg>(project);
    same.Click("SHIPLEN.unit");
    same.Click("PITCHRG.unit");
    same.Type("SHIPLEN", "100");
    same.Press(Qt::Key_Tab);
    EXPECT_EQ(same.Text("PITCHRG"), "25.000");
}

TEST(PitchRadius, OfOneBlankIsReplacedAndAnyOtherTextIsNot)
{
    for (const auto& [text, expected] :
         {std::pair(" ", "25.000"), std::pair("  ", "  "), std::pair("7", "7")})
    {
        CShip ship;
        CFormDriver form = ship.Open();
        form.Set("PITCHRG", text);
        form.Type("SHIPLEN", "100");
        form.Press(Qt::Key_Tab);
        EXPECT_EQ(form.Text("PITCHRG"), expected);
    }
}

TEST(PitchRadius, IsZeroForAnEmptyLengthWhichOkThenRefuses)
{
    CFormProject project;
    CFormDriver form = Opened<CShipParticularsDlg>(project);
    EXPECT_EQ(form.Focus(), "SHIPLEN");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Text("PITCHRG"), "0.000");
    EXPECT_THAT(project.Recorder.Messages,
                ElementsAre(std::string("Dry pitch radius of gyration out of Range") + kFromSmallest));
    EXPECT_EQ(form.Focus(), "PITCHRG");
    EXPECT_EQ(form.Selected(), "0.000");
}

TEST(PitchRadius, IsThereBeforeOkRuns)
{
    for (const bool byKey : {false, true})
    {
        CShip ship;
        ship.Project.PITCHRG.Set(-1);
        CFormDriver form = ship.Open();
        form.Type("SHIPLEN", "80");
        if (byKey)
        {
            form.Press(Qt::Key_O, Qt::AltModifier);
            EXPECT_TRUE(QTest::qWaitFor([&form] { return !form.IsOpen(); }));
        }
        else
        {
            form.Ok();
        }
        EXPECT_EQ(ship.Project.PITCHRG.Value(), 20);
        EXPECT_EQ(ship.Project.ParticularsComplete, 1);
    }
}

TEST(PitchRadius, IsNotSetWhereTheUserLeavesByCancel)
{
    const std::function<void(CFormDriver&)> ways[] = {[](CFormDriver& form) { form.Cancel(); },
                                                      [](CFormDriver& form) { form.Press(Qt::Key_Escape); },
                                                      [](CFormDriver& form) { form.Form().close(); }};
    for (const auto& leave : ways)
    {
        CFormProject project;
        CFormDriver form = Opened<CShipParticularsDlg>(project);
        form.Type("SHIPLEN", "100");
        leave(form);
        EXPECT_FALSE(form.IsOpen());
        EXPECT_EQ(form.Text("PITCHRG"), "");
    }
}

TEST(PitchRadius, IsSetLaterWhereTheUserPressedCancelAndStayed)
{
    CFormProject project;
    CFormDriver form = Opened<CShipParticularsDlg>(project);
    form.Type("SHIPLEN", "100");
    auto& cancel = form.Find<QWidget>("Cancel");
    QTest::mousePress(&cancel, Qt::LeftButton);
    QTest::mouseRelease(&cancel, Qt::LeftButton, {}, QPoint(-50, -50));
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Text("PITCHRG"), "");
    form.Find<QWidget>("KG").setFocus();
    EXPECT_EQ(form.Text("PITCHRG"), "25.000");
}

TEST(PitchRadius, IsNotSetWhenTheContextMenuOpens)
{
    CFormProject project;
    CFormDriver form = Opened<CShipParticularsDlg>(project);
    form.Type("SHIPLEN", "100");
    auto& length = form.Find<QLineEdit>("SHIPLEN");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), length.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&length, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(form.Text("PITCHRG"), "");
    menu->close();
    EXPECT_EQ(form.Text("PITCHRG"), "");
}

// Checks

TEST(Particulars, ZeroIsRefusedInEachFieldButKg)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"SHIPLEN", "", "Length between perpendiculars out of Range"},
        {"PITCHRG", "", "Dry pitch radius of gyration out of Range"},
        {"GMUSER", "GMFLAG.1", "Metacentric height out of Range"},
        {"ROLLNF", "ROLLRGDEF.0", "Roll Natural Frequency in Water out of Range"},
        {"ROLLRG", "ROLLRGDEF.1", "Roll radius of gyration in air out of Range"},
        {"WETROLLRG", "ROLLRGDEF.2", "Roll radius of gyration in water out of Range"}};
    for (const auto& [field, button, title] : cases)
    {
        CShip ship;
        CFormDriver form = ship.Open();
        if (*button != '\0')
        {
            form.Click(button);
        }
        form.Type(field, "0");
        form.Ok();
        EXPECT_TRUE(form.IsOpen());
        EXPECT_THAT(ship.Recorder.Messages, ElementsAre(std::string(title) + kFromSmallest));
        EXPECT_THAT(ship.Recorder.Icons, ElementsAre(EIcon::Stop));
        EXPECT_EQ(form.Focus(), field);
        EXPECT_EQ(form.Selected(), "0");
    }
    CShip ship;
    CFormDriver form = ship.Open();
    form.Type("KG", "0");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(ship.Project.KG.Value(), 0);
}

TEST(Particulars, KgHasItsOwnLimits)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Type("KG", "-100000.1");
    form.Ok();
    EXPECT_THAT(ship.Recorder.Messages, ElementsAre("Height of center of gravity out of Range: Min. = "
                                                    "-100000.00   Max. = 100000.00"));
    form.Type("KG", "-100000");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
}

TEST(Particulars, FirstFailureEndsTheChecks)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Type("PITCHRG", "0");
    form.Type("KG", "100001");
    form.Ok();
    EXPECT_THAT(
        ship.Recorder.Messages,
        ElementsAre("Height of center of gravity out of Range: Min. = -100000.00   Max. = 100000.00"));
    EXPECT_EQ(form.Focus(), "KG");
}

TEST(Particulars, OnlyWhatTheOptionsSelectIsChecked)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Set("GMUSER", "0");
    form.Set("ROLLRG", "-5");
    form.Set("WETROLLRG", "200000");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(ship.Recorder.Messages, IsEmpty());
    EXPECT_EQ(ship.Project.GMUSER.Value(), 0);
    EXPECT_EQ(ship.Project.ROLLRG.Value(), -5);
    EXPECT_EQ(ship.Project.WETROLLRG.Value(), 200000);
}

TEST(Particulars, LimitsAreInMetres)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("SHIPLEN.unit");
    form.Type("SHIPLEN", "328000");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(ship.Project.SHIPLEN.unit, kUnitBritish);

    CFormDriver again = ship.Open();
    again.Type("SHIPLEN", "328200");
    again.Ok();
    EXPECT_TRUE(again.IsOpen());
    EXPECT_EQ(again.Text("SHIPLEN"), "328200.00");
    EXPECT_EQ(again.Selected(), "328200.00");
    EXPECT_EQ(again.Caption("SHIPLEN.unit"), "feet");
}

TEST(Particulars, FeetComeBackFromTheCheckRounded)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("SHIPLEN.unit");
    form.Type("SHIPLEN", "100");
    form.Click("KG.unit");
    form.Type("KG", "12.35");
    form.Ok();
    EXPECT_EQ(ship.Project.SHIPLEN.Value(), 100);
    EXPECT_EQ(ship.Project.SHIPLEN.unit, kUnitBritish);
    EXPECT_EQ(ship.Project.KG.Value(), 12.34F);

    ship.Session.Modified = 0;
    CFormDriver again = ship.Open();
    again.Ok();
    EXPECT_EQ(ship.Project.KG.Value(), 12.34F);
    EXPECT_EQ(ship.Session.Modified, 0);
}

TEST(Particulars, FeetThatAreNotCheckedAreRoundedAllTheSame)
{
    CShip ship;
    ship.Project.GMUSER.unit = kUnitBritish;
    ship.Project.ROLLRG.unit = kUnitBritish;
    CFormDriver form = ship.Open();
    form.Set("GMUSER", "12.35");
    form.Set("ROLLRG", " ");
    form.Ok();
    EXPECT_EQ(ship.Project.GMUSER.Value(), 12.34F);
    EXPECT_EQ(ship.Project.GMUSER.unit, kUnitBritish);
    EXPECT_EQ(form.Text("ROLLRG"), " ");
    EXPECT_EQ(ship.Project.ROLLRG.Value(), -1);
}

TEST(Particulars, FeetBehindAFailedFieldAreRoundedAllTheSame)
{
    CShip ship;
    ship.Project.PITCHRG.unit = kUnitBritish;
    CFormDriver form = ship.Open();
    form.Type("PITCHRG", "12.3456");
    form.Type("SHIPLEN", "0");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Text("PITCHRG"), "12.346");
    EXPECT_EQ(form.Focus(), "SHIPLEN");
}

TEST(Particulars, FeetThatBecomeMinusOneMetreAreNotGivenFromThenOn)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("KG.unit");
    form.Type("KG", "-3.28");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Text("KG"), "-1.00");
    EXPECT_EQ(form.Caption("KG.unit"), "feet");
    EXPECT_EQ(ship.Project.KG.Value(), -1);
    EXPECT_EQ(ship.Project.ParticularsComplete, 1); // it had a text
}

TEST(Particulars, TextThatIsNoNumberCountsAsItsNumericBeginning)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Set("SHIPLEN", "abc");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    form.Set("SHIPLEN", "120m");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(ship.Project.SHIPLEN.Value(), 120);
}

TEST(Particulars, NanAndInfinityAreOutOfEveryRange)
{
    for (const char* text : {"nan", "inf", "-inf", "1e40"})
    {
        CShip ship;
        CFormDriver form = ship.Open();
        form.Set("KG", text);
        form.Ok();
        EXPECT_TRUE(form.IsOpen()) << text;
        EXPECT_EQ(ship.Recorder.Messages.size(), 1U) << text;
    }
}

// Completeness

TEST(Particulars, AreIncompleteWithoutLengthKgOrPitchRadius)
{
    for (const char* field : {"SHIPLEN", "KG", "PITCHRG"})
    {
        CShip ship;
        ship.Project.ParticularsComplete = 1;
        CFormDriver form = ship.Open();
        form.Find<QWidget>("ROLLNF").setFocus(); // so that no pitch radius is proposed
        form.Set(field, "");
        form.Ok();
        EXPECT_FALSE(form.IsOpen()) << field;
        EXPECT_EQ(ship.Project.ParticularsComplete, 0) << field;
    }
}

TEST(Particulars, AreIncompleteWithoutWhatTheOptionsSelect)
{
    for (const char* button : {"GMFLAG.1", "ROLLRGDEF.1", "ROLLRGDEF.2"})
    {
        CShip ship;
        CFormDriver form = ship.Open();
        form.Click(button);
        form.Ok();
        EXPECT_EQ(ship.Project.ParticularsComplete, 0) << button;
    }
}

TEST(Particulars, OneBlankCountsAsFilledButIsStoredAsNotGiven)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("ROLLRGDEF.1");
    form.Set("ROLLRG", " ");
    form.Set("KG", " ");
    form.Ok();
    EXPECT_EQ(ship.Project.ParticularsComplete, 1);
    EXPECT_EQ(ship.Project.ROLLRG.Value(), -1);
    EXPECT_EQ(ship.Project.KG.Value(), -1);
}

TEST(Particulars, RollValuesOfBothMethodsAreKept)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("ROLLRGDEF.1");
    form.Type("ROLLRG", "4");
    form.Ok();
    EXPECT_EQ(ship.Project.ROLLNF.Value(), 0.5F);
    EXPECT_EQ(ship.Project.ROLLRG.Value(), 4);
    EXPECT_EQ(ship.Project.ParticularsComplete, 1);
}

TEST(Particulars, HelpIsTopic220)
{
    CShip ship;
    CFormDriver form = ship.Open();
    form.Click("Help");
    EXPECT_THAT(ship.HelpTopics, ElementsAre(220));
    EXPECT_TRUE(form.IsOpen());
}

TEST(Particulars, OptionWithoutAButtonShowsNoneAndStaysUntilOneIsClicked)
{
    CShip ship;
    ship.Project.ROLLRGDEF.Set(7);
    CFormDriver form = ship.Open();
    for (const char* button : {"ROLLRGDEF.0", "ROLLRGDEF.1", "ROLLRGDEF.2"})
    {
        EXPECT_FALSE(form.IsChecked(button));
    }
    EXPECT_TRUE(form.IsEnabled("ROLLNF"));
    EXPECT_FALSE(form.IsEnabled("ROLLRG"));
    form.Ok();
    EXPECT_EQ(ship.Project.ROLLRGDEF.Value(), 7);
    EXPECT_EQ(ship.Session.Modified, 0);

    CFormDriver again = ship.Open();
    again.Click("ROLLRGDEF.0");
    again.Ok();
    EXPECT_EQ(ship.Project.ROLLRGDEF.Value(), 0);
    EXPECT_EQ(ship.Session.Modified, 1);
}

TEST(Particulars, HaveTheirControls)
{
    CShip ship;
    CFormDriver form = ship.Open();
    using enum EControl;
    ExpectControls(form.Form(), WithButtons({{"SHIPLEN", TextBox, "Length Between Perpendiculars"},
                                             {"SHIPLEN.unit", UnitCaption, "meters"},
                                             {"KG", TextBox, "Height of Center of Gravity from Baseline"},
                                             {"KG.unit", UnitCaption, "meters"},
                                             {"PITCHRG", TextBox, "Dry Pitch Radius of Gyration"},
                                             {"PITCHRG.unit", UnitCaption, "meters"},
                                             {"GMFLAG.group", Group, "Metacentric Height:"},
                                             {"GMFLAG.0", RadioButton, "Computed"},
                                             {"GMFLAG.1", RadioButton, "User Specified"},
                                             {"GMUSER", TextBox, ""},
                                             {"GMUSER.unit", UnitCaption, "meters"},
                                             {"ROLLRGDEF.group", Group, "Roll"},
                                             {"ROLLRGDEF.0", RadioButton, "Roll Natural Frequency in Water"},
                                             {"ROLLRGDEF.1", RadioButton, "Roll Radius of Gyration in Air"},
                                             {"ROLLRGDEF.2", RadioButton, "Roll Radius of Gyration in Water"},
                                             {"ROLLNF", TextBox, ""},
                                             {"ROLLNF.unit", FixedCaption, "rad/sec"},
                                             {"ROLLRG", TextBox, ""},
                                             {"ROLLRG.unit", UnitCaption, "meters"},
                                             {"WETROLLRG", TextBox, ""},
                                             {"WETROLLRG.unit", UnitCaption, "meters"}}));
}
