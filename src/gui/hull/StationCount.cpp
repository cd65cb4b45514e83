#include "gui/hull/StationCount.h"

#include <algorithm>

bool IsStationCount(int count, CMessages& messages)
{
    if (count >= kFewestStations && count <= kMaxStations)
    {
        return true;
    }
    messages.MessageBox("Min. = 2    Max. = 21", "Number of Stations out of range", EIcon::Stop);
    return false;
}

int WorkingStations(const CProjectData& project)
{
    const int handedOver = project.WorkingStationCount;
    return handedOver > 0 ? std::min(handedOver, kMaxStations) : project.NST.Count(kMaxStations);
}

void ShowStationsChanged(const CProjectData& project, CMessages& messages)
{
    const std::pair<bool, const char*> parts[] = {
        {project.IncludeBilgeKeels == 1 && project.NBKPAIR.Integer() > 0, "Bilge Keel Offsets \n"},
        {project.IncludeSkeg == 1, "Skeg Geometry \n"},
        {project.IncludeRudder == 1, "Rudder \n"},
        {project.IncludeFoils == 1, "Propeller Shaft Bracket / Stationary Foils \n"},
        {project.FINTANKSTAB.Integer() == 1, "Roll Fins \n"},
        {project.FINTANKSTAB.Integer() == 2, "Anti-Rolling Tank \n"},
        {project.LOADFLAG.Integer() == 0, "Mass / Weight Distribution \nLoad Positions \n"},
        {project.NPOS.Integer() > 0, "Seakeeping Positions"},
    };
    std::string text = "Stations were either added or deleted.\nPlease review the station numbers in:  \n\n";
    for (const auto& [applies, line] : parts)
    {
        text += applies ? line : "";
    }
    messages.MessageBox(text, "Warning", EIcon::Warning);
}
