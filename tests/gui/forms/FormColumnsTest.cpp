#include "gui/forms/FormColumns.h"

#include "gui/forms/CFormDlg.h"
#include "tests/support/gui/CFormDriver.h"

#include <gmock/gmock.h>

#include <QGroupBox>

namespace
{
/// Rows of the form itself and of two groups, with labels of very different lengths.
class CColumnsForm : public CFormDlg
{
public:
    explicit CColumnsForm(CFormContext& context, QWidget* parent = nullptr)
        : CFormDlg(context, "CColumnsForm", "Columns", 1, parent)
    {
        Length("KG", Project().KG, "%.2f");
        BeginGroup("First", "first");
        Length("Height of Center of Gravity from Baseline", Project().SHIPLEN, "%.2f");
        EndGroup();
        BeginGroup("Second", "second");
        Number("Frequency", Project().ROLLNF, "%.4f").FixedUnit("radians per second");
        EndGroup();
    }
};

int Left(CFormDriver& form, const char* name)
{
    auto& widget = form.Find<QWidget>(name);
    return widget.mapTo(&form.Form(), QPoint(0, 0)).x();
}

int Right(CFormDriver& form, const char* name)
{
    return Left(form, name) + form.Find<QWidget>(name).width();
}
} // namespace

TEST(FormColumns, BoxesAndUnitsStandUnderEachOtherThroughAllGroups)
{
    for (const int size : {9, 13})
    {
        CFormProject project;
        auto made = std::make_unique<CColumnsForm>(project.Context);
        QFont font = made->font();
        font.setPointSize(size);
        made->setFont(font);
        CFormDriver form(std::move(made));
        for (const char* other : {"SHIPLEN", "ROLLNF"})
        {
            EXPECT_EQ(Left(form, other), Left(form, "KG")) << other;
            EXPECT_EQ(Right(form, other), Right(form, "KG")) << other;
        }
        EXPECT_EQ(Left(form, "SHIPLEN.unit"), Left(form, "KG.unit"));
        EXPECT_EQ(Left(form, "ROLLNF.unit"), Left(form, "KG.unit"));
        EXPECT_GT(Left(form, "KG.unit"), Right(form, "KG"));
        EXPECT_LT(Right(form, "SHIPLEN.label"), Left(form, "KG"));
    }
}

TEST(FormColumns, FormOfNumbersHasOneSizeWhichShowsTheTitle)
{
    CFormProject project;
    CFormDriver form = Opened<CColumnsForm>(project);
    EXPECT_EQ(form.Form().minimumSize(), form.Form().maximumSize());
    EXPECT_GT(form.Form().width(), form.Form().fontMetrics().horizontalAdvance("Columns"));
}
