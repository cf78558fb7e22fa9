#pragma once

#include "tasks/TaskInput.h"

#include <QCoreApplication>
#include <QList>
#include <optional>

class Clock;
class ComboBox;
class MomentButton;
class QCheckBox;
class QDateEdit;
class QGridLayout;
class QGroupBox;
class QKeySequence;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTimeEdit;
class QWidget;

/// The controls of the task dialog and their layout. They are children of `form`, which owns them.
class TaskDetailsControls
{
    Q_DECLARE_TR_FUNCTIONS(frmTaskDetails)

public:
    /// `clock` outlives the controls.
    TaskDetailsControls(QWidget& form, const Clock& clock);

    QLineEdit* txtTask;
    ComboBox* cmbCategories;
    QPlainTextEdit* txtDescription;
    QDateEdit* dtpDueDate;
    QTimeEdit* dtpDueTime;
    MomentButton* btnSetDue; ///< fills the two pickers of the due moment
    ComboBox* cmbStatus;
    ComboBox* cmbPeriorities;
    QGroupBox* framReminderLater;
    QCheckBox* chkEnableReminder;
    ComboBox* cmbRepeat; ///< each entry has its rule as its data
    QLabel* lblReminderDate;
    QDateEdit* dtpReminderDate;
    QLabel* lblReminderTime;
    QTimeEdit* dtpReminderTime;
    MomentButton* btnSetReminder; ///< fills the two pickers of the reminder
    QCheckBox* chkReminderSound;
    QLabel* lblReminderSound;
    QLineEdit* txtReminderSound;
    QPushButton* btnSoundBrowse;
    QCheckBox* chkReminderFile;
    QLabel* lblReminderFile;
    QLineEdit* txtReminderFile;
    QPushButton* btnFileBrowse;
    QPushButton* btnOk;
    QPushButton* btnCancel;

    /// All controls that take the focus, in the order of the Tab key.
    QList<QWidget*> inTabOrder() const;
    std::optional<qint16> selectedCategory() const;
    /// What is entered. Interprets half-typed text in the pickers first.
    TaskInput input() const;

private:
    void setUp(const Clock& clock);
    static void setUpMenu(MomentButton& button, const QKeySequence& keys);
    void setAccessibleNames();
    void layOut(QWidget& form);
    void layOutReminder();
};
