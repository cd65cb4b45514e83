// The whole calculation of the reference inputs against the values that were found for them.
#include "tests/oe7/calculation/CReferenceFile.h"
#include "tests/oe7/calculation/CReferenceRun.h"

#include <cmath>
#include <numbers>
#include <utility>

#include <gtest/gtest.h>

using namespace oe7;

namespace
{
constexpr double kDegree = std::numbers::pi / 180;

constexpr double kExact = 2e-5; ///< the values are given with six digits
constexpr double kMotion = 0.005;
constexpr double kRollAtZeroSpeed = 0.03;
constexpr double kRms = 0.01;
constexpr double kDamping = 0.02;
constexpr double kSlamming = 0.02;
constexpr double kLoad = 0.02;

class ReferenceCase : public testing::TestWithParam<const char*>
{
protected:
    const CReferenceRun& Run() const { return CReferenceRun::Of(GetParam()); }
    CReferenceTable Table(const std::string& name) const { return {GetParam(), name}; }

    const CSpeedResults& Speed(const CReferenceRow& row) const { return Run().Speed(row.Number("knots")); }
    const CDirectionResults& Direction(const CReferenceRow& row) const
    {
        return Speed(row).Directions.at(Heading(row));
    }
    const CSeawayResults& Seaway(const CReferenceRow& row) const { return Speed(row).Seaways.at(0); }
    const CPositionAtHeading& Position(const CReferenceRow& row) const
    {
        return Seaway(row).Positions.at(Run().Position(row.Text("position"))).at(Heading(row));
    }
    std::size_t Heading(const CReferenceRow& row) const { return Run().Heading(row.Number("heading")); }
    std::size_t Frequency(const CReferenceRow& row) const { return Run().Frequency(row.Number("w0")); }
    /// Turns a roll damping (N m s) into a part of the critical one.
    double PartOfCritical() const
    {
        return Run().Results.Inertia.RollFrequency / (2 * Run().Results.Hull.C44);
    }

    CSectionPotentials Potentials() const
    {
        const CReferenceRun& run = Run();
        return {run.Results.Hull, run.Input.Method, run.Results.Grid, run.Input.HeaveCorrection, 1};
    }
    /// Expects added mass and damping of the elements named by their two modes. An element off the diagonal
    /// may be a small difference: its tolerance is a part of the direct elements' geometric mean.
    void ExpectCoefficients(const CReferenceTable& table, const CReferenceRow& row,
                            const CSectionPotentials& potentials,
                            const std::vector<std::string>& elements) const
    {
        const double w = Direction(row).Encounter.at(Frequency(row));
        const CComplexMatrix6 matrix = RadiationMatrix(Run().Results.Hull, StripCoefficients(potentials, w),
                                                       Speed(row).Speed, Run().Input.EndTerms);
        for (const std::string& name : elements)
        {
            const Complex element = matrix(name[0] - '1', name[1] - '1');
            for (const auto& [kind, value] :
                 {std::pair("A", -element.real() / (w * w)), std::pair("B", element.imag() / w)})
            {
                const double first = table.Largest(row, kind + std::string(2, name[0]));
                const double second = table.Largest(row, kind + std::string(2, name[1]));
                table.ExpectWithin(row, kind + name, value, kMotion * std::sqrt(first * second));
            }
        }
    }

    /// The tolerance of a column of motions.
    static double MotionTolerance(const CReferenceRow& row, const std::string& column, double tolerance)
    {
        return column == "roll" && row.Number("knots") == 0 ? kRollAtZeroSpeed : tolerance;
    }
    /// Expects all columns behind one, given in order.
    static void ExpectColumns(const CReferenceTable& table, const CReferenceRow& row, std::string_view last,
                              const std::vector<double>& values, double tolerance)
    {
        const auto columns = table.ColumnsBehind(last);
        ASSERT_EQ(columns.size(), values.size()) << row.Place();
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            table.Expect(row, columns[i], values[i], tolerance);
        }
    }
};

using ReferenceHull = ReferenceCase;
using ReferenceLoads = ReferenceCase;
using ReferenceDamping = ReferenceCase;
using ReferencePositions = ReferenceCase;
using ReferenceAppendages = ReferenceCase;

std::string NameOf(const testing::TestParamInfo<const char*>& info)
{
    return info.param;
}
} // namespace

INSTANTIATE_TEST_SUITE_P(All, ReferenceHull, testing::Values("barge", "wigley", "ship"), NameOf);
INSTANTIATE_TEST_SUITE_P(All, ReferenceLoads, testing::Values("barge", "ship"), NameOf);
INSTANTIATE_TEST_SUITE_P(All, ReferenceDamping, testing::Values("barge", "ship"), NameOf);
INSTANTIATE_TEST_SUITE_P(All, ReferencePositions, testing::Values("barge", "ship"), NameOf);
INSTANTIATE_TEST_SUITE_P(All, ReferenceAppendages, testing::Values("ship"), NameOf);

TEST_P(ReferenceHull, FloatsAndIsHeavyAsExpected)
{
    const CReferenceTable table = Table("hydrostatic");
    const CHullCondition& hull = Run().Results.Hull;
    const CInertia& inertia = Run().Results.Inertia;
    const double middle = hull.Length / 2;
    const std::map<std::string, double> values = {
        {"draft", hull.Draft},
        {"trim", hull.Trim},
        {"volume", hull.Volume},
        {"mass", hull.Mass / 1000},
        {"xcg", middle - hull.Xg},
        {"waterplane", hull.WaterplaneArea},
        {"lcf", middle - hull.Lcf},
        {"kb", hull.Kb},
        {"bm", hull.Bm},
        {"gm", hull.Gm},
        {"cb", hull.BlockCoefficient},
        {"wetted", hull.WettedSurface},
        {"zg", hull.Zg},
        {"rnf", inertia.RollFrequency},
        {"i44", inertia.I44},
        {"c44", hull.C44},
        {"c55", hull.C55},
        {"c35", hull.C35},
    };
    const CReferenceRow& row = table.Rows().at(0);
    for (const auto& [column, value] : values)
    {
        const double expected = row.Number(column);
        EXPECT_NEAR(value, expected, kExact * std::abs(expected) + 1e-6 * (column == "c35" ? hull.C33 : 1))
            << row.Place() << ", " << column;
    }
}

TEST_P(ReferenceHull, MovesInRegularWavesAsExpected)
{
    const CReferenceTable table = Table("motion");
    const auto modes = table.ColumnsBehind("we");
    for (const CReferenceRow& row : table.Rows())
    {
        const CDirectionResults& direction = Direction(row);
        const std::size_t frequency = Frequency(row);
        table.Expect(row, "we", std::abs(direction.Encounter.at(frequency)), 0);
        for (std::size_t mode = 0; mode < modes.size(); ++mode)
        {
            table.Expect(row, modes[mode], direction.Motions.at(frequency).at(mode),
                         MotionTolerance(row, modes[mode], kMotion));
        }
    }
}

TEST_P(ReferenceHull, HasTheExpectedHeaveAndPitchCoefficientsAndForces)
{
    const CReferenceTable table = Table("vertical");
    const CSectionPotentials potentials = Potentials();
    for (const CReferenceRow& row : table.Rows())
    {
        ExpectCoefficients(table, row, potentials, {"33", "55", "35", "53"});
        const CComplexVector6& force = Direction(row).Forces.at(Frequency(row));
        table.Expect(row, "F3", force(2), kMotion);
        table.Expect(row, "F5", force(4), kMotion);
    }
}

TEST_P(ReferenceLoads, HasTheExpectedSwayRollAndYawCoefficientsAndForces)
{
    const CReferenceTable table = Table("lateral");
    const CSectionPotentials potentials = Potentials();
    for (const CReferenceRow& row : table.Rows())
    {
        ExpectCoefficients(table, row, potentials, {"22", "44", "66", "24", "26", "62"});
        const CComplexVector6& force = Direction(row).Forces.at(Frequency(row));
        table.Expect(row, "F2", std::abs(force(1)), kMotion);
        table.Expect(row, "F4", std::abs(force(3)), kMotion);
        table.Expect(row, "F6", std::abs(force(5)), kMotion);
    }
}

TEST_P(ReferenceHull, MovesInIrregularWavesAsExpected)
{
    const CReferenceTable table = Table("rms");
    for (const CReferenceRow& row : table.Rows())
    {
        const CSeawayResults& seaway = Seaway(row);
        const CModeRms& rms = seaway.Rms.at(Heading(row));
        const auto expect = [&](const std::string& column, double value)
        {
            const std::string mode = column.substr(0, column.find('_'));
            table.Expect(row, column, value, MotionTolerance(row, mode == "angle" ? "roll" : mode, kRms));
        };
        const auto modes = table.ColumnsBehind("heading");
        for (std::size_t mode = 0; mode < kModes; ++mode)
        {
            expect(modes[mode], rms[0][mode] / (mode < 3 ? 1 : kDegree));
        }
        expect("heave_acc", rms[2][2] / kGravity);
        expect("roll_acc", rms[2][3] / kDegree);
        expect("pitch_acc", rms[2][4] / kDegree);
        expect("angle", seaway.RollAngle.at(Heading(row)) / kDegree);
    }
}

TEST_P(ReferenceDamping, OfRollHasTheExpectedComponents)
{
    const CReferenceTable table = Table("damping");
    const double scale = PartOfCritical();
    for (const CReferenceRow& row : table.Rows())
    {
        const CDampingRow& damping = Direction(row).Damping.at(Frequency(row));
        const CRollComponents& parts = damping.Components;
        const double total =
            damping.Wave + parts.Lift() + parts.Eddy + parts.Skin + parts.Keels + parts.Foils;
        ExpectColumns(table, row, "we",
                      {damping.RollAngle / kDegree, total * scale, damping.Wave * scale, parts.Lift() * scale,
                       parts.Eddy * scale, parts.Skin * scale, parts.Keels * scale, parts.Foils * scale,
                       damping.AddedMass / Run().Results.Inertia.I44},
                      kDamping);
    }
}

TEST_P(ReferenceDamping, OfRollIsTakenAtTheExpectedFrequencyAndAngle)
{
    const CReferenceTable table = Table("equivalent");
    for (const CReferenceRow& row : table.Rows())
    {
        table.Expect(row, "frequency", Seaway(row).RollFrequency.at(Heading(row)), kDamping);
        table.Expect(row, "angle", Seaway(row).RollAngle.at(Heading(row)) / kDegree, kDamping);
    }
}

TEST_P(ReferenceAppendages, DampRollAsExpected)
{
    const std::size_t beam = Run().Heading(90);
    for (const std::string name : {"lift", "viscous"})
    {
        const CReferenceTable table = Table(name);
        const CReferenceRow& row = table.Rows().at(0);
        const CResults& results = Run().Results;
        EXPECT_EQ(name == "lift" ? results.LiftColumns : results.ViscousColumns,
                  table.ColumnsBehind("knots"));
        const CDampingRow& damping = Speed(row).Directions.at(beam).Damping.at(0);
        std::vector<double> values = name == "lift" ? damping.AppendageLift : damping.AppendageViscous;
        for (double& value : values)
        {
            value *= PartOfCritical();
        }
        ExpectColumns(table, row, "knots", values, kDamping);
    }
}

TEST_P(ReferenceLoads, InRegularWavesAreAsExpected)
{
    const CReferenceTable table = Table("load");
    const CHullCondition& hull = Run().Results.Hull;
    const double scale = 0.001 * hull.Density * kGravity * hull.LargestBeam * hull.Length;
    const auto columns = table.ColumnsBehind("w0");
    for (const CReferenceRow& row : table.Rows())
    {
        const CLoadVector& loads =
            Direction(row).Loads.at(Run().Cut(row.Number("station"))).at(Frequency(row));
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            const Complex value = loads(static_cast<Eigen::Index>(i)) / scale;
            table.Expect(row, columns[i], i < 2 ? value : value / hull.Length, kLoad);
        }
    }
}

TEST_P(ReferenceLoads, InIrregularWavesAreAsExpected)
{
    const CReferenceTable table = Table("load-rms");
    for (const CReferenceRow& row : table.Rows())
    {
        const auto& loads = Seaway(row).Loads.at(Run().Cut(row.Number("station"))).at(Heading(row));
        std::vector<double> values;
        for (const auto& load : loads)
        {
            values.insert(values.end(), {load.Rms / 1000, load.Period});
        }
        ExpectColumns(table, row, "heading", values, kLoad);
    }
}

TEST_P(ReferenceAppendages, TheShipIsLoadedInStillWaterAsExpected)
{
    const CReferenceTable table = Table("still-water");
    ASSERT_TRUE(Run().Results.StillWater.has_value());
    const CStillWater& still = *Run().Results.StillWater;
    for (const CReferenceRow& row : table.Rows())
    {
        const auto station = static_cast<std::size_t>(row.Number("station"));
        ExpectColumns(table, row, "station",
                      {still.Weight.at(station) / 1000, still.Buoyancy.at(station) / 1000,
                       still.Shear.at(station) / 1000, still.Moment.at(station) / 1000},
                      0.001);
    }
}

TEST_P(ReferencePositions, LieInTheWaterAsExpected)
{
    const CReferenceTable table = Table("place");
    for (const CReferenceRow& row : table.Rows())
    {
        const CPositionGeometry& place = Speed(row).Positions.at(Run().Position(row.Text("position")));
        ExpectColumns(table, row, "position", {place.Draft, place.Freeboard, place.Depth, place.Rise},
                      kExact);
    }
}

TEST_P(ReferencePositions, MoveAsExpected)
{
    const CReferenceTable table = Table("position");
    for (const CReferenceRow& row : table.Rows())
    {
        const auto& v = Position(row).Local;
        ExpectColumns(table, row, "heading",
                      {v[0], v[1], v[2] / kGravity, v[3], v[4], v[5] / kGravity, v[6], v[7], v[8] / kGravity,
                       v[9], v[10], v[12] / kGravity, v[14] / kGravity},
                      kRms);
    }
}

TEST_P(ReferencePositions, InterruptWorkAndMakeSickAsExpected)
{
    const CReferenceTable interruptions = Table("interruptions");
    for (const CReferenceRow& row : interruptions.Rows())
    {
        const CPositionAtHeading& position = Position(row);
        ExpectColumns(interruptions, row, "heading",
                      {position.LateralCount, position.LongitudinalCount,
                       position.LateralCount + position.LongitudinalCount},
                      kSlamming);
    }
    const CReferenceTable sickness = Table("sickness");
    for (const CReferenceRow& row : sickness.Rows())
    {
        ExpectColumns(sickness, row, "heading", {Position(row).Incidence, Position(row).Exposure}, kRms);
    }
}

TEST_P(ReferencePositions, GetWetAsExpected)
{
    const CReferenceTable table = Table("wetness");
    for (const CReferenceRow& row : table.Rows())
    {
        ExpectColumns(table, row, "heading", {Position(row).DeckProbability, Position(row).DeckRate},
                      kSlamming);
    }
}

TEST_P(ReferenceAppendages, TheShipSlamsAndEmergesAsExpected)
{
    const CReferenceTable keel = Table("keel");
    for (const CReferenceRow& row : keel.Rows())
    {
        ExpectColumns(keel, row, "heading", {Position(row).KeelProbability, Position(row).KeelRate},
                      kSlamming);
    }
    const CReferenceTable emergence = Table("emergence");
    for (const CReferenceRow& row : emergence.Rows())
    {
        ExpectColumns(emergence, row, "heading",
                      {Position(row).EmergenceProbability, Position(row).EmergenceRate}, kSlamming);
    }
    const CReferenceTable form = Table("slam-form");
    for (const CReferenceRow& row : form.Rows())
    {
        const CSlamForm& slam = Run().Results.SlamForms.at(Run().Position(row.Text("position")));
        ExpectColumns(form, row, "position", {slam.FormFactor, slam.Width}, kExact);
    }
    const CReferenceTable slamming = Table("slamming");
    for (const CReferenceRow& row : slamming.Rows())
    {
        const CPositionAtHeading& p = Position(row);
        ExpectColumns(slamming, row, "heading",
                      {p.SlamProbability, p.SlamRate, p.ExpectedPressure / 1000, p.ExtremePressure / 1000,
                       p.ExpectedForce, p.ExtremeForce},
                      kSlamming);
    }
}
