// A line of text that is as wide as what is to be typed into it, whatever the font.
#pragma once

#include <QLineEdit>

class CSizedEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CSizedEdit(QWidget* parent = nullptr) : QLineEdit(parent) {}

    /// Asks for the room of a count of figures; without it, for that of a line edit.
    void ShowsCharacters(int count);

    QSize sizeHint() const override;

private:
    int m_characters = 0;
};
