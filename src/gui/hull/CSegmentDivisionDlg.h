// Asks into how many pieces a long segment of a section is to be divided.
#pragma once

#include "gui/forms/CFormDlg.h"

#include <vector>

class QCheckBox;

/// One segment of those to be asked about.
struct CSegmentQuestion
{
    int Number;     ///< counted from 1
    int Total;      ///< of the station
    int Points;     ///< of the station
    int PointsLeft; ///< for this segment
    int Pieces;     ///< as proposed
};

enum class ESegmentAnswer
{
    Divide,
    DivideAll, ///< this one and the rest, without asking
    Ignore,
    IgnoreAll
};

class CSegmentDivisionDlg : public CFormDlg
{
    Q_OBJECT

public:
    CSegmentDivisionDlg(CFormContext& context, const CSegmentQuestion& question, QWidget* parent = nullptr);

    ESegmentAnswer Answer() const { return m_answer; }
    /// The number of pieces, 0 if the segment is to stay as it is.
    int Pieces() const;
    void done(int result) override;

protected:
    void LoadFields() override;
    bool OnOk() override;
    void showEvent(QShowEvent* event) override;

private:
    void AddQuestion();
    void AddButtons();
    QString Progress() const;

    CSegmentQuestion m_question;
    CNumericEdit* m_pieces;
    QCheckBox* m_always;
    std::vector<QPushButton*> m_answers;              ///< from left to right
    ESegmentAnswer m_answer = ESegmentAnswer::Ignore; ///< also when the window is closed
    ESegmentAnswer m_answerOfOk = ESegmentAnswer::Divide;
};
