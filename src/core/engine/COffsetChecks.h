// The checks of the hull's offsets over the whole project: tells what would spoil the calculation before the
// engine is asked, mends what can be mended with a yes, and sends the user to the offset editor for the rest.
#pragma once

#include "core/engine/SectionQuality.h"
#include "core/engine/Waterline.h"
#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <functional>
#include <string>

class COffsetChecks
{
public:
    /// `waitForEngine` comes back when no engine runs any more; false if the user has given up waiting, which
    /// ends the checks.
    COffsetChecks(CProjectData& project, const std::string& baseDir, CPlatform& platform,
                  std::function<bool()> waitForEngine);

    /// The command Check Offsets: all checks, whatever the options say. True if the offsets are satisfactory.
    bool Run();
    /// 1 if the user may go on. While a check runs the options that belong to it are on.
    int CheckOffsets(bool runSegmentAndPointChecks, bool runNegativeZCheck);

    /// Opens the offset editor, at `OffsetEditStation`.
    std::function<void()> OpenOffsetEditor = [] {};

    /// The offsets have been changed.
    std::function<void()> Modified = [] {};

private:
    int Check(bool runSegmentAndPointChecks, bool runNegativeZCheck);
    CStationOffsets Station(int station) const;
    int StationCount() const;
    bool FindCentrelinePair();
    void CheckRowOrder();
    void OfferInterchange(int station, int row);
    int CheckLongSegments(const CWaterline& waterline);
    int CheckFewPoints();
    void CheckNegativeZ();
    void EditStation(int station);

    CProjectData& m_project;
    std::string m_baseDir;
    CPlatform& m_platform;
    std::function<bool()> m_wait;
    bool m_editorWanted = false;
};
