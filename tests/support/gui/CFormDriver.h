// Drives a form as a user does: types into controls found by their names, clicks, presses OK. What the form
// says is recorded.
#pragma once

#include "gui/forms/CFormContext.h"
#include "tests/support/CTestProject.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>

/// A project at its defaults, and what a form needs to work on it.
struct CFormProject : CTestProject
{
    std::vector<int> HelpTopics; ///< asked for
    CFormContext Context{Project, Session, Recorder.Platform,
                         [this](int topic) { HelpTopics.push_back(topic); }};
};

class CFormDriver
{
public:
    /// Shows the form.
    explicit CFormDriver(std::unique_ptr<QDialog> form);

    /// The control of a name; the running test ends as failed if there is none.
    template <class Widget>
    Widget& Find(const char* name)
    {
        Widget* found = m_form->findChild<Widget*>(QString::fromLatin1(name));
        if (found == nullptr)
        {
            throw std::runtime_error(std::string("no control ") + name);
        }
        return *found;
    }

    /// Empties a text box and types into it key by key; the focus is in it then.
    void Type(const char* name, const char* text);
    /// Puts a text into a text box as a paste does.
    void Set(const char* name, const char* text);
    std::string Text(const char* name);
    bool IsEnabled(const char* name) { return Find<QWidget>(name).isEnabled(); }
    bool IsChecked(const char* name) { return Find<QAbstractButton>(name).isChecked(); }
    /// The text of a caption, a label or a button.
    std::string Caption(const char* name);
    /// A click of the left mouse button.
    void Click(const char* name);
    /// A key, in the control that has the focus.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The object name of the control with the focus, and the text that is selected in it.
    std::string Focus() const;
    std::string Selected() const;

    void Ok() { Click("OK"); }
    void Cancel() { Click("Cancel"); }
    bool IsOpen() const { return m_form->isVisible(); }
    QDialog& Form() { return *m_form; }

private:
    std::unique_ptr<QDialog> m_form;
};

/// A form of a type on a project, shown.
template <class Form>
CFormDriver Opened(CFormProject& project)
{
    return CFormDriver(std::make_unique<Form>(project.Context));
}
