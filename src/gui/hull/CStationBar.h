// The strip of station buttons over the offset editor.
#pragma once

#include <vector>

#include <QWidget>

class QPushButton;

class CStationBar : public QWidget
{
    Q_OBJECT

public:
    explicit CStationBar(QWidget* parent = nullptr);

    /// Shows the buttons of the first `count` stations, the one of `active` as pressed.
    void Show(int count, int active);

Q_SIGNALS:
    void Picked(int station);

protected:
    void changeEvent(QEvent* event) override;

private:
    void FitWidths();

    std::vector<QPushButton*> m_buttons;
};
