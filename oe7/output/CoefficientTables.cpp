// The two tables of coefficients, comma-separated.
#include "core/platform/LineFormat.h"
#include "oe7/output/COutputUnits.h"
#include "oe7/output/EngineFiles.h"
#include "oe7/output/Finite.h"

#include <array>

namespace oe7
{
namespace
{
/// Row and column of a coefficient, counted from 1 as the modes are.
struct CElement
{
    int Row;
    int Column;
};

/// Those that a hull symmetric to port and starboard has, surge apart.
constexpr std::array<CElement, 13> kElements = {
    {{2, 2}, {2, 4}, {2, 6}, {3, 3}, {3, 5}, {4, 2}, {4, 4}, {4, 6}, {5, 3}, {5, 5}, {6, 2}, {6, 4}, {6, 6}}};

constexpr int kForces = 6;

void AppendNames(std::string& line, const char* letter)
{
    for (const CElement& element : kElements)
    {
        line.append(",").append(letter).append(IntegerText(element.Row)).append(IntegerText(element.Column));
    }
}

/// One line: -R = -w^2 A + iwB at a frequency.
void AppendCoefficients(std::string& line, const CComplexMatrix6& radiation, double w, CRunLog& log)
{
    for (const CElement& element : kElements)
    {
        const double added = -radiation(element.Row - 1, element.Column - 1).real() / (w * w);
        line += FormatText(",%.6e", Finite(added, log));
    }
    for (const CElement& element : kElements)
    {
        const double damping = radiation(element.Row - 1, element.Column - 1).imag() / w;
        line += FormatText(",%.6e", Finite(damping, log));
    }
}
} // namespace

std::string CoefficientTable(const CResults& results, CRunLog& log)
{
    std::string text = "Added mass A and damping B of the hull in SI units; axes at the centre of gravity\n"
                       "Speed_kn,EncFreq_rad_s";
    AppendNames(text, "A");
    AppendNames(text, "B");
    text += '\n';
    for (const CSpeedResults& speed : results.Speeds)
    {
        for (std::size_t i = 0; i < speed.Radiation.size(); ++i)
        {
            text += FormatText("%.3f,%.5f", Finite(speed.Knots, log), Finite(results.Grid[i], log));
            AppendCoefficients(text, speed.Radiation[i], results.Grid[i], log);
            text += '\n';
        }
    }
    return text;
}

std::string WaveForceTable(const CResults& results, CRunLog& log)
{
    std::string text =
        "Wave exciting forces and moments per metre of wave amplitude in SI units; axes at the centre "
        "of gravity; phases in degrees of lead to the crest there\n"
        "Speed_kn,Heading_deg,WaveFreq_rad_s,EncFreq_rad_s";
    for (int mode = 1; mode <= kForces; ++mode)
    {
        text += FormatText(",F%d_amp,F%d_phase", mode, mode);
    }
    text += '\n';
    for (const CSpeedResults& speed : results.Speeds)
    {
        for (std::size_t heading = 0; heading < speed.Directions.size(); ++heading)
        {
            const CDirectionResults& direction = speed.Directions[heading];
            for (std::size_t i = 0; i < direction.Forces.size(); ++i)
            {
                text += FormatText("%.3f,%.2f,%.4f,%.5f", Finite(speed.Knots, log),
                                   Finite(results.Headings.Components[heading], log),
                                   Finite(results.Frequencies.Output[i], log),
                                   Finite(direction.Encounter[i], log));
                for (const Complex force : direction.Forces[i])
                {
                    text += FormatText(",%.6e,%.2f", Finite(std::abs(force), log),
                                       Finite(PhaseDegrees(force), log));
                }
                text += '\n';
            }
        }
    }
    return text;
}

} // namespace oe7
