// The sample projects that the program is delivered with.
#include "core/engine/CEngineInputWriter.h"
#include "tests/support/CTestProject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using testing::ElementsAre;

namespace
{
class Samples : public testing::TestWithParam<const char*>
{
protected:
    std::string Name() const { return GetParam(); }
    std::string Path() const { return SourceFile("samples/" + Name() + ".od7"); }
};

/// The offsets of a file, in metres whatever unit it is in.
std::vector<double> ImportedMetres(CTestProject& test, const std::string& file)
{
    test.Recorder.Files = {SourceFile("samples/offsets/" + file)};
    EXPECT_EQ(test.File.ImportOffsets(), 1) << file;
    EXPECT_THAT(test.Recorder.Messages, ElementsAre()) << file;
    const double metres = test.Project.YAUSER.unit == kUnitBritish ? 0.3048 : 1;
    std::vector<double> values;
    for (const auto* field : {&test.Project.YAUSER, &test.Project.ZAUSERBL})
    {
        for (const float value : field->data)
        {
            values.push_back(value == kNotGiven ? kNotGiven : static_cast<double>(value) * metres);
        }
    }
    return values;
}
} // namespace

TEST_P(Samples, AreReadWholeAndSavedWithTheSameBytes)
{
    CTestProject test;
    EXPECT_EQ(test.File.OpenPath(Path()), EOpened::Whole);
    test.Recorder.Files = {test.Folder.File("copy")};
    EXPECT_EQ(test.File.SaveInputAs(), ESaved::Whole);
    EXPECT_EQ(FileContent(test.Folder.File("copy.od7")), FileContent(Path()));
}

TEST_P(Samples, LackNothingThatTheEngineNeeds)
{
    CTestProject test;
    test.File.OpenPath(Path());
    EXPECT_TRUE(CEngineInputWriter(test.Project, test.Folder.Path(), test.Recorder.Platform).Write());
    EXPECT_THAT(test.Recorder.Messages, ElementsAre());
    ExpectGolden(FileContent(test.Folder.File("Ondara7.inp")), "samples/" + Name() + ".inp");
}

TEST_P(Samples, HaveTheSameHullInBothOffsetFiles)
{
    CTestProject metric;
    CTestProject british;
    const auto left = ImportedMetres(metric, Name() + "-metric.csv");
    const auto right = ImportedMetres(british, Name() + "-british.csv");
    for (std::size_t k = 0; k < left.size(); ++k)
    {
        // Three decimals of a metre and of a foot.
        ASSERT_NEAR(left[k], right[k], 0.5e-3 * 1.3048 + 1e-5) << k;
    }
}

TEST_P(Samples, CarryTheHullOfTheirOffsetFile)
{
    CTestProject sample;
    sample.File.OpenPath(Path());
    const bool british = sample.Project.YAUSER.unit == kUnitBritish;
    CTestProject imported;
    ImportedMetres(imported, Name() + (british ? "-british.csv" : "-metric.csv"));
    EXPECT_EQ(sample.Project.NST.Value(), imported.Project.NST.Value());
    EXPECT_EQ(sample.Project.YAUSER.data, imported.Project.YAUSER.data);
    EXPECT_EQ(sample.Project.ZAUSERBL.data, imported.Project.ZAUSERBL.data);
}

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::Values("Sample01", "Sample02"),
                         [](const auto& sample) { return std::string(sample.param); });

TEST(Sample01, IsTheWigleyHull)
{
    CTestProject test;
    test.File.OpenPath(SourceFile("samples/Sample01.od7"));
    const CProjectData& p = test.Project;
    EXPECT_EQ(p.SHIPLEN.Value(), 100);
    EXPECT_EQ(p.DRAFTMID.Value(), 6.25F);
    // W. C. S. Wigley's parabolas: y = B/2 (1 - (2x/L)^2) (1 - ((z - T)/T)^2).
    for (int station = 1; station < 20; ++station)
    {
        const double x = 1 - station / 10.0;
        for (int k = station * kMaxOffsets; k < station * kMaxOffsets + 13; ++k)
        {
            const double depth = (p.ZAUSERBL.Value(k) - 6.25) / 6.25;
            EXPECT_NEAR(p.YAUSER.Value(k), 5 * (1 - x * x) * (1 - depth * depth), 1.5e-3);
        }
    }
}

TEST(Sample01, HasMassesThatAddUpToItsDisplacement)
{
    CTestProject test;
    test.File.OpenPath(SourceFile("samples/Sample01.od7"));
    double mass = 0;
    for (const float station : test.Project.SECTTN.data)
    {
        mass += static_cast<double>(station);
    }
    EXPECT_NEAR(mass, 1.025 * 4 / 9 * 100 * 10 * 6.25, 0.5);
}
