#include "gui/forms/CTextFields.h"

#include "core/platform/Files.h"
#include "gui/platform/QtText.h"

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

CTextField::CTextField(const char* name, const QString& label, std::string& text, int longest,
                       QWidget* parent)
    : m_text(text),
      m_label(new QLabel(label, parent)),
      m_edit(new CSizedEdit(parent))
{
    m_edit->setObjectName(QString::fromLatin1(name));
    m_edit->setMaxLength(longest);
    m_label->setObjectName(m_edit->objectName() + ".label");
    m_label->setBuddy(m_edit);
    QObject::connect(m_edit, &QLineEdit::textEdited, m_edit, [this] { JoinLines(); });
}

std::string CTextField::Text() const
{
    return PlainText(m_edit->text());
}

void CTextField::Load()
{
    m_edit->setText(ScreenText(m_text));
    m_edit->setModified(false);
}

bool CTextField::Store()
{
    const std::string text = Text();
    if (text == m_text || m_edit->text() == ScreenText(m_text).left(m_edit->maxLength()))
    {
        return false;
    }
    m_text = text;
    return true;
}

void CTextField::JoinLines()
{
    static const QRegularExpression lineBreak("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]");
    if (m_edit->text().contains(lineBreak))
    {
        const int caret = m_edit->cursorPosition();
        m_edit->setText(m_edit->text().replace(lineBreak, " "));
        m_edit->setCursorPosition(caret);
    }
}

std::vector<QWidget*> CTextField::Widgets() const
{
    return {m_edit, m_label};
}

CFileField::CFileField(const char* name, const QString& label, std::string& path, const CFileRequest& request,
                       CProjectSession& session, CFileDialogs& dialogs, QWidget* parent)
    : CTextField(name, label, path, 32767, parent),
      m_request(request),
      m_session(session),
      m_dialogs(dialogs),
      m_browse(new QPushButton(QObject::tr("Browse ..."), parent))
{
    m_browse->setObjectName("Browse");
    m_browse->setAutoDefault(false);
    QObject::connect(m_browse, &QPushButton::clicked, m_browse, [this] { Browse(); });
}

std::vector<QWidget*> CFileField::Widgets() const
{
    std::vector<QWidget*> widgets = CTextField::Widgets();
    widgets.push_back(m_browse);
    return widgets;
}

void CFileField::Browse()
{
    ChangeFolder(m_session.WorkDir);
    CFileRequest request = m_request;
    request.InitialName = Text();
    if (const auto path = m_dialogs.AskOpen(request))
    {
        ChangeToFolderOf(*path);
        Edit().setText(ScreenText(*path));
    }
    m_session.WorkDir = CurrentFolder();
}
