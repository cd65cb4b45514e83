#include "core/results/report/ProjectHeader.h"
#include "tests/support/CTestFolder.h"

#include <gtest/gtest.h>

namespace
{
/// A field of the company block out of a file with this content.
std::string FieldOf(const std::string& content, int field = kHeaderCompany)
{
    const CTestFolder folder;
    folder.Write("odview.ini", content);
    return ProjectHeaderField(field, folder.Path());
}
} // namespace

TEST(ProjectHeader, TheThreeValuesStandUnderTheirKeys)
{
    const std::string content =
        "[Project]\r\nCompany=Harbour Works\r\nClientName=Northern Line\r\nContract=K-17/3\r\n";
    EXPECT_EQ(FieldOf(content, kHeaderCompany), "Harbour Works");
    EXPECT_EQ(FieldOf(content, kHeaderClient), "Northern Line");
    EXPECT_EQ(FieldOf(content, kHeaderContract), "K-17/3");
}

TEST(ProjectHeader, AnyOtherNumberIsEmpty)
{
    const std::string content = "[Project]\nCompany=Harbour Works\n=nothing\n";
    EXPECT_EQ(FieldOf(content, 0), "");
    EXPECT_EQ(FieldOf(content, 4), "");
    EXPECT_EQ(FieldOf(content, -1), "");
}

TEST(ProjectHeader, AMissingFileSectionOrEntryIsEmpty)
{
    EXPECT_EQ(ProjectHeaderField(kHeaderCompany, CTestFolder().Path()), "");
    EXPECT_EQ(ProjectHeaderField(kHeaderCompany, "/nowhere"), "");
    EXPECT_EQ(FieldOf(""), "");
    EXPECT_EQ(FieldOf("Company=Harbour Works\n"), "");
    EXPECT_EQ(FieldOf("[Other]\nCompany=Harbour Works\n"), "");
    EXPECT_EQ(FieldOf("[Project]\nClientName=Northern Line\n[Other]\nCompany=Harbour Works\n"), "");
}

TEST(ProjectHeader, KeysAreFoundWithoutRegardToCase)
{
    EXPECT_EQ(FieldOf("[PROJECT]\ncompany=Harbour Works\n"), "Harbour Works");
    EXPECT_EQ(FieldOf("[project]\nCLIENTNAME=Northern Line\n", kHeaderClient), "Northern Line");
}

TEST(ProjectHeader, BlanksAroundKeyAndValueAreDropped)
{
    EXPECT_EQ(FieldOf(" [ Project ] \n\t Company \t=  Harbour  Works \t \n"), "Harbour  Works");
    EXPECT_EQ(FieldOf("[Project]\nCompany= \t \n"), "");
}

TEST(ProjectHeader, AValueMayHoldAnEqualsSignAndOtherBytes)
{
    EXPECT_EQ(FieldOf("[Project]\nCompany=A=B; <i>\xE9</i>\n"), "A=B; <i>\xE9</i>");
}

TEST(ProjectHeader, TheFirstEntryOfAKeyCounts)
{
    EXPECT_EQ(FieldOf("[Project]\nCompany=First\nCompany=Second\n"), "First");
}

TEST(ProjectHeader, AValueIsCutAfter179Bytes)
{
    EXPECT_EQ(FieldOf("[Project]\nCompany=" + std::string(179, 'x') + "\n"), std::string(179, 'x'));
    EXPECT_EQ(FieldOf("[Project]\nCompany=" + std::string(5000, 'x') + "\n"), std::string(179, 'x'));
}

TEST(ProjectHeader, HostileFilesGiveWhatCanBeReadOfThem)
{
    EXPECT_EQ(FieldOf("["), "");
    EXPECT_EQ(FieldOf("]["), "");
    EXPECT_EQ(FieldOf("[Project\nCompany=Open\n"), "Open");
    EXPECT_EQ(FieldOf("[Project]\nCompany"), "");
    EXPECT_EQ(FieldOf("[Project]\nCompany="), "");
    EXPECT_EQ(FieldOf(std::string("[Project]\nCompany=Cut\0here\n", 26)), "Cut");
    EXPECT_EQ(FieldOf(std::string(1 << 20, '[') + "\n[Project]\nCompany=Too far\n"), "");
}
