#include "tasks/RepeatByHand.h"

#include "tasks/TaskDetailsControls.h"
#include "tasks/frmRepeat.h"
#include "widgets/ComboBox.h"
#include "widgets/FormServices.h"
#include "widgets/WindowPlacement.h"

#include <QDateEdit>
#include <QEvent>
#include <QSignalBlocker>
#include <QTimeEdit>

RepeatByHand::RepeatByHand(QWidget& form, const TaskDetailsControls& controls, const FormServices& services)
    : m_form(form), m_controls(controls), m_services(services)
{
    reset();
    connect(controls.dtpDueDate, &QDateEdit::dateChanged, this, &RepeatByHand::followDue);
    connect(controls.dtpDueTime, &QTimeEdit::timeChanged, this, &RepeatByHand::followDue);
    connect(controls.cmbRepeat, &QComboBox::activated, this, &RepeatByHand::choose);
    form.installEventFilter(this);
}

RepeatByHand::~RepeatByHand() = default;

Moment RepeatByHand::due() const
{
    return composeMoment(m_controls.dtpDueDate->date(), m_controls.dtpDueTime->time());
}

void RepeatByHand::reset()
{
    closeWindow();
    m_choices.reset(due());
    show();
}

void RepeatByHand::load(const Repeat& repeat)
{
    closeWindow();
    m_choices.load(repeat, due());
    show();
}

void RepeatByHand::followDue()
{
    m_choices.setDue(due());
    show();
}

void RepeatByHand::show()
{
    ComboBox& combo = *m_controls.cmbRepeat;
    const std::vector<RepeatChoices::Entry> entries = m_choices.entries();
    // Not emptied, which would close an open list.
    while (combo.count() > static_cast<int>(entries.size()) + 1) {
        combo.removeItem(combo.count() - 1);
    }
    while (combo.count() < static_cast<int>(entries.size()) + 1) {
        combo.addItem({});
    }
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        const RepeatChoices::Entry& entry = entries[static_cast<std::size_t>(i)];
        combo.setItemText(i, entry.caption);
        combo.setItemData(i, QString::fromStdString(entry.rule));
    }
    combo.setItemText(combo.count() - 1, tr("Custom ..."));
    combo.setItemData(combo.count() - 1, {});
    combo.setCurrentIndex(m_choices.chosen());
}

void RepeatByHand::choose(int index)
{
    if (index < m_controls.cmbRepeat->count() - 1) {
        m_choices.choose(index);
    } else {
        // Until another rule is chosen there, the former entry counts.
        m_controls.cmbRepeat->setCurrentIndex(m_choices.chosen());
        openWindow();
    }
}

void RepeatByHand::openWindow()
{
    if (m_window == nullptr) {
        m_window = std::make_unique<frmRepeat>(m_services);
        connect(m_window.get(), &frmRepeat::chosen, this, [this](const RepeatPattern& pattern) {
            m_choices.choose(pattern);
            show();
            activate(&m_form);
        });
        connect(m_window.get(), &frmRepeat::cancelled, this, [this] { activate(&m_form); });
    }
    // Half-typed text in the pickers counts.
    m_controls.dtpDueDate->interpretText();
    m_controls.dtpDueTime->interpretText();
    m_window->fill(m_choices.pattern(), m_choices.due(),
        [this](const RepeatPattern& pattern) { return m_choices.repeatBy(pattern); });
    // So that it is not hidden by an owner that stays on top.
    if (isTopmost(&m_form)) {
        makeTopmost(m_window.get());
    } else {
        leaveTopmost(m_window.get());
    }
    showOwned(m_window.get(), &m_form);
}

void RepeatByHand::closeWindow()
{
    if (m_window != nullptr) {
        m_window->hide();
    }
}

bool RepeatByHand::eventFilter(QObject* watched, QEvent* event)
{
    // The tray icon hides the task dialog even now. Alone on the screen, the window would block all others.
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        closeWindow();
    }
    return QObject::eventFilter(watched, event);
}
