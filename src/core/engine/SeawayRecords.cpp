#include "core/engine/SeawayRecords.h"

#include "core/engine/EngineWords.h"

#include <algorithm>
#include <vector>

namespace
{
/// One value of a seaway's line: the slots of all seaways.
struct CSeawayColumn
{
    const float* Slots;
    int Unit = kUnitMetric;
    EQuantity Quantity = EQuantity::Plain;
    bool Tested = true;
};

/// A spectrum that has one line per seaway.
struct CSeawayTable
{
    int Spectrum;
    std::vector<CSeawayColumn> Columns;
    const char* Incomplete;
    bool EndsInBlank = false;
};

CSeawayColumn Column(const CParamArray& field)
{
    return {field.data.data()};
}
CSeawayColumn Column(const CTenFloats& values)
{
    return {values.data()};
}
CSeawayColumn Height(const CParamArray& field)
{
    return {field.data.data(), field.unit, EQuantity::Length};
}
CSeawayColumn Height(const CTenFloats& values, int unit)
{
    return {values.data(), unit, EQuantity::Length};
}
CSeawayColumn Untested(CSeawayColumn column)
{
    column.Tested = false;
    return column;
}

constexpr const char* kHeightsIncomplete =
    "The significant wave heights for\nall the seaways are not complete.";

std::vector<CSeawayTable> SeawayTables(const CProjectData& p)
{
    return {
        {1,
         {Height(p.HSW), Column(p.TSW)},
         // Without the full stop that the others have.
         "The significant wave heights for\nall the seaways are not complete"},
        {2, {Height(p.BretHs, p.BretUnit), Column(p.BretTp)}, kHeightsIncomplete, true},
        {3,
         {Height(p.JonswapHs, p.JonswapUnit), Column(p.JonswapTp), Untested(Column(p.PEAKENSW))},
         kHeightsIncomplete},
        {4,
         {Height(p.OchiHs1, p.OchiUnit), Column(p.OchiTp1), Column(p.OchiLam1), Height(p.OchiHs2, p.OchiUnit),
          Column(p.OchiTp2), Column(p.OchiLam2)},
         "You have not completed the Ochi and Hubble wave spectrum.",
         true},
        {6,
         {Height(p.ZETA1), Column(p.OMEGA1), Column(p.LAMB1), Column(p.KAPA1), Column(p.EXPP1),
          Height(p.ZETA2), Column(p.OMEGA2), Column(p.LAMB2), Column(p.KAPA2), Column(p.EXPP2)},
         "You have not completed the \n10 Parameter Direction wave spectrum."},
    };
}

/// Only the first seaway is tested, and only if there is one: the others' sentinels are written as values.
void SeawayLines(CEngineInput& input, const CSeawayTable& table)
{
    const int seaways = input.Project.NSEAWAY.Count(kMaxSeaways);
    const bool complete =
        std::all_of(table.Columns.begin(), table.Columns.end(),
                    [](const auto& column) { return !column.Tested || IsGiven(column.Slots[0]); });
    if (seaways == 0 || !input.Test(complete, table.Incomplete))
    {
        return;
    }
    for (int i = 0; i < seaways; ++i)
    {
        CEngineLine& line = input.Line();
        for (const CSeawayColumn& column : table.Columns)
        {
            line.Value(column.Slots[i], column.Unit, {"%.2f", column.Quantity, true});
        }
        if (table.EndsInBlank)
        {
            line.Blank();
        }
        input.End();
    }
}

/// A spectrum that is read from a file.
struct CSpectrumFile
{
    int Spectrum;
    const std::string& Name;
    const char* Missing;
};

void SpectrumFileLine(CEngineInput& input, const CSpectrumFile& file)
{
    const bool chosen = !file.Name.empty() && file.Name != kNoSpectrumFile;
    if (input.Test(chosen, file.Missing))
    {
        input.Line().Word(file.Name);
        input.End();
    }
}

/// (h1).
void RegularWaveRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (input.Test(IsGiven(p.WAVESTEEP.Value()), "The wave slope is not specified."))
    {
        input.Line().Value(p.WAVESTEEP, kPlain4);
        input.End();
    }
}

/// The second and third line of (h4a).
void MeasuredSpectrumLines(CEngineInput& input)
{
    input.Line().Word(kUnitWords.Of(input.Project.SPUNISYS.Value()));
    input.End();
    input.Line().Value(input.Project.NFREQSPUNI, kInteger);
    input.End();
}
} // namespace

void SeawayRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (Is(p.SPECTRUM, kRegularWaves))
    {
        RegularWaveRecord(input);
    }
    for (const CSeawayTable& table : SeawayTables(p))
    {
        if (Is(p.SPECTRUM, table.Spectrum))
        {
            SeawayLines(input, table);
        }
    }
    for (const CSpectrumFile& file :
         {CSpectrumFile{5, p.SpectrumFile, "The wave sea spectral file was not specified."},
          CSpectrumFile{7, p.HindcastFile, "The hindcast data file was not specified."},
          CSpectrumFile{8, p.DirectionalFile, "The input directional file was not specified."}})
    {
        if (Is(p.SPECTRUM, file.Spectrum))
        {
            SpectrumFileLine(input, file);
        }
    }
    if (Is(p.SPECTRUM, 5))
    {
        MeasuredSpectrumLines(input);
    }
}
