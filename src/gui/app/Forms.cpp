#include "gui/app/Forms.h"

#include "gui/app/CAboutDlg.h"
#include "gui/app/CProjectDescriptionDlg.h"
#include "gui/environment/CUnitsDlg.h"
#include "gui/hull/CHullGeometryDlg.h"
#include "gui/hull/COffsetEditorDlg.h"
#include "gui/hull/CSectionAreasDlg.h"
#include "gui/results/CDisplayResultsDlg.h"
#include "gui/vessel/CShipParticularsDlg.h"
#include "gui/vessel/CSkegDlg.h"

#include <algorithm>
#include <type_traits>

namespace
{
constexpr bool kNeedsHull = true;

/// The form of a type, whether or not it works on the project.
template <class Form>
std::unique_ptr<QDialog> Make([[maybe_unused]] CFormContext& context, QWidget* parent)
{
    if constexpr (std::is_constructible_v<Form, CFormContext&, QWidget*>)
    {
        return std::make_unique<Form>(context, parent);
    }
    else
    {
        return std::make_unique<Form>(parent);
    }
}
} // namespace

const std::vector<CFormEntry>& FormList()
{
    static const std::vector<CFormEntry> forms = {
        {"CAboutDlg", !kNeedsHull, Make<CAboutDlg>},
        {"CProjectDescriptionDlg", !kNeedsHull, Make<CProjectDescriptionDlg>},
        {"CUnitsDlg", !kNeedsHull, Make<CUnitsDlg>},
        {"CShipParticularsDlg", !kNeedsHull, Make<CShipParticularsDlg>},
        {"CHullGeometryDlg", !kNeedsHull, Make<CHullGeometryDlg>},
        {"COffsetEditorDlg", kNeedsHull, Make<COffsetEditorDlg>},
        {"CSectionAreasDlg", kNeedsHull, Make<CSectionAreasDlg>},
        {"CSkegDlg", kNeedsHull, Make<CSkegDlg>},
        {"CDisplayResultsDlg", !kNeedsHull, Make<CDisplayResultsDlg>},
    };
    return forms;
}

const CFormEntry* FindForm(std::string_view name)
{
    const auto& forms = FormList();
    const auto found =
        std::find_if(forms.begin(), forms.end(), [&](const auto& form) { return form.Name == name; });
    return found == forms.end() ? nullptr : &*found;
}
