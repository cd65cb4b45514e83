// The bundled engine, asked for the waterline of a sample ship that is loaded by displacement.
#include "core/engine/CEngineInputWriter.h"
#include "core/engine/CRunController.h"
#include "core/engine/Waterline.h"
#include "core/platform/CSystemPrograms.h"
#include "core/platform/Files.h"
#include "tests/cli/CCliTest.h"

#include <chrono>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <ostream>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
/// A sample with its draft and trim, in the unit that it has them in.
struct CAfloat
{
    const char* Sample;
    float Draft;
    float Trim;
    double Metres; ///< of the unit
};

void PrintTo(const CAfloat& afloat, std::ostream* stream)
{
    *stream << afloat.Sample << " at " << afloat.Draft << ", trim " << afloat.Trim;
}

/// Starts programs, and opens nothing.
class CEnginePrograms : public CSystemPrograms
{
public:
    EStart ShowText(const std::string&) override { return EStart::Started; }
};

class CBundledWaterline : public CTestProject
{
public:
    explicit CBundledWaterline(const std::string& sample)
    {
        std::filesystem::current_path(Folder.Path());
        EXPECT_EQ(File.OpenPath(SourceFile(std::string("samples/") + sample)), EOpened::Whole);
    }

    /// Gives the ship the displacement and centre that she has at a draft and a trim, as the engine says.
    void LoadAsAt(float draft, float trim)
    {
        Project.TRIMDEF.Set(0);
        Project.DRAFTMID.Set(draft);
        Project.TRIMST.Set(trim);
        ASSERT_TRUE(CEngineInputWriter(Project, Folder.Path(), m_platform).WriteReduced());
        ASSERT_EQ(m_programs.StartProgram(kEngineProgram, Folder.Path()), EStart::Started);
        Wait();
        const std::string results = FileContent(Folder.File("ondara7.bin"));
        ASSERT_GT(results.size(), 216U);
        DeleteFile(Folder.File("ondara7.bin")); // nothing is to be read there again
        Project.TRIMDEF.Set(1);
        for (const auto& [field, place] : {std::pair(&Project.DISPUSER, 208), {&Project.LCGPUSER, 212}})
        {
            std::memcpy(field->data.data(), results.data() + place, sizeof(float));
            field->unit = kUnitMetric;
        }
        Project.DRAFTMID.Set(-1);
        Project.TRIMST.Set(-1);
    }

    CWaterline Find()
    {
        return CWaterlineRun(Project, Folder.Path(), m_platform, [this] { return Wait(); }).Find().value();
    }

private:
    bool Wait()
    {
        while (m_programs.IsRunning())
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return true;
    }

    CEnginePrograms m_programs;
    CPlatform m_platform{Recorder, Recorder, Recorder, m_programs};
};

class BundledWaterline : public testing::TestWithParam<CAfloat>
{
};
} // namespace

TEST_P(BundledWaterline, IsThatOfTheDraftAndTrimThatHaveTheSameDisplacementAndCentre)
{
    const CAfloat afloat = GetParam();
    CBundledWaterline ship(afloat.Sample);
    ship.LoadAsAt(afloat.Draft, afloat.Trim);
    const CWaterline waterline = ship.Find();
    EXPECT_NEAR(static_cast<double>(waterline.Draft), static_cast<double>(afloat.Draft) * afloat.Metres,
                1e-3);
    EXPECT_NEAR(static_cast<double>(waterline.Trim), static_cast<double>(afloat.Trim) * afloat.Metres, 2e-3);
    EXPECT_FALSE(FileExists(ship.Folder.File("ondara7.bin")));
}

INSTANTIATE_TEST_SUITE_P(Samples, BundledWaterline,
                         testing::Values(CAfloat{"Sample01.od7", 6.25F, 0, 1},
                                         CAfloat{"Sample01.od7", 5, 0.75F, 1},
                                         CAfloat{"Sample01.od7", 7, -0.5F, 1},
                                         CAfloat{"Sample02.od7", 15.5F, 0, 0.3048},
                                         CAfloat{"Sample02.od7", 14, 1.5F, 0.3048}),
                         [](const testing::TestParamInfo<CAfloat>& afloat)
                         {
                             return std::string(afloat.param.Sample).substr(0, 8) + "At" +
                                    std::to_string(static_cast<int>(afloat.param.Draft * 100)) + "Trim" +
                                    (afloat.param.Trim < 0 ? "Forward" : "Aft") +
                                    std::to_string(static_cast<int>(std::abs(afloat.param.Trim) * 100));
                         });

TEST(BundledWaterlineCheck, AHeavyShipHasMoreSegmentsUnderWater)
{
    CCliTest test;
    ASSERT_EQ(test.File.OpenPath(SourceFile("samples/Sample01.od7")), EOpened::Whole);
    test.Project.TRIMDEF.Set(1);
    test.Project.LCGPUSER.Set(50);
    test.Project.DISPUSER.Set(2847.2F); // her own, at a draft of 6.25
    test.Write("ship.od7");
    test.Write("ondara7.bin", "results of before");
    EXPECT_EQ(test.Run({"check", "ship.od7"}),
              (CCliRun{kExitDone, "", "Offset Checks: Geometry offsets are satisfactory.\n"}));
    test.Project.DISPUSER.Set(4450); // her draft is beyond 8, up to where the topside begins
    test.Write("ship.od7");
    const CCliRun run = test.Run({"check", "ship.od7"});
    EXPECT_EQ(run.ExitCode, kExitFailed);
    EXPECT_THAT(run.Errors, testing::StartsWith("Input Warning: There are hull definition sectional offset "
                                                "segments that are long. "));
    EXPECT_EQ(test.Content("ondara7.bin"), "results of before");
}
