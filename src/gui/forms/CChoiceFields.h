// Fields that are chosen instead of typed: option groups and check boxes.
#pragma once

#include "gui/forms/CField.h"
#include "gui/forms/CStoredNumber.h"

#include <functional>
#include <vector>

#include <QString>

class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QRadioButton;

/// A field that the user clicks at; what depends on it follows at once.
class CChoiceField : public CField
{
public:
    /// Calls `follow` whenever the choice has been shown or changed.
    void Follows(std::function<void()> follow) { m_follows.push_back(std::move(follow)); }
    /// Enables fields while the choice has a value, and disables them otherwise.
    void Enables(int value, std::vector<const CField*> fields);

    /// The choice on show.
    virtual int Choice() const = 0;
    /// What decides on enabling, where no button is on.
    virtual int EffectiveChoice() const { return Choice(); }

protected:
    void Follow() const;

private:
    std::vector<std::function<void()>> m_follows;
};

/// Radio buttons in a group box. A stored value without a button shows none, and stays unless one is clicked.
class COptionField : public CChoiceField
{
public:
    COptionField(const QString& title, const CStoredNumber& number, QWidget* parent);

    /// A button with the number that is stored when it is on, in a row of its own.
    COptionField& Button(int value, const QString& caption);

    QGroupBox& Group() const { return *m_group; }
    QGridLayout& Rows() const { return *m_rows; }
    QRadioButton* ButtonOf(int value) const;
    /// Calls `clicked` at each click of the user, also on the button that is on already.
    void Clicked(std::function<void(int value)> clicked) { m_clicked.push_back(std::move(clicked)); }
    void SetChoice(int value);

    void Load() override;
    bool Store() override;
    std::vector<QWidget*> Widgets() const override;
    int Choice() const override;
    int EffectiveChoice() const override;

private:
    void StopAtChosen() const;

    CStoredNumber m_number;
    QGroupBox* m_group;
    QGridLayout* m_rows;
    QButtonGroup* m_buttons;
    std::vector<std::function<void(int)>> m_clicked;
};

/// A check box: 1 and 0 in the project, or other numbers where a form says so.
class CCheckField : public CChoiceField
{
public:
    CCheckField(const QString& caption, const CStoredNumber& number, QWidget* parent);

    /// The numbers that stand for a set and a clear box.
    CCheckField& Values(int set, int clear);

    QCheckBox& Box() const { return *m_box; }

    void Load() override;
    bool Store() override;
    std::vector<QWidget*> Widgets() const override;
    int Choice() const override;

private:
    CStoredNumber m_number;
    QCheckBox* m_box;
    int m_set = 1;
    int m_clear = 0;
};
