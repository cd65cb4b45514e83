// The edit box of all number fields: only what can belong to a number can be typed. What is pasted or set is
// free.
#pragma once

#include "gui/forms/CSizedEdit.h"

class CNumericEdit : public CSizedEdit
{
    Q_OBJECT

public:
    explicit CNumericEdit(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The keyboard focus has gone elsewhere, with or without an edit; not to a menu of the box itself.
    void FocusLost();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool MayType(const QString& typed) const;
};
