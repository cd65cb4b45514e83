#include "gui/platform/CQtFileDialogs.h"

#include "gui/platform/DialogParent.h"
#include "gui/platform/FileFilter.h"
#include "gui/platform/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace
{
void BeginAt(QFileDialog& dialog, const std::string& initialName)
{
    const QString name = QDir::fromNativeSeparators(ScreenText(initialName));
    const QFileInfo file(name);
    const bool hasFolder = name.contains('/') && file.dir().exists();
    dialog.setDirectory(hasFolder ? file.absolutePath() : QDir::currentPath());
    if (!file.fileName().isEmpty())
    {
        dialog.selectFile(file.fileName());
    }
}

std::optional<std::string> Ask(QFileDialog& dialog, const CFileRequest& request)
{
    dialog.setObjectName("FileDialog");
    dialog.setOption(QFileDialog::DontUseNativeDialog,
                     QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.OverwritePrompt);
    dialog.setNameFilters(NameFilters(request.Filter));
    BeginAt(dialog, request.InitialName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
    {
        return std::nullopt;
    }
    return PlainText(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}
} // namespace

std::optional<std::string> CQtFileDialogs::AskOpen(const CFileRequest& request)
{
    QFileDialog dialog(DialogParent(), QCoreApplication::translate("CQtFileDialogs", "Open"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog, request);
}

std::optional<std::string> CQtFileDialogs::AskSave(const CFileRequest& request)
{
    QFileDialog dialog(DialogParent(), QCoreApplication::translate("CQtFileDialogs", "Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(Suffix(request.DefaultExtension));
    return Ask(dialog, request);
}
