#include "gui/vessel/CShipParticularsDlg.h"

#include "core/project/UnitConversion.h"
#include "gui/forms/HelpTopics.h"

namespace
{
constexpr EBlankText kFilled = EBlankText::IsFilled; // also one blank, although that is stored as not given
} // namespace

CShipParticularsDlg::CShipParticularsDlg(CFormContext& context, QWidget* parent)
    : CFormDlg(context, "CShipParticularsDlg", tr("Ship Particulars"), kHelpParticulars, parent)
{
    m_length = &Length(tr("Length Between Perpendiculars"), Project().SHIPLEN, "%.2f")
                    .RangeTitle("Length between perpendiculars out of Range", kFiveDecimals)
                    .AlwaysConverted()
                    .Required(kFilled);
    Length(tr("Height of Center of Gravity from Baseline"), Project().KG, "%.2f")
        .RangeTitle("Height of center of gravity out of Range")
        .AlwaysConverted()
        .Required(kFilled);
    m_pitchRadius = &Length(tr("Dry Pitch Radius of Gyration"), Project().PITCHRG, "%.3f")
                         .RangeTitle("Dry pitch radius of gyration out of Range", kFiveDecimals)
                         .AlwaysConverted()
                         .Required(kFilled);
    WhenFocusLost(*m_length, [this] { SuggestPitchRadius(); });

    COptionField& height = Options(tr("Metacentric Height:"), Project().GMFLAG);
    height.Button(0, tr("Computed"));
    Choice(height, 1, tr("User Specified"), Project().GMUSER, "%.2f", "Metacentric height out of Range")
        .Units(kLengthUnits);
    EndGroup();

    COptionField& roll = Options(tr("Roll"), Project().ROLLRGDEF);
    Choice(roll, 0, tr("Roll Natural Frequency in Water"), Project().ROLLNF, "%.4f",
           "Roll Natural Frequency in Water out of Range")
        .FixedUnit(tr("rad/sec"));
    Choice(roll, 1, tr("Roll Radius of Gyration in Air"), Project().ROLLRG, "%.2f",
           "Roll radius of gyration in air out of Range")
        .Units(kLengthUnits);
    Choice(roll, 2, tr("Roll Radius of Gyration in Water"), Project().WETROLLRG, "%.2f",
           "Roll radius of gyration in water out of Range")
        .Units(kLengthUnits);
    EndGroup();
    CompletenessFlag(Project().ParticularsComplete);
}

CNumberField& CShipParticularsDlg::Choice(COptionField& options, int value, const QString& caption,
                                          CParamArray& field, CFixedFormat format, const char* rangeTitle)
{
    options.Button(value, caption);
    const auto isChosen = [&options, value] { return options.EffectiveChoice() == value; };
    CNumberField& number = Number({}, field, format)
                               .RangeTitle(rangeTitle, kFiveDecimals)
                               .AlwaysConverted()
                               .CheckedIf(isChosen)
                               .Required(kFilled, isChosen);
    options.Enables(value, {&number});
    return number;
}

void CShipParticularsDlg::SuggestPitchRadius()
{
    if (!m_pitchRadius->IsEmpty())
    {
        return;
    }
    // An empty length gives "0.000", which the range check then points at.
    const float quarter = m_length->IsEmpty() ? 0.0F : m_length->Value() / 4;
    const float factor = LengthFactor(m_length->Caption()->Unit(), m_pitchRadius->Caption()->Unit());
    m_pitchRadius->SetText(FixedText(quarter * factor, "%.3f"));
}
