#include "cli/Commands.h"

#include "cli/CCheckCommand.h"
#include "cli/CCompleteCommand.h"
#include "cli/CConvertCommand.h"
#include "cli/CDumpCommand.h"
#include "cli/CEngineInputCommand.h"
#include "cli/CImportOffsetsCommand.h"
#include "cli/CNewCommand.h"
#include "cli/CPagesCommand.h"
#include "cli/CReportCommand.h"
#include "cli/CRestoreCommand.h"
#include "cli/CRunCommand.h"
#include "cli/CSummaryCommand.h"
#include "cli/CUnitsCommand.h"
#include "cli/CWaterlineInputCommand.h"

namespace
{
template <class... Commands>
std::vector<std::unique_ptr<CCommand>> Made()
{
    std::vector<std::unique_ptr<CCommand>> commands;
    (commands.push_back(std::make_unique<Commands>()), ...);
    return commands;
}
} // namespace

std::vector<std::unique_ptr<CCommand>> AllCommands()
{
    return Made<CNewCommand, CDumpCommand, CConvertCommand, CUnitsCommand, CImportOffsetsCommand,
                CEngineInputCommand, CWaterlineInputCommand, CCheckCommand, CRunCommand, CCompleteCommand,
                CRestoreCommand, CReportCommand, CPagesCommand, CSummaryCommand>();
}
