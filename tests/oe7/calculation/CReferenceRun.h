// A run of the engine on a reference input, or on a changed one, and where its results stand.
#pragma once

#include "oe7/calculation/Calculation.h"
#include "oe7/input/InputFile.h"
#include "tests/oe7/support/ReferenceShips.h"

#include <string>

namespace oe7
{

struct CReferenceRun
{
    CReferenceRun(CInput input, int threads = 1);
    /// The unchanged reference input, calculated once in a program.
    static const CReferenceRun& Of(const std::string& referenceCase);

    CInput Input;
    CRunLog Log;
    CResults Results;

    /// Of a speed in knots, a heading in degrees, an output frequency in rad/s; what isn't there fails the
    /// test.
    const CSpeedResults& Speed(double knots) const;
    std::size_t Heading(double degrees) const;
    std::size_t Frequency(double w) const;
    std::size_t Cut(double station) const;
    std::size_t Position(const std::string& label) const;
};

} // namespace oe7
