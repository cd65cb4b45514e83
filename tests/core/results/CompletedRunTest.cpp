// Completion of what the engine leaves, end to end: every number of the listing comes back from the file.
#include "core/results/CalculatedArrays.h"
#include "tests/core/results/CCompletion.h"
#include "tests/support/EngineNumbers.h"
#include "tests/support/FullProject.h"

#include <gtest/gtest.h>

namespace
{
using E = EEngineNumber;

float Single(double value)
{
    return static_cast<float>(value);
}

/// Compares what the walk hands out with the numbers that the engine's files were made of.
class CComparison : public CCalculatedReceiver
{
public:
    explicit CComparison(const CEngineRun& run) : m_run(run) {}
    ~CComparison() override = default;

    int Numbers = 0;

    void FroudeNumber(int speed, int heading, float number) override
    {
        Expect(number, MadeUp(E::Froude, speed, heading));
    }
    void Frequencies(int speed, int heading, const CFloatRows& rows) override
    {
        ASSERT_EQ(rows.Count(), m_run.FrequencyCount);
        for (int row = 0; row < rows.Count(); ++row)
        {
            Expect(rows.At(row, 0), EncounterFrequency(m_run, speed, heading, row));
            Expect(rows.At(row, 1), WavelengthRatio(m_run, speed, heading, row));
        }
    }
    void RollConstants(int speed, int heading, const std::array<float, 3>& values) override
    {
        Expect(values[0], MadeUp(E::RollFrequency, speed, heading));
        Expect(values[1], MadeUp(E::RollStiffness, speed, heading));
        Expect(values[2], MadeUp(E::RollInertia, speed, heading));
    }
    void Damping(int speed, int heading, const CFloatRows& rows) override
    {
        for (int row = 0; row < rows.Count(); ++row)
        {
            Expect(rows.At(row, 0), EncounterFrequency(m_run, speed, heading, row));
            Expect(rows.At(row, 1), MadeUp(E::RollAngle, speed, heading, row));
            for (int k = 0; k < 7; ++k)
            {
                Expect(rows.At(row, 2 + k), MadeUp(E::Damping, speed, heading, row, k));
            }
            Expect(rows.At(row, 9), MadeUp(E::AddedMass, speed, heading, row));
        }
    }
    void LiftBreakdown(int speed, int heading, const CFloatRows& rows) override
    {
        ExpectBreakdown(speed, heading, rows, E::LiftDamping, m_run.LiftColumns());
    }
    void ViscousBreakdown(int speed, int heading, const CFloatRows& rows) override
    {
        ExpectBreakdown(speed, heading, rows, E::ViscousDamping, m_run.ViscousColumns());
    }
    void Interruption(int speed, int seaway, int position, const CFloatRows& rows) override
    {
        for (int row = 0; row < rows.Count(); ++row)
        {
            Expect(rows.At(row, 0), m_run.Headings[static_cast<std::size_t>(row)]);
            for (int k = 0; k < 5; ++k)
            {
                Expect(rows.At(row, 1 + k), MadeUp(E::Interruption, speed, seaway, position, row, k));
            }
        }
    }
    void Sickness(int speed, int seaway, int position, int formulation, int exposureFlag, float exposure,
                  const CFloatRows& rows) override
    {
        const CEnginePosition& place = m_run.Positions[static_cast<std::size_t>(position)];
        EXPECT_EQ(formulation, place.BureauVeritas ? 1 : 0);
        Expect(exposure, exposureFlag == 0 ? 0 : place.Exposure);
        for (int row = 0; row < rows.Count(); ++row)
        {
            Expect(rows.At(row, 0), m_run.Headings[static_cast<std::size_t>(row)]);
            Expect(rows.At(row, 1), MadeUp(E::Incidence, speed, seaway, position, row));
            if (place.LongestExposure)
            {
                Expect(rows.At(row, 2), MadeUp(E::Exposure, speed, seaway, position, row));
            }
        }
    }
    void Slamming(int speed, int seaway, int position, const std::array<float, 4>& levels,
                  const CFloatRows& rows) override
    {
        for (int k = 0; k < 4; ++k)
        {
            Expect(levels[static_cast<std::size_t>(k)], MadeUp(E::Clearance, speed, seaway, position, k));
        }
        for (int row = 0; row < rows.Count(); ++row)
        {
            ExpectMotion(speed, seaway, position, rows, row, 2);
            for (int k = 0; k < 2; ++k)
            {
                Expect(rows.At(row, 7 + k), MadeUp(E::Pressure, speed, seaway, position, row, k));
                Expect(rows.At(row, 9 + k), MadeUp(E::Force, speed, seaway, position, row, k));
            }
        }
    }
    void WetnessOrEmergence(int speed, int seaway, int position, const std::array<float, 2>& levels,
                            const CFloatRows& rows) override
    {
        Expect(levels[0], MadeUp(E::Clearance, speed, seaway, position, 0));
        Expect(levels[1], MadeUp(E::Clearance, speed, seaway, position, 1));
        for (int row = 0; row < rows.Count(); ++row)
        {
            ExpectMotion(speed, seaway, position, rows, row, 1);
        }
    }
    void LoadRms(int speed, int seaway, int loadStation, const CFloatRows& rows) override
    {
        for (int row = 0; row < rows.Count(); ++row)
        {
            for (int k = 0; k < kLoadComponents; ++k)
            {
                Expect(rows.At(row, 2 * k), MadeUp(E::LoadRms, speed, seaway, k, loadStation, row));
                Expect(rows.At(row, 2 * k + 1), MadeUp(E::LoadPeriod, speed, seaway, k, loadStation, row));
            }
        }
    }

private:
    void Expect(float found, double expected)
    {
        ++Numbers;
        if (found != Single(expected)) // far quicker than EXPECT_EQ
        {
            ADD_FAILURE() << found << " stands in the place of " << expected;
        }
    }
    void ExpectBreakdown(int speed, int heading, const CFloatRows& rows, E number, int columns)
    {
        for (int row = 0; row < rows.Count(); ++row)
        {
            Expect(rows.At(row, 0), WaveFrequency(m_run, row));
            Expect(rows.At(row, 1), EncounterFrequency(m_run, speed, heading, row));
            for (int k = 0; k < columns; ++k)
            {
                Expect(rows.At(row, 3 + k), MadeUp(number, speed, heading, row, k));
            }
        }
    }
    void ExpectMotion(int speed, int seaway, int position, const CFloatRows& rows, int row, int events)
    {
        Expect(rows.At(row, 0), m_run.Headings[static_cast<std::size_t>(row)]);
        Expect(rows.At(row, 1), MadeUp(E::RelativeMotion, speed, seaway, position, row, 0));
        Expect(rows.At(row, 2), MadeUp(E::RelativeMotion, speed, seaway, position, row, 1));
        for (int k = 0; k < events; ++k)
        {
            Expect(rows.At(row, 3 + 2 * k), MadeUp(E::Probability, speed, seaway, position, row, k));
            Expect(rows.At(row, 4 + 2 * k), MadeUp(E::Rate, speed, seaway, position, row, k));
        }
    }

    const CEngineRun& m_run;
};

/// Completes the run of a project, and compares all that was calculated. Gives the count of numbers.
int CompareAll(CCompletion& completion)
{
    const CEngineRun run = completion.RunEngine();
    completion.Complete();
    EXPECT_EQ(completion.Recorder.Messages, std::vector<std::string>());
    EXPECT_EQ(completion.Project.ResultsLoaded, 1);
    CComparison comparison(run);
    WalkCalculated(completion.Read(), comparison);
    return comparison.Numbers;
}

/// A short form of the largest project.
void FillShort(CProjectData& p)
{
    FillToMaximum(p);
    p.NSPEED.Set(2);
    p.NSEAWAY.Set(2);
    p.NPOS.Set(7);
    p.NSTLOAD.Set(3);
    p.WVFREQMAX.Set(0.5F);
    for (int k = 0; k < 6; ++k)
    {
        p.RELMOCALC.Set(k, static_cast<float>(k));
    }
}
} // namespace

TEST(CompletedRun, EveryNumberOfTheListingComesBack)
{
    CCompletion completion;
    FillShort(completion.Project);
    EXPECT_GT(CompareAll(completion), 10000);
}

TEST(CompletedRun, EachCountButSpeedsAndSeawaysAtItsLimit)
{
    CCompletion completion;
    FillToMaximum(completion.Project);
    completion.Project.NSPEED.Set(2);
    completion.Project.NSEAWAY.Set(2);
    EXPECT_GT(CompareAll(completion), 100000);
}
