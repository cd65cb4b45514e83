#include "core/results/ControlBytes.h"

#include "core/results/CResultsBytes.h"
#include "core/results/ResultsSections.h"

namespace
{
void Floats(CResultsBytes& bytes, const CParamArray& field, int count)
{
    for (int k = 0; k < count; ++k)
    {
        bytes.Float(field.Value(k));
    }
}

/// Columns of the appendage tables.
void Columns(CResultsBytes& bytes, const CProjectData& p)
{
    bytes.Integer(p.IncludeRudder == 1 ? 1 : 0);
    bytes.Integer(p.IncludeSkeg == 1 ? 1 : 0);
    for (const CParamArray* pairs : {&p.NBKPAIR, &p.NFOILPAIR, &p.NFINPAIR})
    {
        bytes.Integer(pairs->Integer());
    }
}
} // namespace

std::string ControlBytes(const CProjectData& p)
{
    CResultsBytes bytes;
    bytes.Raw(kResultsMagic);
    bytes.Integer(p.StationOrigin);
    bytes.Float(p.NST.Value());
    bytes.Float(p.IncludeBilgeKeels == 0 ? 0 : p.NBKPAIR.Value());
    for (const CParamArray* field : {&p.NFINPAIR, &p.NFOILPAIR, &p.NPOS, &p.SPREADANG})
    {
        bytes.Float(field->Value());
    }
    Floats(bytes, p.RELMOCALC, kMaxPositions);
    Floats(bytes, p.MIIFLAG, kMaxPositions);
    for (const int flag : p.MSIFlag)
    {
        bytes.Integer(flag == 1 ? 1 : 0);
    }
    bytes.Float(p.NSPEED.Value());
    Floats(bytes, p.SPDKNOT, p.NSPEED.Count(kMaxSpeeds));
    Columns(bytes, p);
    return bytes.Bytes();
}

std::string TitleBytes(const CProjectData& project)
{
    CResultsBytes bytes;
    bytes.Text(project.ProjectTitle, kTitleWidth);
    return bytes.Bytes();
}

std::string FileNameBytes(const CProjectData& project)
{
    CResultsBytes bytes;
    bytes.Text(project.ActiveGeometryFile, kFileNameWidth);
    bytes.Text(project.ActiveEnvironmentFile, kFileNameWidth);
    return bytes.Bytes();
}
