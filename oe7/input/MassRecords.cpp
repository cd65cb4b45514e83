#include "oe7/input/InputRecords.h"
#include "oe7/input/Limits.h"

namespace oe7
{
namespace
{
/// One value per station, wrapped over as many lines as it takes.
std::vector<double> ReadStationValues(CRecordReader& file, const char* what, int stations, double factor)
{
    std::vector<double> values;
    file.NextLine();
    for (int station = 0; station < stations; ++station)
    {
        values.push_back(file.NumberAhead(what) * factor);
    }
    return values;
}

COverhang ReadOverhang(CRecordReader& file, const std::string& name)
{
    COverhang overhang;
    file.NextLine();
    overhang.Mass = file.Mass("the mass of the " + name);
    overhang.Kg = file.Length("the KG of the " + name);
    overhang.RollRadius = file.Length("the roll radius of the " + name);
    overhang.Distance = file.Length("the distance of the " + name);
    overhang.PitchRadius = file.Length("the pitch radius of the " + name);
    return overhang;
}
} // namespace

void ReadMasses(CRecordReader& file, CInput& input)
{
    if (!input.Loads)
    {
        return;
    }
    file.NextLine();
    const int count = file.CountOrNone("the number of load stations", kMostLoadStations);
    file.NextLine();
    input.LoadStations = file.Numbers("a load station", count);
    CMassDistribution& masses = input.Masses;
    masses.Masses = ReadStationValues(file, "the mass of a station", input.StationCount, file.MassUnit());
    masses.Kg = ReadStationValues(file, "the KG of a station", input.StationCount, file.LengthUnit());
    masses.RollRadius =
        ReadStationValues(file, "the roll radius of a station", input.StationCount, file.LengthUnit());
    masses.Bow = ReadOverhang(file, "bow overhang");
    masses.Stern = ReadOverhang(file, "stern overhang");
}

} // namespace oe7
