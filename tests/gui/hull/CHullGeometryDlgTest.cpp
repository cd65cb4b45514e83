#include "gui/hull/CHullGeometryDlg.h"

#include "gui/hull/COffsetEditorDlg.h"
#include "gui/hull/CSectionAreasDlg.h"
#include "tests/gui/hull/CHull.h"
#include "tests/support/gui/AtDialog.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{
/// A hull whose loading is all given.
struct CLoadedHull : CHull
{
    explicit CLoadedHull(int origin = 0) : CHull(11, origin)
    {
        Project.HULLDEF.Set(0);
        Project.TRIMDEF.Set(0);
        Project.DRAFTMID.Set(6);
        Project.TRIMST.Set(0.5F);
        Project.DISPUSER.Set(1000);
        Project.LCGPUSER.Set(40);
    }
};

/// An offset file. Its stations are told apart by the Y of their last points.
constexpr const char* kTwoStationsFromAft = "Metric\n2,AP=0\n0,3\n0,0\n1,0\n1,1\n1,3\n0,0\n2,0\n2,2\n";

void PressIn(QDialog& dialog, const char* name)
{
    dialog.findChild<QPushButton*>(name)->click();
}
} // namespace

TEST(HullGeometry, ShowsWhatTheProjectHolds)
{
    CLoadedHull hull;
    hull.Project.DRAFTMID.unit = kUnitBritish;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    EXPECT_EQ(form.Text("NST"), "11");
    EXPECT_EQ(form.Text("DRAFTMID"), "6.000");
    EXPECT_EQ(form.Caption("DRAFTMID.unit"), "feet");
    EXPECT_EQ(form.Text("TRIMST"), "0.500");
    EXPECT_EQ(form.Text("DISPUSER"), "1000.00");
    EXPECT_EQ(form.Text("LCGPUSER"), "40.000");
    EXPECT_TRUE(form.IsChecked("StationOrigin.0"));
    EXPECT_TRUE(form.IsChecked("HULLDEF.0"));
    EXPECT_TRUE(form.IsChecked("TRIMDEF.0"));
}

TEST(HullGeometry, UnsetFieldsAreEmptyButTheDisplacement)
{
    CFormProject project;
    project.Project.TRIMST.Set(kNotGiven);
    CFormDriver form = Opened<CHullGeometryDlg>(project);
    for (const char* name : {"NST", "DRAFTMID", "TRIMST", "LCGPUSER"})
    {
        EXPECT_EQ(form.Text(name), "") << name;
    }
    EXPECT_EQ(form.Text("DISPUSER"), "-1.00");
}

TEST(HullGeometry, TheLoadingConditionEnablesItsOwnFields)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    const auto enabled = [&form]
    {
        return std::vector{form.IsEnabled("DRAFTMID"),    form.IsEnabled("TRIMST"),
                           form.IsEnabled("TRIMST.unit"), form.IsEnabled("DISPUSER"),
                           form.IsEnabled("LCGPUSER"),    form.IsEnabled("LCGPUSER.unit")};
    };
    EXPECT_THAT(enabled(), ElementsAre(true, true, true, false, false, false));
    form.Click("TRIMDEF.1");
    EXPECT_THAT(enabled(), ElementsAre(false, false, false, true, true, true));
    form.Click("TRIMDEF.0");
    EXPECT_THAT(enabled(), ElementsAre(true, true, true, false, false, false));
}

TEST(HullGeometry, OkStoresAllFieldsAlsoThoseThatAreDisabled)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("NST", "9");
    form.Click("StationOrigin.1");
    form.Click("HULLDEF.1");
    form.Click("TRIMDEF.1");
    form.Type("DISPUSER", "1234.5");
    form.Type("LCGPUSER", "41");
    form.Click("TRIMDEF.0");
    form.Type("DRAFTMID", "5.5");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    CProjectData& project = hull.Project;
    EXPECT_EQ(project.NST.Value(), 9);
    EXPECT_EQ(project.StationOrigin, 1);
    EXPECT_EQ(project.HULLDEF.Value(), 1);
    EXPECT_EQ(project.TRIMDEF.Value(), 0);
    EXPECT_EQ(project.DRAFTMID.Value(), 5.5F);
    EXPECT_EQ(project.DISPUSER.Value(), 1234.5F);
    EXPECT_EQ(project.LCGPUSER.Value(), 41);
    EXPECT_EQ(project.NST.changed, 1);
    EXPECT_EQ(project.TRIMST.changed, 0);
    EXPECT_EQ(hull.Session.Modified, 1);
    EXPECT_EQ(project.HullComplete, 1);
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(HullGeometry, CancelLeavesTheProjectAsItWas)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("NST", "9");
    form.Click("StationOrigin.1");
    form.Click("DRAFTMID.unit");
    form.Cancel();
    EXPECT_EQ(hull.Project.NST.Value(), 11);
    EXPECT_EQ(hull.Project.StationOrigin, 0);
    EXPECT_EQ(hull.Project.DRAFTMID.unit, kUnitMetric);
    EXPECT_EQ(hull.Session.Modified, 0);
}

TEST(HullGeometry, AnEmptyStationCountAsksForOneAndCloses)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("NST", "");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Enter a value: Please enter a value for Number of Stations"));
    EXPECT_EQ(hull.Project.NST.Value(), kNotGiven);
    EXPECT_EQ(hull.Project.HullComplete, 0);
}

TEST(HullGeometry, ABlankStationCountIsNotGivenWithoutAWord)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Set("NST", " ");
    form.Ok();
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    EXPECT_EQ(hull.Project.NST.Value(), kNotGiven);
}

TEST(HullGeometry, StationCountIsReadUpToThePoint)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Set("NST", "3.7");
    form.Ok();
    EXPECT_EQ(hull.Project.NST.Value(), 3);
}

TEST(HullGeometry, StationCountHasARange)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("NST", "22");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Number of stations out of Range: Min. = 0.00   Max. = 21.00"));
    EXPECT_EQ(form.Focus(), "NST");
    EXPECT_EQ(form.Selected(), "22");
    form.Type("NST", "0");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Project.NST.Value(), 0);
    EXPECT_EQ(hull.Project.HullComplete, 1);
}

TEST(HullGeometry, ABlankDraftClosesTheFormIncomplete)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Set("DRAFTMID", " ");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Project.DRAFTMID.Value(), kNotGiven);
    EXPECT_EQ(hull.Project.HullComplete, 0);
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(HullGeometry, OnlyTheFieldsOfTheLoadingConditionAreChecked)
{
    CLoadedHull hull;
    hull.Project.LCGPUSER.Set(kNotGiven);
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("DRAFTMID", "20000");
    form.Ok();
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Draft at midship out of Range: Min. = -10000.00   Max. = 10000.00"));
    form.Click("TRIMDEF.1");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Project.DRAFTMID.Value(), 20000);
    EXPECT_EQ(hull.Project.HullComplete, 0); // no LCG
}

TEST(HullGeometry, AnUnsetDisplacementFailsItsRangeUntilItIsCleared)
{
    CLoadedHull hull;
    hull.Project.DISPUSER.Set(kNotGiven);
    hull.Project.TRIMDEF.Set(1);
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, ElementsAre(StartsWith("Displacement out of Range: Min. = ")));
    EXPECT_EQ(form.Focus(), "DISPUSER");
    form.Type("DISPUSER", "");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Project.HullComplete, 0);
}

TEST(HullGeometry, AnEmptyStationCountIsToldBeforeTheRanges)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("NST", "");
    form.Type("TRIMST", "20000");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Enter a value: Please enter a value for Number of Stations",
                            "Trim by stern out of Range: Min. = -100.00   Max. = 100.00"));
}

TEST(HullGeometry, AClickOnAUnitConvertsAndAlwaysShowsThreeDecimals)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Click("DRAFTMID.unit");
    EXPECT_EQ(form.Text("DRAFTMID"), "19.685");
    EXPECT_EQ(form.Caption("DRAFTMID.unit"), "feet");
    form.Click("TRIMDEF.1");
    form.Click("DISPUSER.unit");
    EXPECT_EQ(form.Text("DISPUSER"), "984.206");
    EXPECT_EQ(form.Caption("DISPUSER.unit"), "LT");
    form.Ok();
    EXPECT_EQ(hull.Project.DRAFTMID.unit, kUnitBritish);
    EXPECT_EQ(hull.Project.DISPUSER.unit, kUnitBritish);
    EXPECT_EQ(hull.Project.TRIMST.unit, kUnitMetric);
}

TEST(HullGeometry, AToggleOnAnEmptyFieldChangesTheUnitAlone)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("DRAFTMID", "");
    form.Click("DRAFTMID.unit");
    EXPECT_EQ(form.Text("DRAFTMID"), "");
    form.Ok();
    EXPECT_EQ(hull.Project.DRAFTMID.unit, kUnitBritish);
    EXPECT_EQ(hull.Project.DRAFTMID.Value(), kNotGiven);
}

TEST(HullGeometry, ADraftFillsTheUnsetDraftsOfPositions)
{
    CLoadedHull hull;
    hull.Project.SlamMidshipDraft[2] = 4;
    hull.Project.SlamMidshipDraft[3] = 6; // the draft before
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("DRAFTMID", "7");
    form.Ok();
    EXPECT_THAT(hull.Project.SlamMidshipDraft, ElementsAre(7, 7, 4, 6, 7, 7, 7, 7, 7, 7));
}

TEST(HullGeometry, AnEmptyDraftLeavesTheDraftsOfPositions)
{
    CLoadedHull hull;
    hull.Project.SlamMidshipDraft[2] = 4;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("DRAFTMID", "");
    form.Ok();
    EXPECT_EQ(hull.Project.SlamMidshipDraft[2], 4);
    EXPECT_EQ(hull.Project.SlamMidshipDraft[0], kNotGiven);
}

TEST(HullGeometry, ShowEditWantsTwoToTwentyOneStations)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    for (const char* count : {"", "0", "1", "22"})
    {
        form.Type("NST", count);
        form.Click("ShowEdit");
    }
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Number of Stations missing: Please enter number of stations",
                            "Number of Stations missing: Please enter number of stations",
                            "Number of Stations out of range: Min. = 2    Max. = 21",
                            "Number of Stations out of range: Min. = 2    Max. = 21"));
}

TEST(HullGeometry, ShowEditHandsOverWhatTheFormShows)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("NST", "7");
    form.Click("StationOrigin.1");
    form.Click("DRAFTMID.unit");
    form.Type("DRAFTMID", "10");
    form.Type("TRIMST", "");
    int opened = 0;
    AtDialog<COffsetEditorDlg>("COffsetEditorDlg",
                               [&](COffsetEditorDlg&)
                               {
                                   ++opened;
                                   EXPECT_EQ(hull.Project.WorkingStationCount, 7);
                                   EXPECT_EQ(hull.Project.StationOrigin, 1);
                                   EXPECT_EQ(hull.Project.WorkingDraft, 10);
                                   EXPECT_EQ(hull.Project.WorkingDraftUnit, kUnitBritish);
                                   EXPECT_EQ(hull.Project.WorkingTrim, kNotGiven);
                               });
    form.Click("ShowEdit");
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(hull.Project.StationOrigin, 0); // until OK
    EXPECT_EQ(hull.Project.NST.Value(), 11);
}

TEST(HullGeometry, ShowEditShowsTheCountThatTheEditorLeaves)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    AtDialog<COffsetEditorDlg>("COffsetEditorDlg",
                               [](COffsetEditorDlg& editor)
                               {
                                   PressIn(editor, "DeleteStation");
                                   PressIn(editor, "OK");
                               });
    form.Click("ShowEdit");
    EXPECT_EQ(form.Text("NST"), "10");
    EXPECT_EQ(hull.Project.WorkingStationCount, 10);
    EXPECT_EQ(hull.Project.NST.Value(), 11); // until OK
    form.Ok();
    EXPECT_EQ(hull.Project.NST.Value(), 10);
}

TEST(HullGeometry, SectionAreasHaveAFormOfTheirOwn)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Click("HULLDEF.1");
    int opened = 0;
    AtDialog<CSectionAreasDlg>("CSectionAreasDlg", [&opened](CSectionAreasDlg&) { ++opened; });
    form.Click("ShowEdit");
    EXPECT_EQ(opened, 1);
}

TEST(HullGeometry, ImportAsksBeforeItOverwrites)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Click("ImportOffsets");
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Import Geometry: Are you sure you want to overwrite existing offsets?"));
    EXPECT_THAT(hull.Recorder.Requests, IsEmpty());
}

TEST(HullGeometry, AfterAnImportTheEditorOpens)
{
    CLoadedHull hull;
    hull.Recorder.Answer = true;
    hull.Recorder.Files.push_back(hull.Folder.Write("hull.csv", kTwoStationsFromAft));
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    int opened = 0;
    AtDialog<COffsetEditorDlg>("COffsetEditorDlg", [&opened](COffsetEditorDlg&) { ++opened; });
    form.Click("ImportOffsets");
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(form.Text("NST"), "2");
    EXPECT_TRUE(form.IsChecked("StationOrigin.1"));
}

TEST(HullGeometry, EnterGoesFromFieldToField)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Find<QWidget>("DRAFTMID").setFocus();
    form.Press(Qt::Key_Return);
    EXPECT_EQ(form.Focus(), "TRIMST");
    EXPECT_EQ(form.Selected(), "0.500");
    form.Press(Qt::Key_Escape);
    EXPECT_FALSE(form.IsOpen());
}

TEST(HullGeometry, HelpOpensItsTopic)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Click("Help");
    EXPECT_THAT(hull.HelpTopics, ElementsAre(200));
}

TEST(HullGeometry, RangesAreMetricAlsoInFeet)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Click("DRAFTMID.unit");
    form.Type("DRAFTMID", "40000"); // 12192 m
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Caption("DRAFTMID.unit"), "feet");
    EXPECT_EQ(form.Text("DRAFTMID"), "40000.000");
    EXPECT_EQ(form.Selected(), "40000.000");
    form.Type("DRAFTMID", "7.777"); // 2.370 m
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Draft at midship out of Range: Min. = -10000.00   Max. = 10000.00"));
    EXPECT_EQ(form.Text("DRAFTMID"), "7.776"); // there and back by three decimals
    EXPECT_EQ(hull.Project.DRAFTMID.Value(), 7.776F);
    EXPECT_EQ(hull.Project.DRAFTMID.unit, kUnitBritish);
}

TEST(HullGeometry, TheDisplacementsRangeIsMetricAlsoInLongTons)
{
    CLoadedHull hull;
    hull.Project.TRIMDEF.Set(1);
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Click("DISPUSER.unit");
    form.Type("DISPUSER", "9900000"); // 10058864 t
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Focus(), "DISPUSER");
    EXPECT_EQ(form.Caption("DISPUSER.unit"), "LT");
    EXPECT_EQ(form.Text("DISPUSER"), "9899999.000"); // there and back in single precision
    form.Type("DISPUSER", "1000.5");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Text("DISPUSER"), "1000.500");
    EXPECT_EQ(hull.Project.DISPUSER.Value(), 1000.5F);
}

TEST(HullGeometry, LimitsOfTheDisplacementAndItsCentreHaveSixDecimals)
{
    CLoadedHull hull;
    hull.Project.TRIMDEF.Set(1);
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("DISPUSER", "0");
    form.Ok();
    form.Type("DISPUSER", "1000");
    form.Type("LCGPUSER", "100001");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Displacement out of Range: Min. = 0.000001   Max. = 10000000.00",
                            "LCG from FP out of Range: Min. = 0.000001   Max. = 100000.00"));
}

TEST(HullGeometry, AFourthDecimalChangesTheFieldAndDoesNotCountAsModified)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("DRAFTMID", "6.0004");
    form.Ok();
    EXPECT_EQ(hull.Project.DRAFTMID.Value(), 6.0004F);
    EXPECT_EQ(hull.Project.DRAFTMID.changed, 1);
    EXPECT_EQ(hull.Session.Modified, 0);
}

TEST(HullGeometry, AThirdDecimalCountsAsModified)
{
    CLoadedHull hull;
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Type("DRAFTMID", "6.001");
    form.Ok();
    EXPECT_EQ(hull.Project.DRAFTMID.changed, 1);
    EXPECT_EQ(hull.Session.Modified, 1);
}

TEST(HullGeometry, AfterAnImportWithSectionalAreasChosenTheirFormOpens)
{
    CLoadedHull hull;
    hull.Recorder.Answer = true;
    hull.Recorder.Files.push_back(hull.Folder.Write("hull.csv", kTwoStationsFromAft));
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    form.Click("HULLDEF.1");
    int rows = 0;
    AtDialog<CSectionAreasDlg>("CSectionAreasDlg", [&rows](CSectionAreasDlg& areas)
                               { rows = areas.findChild<CGrid*>("table")->Cells().RowCount(); });
    form.Click("ImportOffsets");
    EXPECT_EQ(rows, 2);
    EXPECT_EQ(form.Text("NST"), "2");
}

TEST(HullGeometry, AnImportFromAftKeepsTheFilesOrderAndTheEditorShowsItReversed)
{
    CLoadedHull hull;
    hull.Recorder.Answer = true;
    hull.Recorder.Files.push_back(hull.Folder.Write("hull.csv", kTwoStationsFromAft));
    CFormDriver form = Opened<CHullGeometryDlg>(hull);
    std::vector<QString> breadths;
    AtDialog<COffsetEditorDlg>("COffsetEditorDlg",
                               [&breadths](COffsetEditorDlg& editor)
                               {
                                   for (const char* station : {"station.0", "station.1"})
                                   {
                                       PressIn(editor, station);
                                       const auto* table = editor.findChild<CGrid*>("table");
                                       breadths.push_back(table->model()->index(2, 0).data().toString());
                                   }
                               });
    form.Click("ImportOffsets");
    EXPECT_EQ(hull.Y(0, 2), 1); // the file's station 0
    EXPECT_EQ(hull.Y(1, 2), 2);
    EXPECT_THAT(breadths, ElementsAre("2.000", "1.000"));
}

TEST(HullGeometry, AfterTheEditorTheProjectsOwnStationNumbersHoldUntilOk)
{
    for (const char* leave : {"Cancel", "OK"})
    {
        CLoadedHull hull;
        CFormDriver form = Opened<CHullGeometryDlg>(hull);
        form.Click("StationOrigin.1");
        int during = -1;
        AtDialog<COffsetEditorDlg>("COffsetEditorDlg",
                                   [&](COffsetEditorDlg& editor)
                                   {
                                       during = hull.Project.StationOrigin;
                                       PressIn(editor, leave);
                                   });
        form.Click("ShowEdit");
        EXPECT_EQ(during, 1);
        EXPECT_EQ(hull.Project.StationOrigin, 0) << leave;
        EXPECT_TRUE(form.IsChecked("StationOrigin.1"));
        EXPECT_EQ(hull.Y(10, 1), 2.25F) << "stations stay in their places";
        form.Cancel();
        EXPECT_EQ(hull.Project.StationOrigin, 0) << leave;
    }
}
