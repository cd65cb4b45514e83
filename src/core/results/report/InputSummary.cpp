#include "core/results/report/InputSummary.h"

#include "core/platform/FileErrors.h"
#include "core/platform/Files.h"
#include "core/results/report/CInputSummary.h"
#include "core/results/report/ProjectHeader.h"

namespace
{
void Contents(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    page.WriteHead("INPUT DATA SUMMARY");
    page.WriteLine(R"(<a NAME="TOC"><B>CONTENTS: INPUT DATA</B></a>)");
    page.WriteLine("<ul>");
    page.WriteLine(R"(<li><a HREF="#General">General Data</a>)");
    if (summary.HasEnvironment())
    {
        page.WriteLine(R"(<li><a HREF="#Env">Environment Specification</a>)");
    }
    if (summary.HasGeometry())
    {
        page.WriteLine(R"(<li><a HREF="#Geo">Ship Data Specification</a>)");
    }
    page.WriteLine("</ul>");
    page.WriteLine("<HR SIZE=3>");
}
} // namespace

std::string InputSummary(const CProjectData& project, ESummaryScope scope, const CSummaryHead& head)
{
    CInputSummary summary(project, scope);
    Contents(summary);
    summary.Page.PageBreak();
    GeneralData(summary, head);
    if (summary.HasEnvironment())
    {
        summary.Page.PageBreak();
        EnvironmentSpecification(summary);
    }
    if (summary.HasGeometry())
    {
        summary.Page.PageBreak();
        ShipSpecification(summary);
    }
    summary.Page.WriteTail();
    return summary.Page.Text();
}

bool SummaryFilesLoaded(const CProjectData& project, ESummaryScope scope, CMessages& messages)
{
    const bool environment = !project.ActiveEnvironmentFile.empty();
    const bool geometry = !project.ActiveGeometryFile.empty();
    const char* fault = nullptr;
    if (scope == ESummaryScope::Environment && !environment)
    {
        fault = "There is no enviroment file loaded!";
    }
    else if (scope == ESummaryScope::Geometry && !geometry)
    {
        fault = "There is no geometry file loaded!";
    }
    else if (scope == ESummaryScope::Both && !environment && !geometry)
    {
        fault = "There is no file loaded to display!";
    }
    if (fault != nullptr)
    {
        messages.MessageBox(fault, "No File Loaded", EIcon::Stop);
    }
    return fault == nullptr;
}

bool ShowInputSummary(const CProjectData& project, ESummaryScope scope, const std::string& baseDir,
                      const std::tm& localTime, CPlatform& platform,
                      const std::function<void(const std::string&)>& open)
{
    if (!SummaryFilesLoaded(project, scope, platform.Messages))
    {
        return false;
    }
    const std::string folder = platform.Profile.Folder();
    const CSummaryHead head = {ProjectHeaderField(kHeaderCompany, folder),
                               ProjectHeaderField(kHeaderClient, folder),
                               ProjectHeaderField(kHeaderContract, folder), localTime};
    const std::string path = JoinPath(baseDir, kInputSummaryName);
    if (!ReplaceFile(path, InputSummary(project, scope, head)))
    {
        ShowSaveError(platform.Messages);
        return false;
    }
    open(path);
    return true;
}
