// The height of the waterline at each station, and how the engine is asked for it where the ship is loaded by
// displacement and nobody else knows.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <functional>
#include <optional>
#include <string>

/// The results of the last run as they were before the engine was asked; they stay there.
constexpr const char* kKeptResultsName = "Ondara7Orig.bin";

/// Where the ship floats, in metres.
struct CWaterline
{
    float Length = 0;  ///< of the ship
    float Spacing = 0; ///< of the stations
    float Draft = 0;   ///< amidships, negative if it isn't known
    float Trim = 0;    ///< by the stern

    /// The height above the baseline at a station counted from the forward end, in metres with a metric
    /// `inputSystem`, else in feet.
    float Height(int station, int stationCount, int inputSystem) const;
};

/// The waterline of a project whose draft is given.
CWaterline GivenWaterline(const CProjectData& project);

class CWaterlineRun
{
public:
    /// `waitForEngine` comes back when no engine runs any more; false if the user has given up waiting.
    CWaterlineRun(CProjectData& project, const std::string& baseDir, CPlatform& platform,
                  std::function<bool()> waitForEngine);

    /// The waterline, from the engine if it is needed for that; nothing if the user has given up. Its draft
    /// is -1 if the engine has found none. Draft and trim go into the project too, in metres, for the offset
    /// editor. The results of the last run stand afterwards as they did before.
    std::optional<CWaterline> Find();

private:
    bool RunEngine();
    void ReadBack(const std::string& results);
    void Store(float draft, float trim);
    CWaterline Found() const;
    void Warn(const std::string& text);

    CProjectData& m_project;
    std::string m_baseDir;
    CPlatform& m_platform;
    std::function<bool()> m_wait;
};
