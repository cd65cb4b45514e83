#include "core/results/report/CInputSummary.h"

namespace
{
constexpr int kValuesPerLine = 8;
}

CMarks MarkValue(int changed)
{
    return changed != 0 ? CMarks{"<B>", "</B>"} : CMarks{"<I>", "</I>"};
}

std::string Marked(std::string_view value, int changed)
{
    const CMarks marks = MarkValue(changed);
    return std::string(marks.Open).append(value).append(marks.Close);
}

std::string GivenText(float value, CFixedFormat format, float unset)
{
    std::string text = FixedText(static_cast<double>(value), format);
    return text == FixedText(static_cast<double>(unset), format) ? kNotAvailable : text;
}

std::string Marked(float value, CFixedFormat format, float unset)
{
    return Marked(GivenText(value, format, unset));
}

std::string Marked(const CParamArray& field, CFixedFormat format, int index, float unset)
{
    return Marked(GivenText(field.Value(index), format, unset), field.changed);
}

std::string MarkedFile(const std::string& path)
{
    const bool none = path.empty() || path == kNoSpectrumFile || path == kNoGainFile || path == "NOFILE";
    return Marked(none ? kNotAvailable : path);
}

const char* LengthUnit(int unit)
{
    return unit == kUnitMetric ? "meters" : "feet";
}

const char* MassUnit(int unit)
{
    return unit == kUnitMetric ? "tonnes" : "tons";
}

void CInputSummary::Row(std::string_view first, std::initializer_list<std::string_view> cells)
{
    Page.WriteLine("<TR><TD>%s</TD>", first);
    for (const std::string_view cell : cells)
    {
        Page.WriteLine("<TD>%s</TD>", cell);
    }
    Page.WriteLine("</TR>");
}

void CInputSummary::List(const CParamArray& field, int first, int count, CFixedFormat format)
{
    for (int k = 0; k < count; ++k)
    {
        Page.WriteLine("&nbsp&nbsp %s", Marked(field, format, first + k));
        if ((k + 1) % kValuesPerLine == 0 || k + 1 == count)
        {
            Page.WriteLine("<BR>");
        }
    }
}

int CInputSummary::StationNumber(int station) const
{
    return Project.StationOrigin == 0 ? station : Project.NST.Count(kMaxStations) - 1 - station;
}

std::string CInputSummary::StationText(float station, CFixedFormat format) const
{
    const std::string text = GivenText(station, format);
    const bool asItStands = Project.StationOrigin == 0 || text == kNotAvailable;
    return asItStands ? text : FixedText(static_cast<double>(Project.NST.Value() - 1 - station), format);
}

std::string CInputSummary::Station(const CParamArray& field, CFixedFormat format, int index) const
{
    return Marked(StationText(field.Value(index), format), field.changed);
}

bool CInputSummary::HasFins() const
{
    return Project.FINTANKSTAB.Integer() == 1 && Project.NFINPAIR.Count(kMaxFinPairs) > 0;
}
