#include "oe7/motion/CInertia.h"

#include "tests/oe7/support/ReferenceShips.h"

#include <gmock/gmock.h>

#include <cmath>

namespace oe7
{
namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The barge in a coarse but wide grid of frequencies: roll lies inside it.
class Inertia : public testing::Test
{
protected:
    CInertia Find(ERollInertia kind, double value)
    {
        m_input.RollInertia = kind;
        m_input.RollValue = value;
        return FindInertia(m_input, m_hull, m_potentials, m_log);
    }
    double AddedMass(double w) const { return m_potentials.RollAddedMass(w); }

    CInput m_input = ReferenceBarge();
    CRunLog m_log;
    CHullCondition m_hull = FindCondition(m_input, m_log);
    CSectionPotentials m_potentials{m_hull, m_input.Method, {0.2, 0.4, 0.6, 0.8, 1, 1.2}, false, 1};
};

TEST_F(Inertia, FollowsFromTheDryRadius)
{
    const CInertia inertia = Find(ERollInertia::DryRadius, 7);
    EXPECT_NEAR(inertia.I44, 5.0225e8, 1);
    EXPECT_NEAR(inertia.DryRollRadius(m_hull.Mass), 7, 1e-9);
    EXPECT_NEAR(inertia.RollFrequency, 0.837223, 1e-3);
    EXPECT_NEAR(inertia.RollFrequency, std::sqrt(5.19521e8 / (5.0225e8 + AddedMass(inertia.RollFrequency))),
                1e-6);
    EXPECT_NEAR(inertia.I55, 10250e3 * 28.868 * 28.868, 1e3);
    EXPECT_THAT(m_log.Warnings(), IsEmpty());
}

TEST_F(Inertia, OfTheNaturalFrequencyInWaterIsWhatTheWaterLeaves)
{
    const CInertia inertia = Find(ERollInertia::WetFrequency, 0.8);
    EXPECT_EQ(inertia.RollFrequency, 0.8);
    EXPECT_NEAR(inertia.I44, 5.19521e8 / 0.64 - AddedMass(0.8), 1e4);
    EXPECT_THAT(m_log.Warnings(), IsEmpty());
}

TEST_F(Inertia, OfTheRadiusInWaterIsWhatTheWaterLeaves)
{
    const CInertia inertia = Find(ERollInertia::WetRadius, 9);
    EXPECT_NEAR(inertia.RollFrequency, std::sqrt(9.81 * 5.1666667) / 9, 1e-6);
    EXPECT_NEAR(inertia.I44, 10250e3 * 81 - AddedMass(inertia.RollFrequency), 1e3);
    EXPECT_THAT(m_log.Warnings(), IsEmpty());
}

struct CUnusable
{
    ERollInertia Kind;
    double Value;
};

TEST_F(Inertia, OfRollDataThatCannotBeIsATypicalOneWithAWarning)
{
    const CUnusable unusable[] = {{ERollInertia::WetFrequency, 3},  {ERollInertia::WetFrequency, 0},
                                  {ERollInertia::WetFrequency, -1}, {ERollInertia::WetFrequency, 1e-300},
                                  {ERollInertia::WetRadius, 0.5},   {ERollInertia::WetRadius, 0},
                                  {ERollInertia::DryRadius, 0.1},   {ERollInertia::DryRadius, -7}};
    for (const auto& [kind, value] : unusable)
    {
        m_log = {};
        const CInertia inertia = Find(kind, value);
        EXPECT_NEAR(inertia.DryRollRadius(m_hull.Mass), 7, 1e-9) << value;
        EXPECT_NEAR(inertia.RollFrequency, 0.837223, 1e-3) << value;
        EXPECT_THAT(m_log.Warnings(), ElementsAre(HasSubstr("0.35 times the beam")));
    }
}
} // namespace
} // namespace oe7
