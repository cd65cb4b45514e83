// A modal form of the program: loads its fields from the project, and at OK checks and stores them. A form's
// constructor reads like its table; what it does beyond that are the functions that it overrides.
#pragma once

#include "gui/forms/CChoiceFields.h"
#include "gui/forms/CFormContext.h"
#include "gui/forms/CNumberField.h"
#include "gui/forms/CTextFields.h"

#include <memory>
#include <vector>

#include <QDialog>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;

class CFormDlg : public QDialog
{
    Q_OBJECT

public:
    ~CFormDlg() override;

    void accept() override;
    void reject() override;
    void setVisible(bool visible) override;

protected:
    /// `name` is the object name, which is the class's.
    CFormDlg(CFormContext& context, const char* name, const QString& title, int helpTopic, QWidget* parent);

    CProjectData& Project() const { return m_context.Project; }
    CMessages& Messages() const { return m_context.Platform.Messages; }
    CFormContext& Context() const { return m_context; }
    /// Sets the mark that the input was changed.
    void SetModified() const { m_context.Session.Modified = 1; }

    // The form's table. Fields are loaded, checked and stored in the order in which they are named, each in a
    // row of its own under the last one; a field without a label goes beside what stands in the last row.
    CNumberField& Number(const QString& label, const CStoredNumber& number, CFixedFormat format);
    CNumberField& Length(const QString& label, const CStoredNumber& number, CFixedFormat format);
    CNumberField& Mass(const QString& label, const CStoredNumber& number, CFixedFormat format);
    CTextField& Text(const QString& label, const char* name, std::string& text, int longest);
    CFileField& File(const QString& label, const char* name, std::string& path, const CFileRequest& request);
    CCheckField& Check(const QString& caption, const CStoredNumber& number);
    /// Fields named up to EndGroup go into the group, beside its buttons.
    COptionField& Options(const QString& title, const CStoredNumber& number);
    void BeginGroup(const QString& title, const char* name = nullptr);
    void EndGroup();
    /// Any other control, over the full width of a row of its own.
    void AddRow(QWidget* widget);
    void AddRow(QLayout* layout);
    /// A push button that the Enter key doesn't press.
    QPushButton* MakeButton(const char* name, const QString& caption, std::function<void()> pressed);
    /// The same in the row of OK, at its left end.
    QPushButton* AddButton(const char* name, const QString& caption, std::function<void()> pressed);
    /// A field that the table above has no word for. It is loaded, checked and stored like the others.
    template <class Field>
    Field& Add(std::unique_ptr<Field> field)
    {
        Field& added = *field;
        m_fields.push_back(std::move(field));
        return added;
    }
    /// The flag that tells whether all that is required is filled in, set at OK.
    void CompletenessFlag(int& flag) { m_complete = &flag; }
    /// The layout beside which a form puts what doesn't stand under each other.
    QBoxLayout& Body() const { return *m_body; }
    /// The row of OK, Cancel and Help; further buttons go behind them.
    QBoxLayout& ButtonRow() const { return *m_buttons; }
    QPushButton& OkButton() const { return *m_ok; }
    QPushButton& CancelButton() const { return *m_cancel; }
    QPushButton& HelpButton() const { return *m_help; }
    /// Calls `rule` each time the field loses the focus, but not where the user leaves by Cancel.
    void WhenFocusLost(CNumberField& field, std::function<void()> rule);

    /// Before the form is shown: loads the fields. A form that shows more loads it behind.
    virtual void LoadFields();
    /// Checks all fields: at the first that fails it stops and shows it.
    virtual bool CheckFields();
    virtual void StoreFields();
    virtual bool IsComplete() const;
    /// The command OK; the form closes if it gives true.
    virtual bool OnOk();
    /// The command Cancel, by its button, by Escape or by the window's own button; the form closes if it
    /// gives true.
    virtual bool OnCancel() { return true; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Open();
    void FitSize(Qt::Orientations grows);
    /// Puts scroll bars around all but the buttons of a form that is larger than the screen.
    void FitScreen();
    void FocusFirst();
    void OrderButtons();
    bool IsEnterHere(const QObject& watched, const QEvent& event) const;
    void OnEnter();
    void PlaceUnits();
    void Place(QLabel* label, QWidget* edit);
    QGridLayout& Rows() const { return *m_rows.back(); }
    void RunPendingFocusRule();

    CFormContext& m_context;
    int m_helpTopic;
    std::vector<std::unique_ptr<CField>> m_fields;
    std::vector<const CNumberField*> m_withUnits;
    int* m_complete = nullptr;
    QBoxLayout* m_body;
    QBoxLayout* m_buttons;
    std::vector<QGridLayout*> m_rows; ///< the innermost group's last
    QPushButton* m_ok;
    QPushButton* m_cancel;
    QPushButton* m_help;
    std::function<void()> m_pendingFocusRule;
    bool m_opened = false;
    bool m_leaving = false;
};

/// Whether the hull has stations, without which a form that depends on it can't open; a message if not.
bool HullHasStations(const CProjectData& project, CMessages& messages);
