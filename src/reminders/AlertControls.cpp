#include "reminders/AlertControls.h"

#include "reminders/FlashBand.h"
#include "reminders/UsualMoments.h"
#include "widgets/GridView.h"
#include "widgets/MomentMenu.h"
#include "widgets/NamedControls.h"
#include "widgets/Pickers.h"
#include "widgets/ScrollFrame.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace
{

constexpr QSize SmallestGrid(576, 150);

// No mnemonics: the alert may come up just as the user presses Alt and a letter in the main window.
template <typename Button> Button* workedBy(const QKeySequence& keys, Button* button)
{
    button->setShortcut(keys);
    button->setToolTip(keys.toString(QKeySequence::NativeText));
    button->setAutoDefault(false);
    return button;
}

QPushButton* button(const QString& caption, const QString& name, const QKeySequence& keys, QWidget& form)
{
    return workedBy(keys, named(new QPushButton(caption, &form), name));
}

} // namespace

AlertControls::AlertControls(QWidget& form, const Clock& clock)
    : grdTasks(named(new GridView(&form), QStringLiteral("grdTasks"))),
      band(named(new FlashBand(tr("Due reminders"), &form), QStringLiteral("lblDueReminders"))),
      framNewReminder(named(new QGroupBox(tr("New reminder"), &form), QStringLiteral("framNewReminder"))),
      dtpReminderDate(named(new QDateEdit(framNewReminder), QStringLiteral("dtpReminderDate"))),
      dtpReminderTime(named(new QTimeEdit(framNewReminder), QStringLiteral("dtpReminderTime"))),
      btnUsualMoment(workedBy(Qt::CTRL | Qt::Key_T,
          named(new MomentButton(tr("Set to"), framNewReminder), QStringLiteral("btnUsualMoment")))),
      btnRemindMeLater(
          button(tr("Remind me later"), QStringLiteral("btnRemindMeLater"), Qt::CTRL | Qt::Key_R, form)),
      btnOpenItem(button(tr("Open Item"), QStringLiteral("btnOpenItem"), Qt::CTRL | Qt::Key_O, form)),
      btnDismiss(button(tr("Dismiss"), QStringLiteral("btnDismiss"), Qt::CTRL | Qt::Key_M, form)),
      btnDismissAll(
          button(tr("Dismiss All"), QStringLiteral("btnDismissAll"), Qt::CTRL | Qt::SHIFT | Qt::Key_M, form)),
      btnHelp(button(tr("Help"), QStringLiteral("btnHelp"), Qt::Key_F1, form))
{
    addUsualMoments(btnUsualMoment->moments(), clock);
    band->setBuddy(grdTasks);
    grdTasks->setMinimumSize(SmallestGrid);
    setUpDatePicker(*dtpReminderDate, clock);
    setUpTimePicker(*dtpReminderTime);
    btnHelp->setEnabled(false);
    layOut(form);
    setAccessibleNames();
    setTabOrder();
}

void AlertControls::layOut(QWidget& form)
{
    auto* list = new QVBoxLayout;
    list->setSpacing(0);
    list->addWidget(band);
    list->addWidget(grdTasks, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(btnOpenItem);
    buttons->addWidget(btnDismiss);
    buttons->addWidget(btnDismissAll);
    buttons->addStretch(1);
    buttons->addWidget(btnHelp);

    layOutNewReminder();
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->addLayout(list, 1);
    column->addLayout(buttons);
    column->addWidget(framNewReminder);
    (new QVBoxLayout(&form))->addWidget(new ScrollFrame(content));
}

void AlertControls::layOutNewReminder()
{
    auto* row = new QHBoxLayout(framNewReminder);
    row->addWidget(labelFor(dtpReminderDate, tr("Date:"), framNewReminder));
    row->addWidget(dtpReminderDate);
    row->addSpacing(row->spacing());
    row->addWidget(labelFor(dtpReminderTime, tr("Time:"), framNewReminder));
    row->addWidget(dtpReminderTime);
    row->addSpacing(row->spacing());
    row->addWidget(btnUsualMoment);
    row->addStretch(1);
    row->addWidget(btnRemindMeLater);
}

void AlertControls::setAccessibleNames()
{
    grdTasks->setAccessibleName(tr("Due reminders"));
    dtpReminderDate->setAccessibleName(tr("New reminder date"));
    dtpReminderTime->setAccessibleName(tr("New reminder time"));
    btnUsualMoment->setAccessibleName(tr("Set date and time to"));
    btnUsualMoment->setAccessibleDescription(
        tr("Fills in a usual moment; \"Remind me later\" then puts the reminder off"));
    btnRemindMeLater->setAccessibleDescription(tr("Moves the selected reminder to the new date and time"));
    btnOpenItem->setAccessibleDescription(tr("Opens the task of the selected reminder"));
    btnDismiss->setAccessibleDescription(tr("Switches the selected reminder off"));
    btnDismissAll->setAccessibleDescription(tr("Switches all due reminders off"));
}

void AlertControls::setTabOrder()
{
    QWidget* last = grdTasks;
    for (QWidget* next : std::initializer_list<QWidget*>{btnOpenItem, btnDismiss, btnDismissAll, btnHelp,
             dtpReminderDate, dtpReminderTime, btnUsualMoment, btnRemindMeLater}) {
        QWidget::setTabOrder(last, next);
        last = next;
    }
}
