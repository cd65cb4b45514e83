// The unit beside a number: a flat button that looks like a link. A click converts the numbers that it
// belongs to and swaps the caption. It never takes the keyboard focus.
#pragma once

#include "core/project/CParamArray.h"

#include <array>
#include <functional>
#include <vector>

#include <QPushButton>

/// Two units of one quantity and the single-precision factors between them, by unit flag.
struct CUnitPair
{
    std::array<const char*, 2> Captions; ///< metric, British
    float ToBritish;
    float ToMetric;
};

extern const CUnitPair kLengthUnits; ///< "meters", "feet"
extern const CUnitPair kMassUnits;   ///< "tonnes", "LT"

class CUnitCaption : public QPushButton
{
    Q_OBJECT

public:
    explicit CUnitCaption(const CUnitPair& units, QWidget* parent = nullptr);

    /// Adds what a click converts: a text or a column of them, by a factor.
    void Converts(std::function<void(float factor)> convert);

    /// Converts and swaps, as a click does.
    void Swap();
    /// Swaps the caption alone. A flag other than metric counts as British.
    void SetUnit(int unit);
    int Unit() const { return m_unit; }
    /// The unit in which limits are told.
    QString MetricCaption() const { return QString::fromLatin1(m_units.Captions.front()); }

    /// As wide as the wider of the two units, so that a swap moves nothing.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// Begins where a label would.
    void paintEvent(QPaintEvent* event) override;

private:
    const CUnitPair& m_units;
    int m_unit = kUnitMetric;
    std::vector<std::function<void(float)>> m_converts;
};
