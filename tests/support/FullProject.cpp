#include "tests/support/FullProject.h"

#include <algorithm>
#include <initializer_list>

namespace
{
struct CSetting
{
    CParamArray& Field;
    float Value;
};

/// The same value in each slot.
void SetAll(std::initializer_list<CSetting> settings)
{
    for (const CSetting& setting : settings)
    {
        setting.Field.Fill(setting.Value);
    }
}

/// A number that differs from slot to slot, well inside the limits of nearly all fields.
float Varied(int field, int slot)
{
    return 1.25F + 0.0537F * static_cast<float>((field * 7 + slot * 3) % 61);
}

void FillKeywords(CProjectData& p)
{
    for (int k = 0; k < kKeywordCount; ++k)
    {
        CParamArray& field = *p.Fields()[static_cast<std::size_t>(k)];
        for (int slot = 0; slot < field.Capacity(); ++slot)
        {
            field.Set(slot, std::max(field.min, std::min(field.max, Varied(k, slot))));
        }
    }
}

void SetOptions(CProjectData& p)
{
    SetAll({{p.INSYS, 1},     {p.OUTSYS, 1},   {p.WATERDEN, 0},    {p.SPEEDCOR, 2},    {p.SWELLCOR, 2},
            {p.OUTRAO, 2},    {p.EXCITE, 3},   {p.LOADFLAG, 0},    {p.RAWFLAG, 1},     {p.ADDMASS, 4},
            {p.HYMETHOD, 1},  {p.HYEND, 4},    {p.LOWHVCOR, 1},    {p.SPECTRUM, 4},    {p.GMFLAG, 1},
            {p.ROLLRGDEF, 0}, {p.HULLDEF, 0},  {p.TRIMDEF, 0},     {p.FINTANKSTAB, 1}, {p.RELMOCALC, 2},
            {p.MIIFLAG, 1},   {p.ISLIPRUD, 1}, {p.CLA0COMPUTE, 1}, {p.CLA0COMPUTE2, 1}});
    for (int* option :
         {&p.AppendedHull, &p.IncludeSkeg, &p.IncludeFoils, &p.IncludeBilgeKeels, &p.IncludeRudder,
          &p.IncludeStabilizer, &p.RudderRollStabilization, &p.LateralGainPoint, &p.KxxiUserInput,
          &p.KgUserInput, &p.WaveFreqUserInput, &p.EncFreqUserInput, &p.LoadStationsUserInput})
    {
        *option = 1;
    }
    p.MSIFlag.fill(1);
    p.MSIMethod.fill(1);
    p.MSIExposureOption.fill(1);
}

void SetCounts(CProjectData& p)
{
    SetAll({{p.NSEADIR, kMaxSeaDirections},
            {p.NSEAWAY, kMaxSeaways},
            {p.NFREQSPUNI, 101},
            {p.NSPEED, kMaxSpeeds},
            {p.NST, kMaxStations},
            {p.NSTLOAD, kMaxStations},
            {p.NPOS, kMaxPositions},
            {p.NSLOFF, kMaxSlamOffsets},
            {p.NBKPAIR, kMaxBilgeKeelPairs},
            {p.IFIRSTBK, 0},
            {p.ILASTBK, kMaxBilgeKeelRows - 1},
            {p.NFOILPAIR, kMaxFoilPairs},
            {p.NFINPAIR, kMaxFinPairs},
            {p.NOFFUSER, kMaxOffsets}});
}

/// y = (B / 2) (1 - x^2) (1 - z^2), with x from -1 at the one end to 1 at the other, z from 1 at the keel to
/// 0 at the waterline; wall-sided above.
void SetHull(CProjectData& p)
{
    constexpr float halfBeam = 5.0F;
    constexpr float draft = 6.25F;
    constexpr float depth = 9.0F;
    for (int station = 0; station < kMaxStations; ++station)
    {
        const float x = static_cast<float>(station) / 10.0F - 1.0F;
        p.XST.Set(station, static_cast<float>(station));
        p.XSTLOAD.Set(station, static_cast<float>(station));
        p.SECTTN.Set(station, 250.0F * (1.0F - x * x) + 12.34F);
        for (int k = 0; k < kMaxOffsets; ++k)
        {
            const float height = depth * static_cast<float>(k) / (kMaxOffsets - 1);
            const float z = std::max(0.0F, 1.0F - height / draft);
            p.YAUSER.Set(station * kMaxOffsets + k, halfBeam * (1.0F - x * x) * (1.0F - z * z));
            p.ZAUSERBL.Set(station * kMaxOffsets + k, height);
        }
    }
    SetAll({{p.SHIPLEN, 100},
            {p.KG, 5.5F},
            {p.PITCHRG, 25},
            {p.GMUSER, 1.23F},
            {p.ROLLNF, 0.61F},
            {p.DRAFTMID, draft},
            {p.TRIMST, 0.12F},
            {p.DISPUSER, 2847.22F},
            {p.LCGPUSER, 50.1F},
            {p.STERNKG, 4.5F},
            {p.BEAMSF, 1},
            {p.DRAFTSF, 1},
            {p.ACOEF, 0.9F}});
}

void SetSea(CProjectData& p)
{
    for (int k = 0; k < kMaxSeaDirections; ++k)
    {
        p.SEADIR.Set(k, 10.0F * static_cast<float>(k));
    }
    p.SPREADANG.Set(60);
    p.SpreadAngleText = 60;
    p.WAVESTEEP.Set(0.05F);
    for (CTenFloats* values : {&p.BretHs, &p.BretTp, &p.JonswapHs, &p.JonswapTp, &p.OchiHs1, &p.OchiHs2,
                               &p.OchiTp1, &p.OchiTp2, &p.OchiLam1, &p.OchiLam2})
    {
        for (int k = 0; k < kMaxSeaways; ++k)
        {
            (*values)[static_cast<std::size_t>(k)] = 1.5F + 0.61F * static_cast<float>(k);
        }
    }
    SetAll({{p.WVFREQMIN, 0.2F},
            {p.WVFREQMAX, 2.0F},
            {p.DWVFREQ, 0.05F},
            {p.ENFREQMIN, 0.1F},
            {p.ENFREQMAX, 3.0F},
            {p.DENFREQ, 0.1F}});
}

void SetPlainValues(CProjectData& p)
{
    p.ProjectTitle = "Parabolic hull with everything that a project can hold";
    p.SpectrumFile = "spectrum.txt";
    p.HindcastFile = "hindcast.txt";
    p.DirectionalFile = "directional.txt";
    for (int k = 0; k < kMaxPositions; ++k)
    {
        const auto slot = static_cast<std::size_t>(k);
        p.PositionLabel[slot] = "Place" + IntegerText(k + 1);
        p.SlamMidshipDraft[slot] = 6.25F;
        p.SlamLoadHeight[slot] = 7.5F + 0.1F * static_cast<float>(k);
        p.MSIExposure[slot] = 2.0F;
    }
    for (int k = 0; k < kMaxStations; ++k)
    {
        p.StationSpare[static_cast<std::size_t>(k)] = 0.5F * static_cast<float>(k);
    }
    p.RudderLateralGains = {0.12F, 0.34F, 0.56F};
    p.FinYawGains = {0.21F, 0.43F, 0.65F};
    p.LateralPointX = 10;
    p.LateralPointZ = 4.5F;
    p.MassDataEntered = 1;
}
} // namespace

void FillToMaximum(CProjectData& project)
{
    project.ResetKeywords();
    project.ResetExtras();
    FillKeywords(project);
    SetOptions(project);
    SetCounts(project);
    SetHull(project);
    SetSea(project);
    SetPlainValues(project);
    project.ClearCompleteness();
    project.RecomputeCompleteness();
}

void FillToLargestRun(CProjectData& project)
{
    FillToMaximum(project);
    for (int k = 0; k < kMaxSeaDirections; ++k)
    {
        project.SEADIR.Set(k, 5.0F * static_cast<float>(k));
    }
    project.WVFREQMAX.Set(project.WVFREQMIN.Value() + 59 * project.DWVFREQ.Value());
    // The last one entered isn't calculated.
    project.NPOS.Set(kMaxPositions + 1);
    for (int k = 0; k < kMaxPositions; ++k)
    {
        project.RELMOCALC.Set(k, static_cast<float>(k % 5 + 1));
        project.MSIMethod[static_cast<std::size_t>(k)] = k % 2;
    }
}

void FillToMinimum(CProjectData& project)
{
    project.SPECTRUM.Set(0);
    project.NSEADIR.Set(1);
    project.SEADIR.Set(180);
    project.NSEAWAY.Set(1);
    project.WAVESTEEP.Set(0.02F);
    project.SHIPLEN.Set(100);
    project.KG.Set(5);
    project.PITCHRG.Set(25);
    project.ROLLNF.Set(0.5F);
    project.NST.Set(0);
    project.DRAFTMID.Set(6.25F);
}
