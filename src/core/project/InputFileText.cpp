#include "core/project/InputFileText.h"

#include "core/platform/NumberText.h"
#include "core/project/InputFileFormat.h"

#include <cctype>

namespace
{
/// One line on its way out: tokens joined by blanks, ended with the object.
class CWrittenLine
{
public:
    explicit CWrittenLine(std::string& text) : m_text(text) {}
    ~CWrittenLine() { m_text += '\n'; }
    CWrittenLine(const CWrittenLine&) = delete;
    CWrittenLine& operator=(const CWrittenLine&) = delete;

    CWrittenLine& Number(float value, CFixedFormat format)
    {
        Separate();
        AppendFixed(m_text, static_cast<double>(value), format);
        return *this;
    }
    CWrittenLine& NumberOr(float value, float, CFixedFormat format) { return Number(value, format); }
    CWrittenLine& Value(const CParamArray& field, CFixedFormat format)
    {
        return Number(field.Value(), format);
    }
    CWrittenLine& Value(const CParamArray& field, int index, CFixedFormat format)
    {
        return Number(field.Value(index), format);
    }
    CWrittenLine& ValueAtLeast(const CParamArray& field, float, CFixedFormat format)
    {
        return Value(field, format);
    }
    CWrittenLine& Count(const CParamArray& field, int, CFixedFormat format) { return Value(field, format); }
    CWrittenLine& Count(const CParamArray& field, int index, int, CFixedFormat format)
    {
        return Value(field, index, format);
    }
    CWrittenLine& StationHeader(const CParamArray&, int station) { return Integer(station); }
    CWrittenLine& Integer(int value)
    {
        Separate();
        m_text += IntegerText(value);
        return *this;
    }
    CWrittenLine& Integer(int value, int) { return Integer(value); }
    CWrittenLine& Switch(int flag) { return Integer(flag == 1 ? 1 : 0); }
    CWrittenLine& ValueSwitch(const CParamArray& field, int index)
    {
        return Integer(field.Integer(index) != 0 ? 1 : 0);
    }
    CWrittenLine& Tag(int unit) { return Integer(unit); }
    CWrittenLine& Tag(const CParamArray& field) { return Integer(field.unit); }
    CWrittenLine& Tag(const CParamArray& field, const CParamArray&) { return Integer(field.unit); }
    CWrittenLine& TagWrittenAs(int, int unit) { return Integer(unit); }
    /// The next token stands behind two blanks.
    CWrittenLine& Gap() { return Blank(); }
    CWrittenLine& Blank()
    {
        m_text += ' ';
        return *this;
    }
    CWrittenLine& Note(const char* text)
    {
        m_text += text;
        return *this;
    }

private:
    void Separate()
    {
        if (m_first)
        {
            m_first = false;
            return;
        }
        m_text += ' ';
    }

    std::string& m_text;
    bool m_first = true;
};

class CInputFileWriter
{
public:
    explicit CInputFileWriter(std::string& text) : m_text(text) {}

    static bool Reads(int) { return true; }
    static int Revision() { return kRevisionCurrent; }

    /// No carriage return goes into the file; a line feed inside a text does.
    void WriteLine(std::string_view text)
    {
        std::copy_if(text.begin(), text.end(), std::back_inserter(m_text), [](char c) { return c != '\r'; });
        m_text += '\n';
    }

    void Label(std::string_view text) { WriteLine(text); }
    CWrittenLine Line(int) { return CWrittenLine(m_text); }

    template <class Values>
    void List(int, const Values& values, int first, int count, CFixedFormat format)
    {
        auto line = Line(0);
        for (int k = 0; k < std::max(count, 1); ++k)
        {
            line.Number(values[static_cast<std::size_t>(first + k)], format);
        }
    }
    void Offsets(const std::vector<float>& values, int station, int count)
    {
        for (int k = 0; k < count; ++k)
        {
            AppendFixed(m_text,
                        static_cast<double>(values[static_cast<std::size_t>(station * kMaxOffsets + k)]),
                        "%.3f");
            m_text += ' ';
        }
        m_text += '\n';
    }
    void FileNameLine(int, const std::string& name) { WriteLine(name.empty() ? kNoSpectrumFile : name); }
    void LabelLine(int, const std::string& label, const std::string& absent)
    {
        WriteLine(label.empty() ? absent : label);
    }
    void GainLines(std::string_view label, int used, const std::string& name)
    {
        Label(label);
        WriteLine((used == 1 ? "1 " : "0 ") + (name.empty() ? std::string(kNoGainFile) : name));
    }
    template <class Action>
    void OnceRead(int, Action)
    {
    }

private:
    std::string& m_text;
};

class CInputFileReader;

/// One line that has been read: its tokens in order. A line that nobody wants has none to give and asks for
/// none.
class CReadLine
{
public:
    CReadLine(CInputFileReader& reader, std::optional<std::string_view> line)
        : m_reader(reader),
          m_wanted(line.has_value()),
          m_tokens(line.value_or(std::string_view()))
    {
    }
    CReadLine(const CReadLine&) = delete;
    CReadLine& operator=(const CReadLine&) = delete;

    CReadLine& Number(float& value, CFixedFormat)
    {
        if (const auto plain = NextPlainNumber())
        {
            value = Narrowed(*plain);
        }
        else if (const auto token = NextInteger())
        {
            value = Narrowed(NumberAtStart(*token));
        }
        return *this;
    }
    /// A number that may be missing at the end of a line.
    CReadLine& NumberOr(float& value, float absent, CFixedFormat format);
    CReadLine& Value(CParamArray& field, CFixedFormat format) { return Number(field.data[0], format); }
    CReadLine& Value(CParamArray& field, int index, CFixedFormat format)
    {
        return Number(field.data[static_cast<std::size_t>(index)], format);
    }
    CReadLine& ValueAtLeast(CParamArray& field, float least, CFixedFormat)
    {
        if (const auto token = NextInteger())
        {
            field.Set(std::max(least, Narrowed(NumberAtStart(*token))));
        }
        return *this;
    }
    CReadLine& Count(CParamArray& field, int capacity, CFixedFormat format)
    {
        return Count(field, 0, capacity, format);
    }
    CReadLine& Count(CParamArray& field, int index, int capacity, CFixedFormat);
    CReadLine& StationHeader(CParamArray& stationNumbers, int station)
    {
        if (const auto token = Next(&ScansAsFloat))
        {
            stationNumbers.Set(station, Narrowed(NumberAtStart(*token)));
        }
        return *this;
    }
    CReadLine& Integer(int& value)
    {
        if (const auto token = NextInteger())
        {
            value = IntegerAtStart(*token);
        }
        return *this;
    }
    /// An integer of one half on a line that both halves read.
    CReadLine& Integer(int& value, int scope);
    CReadLine& Switch(int& flag)
    {
        if (const auto token = NextInteger())
        {
            flag = IntegerAtStart(*token) != 0 ? 1 : 0;
        }
        return *this;
    }
    CReadLine& ValueSwitch(CParamArray& field, int index) { return Value(field, index, "%.0f"); }
    CReadLine& Tag(int& unit) { return Integer(unit); }
    CReadLine& Tag(CParamArray& field) { return Integer(field.unit); }
    CReadLine& Tag(CParamArray& field, CParamArray& twin)
    {
        if (const auto token = NextInteger())
        {
            field.unit = twin.unit = IntegerAtStart(*token);
        }
        return *this;
    }
    CReadLine& TagWrittenAs(int& unit, int) { return Integer(unit); }
    CReadLine& Gap() { return *this; }
    CReadLine& Blank() { return *this; }
    CReadLine& Note(const char*) { return *this; }

private:
    /// Whether one more token stands on the line.
    bool HasNext() const
    {
        CTokens ahead = m_tokens;
        return ahead.Next().has_value();
    }
    static bool ScansAsFloat(std::string_view token) { return ScanFloat(token).has_value(); }

    /// What NextInteger's token holds, for nearly all tokens; nothing, and no failure, for the others.
    std::optional<double> NextPlainNumber();
    std::optional<std::string_view> NextInteger() { return Next(&HoldsInteger); }
    /// The next token, if the line is wanted, reading still goes well and the token is a number.
    std::optional<std::string_view> Next(bool (*isNumber)(std::string_view));

    CInputFileReader& m_reader;
    bool m_wanted;
    CTokens m_tokens;
};

class CInputFileReader
{
public:
    CInputFileReader(CLineReader& lines, CProjectData& project, EHalf half, int revision)
        : m_lines(lines),
          m_project(project),
          m_half(half),
          m_revision(revision)
    {
    }

    bool Ok() const { return m_ok; }
    void Fail() { m_ok = false; }
    int Revision() const { return m_revision; }
    bool Reads(int scope) const
    {
        switch (m_half)
        {
        case EHalf::Geometry:
            return scope != kScopeEnvironment;
        case EHalf::Environment:
            return scope != kScopeGeometry;
        default:
            return true;
        }
    }

    void Label(std::string_view) { ReadLine(); }
    CReadLine Line(int scope) { return CReadLine(*this, ReadLineOf(scope)); }

    template <class Values>
    void List(int scope, Values& values, int first, int count, CFixedFormat format)
    {
        // With a count below 1 a value stands here all the same; it is no element of the list.
        CReadLine line(*this, count < 1 ? (ReadLine(), std::nullopt) : ReadLineOf(scope));
        for (int k = 0; k < count; ++k)
        {
            line.Number(values[static_cast<std::size_t>(first + k)], format);
        }
    }
    void Offsets(std::vector<float>& values, int station, int count)
    {
        constexpr int previousCount = 30;
        const int expected = m_revision >= kRevisionCurrent || count < 1 ? count : previousCount;
        CReadLine line(*this, count < 1 ? (ReadLine(), std::nullopt) : ReadLineOf(kScopeGeometry));
        for (int k = 0; k < expected; ++k)
        {
            float& slot = values[static_cast<std::size_t>(station * kMaxOffsets + k)];
            const bool last = m_revision < kRevisionCurrent && k == previousCount - 1;
            // Old writers stopped one short.
            last ? line.NumberOr(slot, kNotGiven, "%.3f") : line.Number(slot, "%.3f");
        }
    }
    void FileNameLine(int scope, std::string& name)
    {
        if (const auto line = ReadLineOf(scope))
        {
            name = *line == kNoSpectrumFile ? std::string_view() : *line;
        }
    }
    void LabelLine(int scope, std::string& label, const std::string&)
    {
        if (const auto line = ReadLineOf(scope))
        {
            label = *line;
        }
    }
    void GainLines(std::string_view, int& used, std::string& name);
    template <class Action>
    void OnceRead(int scope, Action action)
    {
        if (m_ok && Reads(scope))
        {
            action(m_project);
        }
    }

private:
    std::string_view ReadLine() { return m_ok ? m_lines.ReadLine(kLongestLine) : std::string_view(); }
    /// The next line; nothing, though the line is read, if this half doesn't want it.
    std::optional<std::string_view> ReadLineOf(int scope)
    {
        const bool wanted = m_ok && Reads(scope);
        const std::string_view line = ReadLine();
        return wanted ? std::optional(line) : std::nullopt;
    }

    CLineReader& m_lines;
    CProjectData& m_project;
    EHalf m_half;
    int m_revision;
    bool m_ok = true;
};

std::optional<double> CReadLine::NextPlainNumber()
{
    return m_wanted && m_reader.Ok() ? m_tokens.NextPlainNumber() : std::nullopt;
}

std::optional<std::string_view> CReadLine::Next(bool (*isNumber)(std::string_view))
{
    if (!m_wanted || !m_reader.Ok())
    {
        return std::nullopt;
    }
    const auto token = m_tokens.Next();
    if (!token || !isNumber(*token))
    {
        m_reader.Fail();
        return std::nullopt;
    }
    return token;
}

CReadLine& CReadLine::NumberOr(float& value, float absent, CFixedFormat format)
{
    if (m_wanted && m_reader.Ok() && !HasNext())
    {
        value = absent;
        return *this;
    }
    return Number(value, format);
}

CReadLine& CReadLine::Count(CParamArray& field, int index, int capacity, CFixedFormat)
{
    constexpr float leastInt = -2147483648.0F;
    if (const auto token = NextInteger())
    {
        const auto value = Narrowed(NumberAtStart(*token));
        if (value > static_cast<float>(capacity) || value < leastInt)
        {
            m_reader.Fail();
            return *this;
        }
        field.Set(index, value);
    }
    return *this;
}

CReadLine& CReadLine::Integer(int& value, int scope)
{
    if (m_reader.Reads(scope))
    {
        Integer(value);
    }
    return *this;
}

void CInputFileReader::GainLines(std::string_view, int& used, std::string& name)
{
    if (m_revision < kRevisionCurrent || !m_ok)
    {
        return;
    }
    std::string word(CTokens(ReadLine()).Next().value_or(""));
    std::transform(word.begin(), word.end(), word.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    if (word.find("RECORD") != std::string::npos)
    {
        // No gain lines: what follows is taken for the next record one line too late, and the file counts as
        // damaged.
        used = 0;
        name.clear();
        return;
    }
    CTokens tokens(ReadLine());
    const auto token = tokens.Next();
    if (!token || !HoldsInteger(*token))
    {
        Fail();
        return;
    }
    used = *token == "1" ? 1 : 0;
    name = tokens.Rest().value_or(std::string_view());
}
} // namespace

std::string InputFileText(const CProjectData& project)
{
    std::string text;
    text.reserve(1 << 16);
    CInputFileWriter writer(text);
    writer.WriteLine(project.ProjectTitle);
    writer.WriteLine(kMagicCurrent);
    InputFileFormat::Walk(writer, project);
    return text;
}

bool ReadInputFileText(CLineReader& lines, CProjectData& project, EHalf half, int revision)
{
    CInputFileReader reader(lines, project, half, revision);
    InputFileFormat::Walk(reader, project);
    return reader.Ok();
}
