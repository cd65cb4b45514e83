// Lines, words and numbers of the engine's text files, in turn. Whatever is missing or no number is told with
// its line.
#pragma once

#include "oe7/input/CInput.h"

#include "core/platform/TextReading.h"

#include <string>
#include <string_view>
#include <vector>

namespace oe7
{

/// The words of a line are separated by blanks; tabs and other control characters count as blanks. What
/// stands behind the last word asked for is not looked at. Every `what` names the thing read, as the user
/// knows it: "the draft". All errors are CInputError: "line 17: the draft is missing".
class CRecordReader
{
public:
    /// Doesn't own the text. A name of a file stands before the line in errors.
    explicit CRecordReader(std::string_view text, std::string fileName = {});
    /// Lengths and masses are metres and tonnes until told else.
    void SetUnits(EUnits units);

    /// Goes on to the next line, also behind the end, where lines are empty.
    void NextLine();

    std::string_view Word(std::string_view what);
    /// A number, finite and of a sane size.
    double Number(std::string_view what);
    double NotNegative(std::string_view what);
    double Positive(std::string_view what);
    double Length(std::string_view what) { return Number(what) * m_length; } ///< m
    double Mass(std::string_view what) { return Number(what) * m_mass; }     ///< kg
    /// A whole number between two limits.
    int Count(std::string_view what, int least, int most);
    /// How many there are of what may be left out: below 0 counts 0.
    int CountOrNone(std::string_view what, int most);
    /// A number that stands in this line or, if that has ended, in the next one that holds words.
    double NumberAhead(std::string_view what);
    /// So many numbers of this line, each times a factor.
    std::vector<double> Numbers(std::string_view what, int count, double factor = 1);
    /// The meaning of one of the words of a table with rows of Word and Meaning.
    template <class Table>
    auto Choice(std::string_view what, const Table& table)
    {
        const std::string_view word = Word(what);
        std::string allowed;
        for (const auto& row : table)
        {
            if (row.Word == word)
            {
                return row.Meaning;
            }
            allowed.append(allowed.empty() ? "" : ", ").append(row.Word);
        }
        FailChoice(what, word, allowed);
    }
    [[noreturn]] void Fail(const std::string& text) const;

    /// The words of this line that are left; they stay there.
    std::vector<std::string_view> WordsLeft() const;
    /// This line without the blanks around it.
    std::string_view Line() const;
    bool LineEnded() const;                        ///< no word is left in this line
    bool AtEnd() const { return m_lines.AtEnd(); } ///< no line follows
    double LengthUnit() const { return m_length; } ///< m
    double MassUnit() const { return m_mass; }     ///< kg

private:
    [[noreturn]] void FailChoice(std::string_view what, std::string_view word,
                                 const std::string& allowed) const;
    [[noreturn]] void FailWord(std::string_view what, std::string_view trouble) const;

    CLineReader m_lines;
    std::string m_fileName;
    std::size_t m_longest; ///< no line is longer
    std::string_view m_line;
    std::string_view m_rest; ///< of the line
    std::string_view m_word; ///< the last one read
    double m_length = 1;
    double m_mass = kTonne;
};

} // namespace oe7
