#include "core/engine/COffsetChecks.h"

#include "core/engine/CEngineInputWriter.h"
#include "core/platform/NumberText.h"

#include <utility>
#include <vector>

namespace
{
/// Sets options of the checks, and puts them back.
class CForcedOptions
{
public:
    CForcedOptions(std::initializer_list<int*> options)
    {
        for (int* option : options)
        {
            m_before.emplace_back(option, *option);
            *option = 1;
        }
    }
    ~CForcedOptions()
    {
        for (const auto& [option, before] : m_before)
        {
            *option = before;
        }
    }
    CForcedOptions(const CForcedOptions&) = delete;
    CForcedOptions& operator=(const CForcedOptions&) = delete;

private:
    std::vector<std::pair<int*, int>> m_before;
};
} // namespace

COffsetChecks::COffsetChecks(CProjectData& project, const std::string& baseDir, CPlatform& platform,
                             std::function<bool()> waitForEngine)
    : m_project(project),
      m_baseDir(baseDir),
      m_platform(platform),
      m_wait(std::move(waitForEngine))
{
}

bool COffsetChecks::Run()
{
    if (CheckOffsets(true, true) != 1)
    {
        return false;
    }
    m_platform.Messages.MessageBox("Geometry offsets are satisfactory.", "Offset Checks", EIcon::None);
    return true;
}

int COffsetChecks::CheckOffsets(bool runSegmentAndPointChecks, bool runNegativeZCheck)
{
    const int result = Check(runSegmentAndPointChecks, runNegativeZCheck);
    // Only now that the options are the user's again: the editor shows and stores one of them.
    if (std::exchange(m_editorWanted, false))
    {
        OpenOffsetEditor();
    }
    return result;
}

int COffsetChecks::Check(bool runSegmentAndPointChecks, bool runNegativeZCheck)
{
    if (m_project.HULLDEF.Integer() != 0)
    {
        return 1;
    }
    if (NeedsWaterlinePreRun(m_project))
    {
        // What an earlier check has found is of another hull.
        m_project.WorkingDraft = kNotGiven;
        m_project.WorkingTrim = 0;
    }
    if (FindCentrelinePair())
    {
        return 0;
    }
    CheckRowOrder();
    if (runSegmentAndPointChecks)
    {
        const CForcedOptions interactive({&m_project.ChkSegLenInter});
        const auto waterline = CWaterlineRun(m_project, m_baseDir, m_platform, m_wait).Find();
        if (!waterline)
        {
            return 0;
        }
        if (const int result = CheckLongSegments(*waterline); result != 1)
        {
            return result;
        }
        const CForcedOptions beforeRun({&m_project.ChkSegLenPreRun});
        if (const int result = CheckFewPoints(); result != 1)
        {
            return result;
        }
    }
    if (runNegativeZCheck)
    {
        const CForcedOptions options({&m_project.ChkNegZInter, &m_project.ChkNegZPreRun});
        CheckNegativeZ();
    }
    return 1;
}

CStationOffsets COffsetChecks::Station(int station) const
{
    return CStationOffsets::Of(m_project.YAUSER.data, m_project.ZAUSERBL.data, station);
}

int COffsetChecks::StationCount() const
{
    return m_project.NST.Count(kMaxStations);
}

bool COffsetChecks::FindCentrelinePair()
{
    for (int station = 0; station < StationCount(); ++station)
    {
        if (CentrelinePair(Station(station)) == 0)
        {
            continue;
        }
        m_platform.Messages.MessageBox(
            FormatText("Y sectional offsets - Station %i: 2 consecutive values of 0.0 exactly on the "
                       "centreline at the keel will result in a calculation error. \n\nPlease review your "
                       "inputs",
                       station),
            "Input Error", EIcon::Stop);
        EditStation(station);
        return true;
    }
    return false;
}

void COffsetChecks::CheckRowOrder()
{
    for (int station = 0; station < StationCount(); ++station)
    {
        for (int row = 0; row + 1 < kMaxOffsets; ++row)
        {
            if (MayBeInWrongOrder(Station(station), row))
            {
                OfferInterchange(station, row);
            }
        }
    }
}

void COffsetChecks::OfferInterchange(int station, int row)
{
    const auto slot = static_cast<std::size_t>(station * kMaxOffsets + row);
    float* const y = &m_project.YAUSER.data[slot];
    float* const z = &m_project.ZAUSERBL.data[slot];
    const std::string text =
        FormatText("Station %i: Rows %i and %i may be ordered incorrectly. \n\n"
                   "Row %i: Y offset: %.3f Z offset: %.3f \nRow %i: Y offset: %.3f Z offset: %.3f  \n\n"
                   "Interchange these 2 rows?",
                   station, row + 1, row + 2, row + 1, static_cast<double>(y[0]), static_cast<double>(z[0]),
                   row + 2, static_cast<double>(y[1]), static_cast<double>(z[1]));
    if (m_platform.Messages.AskYesNo(text, "Input Error", EIcon::Warning))
    {
        std::swap(y[0], y[1]);
        std::swap(z[0], z[1]);
        m_project.YAUSER.changed = 1;
        m_project.ZAUSERBL.changed = 1;
        Modified();
    }
}

int COffsetChecks::CheckLongSegments(const CWaterline& waterline)
{
    bool found = false;
    const int count = StationCount();
    for (int station = 0; station < count; ++station)
    {
        const float height = waterline.Height(station, count, m_project.INSYS.Integer());
        const bool spares = SparesCentreline(station, count, m_project.StationOrigin);
        if (!LongSegments(Station(station), height, spares).empty())
        {
            m_project.OffsetEditStation = station; // the last one is where the editor opens
            found = true;
        }
    }
    if (!found)
    {
        return 1;
    }
    if (m_platform.Messages.AskYesNo(
            "There are hull definition sectional offset segments that are long. \nThis may degrade the "
            "fidelity of the hydrodynamic modelling. \n\nWould you like to divide these segments into "
            "pieces?",
            "Input Warning", EIcon::Warning))
    {
        m_project.OffsetSegmentsRequested = 1;
        EditStation(m_project.OffsetEditStation);
    }
    return 0; // also after No
}

int COffsetChecks::CheckFewPoints()
{
    const std::vector<int> stations =
        StationsWithFewPoints(m_project.YAUSER.data, m_project.ZAUSERBL.data, StationCount());
    if (stations.empty() ||
        !m_platform.Messages.AskYesNo(
            "Stations " + StationList(stations) +
                " have relatively few points defining them, when compared to the rest of the "
                "vessel.\n\nWould you like to modify these stations?",
            "Input Warning", EIcon::Warning))
    {
        return 1;
    }
    m_project.OffsetSegmentsRequested = 0;
    EditStation(stations.front());
    return 0;
}

void COffsetChecks::CheckNegativeZ()
{
    if (m_project.ChkNegZPreRun == 1 && HasNegativeZ(m_project.ZAUSERBL.data))
    {
        m_platform.Messages.MessageBox("There are Z offset points with values less than 0!!", "Warning",
                                       EIcon::Warning);
    }
}

void COffsetChecks::EditStation(int station)
{
    m_project.OffsetEditStation = station;
    m_project.OffsetEditRequested = 1;
    m_editorWanted = true;
}
