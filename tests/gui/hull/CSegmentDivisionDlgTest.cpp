#include "gui/hull/CSegmentDivisionDlg.h"

#include "gui/forms/CChart2D.h"
#include "gui/hull/COffsetEditorDlg.h"
#include "tests/gui/hull/CHull.h"
#include "tests/support/gui/AtDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <deque>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::FloatEq;
using testing::IsEmpty;

namespace
{
/// A hull whose station 5 has long segments: 20 short ones of 0.5, then one of each length given.
struct CLongHull : CHull
{
    explicit CLongHull(const std::vector<float>& lengths, int shortOnes = 20, int station = 5)
    {
        AddStation(station, lengths, shortOnes);
    }

    void AddStation(int station, const std::vector<float>& lengths, int shortOnes = 20)
    {
        std::vector<float> steps(static_cast<std::size_t>(shortOnes), 0.5F);
        steps.insert(steps.end(), lengths.begin(), lengths.end());
        Set(station, 0, 0, 0);
        float y = 0;
        int row = 0;
        for (const float step : steps)
        {
            y += step;
            ++row;
            Set(station, row, y, row > shortOnes ? 0.25F : 0);
        }
    }

    int Points(int station) const
    {
        int count = 0;
        for (int row = 0; row < kMaxOffsets; ++row)
        {
            count += IsGiven(Y(station, row)) ? 1 : 0;
        }
        return count;
    }
};

struct CQuestion
{
    QDialog& Dialog;

    std::string Progress() const { return Dialog.findChild<QLabel*>("Progress")->text().toStdString(); }
    std::string Pieces() const { return Edit().text().toStdString(); }
    void Press(const char* name) const { Dialog.findChild<QPushButton*>(name)->click(); }
    void Type(const char* pieces) const { Edit().setText(pieces); }
    QLineEdit& Edit() const { return *Dialog.findChild<QLineEdit*>("Pieces"); }
    QCheckBox& Always() const { return *Dialog.findChild<QCheckBox*>("ChkSegLenInter"); }
};

using CActs = std::deque<std::function<void(const CQuestion&)>>;

/// What is done to the next questions, in turn; gives the count of those that came.
std::shared_ptr<int> AtQuestions(CActs acts, std::shared_ptr<int> count = std::make_shared<int>(0))
{
    AtDialog<CSegmentDivisionDlg>("CSegmentDivisionDlg",
                                  [acts, count](CSegmentDivisionDlg& dialog)
                                  {
                                      ++*count;
                                      CActs rest(acts.begin() + 1, acts.end());
                                      if (!rest.empty())
                                      {
                                          AtQuestions(rest, count);
                                      }
                                      acts.front()({dialog});
                                  });
    return count;
}

std::string ProgressText(int number, int total, int left)
{
    return FormatText("This is %i of %i segments to be broken up. \nThe remaining number of offsets "
                      "available is %i.",
                      number, total, left);
}
} // namespace

TEST(SegmentDivision, AGoodStationIsAcceptable)
{
    CHull hull;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("CheckSegments");
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Data Check: Segment lengths at Station 5 are acceptable."));
}

TEST(SegmentDivision, ALongSegmentIsAskedAboutAndDivided)
{
    CLongHull hull({2});
    hull.Project.ChkSegLenInter = 0;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const auto asked = AtQuestions(
        {[&](const CQuestion& question)
         {
             EXPECT_EQ(question.Dialog.findChild<QLabel*>("Explanation")->text().toStdString(),
                       "This segment is considerably longer than the others, \nand the inconsistency may "
                       "degrade the fidelity of the \nhydrodynamic modelling.");
             EXPECT_EQ(question.Progress(), ProgressText(1, 1, 38));
             EXPECT_EQ(question.Pieces(), "3"); // the length is 2.016, the median 0.5
             EXPECT_FALSE(question.Always().isChecked());
             EXPECT_EQ(Table(form).FocusRow(), 20);
             EXPECT_EQ(Table(form).selectionModel()->selectedIndexes().size(), 4);
             EXPECT_EQ(form.Find<CChart2D>("plot").Points(1).size(), 2U);
             question.Press("OK");
         }});
    form.Click("CheckSegments");
    EXPECT_EQ(*asked, 1);
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
    EXPECT_THAT(form.Find<CChart2D>("plot").Points(1), IsEmpty());
    EXPECT_EQ(CellText(form, 20, 0), "10.000");
    EXPECT_EQ(CellText(form, 21, 0), "10.667");
    EXPECT_EQ(CellText(form, 22, 0), "11.333");
    EXPECT_EQ(CellText(form, 22, 1), "0.167");
    EXPECT_EQ(CellText(form, 23, 0), "12.000");
    form.Ok();
    EXPECT_EQ(hull.Points(5), 24);
}

TEST(SegmentDivision, TheUsersOwnNumberOfPiecesCounts)
{
    CLongHull hull({2});
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    AtQuestions({[](const CQuestion& question)
                 {
                     question.Type("2");
                     question.Press("OK");
                 }});
    form.Click("CheckSegments");
    EXPECT_EQ(CellText(form, 21, 0), "11.000");
    EXPECT_EQ(CellText(form, 22, 0), "12.000");
    EXPECT_EQ(CellText(form, 23, 0), "");
}

TEST(SegmentDivision, OneNoneOrNothingDividesNothing)
{
    for (const char* pieces : {"0", "1", "", "-4"})
    {
        CLongHull hull({2});
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        AtQuestions({[pieces](const CQuestion& question)
                     {
                         question.Type(pieces);
                         question.Press("OK");
                     }});
        form.Click("CheckSegments");
        EXPECT_EQ(CellText(form, 21, 0), "12.000") << pieces;
        EXPECT_EQ(CellText(form, 22, 0), "") << pieces;
    }
}

TEST(SegmentDivision, RowsMoveWithTheDivisionsBefore)
{
    CLongHull hull({2, 3});
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const auto asked = AtQuestions({[](const CQuestion& question)
                                    {
                                        EXPECT_EQ(question.Progress(), ProgressText(1, 2, 37 - 2));
                                        question.Press("OK");
                                    },
                                    [&form](const CQuestion& question)
                                    {
                                        EXPECT_EQ(question.Progress(), ProgressText(2, 2, 35));
                                        EXPECT_EQ(Table(form).FocusRow(), 23);
                                        question.Press("OK");
                                    }});
    form.Click("CheckSegments");
    EXPECT_EQ(*asked, 2);
    EXPECT_EQ(CellText(form, 23, 0), "12.000");
    EXPECT_EQ(CellText(form, 24, 0), "13.000");
    EXPECT_EQ(CellText(form, 25, 0), "14.000");
    EXPECT_EQ(CellText(form, 26, 0), "15.000");
}

TEST(SegmentDivision, IgnoreEscapeAndCloseLeaveTheSegment)
{
    const CActs ways = {[](const CQuestion& question) { question.Press("Ignore"); },
                        [](const CQuestion& question) { QTest::keyClick(&question.Dialog, Qt::Key_Escape); },
                        [](const CQuestion& question) { question.Dialog.close(); }};
    for (const auto& leave : ways)
    {
        CLongHull hull({2, 3});
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        const auto asked = AtQuestions({leave, [](const CQuestion& question) { question.Press("OK"); }});
        form.Click("CheckSegments");
        EXPECT_EQ(*asked, 2);
        EXPECT_EQ(CellText(form, 21, 0), "12.000");
        EXPECT_EQ(CellText(form, 22, 0), "13.000");
    }
}

TEST(SegmentDivision, IgnoreAllLeavesTheStationAsItWas)
{
    CLongHull hull({2, 3});
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const auto asked = AtQuestions({[](const CQuestion& question) { question.Press("IgnoreAll"); }});
    form.Click("CheckSegments");
    EXPECT_EQ(*asked, 1);
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(SegmentDivision, YesToAllTakesThisNumberAndTheOtherProposals)
{
    CLongHull hull({2, 3});
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const auto asked = AtQuestions({[](const CQuestion& question)
                                    {
                                        question.Type("2");
                                        question.Press("YesToAll");
                                    }});
    form.Click("CheckSegments");
    EXPECT_EQ(*asked, 1);
    EXPECT_EQ(CellText(form, 21, 0), "11.000");
    EXPECT_EQ(CellText(form, 23, 0), "13.000");
    EXPECT_EQ(CellText(form, 25, 0), "15.000");
}

TEST(SegmentDivision, TooManyPiecesAreRefused)
{
    CLongHull hull({2});
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    AtQuestions({[&hull](const CQuestion& question)
                 {
                     question.Type("40"); // 22 points and 39 more
                     question.Press("OK");
                     EXPECT_TRUE(question.Dialog.isVisible());
                     EXPECT_THAT(hull.Recorder.Messages,
                                 ElementsAre("Warning: There can only be a total of 60 offsets. \nThere are "
                                             "currently 22 offsets. \n\nPlease decrease the number of "
                                             "segments."));
                     EXPECT_EQ(question.Edit().selectedText(), "40");
                     question.Type("39");
                     question.Press("OK");
                 }});
    form.Click("CheckSegments");
    EXPECT_EQ(CellText(form, 59, 0), "12.000");
}

TEST(SegmentDivision, YesToAllCutsProposalsToWhatFits)
{
    CLongHull hull({4, 3}, 49); // 52 points
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    AtQuestions({[](const CQuestion& question)
                 {
                     question.Type("8");
                     question.Press("YesToAll");
                 }});
    form.Click("CheckSegments");
    EXPECT_EQ(CellText(form, 57, 0), "28.500");
    EXPECT_EQ(CellText(form, 58, 0), "30.000");
    EXPECT_EQ(CellText(form, 59, 0), "31.500");
}

TEST(SegmentDivision, AFullStationIsOfferedNoRealDivision)
{
    CLongHull hull({5, 0.5F, 0.5F}, 56); // 60 points
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    AtQuestions({[](const CQuestion& question)
                 {
                     EXPECT_EQ(question.Pieces(), "1");
                     EXPECT_EQ(question.Progress(), ProgressText(1, 1, 0));
                     question.Press("OK");
                 }});
    form.Click("CheckSegments");
    form.Cancel();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_THAT(hull.Recorder.Messages, IsEmpty());
}

TEST(SegmentDivision, TheOptionIsStoredAtEachClose)
{
    CLongHull hull({2});
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    for (const char* button : {"Ignore", "IgnoreAll", "OK"})
    {
        hull.Project.ChkSegLenInter = 0;
        AtQuestions({[button](const CQuestion& question)
                     {
                         question.Always().setChecked(true);
                         question.Press(button);
                     }});
        form.Click("CheckSegments");
        EXPECT_EQ(hull.Project.ChkSegLenInter, 1) << button;
        EXPECT_EQ((hull.Recorder.Entries[{"Settings", "ChkSegLenInter"}]), "1");
        hull.Recorder.Entries.clear();
    }
    EXPECT_EQ(hull.Session.Modified, 0);
}

TEST(SegmentDivision, AtOkAllStationsAreGoneThroughInOnePass)
{
    CLongHull hull({2});
    hull.AddStation(3, {2});
    hull.AddStation(8, {2});
    hull.Project.ChkSegLenInter = 1;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const auto asked = AtQuestions({[&form](const CQuestion& question)
                                    {
                                        EXPECT_TRUE(form.IsChecked("station.3"));
                                        question.Press("OK");
                                    },
                                    [&form](const CQuestion& question)
                                    {
                                        EXPECT_TRUE(form.IsChecked("station.5"));
                                        question.Press("IgnoreAll");
                                    }});
    form.Ok();
    EXPECT_EQ(*asked, 2);
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Points(3), 24);
    EXPECT_EQ(hull.Points(5), 22);
    EXPECT_EQ(hull.Points(8), 22);
}

TEST(SegmentDivision, OkDoesNotAskWithTheOptionOff)
{
    CLongHull hull({2});
    hull.Project.ChkSegLenInter = 0;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(hull.Points(5), 22);
}

TEST(SegmentDivision, OnlySegmentsUnderTheWaterlineCount)
{
    CLongHull hull({2});
    hull.Project.WorkingDraft = 0.2F; // the long one reaches up to 0.25
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("CheckSegments");
    EXPECT_THAT(hull.Recorder.Messages,
                ElementsAre("Data Check: Segment lengths at Station 5 are acceptable."));
    hull.Project.WorkingDraft = 0.3F;
    const auto asked = AtQuestions({[](const CQuestion& question) { question.Press("Ignore"); }});
    form.Click("CheckSegments");
    EXPECT_EQ(*asked, 1);
}

TEST(SegmentDivision, TheWaterlineIsTakenInTheUnitOnShow)
{
    CLongHull hull({2});
    hull.Project.WorkingDraft = 0.3F;
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    form.Click("YAUSER.unit");
    const auto asked = AtQuestions({[](const CQuestion& question) { question.Press("Ignore"); }});
    form.Click("CheckSegments");
    EXPECT_EQ(*asked, 1);
}

TEST(SegmentDivision, OpenedToDivideTheEditorAsksAtOnce)
{
    CLongHull hull({2});
    hull.Project.OffsetEditRequested = 1;
    hull.Project.OffsetEditStation = 5;
    hull.Project.OffsetSegmentsRequested = 1;
    CFormDriver form(std::make_unique<COffsetEditorDlg>(hull.Context, nullptr, EOpenedFrom::OffsetChecks));
    EXPECT_EQ(hull.Project.OffsetSegmentsRequested, 0);
    const auto asked = AtQuestions({[](const CQuestion& question) { question.Press("OK"); }});
    QApplication::processEvents();
    EXPECT_EQ(*asked, 1);
    EXPECT_EQ(CellText(form, 23, 0), "12.000");
}

TEST(SegmentDivision, EnterOnTheNumberDoesNotClose)
{
    CHull hull;
    CSegmentDivisionDlg dialog(hull.Context, {1, 1, 22, 38, 3});
    dialog.open();
    dialog.findChild<QWidget*>("Pieces")->setFocus();
    QTest::keyClick(dialog.findChild<QWidget*>("Pieces"), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.findChild<QWidget*>("Cancel")->isVisible());
    dialog.reject();
    EXPECT_EQ(dialog.Answer(), ESegmentAnswer::Ignore);
    EXPECT_EQ(dialog.Pieces(), 0);
}

namespace
{
/// A hull with a station, by its place in the project, that rises along the centreline before its short
/// segments. The editor opens there.
struct CHullWithStem : CLongHull
{
    CHullWithStem(int station, int origin) : CLongHull({}, 20, station)
    {
        Project.StationOrigin = origin;
        Project.OffsetEditRequested = 1;
        Project.OffsetEditStation = station;
        Set(station, 0, 0, -2);
        Set(station, 1, 0, 0);
    }
};

/// How many segments of the station on show are asked about.
int AskedAbout(CHull& hull)
{
    CFormDriver form = Opened<COffsetEditorDlg>(hull);
    const auto asked = AtQuestions({[](const CQuestion& question) { question.Press("Ignore"); }});
    form.Click("CheckSegments");
    QApplication::processEvents(); // a question that didn't come
    return *asked;
}
} // namespace

TEST(SegmentDivision, ALongSegmentOnTheCentrelineIsSparedInTheForeHalf)
{
    for (const auto& [station, asked] : {std::pair(0, 0), {4, 0}, {5, 1}, {6, 1}, {10, 1}})
    {
        for (const int origin : {0, 1})
        {
            CHullWithStem hull(station, origin);
            EXPECT_EQ(AskedAbout(hull), asked) << station << " with origin " << origin;
        }
    }
}

TEST(SegmentDivision, ALongSegmentBesideTheCentrelineIsNotSpared)
{
    CHullWithStem hull(2, 0);
    hull.Set(2, 1, 0.001F, 0);
    EXPECT_EQ(AskedAbout(hull), 1);
}

TEST(SegmentDivision, TrimBringsTheWaterlineOverTheSegmentsAtTheSternAlone)
{
    for (const int origin : {0, 1})
    {
        for (const int station : {1, 9}) // by its place in the project, from forward
        {
            CLongHull hull({2}, 20, station);
            hull.Project.StationOrigin = origin;
            hull.Project.OffsetEditRequested = 1;
            hull.Project.OffsetEditStation = station;
            hull.Project.WorkingDraft = 0.25F; // to which the long one reaches amidships
            hull.Project.WorkingTrim = 0.2F;
            EXPECT_EQ(AskedAbout(hull), station == 9 ? 1 : 0) << station << " with origin " << origin;
        }
    }
}

TEST(SegmentDivision, TheOptionThatIsTakenBackIsStoredHoweverTheFormCloses)
{
    const CActs ways = {[](const CQuestion& question) { question.Press("YesToAll"); },
                        [](const CQuestion& question) { QTest::keyClick(&question.Dialog, Qt::Key_Escape); },
                        [](const CQuestion& question) { question.Dialog.close(); }};
    for (const auto& leave : ways)
    {
        CLongHull hull({2});
        hull.Project.ChkSegLenInter = 1;
        CFormDriver form = Opened<COffsetEditorDlg>(hull);
        const auto asked = AtQuestions({[&leave](const CQuestion& question)
                                        {
                                            EXPECT_TRUE(question.Always().isChecked());
                                            question.Always().click();
                                            leave(question);
                                        }});
        form.Click("CheckSegments");
        EXPECT_EQ(*asked, 1);
        EXPECT_EQ(hull.Project.ChkSegLenInter, 0);
        EXPECT_EQ((hull.Recorder.Entries[{"Settings", "ChkSegLenInter"}]), "0");
    }
}
