// The line of the engine's input that is being put together: words and numbers with one blank between,
// numbers in the engine's units.
#pragma once

#include "core/engine/EngineUnits.h"
#include "core/platform/NumberText.h"
#include "core/project/CParamArray.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

/// How a number is written.
struct CEngineFormat
{
    CFixedFormat Decimals;
    EQuantity Quantity = EQuantity::Plain;
    /// Rounded in the unit that it is stored in, then converted, then rounded again.
    bool RoundedFirst = false;
};

constexpr CEngineFormat kInteger{"%.0f"};
constexpr CEngineFormat kPlain2{"%.2f"};
constexpr CEngineFormat kPlain3{"%.3f"};
constexpr CEngineFormat kPlain4{"%.4f"};
constexpr CEngineFormat kLength2{"%.2f", EQuantity::Length};
constexpr CEngineFormat kLength3{"%.3f", EQuantity::Length};
constexpr CEngineFormat kLength4{"%.4f", EQuantity::Length};
constexpr CEngineFormat kRoundedLength2{"%.2f", EQuantity::Length, true};
constexpr CEngineFormat kRoundedLength3{"%.3f", EQuantity::Length, true};
constexpr CEngineFormat kMass2{"%.2f", EQuantity::Mass};
constexpr CEngineFormat kMass3{"%.3f", EQuantity::Mass};
constexpr CEngineFormat kInverseLength3{"%.3f", EQuantity::InverseLength};
constexpr CEngineFormat kRoundedSpeed2{"%.2f", EQuantity::Speed, true};

class CEngineLine
{
public:
    explicit CEngineLine(CEngineUnits units) : m_units(units) {}

    /// An empty line, with nothing in it yet.
    CEngineLine& Restart();

    /// A text as it stands, without its carriage returns.
    CEngineLine& Word(std::string_view text);
    CEngineLine& Integer(int value);
    CEngineLine& Value(float value, int unit, const CEngineFormat& format);
    CEngineLine& Value(const CParamArray& field, const CEngineFormat& format, int index = 0);
    /// A value, or a word in its place unless it is `given`.
    CEngineLine& ValueOr(std::string_view word, bool given, const CParamArray& field,
                         const CEngineFormat& format, int index = 0);
    /// One slot of several fields, in one format.
    CEngineLine& Values(std::initializer_list<const CParamArray*> fields, const CEngineFormat& format,
                        int index = 0);
    /// Several slots of a field.
    CEngineLine& List(std::span<const float> values, int unit, const CEngineFormat& format);
    /// A count as "%.0f". One that is greater than what an array holds is the array's, as it is for the
    /// values.
    CEngineLine& Count(const CParamArray& field, int capacity, int index = 0);

    /// Puts another text in the place of the word or number written last, if that reads `text`.
    CEngineLine& Instead(std::string_view text, std::string_view other);
    /// A blank that the line ends in.
    CEngineLine& Blank();

    const std::string& Text() const { return m_text; }

private:
    void BeginWord();

    CEngineUnits m_units;
    std::string m_text;
    std::size_t m_word = 0; ///< where the last word begins
    bool m_empty = true;    ///< an empty word is a word too
};

/// The first `count` values of a field from `first` on.
std::span<const float> Slice(const CParamArray& field, int first, int count);
