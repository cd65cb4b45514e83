#include "tests/oe7/support/ReferenceShips.h"

#include "oe7/input/InputFile.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>

namespace oe7
{

CInput ReferenceInput(const std::string& name)
{
    std::ifstream file(ONDARA_SOURCE_DIR "/tests/oe7/reference/" + name + ".inp", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    CRunLog log;
    return ParseInput(text, ".", log);
}

CInput FineWigley(int points)
{
    CInput input = ReferenceWigley();
    for (int station = 0; station < input.StationCount; ++station)
    {
        COffsets& offsets = input.Offsets[static_cast<std::size_t>(station)];
        offsets = {};
        const double x = 1 - station / 10.0;
        for (int n = 0; n <= points; ++n)
        {
            // The points lie closer at the keel, where the section is round.
            const double t = -std::cos(n * std::numbers::pi / (2 * points));
            offsets.Y.push_back(6 * (1 - t * t) * (1 - x * x) * (1 + 0.2 * x * x));
            offsets.Z.push_back(7.5 * (1 + t));
        }
    }
    return input;
}

} // namespace oe7
