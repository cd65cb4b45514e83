// The input summary: the project as it stands in memory, as an HTML document. Values that were changed since
// the file was loaded are bold.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <ctime>
#include <functional>
#include <string>

constexpr const char* kInputSummaryName = "iview.html";

/// The half of the project that is shown.
enum class ESummaryScope
{
    Both,
    Environment,
    Geometry
};

/// What stands at the head of the document beside the project.
struct CSummaryHead
{
    std::string Company;
    std::string Client;
    std::string Contract;
    std::tm Time = {}; ///< local
};

/// The whole document.
std::string InputSummary(const CProjectData& project, ESummaryScope scope, const CSummaryHead& head);

/// Tells of a half without an active file; false if nothing can be shown then.
bool SummaryFilesLoaded(const CProjectData& project, ESummaryScope scope, CMessages& messages);

/// Writes the document into the folder of the engine and hands its path to `open`. The company block is read
/// from the folder of the settings. False, after a message, if no file is loaded or the document can't be
/// written; `open` isn't called then.
bool ShowInputSummary(const CProjectData& project, ESummaryScope scope, const std::string& baseDir,
                      const std::tm& localTime, CPlatform& platform,
                      const std::function<void(const std::string&)>& open);
