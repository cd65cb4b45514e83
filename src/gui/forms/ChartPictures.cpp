// A chart as a picture: files and the clipboard.
#include "core/platform/CPlatform.h"
#include "core/platform/FileErrors.h"
#include "core/platform/Files.h"
#include "gui/forms/CChart2D.h"
#include "gui/forms/CChartView.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QPdfWriter>

namespace
{
constexpr double kPngScale = 3; ///< pixels of the picture for one of the screen, enough for print
constexpr int kPdfResolution = 96;

bool WriteBytes(const std::string& path, const QByteArray& bytes)
{
    return !bytes.isEmpty() && ReplaceFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}
} // namespace

struct CChart2D::CPicture
{
    const char* Extension; ///< "png"
    const char* Filter;
    bool (CChart2D::*Save)(const std::string& path) const;
};

bool CChart2D::SavePng(const std::string& path) const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    m_view->toPixmap(m_view->width(), m_view->height(), kPngScale).save(&buffer, "PNG");
    return WriteBytes(path, bytes);
}

bool CChart2D::SavePdf(const std::string& path) const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kPdfResolution);
        writer.setPageSize(QPageSize(QSizeF(m_view->size()) / kPdfResolution, QPageSize::Inch));
        writer.setPageMargins({});
        writer.setTitle(m_view->yAxis->label());
        QCPPainter painter(&writer);
        painter.setMode(QCPPainter::pmVectorized);
        painter.setMode(QCPPainter::pmNoCaching);
        painter.setMode(QCPPainter::pmNonCosmetic);
        m_view->toPainter(&painter, m_view->width(), m_view->height());
    }
    return WriteBytes(path, bytes);
}

void CChart2D::AddMenu()
{
    static constexpr CPicture kPng = {"png", "PNG Files (*.png)|*.png|", &CChart2D::SavePng};
    static constexpr CPicture kPdf = {"pdf", "PDF Files (*.pdf)|*.pdf|", &CChart2D::SavePdf};
    const auto add = [this](const char* name, const QString& caption, auto command)
    {
        auto* action = new QAction(caption, this);
        action->setObjectName(QString::fromLatin1(name));
        connect(action, &QAction::triggered, this, command);
        addAction(action);
    };
    add("ShowAll", tr("Show &All"), &CChart2D::ShowAll);
    add("CopyPicture", tr("&Copy Picture"),
        [this] { QApplication::clipboard()->setPixmap(m_view->toPixmap(0, 0, kPngScale)); });
    if (m_platform != nullptr)
    {
        add("SavePng", tr("Save as P&NG..."), [this] { AskAndSave(kPng); });
        add("SavePdf", tr("Save as P&DF..."), [this] { AskAndSave(kPdf); });
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CChart2D::AskAndSave(const CPicture& picture)
{
    const std::string extension = picture.Extension;
    const CFileRequest request = {"*." + extension, "plot." + extension, picture.Filter, true};
    const auto path = m_platform->FileDialogs.AskSave(request);
    if (path && !(this->*picture.Save)(*path))
    {
        ShowSaveError(m_platform->Messages);
    }
}
