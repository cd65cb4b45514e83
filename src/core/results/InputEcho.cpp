#include "core/results/InputEcho.h"

#include "core/results/CReadEcho.h"
#include "core/results/CResultsBytes.h"
#include "core/results/CWrittenEcho.h"
#include "core/results/EchoUnits.h"
#include "core/results/InputEchoFormat.h"

std::string InputEcho(CProjectData& project)
{
    const std::vector<CUnitWord> words = UnitWords(project);
    CResultsBytes bytes;
    CWrittenEcho echo(bytes, project, words);
    InputEchoFormat::Walk(echo, static_cast<const CProjectData&>(project));
    for (const CUnitWord& word : words)
    {
        bytes.Integer(*word.Tag);
    }
    if (project.HULLDEF.Integer() == 0)
    {
        project.YAUSER.Set(0);
    }
    return bytes.Bytes();
}

void ReadInputEcho(CResultsCursor& cursor, bool hasMagic, CProjectData& project)
{
    CReadEcho echo(cursor, hasMagic);
    InputEchoFormat::Walk(echo, project);
}
