#include "core/project/OffsetImport.h"

#include "core/platform/NumberText.h"
#include "core/platform/TextReading.h"

#include <algorithm>

namespace
{
constexpr std::size_t kLongestOffsetLine = 255;

/// What spreadsheets put in front of a file that they save as UTF-8.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr int kFewestStations = 2;
constexpr int kFewestOffsets = 3;

/// A field of an offset line, with the failure that is told of it.
struct COffsetField
{
    float Minimum;
    float Maximum;
    const char* Failure;
};

constexpr COffsetField kY = {0.0F, 100000.0F, "Y Offset: Min: 0.00, Max: 100,000"};
constexpr COffsetField kZ = {-50.0F, 100000.0F, "Z Offset: Min: -50.00, Max: 100,000"};

/// Reads line by line and field by field; each reading function is false at the file's first failure.
class COffsetReader
{
public:
    COffsetReader(std::string_view content, COffsetTable& offsets)
        : m_lines(content.substr(content.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0)),
          m_offsets(offsets)
    {
    }

    bool Read()
    {
        if (!ReadUnit() || !ReadStationCount())
        {
            return false;
        }
        for (int station = 0; station < m_offsets.StationCount; ++station)
        {
            if (!ReadStation(station))
            {
                return false;
            }
        }
        return true;
    }

    const std::string& Failure() const { return m_failure; }

private:
    bool ReadUnit()
    {
        NextLine();
        const std::string_view unit = m_fields.Next().value_or("");
        const char initial = unit.empty() ? '\0' : unit.front();
        if (initial != 'm' && initial != 'M' && initial != 'b' && initial != 'B')
        {
            return Fail("Units must be either Metric or British");
        }
        m_offsets.Unit = initial == 'm' || initial == 'M' ? kUnitMetric : kUnitBritish;
        return true;
    }

    bool ReadStationCount()
    {
        NextLine();
        if (!ReadInteger(kFewestStations, kMaxStations, m_offsets.StationCount))
        {
            return Fail("Number of Stations: Min: 2, Max: 21");
        }
        const std::string_view convention = m_fields.Next().value_or("");
        if (convention != "FP=0" && convention != "AP=0")
        {
            return Fail("Station Convention Definition");
        }
        m_offsets.StationOrigin = convention == "FP=0" ? 0 : 1;
        return true;
    }

    bool ReadStation(int station)
    {
        NextLine();
        int number = 0;
        if (!ReadInteger(station, station, number))
        {
            return Fail("Stations must be numbered from smallest(0) to greatest");
        }
        int& count = m_offsets.Counts[static_cast<std::size_t>(station)];
        if (!ReadInteger(kFewestOffsets, kMaxOffsets, count))
        {
            return Fail("Number of offsets: Min: 3, Max: 60");
        }
        const int first = station * kMaxOffsets;
        for (int slot = first; slot < first + count; ++slot)
        {
            NextLine();
            if (!ReadFloat(kY, m_offsets.Y[static_cast<std::size_t>(slot)]) ||
                !ReadFloat(kZ, m_offsets.Z[static_cast<std::size_t>(slot)]))
            {
                return false;
            }
        }
        return true;
    }

    void NextLine() { m_fields = CTokens(m_lines.ReadLine(kLongestOffsetLine), ','); }

    bool ReadInteger(int minimum, int maximum, int& value)
    {
        const auto scanned = ScanInteger(m_fields.Next().value_or(""));
        if (!scanned || *scanned < minimum || *scanned > maximum)
        {
            return false;
        }
        value = *scanned;
        return true;
    }

    bool ReadFloat(const COffsetField& field, float& value)
    {
        const auto scanned = ScanFloat(m_fields.Next().value_or(""));
        // Worded so that a NaN fails.
        if (!scanned || !(field.Minimum <= *scanned && *scanned <= field.Maximum))
        {
            return Fail(field.Failure);
        }
        value = *scanned;
        return true;
    }

    bool Fail(const char* what)
    {
        m_failure = "Error Line " + IntegerText(m_lines.LineNumber()) + ": " + what;
        return false;
    }

    CLineReader m_lines;
    CTokens m_fields{""};
    COffsetTable& m_offsets;
    std::string m_failure;
};
} // namespace

std::string ReadOffsets(std::string_view content, COffsetTable& offsets)
{
    COffsetReader reader(content, offsets);
    reader.Read();
    return reader.Failure();
}

void StoreOffsets(const COffsetTable& offsets, CProjectData& project)
{
    project.NST.Set(static_cast<float>(offsets.StationCount));
    project.StationOrigin = offsets.StationOrigin;
    for (int station = 0; station < offsets.StationCount; ++station)
    {
        const int count = offsets.Counts[static_cast<std::size_t>(station)];
        project.NOFFUSER.Set(station, static_cast<float>(count));
        const int first = station * kMaxOffsets;
        std::copy_n(offsets.Y.begin() + first, count, project.YAUSER.data.begin() + first);
        std::copy_n(offsets.Z.begin() + first, count, project.ZAUSERBL.data.begin() + first);
    }
    // It rules Z too.
    project.YAUSER.unit = offsets.Unit;
}
