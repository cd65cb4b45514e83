#include "gui/app/CRunningDlg.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

CRunningDlg::CRunningDlg(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_elapsed(new QLabel(this))
{
    setObjectName("CRunningDlg");
    setWindowTitle(tr("Ondara Calculation Engine Running"));
    // The keys stay the main window's.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    auto* icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    const QIcon standard = style()->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, this);
    icon->setPixmap((windowIcon().isNull() ? standard : windowIcon()).pixmap(size));
    auto* text = new QLabel(tr("Calculations being performed.  "), this);
    text->setObjectName("Text");
    m_elapsed->setObjectName("Elapsed");
    auto* progress = new QProgressBar(this);
    progress->setObjectName("Progress");
    progress->setRange(0, 0); // nobody knows how far the engine is
    progress->setTextVisible(false);

    auto* grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(text, 0, 1);
    grid->addWidget(m_elapsed, 1, 1);
    grid->addWidget(progress, 2, 0, 1, 2);
    grid->setColumnMinimumWidth(1, fontMetrics().averageCharWidth() * 44); // the title is read whole

    m_since.start();
    ShowElapsed();
    auto* timer = new QTimer(this);
    timer->setObjectName("ElapsedTimer");
    connect(timer, &QTimer::timeout, this, &CRunningDlg::ShowElapsed);
    timer->start(std::chrono::seconds(1));
}

void CRunningDlg::AllowCancel()
{
    m_mayCancel = true;
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus, false);
    auto* cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setObjectName("Cancel");
    connect(cancel, &QPushButton::clicked, this, &CRunningDlg::reject);
    static_cast<QGridLayout*>(layout())->addWidget(cancel, 3, 0, 1, 2, Qt::AlignRight);
}

void CRunningDlg::reject()
{
    if (m_mayCancel)
    {
        QDialog::reject();
    }
}

void CRunningDlg::ShowElapsed()
{
    m_elapsed->setText(tr("Elapsed time: %1").arg(ElapsedText(m_since.elapsed() / 1000)));
}

QString ElapsedText(qint64 seconds)
{
    const auto twoDigits = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QChar('0')); };
    const qint64 minutes = seconds / 60;
    const QString rest = ":" + twoDigits(seconds % 60);
    return minutes < 60 ? QString::number(minutes) + rest
                        : QString::number(minutes / 60) + ":" + twoDigits(minutes % 60) + rest;
}
