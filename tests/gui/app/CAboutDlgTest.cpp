#include "gui/app/CAboutDlg.h"

#include "gui/app/CContactInfoDlg.h"
#include "tests/support/gui/AtDialog.h"
#include "tests/support/gui/CFormDriver.h"

#include <gmock/gmock.h>

#include <QTest>

using testing::HasSubstr;

TEST(About, TellsProgramVersionLicenceAndEngine)
{
    CFormDriver form(std::make_unique<CAboutDlg>());
    EXPECT_EQ(form.Form().objectName(), "CAboutDlg");
    EXPECT_EQ(form.Form().windowTitle(), "About Ondara v3");
    const std::string text = form.Caption("Text");
    for (const char* part : {"Ondara", "3.5.0", "version 3 or later", "OE7", "QCustomPlot"})
    {
        EXPECT_THAT(text, HasSubstr(part));
    }
}

TEST(About, IsClosedByEnterAndByEscape)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
    {
        CFormDriver form(std::make_unique<CAboutDlg>());
        EXPECT_EQ(form.Focus(), "OK");
        form.Press(key);
        EXPECT_FALSE(form.IsOpen());
    }
}

TEST(About, StaysOpenWhenEnterIsPressedElsewhere)
{
    CFormDriver form(std::make_unique<CAboutDlg>());
    form.Press(Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(form.Focus(), "ContactInfo");
    form.Press(Qt::Key_Return);
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Focus(), "OK");
}

TEST(About, OpensTheContactInformationOverItself)
{
    CFormDriver form(std::make_unique<CAboutDlg>());
    std::string text;
    AtDialog<QDialog>("CContactInfoDlg",
                      [&text](QDialog& contact)
                      {
                          text =
                              contact.findChild<QWidget*>("Text")->property("text").toString().toStdString();
                          QTest::mouseClick(contact.findChild<QWidget*>("OK"), Qt::LeftButton);
                          EXPECT_FALSE(contact.isVisible());
                      });
    form.Click("ContactInfo");
    EXPECT_THAT(text, HasSubstr("Larkfield Marine Limited"));
    EXPECT_TRUE(form.IsOpen());
}

TEST(ContactInformation, IsClosedByOk)
{
    CFormDriver form(std::make_unique<CContactInfoDlg>());
    EXPECT_EQ(form.Form().windowTitle(), "Contact Information");
    EXPECT_EQ(form.Caption("OK"), "OK");
    form.Ok();
    EXPECT_FALSE(form.IsOpen());
}
