// Fields of free text: a line of text, and the path of a file with a button that browses for one.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectSession.h"
#include "gui/forms/CField.h"
#include "gui/forms/CSizedEdit.h"

#include <string>

#include <QString>

class QLabel;
class QPushButton;

/// One line: what a paste brings as a line break becomes a blank.
class CTextField : public CField
{
public:
    /// `longest` characters at most.
    CTextField(const char* name, const QString& label, std::string& text, int longest, QWidget* parent);

    CSizedEdit& Edit() const { return *m_edit; }
    QLabel& LabelWidget() const { return *m_label; }
    std::string Text() const;

    void Load() override;
    /// A text that the user hasn't touched keeps its bytes.
    bool Store() override;
    std::vector<QWidget*> Widgets() const override;

private:
    void JoinLines();

    std::string& m_text;
    QLabel* m_label;
    CSizedEdit* m_edit;
};

class CFileField : public CTextField
{
public:
    /// `request` is what the dialog of the button "Browse" begins with; its name is the text on show.
    CFileField(const char* name, const QString& label, std::string& path, const CFileRequest& request,
               CProjectSession& session, CFileDialogs& dialogs, QWidget* parent);

    QPushButton& BrowseButton() const { return *m_browse; }
    std::vector<QWidget*> Widgets() const override;

private:
    void Browse();

    CFileRequest m_request;
    CProjectSession& m_session;
    CFileDialogs& m_dialogs;
    QPushButton* m_browse;
};
