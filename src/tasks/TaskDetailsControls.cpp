#include "tasks/TaskDetailsControls.h"

#include "widgets/CheckBox.h"
#include "widgets/ComboBox.h"
#include "widgets/Combos.h"
#include "widgets/LongText.h"
#include "widgets/MomentMenu.h"
#include "widgets/NamedControls.h"
#include "widgets/Pickers.h"
#include "widgets/ScrollFrame.h"

#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace
{

/// Adds a caption with `control` as its buddy.
QLabel* addLabel(QGridLayout& grid, int row, int column, QLabel* label, const QString& text, QWidget* control)
{
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setBuddy(control);
    grid.addWidget(label, row, column);
    return label;
}

QHBoxLayout* beside(QWidget* control, QWidget* button)
{
    auto* row = new QHBoxLayout;
    row->addWidget(control, 1);
    row->addWidget(button);
    return row;
}

} // namespace

TaskDetailsControls::TaskDetailsControls(QWidget& form, const Clock& clock)
    : txtTask(named(new QLineEdit(&form), "txtTask")),
      cmbCategories(named(new ComboBox(&form), "cmbCategories")),
      txtDescription(named(new QPlainTextEdit(&form), "txtDescription")),
      dtpDueDate(named(new QDateEdit(&form), "dtpDueDate")),
      dtpDueTime(named(new QTimeEdit(&form), "dtpDueTime")),
      btnSetDue(named(new MomentButton(tr("Set to"), &form), "btnSetDue")),
      cmbStatus(named(new ComboBox(&form), "cmbStatus")),
      cmbPeriorities(named(new ComboBox(&form), "cmbPeriorities")),
      framReminderLater(named(new QGroupBox(&form), "framReminderLater")),
      chkEnableReminder(named(new CheckBox(framReminderLater), "chkEnableReminder")),
      cmbRepeat(named(new ComboBox(framReminderLater), "cmbRepeat")),
      lblReminderDate(named(new QLabel(framReminderLater), "lblReminderDate")),
      dtpReminderDate(named(new QDateEdit(framReminderLater), "dtpReminderDate")),
      lblReminderTime(named(new QLabel(framReminderLater), "lblReminderTime")),
      dtpReminderTime(named(new QTimeEdit(framReminderLater), "dtpReminderTime")),
      btnSetReminder(named(new MomentButton(tr("Set to"), framReminderLater), "btnSetReminder")),
      chkReminderSound(named(new CheckBox(framReminderLater), "chkReminderSound")),
      lblReminderSound(named(new QLabel(framReminderLater), "lblReminderSound")),
      txtReminderSound(named(new QLineEdit(framReminderLater), "txtReminderSound")),
      btnSoundBrowse(named(new QPushButton(framReminderLater), "btnSoundBrowse")),
      chkReminderFile(named(new CheckBox(framReminderLater), "chkReminderFile")),
      lblReminderFile(named(new QLabel(framReminderLater), "lblReminderFile")),
      txtReminderFile(named(new QLineEdit(framReminderLater), "txtReminderFile")),
      btnFileBrowse(named(new QPushButton(framReminderLater), "btnFileBrowse")),
      btnOk(named(new QPushButton(&form), "btnOk")), btnCancel(named(new QPushButton(&form), "btnCancel"))
{
    setUp(clock);
    setAccessibleNames();
    layOut(form);
    const QList<QWidget*> order = inTabOrder();
    for (qsizetype i = 1; i < order.size(); ++i) {
        QWidget::setTabOrder(order[i - 1], order[i]);
    }
}

QList<QWidget*> TaskDetailsControls::inTabOrder() const
{
    return {txtTask, cmbCategories, txtDescription, dtpDueDate, dtpDueTime, btnSetDue, cmbStatus,
        cmbPeriorities, chkEnableReminder, cmbRepeat, dtpReminderDate, dtpReminderTime, btnSetReminder,
        chkReminderSound, txtReminderSound, btnSoundBrowse, chkReminderFile, txtReminderFile, btnFileBrowse,
        btnOk, btnCancel};
}

std::optional<qint16> TaskDetailsControls::selectedCategory() const
{
    if (cmbCategories->currentIndex() < 0) {
        return std::nullopt;
    }
    return static_cast<qint16>(cmbCategories->currentData().toInt());
}

TaskInput TaskDetailsControls::input() const
{
    // Enter saves without moving the focus: a half-typed date or time counts as it would when the picker
    // loses it.
    for (QDateTimeEdit* picker :
        std::initializer_list<QDateTimeEdit*>{dtpDueDate, dtpDueTime, dtpReminderDate, dtpReminderTime}) {
        picker->interpretText();
    }
    TaskInput entered;
    entered.taskName = wholeText(*txtTask);
    entered.categoryId = selectedCategory();
    entered.description = wholeText(*txtDescription);
    entered.due = composeMoment(dtpDueDate->date(), dtpDueTime->time());
    entered.status = selectedNumber(*cmbStatus, TaskStatus::NotStarted);
    entered.periority = selectedNumber(*cmbPeriorities, TaskPeriority::Normal);
    entered.rule = cmbRepeat->currentData().toString().toStdString();
    entered.reminderOn = chkEnableReminder->isChecked();
    entered.reminder = composeMoment(dtpReminderDate->date(), dtpReminderTime->time());
    entered.hasSound = chkReminderSound->isChecked();
    entered.sound = wholeText(*txtReminderSound);
    entered.hasFile = chkReminderFile->isChecked();
    entered.file = wholeText(*txtReminderFile);
    return entered;
}

void TaskDetailsControls::setUp(const Clock& clock)
{
    for (QLineEdit* edit : {txtTask, txtReminderSound, txtReminderFile}) {
        takeLongTexts(*edit);
    }
    txtDescription->setTabChangesFocus(true);
    txtDescription->setMinimumHeight(txtDescription->fontMetrics().lineSpacing() * 5);
    // A long category name must not widen the dialog.
    cmbCategories->keepNarrow(20);
    // Nor must an entry in words; the list shows it whole.
    cmbRepeat->keepNarrow(8);
    cmbStatus->keepEntriesWhole();
    cmbPeriorities->keepEntriesWhole();
    for (QDateEdit* picker : {dtpDueDate, dtpReminderDate}) {
        setUpDatePicker(*picker, clock);
    }
    for (QTimeEdit* picker : {dtpDueTime, dtpReminderTime}) {
        setUpTimePicker(*picker);
    }

    framReminderLater->setTitle(tr("Reminder"));
    chkEnableReminder->setText(tr("&Enable reminder"));
    chkReminderSound->setText(tr("Reminder sou&nd"));
    chkReminderFile->setText(tr("Reminder &file"));
    btnSoundBrowse->setText(tr("&Browse..."));
    btnFileBrowse->setText(tr("Bro&wse..."));
    btnOk->setText(tr("&OK"));
    btnCancel->setText(tr("C&ancel"));
    setUpMenu(*btnSetDue, Qt::CTRL | Qt::Key_T);
    setUpMenu(*btnSetReminder, Qt::CTRL | Qt::SHIFT | Qt::Key_T);
    for (QPushButton* button : {btnSoundBrowse, btnFileBrowse, btnOk, btnCancel}) {
        button->setAutoDefault(false);
    }
}

void TaskDetailsControls::setUpMenu(MomentButton& button, const QKeySequence& keys)
{
    // Its caption has no mnemonic, as in the alert: it is the same button there.
    button.setShortcut(keys);
    button.setToolTip(keys.toString(QKeySequence::NativeText));
    button.setAutoDefault(false);
}

void TaskDetailsControls::setAccessibleNames()
{
    txtTask->setAccessibleName(tr("Task name"));
    cmbCategories->setAccessibleName(tr("Category"));
    txtDescription->setAccessibleName(tr("Description"));
    dtpDueDate->setAccessibleName(tr("Due date"));
    dtpDueTime->setAccessibleName(tr("Due time"));
    btnSetDue->setAccessibleName(tr("Set the due moment to"));
    cmbStatus->setAccessibleName(tr("Status"));
    cmbPeriorities->setAccessibleName(tr("Priority"));
    framReminderLater->setAccessibleName(tr("Reminder"));
    chkEnableReminder->setAccessibleName(tr("Enable reminder"));
    dtpReminderDate->setAccessibleName(tr("Reminder date"));
    dtpReminderTime->setAccessibleName(tr("Reminder time"));
    btnSetReminder->setAccessibleName(tr("Set the reminder to"));
    btnSetReminder->setAccessibleDescription(
        tr("Switches the reminder on; it follows the due moment until it is changed"));
    cmbRepeat->setAccessibleName(tr("Repeat"));
    chkReminderSound->setAccessibleName(tr("Reminder sound"));
    txtReminderSound->setAccessibleName(tr("Reminder sound file"));
    btnSoundBrowse->setAccessibleName(tr("Browse for a reminder sound"));
    chkReminderFile->setAccessibleName(tr("Reminder file"));
    txtReminderFile->setAccessibleName(tr("Program or batch file"));
    btnFileBrowse->setAccessibleName(tr("Browse for a reminder file"));
    btnOk->setAccessibleName(tr("OK"));
    btnCancel->setAccessibleName(tr("Cancel"));
}

void TaskDetailsControls::layOut(QWidget& form)
{
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins({});
    const auto label = [&](const char* name) {
        return named(new QLabel(&form), name);
    };

    addLabel(*grid, 0, 0, label("lblTask"), tr("&Task name:"), txtTask);
    grid->addWidget(txtTask, 0, 1, 1, 3);
    addLabel(*grid, 1, 0, label("lblCategories"), tr("&Category:"), cmbCategories);
    grid->addWidget(cmbCategories, 1, 1, 1, 3);
    addLabel(*grid, 2, 0, label("lblDescription"), tr("&Description:"), txtDescription)
        ->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    grid->addWidget(txtDescription, 2, 1, 1, 3);
    addLabel(*grid, 3, 0, label("lblDueDate"), tr("D&ue date:"), dtpDueDate);
    grid->addWidget(dtpDueDate, 3, 1);
    addLabel(*grid, 3, 2, label("lblDueTime"), tr("Due ti&me:"), dtpDueTime);
    grid->addLayout(beside(dtpDueTime, btnSetDue), 3, 3);
    addLabel(*grid, 4, 0, label("lblStatus"), tr("&Status:"), cmbStatus);
    grid->addWidget(cmbStatus, 4, 1);
    addLabel(*grid, 4, 2, label("lblPeriorities"), tr("&Priority:"), cmbPeriorities);
    grid->addWidget(cmbPeriorities, 4, 3);

    layOutReminder();
    grid->addWidget(framReminderLater, 5, 0, 1, 4);

    // Without a parent until they are added: so they come after the content in the tab order.
    auto* bar = new QWidget;
    auto* buttons = new QHBoxLayout(bar);
    buttons->setContentsMargins({});
    buttons->addStretch();
    buttons->addWidget(btnOk);
    buttons->addWidget(btnCancel);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    auto* all = new QVBoxLayout(&form);
    all->addWidget(new ScrollFrame(content, {btnOk}), 1);
    all->addWidget(bar);
    // Room for a path and for a few lines more than the minimum.
    const QSize least = all->minimumSize();
    form.resize(least.width() * 5 / 4, least.height() + txtDescription->fontMetrics().lineSpacing() * 3);
}

void TaskDetailsControls::layOutReminder()
{
    auto* grid = new QGridLayout(framReminderLater);
    auto* first = new QHBoxLayout;
    first->addWidget(chkEnableReminder);
    first->addStretch();
    first->addWidget(named(labelFor(cmbRepeat, tr("Repeat tas&k:"), framReminderLater), "lblRepeat"));
    grid->addLayout(first, 0, 0, 1, 2);
    // Below its label it would be too narrow for its entries.
    grid->addWidget(cmbRepeat, 0, 2, 1, 2);
    addLabel(*grid, 1, 0, lblReminderDate, tr("&Reminder date:"), dtpReminderDate);
    grid->addWidget(dtpReminderDate, 1, 1);
    addLabel(*grid, 1, 2, lblReminderTime, tr("Reminder t&ime:"), dtpReminderTime);
    grid->addLayout(beside(dtpReminderTime, btnSetReminder), 1, 3);

    grid->addWidget(chkReminderSound, 2, 0);
    grid->addWidget(chkReminderFile, 3, 0);
    // The buttons stand below each other at the right edge; the paths take what is left.
    auto* paths = new QGridLayout;
    addLabel(*paths, 0, 0, lblReminderSound, tr("Wa&ve:"), txtReminderSound);
    paths->addWidget(txtReminderSound, 0, 1);
    paths->addWidget(btnSoundBrowse, 0, 2);
    addLabel(*paths, 1, 0, lblReminderFile, tr("Pro&gram:"), txtReminderFile);
    paths->addWidget(txtReminderFile, 1, 1);
    paths->addWidget(btnFileBrowse, 1, 2);
    paths->setColumnStretch(1, 1);
    grid->addLayout(paths, 2, 1, 2, 3);

    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
}
