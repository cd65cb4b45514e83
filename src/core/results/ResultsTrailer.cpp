#include "core/results/ResultsTrailer.h"

#include "core/results/CResultsCursor.h"

namespace
{
constexpr std::ptrdiff_t kPointers = 12;
constexpr std::ptrdiff_t kWithGM = 20;
} // namespace

CResultsTrailer ReadTrailer(std::string_view bytes)
{
    const auto end = static_cast<std::ptrdiff_t>(bytes.size());
    CResultsTrailer trailer;
    CResultsCursor cursor(bytes, end - kPointers);
    trailer.SectionC = cursor.Integer();
    trailer.SectionB = cursor.Integer();
    trailer.SectionA = cursor.Integer();
    if (end >= kWithGM)
    {
        cursor.Seek(end - kWithGM);
        if (cursor.Float() == kTrailerMarker)
        {
            trailer.CalculatedGM = cursor.Float();
        }
    }
    return trailer;
}
