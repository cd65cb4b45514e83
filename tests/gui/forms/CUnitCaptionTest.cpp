#include "gui/forms/CUnitCaption.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A caption beside a box with the focus, and the factors that clicks on it asked for.
class UnitCaption : public testing::Test
{
protected:
    UnitCaption()
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(&Box);
        layout->addWidget(&Lengths);
        layout->addWidget(&Masses);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        Box.setFocus();
        Lengths.Converts([this](float factor) { Factors.push_back(factor); });
        Masses.Converts([this](float factor) { Factors.push_back(factor); });
    }

    void Click(CUnitCaption& caption) { QTest::mouseClick(&caption, Qt::LeftButton); }

private:
    QWidget m_window;

protected:
    QLineEdit Box;
    CUnitCaption Lengths{kLengthUnits};
    CUnitCaption Masses{kMassUnits};
    std::vector<float> Factors;
};
} // namespace

TEST_F(UnitCaption, ClickConvertsAndSwaps)
{
    EXPECT_EQ(Lengths.text(), "meters");
    Click(Lengths);
    EXPECT_EQ(Lengths.text(), "feet");
    Click(Lengths);
    EXPECT_EQ(Lengths.text(), "meters");
    EXPECT_EQ(Masses.text(), "tonnes");
    Click(Masses);
    EXPECT_EQ(Masses.text(), "LT");
    Click(Masses);
    EXPECT_EQ(Masses.text(), "tonnes");
    EXPECT_THAT(Factors, ElementsAre(3.28084F, 0.3048F, 0.9842065F, 1.0160469F));
}

TEST_F(UnitCaption, ConvertsAllThatItServes)
{
    Lengths.Converts([this](float factor) { Factors.push_back(-factor); });
    Click(Lengths);
    EXPECT_THAT(Factors, ElementsAre(3.28084F, -3.28084F));
}

TEST_F(UnitCaption, TakesNoFocus)
{
    Click(Lengths);
    EXPECT_TRUE(Box.hasFocus());
    EXPECT_EQ(Lengths.focusPolicy(), Qt::NoFocus);
}

TEST_F(UnitCaption, DoesNothingWhileDisabledOrForTheOtherMouseButton)
{
    QTest::mouseClick(&Lengths, Qt::RightButton);
    Lengths.setEnabled(false);
    Click(Lengths);
    EXPECT_EQ(Lengths.text(), "meters");
    EXPECT_THAT(Factors, IsEmpty());
}

TEST_F(UnitCaption, ShowsAFlagWithoutConverting)
{
    Lengths.SetUnit(kUnitBritish);
    EXPECT_EQ(Lengths.text(), "feet");
    Lengths.SetUnit(2);
    EXPECT_EQ(Lengths.text(), "feet");
    EXPECT_EQ(Lengths.Unit(), kUnitBritish);
    Lengths.SetUnit(kUnitMetric);
    EXPECT_EQ(Lengths.text(), "meters");
    EXPECT_THAT(Factors, IsEmpty());
}

TEST_F(UnitCaption, TellsWhatAClickDoes)
{
    EXPECT_EQ(Lengths.toolTip(), "Click to convert to feet");
    Click(Lengths);
    EXPECT_EQ(Lengths.toolTip(), "Click to convert to meters");
}

TEST_F(UnitCaption, KeepsItsSizeThroughASwap)
{
    const QSize size = Lengths.sizeHint();
    Click(Lengths);
    EXPECT_EQ(Lengths.sizeHint(), size);
}
