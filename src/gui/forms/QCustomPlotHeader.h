// QCustomPlot's header, which is written with the words that QT_NO_KEYWORDS takes away.
#pragma once

// As the keywords would.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#define emit Q_EMIT
#define foreach Q_FOREACH

#include <qcustomplot.h>

#undef signals
#undef slots
#undef emit
#undef foreach
