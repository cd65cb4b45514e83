#include "gui/hull/COffsetEditorDlg.h"

#include "gui/forms/CGrid.h"
#include "gui/forms/HelpTopics.h"
#include "gui/hull/CSectionPlot.h"
#include "gui/hull/CStationBar.h"
#include "gui/hull/StationCount.h"
#include "gui/hull/WorkingLoading.h"
#include "gui/platform/QtText.h"

#include <algorithm>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace
{

/// The count of stations to begin with. The checks have no other form behind them that hands it over.
int StationsAtOpening(CProjectData& project, EOpenedFrom from)
{
    if (from == EOpenedFrom::OffsetChecks)
    {
        project.WorkingStationCount = project.NST.Count(kMaxStations);
        const bool isDraftGiven = project.TRIMDEF.Integer() != 1; // else the engine was asked for it
        if (isDraftGiven)
        {
            HandOverLoading(project, {project.DRAFTMID.Value(), project.DRAFTMID.unit},
                            {project.TRIMST.Value(), project.TRIMST.unit});
        }
    }
    return WorkingStations(project);
}
} // namespace

COffsetEditorDlg::COffsetEditorDlg(CFormContext& context, QWidget* parent, EOpenedFrom from)
    : CFormDlg(context, "COffsetEditorDlg", tr("Edit Offsets"), kHelpOffsets, parent),
      m_from(from),
      m_offsets(context.Project, StationsAtOpening(context.Project, from)),
      m_original(m_offsets)
{
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_stations = new CStationBar(this);
    Body().addWidget(m_stations);
    auto* middle = new QHBoxLayout;
    Body().addLayout(middle, 1);
    middle->addLayout(MakeTable());
    m_plot = new CSectionPlot(Project(), m_offsets, context.Platform, this);
    middle->addWidget(m_plot, 1);
    middle->addLayout(MakeButtons());
    Body().addLayout(MakeReadouts());
    connect(m_stations, &CStationBar::Picked, this, &COffsetEditorDlg::PickStation);
    connect(m_plot, &CSectionPlot::Picked, this, &COffsetEditorDlg::PickPoint);
    AddShortcuts();
}

QLayout* COffsetEditorDlg::MakeTable()
{
    m_unit = new CUnitCaption(kLengthUnits, this);
    m_unit->setObjectName("YAUSER.unit");
    m_unit->Converts([this](float) { Convert(); });
    auto* units = new QHBoxLayout;
    units->addWidget(new QLabel(tr("Units:"), this));
    units->addWidget(m_unit);
    units->addStretch(1);

    m_table = new CGrid({{"YAUSER", tr("Y"), "%.3f"}, {"ZAUSERBL", tr("Z"), "%.3f"}}, kMaxOffsets, this);
    m_table->setObjectName("table");
    m_table->ShowRowNumbers();
    m_table->SetVisibleRows(22);
    m_table->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    auto* side = new QVBoxLayout;
    side->addLayout(units);
    side->addWidget(m_table, 1);
    return side;
}

QPushButton* COffsetEditorDlg::GroupButton(QLayout& group, const char* name, const QString& caption,
                                           std::function<void()> pressed)
{
    QPushButton* button = MakeButton(name, caption, std::move(pressed));
    group.addWidget(button);
    return button;
}

QLayout* COffsetEditorDlg::MakeButtons()
{
    auto* side = new QVBoxLayout;
    const auto group = [this, side](const QString& title) -> QLayout&
    {
        auto* box = new QGroupBox(title, this);
        side->addWidget(box);
        return *new QVBoxLayout(box);
    };
    QLayout& pair = group(tr("Offset Pair"));
    QPushButton* insert = GroupButton(pair, "InsertPair", tr("&Insert"), [] {});
    QPushButton* remove = GroupButton(pair, "DeletePair", tr("&Delete"), [] {});
    m_table->RowButtons(*insert, *remove);
    FollowTable();

    QLayout& station = group(tr("Station"));
    GroupButton(station, "CopyStation", tr("C&opy"), [this] { m_copiedStation = m_station; });
    GroupButton(station, "PasteStation", tr("&Paste"), [this] { PasteStation(); });
    GroupButton(station, "InsertStation", tr("I&nsert"), [this] { InsertStation(); });
    GroupButton(station, "DeleteStation", tr("Dele&te"), [this] { DeleteStation(); });
    GroupButton(station, "ClearStation", tr("C&lear"), [this] { ClearStation(); });
    GroupButton(station, "RestoreOriginal", tr("&Restore Original"), [this] { RestoreStation(); });

    QPushButton* keels = GroupButton(group(tr("Bilge Keels")), "BilgeKeels", tr("&View / Edit"), [] {});
    keels->setEnabled(false);
    keels->setToolTip(tr("The form of the bilge keels is not available yet"));
    GroupButton(group(tr("Segment Lengths")), "CheckSegments", tr("Ch&eck"), [this] { CheckSegments(); });
    side->addStretch(1);
    return side;
}

void COffsetEditorDlg::FollowTable()
{
    connect(m_table, &CGrid::CellEdited, this, [this](int row, int) { ReadRow(row); });
    connect(m_table, &CGrid::BlockEdited, this,
            [this]
            {
                ShowReadouts();
                ShowGaps();
                m_plot->Draw();
            });
    connect(m_table, &CGrid::RowsMoved, this,
            [this]
            {
                ReadScreen();
                ShowReadouts();
                ShowGaps();
                m_plot->Draw();
            });
    connect(m_table, &CGrid::FocusCellChanged, this,
            [this](int row, int)
            {
                ShowReadouts();
                m_plot->MarkRow(row);
            });
}

QLayout* COffsetEditorDlg::MakeReadouts()
{
    auto* row = new QHBoxLayout;
    const auto display = [this, row](const char* name)
    {
        auto* label = new QLabel(this);
        label->setObjectName(QString::fromLatin1(name));
        row->addWidget(label);
        row->addSpacing(fontMetrics().averageCharWidth() * 3);
        return label;
    };
    m_stationReadout = display("StationReadout");
    m_yReadout = display("YReadout");
    m_zReadout = display("ZReadout");
    m_gaps = display("Gaps");
    row->addStretch(1);
    m_stationCount = new QLineEdit(this);
    m_stationCount->setObjectName("StationCount");
    m_stationCount->setReadOnly(true);
    m_stationCount->setFocusPolicy(Qt::NoFocus);
    m_stationCount->setAlignment(Qt::AlignCenter);
    m_stationCount->setMaximumWidth(fontMetrics().averageCharWidth() * 6);
    row->addWidget(new QLabel(tr("Number of Stations"), this));
    row->addWidget(m_stationCount);
    return row;
}

void COffsetEditorDlg::AddShortcuts()
{
    const auto step = [this](int by)
    {
        const int station = m_station + by;
        if (station >= 0 && station < m_offsets.StationCount())
        {
            PickStation(station);
        }
    };
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), this), &QShortcut::activated, this,
            [step] { step(1); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), this), &QShortcut::activated, this,
            [step] { step(-1); });
}

void COffsetEditorDlg::LoadFields()
{
    CFormDlg::LoadFields();
    CProjectData& project = Project();
    const int count = m_offsets.StationCount();
    const bool isRequested = std::exchange(project.OffsetEditRequested, 0) == 1;
    const int asked = isRequested ? m_offsets.FromForward(project.OffsetEditStation) : count / 2;
    m_unit->SetUnit(m_offsets.Unit());
    m_table->SetFocusCell(0, kY);
    ShowStation(std::clamp(asked, 0, std::max(count - 1, 0)));
    if (std::exchange(project.OffsetSegmentsRequested, 0) == 1)
    {
        // When the form stands on the screen: the segments show in it.
        QMetaObject::invokeMethod(this, &COffsetEditorDlg::DivideLongSegments, Qt::QueuedConnection);
    }
}

void COffsetEditorDlg::ReadRow(int row)
{
    m_offsets.Set(m_station, row, m_table->Cells().Value(row, kY), m_table->Cells().Value(row, kZ));
}

void COffsetEditorDlg::ReadScreen()
{
    m_table->EndEdit();
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        ReadRow(row);
    }
}

void COffsetEditorDlg::ShowStation(int station)
{
    m_station = station;
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        m_table->Cells().SetValue(row, kY, m_offsets.Y(station, row));
        m_table->Cells().SetValue(row, kZ, m_offsets.Z(station, row));
    }
    m_table->setCurrentIndex(m_table->currentIndex()); // rows that a check has marked are marked no more
    m_stations->Show(m_offsets.StationCount(), station);
    m_stationCount->setText(QString::number(m_offsets.StationCount()));
    ShowReadouts();
    ShowGaps();
    m_plot->ShowStation(station);
}

/// A project's file has as many rows of a station as there are points: each row without one in front of the
/// last costs a point, which the user shall see in time.
void COffsetEditorDlg::ShowGaps()
{
    const QColor warning(255, 224, 178);
    const CStationOffsets offsets = m_offsets.Station(m_station);
    bool isBehind = false; // a point stands below: the row that is being typed at the end is no gap
    bool hasGap = false;
    for (int row = kMaxOffsets - 1; row >= 0; --row)
    {
        const bool isGap = isBehind && !offsets.IsPresent(row);
        isBehind = isBehind || offsets.IsPresent(row);
        for (const int column : {kY, kZ})
        {
            m_table->Cells().SetBackground(row, column, isGap ? warning : QColor());
        }
        hasGap = hasGap || isGap;
    }
    m_gaps->setText(hasGap ? tr("Rows without a point: the last points will not be saved") : QString());
}

void COffsetEditorDlg::ShowReadouts()
{
    const int row = std::max(m_table->FocusRow(), 0);
    const auto coordinate = [this, row](const char* name, int column, float value)
    {
        const bool isEmpty = m_table->Cells().IsBlank(row, column) || !IsGiven(value);
        return ScreenText(std::string(name) + (isEmpty ? "" : FixedText(value, "%.3f")));
    };
    m_stationReadout->setText(ScreenText(FormatText("Station %i Definition", m_station)));
    m_yReadout->setText(coordinate("Y Coord: ", kY, m_offsets.Y(m_station, row)));
    m_zReadout->setText(coordinate("Z Coord: ", kZ, m_offsets.Z(m_station, row)));
}

void COffsetEditorDlg::Convert()
{
    m_table->EndEdit();
    m_offsets.Convert();
    ShowStation(m_station);
}

bool COffsetEditorDlg::OnOk()
{
    if (!CommitStation() || !CentrelinesWillDo())
    {
        return false;
    }
    CheckRowOrder();
    m_plot->Draw();
    CheckNegativeZ();
    if (Project().ChkSegLenInter == 1)
    {
        DivideLongSegments();
    }
    Store();
    if (Project().ChkSegLenInter == 1 && !FewPointsWillDo())
    {
        return false;
    }
    CheckCompleteness();
    if (m_stationsChanged)
    {
        ShowStationsChanged(Project(), Messages());
    }
    return CFormDlg::OnOk();
}

bool COffsetEditorDlg::OnCancel()
{
    ReadScreen();
    if (m_offsets.ShowsOther(m_original) &&
        Messages().AskYesNo("Save Offsets before exiting?", "Save Offsets?", EIcon::Question))
    {
        return OnOk();
    }
    return true;
}

void COffsetEditorDlg::Store()
{
    bool differs = m_offsets.Store(Project());
    Project().WorkingStationCount = m_offsets.StationCount();
    if (m_from == EOpenedFrom::OffsetChecks)
    {
        differs |= CStoredNumber(Project().NST).Store(static_cast<float>(m_offsets.StationCount()));
    }
    if (differs)
    {
        SetModified();
    }
    m_original = m_offsets;
}
