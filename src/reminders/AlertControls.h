#pragma once

#include <QCoreApplication>

class Clock;
class FlashBand;
class GridView;
class QDateEdit;
class QGroupBox;
class QPushButton;
class QTimeEdit;
class QWidget;
class MomentButton;

/// The controls of the alert window and their places. They are children of `form`, which owns them.
class AlertControls
{
    Q_DECLARE_TR_FUNCTIONS(frmAlerts)

public:
    /// `clock` outlives the controls.
    AlertControls(QWidget& form, const Clock& clock);

    GridView* grdTasks;
    FlashBand* band; ///< inverts while the window is active
    QGroupBox* framNewReminder;
    QDateEdit* dtpReminderDate;
    QTimeEdit* dtpReminderTime;
    MomentButton* btnUsualMoment; ///< fills the two pickers
    QPushButton* btnRemindMeLater;
    QPushButton* btnOpenItem;
    QPushButton* btnDismiss;
    QPushButton* btnDismissAll;
    QPushButton* btnHelp;

private:
    void layOut(QWidget& form);
    void layOutNewReminder();
    void setAccessibleNames();
    void setTabOrder();
};
