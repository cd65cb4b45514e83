// What every section of the input summary works with: the page that it writes to, the project, and the rules
// by which values are shown.
#pragma once

#include "core/platform/NumberText.h"
#include "core/project/CProjectData.h"
#include "core/results/report/CHtmlPage.h"
#include "core/results/report/InputSummary.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

/// In the place of a value that isn't given.
constexpr const char* kNotAvailable = "N/A";

/// The tags around a value.
struct CMarks
{
    const char* Open;
    const char* Close;
};
/// Bold for a changed value, italic for any other.
CMarks MarkValue(int changed);
/// A value between its marks.
std::string Marked(std::string_view value, int changed = 0);

/// The text of a number, "N/A" for one that reads like the unset value in the same format.
std::string GivenText(float value, CFixedFormat format, float unset = kNotGiven);
/// The same between its marks. A number that is no keyword field is never marked as changed.
std::string Marked(float value, CFixedFormat format, float unset = kNotGiven);
std::string Marked(const CParamArray& field, CFixedFormat format, int index = 0, float unset = kNotGiven);
/// A file's path between marks: "N/A" if there is none.
std::string MarkedFile(const std::string& path);

const char* LengthUnit(int unit);
const char* MassUnit(int unit);
inline const char* LengthUnit(const CParamArray& field)
{
    return LengthUnit(field.unit);
}
inline const char* MassUnit(const CParamArray& field)
{
    return MassUnit(field.unit);
}

class CInputSummary
{
public:
    CInputSummary(const CProjectData& project, ESummaryScope scope) : Project(project), m_scope(scope) {}

    CHtmlPage Page;
    const CProjectData& Project;

    bool HasEnvironment() const { return m_scope != ESummaryScope::Geometry; }
    bool HasGeometry() const { return m_scope != ESummaryScope::Environment; }

    /// A row of a table: the cell that it begins with, then the others, each on a line.
    void Row(std::string_view first, std::initializer_list<std::string_view> cells);
    /// Numbers of a list with three decimals or more, each on a line, and a break behind every eighth and
    /// behind the last.
    void List(const CParamArray& field, int first, int count, CFixedFormat format);

    // Stations count from the end that the project names.
    int StationNumber(int station) const;
    std::string StationText(float station, CFixedFormat format) const;
    /// A station between its marks.
    std::string Station(const CParamArray& field, CFixedFormat format, int index = 0) const;

    // Which parts the ship has.
    bool Included(int part) const { return Project.AppendedHull == 1 && part == 1; }
    bool HasFins() const;
    bool HasRudder() const { return Included(Project.IncludeRudder); }

private:
    ESummaryScope m_scope;
};

// The sections; each ends with the link to the contents.
void GeneralData(CInputSummary& summary, const CSummaryHead& head);
void EnvironmentSpecification(CInputSummary& summary);
void ShipSpecification(CInputSummary& summary);

// Blocks of the environment section and of the ship section.
void SeawaySpectrum(CInputSummary& summary);
void HullDefinition(CInputSummary& summary);
void SeakeepingPositions(CInputSummary& summary);
void MotionInputs(CInputSummary& summary);
void Appendages(CInputSummary& summary);
void ControlSystems(CInputSummary& summary);
void AntiRollTank(CInputSummary& summary);
void SeaLoads(CInputSummary& summary);

/// The heading of the ship section's pages, with the line end that belongs to it.
void ShipHeading(CInputSummary& summary, std::string_view lineEnd);
