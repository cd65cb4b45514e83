#include "core/engine/EngineWords.h"

#include "core/platform/NumberText.h"

#include <string>

const char* CEngineWords::Of(float flag) const
{
    const std::string text = FixedText(flag, "%.0f");
    if (text.size() == 1 && text[0] >= '0' && text[0] <= '7')
    {
        const char* word = Words[static_cast<std::size_t>(text[0] - '0')];
        return word != nullptr ? word : Other;
    }
    return Other;
}
