#include "gui/forms/CFormDlg.h"
#include "tests/support/gui/CFormDriver.h"

#include <gmock/gmock.h>

#include <QLabel>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A form whose table the test writes.
class CTabled : public CFormDlg
{
public:
    using CTable = std::function<void(CTabled&)>;

    CTabled(CFormContext& context, const CTable& table) : CFormDlg(context, "CTabled", "Table", 1, nullptr)
    {
        table(*this);
    }

    using CFormDlg::Length;
    using CFormDlg::Mass;
    using CFormDlg::Number;
    using CFormDlg::Project;
};

CFormDriver Shown(CFormProject& project, const CTabled::CTable& table)
{
    return CFormDriver(std::make_unique<CTabled>(project.Context, table));
}

/// Messages that note what a box and its caption showed when they came up.
class CWatch : public CRecorder
{
public:
    void MessageBox(const std::string& text, const std::string& title, EIcon icon) override
    {
        CRecorder::MessageBox(text, title, icon);
        Seen.push_back(Look());
    }

    std::function<std::string()> Look = [] { return std::string(); };
    std::vector<std::string> Seen;
};

void KgBetweenOneAndTwo(CTabled& form)
{
    form.Length("KG", form.Project().KG, "%.2f").Limits(1, 2).RangeTitle("KG out of Range");
}
} // namespace

TEST(NumberField, IsFoundByTheNamesOfItsField)
{
    CFormProject project;
    CFormDriver form = Shown(project,
                             [](CTabled& table)
                             {
                                 table.Length("Length", table.Project().SHIPLEN, "%.2f");
                                 table.Number("Offset", {table.Project().YSLOFFBL, 3}, "%.3f").FixedUnit("m");
                             });
    EXPECT_EQ(form.Caption("SHIPLEN.label"), "Length");
    EXPECT_EQ(form.Find<QLabel>("SHIPLEN.label").buddy(), &form.Find<QWidget>("SHIPLEN"));
    EXPECT_EQ(form.Caption("SHIPLEN.unit"), "meters");
    EXPECT_EQ(form.Text("YSLOFFBL.3"), "");
    EXPECT_EQ(form.Caption("YSLOFFBL.3.unit"), "m");
}

TEST(NumberField, EndsOfItsRangeAreInside)
{
    for (const auto& [text, passes] : {std::pair("1", true), {"2", true}, {"0.99", false}, {"2.01", false}})
    {
        CFormProject project;
        CFormDriver form = Shown(project, KgBetweenOneAndTwo);
        form.Type("KG", text);
        form.Ok();
        EXPECT_EQ(!form.IsOpen(), passes) << text;
    }
}

TEST(NumberField, LimitsAreComparedAsFloats)
{
    CFormProject project;
    const auto fifth = [](CTabled& form)
    { form.Number("KG", form.Project().KG, "%.2f").Limits(0.2F, 0.7F).RangeTitle("KG out of Range"); };
    for (const char* limit : {"0.2", "0.7"})
    {
        CFormDriver form = Shown(project, fifth);
        form.Type("KG", limit);
        form.Ok();
        EXPECT_FALSE(form.IsOpen()) << limit;
    }
}

TEST(NumberField, EmptyAndBlankAreNotChecked)
{
    for (const char* text : {"", " "})
    {
        CFormProject project;
        CFormDriver form = Shown(project, KgBetweenOneAndTwo);
        form.Set("KG", text);
        form.Ok();
        EXPECT_FALSE(form.IsOpen());
        EXPECT_EQ(project.Project.KG.Value(), -1);
    }
}

TEST(NumberField, MinusOneThatIsTypedIsCheckedAndStoredAsNotGiven)
{
    CFormProject project;
    CFormDriver form = Shown(project, KgBetweenOneAndTwo);
    form.Type("KG", "-1");
    form.Ok();
    EXPECT_TRUE(form.IsOpen());

    const auto required = [](CTabled& table)
    { table.Number("KG", table.Project().KG, "%.2f").RangeTitle("KG out of Range").Required(); };
    CFormDriver wide = Shown(project, required);
    wide.Type("KG", "-1");
    wide.Ok();
    EXPECT_FALSE(wide.IsOpen());
    EXPECT_EQ(project.Project.KG.Value(), -1);
    EXPECT_EQ(project.Session.Modified, 0);
    CFormDriver again = Shown(project, required);
    EXPECT_EQ(again.Text("KG"), "");
}

TEST(NumberField, ValueThatReadsAsNotGivenIsEmptyAndLostAtOk)
{
    CFormProject project;
    project.Project.KG.Set(-1.004F);
    CFormDriver form = Shown(project, [](CTabled& table) { table.Number("KG", table.Project().KG, "%.2f"); });
    EXPECT_EQ(form.Text("KG"), "");
    form.Ok();
    EXPECT_EQ(project.Project.KG.Value(), -1);
    EXPECT_EQ(project.Session.Modified, 1);
}

TEST(NumberField, OkAloneRoundsAValueOfMoreDigits)
{
    CFormProject project;
    project.Project.KG.Set(12.3456F);
    CFormDriver form = Shown(project, [](CTabled& table) { table.Number("KG", table.Project().KG, "%.2f"); });
    EXPECT_EQ(form.Text("KG"), "12.35");
    form.Ok();
    EXPECT_EQ(project.Project.KG.Value(), 12.35F);
    EXPECT_EQ(project.Project.KG.changed, 1);
    EXPECT_EQ(project.Session.Modified, 1);
}

TEST(NumberField, UnitAloneIsNoChange)
{
    CFormProject project;
    CFormDriver form = Shown(project, [](CTabled& table) { table.Length("KG", table.Project().KG, "%.2f"); });
    form.Click("KG.unit");
    EXPECT_EQ(form.Text("KG"), "");
    form.Ok();
    EXPECT_EQ(project.Project.KG.unit, kUnitBritish);
    EXPECT_EQ(project.Project.KG.changed, 0);
    EXPECT_EQ(project.Session.Modified, 0);
}

TEST(NumberField, HasASentinelOfItsOwnWhereToldSo)
{
    CFormProject project;
    project.Project.RGNRUD.Set(-1);
    CFormDriver form =
        Shown(project,
              [](CTabled& table)
              {
                  table.Number("Gain", table.Project().RGNRUD, "%.4f").NotGiven(kGainNotGiven);
                  table.Number("Angle", {table.Project().DIFIN, 2}, "%.2f").NotGiven(kAngleNotGiven);
              });
    EXPECT_EQ(form.Text("RGNRUD"), "-1.0000");
    EXPECT_EQ(form.Text("DIFIN.2"), "");
    form.Set("RGNRUD", " ");
    form.Ok();
    EXPECT_EQ(project.Project.RGNRUD.Value(), -111111);
    EXPECT_EQ(project.Project.DIFIN.Value(2), -99);
}

TEST(NumberField, MassIsConvertedInSinglePrecision)
{
    CFormProject project;
    project.Project.DISPUSER.Set(1000);
    CFormDriver form =
        Shown(project, [](CTabled& table) { table.Mass("Mass", table.Project().DISPUSER, "%.3f"); });
    form.Click("DISPUSER.unit");
    EXPECT_EQ(form.Text("DISPUSER"), "984.206");
    EXPECT_EQ(form.Caption("DISPUSER.unit"), "LT");
    form.Ok();
    EXPECT_EQ(project.Project.DISPUSER.Value(), 984.206F);
    EXPECT_EQ(project.Project.DISPUSER.unit, kUnitBritish);
}

TEST(NumberField, MessageComesUpWhileTheFieldIsInMetres)
{
    CFormProject project;
    CWatch watch;
    CPlatform platform{watch, project.Recorder, project.Recorder, project.Recorder};
    CFormContext context{project.Project, project.Session, platform};
    CFormDriver form(std::make_unique<CTabled>(
        context,
        [](CTabled& table)
        {
            KgBetweenOneAndTwo(table);
            table.Length("Length", table.Project().SHIPLEN, "%.2f").RangeTitle("Length out of Range");
        }));
    watch.Look = [&form] { return form.Text("KG") + " " + form.Caption("KG.unit") + ", " + form.Focus(); };
    form.Click("KG.unit");
    form.Type("KG", "10");
    form.Ok();
    EXPECT_THAT(watch.Seen, ElementsAre("3.05 meters, OK"));
    EXPECT_EQ(form.Text("KG"), "10.01");
    EXPECT_EQ(form.Caption("KG.unit"), "feet");
    EXPECT_EQ(form.Focus(), "KG");
    EXPECT_EQ(form.Selected(), "10.01");
}

TEST(NumberField, WithoutACheckIsNotConvertedThereAndBack)
{
    CFormProject project;
    CFormDriver form = Shown(project, [](CTabled& table) { table.Length("KG", table.Project().KG, "%.2f"); });
    form.Click("KG.unit");
    form.Type("KG", "12.35");
    form.Ok();
    EXPECT_EQ(project.Project.KG.Value(), 12.35F);
}

TEST(NumberField, TellsItsLimitsInATip)
{
    CFormProject project;
    CFormDriver form =
        Shown(project,
              [](CTabled& table)
              {
                  table.Length("Length", table.Project().SHIPLEN, "%.2f").RangeTitle("title");
                  table.Number("Station", table.Project().XSTAFTSKEG, "%.2f").RangeTitle("title");
                  table.Length("KG", table.Project().KG, "%.2f");
              });
    EXPECT_EQ(form.Find<QWidget>("SHIPLEN").toolTip(), "0.00001 to 100000 meters");
    EXPECT_EQ(form.Find<QWidget>("XSTAFTSKEG").toolTip(), "0 to 20");
    EXPECT_EQ(form.Find<QWidget>("KG").toolTip(), "");
}

TEST(NumberField, SharedCaptionConvertsAllItsFieldsButStoresOneFlagEach)
{
    CFormProject project;
    project.Project.BOWCGFP.Set(10);
    project.Project.STERNCGAP.Set(20);
    CFormDriver form =
        Shown(project,
              [](CTabled& table)
              {
                  CNumberField& bow = table.Length("Bow", table.Project().BOWCGFP, "%.2f");
                  table.Number("Stern", table.Project().STERNCGAP, "%.2f").SharedUnits(*bow.Caption());
              });
    form.Click("BOWCGFP.unit");
    EXPECT_EQ(form.Text("BOWCGFP"), "32.81");
    EXPECT_EQ(form.Text("STERNCGAP"), "65.62");
    form.Ok();
    EXPECT_EQ(project.Project.BOWCGFP.unit, kUnitBritish);
    EXPECT_EQ(project.Project.STERNCGAP.unit, kUnitBritish);
}
