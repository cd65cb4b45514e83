#include "oe7/input/InputFile.h"
#include "oe7/output/ListingParts.h"
#include "oe7/output/ListingWords.h"

namespace oe7
{
namespace
{
constexpr int kCaptionWidth = 26;

CListingText& Caption(CListingText& text, std::string_view caption)
{
    return text.Add("   ").Left(caption, kCaptionWidth).Add(": ");
}

void Echo(CListingText& text, std::string_view caption, double value)
{
    Caption(text, caption).Number(value, 10, 4).End();
}

void Words(CListingText& text, std::string_view caption, std::initializer_list<std::string_view> words)
{
    Caption(text, caption);
    for (const std::string_view word : words)
    {
        text.Add(word).Add(word == *(words.end() - 1) ? "" : " ");
    }
    text.End();
}

/// What a user must know of the method before believing its numbers.
void ListMethod(CListing& listing)
{
    CListingText& text = listing.Text;
    text.Add("   Linear strip theory after Salvesen, Tuck and Faltinsen 1970, sections by the ");
    text.Add(MethodName(listing.Input.Method)).Line(" method, roll damping after Ikeda and Himeno");
    text.Line("   Not modelled: three-dimensional interaction of the sections, the steady wave pattern, "
              "shallow water, "
              "nonlinear waves, capsize, parametric roll, added resistance, whipping, saturation of fins, "
              "rudder and "
              "tank");
    text.EmptyLine();
}

/// The roll record and the GM are told in the units of the input.
void ListRollInput(CListing& listing)
{
    const CInput& input = listing.Input;
    CListingText& text = listing.Text;
    const CUnit length = COutputUnits(input.InputUnits).Length;
    const bool isFrequency = input.RollInertia == ERollInertia::WetFrequency;
    Words(text, "GMFLAG", {input.Gm ? "GMINPUT" : "GMCOMP"});
    Words(text, "ROLLRGDEF", {RollInertiaWord(input.RollInertia)});
    Echo(text, "GMUSER " + length.InBrackets(), length.Of(input.Gm.value_or(0)));
    Echo(text, "Value of the roll record", isFrequency ? input.RollValue : length.Of(input.RollValue));
}

void ListFrequencies(CListing& listing)
{
    const CInput& input = listing.Input;
    const std::vector<double>& waves = listing.Results.Frequencies.Output;
    const std::vector<double>& grid = listing.Results.Grid;
    CListingText& text = listing.Text;
    Caption(text, "Wave frequencies (rad/s)").Number(input.LowestFrequency, 0, 4).Add(" ");
    text.Number(waves.empty() ? 0 : waves.back(), 0, 4).Add(" ").Number(input.FrequencyStep, 0, 4).End();
    Echo(text, "ENFREQMIN (rad/s)", input.Grid[0]);
    Echo(text, "ENFREQMAX (rad/s)", input.Grid[1]);
    Echo(text, "DENFREQ   (rad/s)", input.Grid[2]);
    if (!grid.empty())
    {
        Caption(text, "Grid of coefficients").Integer(static_cast<int>(grid.size())).Add(" values from ");
        text.Number(grid.front(), 0, 4).Add(" to ").Number(grid.back(), 0, 4).Line(" rad/s");
    }
}
} // namespace

void ListInput(CListing& listing, std::string_view stamp)
{
    const CInput& input = listing.Input;
    CListingText& text = listing.Text;
    text.Line(" OE7   STRIP THEORY SEAKEEPING CALCULATION");
    text.Add(" ").Line(ListedTitle(input.Title));
    text.Add(" Run of ").Line(stamp);
    text.EmptyLine();
    ListMethod(listing);
    text.Line(" INPUT DATA");
    text.EmptyLine();
    Words(text, "INSYS, OUTSYS, WATERDEN",
          {UnitsWord(input.InputUnits), UnitsWord(input.OutputUnits), WaterWord(input.Water)});
    Words(text, "SPEEDCOR, SWELLCOR",
          {SpeedCorrectionWord(input.SpeedCorrection), SwellCorrectionWord(input.SwellCorrection)});
    Words(text, "Method, end terms, heave",
          {MethodName(input.Method), EndTermsWord(input.EndTerms),
           input.HeaveCorrection ? "HVCOR" : "NOHVCOR"});
    ListFrequencies(listing);
    Words(text, "Spectrum", {SpectrumWord(input.Spectrum)});
    ListRollInput(listing);
    text.EmptyLine();
}

} // namespace oe7
