#include "gui/app/Forms.h"

#include "gui/platform/QtText.h"
#include "tests/support/gui/CFormDriver.h"

#include <gtest/gtest.h>

TEST(Forms, AreListedUnderTheirNames)
{
    CFormProject project;
    project.Project.NST.Set(11);
    EXPECT_FALSE(FormList().empty());
    for (const CFormEntry& form : FormList())
    {
        EXPECT_EQ(PlainText(form.Make(project.Context, nullptr)->objectName()), form.Name);
        EXPECT_EQ(FindForm(form.Name), &form) << "each name stands once";
    }
}

TEST(Forms, AreFoundByNameOnly)
{
    ASSERT_NE(FindForm("CSkegDlg"), nullptr);
    EXPECT_TRUE(FindForm("CSkegDlg")->NeedsHull);
    EXPECT_FALSE(FindForm("CUnitsDlg")->NeedsHull);
    EXPECT_EQ(FindForm("CNoDlg"), nullptr);
}
