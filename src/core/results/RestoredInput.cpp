// Restoring a project from an input echo.
#include "core/results/CReadEcho.h"
#include "core/results/EchoUnits.h"
#include "core/results/InputEcho.h"
#include "core/results/InputEchoFormat.h"

#include <algorithm>
#include <initializer_list>

namespace
{
// The forms store 2 or 3 as excitation and 3 or 4 as added mass option; older files hold less.
constexpr float kLeastExcitation = 2.0F;
constexpr float kLeastAddedMass = 3.0F;

/// Takes the load stations only where they are the user's own; otherwise they are the hull's.
class CRestoredEcho : public CReadEcho
{
public:
    CRestoredEcho(CResultsCursor& cursor, bool hasMagic, CProjectData& project)
        : CReadEcho(cursor, hasMagic),
          m_project(project)
    {
    }

    void LoadStations(CParamArray& field, int count)
    {
        if (m_project.NSTLOAD.Value() < m_project.NST.Value())
        {
            m_project.LoadStationsUserInput = 1;
        }
        if (m_project.LoadStationsUserInput == 1)
        {
            List(field, 0, count);
            return;
        }
        m_cursor.Skip(static_cast<std::size_t>(count) * sizeof(float));
        for (int k = 0; k < count; ++k)
        {
            m_project.StationSpare[static_cast<std::size_t>(k)] = static_cast<float>(k);
        }
    }

private:
    CProjectData& m_project;
};

/// Whether a value below a count meets a condition.
template <class Condition>
bool AnyOf(const CParamArray& field, int count, Condition condition)
{
    const auto end = field.data.begin() + count;
    return std::any_of(field.data.begin(), end, condition);
}

bool AnyAboveZero(std::initializer_list<const CParamArray*> fields)
{
    return std::any_of(fields.begin(), fields.end(),
                       [](const CParamArray* field) { return field->Value() > 0; });
}

bool IsMassDataWhole(const CProjectData& p)
{
    const auto missing = [&](const CParamArray& field)
    { return AnyOf(field, p.NST.Count(kMaxStations), [](float value) { return !IsGiven(value); }); };
    return p.NSTLOAD.Integer() >= 1 && !missing(p.SECTTN) && !missing(p.SECTKG) && !missing(p.SECTRRG);
}

void Adjust(CProjectData& p)
{
    p.EXCITE.Set(std::max(p.EXCITE.Value(), kLeastExcitation));
    p.ADDMASS.Set(std::max(p.ADDMASS.Value(), kLeastAddedMass));
    if (p.YAUSER.Value() == kFirstOffset)
    {
        p.YAUSER.Set(0);
    }
    p.MassDataEntered = IsMassDataWhole(p) ? 1 : 0;
}

void Scale(const CUnitWord& word, int inSystem)
{
    const float factor = FactorOutOfFile(word.Quantity, inSystem, *word.Tag);
    for (const CEchoValues& part : word.Values)
    {
        for (float& value : part.Values)
        {
            value = IsGiven(value) ? value * factor : value;
        }
    }
}

void ReadUnitWords(CResultsCursor& cursor, bool hasMagic, CProjectData& p)
{
    for (const CUnitWord& word : UnitWords(p))
    {
        if (word.OnlyWithMagic && !hasMagic)
        {
            continue;
        }
        const int tag = cursor.Integer();
        if (word.IsRead)
        {
            *word.Tag = tag;
        }
        for (int* follower : word.Followers)
        {
            *follower = *word.Tag;
        }
        if (word.Converts)
        {
            Scale(word, p.INSYS.Integer());
        }
    }
}

void DeriveAppendages(CProjectData& p)
{
    p.IncludeBilgeKeels = p.NBKPAIR.Integer() >= 1;
    p.IncludeSkeg = AnyAboveZero({&p.XSTAFTSKEG, &p.BSKEG, &p.ELSKEG});
    p.IncludeRudder =
        AnyAboveZero({&p.XSTRUD, &p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD, &p.CLA0RUD});
    p.IncludeFoils = p.NFOILPAIR.Integer() >= 1;
    p.AppendedHull = p.IncludeBilgeKeels | p.IncludeSkeg | p.IncludeRudder | p.IncludeFoils;
}

void DeriveUserInput(CProjectData& p)
{
    const bool defaultWaves =
        p.WVFREQMIN.Value() == 0.2F && p.WVFREQMAX.Value() == 2.0F && p.DWVFREQ.Value() == 0.1F;
    const bool defaultEncounter =
        p.ENFREQMIN.Value() == 0 && p.ENFREQMAX.Value() == 0 && p.DENFREQ.Value() == 0;
    const int stations = p.NST.Count(kMaxStations);
    const float height = p.KG.Value();
    p.SpreadOption = p.SPREADANG.Value() > 0;
    p.WaveFreqUserInput = !defaultWaves;
    p.EncFreqUserInput = !defaultEncounter;
    p.KgUserInput = AnyOf(p.SECTRRG, stations, [](float value) { return value >= 0; });
    p.KxxiUserInput =
        p.KgUserInput == 1 && AnyOf(p.SECTKG, stations, [height](float value) { return value != height; });
}
} // namespace

void RestoreInputEcho(CResultsCursor& cursor, bool hasMagic, CProjectData& project)
{
    project.YAUSER.Fill(kNotGiven);
    project.ZAUSERBL.Fill(kNotGiven);
    CRestoredEcho echo(cursor, hasMagic, project);
    InputEchoFormat::Walk(echo, project);
    Adjust(project);
    ReadUnitWords(cursor, hasMagic, project);
    DeriveAppendages(project);
    DeriveUserInput(project);
}
