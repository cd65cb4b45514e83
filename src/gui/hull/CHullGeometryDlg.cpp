#include "gui/hull/CHullGeometryDlg.h"

#include "core/project/CInputFile.h"
#include "gui/forms/HelpTopics.h"
#include "gui/hull/COffsetEditorDlg.h"
#include "gui/hull/CSectionAreasDlg.h"
#include "gui/hull/StationCount.h"
#include "gui/hull/WorkingLoading.h"

#include <utility>

#include <QHBoxLayout>
#include <QPushButton>

namespace
{
/// Decides on the text that a value has after a click on its unit, and on whether it counts as changed.
constexpr CFixedFormat kThreeDecimals = "%.3f";

constexpr int kDraftGiven = 0; ///< values of `TRIMDEF`
constexpr int kDisplacementGiven = 1;
constexpr int kAreasGiven = 1; ///< value of `HULLDEF`
} // namespace

CHullGeometryDlg::CHullGeometryDlg(CFormContext& context, QWidget* parent)
    : CFormDlg(context, "CHullGeometryDlg", tr("Hull Geometry"), kHelpHullGeometry, parent)
{
    CProjectData& project = Project();
    m_stations = &Number(tr("Number of Stations"), project.NST, "%.0f")
                      .Whole()
                      .RangeTitle("Number of stations out of Range")
                      .ModifiedByText("%.0f");
    m_origin = &Options(tr("Station Definition"), {"StationOrigin", project.StationOrigin});
    m_origin->Button(0, tr("Station 0 = Fwd Perpendicular")).Button(1, tr("Station 0 = Aft Perpendicular"));
    EndGroup();
    m_method = &Options(tr("Hull Definition Methods"), project.HULLDEF);
    m_method->Button(0, tr("Sectional Offsets")).Button(kAreasGiven, tr("Sectional Areas"));
    EndGroup();
    AddLoading();
    AddCommands();
    CompletenessFlag(project.HullComplete);
}

void CHullGeometryDlg::AddLoading()
{
    CProjectData& project = Project();
    m_loading = &Options(tr("Loading Conditions (Draft Loading)"), project.TRIMDEF);
    const auto isGiven = [this](int loading)
    { return [this, loading] { return m_loading->EffectiveChoice() == loading; }; };
    m_loading->Button(kDraftGiven, tr("Draft at Midship"));
    m_draft = &Length(tr("Draft at Midship"), project.DRAFTMID, kThreeDecimals)
                   .RangeTitle("Draft at midship out of Range")
                   .CheckedIf(isGiven(kDraftGiven))
                   .Required(EBlankText::IsEmpty, isGiven(kDraftGiven))
                   .ModifiedByText(kThreeDecimals);
    m_trim = &Length(tr("Trim by Stern"), project.TRIMST, kThreeDecimals)
                  .RangeTitle("Trim by stern out of Range")
                  .CheckedIf(isGiven(kDraftGiven))
                  .Required(EBlankText::IsEmpty, isGiven(kDraftGiven))
                  .ModifiedByText(kThreeDecimals);
    m_loading->Button(kDisplacementGiven, tr("Displacement"));
    // Other than elsewhere a displacement that isn't given shows: users see that it is still to come.
    CNumberField& displacement = Mass(tr("Displacement"), project.DISPUSER, "%.2f")
                                     .ShowsNotGiven()
                                     .ConvertedFormat(kThreeDecimals)
                                     .RangeTitle("Displacement out of Range", kSixDecimals)
                                     .CheckedIf(isGiven(kDisplacementGiven))
                                     .Required(EBlankText::IsEmpty, isGiven(kDisplacementGiven))
                                     .ModifiedByText(kThreeDecimals);
    CNumberField& centre = Length(tr("LCG from FP"), project.LCGPUSER, kThreeDecimals)
                               .RangeTitle("LCG from FP out of Range", kSixDecimals)
                               .CheckedIf(isGiven(kDisplacementGiven))
                               .Required(EBlankText::IsEmpty, isGiven(kDisplacementGiven))
                               .ModifiedByText(kThreeDecimals);
    EndGroup();
    m_loading->Enables(kDraftGiven, {m_draft, m_trim});
    m_loading->Enables(kDisplacementGiven, {&displacement, &centre});
}

void CHullGeometryDlg::AddCommands()
{
    auto* commands = new QHBoxLayout;
    commands->addWidget(MakeButton("ShowEdit", tr("Show/Edit"), [this] { ShowEdit(); }));
    commands->addWidget(MakeButton("ImportOffsets", tr("Import Offsets"), [this] { ImportOffsets(); }));
    commands->addStretch(1);
    AddRow(commands);
}

bool CHullGeometryDlg::CheckFields()
{
    if (m_stations->Text().empty())
    {
        CheckEntered(Messages(), kNotGiven, "Number of Stations");
        m_stations->Show();
    }
    return CFormDlg::CheckFields();
}

bool CHullGeometryDlg::IsComplete() const
{
    return !m_stations->Text().empty() && CFormDlg::IsComplete();
}

void CHullGeometryDlg::StoreFields()
{
    CFormDlg::StoreFields();
    if (m_draft->IsEmpty())
    {
        return;
    }
    for (float& draft : Project().SlamMidshipDraft)
    {
        draft = IsGiven(draft) ? draft : Project().DRAFTMID.Value();
    }
}

bool CHullGeometryDlg::StationCountWillDo()
{
    if (IntegerAtStart(m_stations->Text()) < 1)
    {
        Messages().MessageBox("Please enter number of stations", "Number of Stations missing",
                              EIcon::Warning);
        m_stations->Show();
        return false;
    }
    return IsStationCount(Truncated(m_stations->Value()), Messages());
}

void CHullGeometryDlg::HandOver()
{
    CProjectData& project = Project();
    project.WorkingStationCount = Truncated(m_stations->Value());
    HandOverLoading(project, {m_draft->Value(), m_draft->Caption()->Unit()},
                    {m_trim->Value(), m_trim->Caption()->Unit()});
}

void CHullGeometryDlg::ShowEdit()
{
    if (!StationCountWillDo())
    {
        return;
    }
    HandOver();
    // The editors number the stations as this form shows it, but only OK makes that the project's.
    const int stored = std::exchange(Project().StationOrigin, m_origin->Choice());
    if (m_method->Choice() == kAreasGiven)
    {
        CSectionAreasDlg(Context(), this).exec();
    }
    else
    {
        COffsetEditorDlg(Context(), this).exec();
    }
    Project().StationOrigin = stored;
    m_stations->SetText(IntegerText(Project().WorkingStationCount));
}

void CHullGeometryDlg::ImportOffsets()
{
    if (CInputFile(Project(), Context().Session, Context().Platform).ImportOverOffsets() != 1)
    {
        return;
    }
    m_stations->SetText(IntegerText(Project().NST.Integer()));
    m_origin->SetChoice(Project().StationOrigin);
    ShowEdit();
}
