// The way of a run through the front end: its project becomes the engine's input, the files that the engine
// writes become results, and every number comes back out of them.
#include "core/engine/CEngineInputWriter.h"
#include "core/results/CalculatedArrays.h"
#include "oe7/input/InputFile.h"
#include "tests/core/results/CCompletion.h"
#include "tests/oe7/output/CMadeRun.h"
#include "tests/support/FullProject.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace
{
using oe7::CPositionAtHeading;
using oe7::EWaterEvent;

constexpr double kDegrees = 180 / std::numbers::pi;
constexpr double kGravity = 9.81;

/// What an SI value is multiplied by for the files.
struct CFactors
{
    double Length = 1;
    double Area = 1;
    double Tonnes = 1 / 1000.0;
    double Force = 1;
    double Moment = 1;
    double Inertia = 1;
    double Pressure = 1 / 1000.0;
    double ForcePerLength = 1;
};

constexpr CFactors kBritish = {1 / 0.3048,    1 / 0.3048 / 0.3048,    1 / 1016.0469,
                               1 / 4.4482216, 1 / 4.4482216 / 0.3048, 1 / 1.3558179,
                               1 / 6894.757,  0.3048 / 4.4482216};

/// Compares values out of a file with those in SI; `decimals` are those of the listing.
class CExpectation
{
public:
    CExpectation(const CMadeRun& run, const CFactors& factors) : m_run(run), m_factors(factors) {}

    int Numbers = 0;

protected:
    void Expect(float found, double expected, int decimals)
    {
        Near(found, expected, 0.501 * std::pow(10, -decimals));
    }
    /// Of the binary file.
    void Exact(float found, double expected) { Near(found, expected, 0); }

    const oe7::CSpeedResults& Speed(int speed) const { return m_run.Results.Speeds.at(Index(speed)); }
    const oe7::CDirectionResults& Direction(int speed, int heading) const
    {
        return Speed(speed).Directions.at(Index(heading));
    }
    const oe7::CSeawayResults& Seaway(int speed, int seaway) const
    {
        return Speed(speed).Seaways.at(Index(seaway));
    }
    static std::size_t Index(int index) { return static_cast<std::size_t>(index); }

    const CMadeRun& m_run;
    const CFactors& m_factors;

private:
    void Near(float found, double expected, double rounding)
    {
        ++Numbers;
        const double value = found;
        if (!(std::abs(value - expected) <= rounding + 3e-7 * std::abs(expected)))
        {
            ADD_FAILURE() << value << " stands in the place of " << expected;
        }
    }
};

/// The tables per speed of the calculated section.
class CCalculatedTables : public CCalculatedReceiver, public CExpectation
{
public:
    using CExpectation::CExpectation;
    ~CCalculatedTables() override = default;

    void FroudeNumber(int speed, int /*heading*/, float number) override
    {
        Expect(number, Speed(speed).Froude, 4);
    }
    void Frequencies(int speed, int heading, const CFloatRows& rows) override
    {
        ASSERT_EQ(rows.Count(), static_cast<int>(m_run.Results.Frequencies.Output.size()));
        for (int n = 0; n < rows.Count(); ++n)
        {
            const double w = m_run.Results.Frequencies.Output[Index(n)];
            Encounter(rows.At(n, 0), speed, heading, n);
            Expect(rows.At(n, 1), 2 * std::numbers::pi * kGravity / w / w / m_run.Input.Length, 4);
        }
    }
    void RollConstants(int /*speed*/, int /*heading*/, const std::array<float, 3>& values) override
    {
        Exact(values[0], Rounded(m_run.Results.Inertia.RollFrequency));
        Exact(values[1], Rounded(m_run.Results.Hull.C44 * m_factors.Moment));
        Exact(values[2], Rounded(m_run.Results.Inertia.I44 * m_factors.Inertia));
    }
    void Damping(int speed, int heading, const CFloatRows& rows) override
    {
        for (int n = 0; n < rows.Count(); ++n)
        {
            const oe7::CDampingRow& row = Direction(speed, heading).Damping.at(Index(n));
            const oe7::CRollComponents& parts = row.Components;
            const double lift = parts.HullLift + parts.KeelLift + parts.SurfaceLift;
            const double total = row.Wave + lift + parts.Eddy + parts.Skin + parts.Keels + parts.Foils;
            Encounter(rows.At(n, 0), speed, heading, n);
            Expect(rows.At(n, 1), row.RollAngle * kDegrees, 3);
            int column = 2;
            for (const double value :
                 {total, row.Wave, lift, parts.Eddy, parts.Skin, parts.Keels, parts.Foils})
            {
                Expect(rows.At(n, column++), Critical(value), 5);
            }
            Expect(rows.At(n, 9), row.AddedMass / m_run.Results.Inertia.I44, 5);
        }
    }
    void LiftBreakdown(int speed, int heading, const CFloatRows& rows) override
    {
        Breakdown(speed, heading, rows, &oe7::CDampingRow::AppendageLift);
    }
    void ViscousBreakdown(int speed, int heading, const CFloatRows& rows) override
    {
        Breakdown(speed, heading, rows, &oe7::CDampingRow::AppendageViscous);
    }
    void Interruption(int speed, int seaway, int position, const CFloatRows& rows) override
    {
        for (int heading = 0; heading < rows.Count(); ++heading)
        {
            const CPositionAtHeading& at = Place(speed, seaway, position, heading);
            Expect(rows.At(heading, 0), m_run.Results.Headings.Reported[Index(heading)], 2);
            Expect(rows.At(heading, 1), at.Local[12] / kGravity, 5);
            Expect(rows.At(heading, 2), at.LateralCount, 5);
            Expect(rows.At(heading, 3), at.Local[14] / kGravity, 5);
            Expect(rows.At(heading, 4), at.LongitudinalCount, 5);
            Expect(rows.At(heading, 5), at.LateralCount + at.LongitudinalCount, 5);
        }
    }
    void Sickness(int speed, int seaway, int position, int formulation, int exposureFlag, float exposure,
                  const CFloatRows& rows) override
    {
        const oe7::CPosition& place = m_run.Input.Positions.at(Index(position));
        EXPECT_EQ(formulation, place.Sickness == oe7::ESickness::BureauVeritas ? 1 : 0);
        Expect(exposure, exposureFlag == 0 ? 0 : place.Exposure, 3);
        for (int heading = 0; heading < rows.Count(); ++heading)
        {
            const CPositionAtHeading& at = Place(speed, seaway, position, heading);
            Expect(rows.At(heading, 1), at.Incidence, 4);
            if (exposureFlag == 0)
            {
                Expect(rows.At(heading, 2), at.Exposure, 3);
            }
        }
    }
    void Slamming(int speed, int seaway, int position, const std::array<float, 4>& levels,
                  const CFloatRows& rows) override
    {
        const oe7::CPositionGeometry& geometry = Speed(speed).Positions.at(Index(position));
        Expect(levels[0], geometry.Freeboard * m_factors.Length, 4);
        Expect(levels[1], (geometry.Freeboard - geometry.Rise) * m_factors.Length, 4);
        Expect(levels[2], geometry.Draft * m_factors.Length, 4);
        Expect(levels[3], (geometry.Draft + geometry.Rise) * m_factors.Length, 4);
        for (int heading = 0; heading < rows.Count(); ++heading)
        {
            const CPositionAtHeading& at = Place(speed, seaway, position, heading);
            Relative(rows, heading, at, at.DeckProbability, at.DeckRate);
            Expect(rows.At(heading, 5), at.KeelProbability, 6);
            Expect(rows.At(heading, 6), at.KeelRate, 4);
            Expect(rows.At(heading, 7), at.ExpectedPressure * m_factors.Pressure, 3);
            Expect(rows.At(heading, 8), at.ExtremePressure * m_factors.Pressure, 3);
            Expect(rows.At(heading, 9), at.ExpectedForce * m_factors.ForcePerLength, 2);
            Expect(rows.At(heading, 10), at.ExtremeForce * m_factors.ForcePerLength, 2);
        }
    }
    void WetnessOrEmergence(int speed, int seaway, int position, const std::array<float, 2>& levels,
                            const CFloatRows& rows) override
    {
        const oe7::CPositionGeometry& geometry = Speed(speed).Positions.at(Index(position));
        const bool wetness = m_run.Input.Positions[Index(position)].Event == EWaterEvent::DeckWetness;
        const double height = wetness ? geometry.Freeboard : geometry.Depth;
        Expect(levels[0], height * m_factors.Length, 4);
        Expect(levels[1], (height + (wetness ? -1 : 1) * geometry.Rise) * m_factors.Length, 4);
        for (int heading = 0; heading < rows.Count(); ++heading)
        {
            const CPositionAtHeading& at = Place(speed, seaway, position, heading);
            wetness ? Relative(rows, heading, at, at.DeckProbability, at.DeckRate)
                    : Relative(rows, heading, at, at.EmergenceProbability, at.EmergenceRate);
        }
    }
    void LoadRms(int speed, int seaway, int loadStation, const CFloatRows& rows) override
    {
        for (int heading = 0; heading < rows.Count(); ++heading)
        {
            const auto& loads = Seaway(speed, seaway).Loads.at(Index(loadStation)).at(Index(heading));
            for (int k = 0; k < 5; ++k)
            {
                const double unit = (k < 2 ? m_factors.Force : m_factors.Moment) / 1000;
                Expect(rows.At(heading, 2 * k), loads[Index(k)].Rms * unit, 3);
                Expect(rows.At(heading, 2 * k + 1), loads[Index(k)].Period, 2);
            }
        }
    }

private:
    const CPositionAtHeading& Place(int speed, int seaway, int position, int heading) const
    {
        return Seaway(speed, seaway).Positions.at(Index(position)).at(Index(heading));
    }
    double Critical(double damping) const
    {
        return damping * m_run.Results.Inertia.RollFrequency / (2 * m_run.Results.Hull.C44);
    }
    /// Six decimals behind the first digit.
    static double Rounded(double value)
    {
        const double unit = std::pow(10, std::floor(std::log10(value)) - 6);
        return std::round(value / unit) * unit;
    }
    /// In five characters.
    void Encounter(float found, int speed, int heading, int n)
    {
        const double expected = std::abs(Direction(speed, heading).Encounter.at(Index(n)));
        Expect(found, expected, expected < 9.9995 ? 3 : 2);
    }
    void Breakdown(int speed, int heading, const CFloatRows& rows,
                   std::vector<double> oe7::CDampingRow::*values)
    {
        for (int n = 0; n < rows.Count(); ++n)
        {
            const oe7::CDampingRow& row = Direction(speed, heading).Damping.at(Index(n));
            Encounter(rows.At(n, 1), speed, heading, n);
            Expect(rows.At(n, 2), row.RollAngle * kDegrees, 3);
            ASSERT_EQ(rows.Width(), 3 + static_cast<int>((row.*values).size()));
            for (int column = 3; column < rows.Width(); ++column)
            {
                Expect(rows.At(n, column), Critical((row.*values)[Index(column - 3)]), 6);
            }
        }
    }
    void Relative(const CFloatRows& rows, int heading, const CPositionAtHeading& at, double probability,
                  double rate)
    {
        Expect(rows.At(heading, 0), m_run.Results.Headings.Reported[Index(heading)], 2);
        Expect(rows.At(heading, 1), at.Local[9] * m_factors.Length, 4);
        Expect(rows.At(heading, 2), at.Local[10] * m_factors.Length, 4);
        Expect(rows.At(heading, 3), probability, 6);
        Expect(rows.At(heading, 4), rate, 4);
    }
};

/// The head of the calculated section, and the engine's own part of the file.
class CTables : public CExpectation
{
public:
    CTables(const CMadeRun& run, const CFactors& factors, const CResults& read)
        : CExpectation(run, factors),
          m_head(read.Calculated),
          m_body(read.Body)
    {
    }

    void Compare()
    {
        Hull();
        Stations();
        Positions();
        StillWater();
        for (int speed = 0; speed < static_cast<int>(m_run.Results.Speeds.size()); ++speed)
        {
            MotionRaos(speed);
            LoadRaos(speed);
            for (int seaway = 0; seaway < static_cast<int>(Speed(speed).Seaways.size()); ++seaway)
            {
                Rms(speed, seaway);
                LocalRms(speed, seaway);
            }
        }
    }

private:
    void Hull()
    {
        const oe7::CHullCondition& hull = m_run.Results.Hull;
        Expect(m_head.EncounterMinimum, m_run.Input.Grid[0], 4);
        Expect(m_head.EncounterMaximum, m_run.Input.Grid[1], 4);
        Expect(m_head.EncounterIncrement, m_run.Input.Grid[2], 4);
        Expect(m_head.Draft, hull.Draft * m_factors.Length, 4);
        Expect(m_head.XCG, (hull.Length / 2 - hull.Xg) * m_factors.Length, 4);
        Expect(m_head.Displacement, hull.Mass * m_factors.Tonnes, 4);
        Expect(m_head.BlockCoefficient, hull.BlockCoefficient, 4);
    }
    void Stations()
    {
        const std::vector<oe7::CSection>& sections = m_run.Results.Hull.Sections;
        ASSERT_EQ(m_head.Stations.size(), sections.size());
        for (std::size_t i = 0; i < sections.size(); ++i)
        {
            const oe7::CSection& section = sections[i];
            const double spacing = m_run.Input.Length / static_cast<double>(sections.size() - 1);
            const double x =
                m_run.Input.Length / 2 - m_run.Results.Hull.Xg - static_cast<double>(i) * spacing;
            Expect(m_head.Stations[i].XCG, x * m_factors.Length, 4);
            Expect(m_head.Stations[i].Beam, section.Beam * m_factors.Length, 4);
            Expect(m_head.Stations[i].Draft, section.Draft * m_factors.Length, 4);
            Expect(m_head.Stations[i].AreaCoefficient, section.Area / section.Beam / section.Draft, 5);
        }
    }
    void Positions()
    {
        ASSERT_EQ(m_head.Positions.size(), m_run.Input.Positions.size());
        for (std::size_t i = 0; i < m_head.Positions.size(); ++i)
        {
            const CCalculatedHead::CPosition& found = m_head.Positions[i];
            const oe7::CPosition& place = m_run.Input.Positions[i];
            const oe7::CPositionGeometry& geometry = Speed(0).Positions[i];
            Expect(found.Station, place.Station, 3);
            Expect(found.X, geometry.X * m_factors.Length, 4);
            Expect(found.Y, place.Y * m_factors.Length, 4);
            Expect(found.ZFromBaseline, place.Height * m_factors.Length, 4);
            Expect(found.ZFromCG, geometry.Z * m_factors.Length, 4);
            Expect(found.Draft, geometry.Draft * m_factors.Length, 4);
            Expect(found.Freeboard, geometry.Freeboard * m_factors.Length, 4);
            Exact(m_body.PositionStation[i], place.Station);
            Exact(m_body.PositionY[i], place.Y * m_factors.Length);
            Exact(m_body.PositionZ[i], place.Height * m_factors.Length);
            if (place.Event == EWaterEvent::SlamForm || place.Event == EWaterEvent::SlamWedge)
            {
                Expect(found.FormFactor.value(), m_run.Results.SlamForms[i].FormFactor, 5);
                Expect(found.EffectiveWidth.value(), m_run.Results.SlamForms[i].Width * m_factors.Length, 5);
            }
        }
        if (!m_head.Positions.empty())
        {
            Expect(m_head.Duration.value(), m_run.Input.Hours, 4);
            Expect(m_head.Exceedence.value(), m_run.Input.Exceedance, 5);
        }
    }
    void StillWater()
    {
        for (std::size_t i = 0; i < m_body.StillWaterWeight.size(); ++i)
        {
            const oe7::CStillWater& still = m_run.Results.StillWater.value();
            Exact(m_body.StillWaterWeight[i], still.Weight.at(i) * m_factors.Force / 1000);
            Exact(m_body.StillWaterBuoyancy[i], still.Buoyancy.at(i) * m_factors.Force / 1000);
            Exact(m_body.StillWaterShear[i], still.Shear.at(i) * m_factors.Force);
            Exact(m_body.StillWaterMoment[i], still.Moment.at(i) * m_factors.Moment);
        }
    }
    void MotionRaos(int speed)
    {
        for (int heading = 0; heading < m_body.HeadingCount; ++heading)
        {
            for (int mode = 0; mode < 8; ++mode)
            {
                for (int n = 0; n < m_body.FreqCount; ++n)
                {
                    const oe7::Complex value = Direction(speed, heading).Motions.at(Index(n))[Index(mode)];
                    Exact(m_body.RaoAmplitude(speed, heading, mode, n), std::abs(value));
                    Exact(m_body.RaoPhase(speed, heading, mode, n), std::arg(value) * kDegrees);
                }
            }
        }
    }
    void LoadRaos(int speed)
    {
        const oe7::CHullCondition& hull = m_run.Results.Hull;
        const double shear = 0.001 * hull.Density * kGravity * hull.LargestBeam * hull.Length;
        for (int cut = 0; cut < static_cast<int>(m_body.LoadStations.size()); ++cut)
        {
            for (int heading = 0; heading < m_body.HeadingCount; ++heading)
            {
                for (int n = 0; n < m_body.FreqCount; ++n)
                {
                    const oe7::CLoadVector& load =
                        Direction(speed, heading).Loads.at(Index(cut)).at(Index(n));
                    for (int k = 0; k < 5; ++k)
                    {
                        const double scale = k < 2 ? shear : shear * hull.Length;
                        Exact(m_body.LoadRaoAmplitude(speed, k, cut, heading, n), std::abs(load(k)) / scale);
                        Exact(m_body.LoadRaoPhase(speed, k, cut, heading, n), std::arg(load(k)) * kDegrees);
                    }
                }
            }
        }
    }
    void Rms(int speed, int seaway)
    {
        for (int kind = 0; kind < 3; ++kind)
        {
            for (int mode = 0; mode < 8; ++mode)
            {
                const double unit = mode > 2 ? kDegrees : kind == 2 ? 1 / kGravity : m_factors.Length;
                for (int heading = 0; heading < m_body.HeadingCount; ++heading)
                {
                    const oe7::CModeRms& rms = Seaway(speed, seaway).Rms.at(Index(heading));
                    Exact(m_body.RmsCg(speed, seaway, kind, mode, heading),
                          rms[Index(kind)][Index(mode)] * unit);
                }
            }
        }
    }
    void LocalRms(int speed, int seaway)
    {
        // Lengths, accelerations in g, seconds.
        const char* const kinds = "llgllgllgllgggggllgss";
        for (int quantity = 0; quantity < 21; ++quantity)
        {
            const char kind = kinds[quantity];
            const double unit = kind == 'l' ? m_factors.Length : kind == 'g' ? 1 / kGravity : 1;
            for (int position = 0; position < m_body.PositionCount; ++position)
            {
                for (int heading = 0; heading < m_body.HeadingCount; ++heading)
                {
                    const auto& at = Seaway(speed, seaway).Positions.at(Index(position)).at(Index(heading));
                    Exact(m_body.RmsLocal(speed, seaway, quantity, position, heading),
                          at.Local[Index(quantity)] * unit);
                }
            }
        }
    }

    const CCalculatedHead& m_head;
    const CResultsBody& m_body;
};

/// A short project with all that there is.
struct CWholeRun : CCompletion
{
    CWholeRun()
    {
        FillToMaximum(Project);
        Project.NSPEED.Set(2);
        Project.NSEAWAY.Set(2);
        Project.NSEADIR.Set(5);
        for (int k = 0; k < 5; ++k)
        {
            Project.SEADIR.Set(k, 60.0F * static_cast<float>(k));
        }
        Project.NPOS.Set(7);
        Project.NSTLOAD.Set(3);
        Project.WVFREQMAX.Set(0.4F);
        for (int k = 0; k < 6; ++k)
        {
            const auto slot = static_cast<std::size_t>(k);
            Project.RELMOCALC.Set(k, static_cast<float>(k));
            Project.MSIMethod[slot] = k % 2;
            Project.MSIExposureOption[slot] = k % 3 == 0 ? 1 : 0;
        }
    }

    /// The engine's input of the project as it is.
    oe7::CInput EngineInput()
    {
        EXPECT_TRUE(CEngineInputWriter(Project, Session.BaseDir, Recorder.Platform).Write());
        oe7::CRunLog log;
        return oe7::ReadInput(Folder.Path(), log);
    }
    /// Writes the files, completes and reads them, and compares all. Gives the count of numbers.
    int CompareAll(const CFactors& factors = {})
    {
        CMadeRun run(EngineInput());
        Folder.Write(kResultsFileName, run.Binary());
        Folder.Write(kListingFileName, run.Listing());
        EXPECT_EQ(run.Log.Warnings(), std::vector<std::string>());
        Complete();
        EXPECT_EQ(Recorder.Messages, std::vector<std::string>());
        EXPECT_EQ(Project.ResultsLoaded, 1);
        const CResults read = Read();
        CTables tables(run, factors, read);
        tables.Compare();
        CCalculatedTables calculated(run, factors);
        WalkCalculated(read, calculated);
        m_metacentre = read.Trailer.CalculatedGM.value_or(0);
        m_expectedMetacentre = run.Results.Hull.Gm * factors.Length;
        return tables.Numbers + calculated.Numbers;
    }
    void ExpectMetacentre() const
    {
        EXPECT_NEAR(static_cast<double>(m_metacentre), m_expectedMetacentre, 5.1e-5);
    }

private:
    float m_metacentre = 0;
    double m_expectedMetacentre = 0;
};
} // namespace

TEST(CompletedListing, EveryNumberComesBack)
{
    EXPECT_GT(CWholeRun().CompareAll(), 5000);
}

TEST(CompletedListing, EveryNumberComesBackInBritishUnits)
{
    CWholeRun run;
    run.Project.OUTSYS.Set(0);
    EXPECT_GT(run.CompareAll(kBritish), 5000);
}

TEST(CompletedListing, TheComputedMetacentreStandsWhereItIsLookedFor)
{
    CWholeRun run;
    run.Project.GMFLAG.Set(0);
    run.CompareAll();
    run.ExpectMetacentre();
}

TEST(CompletedListing, TheGivenMetacentreIsEchoedInTheUnitsOfTheInput)
{
    CWholeRun run;
    run.Project.OUTSYS.Set(0);
    run.CompareAll(kBritish);
    EXPECT_FLOAT_EQ(run.Read().Calculated.InputGM, 1.23F);
}

TEST(CompletedListing, CoursesThroughADirectionalSeaAreThirteenWithPositionsAlone)
{
    CWholeRun run;
    run.Project.SPECTRUM.Set(6);
    run.Project.LOADFLAG.Set(1);
    EXPECT_GT(run.CompareAll(), 5000);
    EXPECT_EQ(run.Results.HeadingCount, 13);
}

TEST(CompletedListing, CoursesThroughADirectionalSeaAreTwentyFourWithLoadsAlone)
{
    CWholeRun run;
    run.Project.SPECTRUM.Set(6);
    run.Project.NPOS.Set(1);
    EXPECT_GT(run.CompareAll(), 5000);
    EXPECT_EQ(run.Results.HeadingCount, 24);
}

TEST(CompletedListing, RegularWavesHaveNoSeawayTables)
{
    CWholeRun run;
    run.Project.SPECTRUM.Set(0);
    EXPECT_GT(run.CompareAll(), 1000);
}

TEST(CompletedListing, TablesThatTheUserLeavesOutAreNotLookedFor)
{
    for (const float output : {0.0F, 1.0F})
    {
        CWholeRun run;
        run.Project.OUTRAO.Set(output);
        EXPECT_GT(run.CompareAll(), 3000);
    }
}

TEST(CompletedListing, AShipWithoutAppendagesPositionsAndLoadsIsComplete)
{
    CWholeRun run;
    CProjectData& p = run.Project;
    p.AppendedHull = 0;
    p.FINTANKSTAB.Set(0);
    p.NPOS.Set(1);
    p.LOADFLAG.Set(1);
    for (CParamArray* count : {&p.NBKPAIR, &p.NFOILPAIR, &p.NFINPAIR})
    {
        count->Set(0);
    }
    p.IncludeRudder = 0;
    p.IncludeSkeg = 0;
    EXPECT_GT(run.CompareAll(), 1000);
}

TEST(CompletedListing, LabelsAndTitlesThatReadLikeMarkersLeadNoReaderAstray)
{
    CWholeRun run;
    run.Project.ProjectTitle = "Cb: 7 ENFREQMIN : 8 GMFLAG Displacement : 9";
    const char* const labels[] = {"Draft", "Label", "Freeboard", "Enc", "Depth_LFE", "Sickness"};
    for (std::size_t i = 0; i < 6; ++i)
    {
        run.Project.PositionLabel[i] = labels[i];
    }
    EXPECT_GT(run.CompareAll(), 5000);
}
