#include "gui/hull/CSectionAreasDlg.h"

#include "tests/gui/hull/CHull.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
enum EColumn
{
    kStation,
    kBeam,
    kDraft,
    kCoefficient
};

struct CAreas : CHull
{
    explicit CAreas(int stations = 5, int origin = 0) : CHull(stations, origin)
    {
        for (int station = 0; station < stations; ++station)
        {
            Project.BEAM.Set(station, static_cast<float>(10 + station));
            Project.DRAFT.Set(station, static_cast<float>(5 + station));
            Project.ACOEF.Set(station, 0.5F + static_cast<float>(station) / 16);
        }
    }

    std::vector<float> Beams(int count) const
    {
        return {Project.BEAM.data.begin(), Project.BEAM.data.begin() + count};
    }
};

std::vector<std::string> Column(CFormDriver& form, int column)
{
    std::vector<std::string> texts;
    for (int row = 0; row < Table(form).Cells().RowCount(); ++row)
    {
        texts.push_back(CellText(form, row, column));
    }
    return texts;
}
} // namespace

TEST(SectionAreas, ShowsOneRowForEachStationOfTheWorkingCount)
{
    CAreas areas(4);
    areas.Project.DRAFT.Set(1, kNotGiven);
    areas.Project.ACOEF.Set(2, kNotGiven);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EXPECT_THAT(Column(form, kStation), ElementsAre("0", "1", "2", "3"));
    EXPECT_THAT(Column(form, kBeam), ElementsAre("10.000", "11.000", "12.000", "13.000"));
    EXPECT_THAT(Column(form, kDraft), ElementsAre("5.000", "", "7.000", "8.000"));
    EXPECT_THAT(Column(form, kCoefficient), ElementsAre("0.5000", "0.5625", "", "0.6875"));
}

TEST(SectionAreas, WithStationZeroAftTheNumbersRunBackwardsAndTheRowsDoNot)
{
    CAreas areas(4, 1);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EXPECT_THAT(Column(form, kStation), ElementsAre("3", "2", "1", "0"));
    EXPECT_THAT(Column(form, kBeam), ElementsAre("10.000", "11.000", "12.000", "13.000"));
    EditCell(form, 0, kBeam, "9");
    form.Ok();
    EXPECT_THAT(areas.Beams(4), ElementsAre(9, 11, 12, 13));
}

TEST(SectionAreas, ATypedValueIsStoredAtOk)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    TypeInCell(form, 1, kCoefficient, "0.75");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(areas.Project.ACOEF.Value(1), 0.75F);
    EXPECT_EQ(areas.Project.ACOEF.changed, 1);
    EXPECT_EQ(areas.Project.BEAM.changed, 0);
    EXPECT_EQ(areas.Session.Modified, 1);
    EXPECT_EQ(areas.Project.SectionAreasComplete, 1);
    EXPECT_THAT(areas.Recorder.Messages, IsEmpty());
}

TEST(SectionAreas, CancelChangesNothing)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EditCell(form, 0, kBeam, "99");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(areas.Beams(2), ElementsAre(10, 11));
    EXPECT_EQ(areas.Session.Modified, 0);
}

TEST(SectionAreas, AnEmptyCellStaysUnsetAndTheSectionIncomplete)
{
    CAreas areas;
    areas.Project.SectionAreasComplete = 1;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EditCell(form, 2, kDraft, "");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(areas.Project.DRAFT.Value(2), kNotGiven);
    EXPECT_EQ(areas.Project.SectionAreasComplete, 0);
    EXPECT_THAT(areas.Recorder.Messages, IsEmpty());
}

TEST(SectionAreas, AClickOnAUnitConvertsItsColumnAlone)
{
    CAreas areas;
    areas.Project.BEAM.Set(1, kNotGiven);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    form.Click("BEAM.unit");
    EXPECT_EQ(form.Caption("BEAM.unit"), "feet");
    EXPECT_EQ(CellText(form, 0, kBeam), "32.808");
    EXPECT_EQ(CellText(form, 1, kBeam), "");
    EXPECT_EQ(CellText(form, 0, kDraft), "5.000");
    form.Ok();
    EXPECT_EQ(areas.Project.BEAM.unit, kUnitBritish);
    EXPECT_EQ(areas.Project.DRAFT.unit, kUnitMetric);
    EXPECT_EQ(areas.Project.BEAM.Value(0), 32.808F);
}

TEST(SectionAreas, TheFirstCellOutOfRangeIsMarked)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EditCell(form, 3, kBeam, "-2");
    EditCell(form, 4, kBeam, "20000");
    EditCell(form, 1, kCoefficient, "3");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(areas.Recorder.Messages, ElementsAre("Beam out of Range: Min. = 0.00   Max. = 10000.00"));
    EXPECT_EQ(Table(form).FocusRow(), 3);
    EXPECT_EQ(Table(form).FocusColumn(), kBeam);
    EXPECT_THAT(areas.Beams(5), ElementsAre(10, 11, 12, 13, 14));
}

TEST(SectionAreas, EachColumnHasItsOwnRange)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EditCell(form, 0, kDraft, "10000.5");
    form.Ok();
    EditCell(form, 0, kDraft, "1");
    EditCell(form, 0, kCoefficient, "2.0101");
    form.Ok();
    EditCell(form, 0, kCoefficient, "2.01");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(areas.Recorder.Messages, ElementsAre("Draft out of Range: Min. = 0.00   Max. = 10000.00",
                                                     "Area Coefficient out of Range: Min. = 0.00   Max. = "
                                                     "2.01"));
}

TEST(SectionAreas, RangesAreMetricAlsoInFeet)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    form.Click("BEAM.unit");
    EditCell(form, 0, kBeam, "30000"); // 9144 m
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(areas.Project.BEAM.Value(0), 30000);
}

TEST(SectionAreas, MinusOneInACellIsOutOfRange)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EditCell(form, 0, kBeam, "-1");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());
    EXPECT_THAT(areas.Recorder.Messages, ElementsAre("Beam out of Range: Min. = 0.00   Max. = 10000.00"));
}

TEST(SectionAreas, StationsComeAndGoOnceOneIsChosen)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EXPECT_FALSE(form.IsEnabled("InsertStation"));
    EXPECT_FALSE(form.IsEnabled("DeleteStation"));
    QTest::mouseClick(Table(form).viewport(), Qt::LeftButton, {},
                      Table(form).visualRect(Table(form).model()->index(0, kBeam)).center());
    EXPECT_TRUE(form.IsEnabled("InsertStation"));
    EXPECT_TRUE(form.IsEnabled("DeleteStation"));
}

TEST(SectionAreas, AnInsertedStationMovesThoseBelow)
{
    CAreas areas(4);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    Table(form).SetFocusCell(1, kBeam);
    form.Click("InsertStation");
    EXPECT_THAT(Column(form, kStation), ElementsAre("0", "1", "2", "3", "4"));
    EXPECT_THAT(Column(form, kBeam), ElementsAre("10.000", "", "11.000", "12.000", "13.000"));
    form.Ok();
    EXPECT_THAT(areas.Beams(5), ElementsAre(10, kNotGiven, 11, 12, 13));
    EXPECT_EQ(areas.Project.NST.Value(), 5);
    EXPECT_EQ(areas.Project.NST.changed, 1);
    EXPECT_EQ(areas.Project.WorkingStationCount, 5);
}

TEST(SectionAreas, ADeletedStationIsGone)
{
    CAreas areas(4);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    Table(form).SetFocusCell(3, kBeam);
    form.Click("DeleteStation");
    EXPECT_THAT(Column(form, kBeam), ElementsAre("10.000", "11.000", "12.000"));
    Table(form).SetFocusCell(0, kBeam);
    form.Click("DeleteStation");
    form.Ok();
    EXPECT_THAT(areas.Beams(4), ElementsAre(11, 12, kNotGiven, kNotGiven));
    EXPECT_EQ(areas.Project.NST.Value(), 2);
}

TEST(SectionAreas, ThereAreTwoToTwentyOneStations)
{
    CAreas areas(20);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    Table(form).SetFocusCell(1, kBeam);
    form.Click("InsertStation");
    EXPECT_FALSE(form.IsEnabled("InsertStation"));
    EXPECT_EQ(Table(form).Cells().RowCount(), 21);
    for (int deleted = 0; deleted < 19; ++deleted)
    {
        EXPECT_TRUE(form.IsEnabled("DeleteStation"));
        Table(form).SetFocusCell(0, kBeam);
        form.Click("DeleteStation");
    }
    EXPECT_FALSE(form.IsEnabled("DeleteStation"));
    EXPECT_EQ(Table(form).Cells().RowCount(), 2);
}

TEST(SectionAreas, ChangedStationsAskForAReviewOfStationNumbers)
{
    CAreas areas;
    areas.Project.IncludeSkeg = 1;
    areas.Project.IncludeRudder = 1;
    areas.Project.LOADFLAG.Set(1);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    Table(form).SetFocusCell(1, kBeam);
    form.Click("DeleteStation");
    form.Ok();
    EXPECT_THAT(areas.Recorder.Messages,
                ElementsAre("Warning: Stations were either added or deleted.\nPlease review the station "
                            "numbers in:  \n\nSkeg Geometry \nRudder \n"));
}

TEST(SectionAreas, TheFirstStationCanBeChosenLikeAnyOther)
{
    CAreas areas;
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    EXPECT_FALSE(form.IsEnabled("DeleteStation"));
    CGrid& table = Table(form);
    table.setCurrentIndex(table.model()->index(0, kBeam));
    EXPECT_TRUE(form.IsEnabled("InsertStation"));
}

TEST(SectionAreas, WithStationZeroAftTheStationsAreNumberedDownwardsAnew)
{
    CAreas areas(4, 1);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    Table(form).SetFocusCell(1, kBeam);
    form.Click("InsertStation");
    EXPECT_THAT(Column(form, kStation), ElementsAre("4", "3", "2", "1", "0"));
    EXPECT_THAT(Column(form, kBeam), ElementsAre("10.000", "", "11.000", "12.000", "13.000"));
    Table(form).SetFocusCell(0, kBeam);
    form.Click("DeleteStation");
    form.Click("DeleteStation");
    EXPECT_THAT(Column(form, kStation), ElementsAre("2", "1", "0"));
    EXPECT_THAT(Column(form, kBeam), ElementsAre("11.000", "12.000", "13.000"));
}

TEST(SectionAreas, StationsBehindTheNewCountBecomeUnset)
{
    CAreas areas(5);
    CFormDriver form = Opened<CSectionAreasDlg>(areas);
    Table(form).SetFocusCell(0, kBeam);
    form.Click("DeleteStation");
    form.Click("DeleteStation");
    form.Ok();
    for (const CParamArray* field : {&areas.Project.BEAM, &areas.Project.DRAFT, &areas.Project.ACOEF})
    {
        EXPECT_NE(field->Value(2), kNotGiven);
        EXPECT_EQ(field->Value(3), kNotGiven);
        EXPECT_EQ(field->Value(4), kNotGiven);
    }
    EXPECT_EQ(areas.Project.NST.Value(), 3);
}
