// A number in a text box, with a label before it and a unit behind it.
#pragma once

#include "core/project/CProjectData.h"
#include "core/project/FieldChecks.h"
#include "gui/forms/CField.h"
#include "gui/forms/CNumericEdit.h"
#include "gui/forms/CStoredNumber.h"
#include "gui/forms/CUnitCaption.h"
#include "gui/forms/FieldText.h"

#include <functional>
#include <optional>
#include <string>

class QLabel;

/// Which texts count as not filled in.
enum class EBlankText
{
    IsEmpty, ///< an empty text and one of a single blank
    IsFilled ///< a single blank counts as filled
};

class CNumberField : public CField
{
public:
    CNumberField(CMessages& messages, const CStoredNumber& number, CFixedFormat format, QWidget* parent);

    // What the form says of it; each gives the field, so that its table reads as one chain.
    CNumberField& Label(const QString& label);
    /// A unit that a click converts. `caption` may be shared: then it is another field's.
    CNumberField& Units(const CUnitPair& units);
    CNumberField& SharedUnits(CUnitCaption& caption);
    CNumberField& FixedUnit(const QString& unit);
    /// The sentinel of a value that isn't given, -1 unless told.
    CNumberField& NotGiven(float sentinel);
    /// Limits in SI in place of the keyword's own; asked for when the check runs.
    CNumberField& Limits(std::function<float()> minimum, std::function<float()> maximum);
    CNumberField& Limits(float minimum, float maximum);
    /// Title and wording of the message of a value outside the limits. Without it nothing is checked.
    CNumberField& RangeTitle(const std::string& title, ERangeText mode = kTwoDecimals);
    CNumberField& CheckedIf(std::function<bool()> condition);
    /// Goes through metres and back also where its check is left out, so that it is rounded all the same.
    CNumberField& AlwaysConverted();
    /// The form is incomplete without it.
    CNumberField& Required(EBlankText blank = EBlankText::IsEmpty, std::function<bool()> condition = {});
    /// A whole number: shown and read without decimals, cut behind the point.
    CNumberField& Whole();
    /// A value that isn't given shows as its number instead of an empty text.
    CNumberField& ShowsNotGiven();
    /// The format behind a click on the unit, where it isn't the one at opening.
    CNumberField& ConvertedFormat(CFixedFormat format);
    /// Whether the input counts as changed goes by the texts in this format.
    CNumberField& ModifiedByText(CFixedFormat format);
    /// A station number, which counts from the forward end in the project and from where `StationOrigin`
    /// says on the form.
    CNumberField& MirroredByStationOrigin(const CProjectData& project);

    CNumericEdit& Edit() const { return *m_edit; }
    QLabel* LabelWidget() const { return m_label; }
    QWidget* UnitWidget() const { return m_unit; }
    CUnitCaption* Caption() const { return m_caption; }

    std::string Text() const;
    void SetText(const std::string& text);
    /// The number in the text, in the unit on show; the sentinel for an empty text.
    float Value() const;
    bool IsEmpty() const { return IsBlank(Text()); }
    CFixedFormat Format() const { return m_format; }

    void Load() override;
    bool Check() override;
    void SkipCheck() override;
    void Show() override;
    bool Store() override;
    bool IsComplete() const override;
    std::vector<QWidget*> Widgets() const override;

private:
    std::string ShownText(float value) const;
    float Mirrored(float station) const;
    bool CheckInSi();
    void SetToolTip();

    CMessages& m_messages;
    CStoredNumber m_number;
    CFixedFormat m_format;
    CNumericEdit* m_edit;
    QLabel* m_label = nullptr;
    QWidget* m_unit = nullptr;
    CUnitCaption* m_caption = nullptr;
    float m_sentinel = kNotGiven;
    std::function<float()> m_minimum;
    std::function<float()> m_maximum;
    std::string m_rangeTitle;
    ERangeText m_rangeText = kTwoDecimals;
    std::function<bool()> m_checkedIf = [] { return true; };
    bool m_alwaysConverted = false;
    std::function<bool()> m_required = [] { return false; };
    EBlankText m_blank = EBlankText::IsEmpty;
    const CProjectData* m_mirroredBy = nullptr;
    bool m_isWhole = false;
    bool m_showsNotGiven = false;
    std::optional<CFixedFormat> m_convertedFormat;
    std::optional<CFixedFormat> m_modifiedBy;
};
