#include "oe7/hull/Lewis.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kPi = std::numbers::pi;

TEST(Lewis, ParametersOfAFullSection)
{
    const CLewisForm form = LewisForm(2.5, 1, 2.375);
    EXPECT_NEAR(form.H0, 1.25, 1e-12);
    EXPECT_NEAR(form.Sigma, 0.95, 1e-12);
    EXPECT_NEAR(form.A1, 0.099451, 5e-7);
    EXPECT_NEAR(form.A3, -0.104937, 5e-7);
    EXPECT_NEAR(form.M, 1.256895, 5e-7);
}

TEST(Lewis, ASemicircleIsItsOwnImage)
{
    const CLewisForm form = LewisForm(3, 1.5, kPi * 1.5 * 1.5 / 2);
    EXPECT_NEAR(form.A1, 0, 1e-9);
    EXPECT_NEAR(form.A3, 0, 1e-9);
    EXPECT_NEAR(form.M, 1.5, 1e-9);
}

TEST(Lewis, FormHasTheBeamDraftAndAreaThatAreGiven)
{
    const double beam = 7;
    const double draft = 4;
    const CLewisForm form = LewisForm(beam, draft, 0.8 * beam * draft);
    EXPECT_NEAR(form.M * (1 + form.A1 + form.A3), beam / 2, 1e-12);
    EXPECT_NEAR(form.M * (1 - form.A1 + form.A3), draft, 1e-12);
    const double area = kPi / 2 * form.M * form.M * (1 - form.A1 * form.A1 - 3 * form.A3 * form.A3);
    EXPECT_NEAR(area, 0.8 * beam * draft, 1e-9);
}

TEST(Lewis, AreaIsLimitedToWhatAFormCanHave)
{
    EXPECT_NEAR(LewisForm(2, 1, 2.5).Sigma, kPi / 32 * 12 - 1e-6, 1e-12);
    EXPECT_NEAR(LewisForm(2, 1, 0).Sigma, 3 * kPi / 32 + 1e-6, 1e-12);
    EXPECT_NEAR(LewisForm(1, 1, 0).Sigma, 3 * kPi / 32 * 1.5 + 1e-6, 1e-12);
    EXPECT_NEAR(LewisForm(4, 1, 0).Sigma, 3 * kPi / 32 * 1.5 + 1e-6, 1e-12);
}

TEST(Lewis, ExtremeSectionsHaveFiniteParameters)
{
    const double sizes[] = {1e-300, 1e-9, 1, 1e9, 1e150};
    for (const double beam : sizes)
    {
        for (const double draft : sizes)
        {
            const CLewisForm form = LewisForm(beam, draft, beam * draft);
            EXPECT_TRUE(std::isfinite(form.H0 + form.Sigma + form.A1 + form.A3 + form.M))
                << beam << " " << draft;
        }
    }
}
} // namespace
} // namespace oe7
