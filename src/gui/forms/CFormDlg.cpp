#include "gui/forms/CFormDlg.h"

#include "gui/forms/FormColumns.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

namespace
{
constexpr int kColumns = 3; ///< label or button, text box, unit

bool IsEnterKey(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
    {
        return false;
    }
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool IsTabStop(const QWidget& widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.isEnabled() && widget.isVisible();
}
} // namespace

CFormDlg::CFormDlg(CFormContext& context, const char* name, const QString& title, int helpTopic,
                   QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_helpTopic(helpTopic)
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* whole = new QVBoxLayout(this);
    m_body = new QVBoxLayout;
    whole->addLayout(m_body, 1);
    m_rows.push_back(new QGridLayout);
    m_body->addLayout(m_rows.back());

    m_buttons = new QHBoxLayout;
    whole->addLayout(m_buttons);
    m_buttons->addStretch(1);
    m_ok = MakeButton("OK", tr("&OK"), [this] { accept(); });
    m_cancel = MakeButton("Cancel", tr("&Cancel"), [this] { reject(); });
    m_help = MakeButton("Help", tr("&Help"), [this] { m_context.ShowHelp(m_helpTopic); });
    for (QPushButton* button : {m_ok, m_cancel, m_help})
    {
        m_buttons->addWidget(button);
    }
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, m_help,
            &QPushButton::click);
    qApp->installEventFilter(this);
}

CFormDlg::~CFormDlg()
{
    // Hidden while all its parts are still there: the field in hand loses the focus, which no rule shall see.
    m_leaving = true;
    hide();
}

CNumberField& CFormDlg::Number(const QString& label, const CStoredNumber& number, CFixedFormat format)
{
    CNumberField& field =
        Add(std::make_unique<CNumberField>(Messages(), number, format, Rows().parentWidget()));
    if (!label.isEmpty())
    {
        field.Label(label);
    }
    Place(field.LabelWidget(), &field.Edit());
    m_withUnits.push_back(&field);
    return field;
}

CNumberField& CFormDlg::Length(const QString& label, const CStoredNumber& number, CFixedFormat format)
{
    return Number(label, number, format).Units(kLengthUnits);
}

CNumberField& CFormDlg::Mass(const QString& label, const CStoredNumber& number, CFixedFormat format)
{
    return Number(label, number, format).Units(kMassUnits);
}

CTextField& CFormDlg::Text(const QString& label, const char* name, std::string& text, int longest)
{
    CTextField& field = Add(std::make_unique<CTextField>(name, label, text, longest, Rows().parentWidget()));
    Place(&field.LabelWidget(), &field.Edit());
    return field;
}

CFileField& CFormDlg::File(const QString& label, const char* name, std::string& path,
                           const CFileRequest& request)
{
    CFileField& field =
        Add(std::make_unique<CFileField>(name, label, path, request, m_context.Session,
                                         m_context.Platform.FileDialogs, Rows().parentWidget()));
    Place(&field.LabelWidget(), &field.Edit());
    Rows().addWidget(&field.BrowseButton(), Rows().rowCount() - 1, kColumns - 1);
    return field;
}

CCheckField& CFormDlg::Check(const QString& caption, const CStoredNumber& number)
{
    CCheckField& field = Add(std::make_unique<CCheckField>(caption, number, Rows().parentWidget()));
    AddRow(&field.Box());
    return field;
}

COptionField& CFormDlg::Options(const QString& title, const CStoredNumber& number)
{
    COptionField& field = Add(std::make_unique<COptionField>(title, number, Rows().parentWidget()));
    AddRow(&field.Group());
    m_rows.push_back(&field.Rows());
    return field;
}

void CFormDlg::BeginGroup(const QString& title, const char* name)
{
    auto* group = new QGroupBox(title, Rows().parentWidget());
    group->setObjectName(QString::fromLatin1(name));
    AddRow(group);
    m_rows.push_back(new QGridLayout(group));
}

void CFormDlg::EndGroup()
{
    m_rows.pop_back();
}

void CFormDlg::AddRow(QWidget* widget)
{
    Rows().addWidget(widget, Rows().rowCount(), 0, 1, kColumns);
}

void CFormDlg::AddRow(QLayout* layout)
{
    Rows().addLayout(layout, Rows().rowCount(), 0, 1, kColumns);
}

QPushButton* CFormDlg::MakeButton(const char* name, const QString& caption, std::function<void()> pressed)
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, std::move(pressed));
    return button;
}

QPushButton* CFormDlg::AddButton(const char* name, const QString& caption, std::function<void()> pressed)
{
    QPushButton* button = MakeButton(name, caption, std::move(pressed));
    int place = 0;
    while (m_buttons->itemAt(place)->widget() != nullptr)
    {
        ++place; // up to the stretch
    }
    m_buttons->insertWidget(place, button);
    return button;
}

void CFormDlg::WhenFocusLost(CNumberField& field, std::function<void()> rule)
{
    connect(&field.Edit(), &CNumericEdit::FocusLost, this,
            [this, rule = std::move(rule)]
            {
                if (m_leaving)
                {
                    return;
                }
                if (QApplication::focusWidget() == m_cancel)
                {
                    m_pendingFocusRule = rule; // the user may yet stay
                    return;
                }
                rule();
            });
}

void CFormDlg::LoadFields()
{
    for (const auto& field : m_fields)
    {
        field->Load();
    }
}

bool CFormDlg::CheckFields()
{
    CField* refused = nullptr;
    for (const auto& field : m_fields)
    {
        if (refused != nullptr)
        {
            field->SkipCheck();
        }
        else if (!field->Check())
        {
            refused = field.get();
        }
    }
    if (refused != nullptr)
    {
        refused->Show();
    }
    return refused == nullptr;
}

void CFormDlg::StoreFields()
{
    for (const auto& field : m_fields)
    {
        if (field->Store())
        {
            SetModified();
        }
    }
}

bool CFormDlg::IsComplete() const
{
    return std::all_of(m_fields.begin(), m_fields.end(),
                       [](const auto& field) { return field->IsComplete(); });
}

bool CFormDlg::OnOk()
{
    if (!CheckFields())
    {
        return false;
    }
    const bool isComplete = IsComplete(); // by the texts, before storing changes what they depend on
    StoreFields();
    if (m_complete != nullptr)
    {
        *m_complete = isComplete ? 1 : 0;
    }
    return true;
}

void CFormDlg::accept()
{
    m_ok->setFocus(); // the field in hand loses the focus first, also when OK came by its mnemonic
    if (OnOk())
    {
        m_leaving = true;
        QDialog::accept();
    }
}

void CFormDlg::reject()
{
    m_leaving = true;
    if (OnCancel())
    {
        QDialog::reject();
        return;
    }
    m_leaving = false;
}

void CFormDlg::setVisible(bool visible)
{
    const bool opens = visible && !m_opened;
    if (opens)
    {
        m_opened = true;
        Open();
    }
    const bool hasFocus = focusWidget() != nullptr; // some forms begin elsewhere
    QDialog::setVisible(visible);
    if (opens && !hasFocus)
    {
        FocusFirst();
    }
}

bool CFormDlg::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_cancel && event->type() == QEvent::FocusOut && !m_leaving)
    {
        RunPendingFocusRule();
    }
    if (IsEnterHere(*watched, *event))
    {
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
        {
            OnEnter();
        }
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool CFormDlg::IsEnterHere(const QObject& watched, const QEvent& event) const
{
    if (!IsEnterKey(event) || !watched.isWidgetType())
    {
        return false;
    }
    const auto& widget = static_cast<const QWidget&>(watched);
    if (widget.window() != this)
    {
        return false;
    }
    for (const QWidget* outer = &widget; outer != nullptr; outer = outer->parentWidget())
    {
        if (outer->inherits("QAbstractItemView"))
        {
            return false; // a grid has a use of its own for it
        }
    }
    return true;
}

void CFormDlg::OnEnter()
{
    const QWidget* focus = focusWidget();
    if (focus == m_ok)
    {
        accept();
    }
    else if (focus == m_cancel)
    {
        reject();
    }
    else if (focus != m_help)
    {
        focusNextChild(); // as Tab does, which selects the text
    }
}

void CFormDlg::Open()
{
    PlaceUnits();
    const Qt::Orientations grows = m_body->expandingDirections(); // before the columns are stretched
    AlignColumns(*m_rows.front());
    FitSize(grows);
    LoadFields();
    OrderButtons();
    FitScreen();
}

void CFormDlg::FitSize(Qt::Orientations grows)
{
    const QFontMetrics metrics = fontMetrics();
    // The title is read whole, beside what a window has in its bar.
    const int title = metrics.horizontalAdvance(windowTitle()) + 10 * metrics.height();
    m_body->addSpacerItem(new QSpacerItem(title, metrics.height() / 2));
    if ((grows & Qt::Vertical) == 0)
    {
        m_body->addStretch();
    }
    if (grows == 0)
    {
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }
}

void CFormDlg::FitScreen()
{
    const int bar = 2 * fontMetrics().height(); // of the window's title
    const QSize room = screen()->availableSize() - QSize(0, bar);
    const QSize wanted = layout()->totalSizeHint();
    const bool isFixed = layout()->sizeConstraint() == QLayout::SetFixedSize;
    const QSize least = isFixed ? wanted : layout()->totalMinimumSize();
    if (least.width() <= room.width() && least.height() <= room.height())
    {
        return; // or it shrinks by itself
    }
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    auto* contents = new QWidget(scroll); // in this window from the first, so that the tab order stays
    auto* whole = static_cast<QVBoxLayout*>(layout());
    whole->removeItem(m_body);
    m_body->setParent(nullptr);
    contents->setLayout(m_body);
    scroll->setWidget(contents);
    whole->insertWidget(0, scroll, 1);
    whole->setSizeConstraint(QLayout::SetDefaultConstraint);
    const int bars = scroll->verticalScrollBar()->sizeHint().width();
    resize((wanted + QSize(bars, bars)).boundedTo(room));
    connect(qApp, &QApplication::focusChanged, scroll,
            [scroll, contents](QWidget*, QWidget* now)
            {
                if (now != nullptr && contents->isAncestorOf(now))
                {
                    scroll->ensureWidgetVisible(now);
                }
            });
}

void CFormDlg::FocusFirst()
{
    // The order is a ring; what stands behind the last button is its beginning.
    QWidget* first = m_help->nextInFocusChain();
    while (first != m_help && !IsTabStop(*first))
    {
        first = first->nextInFocusChain();
    }
    first->setFocus(Qt::TabFocusReason);
    if (auto* edit = qobject_cast<QLineEdit*>(first))
    {
        edit->selectAll(); // also in a window that isn't the active one yet
    }
}

void CFormDlg::OrderButtons()
{
    QWidget* last = nullptr;
    for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain())
    {
        const bool takesFocus = next->focusPolicy() != Qt::NoFocus;
        if (takesFocus && next != m_ok && next != m_cancel && next != m_help)
        {
            last = next; // nothing can be ordered behind what takes no focus
        }
    }
    for (QPushButton* button : {m_ok, m_cancel, m_help})
    {
        if (last != nullptr)
        {
            setTabOrder(last, button);
        }
        last = button;
    }
}

void CFormDlg::Place(QLabel* label, QWidget* edit)
{
    if (label == nullptr)
    {
        Rows().addWidget(edit, Rows().rowCount() - 1, 1);
        return;
    }
    const int row = Rows().rowCount();
    Rows().addWidget(label, row, 0);
    Rows().addWidget(edit, row, 1);
}

void CFormDlg::PlaceUnits()
{
    for (const CNumberField* field : m_withUnits)
    {
        if (field->UnitWidget() == nullptr)
        {
            continue;
        }
        const auto groups = findChildren<QGridLayout*>();
        for (QGridLayout* rows : groups)
        {
            const int index = rows->indexOf(&field->Edit());
            if (index >= 0)
            {
                int row = 0;
                int column = 0;
                int span = 0;
                rows->getItemPosition(index, &row, &column, &span, &span);
                rows->addWidget(field->UnitWidget(), row, column + 1);
            }
        }
    }
}

void CFormDlg::RunPendingFocusRule()
{
    if (const auto rule = std::exchange(m_pendingFocusRule, nullptr))
    {
        rule();
    }
}

bool HullHasStations(const CProjectData& project, CMessages& messages)
{
    if (project.NST.Integer() > 0)
    {
        return true;
    }
    messages.MessageBox("Number of Stations must be entered \n in Hull Geometry Dialog box", "Error",
                        EIcon::Stop);
    return false;
}
