// A field of a form: shows what the project holds, checks and stores what the user made of it.
#pragma once

#include <vector>

class QWidget;

class CField
{
public:
    CField() = default;
    virtual ~CField() = default;
    CField(const CField&) = delete;
    CField& operator=(const CField&) = delete;

    /// Shows what the project holds.
    virtual void Load() = 0;
    /// False, after a message, for a value that may not be stored.
    virtual bool Check() { return true; }
    /// What a field does whose check is left out because one before it has failed.
    virtual void SkipCheck() {}
    /// Brings the user to the value that its check has refused.
    virtual void Show() {}
    /// True if the project held another value. What belongs to the field beside it, as its unit, doesn't
    /// count.
    virtual bool Store() = 0;
    /// False if it is wanted and the user has left it empty.
    virtual bool IsComplete() const { return true; }

    /// The field with its caption and label.
    virtual std::vector<QWidget*> Widgets() const = 0;
    void SetEnabled(bool enabled) const;
};
