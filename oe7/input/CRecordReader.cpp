#include "oe7/input/CRecordReader.h"

#include "oe7/input/CRunLog.h"
#include "oe7/input/Limits.h"

#include "core/platform/NumberText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace oe7
{
namespace
{
constexpr std::size_t kLongestQuote = 40;

bool IsBlank(char c)
{
    return static_cast<unsigned char>(c) <= ' ';
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view TakeWord(std::string_view& rest)
{
    const auto* const begin = std::find_if_not(rest.begin(), rest.end(), IsBlank);
    const auto* const end = std::find_if(begin, rest.end(), IsBlank);
    const std::string_view word(begin, end);
    rest = std::string_view(end, rest.end());
    return word;
}

/// The length of the digits at a text's start, which are taken away.
std::size_t TakeDigits(std::string_view& text)
{
    const auto* const end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const auto length = static_cast<std::size_t>(end - text.begin());
    text.remove_prefix(length);
    return length;
}

bool TakeOneOf(std::string_view& text, std::string_view characters)
{
    const bool found = !text.empty() && characters.find(text.front()) != std::string_view::npos;
    text.remove_prefix(found ? 1 : 0);
    return found;
}

/// A decimal number from end to end: "12", "-.5", "+1.e-3". No infinities, nothing hexadecimal.
bool IsDecimal(std::string_view word)
{
    TakeOneOf(word, "+-");
    std::size_t digits = TakeDigits(word);
    if (TakeOneOf(word, "."))
    {
        digits += TakeDigits(word);
    }
    if (digits == 0)
    {
        return false;
    }
    if (TakeOneOf(word, "eE"))
    {
        TakeOneOf(word, "+-");
        return TakeDigits(word) > 0 && word.empty();
    }
    return word.empty();
}

std::string Quoted(std::string_view word)
{
    const bool cut = word.size() > kLongestQuote;
    return "\"" + std::string(word.substr(0, kLongestQuote)) + (cut ? "..." : "") + "\"";
}
} // namespace

CRecordReader::CRecordReader(std::string_view text, std::string fileName)
    : m_lines(text),
      m_fileName(std::move(fileName)),
      m_longest(text.size())
{
}

void CRecordReader::SetUnits(EUnits units)
{
    const bool british = units == EUnits::British;
    m_length = british ? kFoot : 1;
    m_mass = british ? kLongTon : kTonne;
}

void CRecordReader::NextLine()
{
    m_line = m_lines.ReadLine(m_longest);
    m_rest = m_line;
}

std::string_view CRecordReader::Word(std::string_view what)
{
    m_word = TakeWord(m_rest);
    if (m_word.empty())
    {
        Fail(std::string(what) + " is missing");
    }
    return m_word;
}

double CRecordReader::Number(std::string_view what)
{
    const std::string_view word = Word(what);
    if (!IsDecimal(word))
    {
        FailWord(what, "no number");
    }
    const double number = NumberAtStart(word);
    if (!(std::abs(number) <= kLargestNumber))
    {
        FailWord(what, "too large");
    }
    return number;
}

double CRecordReader::NotNegative(std::string_view what)
{
    const double number = Number(what);
    if (number < 0)
    {
        FailWord(what, "less than 0");
    }
    return number;
}

double CRecordReader::Positive(std::string_view what)
{
    const double number = Number(what);
    if (number <= 0)
    {
        FailWord(what, "not more than 0");
    }
    return number;
}

int CRecordReader::Count(std::string_view what, int least, int most)
{
    const double number = Number(what);
    if (number != std::floor(number))
    {
        FailWord(what, "no whole number");
    }
    if (number < least)
    {
        FailWord(what, "less than " + IntegerText(least));
    }
    if (number > most)
    {
        FailWord(what, "more than " + IntegerText(most));
    }
    return static_cast<int>(number);
}

int CRecordReader::CountOrNone(std::string_view what, int most)
{
    return std::max(Count(what, -std::numeric_limits<int>::max(), most), 0);
}

double CRecordReader::NumberAhead(std::string_view what)
{
    while (LineEnded() && !AtEnd())
    {
        NextLine();
    }
    return Number(what);
}

std::vector<double> CRecordReader::Numbers(std::string_view what, int count, double factor)
{
    std::vector<double> numbers;
    for (int k = 0; k < count; ++k)
    {
        numbers.push_back(Number(what) * factor);
    }
    return numbers;
}

std::vector<std::string_view> CRecordReader::WordsLeft() const
{
    std::vector<std::string_view> words;
    std::string_view rest = m_rest;
    for (std::string_view word = TakeWord(rest); !word.empty(); word = TakeWord(rest))
    {
        words.push_back(word);
    }
    return words;
}

std::string_view CRecordReader::Line() const
{
    const auto* const begin = std::find_if_not(m_line.begin(), m_line.end(), IsBlank);
    const auto end = std::find_if_not(m_line.rbegin(), m_line.rend(), IsBlank).base();
    return begin < end ? std::string_view(begin, end) : std::string_view();
}

bool CRecordReader::LineEnded() const
{
    return std::all_of(m_rest.begin(), m_rest.end(), IsBlank);
}

void CRecordReader::Fail(const std::string& text) const
{
    const std::string file = m_fileName.empty() ? "" : m_fileName + ", ";
    throw CInputError(file + "line " + IntegerText(m_lines.LineNumber()) + ": " + text);
}

void CRecordReader::FailChoice(std::string_view what, std::string_view word, const std::string& allowed) const
{
    Fail(std::string(what) + " is " + Quoted(word) + ", it can be " + allowed);
}

void CRecordReader::FailWord(std::string_view what, std::string_view trouble) const
{
    Fail(std::string(what) + " is " + Quoted(m_word) + ", which is " + std::string(trouble));
}

} // namespace oe7
