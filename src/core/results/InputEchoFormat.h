// The one definition of the input echo: its records in order, with what their presence depends on. Writer and
// reader walk it; the archive that walks decides what an item does.
//
// An archive has
//   Value(field, index)          one float; Values is the same of several fields
//   Count(field, limit, index)   a float that counts what follows; gives the checked count
//   List(field, first, count)    floats of one field
//   Number, Integer, Text        one float, one integer, one text
//   Flag(field, index)           a float that is an integer in the file
//   Switch(flag, on, off)        a word that is there if it is one of the two, and whether it is
//   Mark(word)                   a word that is there if it is this one, and whether it is
//   Unread(fields)               words that no reader takes
//   GMCode, LoadStations, PositionCount, KeelRows   items with rules of their own
//   HasMagic()                   whether the file is of the current form
#pragma once

#include "core/project/CProjectData.h"

#include <cstddef>

namespace InputEchoFormat
{
constexpr int kFirstSpectrumWithDirections = 6;
constexpr int kMarkDihedral = 23;
constexpr int kMarkGainsTyped = 5;
constexpr int kMarkGainFile = 6;
constexpr int kMarkSickness = 26;
constexpr int kMarkNoSickness = 27;

template <class Archive, class Project>
void ControlVariables(Archive& file, Project& p)
{
    file.Values({&p.INSYS, &p.OUTSYS, &p.WATERDEN, &p.SPEEDCOR, &p.SWELLCOR, &p.OUTRAO, &p.EXCITE});
    file.Unread({&p.NSEADIR});
    file.Values({&p.LOADFLAG, &p.RAWFLAG});
    file.Values({&p.WVFREQMIN, &p.WVFREQMAX, &p.DWVFREQ});
    file.Values({&p.ADDMASS, &p.HYMETHOD, &p.HYEND, &p.LOWHVCOR});
    file.Values({&p.ENFREQMIN, &p.ENFREQMAX, &p.DENFREQ});
}

template <class Archive, class Project>
void SeaDirections(Archive& file, Project& p)
{
    file.Value(p.SPECTRUM);
    if (p.SPECTRUM.Integer() < kFirstSpectrumWithDirections)
    {
        const int directions = file.Count(p.NSEADIR, kMaxSeaDirections);
        file.Value(p.SPREADANG);
        file.List(p.SEADIR, 0, directions);
    }
}

template <class Archive, class Project>
void Seaways(Archive& file, Project& p)
{
    const int seaways = file.Count(p.NSEAWAY, kMaxSeaways);
    const int spectrum = p.SPECTRUM.Integer();
    for (int k = 0; k < seaways; ++k)
    {
        const auto slot = static_cast<std::size_t>(k);
        switch (spectrum)
        {
        case 1:
            file.Values({&p.HSW, &p.TSW}, k);
            break;
        case 2:
            file.Number(p.BretHs, slot);
            file.Number(p.BretTp, slot);
            break;
        case 3:
            file.Number(p.JonswapHs, slot);
            file.Number(p.JonswapTp, slot);
            file.Value(p.PEAKENSW, k);
            break;
        case 4:
            for (auto* values : {&p.OchiHs1, &p.OchiTp1, &p.OchiLam1, &p.OchiHs2, &p.OchiTp2, &p.OchiLam2})
            {
                file.Number(*values, slot);
            }
            break;
        case 6:
            file.Values({&p.ZETA1, &p.OMEGA1, &p.LAMB1, &p.KAPA1, &p.EXPP1, //
                         &p.ZETA2, &p.OMEGA2, &p.LAMB2, &p.KAPA2, &p.EXPP2},
                        k);
            break;
        default:
            break;
        }
    }
}

template <class Archive, class Project>
void SeaAndSpeeds(Archive& file, Project& p)
{
    SeaDirections(file, p);
    Seaways(file, p);
    switch (p.SPECTRUM.Integer())
    {
    case 0:
        file.Value(p.WAVESTEEP);
        break;
    case 5:
        file.Text(p.SpectrumFile);
        file.Values({&p.SPUNISYS, &p.NFREQSPUNI});
        break;
    case 7:
        file.Text(p.HindcastFile);
        break;
    case 8:
        file.Text(p.DirectionalFile);
        break;
    default:
        break;
    }
    const int speeds = file.Count(p.NSPEED, kMaxSpeeds);
    file.List(p.SPDKNOT, 0, speeds);
}

template <class Archive, class Project>
void ShipData(Archive& file, Project& p)
{
    file.Values({&p.SHIPLEN, &p.KG, &p.PITCHRG});
    file.GMCode(p.GMFLAG);
    file.Value(p.ROLLRGDEF);
    if (p.GMFLAG.Integer() == 1)
    {
        file.Value(p.GMUSER);
    }
    switch (p.ROLLRGDEF.Integer())
    {
    case 0:
        file.Value(p.ROLLNF);
        break;
    case 1:
        file.Value(p.ROLLRG);
        break;
    case 2:
        file.Value(p.WETROLLRG);
        break;
    default:
        break;
    }
}

template <class Archive, class Project>
void Stations(Archive& file, Project& p, int stations)
{
    const int definition = p.HULLDEF.Integer();
    for (int k = 0; k < stations; ++k)
    {
        if (definition == 0)
        {
            file.Value(p.XST, k);
            const int offsets = file.Count(p.NOFFUSER, kMaxOffsets, k);
            file.List(p.YAUSER, k * kMaxOffsets, offsets);
            file.List(p.ZAUSERBL, k * kMaxOffsets, offsets);
        }
        else if (definition == 1)
        {
            file.Values({&p.XST, &p.BEAM, &p.DRAFT, &p.ACOEF}, k);
        }
    }
}

template <class Archive, class Project>
void Hull(Archive& file, Project& p)
{
    file.Value(p.HULLDEF);
    const int stations = file.Count(p.NST, kMaxStations);
    file.Unread({&p.NST, &p.BEAMSF, &p.DRAFTSF});
    Stations(file, p, stations);
    file.Value(p.TRIMDEF);
    if (p.TRIMDEF.Integer() == 0)
    {
        file.Values({&p.DRAFTMID, &p.TRIMST});
    }
    else if (p.TRIMDEF.Integer() == 1)
    {
        file.Values({&p.DISPUSER, &p.LCGPUSER});
    }
}

template <class Archive, class Project>
void MassDistribution(Archive& file, Project& p)
{
    if (p.LOADFLAG.Integer() != 0)
    {
        return;
    }
    const int loadStations = file.Count(p.NSTLOAD, kMaxStations);
    file.LoadStations(p.XSTLOAD, loadStations);
    for (auto* field : {&p.SECTTN, &p.SECTKG, &p.SECTRRG})
    {
        file.List(*field, 0, p.NST.Count(kMaxStations));
    }
    file.Values({&p.BOWTN, &p.BOWKG, &p.BOWRRG, &p.BOWCGFP, &p.BOWPRG});
    file.Values({&p.STERNTN, &p.STERNKG, &p.STERNRRG, &p.STERNCGAP, &p.STERNPRG});
}

template <class Archive, class Project>
void Slamming(Archive& file, Project& p, int k)
{
    switch (p.RELMOCALC.Integer(k))
    {
    case 1:
        file.Values({&p.SLFORM, &p.SLWIDTH}, k);
        break;
    case 2:
    {
        const int offsets = file.Count(p.NSLOFF, kMaxSlamOffsets, k);
        file.Value(p.ZSLUPBL, k);
        file.List(p.YSLOFFBL, k * kMaxSlamOffsets, offsets);
        file.List(p.ZSLOFFBL, k * kMaxSlamOffsets, offsets);
        for (auto* values : {&p.SlamMidshipDraft, &p.SlamLoadHeight})
        {
            for (std::size_t slot = 0; slot < values->size(); ++slot)
            {
                file.Number(*values, slot);
            }
        }
        break;
    }
    case 3:
        file.Values({&p.DEADR, &p.SLHEIGHT}, k);
        break;
    default:
        break;
    }
}

template <class Archive, class Project>
void Positions(Archive& file, Project& p)
{
    const int positions = file.PositionCount(p.NPOS);
    file.Values({&p.SLAMHOUR, &p.SLAMEX});
    for (int k = 0; k < positions; ++k)
    {
        const auto slot = static_cast<std::size_t>(k);
        file.Text(p.PositionLabel[slot]);
        file.Values({&p.RELMOCALC, &p.MIIFLAG}, k);
        file.Values({&p.XSTPOS, &p.YPOS, &p.ZPOSBL}, k);
        if (p.RELMOCALC.Integer(k) > 0 && p.RELMOCALC.Integer(k) < 5)
        {
            file.Value(p.DECKHBL, k);
        }
        Slamming(file, p, k);
        if (p.MIIFLAG.Integer(k) == 1)
        {
            file.Values({&p.TCLAT, &p.TCLONG, &p.TIMEOP}, k);
        }
        if (file.Switch(p.MSIFlag[slot], kMarkSickness, kMarkNoSickness))
        {
            file.Integer(p.MSIMethod[slot]);
            file.Integer(p.MSIExposureOption[slot]);
            file.Number(p.MSIExposure, slot);
        }
    }
}

template <class Archive, class Project>
void BilgeKeelsAndSkeg(Archive& file, Project& p)
{
    const int pairs = file.Count(p.NBKPAIR, kMaxBilgeKeelPairs);
    for (int pair = 0; pair < pairs; ++pair)
    {
        file.Values({&p.IFIRSTBK, &p.ILASTBK}, pair);
        const int first = pair * kMaxBilgeKeelRows;
        const int rows = file.KeelRows(p.IFIRSTBK.Value(pair), p.ILASTBK.Value(pair));
        for (int k = first; k < first + rows; ++k)
        {
            file.Values({&p.XSTBKFORE, &p.XSTBKAFT, &p.YBK, &p.ZBKBL, &p.BBK}, k);
        }
    }
    file.Values({&p.XSTAFTSKEG, &p.BSKEG, &p.ELSKEG});
}

template <class Archive, class Project>
void Rudder(Archive& file, Project& p)
{
    file.Values({&p.XSTRUD, &p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD, &p.CLA0RUD, &p.ISLIPRUD});
    if (file.Mark(kMarkDihedral))
    {
        file.Number(p.RudderDihedral);
    }
    if (file.Switch(p.RudderGainFileUsed, kMarkGainFile, kMarkGainsTyped))
    {
        file.Text(p.RudderGainFile);
    }
    file.Values({&p.RAGNRUD, &p.RVGNRUD, &p.RGNRUD, &p.FREQRUD, &p.DAMPRUD, &p.FREQLRUD, &p.FREQHRUD});
    file.Values({&p.YAGNRUD, &p.YVGNRUD, &p.YGNRUD});
    if (file.HasMagic())
    {
        file.Integer(p.LateralGainPoint);
        for (auto& gain : p.RudderLateralGains)
        {
            file.Number(gain);
        }
        file.Number(p.LateralPointX);
        file.Number(p.LateralPointZ);
    }
}

template <class Archive, class Project>
void Foils(Archive& file, Project& p)
{
    const int pairs = file.Count(p.NFOILPAIR, kMaxFoilPairs);
    for (int k = 0; k < pairs; ++k)
    {
        file.Values(
            {&p.XSTFOIL, &p.YRTFOIL, &p.ZRTFOILBL, &p.SPANFOIL, &p.RCFOIL, &p.TCFOIL, &p.CLA0FOIL, &p.DIFOIL},
            k);
    }
}

template <class Archive, class Project>
void Fins(Archive& file, Project& p)
{
    const int pairs = file.Count(p.NFINPAIR, kMaxFinPairs);
    if (pairs < 1)
    {
        return;
    }
    for (int k = 0; k < pairs; ++k)
    {
        file.Values({&p.XSTFIN, &p.YRTFIN, &p.ZFINBL, &p.SPANFIN, &p.RCFIN, &p.TCFIN, &p.CLA0FIN}, k);
    }
    file.Values({&p.RAGNFIN, &p.RVGNFIN, &p.RGNFIN, &p.FREQFIN, &p.DAMPFIN, &p.FREQHFIN});
    if (file.HasMagic())
    {
        for (auto& gain : p.FinYawGains)
        {
            file.Number(gain);
        }
    }
}

template <class Archive, class Project>
void Stabilizers(Archive& file, Project& p)
{
    file.Value(p.FINTANKSTAB);
    if (file.Switch(p.FinGainFileUsed, kMarkGainFile, kMarkGainsTyped))
    {
        file.Text(p.FinGainFile);
    }
    if (p.FINTANKSTAB.Integer() == 1)
    {
        Fins(file, p);
    }
    else if (p.FINTANKSTAB.Integer() == 2)
    {
        file.Values({&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.ALTANK, &p.HDTANK, &p.ZTANKBL,
                     &p.XSTTANK, &p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK, &p.BFREQTANK});
    }
}

/// All records up to the unit words.
template <class Archive, class Project>
void Walk(Archive& file, Project& p)
{
    ControlVariables(file, p);
    SeaAndSpeeds(file, p);
    ShipData(file, p);
    Hull(file, p);
    MassDistribution(file, p);
    Positions(file, p);
    BilgeKeelsAndSkeg(file, p);
    Rudder(file, p);
    Foils(file, p);
    Stabilizers(file, p);
    file.Integer(p.RudderRollStabilization);
    file.Integer(p.WarnMassLimit);
    for (auto* field : {&p.CLA0COMPUTE, &p.CLA0COMPUTE2})
    {
        for (int k = 0; k < field->Capacity(); ++k)
        {
            file.Flag(*field, k);
        }
    }
}
} // namespace InputEchoFormat
