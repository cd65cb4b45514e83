#include "tests/oe7/calculation/CReferenceRun.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

#include <gtest/gtest.h>

namespace oe7
{
namespace
{
/// The place of a value in a list, within half of its least printed digit.
std::size_t PlaceOf(double value, const std::vector<double>& list)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [&](double other) { return std::abs(other - value) < 5e-3; });
    if (found == list.end())
    {
        ADD_FAILURE() << value << " is not in the run";
        return 0;
    }
    return static_cast<std::size_t>(found - list.begin());
}
} // namespace

CReferenceRun::CReferenceRun(CInput input, int threads)
    : Input(std::move(input)),
      Results(Calculate(Input, Log, CRunOptions{threads, {}}))
{
}

const CReferenceRun& CReferenceRun::Of(const std::string& referenceCase)
{
    static std::map<std::string, std::unique_ptr<CReferenceRun>> runs;
    auto& run = runs[referenceCase];
    if (!run)
    {
        run = std::make_unique<CReferenceRun>(ReferenceInput(referenceCase));
    }
    return *run;
}

const CSpeedResults& CReferenceRun::Speed(double knots) const
{
    return Results.Speeds.at(PlaceOf(knots, Input.Speeds));
}

std::size_t CReferenceRun::Heading(double degrees) const
{
    return PlaceOf(degrees, Results.Headings.Reported);
}

std::size_t CReferenceRun::Frequency(double w) const
{
    return PlaceOf(w, Results.Frequencies.Output);
}

std::size_t CReferenceRun::Cut(double station) const
{
    return PlaceOf(station, Input.LoadStations);
}

std::size_t CReferenceRun::Position(const std::string& label) const
{
    const auto& positions = Input.Positions;
    const auto found = std::find_if(positions.begin(), positions.end(),
                                    [&](const CPosition& p) { return p.Label == label; });
    if (found == positions.end())
    {
        ADD_FAILURE() << "no position " << label;
        return 0;
    }
    return static_cast<std::size_t>(found - positions.begin());
}

} // namespace oe7
