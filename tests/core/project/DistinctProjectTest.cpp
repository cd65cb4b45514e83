// A project in which no two values are alike: each token of its file stands in its own place, and comes back
// to its own field.
#include "core/project/InputFileText.h"
#include "tests/support/CTestProject.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{
/// Gives each slot of each field a value of its own, the counts excepted, and each unit flag a number of its
/// own.
struct CDistinctProject : CTestProject
{
    CDistinctProject()
    {
        FillKeywords();
        FillPlainFields();
        Project.FINTANKSTAB.Set(1);
        for (auto* count : {&Project.NSEADIR, &Project.NST, &Project.NPOS, &Project.NBKPAIR,
                            &Project.NFOILPAIR, &Project.NFINPAIR})
        {
            count->Set(2);
        }
        Project.NOFFUSER.Fill(3);
        Project.NSLOFF.Fill(2);
        Project.CLA0COMPUTE.data = {1, 0, 0, 1};
        // Twins without a place of their own in the file, and values that the file doesn't hold as they are.
        Project.TSW.unit = Project.HSW.unit;
        Project.ZETA2.unit = Project.ZETA1.unit;
        Project.ZAUSERBL.unit = Project.YAUSER.unit;
        Project.MSIFlag = {1, 0};
        Project.RudderGainFileUsed = 1;
        Project.FinGainFileUsed = 0;
        Project.PositionLabel[0] = "Bow";
        Project.PositionLabel[1] = "Stern deck";
    }

    void FillKeywords()
    {
        float value = 5;
        int unit = 2;
        for (CParamArray* field : Project.Fields())
        {
            field->unit = unit++;
            for (float& slot : field->data)
            {
                slot = value;
                value += 1.25F;
            }
        }
    }

    template <class Value>
    static void Distinguish(Value& value, int number)
    {
        if constexpr (std::is_same_v<Value, float>)
        {
            value = 8000.5F + static_cast<float>(number);
        }
        else if constexpr (std::is_same_v<Value, int>)
        {
            value = 9000 + number;
        }
        else if constexpr (std::is_same_v<Value, std::string>)
        {
            value = "text " + std::to_string(number);
        }
    }
    void FillPlainFields()
    {
        int number = 0;
        Project.EachPlainField(
            [&number](const char*, const auto& field)
            {
                using CField = std::remove_cvref_t<decltype(field)>;
                auto& slot =
                    const_cast<CField&>(field); // the visitor is for looking; here it is the project's own
                if constexpr (requires {
                                  slot.size();
                                  slot.begin();
                              } &&
                              !std::is_same_v<CField, std::string>)
                {
                    for (auto& element : slot)
                    {
                        Distinguish(element, number++);
                    }
                }
                else
                {
                    Distinguish(slot, number++);
                }
            });
    }
};
} // namespace

TEST(DistinctProject, EachTokenStandsInItsPlace)
{
    CDistinctProject test;
    ExpectGolden(InputFileText(test.Project), "project/distinct.od7");
}

TEST(DistinctProject, EachTokenComesBackToItsField)
{
    CDistinctProject written;
    CTestProject read;
    EXPECT_EQ(read.File.ReadContent(InputFileText(written.Project), EHalf::Both), EOpened::Whole);
    const auto& left = written.Project.Fields();
    const auto& right = read.Project.Fields();
    for (std::size_t k = 0; k < left.size(); ++k)
    {
        // The count that the engine's input repeats from NST has no place in the file.
        if (left[k]->Capacity() == 1 && left[k] != &written.Project.NSTOFF)
        {
            EXPECT_NEAR(left[k]->Value(), right[k]->Value(), 0.5) << left[k]->name;
        }
    }
    // The lateral control's flags are written with the tip chord's tag.
    read.Project.RudderLateralGainUnits = {0, 0, 0};
    EXPECT_EQ(InputFileText(read.Project), InputFileText(written.Project));
}
