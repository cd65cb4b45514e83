#include "gui/hull/CSectionAreasDlg.h"

#include "gui/forms/CGrid.h"
#include "gui/forms/HelpTopics.h"
#include "gui/hull/StationCount.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace
{
enum EColumn
{
    kStation,
    kBeam,
    kDraft,
    kCoefficient,
    kColumnCount
};
} // namespace

CSectionAreasDlg::CSectionAreasDlg(CFormContext& context, QWidget* parent)
    : CFormDlg(context, "CSectionAreasDlg", tr("Show / Edit Section Areas"), kHelpSectionAreas, parent)
{
    AddUnits();
    AddTable();
    CompletenessFlag(Project().SectionAreasComplete);
}

void CSectionAreasDlg::AddUnits()
{
    auto* units = new QHBoxLayout;
    const auto add = [this, units](const char* name, const QString& label)
    {
        auto* caption = new CUnitCaption(kLengthUnits, this);
        caption->setObjectName(QString::fromLatin1(name));
        units->addWidget(new QLabel(label, this));
        units->addWidget(caption);
        return caption;
    };
    m_beamUnit = add("BEAM.unit", tr("Beam in"));
    units->addSpacing(fontMetrics().averageCharWidth() * 3);
    m_draftUnit = add("DRAFT.unit", tr("Draft in"));
    units->addStretch(1);
    AddRow(units);
}

void CSectionAreasDlg::AddTable()
{
    m_table = new CGrid({{"", tr("Station"), "%.0f", kNotGiven, nullptr, EGridCell::Label},
                         {"BEAM", tr("Beam"), "%.3f", kNotGiven, m_beamUnit},
                         {"DRAFT", tr("Draft"), "%.3f", kNotGiven, m_draftUnit},
                         {"ACOEF", tr("Area Coeff."), "%.4f"}},
                        0, this);
    m_table->setObjectName("table");
    m_table->SetVisibleRows(kMaxStations);
    m_insert = MakeButton("InsertStation", tr("&Insert Station"), [this] { InsertStation(); });
    m_delete = MakeButton("DeleteStation", tr("&Delete Station"), [this] { DeleteStation(); });

    auto* side = new QVBoxLayout;
    side->addWidget(m_insert);
    side->addWidget(m_delete);
    side->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addWidget(m_table, 1);
    row->addLayout(side);
    Body().addLayout(row, 1);
}

void CSectionAreasDlg::LoadFields()
{
    CFormDlg::LoadFields();
    CProjectData& project = Project();
    m_stationsBefore = WorkingStations(project);
    m_beamUnit->SetUnit(project.BEAM.unit);
    m_draftUnit->SetUnit(project.DRAFT.unit);
    SetStationCount(m_stationsBefore);
    for (int row = 0; row < m_stationCount; ++row)
    {
        m_table->Cells().SetValue(row, kBeam, project.BEAM.Value(row));
        m_table->Cells().SetValue(row, kDraft, project.DRAFT.Value(row));
        m_table->Cells().SetValue(row, kCoefficient, project.ACOEF.Value(row));
    }
    m_table->setMinimumWidth(m_table->sizeHint().width());
    m_table->SetFocusCell(0, 0);
    // A station has to be chosen before stations go or come: the one that shows at first doesn't count.
    m_insert->setEnabled(false);
    m_delete->setEnabled(false);
    connect(m_table, &CGrid::FocusCellChanged, this, &CSectionAreasDlg::EnableButtons);
    connect(m_table, &CGrid::clicked, this, &CSectionAreasDlg::EnableButtons);
}

void CSectionAreasDlg::SetStationCount(int count)
{
    m_stationCount = count;
    m_table->Cells().SetRowCount(count);
    const bool isFromAft = Project().StationOrigin == 1;
    m_table->Cells().NumberRows(kStation, isFromAft ? count - 1 : 0, isFromAft ? -1 : 1);
}

void CSectionAreasDlg::EnableButtons()
{
    const bool hasStation = m_table->FocusRow() >= 0;
    m_insert->setEnabled(hasStation && m_stationCount < kMaxStations);
    m_delete->setEnabled(hasStation && m_stationCount > kFewestStations);
}

void CSectionAreasDlg::InsertStation()
{
    m_table->EndEdit();
    const int row = m_table->FocusRow();
    if (row < 0 || !IsStationCount(m_stationCount + 1, Messages()))
    {
        return;
    }
    SetStationCount(m_stationCount + 1);
    m_table->Cells().InsertRow(row);
    m_stationsChanged = true;
    m_table->setFocus();
    EnableButtons();
}

void CSectionAreasDlg::DeleteStation()
{
    m_table->EndEdit();
    const int row = m_table->FocusRow();
    if (row < 0 || !IsStationCount(m_stationCount - 1, Messages()))
    {
        return;
    }
    m_table->Cells().DeleteRow(row);
    SetStationCount(m_stationCount - 1);
    m_stationsChanged = true;
    m_table->setFocus();
    EnableButtons();
}

bool CSectionAreasDlg::CheckFields()
{
    m_table->EndEdit();
    CProjectData& project = Project();
    return CheckColumn(kBeam, project.BEAM, "Beam out of Range", m_beamUnit) &&
           CheckColumn(kDraft, project.DRAFT, "Draft out of Range", m_draftUnit) &&
           CheckColumn(kCoefficient, project.ACOEF, "Area Coefficient out of Range", nullptr) &&
           CFormDlg::CheckFields();
}

bool CSectionAreasDlg::CheckColumn(int column, CParamArray& field, const std::string& title,
                                   CUnitCaption* unit)
{
    const CGridModel& cells = m_table->Cells();
    const bool isBritish = unit != nullptr && unit->Unit() == kUnitBritish;
    if (isBritish)
    {
        unit->Swap(); // the limits are metric
    }
    int refused = 0;
    while (refused < m_stationCount && (cells.IsBlank(refused, column) ||
                                        CheckRange(Messages(), field.min, field.max,
                                                   cells.Value(refused, column), kTwoDecimals, title) == 0))
    {
        ++refused;
    }
    if (isBritish)
    {
        unit->Swap();
    }
    if (refused < m_stationCount)
    {
        m_table->MarkCell(refused, column);
    }
    return refused == m_stationCount;
}

bool CSectionAreasDlg::IsComplete() const
{
    const CGridModel& cells = m_table->Cells();
    for (int row = 0; row < m_stationCount; ++row)
    {
        for (int column = kBeam; column < kColumnCount; ++column)
        {
            if (cells.IsBlank(row, column))
            {
                return false;
            }
        }
    }
    return true;
}

void CSectionAreasDlg::StoreFields()
{
    CFormDlg::StoreFields();
    CProjectData& project = Project();
    bool differs = StoreColumn(kBeam, project.BEAM);
    differs |= StoreColumn(kDraft, project.DRAFT);
    differs |= StoreColumn(kCoefficient, project.ACOEF);
    differs |= StoreStationCount();
    if (differs)
    {
        SetModified();
    }
    project.BEAM.unit = m_beamUnit->Unit();
    project.DRAFT.unit = m_draftUnit->Unit();
}

/// Stations that are no more become empty.
bool CSectionAreasDlg::StoreColumn(int column, CParamArray& field)
{
    bool differs = false;
    for (int row = 0; row < std::max(m_stationCount, m_stationsBefore); ++row)
    {
        const float value = row < m_stationCount ? m_table->Cells().Value(row, column) : kNotGiven;
        differs |= CStoredNumber(field, row).Store(value);
    }
    return differs;
}

bool CSectionAreasDlg::StoreStationCount()
{
    Project().WorkingStationCount = m_stationCount;
    return CStoredNumber(Project().NST).Store(static_cast<float>(m_stationCount));
}

bool CSectionAreasDlg::OnOk()
{
    if (!CFormDlg::OnOk())
    {
        return false;
    }
    if (m_stationsChanged)
    {
        ShowStationsChanged(Project(), Messages());
    }
    return true;
}
