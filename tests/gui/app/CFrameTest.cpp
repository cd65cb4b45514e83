#include "tests/gui/app/CFrameTest.h"

#include "gui/platform/QtText.h"
#include "tests/support/gui/AtDialog.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include <QLabel>

CFrameTest::CFrameTest()
{
    Recorder.ProfileFolder = Folder.Path();
    StartFrame(App, Frame, Folder.Path());
}

QAction& CFrameTest::Action(const std::string& name)
{
    auto* action = Frame.findChild<QAction*>(ScreenText(name));
    if (action == nullptr)
    {
        throw std::runtime_error("no command " + name);
    }
    return *action;
}

void CFrameTest::Give(const std::string& name)
{
    QAction& action = Action(name);
    EXPECT_TRUE(action.isEnabled()) << name;
    action.trigger();
}

void CFrameTest::GiveForm(const std::string& name, const char* form,
                          const std::function<void(QDialog&)>& look)
{
    bool opened = false;
    AtDialog<QDialog>(form,
                      [&](QDialog& dialog)
                      {
                          opened = true;
                          look(dialog);
                      });
    Give(name);
    EXPECT_TRUE(opened) << name << " opens no " << form;
}

std::string CFrameTest::Text(const char* name)
{
    const auto* label = Frame.findChild<QLabel*>(QString::fromLatin1(name));
    return label != nullptr ? PlainText(label->text()) : throw std::runtime_error("no label");
}

std::string CFrameTest::Sample(const std::string& name) const
{
    return Folder.Write(name, FileContent(SourceFile("samples/Sample01.od7")));
}

void CFrameTest::OpenSample()
{
    Recorder.Files = {Sample("ship.od7")};
    Give("File.OpenBoth");
    EXPECT_GT(App.Project.NST.Integer(), 0);
}
