#include "core/engine/EngineRecords.h"
#include "core/engine/EngineWords.h"

#include <algorithm>

namespace
{
// Values of RELMOCALC.
constexpr int kSlamForm = 1;
constexpr int kSlamOffset = 2;
constexpr int kSlamWedge = 3;
constexpr int kDeckWetness = 4;

constexpr const char* kSlamIncomplete = "The slamming parameters are not complete.";

const char* SicknessWord(const CProjectData& p, std::size_t slot)
{
    if (p.MSIFlag[slot] != 1)
    {
        return "NOMSI";
    }
    return p.MSIMethod[slot] == 1 ? "MSIBV" : "MSICOLWELL";
}

/// (o1). Written for all positions, also behind one that failed its tests.
void ControlLine(CEngineInput& input, int position)
{
    const CProjectData& p = input.Project;
    const auto slot = static_cast<std::size_t>(position);
    const std::string& label = p.PositionLabel[slot];
    input.Line()
        .Word(label.empty() ? "Position" + IntegerText(position + 1) : label)
        .Word(kSlamWords.Of(p.RELMOCALC.Value(position)))
        .Word(kInterruptionWords.Of(p.MIIFLAG.Value(position)))
        .Word(SicknessWord(p, slot));
    input.EndAlways();
}

/// The tests run for each position, whatever failed before, and each value missing has a message of its own.
void PlaceLine(CEngineInput& input, int position)
{
    const CProjectData& p = input.Project;
    constexpr const char* incomplete = "The seakeeping positions are not complete.";
    const float motion = p.RELMOCALC.Value(position);
    const bool needsDeck = motion >= kSlamForm && motion <= kDeckWetness;
    input.Test(IsGiven(p.XSTPOS.Value(position), kAngleNotGiven), incomplete);
    input.Test(IsGiven(p.YPOS.Value(position)), incomplete);
    input.Test(IsGiven(p.ZPOSBL.Value(position)), incomplete);
    input.Test(!needsDeck || IsGiven(p.DECKHBL.Value(position)), incomplete);
    // The deck's replacement looks at the converted text, so that an unset height in feet is written as
    // -0.305.
    input.Line()
        .Value(p.XSTPOS, kPlain2, position)
        .Values({&p.YPOS, &p.ZPOSBL, &p.DECKHBL}, kLength3, position)
        .Instead("-1.000", "0.00");
    input.End();
}

void SlamFormLine(CEngineInput& input, int position)
{
    const CProjectData& p = input.Project;
    input.Test(IsGiven(p.SLFORM.Value(position)), kSlamIncomplete);
    input.Test(IsGiven(p.SLWIDTH.Value(position)), kSlamIncomplete);
    input.Line().Value(p.SLFORM, kPlain4, position).Value(p.SLWIDTH, kLength3, position);
    input.End();
}

void SlamOffsetLines(CEngineInput& input, int position)
{
    const CProjectData& p = input.Project;
    if (!input.Test(IsGiven(p.NSLOFF.Value(position)), kSlamIncomplete))
    {
        return;
    }
    input.Line()
        .Count(p.NSLOFF, kMaxSlamOffsets, position)
        .Value(p.SlamLoadHeight[static_cast<std::size_t>(position)], kUnitMetric, kPlain4);
    input.End();
    const int offsets = p.NSLOFF.Count(kMaxSlamOffsets, position);
    for (const CParamArray* axis : {&p.YSLOFFBL, &p.ZSLOFFBL})
    {
        input.Line().List(Slice(*axis, position * kMaxSlamOffsets, offsets), axis->unit, kPlain4);
        input.End();
    }
}

void SlamWedgeLine(CEngineInput& input, int position)
{
    const CProjectData& p = input.Project;
    input.Test(AllGiven({&p.DEADR, &p.SLHEIGHT}, position), kSlamIncomplete);
    input.Line().Value(p.DEADR, kPlain4, position).Value(p.SLHEIGHT, kPlain2, position);
    input.End();
}

void SlamLines(CEngineInput& input, int position)
{
    const CParamArray& motion = input.Project.RELMOCALC;
    if (Is(motion, kSlamForm, position))
    {
        SlamFormLine(input, position);
    }
    else if (Is(motion, kSlamOffset, position))
    {
        SlamOffsetLines(input, position);
    }
    else if (Is(motion, kSlamWedge, position))
    {
        SlamWedgeLine(input, position);
    }
}

/// Motion-induced interruptions: three values, each with a default for one that is below zero.
void InterruptionLine(CEngineInput& input, int position)
{
    struct CDefaulted
    {
        const CParamArray& Field;
        float Default;
    };
    const CProjectData& p = input.Project;
    if (std::string_view(kInterruptionWords.Of(p.MIIFLAG.Value(position))) != "MII")
    {
        return;
    }
    CEngineLine& line = input.Line();
    for (const CDefaulted& value :
         {CDefaulted{p.TCLAT, 0.25F}, CDefaulted{p.TCLONG, 0.17F}, CDefaulted{p.TIMEOP, 60.0F}})
    {
        const float given = value.Field.Value(position);
        line.Value(given < 0 ? value.Default : given, kUnitMetric, kPlain2);
    }
    input.End();
}

/// Motion sickness: the exposure in hours, none where the method doesn't ask for it.
void SicknessLine(CEngineInput& input, int position)
{
    const CProjectData& p = input.Project;
    const auto slot = static_cast<std::size_t>(position);
    if (p.MSIFlag[slot] == 1)
    {
        const bool none = p.MSIMethod[slot] == 0 && p.MSIExposureOption[slot] == 1;
        input.Line().Value(none ? 0 : p.MSIExposure[slot], kUnitMetric, kPlain2);
        input.End();
    }
}
} // namespace

void PositionRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    // One less than the project's number: the last position entered isn't calculated, and projects rely on
    // it.
    const int count = std::clamp(std::max(p.NPOS.Integer(), 1) - 1, 0, kMaxPositions);
    input.Line()
        .Integer(count)
        .ValueOr("0", !(p.SLAMHOUR.Value() < 0), p.SLAMHOUR, kPlain2)
        .ValueOr("0", !(p.SLAMEX.Value() < 0), p.SLAMEX, kPlain4);
    input.End();
    for (int i = 0; i < count; ++i)
    {
        ControlLine(input, i);
        PlaceLine(input, i);
        if (input.Ok())
        {
            SlamLines(input, i);
            InterruptionLine(input, i);
            SicknessLine(input, i);
        }
    }
}
