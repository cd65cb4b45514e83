// A table of a results file as a list of which the user takes a part, with buttons for all and for nothing.
#pragma once

#include "core/project/PlainFields.h"

#include <QGroupBox>
#include <QStringList>

class QListWidget;

class CIndexList : public QGroupBox
{
    Q_OBJECT

public:
    /// `name` is the list's; the buttons have it in front of theirs. Nothing is selected.
    CIndexList(const char* name, const QString& title, const QStringList& entries, QWidget* parent);

    /// The indices of the selected entries, ascending.
    CSelection Selected() const;

Q_SIGNALS:
    void SelectionChanged();

private:
    void FitToEntries();

    QListWidget* m_list;
};
