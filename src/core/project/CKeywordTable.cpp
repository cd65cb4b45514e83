#include "core/project/CKeywordTable.h"

#include "core/project/CParamArray.h"

namespace
{
constexpr int BOTH = kScopeBoth;
constexpr int ENV = kScopeEnvironment;
constexpr int GEO = kScopeGeometry;

constexpr CKeywordRow kRows[] = {
#define KEYWORD(name, count, scope, minimum, maximum, initial)                                               \
    {#name, count, kUnitMetric, scope, minimum, maximum, initial},
#include "core/project/Keywords.def"
#undef KEYWORD
};
static_assert(std::size(kRows) == kKeywordCount);
} // namespace

const std::array<CKeywordRow, kKeywordCount>& KeywordTable()
{
    static constexpr auto table = std::to_array(kRows);
    return table;
}
