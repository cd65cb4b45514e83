// The controls of a form as a table: what users see of them and by which names tests and scripts find them.
#pragma once

#include <string>
#include <vector>

#include <QDialog>

enum class EControl
{
    TextBox, ///< the caption is that of its label, NAME.label; none for ""
    CheckBox,
    RadioButton,
    Button,
    UnitCaption,  ///< a click converts; never takes the focus
    FixedCaption, ///< a unit that doesn't change
    Readout,      ///< behind a label with the caption
    List,         ///< in the group box NAME.group with the caption
    Group
};

struct CControl
{
    const char* Name;
    EControl Kind;
    const char* Caption; ///< without the marks of mnemonics
};

/// The form has all these controls, and no others that a user works with. Fails the running test otherwise.
void ExpectControls(const QDialog& form, const std::vector<CControl>& controls);

/// OK, Cancel and Help behind the controls of a form.
std::vector<CControl> WithButtons(std::vector<CControl> controls);
