#include "core/results/report/CInputSummary.h"

namespace
{
const char* SystemName(const CParamArray& system)
{
    return system.Integer() == 0 ? "BRITISH" : "METRIC";
}

void Files(CInputSummary& summary, const CSummaryHead& head)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    // The half that isn't shown has its line all the same.
    page.WriteLine("<U>Input Filename</U>:&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp Environment: &nbsp&nbsp&nbsp %s<BR>",
                   summary.HasEnvironment() ? p.ActiveEnvironmentFile : std::string());
    page.WriteLine("&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp Ship Data: &nbsp&nbsp&nbsp %s<BR>",
                   summary.HasGeometry() ? p.ActiveGeometryFile : std::string());
    page.WriteLine("<BR>Client: &nbsp&nbsp&nbsp&nbsp  %s <BR>", head.Client);
    page.WriteLine("Contract Number: &nbsp&nbsp&nbsp %s<BR>", head.Contract);
}

void Time(CHtmlPage& page, const std::tm& time)
{
    page.WriteLine("<BR><U>Current Time/Date</U>: &nbsp&nbsp&nbsp&nbsp&nbsp Time: %i:%02i:%02i "
                   "&nbsp&nbsp&nbsp&nbsp&nbsp Date: %i %02i %02i <BR>",
                   time.tm_hour, time.tm_min, time.tm_sec, time.tm_year + 1900, time.tm_mon + 1,
                   time.tm_mday);
}

void ProgramSettings(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    summary.Page.WriteLine("<BR><B>PROGRAM SETTINGS</B><BR>");
    summary.Page.WriteLine(
        "Unit System: &nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp"
        "&nbsp&nbsp&nbsp Input = %s &nbsp&nbsp&nbsp&nbsp Output = %s <BR>",
        Marked(SystemName(p.INSYS), p.INSYS.changed), Marked(SystemName(p.OUTSYS), p.OUTSYS.changed));
    summary.Page.WriteLine(
        "Density and Viscosity:&nbsp&nbsp&nbsp&nbsp %s",
        Marked(p.WATERDEN.Integer() == 0 ? "Salt Water" : "Fresh Water", p.WATERDEN.changed));
}
} // namespace

void GeneralData(CInputSummary& summary, const CSummaryHead& head)
{
    CHtmlPage& page = summary.Page;
    page.WriteLine(R"(<a NAME="General"></a>)");
    page.WriteLine("<B><CENTER>INPUT DATA SUMMARY</CENTER></B><BR> \n");
    page.WriteLine("<CENTER><I>%s</I><BR></CENTER>", head.Company);
    page.WriteLine(
        "<CENTER><H5>Larkfield Marine Limited Software Ondara for Windows Vers. 3</H5></CENTER><BR>");
    page.OpenFrame();
    Files(summary, head);
    Time(page, head.Time);
    page.WriteLine("<BR>Note: Parameters as they stand in the file are shown in 'normal' font, parameters "
                   "modified since the file was loaded in <B>bold</B>.<BR><BR>");
    page.WriteLine("<U>File Description</U><BR>");
    page.WriteLine("<I>%s</I><BR>", summary.Project.ProjectTitle);
    ProgramSettings(summary);
    page.CloseFrame();
    page.ContentsLink();
}
