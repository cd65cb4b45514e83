// The front page of the program: its name, and the files that the two halves of the project came from.
#pragma once

#include "core/project/CProjectData.h"

#include <QWidget>

class COndaraView : public QWidget
{
    Q_OBJECT

public:
    explicit COndaraView(const CProjectData& project, QWidget* parent = nullptr);

    /// Paints the part anew in which the names of the files stand.
    void RepaintFiles();
    QSize sizeHint() const override;

Q_SIGNALS:
    void Painted();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintBackground(QPainter& painter) const;
    void PaintName(QPainter& painter) const;
    void PaintFiles(QPainter& painter) const;
    QRect FilesArea() const;
    int TextSize() const;

    const CProjectData& m_project;
};
