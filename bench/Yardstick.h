// The least that reading or writing a text full of numbers can take: the same bytes moved once, and the same
// numbers through std::from_chars or std::to_chars.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class CYardstick
{
public:
    /// Takes the numbers of a text: all tokens between separators that are one as a whole.
    explicit CYardstick(std::string_view text, std::string_view separators = " \n");

    /// Reads each of the numbers from bytes that are those of the text. Gives their sum, so that none is left
    /// out.
    double ReadNumbers(std::string_view bytes) const;
    /// Copies the text once and writes each of the numbers with the decimals that it has there, all into
    /// memory.
    std::size_t WriteNumbers();

    std::size_t NumberCount() const { return m_numbers.size(); }
    std::string_view Text() const { return m_text; }
    /// The text, as WriteNumbers copied it.
    std::string_view Copy() const { return m_copy; }

private:
    struct CNumber
    {
        std::size_t Position;
        std::size_t Length;
        double Value;
        int Decimals;
    };

    std::string m_text;
    std::vector<CNumber> m_numbers;
    std::string m_copy;
};

/// A file's bytes in one read; aborts if there is none.
std::string ReadBytes(const std::string& path);
/// Bytes over a file, in one write.
void WriteBytes(const std::string& path, std::string_view bytes);
/// The same kind of write as that of a user's file: the old file moved aside, the new one on the disk before
/// the old one goes.
void WriteBytesToDisk(const std::string& path, std::string_view bytes);
