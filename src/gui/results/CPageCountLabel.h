// The page count of a report as both forms of the report show it, and what they say of one that is too large.
#pragma once

#include "core/platform/CPlatform.h"

#include <QLabel>

class QHBoxLayout;

class CPageCountLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CPageCountLabel(QWidget* parent);

    /// Red when over the limit.
    void ShowPages(int pages);
    /// Appends the caption and the number.
    void AddTo(QHBoxLayout& row);
};

/// Tells that the report would be too large.
void ShowPageLimit(CMessages& messages);
