#include "tests/support/gui/ControlTable.h"

#include "gui/forms/CUnitCaption.h"
#include "gui/platform/QtText.h"

#include <algorithm>

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTableView>

namespace
{
constexpr const char* kMissing = "(no such control)";

template <class Widget>
const Widget* Found(const QDialog& form, const std::string& name)
{
    return form.findChild<const Widget*>(ScreenText(name));
}

std::string Plain(QString caption)
{
    return PlainText(caption.remove('&'));
}

template <class Widget>
std::string TextOf(const QDialog& form, const std::string& name)
{
    const auto* widget = Found<Widget>(form, name);
    return widget != nullptr ? Plain(widget->text()) : kMissing;
}

std::string GroupTitle(const QDialog& form, const std::string& name)
{
    const auto* group = Found<QGroupBox>(form, name);
    return group != nullptr ? Plain(group->title()) : kMissing;
}

std::string TextBoxCaption(const QDialog& form, const std::string& name)
{
    const auto* edit = Found<QLineEdit>(form, name);
    const auto* label = Found<QLabel>(form, name + ".label");
    return edit == nullptr ? kMissing : label == nullptr ? "" : Plain(label->text());
}

std::string UnitText(const QDialog& form, const std::string& name)
{
    const auto* unit = Found<CUnitCaption>(form, name);
    return unit != nullptr && unit->focusPolicy() == Qt::NoFocus ? PlainText(unit->text()) : kMissing;
}

std::string ReadoutCaption(const QDialog& form, const CControl& control)
{
    const auto labels = form.findChildren<QLabel*>();
    const bool isLabelled =
        std::any_of(labels.begin(), labels.end(),
                    [&control](const QLabel* label) { return Plain(label->text()) == control.Caption; });
    const auto* display = Found<QWidget>(form, control.Name);
    const bool isThere = display != nullptr && display->property("text").isValid();
    return isThere && isLabelled ? control.Caption : kMissing;
}

std::string ListCaption(const QDialog& form, const std::string& name)
{
    return Found<QListWidget>(form, name) != nullptr ? GroupTitle(form, name + ".group") : kMissing;
}

std::string CaptionOf(const QDialog& form, const CControl& control)
{
    switch (control.Kind)
    {
    case EControl::TextBox:
        return TextBoxCaption(form, control.Name);
    case EControl::CheckBox:
        return TextOf<QCheckBox>(form, control.Name);
    case EControl::RadioButton:
        return TextOf<QRadioButton>(form, control.Name);
    case EControl::Button:
        return TextOf<QPushButton>(form, control.Name);
    case EControl::UnitCaption:
        return UnitText(form, control.Name);
    case EControl::FixedCaption:
        return TextOf<QLabel>(form, control.Name);
    case EControl::Readout:
        return ReadoutCaption(form, control);
    case EControl::List:
        return ListCaption(form, control.Name);
    case EControl::Group:
        return GroupTitle(form, control.Name);
    }
    return kMissing;
}

bool IsWorkedWith(const QWidget& widget)
{
    const auto is = [&widget](auto*... types) { return (widget.inherits(types) || ...); };
    return is("QAbstractButton", "QLineEdit", "QComboBox", "QAbstractItemView") &&
           !widget.objectName().startsWith("qt_") && !widget.parentWidget()->inherits("QAbstractItemView");
}
} // namespace

void ExpectControls(const QDialog& form, const std::vector<CControl>& controls)
{
    for (const CControl& control : controls)
    {
        EXPECT_EQ(CaptionOf(form, control), control.Caption) << control.Name;
    }
    const auto widgets = form.findChildren<QWidget*>();
    for (const QWidget* widget : widgets)
    {
        const std::string name = PlainText(widget->objectName());
        EXPECT_TRUE(!IsWorkedWith(*widget) ||
                    std::any_of(controls.begin(), controls.end(),
                                [&name](const CControl& control) { return control.Name == name; }))
            << widget->metaObject()->className() << " '" << name << "' isn't in the table";
    }
}

std::vector<CControl> WithButtons(std::vector<CControl> controls)
{
    controls.insert(controls.end(), {{"OK", EControl::Button, "OK"},
                                     {"Cancel", EControl::Button, "Cancel"},
                                     {"Help", EControl::Button, "Help"}});
    return controls;
}
