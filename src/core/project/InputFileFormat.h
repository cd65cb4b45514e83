// The one definition of the project file: its lines in order, with their labels, values and formats. The
// writer and every reader walk it; the archive that walks decides what a line does.
//
// An archive has
//   Label(text)                       a line that is only skipped on reading
//   Line(scope)                       a line of values, see below; a half that doesn't read the scope drops
//   the line List(scope, values, first, n, f)  one line of n values; the first one stands there even if n is
//   below 1 Offsets(values, station, n)       one line of the offsets of a station, each followed by a blank
//   FileNameLine, LabelLine, GainLines
//   OnceRead(scope, action)           an adjustment that only reading makes
//   Reads(scope), Revision()
// and a line has Value, Number, Count, Integer, Tag and their like, one call for each token, in order.
#pragma once

#include "core/project/InputFileText.h"

#include <algorithm>

namespace InputFileFormat
{
constexpr int BOTH = kScopeBoth;
constexpr int ENV = kScopeEnvironment;
constexpr int GEO = kScopeGeometry;

// The forms store 2 or 3 as excitation and 3 or 4 as added mass option; older files hold less.
constexpr float kLeastExcitation = 2.0F;
constexpr float kLeastAddedMass = 3.0F;

template <class Archive, class Project>
void ControlVariables(Archive& file, Project& p)
{
    file.Label("Record (b) //**CONTROL VARIABLES**///");
    {
        auto line = file.Line(BOTH);
        for (auto* field : {&p.INSYS, &p.OUTSYS, &p.WATERDEN, &p.SPEEDCOR, &p.SWELLCOR, &p.OUTRAO, &p.EXCITE})
        {
            line.Value(*field, "%.0f");
        }
        line.Integer(p.StationOrigin, GEO);
    }
    file.OnceRead(BOTH, [](auto& project)
                  { project.EXCITE.Set(std::max(project.EXCITE.Value(), kLeastExcitation)); });
    file.Label("Record (b1) //**PPFILE**///");
    file.Label("ondara7.bin");
    file.Label("Record (c) //**ADDITIONAL CONTROL VARIABLES**///");
    file.Line(BOTH).Value(p.LOADFLAG, "%.0f").Value(p.RAWFLAG, "%.0f");
    file.Label("Record (d) //**WAVE FREQUENCIES**///");
    file.Line(ENV).Value(p.WVFREQMIN, "%.4f").Value(p.WVFREQMAX, "%.4f").Value(p.DWVFREQ, "%.4f");
    file.Label("Record (e) //**HYDRO CONTROL VARIABLES**///");
    file.Line(ENV)
        .ValueAtLeast(p.ADDMASS, kLeastAddedMass, "%.0f")
        .Value(p.HYMETHOD, "%.0f")
        .Value(p.HYEND, "%.0f")
        .Value(p.LOWHVCOR, "%.0f");
    file.Label("Record (e1) //**HYFILE///");
    file.Label("ondara7.hy");
    file.Label("Record (f) //**ENCOUNTER FREQUENCIES**///");
    file.Line(ENV).Value(p.ENFREQMIN, "%.4f").Value(p.ENFREQMAX, "%.4f").Value(p.DENFREQ, "%.4f");
}

template <class Archive, class Project>
void SeaDirections(Archive& file, Project& p)
{
    file.Label("Record (g) //**WAVE SPECTRUM**///");
    file.Line(ENV).Value(p.SPECTRUM, "%.0f");
    file.Label("Record (g1) //**NSEADIR & SPREADANG**///");
    file.Line(ENV).Count(p.NSEADIR, kMaxSeaDirections, "%.2f").Value(p.SPREADANG, "%.2f");
    file.Label("Record (g2) //**SEADIR(I)**//");
    file.List(ENV, p.SEADIR.data, 0, p.NSEADIR.Count(kMaxSeaDirections), "%.2f");
    file.Label("Record (g3) //**NSEAWAY**//");
    file.Line(ENV).Value(p.NSEAWAY, "%.2f");
    file.Label("//**EXTRA VARIABLES FOR RECORD (G)**//");
    file.Line(ENV).Tag(p.SeaDirectionUnit).Integer(p.SpreadOption).Number(p.SpreadAngleText, "%.2f");
}

template <class Archive, class Project>
void SeawayTables(Archive& file, Project& p)
{
    file.Label("Record (h1) //**WAVESTEEP**//");
    file.Line(ENV).Value(p.WAVESTEEP, "%.4f");
    file.Label("Record (h2) //**QUADRATIC**//");
    for (int k = 0; k < kMaxSeaways; ++k)
    {
        file.Line(ENV).Value(p.HSW, k, "%.2f").Value(p.TSW, k, "%.2f");
    }
    file.Label("//**BRETSCHNEIDER**//");
    for (std::size_t k = 0; k < kMaxSeaways; ++k)
    {
        file.Line(ENV).Number(p.BretHs[k], "%.2f").Number(p.BretTp[k], "%.2f").Blank();
    }
    file.Label("Record (h3) //**JONSWAP**//");
    for (std::size_t k = 0; k < kMaxSeaways; ++k)
    {
        file.Line(ENV)
            .Number(p.JonswapHs[k], "%.2f")
            .Number(p.JonswapTp[k], "%.2f")
            .Value(p.PEAKENSW, static_cast<int>(k), "%.2f");
    }
    file.Label("Record (h4a) //**INPUTUNI**//");
    file.FileNameLine(ENV, p.SpectrumFile);
    file.Line(ENV).Value(p.SPUNISYS, "%.0f");
    file.Line(ENV).Value(p.NFREQSPUNI, "%.0f");
    file.Label("Record (h5) //**OCHI AND HUBBLE**//");
    for (std::size_t k = 0; k < kMaxSeaways; ++k)
    {
        auto line = file.Line(ENV);
        for (auto* values : {&p.OchiHs1, &p.OchiTp1, &p.OchiLam1, &p.OchiHs2, &p.OchiTp2, &p.OchiLam2})
        {
            line.Number((*values)[k], "%.2f");
        }
        line.Blank();
    }
    file.Label("Record (h6) //**TENPARAM**//");
    for (int k = 0; k < kMaxSeaways; ++k)
    {
        auto line = file.Line(ENV);
        for (auto* field : {&p.ZETA1, &p.OMEGA1, &p.LAMB1, &p.KAPA1, &p.EXPP1, //
                            &p.ZETA2, &p.OMEGA2, &p.LAMB2, &p.KAPA2, &p.EXPP2})
        {
            line.Value(*field, k, "%.2f");
        }
    }
}

template <class Archive, class Project>
void SeawayFilesAndSpeeds(Archive& file, Project& p)
{
    file.Label("Record (h7) //**HINDCAST**//");
    file.FileNameLine(ENV, p.HindcastFile);
    file.Label("Record (h8) //**INPUTDIR**//");
    file.FileNameLine(ENV, p.DirectionalFile);
    file.Label("//**UNIT TYPES FOR RECORD (H)**//");
    // One caption of the form stands over both periods and heights, and over both systems of a seaway.
    file.Line(ENV).Tag(p.HSW, p.TSW).Tag(p.BretUnit).Tag(p.JonswapUnit).Tag(p.OchiUnit).Tag(p.ZETA1, p.ZETA2);
    file.Label("Record (i) //**SHIP SPEEDS**//");
    auto line = file.Line(ENV);
    line.Value(p.NSPEED, "%.0f");
    for (int k = 0; k < kMaxSpeeds; ++k)
    {
        line.Value(p.SPDKNOT, k, "%.2f");
    }
    line.Tag(p.SPDKNOT);
}

template <class Archive, class Project>
void ShipData(Archive& file, Project& p)
{
    file.Label("Record (j) //**BASIC SHIP DATA**//");
    file.Line(GEO)
        .Value(p.SHIPLEN, "%.2f")
        .Value(p.KG, "%.2f")
        .Value(p.PITCHRG, "%.2f")
        .Gap()
        .Tag(p.SHIPLEN)
        .Tag(p.KG)
        .Tag(p.PITCHRG);
    file.Label("Record (k) //**GMFLAG & ROLLRGDEF CONTROL VARS**//");
    file.Line(GEO).Value(p.GMFLAG, "%.0f").Value(p.ROLLRGDEF, "%.0f");
    file.Label("Record (k1) //**GMUSER**//");
    file.Line(GEO).Value(p.GMUSER, "%.2f").Tag(p.GMUSER);
    file.Label("Record (k2) //**ROLLNF**//");
    file.Line(GEO).Value(p.ROLLNF, "%.4f");
    file.Label("Record (k3) //**ROLLRG**//");
    file.Line(GEO).Value(p.ROLLRG, "%.2f").Tag(p.ROLLRG);
    file.Label("Record (k4) //**WETROLLRG**//");
    file.Line(GEO).Value(p.WETROLLRG, "%.2f").Tag(p.WETROLLRG);
}

template <class Archive, class Project>
void StationOffsets(Archive& file, Project& p, int station)
{
    file.Line(GEO).StationHeader(p.XST, station).Note("  //**Station**//");
    file.Line(GEO)
        .Count(p.NOFFUSER, station, kMaxOffsets, "%.0f")
        .Tag(p.YAUSER, p.ZAUSERBL)
        .Note("   //**Number of Offsets and Unit type**//");
    const int count = p.NOFFUSER.Count(kMaxOffsets, station);
    file.Offsets(p.YAUSER.data, station, count);
    file.Offsets(p.ZAUSERBL.data, station, count);
}

template <class Archive, class Project>
void Hull(Archive& file, Project& p)
{
    file.Label("Record (l) //**HULL DEF CONTROL VAR**//");
    file.Line(GEO).Value(p.HULLDEF, "%.0f");
    file.Label("Record (l1) //**STATION DEF'N & SCALING FACTOR**//");
    file.Line(GEO).Count(p.NST, kMaxStations, "%.0f").Gap().Value(p.BEAMSF, "%.3f").Value(p.DRAFTSF, "%.3f");
    file.Label("//**OFFSETS**//");
    const int stations = p.NST.Count(kMaxStations);
    for (int k = 0; k < stations; ++k)
    {
        StationOffsets(file, p, k);
    }
    file.Label("Record (l4) //**BEAMDRAFT & AREA COEFFICIENT**//");
    for (int k = 0; k < stations; ++k)
    {
        file.Line(GEO).Value(p.BEAM, k, "%.3f").Value(p.DRAFT, k, "%.3f").Value(p.ACOEF, k, "%.4f");
    }
    file.Label("//**UNIT TYPES AND EXTRA VARIABLES**//");
    file.Line(GEO).Tag(p.BEAM).Tag(p.DRAFT).Tag(p.ACOEF).Tag(p.SectionAreaUnit);
    file.Label("Record (m) //**TRIMDEF**//");
    file.Line(GEO).Value(p.TRIMDEF, "%.0f");
    file.Label("Record (m1) //**DRAFTMID & TRIMST**//");
    file.Line(GEO).Value(p.DRAFTMID, "%.2f").Value(p.TRIMST, "%.2f").Tag(p.DRAFTMID).Tag(p.TRIMST);
    file.Label("Record (m2) //**DISPUSER & LCGFPUSER**//");
    file.Line(GEO).Value(p.DISPUSER, "%.2f").Value(p.LCGPUSER, "%.2f").Tag(p.DISPUSER).Tag(p.LCGPUSER);
}

/// 1 if any sectional or overhang mass value is not the sentinel.
template <class Project>
int HasMassData(const Project& p)
{
    for (const auto* field : {&p.SECTTN, &p.SECTKG, &p.SECTRRG})
    {
        for (int k = 0; k < p.NST.Count(kMaxStations); ++k)
        {
            if (IsGiven(field->Value(k)))
            {
                return 1;
            }
        }
    }
    const auto overhangs = {&p.BOWTN,   &p.BOWKG,   &p.BOWRRG,   &p.BOWCGFP,   &p.BOWPRG,
                            &p.STERNTN, &p.STERNKG, &p.STERNRRG, &p.STERNCGAP, &p.STERNPRG};
    return std::any_of(overhangs.begin(), overhangs.end(),
                       [](auto* field) { return IsGiven(field->Value()); })
               ? 1
               : 0;
}

template <class Archive, class Project>
void MassDistribution(Archive& file, Project& p)
{
    const auto overhangs = {std::array{&p.BOWTN, &p.BOWKG, &p.BOWRRG, &p.BOWCGFP, &p.BOWPRG},
                            std::array{&p.STERNTN, &p.STERNKG, &p.STERNRRG, &p.STERNCGAP, &p.STERNPRG}};
    const int stations = p.NST.Count(kMaxStations);
    file.Label("Record (n) //**NSTLOAD**//");
    file.Line(GEO).Value(p.NSTLOAD, "%.0f");
    file.Label("Record (n1) //**XSTLOAD(I)**//");
    file.List(GEO, p.XSTLOAD.data, 0, stations, "%.2f");
    file.Label("Record (n2) //**SECTTN(I)**//");
    file.List(GEO, p.SECTTN.data, 0, stations, "%.2f");
    file.Label("Record (n3) //**SECTKG(I)**//");
    file.List(GEO, p.SECTKG.data, 0, stations, "%.2f");
    file.Label("Record (n4) //**SECTRRG(I)**//");
    file.List(GEO, p.SECTRRG.data, 0, stations, "%.2f");
    const char* label = "Record (n5) //**BOW OVERHANG MASS DISTRIBUTION**//";
    for (const auto& overhang : overhangs)
    {
        file.Label(label);
        auto line = file.Line(GEO);
        for (auto* field : overhang)
        {
            line.Value(*field, "%.2f");
        }
        label = "Record (n6) //**STERN OVERHANG MASS DISTRIBUTION**//";
    }
    file.OnceRead(GEO, [](auto& project) { project.MassDataEntered = HasMassData(project); });
    file.Label("//**UNIT TYPES AND EXTRA VARS FOR RECORD (N)**//");
    file.Line(GEO).Tag(p.SECTTN).Tag(p.SECTKG).Tag(p.SECTRRG);
    for (const auto& overhang : overhangs)
    {
        auto line = file.Line(GEO);
        for (auto* field : overhang)
        {
            line.Tag(*field);
        }
    }
    file.Line(GEO)
        .Integer(p.KxxiUserInput)
        .Integer(p.KgUserInput)
        .Integer(p.WaveFreqUserInput)
        .Integer(p.EncFreqUserInput)
        .Integer(p.LoadStationsUserInput)
        .Integer(p.WarnMassLimit);
    file.List(GEO, p.StationSpare, 0, stations, "%.2f");
}

template <class Archive, class Project>
void Position(Archive& file, Project& p, int k)
{
    const auto slot = static_cast<std::size_t>(k);
    file.LabelLine(GEO, p.PositionLabel[slot], "Position" + IntegerText(k + 1));
    file.Line(GEO).Value(p.RELMOCALC, k, "%.0f").Value(p.MIIFLAG, k, "%.0f");
    file.Line(GEO)
        .Value(p.XSTPOS, k, "%.2f")
        .Value(p.YPOS, k, "%.4f")
        .Value(p.ZPOSBL, k, "%.2f")
        .Value(p.DECKHBL, k, "%.2f");
    file.Line(GEO).Value(p.SLFORM, k, "%.4f").Value(p.SLWIDTH, k, "%.3f");
    file.Line(GEO).Count(p.NSLOFF, k, kMaxSlamOffsets, "%.0f").Value(p.ZSLUPBL, k, "%.4f");
    const int offsets = p.NSLOFF.Count(kMaxSlamOffsets, k);
    file.List(GEO, p.YSLOFFBL.data, k * kMaxSlamOffsets, offsets, "%.4f");
    file.List(GEO, p.ZSLOFFBL.data, k * kMaxSlamOffsets, offsets, "%.4f");
    file.Line(GEO).Value(p.DEADR, k, "%.4f").Value(p.SLHEIGHT, k, "%.2f");
    file.Line(GEO).Value(p.TCLAT, k, "%.2f").Value(p.TCLONG, k, "%.2f").Value(p.TIMEOP, k, "%.2f");
    if (file.Revision() >= kRevisionCurrent)
    {
        file.Line(GEO)
            .Switch(p.MSIFlag[slot])
            .Integer(p.MSIMethod[slot])
            .Integer(p.MSIExposureOption[slot])
            .Number(p.MSIExposure[slot], "%.2f");
    }
}

template <class Archive, class Project>
void Positions(Archive& file, Project& p)
{
    file.Label("Record (o) //**POSITIONS FOR SEAKEEPING CALCS & SLAMMING PARAMS**//");
    file.Line(GEO).Count(p.NPOS, kMaxPositions, "%.0f").Value(p.SLAMHOUR, "%.2f").Value(p.SLAMEX, "%.4f");
    file.Label("Record (o1) //**LABELS & CONTROL VARS FOR SEAKEEPING POSITIONS**");
    const int positions = p.NPOS.Count(kMaxPositions);
    for (int k = 0; k < positions; ++k)
    {
        Position(file, p, k);
    }
    file.Label("//**UNIT TYPES AND EXTRA VARS FOR RECORD (O)**//");
    file.Line(GEO).Tag(p.YPOS).Tag(p.ZPOSBL).Tag(p.DECKHBL).Tag(p.SLWIDTH);
    file.List(GEO, p.SlamMidshipDraft, 0, positions, "%.2f");
    file.List(GEO, p.SlamLoadHeight, 0, positions, "%.2f");
}

template <class Archive, class Project>
void BilgeKeelsAndSkeg(Archive& file, Project& p)
{
    file.Label("Record (p) //**NUMBER OF BILGE KEEL PAIRS**//");
    file.Line(GEO).Count(p.NBKPAIR, kMaxBilgeKeelPairs, "%.0f");
    file.Label("Record (p1 & p2) //**BILGE KEEL INFO**//");
    const int pairs = p.NBKPAIR.Count(kMaxBilgeKeelPairs);
    for (int pair = 0; pair < pairs; ++pair)
    {
        file.Line(GEO).Value(p.IFIRSTBK, pair, "%.2f").Value(p.ILASTBK, pair, "%.2f");
        for (int k = pair * kMaxBilgeKeelRows; k < (pair + 1) * kMaxBilgeKeelRows; ++k)
        {
            file.Line(GEO)
                .Value(p.XSTBKFORE, k, "%.2f")
                .Value(p.XSTBKAFT, k, "%.2f")
                .Value(p.YBK, k, "%.3f")
                .Value(p.ZBKBL, k, "%.3f")
                .Value(p.BBK, k, "%.3f");
        }
    }
    file.Label("//**UNIT TYPES AND EXTRA VARS FOR RECORD (P)**//");
    for (int pair = 0; pair < pairs; ++pair)
    {
        file.Line(GEO).Tag(p.YBK).Tag(p.ZBKBL).Tag(p.BBK);
    }
    file.Label("Record (q) //**SKEG DATA**//");
    file.Line(GEO)
        .Value(p.XSTAFTSKEG, "%.2f")
        .Value(p.BSKEG, "%.3f")
        .Value(p.ELSKEG, "%.3f")
        .Tag(p.BSKEG)
        .Tag(p.ELSKEG);
}

template <class Archive, class Project>
void RudderGeometry(Archive& file, Project& p)
{
    file.Label("Record (r) //**RUDDER DATA**//");
    auto line = file.Line(GEO);
    line.Value(p.XSTRUD, "%.2f");
    for (auto* field : {&p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD, &p.CLA0RUD})
    {
        line.Value(*field, "%.3f");
    }
    line.Value(p.ISLIPRUD, "%.0f");
    if (file.Revision() >= kRevisionCurrent)
    {
        line.NumberOr(p.RudderDihedral, kVerticalDihedral, "%.3f");
    }
}

template <class Archive, class Project>
void RudderUnits(Archive& file, Project& p)
{
    file.Label("//**UNIT TYPES FOR RECORD (R)**//");
    auto line = file.Line(GEO);
    for (auto* field : {&p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD})
    {
        line.Tag(*field);
    }
    if (file.Revision() >= kRevisionCurrent)
    {
        // The lateral control's flags are read from here, but the tip chord's flag is written for them.
        for (auto& unit : p.RudderLateralGainUnits)
        {
            line.TagWrittenAs(unit, p.TCRUD.unit);
        }
        line.TagWrittenAs(p.LateralPointZUnit, p.TCRUD.unit);
    }
}

template <class Archive, class Project>
void Rudder(Archive& file, Project& p)
{
    RudderGeometry(file, p);
    file.GainLines("//**Rudder Speed and Heading Dependant Gain and Dependant Cut-off Frequency data",
                   p.RudderGainFileUsed, p.RudderGainFile);
    file.Label("Record (r1) //**RUDDER ROLL GAINS, NAT. FREQ. & DAMPING**//");
    {
        auto line = file.Line(GEO);
        for (auto* field :
             {&p.RAGNRUD, &p.RVGNRUD, &p.RGNRUD, &p.FREQRUD, &p.DAMPRUD, &p.FREQLRUD, &p.FREQHRUD})
        {
            line.Value(*field, "%.4f");
        }
    }
    file.Label("Record (r2) //**RUDDER YAW GAINS**//");
    file.Line(GEO)
        .Value(p.YAGNRUD, "%.4f")
        .Value(p.YVGNRUD, "%.4f")
        .Value(p.YGNRUD, "%.4f")
        .Integer(p.RudderRollStabilization);
    if (file.Revision() >= kRevisionCurrent)
    {
        file.Label("Record (r3) //**RUDDER LATERAL GAINS**//");
        auto line = file.Line(GEO);
        for (auto& gain : p.RudderLateralGains)
        {
            line.Number(gain, "%.4f");
        }
        line.Integer(p.LateralGainPoint)
            .Number(p.LateralPointX, "%.4f")
            .Number(p.LateralPointZ, "%.4f")
            .Blank();
    }
    RudderUnits(file, p);
}

template <class Archive, class Project>
void Foils(Archive& file, Project& p)
{
    file.Label("Record (s) //**NUMBER OF STATIONARY FOIL PAIRS**//");
    file.Line(GEO).Count(p.NFOILPAIR, kMaxFoilPairs, "%.0f");
    file.Label("Record (s1) //**STATIONARY FOIL DATA**//");
    const int pairs = p.NFOILPAIR.Count(kMaxFoilPairs);
    for (int pair = 0; pair < pairs; ++pair)
    {
        auto line = file.Line(GEO);
        line.Value(p.XSTFOIL, pair, "%.2f");
        for (auto* field :
             {&p.YRTFOIL, &p.ZRTFOILBL, &p.SPANFOIL, &p.RCFOIL, &p.TCFOIL, &p.CLA0FOIL, &p.DIFOIL})
        {
            line.Value(*field, pair, "%.4f");
        }
    }
    file.Label("//**UNIT TYPES FOR RECORD (S)**//");
    {
        auto line = file.Line(GEO);
        for (auto* field : {&p.YRTFOIL, &p.ZRTFOILBL, &p.SPANFOIL, &p.RCFOIL, &p.TCFOIL})
        {
            line.Tag(*field);
        }
        for (int pair = 0; pair < kMaxFoilPairs; ++pair)
        {
            line.ValueSwitch(p.CLA0COMPUTE, pair);
        }
        line.Blank();
    }
    file.Label("//**EXTRA VARIABLES FOR RECORDS (P - S)**//");
    file.Line(GEO)
        .Integer(p.AppendedHull)
        .Tag(p.IncludeSkeg)
        .Tag(p.IncludeFoils)
        .Tag(p.IncludeBilgeKeels)
        .Tag(p.IncludeRudder)
        .Tag(p.IncludeStabilizer);
}

template <class Archive, class Project>
void Fins(Archive& file, Project& p)
{
    file.Label("Record (t) //**FINTANKSTAB**//");
    file.Line(GEO).Value(p.FINTANKSTAB, "%.0f");
    file.GainLines("//**Fin Speed and Heading Dependant Gain and Speed Dependant Cut-off Frequency data",
                   p.FinGainFileUsed, p.FinGainFile);
    file.Label("Record (u) //**NFINPAIR**//");
    file.Line(GEO).Count(p.NFINPAIR, kMaxFinPairs, "%.0f");
    file.Label("Record (u1) //**STABILIZATION FIN DATA**//");
    const int pairs = p.NFINPAIR.Count(kMaxFinPairs);
    for (int pair = 0; pair < pairs; ++pair)
    {
        auto line = file.Line(GEO);
        line.Value(p.XSTFIN, pair, "%.2f");
        for (auto* field :
             {&p.YRTFIN, &p.ZFINBL, &p.SPANFIN, &p.RCFIN, &p.TCFIN, &p.CLA0FIN, &p.DIFIN, &p.CLA0COMPUTE2})
        {
            line.Value(*field, pair, "%.4f");
        }
    }
    // The fins of a project without fin stabilization are kept in their slots, but not counted.
    file.OnceRead(GEO,
                  [](auto& project)
                  {
                      if (project.FINTANKSTAB.Value() == 0)
                      {
                          project.NFINPAIR.Set(0);
                      }
                  });
    {
        auto line = file.Line(GEO);
        for (auto* field : {&p.RAGNFIN, &p.RVGNFIN, &p.RGNFIN, &p.FREQFIN, &p.DAMPFIN, &p.FREQHFIN})
        {
            line.Value(*field, "%.4f");
        }
        if (file.Revision() >= kRevisionCurrent)
        {
            for (auto& gain : p.FinYawGains)
            {
                line.Number(gain, "%.4f");
            }
        }
    }
    file.Label("//**UNIT TYPES FOR RECORD (U)**//");
    auto line = file.Line(GEO);
    for (auto* field : {&p.YRTFIN, &p.ZFINBL, &p.SPANFIN, &p.RCFIN, &p.TCFIN})
    {
        line.Tag(*field);
    }
    line.Blank();
}

template <class Archive, class Project>
void Tank(Archive& file, Project& p)
{
    file.Label("Record (v) //**U-TUBE ROLL STABILIZATION TANK DATA**//");
    {
        auto line = file.Line(GEO);
        for (auto* field : {&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.ALTANK, &p.HDTANK})
        {
            line.Value(*field, "%.4f");
        }
    }
    {
        auto line = file.Line(GEO);
        line.Value(p.ZTANKBL, "%.4f").Value(p.XSTTANK, "%.2f");
        for (auto* field : {&p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK, &p.BFREQTANK})
        {
            line.Value(*field, "%.4f");
        }
    }
    file.Label("//**UNIT TYPES FOR RECORD (V)**//");
    auto line = file.Line(GEO);
    for (auto* field : {&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.HDTANK, &p.ZTANKBL})
    {
        line.Tag(*field);
    }
}

/// The whole file behind title and magic. A reader of the environment alone ends where the ship begins.
template <class Archive, class Project>
void Walk(Archive& file, Project& p)
{
    ControlVariables(file, p);
    SeaDirections(file, p);
    SeawayTables(file, p);
    SeawayFilesAndSpeeds(file, p);
    if (!file.Reads(GEO))
    {
        return;
    }
    ShipData(file, p);
    Hull(file, p);
    MassDistribution(file, p);
    Positions(file, p);
    BilgeKeelsAndSkeg(file, p);
    Rudder(file, p);
    Foils(file, p);
    Fins(file, p);
    Tank(file, p);
}
} // namespace InputFileFormat
