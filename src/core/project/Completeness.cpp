// Which sections of a project have all their required values, told from the data.
#include "core/project/CProjectData.h"

#include <initializer_list>

namespace
{
using CFields = std::initializer_list<const CParamArray*>;

/// Whether each field's value at an index is given.
bool Given(CFields fields, int index = 0)
{
    return std::all_of(fields.begin(), fields.end(),
                       [index](const CParamArray* field) { return IsGiven(field->Value(index)); });
}

bool GainsGiven(CFields fields)
{
    return std::all_of(fields.begin(), fields.end(),
                       [](const CParamArray* field) { return IsGiven(field->Value(), kGainNotGiven); });
}

bool GainsGiven(const CThreeFloats& gains)
{
    return std::all_of(gains.begin(), gains.end(), [](float gain) { return IsGiven(gain, kGainNotGiven); });
}

/// Whether a predicate holds for each index below a count.
template <class Predicate>
bool Each(int count, Predicate&& holds)
{
    for (int k = 0; k < count; ++k)
    {
        if (!holds(k))
        {
            return false;
        }
    }
    return true;
}

bool IsGainFileNamed(const std::string& name)
{
    return !name.empty() && name != kNoGainFile && name != "NOFILE";
}

bool IsSpectrumFileNamed(const std::string& name)
{
    return !name.empty() && name != kNoSpectrumFile;
}

bool IsTankComplete(const CProjectData& p)
{
    return Given({&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.ALTANK, &p.HDTANK, &p.ZTANKBL, &p.XSTTANK,
                  &p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK, &p.BFREQTANK});
}

/// Rows 0 to last station minus first station of each pair are in use.
bool AreBilgeKeelsComplete(const CProjectData& p)
{
    return Each(p.NBKPAIR.Count(kMaxBilgeKeelPairs),
                [&p](int pair)
                {
                    const double rows =
                        static_cast<double>(p.ILASTBK.Integer(pair)) - p.IFIRSTBK.Integer(pair) + 1;
                    return Given({&p.IFIRSTBK, &p.ILASTBK}, pair) &&
                           Each(static_cast<int>(std::clamp<double>(rows, 0, kMaxBilgeKeelRows)),
                                [&p, pair](int row) {
                                    return Given({&p.XSTBKFORE, &p.XSTBKAFT, &p.YBK, &p.ZBKBL, &p.BBK},
                                                 pair * kMaxBilgeKeelRows + row);
                                });
                });
}

bool AreOffsetsComplete(const CProjectData& p)
{
    const int stations = p.NST.Count(kMaxStations);
    return stations >= 1 &&
           Each(stations,
                [&p](int station)
                {
                    const int offsets = p.NOFFUSER.Count(kMaxOffsets, station);
                    return offsets >= 1 &&
                           Each(offsets,
                                [&p, station](int k) {
                                    return Given({&p.YAUSER, &p.ZAUSERBL}, station * kMaxOffsets + k);
                                });
                });
}

/// The first slot of CLA0COMPUTE decides for all pairs, and an incidence of -1 counts as missing, here only.
bool AreFoilsComplete(const CProjectData& p)
{
    const bool liftCurveTyped = p.CLA0COMPUTE.Value() == 1;
    return Each(
        p.NFOILPAIR.Count(kMaxFoilPairs),
        [&p, liftCurveTyped](int pair)
        {
            return Given({&p.XSTFOIL, &p.YRTFOIL, &p.ZRTFOILBL, &p.SPANFOIL, &p.RCFOIL, &p.TCFOIL, &p.DIFOIL},
                         pair) &&
                   (!liftCurveTyped || Given({&p.CLA0FOIL}, pair));
        });
}

bool IsHullComplete(const CProjectData& p)
{
    const bool loading =
        p.TRIMDEF.Integer() != 0 ? Given({&p.DISPUSER, &p.LCGPUSER}) : Given({&p.DRAFTMID, &p.TRIMST});
    return Given({&p.HULLDEF, &p.TRIMDEF}) && p.NST.Integer() >= 1 && loading;
}

bool AreMassesComplete(const CProjectData& p)
{
    if (p.LOADFLAG.Value() < 1)
    {
        return true;
    }
    return Given({&p.BOWTN, &p.BOWKG, &p.BOWRRG, &p.BOWCGFP, &p.BOWPRG, &p.STERNTN, &p.STERNKG, &p.STERNRRG,
                  &p.STERNCGAP, &p.STERNPRG}) &&
           Each(p.NST.Count(kMaxStations),
                [&p](int station)
                {
                    return Given({&p.SECTTN}, station) &&
                           (p.KgUserInput != 1 || Given({&p.SECTKG}, station)) &&
                           (p.KxxiUserInput != 1 || Given({&p.SECTRRG}, station));
                });
}

bool AreFrequenciesComplete(const CProjectData& p)
{
    return (p.WaveFreqUserInput != 1 || Given({&p.WVFREQMIN, &p.WVFREQMAX, &p.DWVFREQ})) &&
           (p.EncFreqUserInput != 1 || Given({&p.ENFREQMIN, &p.ENFREQMAX, &p.DENFREQ}));
}

bool AreParticularsComplete(const CProjectData& p)
{
    const auto roll = {&p.ROLLNF, &p.ROLLRG, &p.WETROLLRG};
    const int choice = p.ROLLRGDEF.Integer();
    return Given({&p.SHIPLEN, &p.KG, &p.PITCHRG}) && (p.GMFLAG.Value() != 1 || Given({&p.GMUSER})) &&
           (choice < 0 || choice > 2 || Given({roll.begin()[choice]}));
}

/// The control system: its gain file, or all nine values of the control table. Each pair: all but the lift
/// curve, and that too where its box says that it is typed.
bool AreFinsComplete(const CProjectData& p)
{
    const bool control = p.FinGainFileUsed == 1
                             ? IsGainFileNamed(p.FinGainFile)
                             : GainsGiven({&p.RAGNFIN, &p.RVGNFIN, &p.RGNFIN}) && GainsGiven(p.FinYawGains) &&
                                   Given({&p.FREQFIN, &p.DAMPFIN, &p.FREQHFIN});
    return control &&
           Each(p.NFINPAIR.Count(kMaxFinPairs),
                [&p](int pair)
                {
                    return Given({&p.XSTFIN, &p.YRTFIN, &p.ZFINBL, &p.SPANFIN, &p.RCFIN, &p.TCFIN}, pair) &&
                           IsGiven(p.DIFIN.Value(pair), kAngleNotGiven) &&
                           (p.CLA0COMPUTE2.Value(pair) != 1 || Given({&p.CLA0FIN}, pair));
                });
}

/// With roll stabilization: natural frequency and damping; then the gain file, or all gains and cutoffs, with
/// the point that the lateral gains act at if it is a specified one.
bool IsRudderControlComplete(const CProjectData& p)
{
    if (p.RudderRollStabilization != 1)
    {
        return true;
    }
    if (!Given({&p.FREQRUD, &p.DAMPRUD}))
    {
        return false;
    }
    if (p.RudderGainFileUsed == 1)
    {
        return IsGainFileNamed(p.RudderGainFile);
    }
    return GainsGiven({&p.RAGNRUD, &p.RVGNRUD, &p.RGNRUD, &p.YAGNRUD, &p.YVGNRUD, &p.YGNRUD}) &&
           Given({&p.FREQLRUD, &p.FREQHRUD}) && GainsGiven(p.RudderLateralGains) &&
           (p.LateralGainPoint != 1 || (IsGiven(p.LateralPointX) && IsGiven(p.LateralPointZ)));
}

/// The geometry, with the dihedral's private sentinel, and the control system.
bool IsRudderComplete(const CProjectData& p)
{
    return Given({&p.XSTRUD, &p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD, &p.CLA0RUD}) &&
           IsGiven(p.RudderDihedral, kAngleNotGiven) && IsRudderControlComplete(p);
}

bool AreSeaDirectionsComplete(const CProjectData& p)
{
    return p.NSEADIR.Integer() >= 1 &&
           Each(p.NSEADIR.Count(kMaxSeaDirections), [&p](int k) { return Given({&p.SEADIR}, k); });
}

/// What slamming by the method in RELMOCALC asks for: 1 form factor, 2 offsets, 3 wedge.
bool IsSlammingComplete(const CProjectData& p, int position)
{
    const auto slot = static_cast<std::size_t>(position);
    switch (p.RELMOCALC.Integer(position))
    {
    case 1:
        return Given({&p.SLFORM, &p.SLWIDTH}, position);
    case 2:
        return Given({&p.NSLOFF, &p.ZSLUPBL}, position) && IsGiven(p.SlamMidshipDraft[slot]) &&
               IsGiven(p.SlamLoadHeight[slot]) &&
               Each(p.NSLOFF.Count(kMaxSlamOffsets, position),
                    [&p, position](int k) {
                        return Given({&p.YSLOFFBL, &p.ZSLOFFBL}, position * kMaxSlamOffsets + k);
                    });
    case 3:
        return Given({&p.DEADR, &p.SLHEIGHT}, position);
    default:
        return true;
    }
}

/// The count and the two common values. Each position: its place, the deck height where relative motion is
/// wanted, the values of the slamming method, and the exposure where motion sickness is asked for by exposure
/// time.
bool ArePositionsComplete(const CProjectData& p)
{
    return Given({&p.NPOS, &p.SLAMHOUR, &p.SLAMEX}) &&
           Each(p.NPOS.Count(kMaxPositions),
                [&p](int k)
                {
                    const auto slot = static_cast<std::size_t>(k);
                    const int relativeMotion = p.RELMOCALC.Integer(k);
                    const bool deckHeight = relativeMotion >= 1 && relativeMotion <= 4;
                    const bool exposure = p.MSIFlag[slot] == 1 && p.MSIExposureOption[slot] == 0;
                    return Given({&p.XSTPOS, &p.YPOS, &p.ZPOSBL}, k) &&
                           (!deckHeight || Given({&p.DECKHBL}, k)) && IsSlammingComplete(p, k) &&
                           (!exposure || IsGiven(p.MSIExposure[slot]));
                });
}

bool AreSectionAreasComplete(const CProjectData& p)
{
    return Each(p.NST.Count(kMaxStations),
                [&p](int station) {
                    return Given({&p.BEAM, &p.DRAFT, &p.ACOEF}, station);
                });
}

/// Whether each seaway up to the count has all its values; a table without seaways is incomplete.
bool IsSeawayTableComplete(const CProjectData& p)
{
    using CColumns = std::initializer_list<const float*>;
    const auto complete = [&p](CColumns columns)
    {
        const int seaways = p.NSEAWAY.Count(kMaxSeaways);
        return seaways >= 1 &&
               Each(seaways,
                    [&columns](int k)
                    {
                        return std::all_of(columns.begin(), columns.end(),
                                           [k](const float* column) { return IsGiven(column[k]); });
                    });
    };
    switch (p.SPECTRUM.Integer())
    {
    case 1:
        return complete({p.HSW.data.data(), p.TSW.data.data()});
    case 2:
        return complete({p.BretHs.data(), p.BretTp.data()});
    case 3:
        return complete({p.JonswapHs.data(), p.JonswapTp.data(), p.PEAKENSW.data.data()});
    case 4:
        return complete({p.OchiHs1.data(), p.OchiTp1.data(), p.OchiLam1.data(), p.OchiHs2.data(),
                         p.OchiTp2.data(), p.OchiLam2.data()});
    case 6:
        return complete({p.ZETA1.data.data(), p.OMEGA1.data.data(), p.LAMB1.data.data(), p.KAPA1.data.data(),
                         p.EXPP1.data.data(), p.ZETA2.data.data(), p.OMEGA2.data.data(), p.LAMB2.data.data(),
                         p.KAPA2.data.data(), p.EXPP2.data.data()});
    default:
        return false;
    }
}

bool IsWaveComplete(const CProjectData& p)
{
    const int spectrum = p.SPECTRUM.Integer();
    if (spectrum >= 1 && spectrum <= 5 && p.SpreadOption == 1 && !Given({&p.SPREADANG}))
    {
        return false;
    }
    switch (spectrum)
    {
    case 0:
        return Given({&p.WAVESTEEP});
    case 5:
        return IsSpectrumFileNamed(p.SpectrumFile) && p.NFREQSPUNI.Integer() >= 1;
    case 7:
        return IsSpectrumFileNamed(p.HindcastFile);
    case 8:
        return IsSpectrumFileNamed(p.DirectionalFile);
    default:
        return IsSeawayTableComplete(p);
    }
}
} // namespace

void CProjectData::RecomputeCompleteness()
{
    const auto flag = [](bool complete) { return complete ? 1 : 0; };
    TankComplete = flag(IsTankComplete(*this));
    BilgeKeelComplete = flag(AreBilgeKeelsComplete(*this));
    OffsetsComplete = flag(AreOffsetsComplete(*this));
    FoilComplete = flag(AreFoilsComplete(*this));
    HullComplete = flag(IsHullComplete(*this));
    MassComplete = flag(AreMassesComplete(*this));
    FrequenciesComplete = flag(AreFrequenciesComplete(*this));
    SpeedsComplete = flag(NSPEED.Integer() >= 1);
    ParticularsComplete = flag(AreParticularsComplete(*this));
    FinComplete = flag(AreFinsComplete(*this));
    RudderComplete = flag(IsRudderComplete(*this));
    SeaDirectionsComplete = flag(AreSeaDirectionsComplete(*this));
    PositionsComplete = flag(ArePositionsComplete(*this));
    SectionAreasComplete = flag(AreSectionAreasComplete(*this));
    SkegComplete = flag(Given({&XSTAFTSKEG, &BSKEG, &ELSKEG}));
    WaveComplete = flag(IsWaveComplete(*this));
    if (SPECTRUM.Integer() > 5)
    {
        // The directions of these spectra come from their file.
        SeaDirectionsComplete = 1;
    }
}
