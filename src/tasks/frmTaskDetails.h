#pragma once

#include "tasks/TaskDetailsControls.h"
#include "tasks/TaskInput.h"
#include "ui/FormServices.h"

#include <QWidget>

class TaskDetailsHost;

/// The dialog in which a task is created or edited. Modeless, loaded once and reused: call `EmptyForm` or
/// `SetTag`, then show it above its owner. It leaves by hiding.
class frmTaskDetails : public QWidget
{
    Q_OBJECT

public:
    /// Fills the lists. `services` and `host` outlive the form. Throws DatabaseError.
    frmTaskDetails(const FormServices& services, const TaskDetailsHost& host);

    /// To be called before the form is filled anew: asks about input that the user has not saved, and saves
    /// it as OK does when that is the answer. False when the input stays. Throws DatabaseError.
    bool letGo();
    /// Gets ready for a new task: every control at its default, no category selected, the tag empty.
    void EmptyForm();
    /// Loads the stored task of that id for editing. Throws RuntimeError when there is no such task and
    /// DatabaseError, and then the form is as it was.
    void SetTag(qint16 Id);
    /// What is entered stays; the next OK stores it as a new task.
    void forgetTask() { m_tag.clear(); }
    /// The decimal id of the task that is edited; empty for a new task.
    QString tag() const { return m_tag; }
    /// The name that is entered, as it is stored.
    QString taskName() const;

    /// Selects the category of that id; none when it is not in the list.
    void selectCategory(qint16 id);
    /// Fills the category list anew; the selected category stays selected while it exists. Throws
    /// DatabaseError, and then the list is as it was.
    void reloadCategories();

signals:
    /// The task has been written: what is due may have changed. The dialog still shows.
    void taskStored();
    /// The task of that id has been written and the dialog is hidden.
    void taskSaved(qint32 id);
    /// The user gave up and the dialog is hidden. Not sent for the close box.
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void loadCombos();
    void connectControls();
    void fillFrom(const ClsTask& task);
    /// What stands in the form now is none of the user's input.
    void noteFilled() { m_filled = m_controls.input(); }

    void chkEnableReminder_Click();
    void btnSoundBrowse_Click();
    void btnFileBrowse_Click();
    void btnOk_Click();
    void btnCancel_Click();
    /// True when the key is the form's own and goes no further.
    bool Form_KeyPress(const QKeyEvent& event);
    void Form_Escape();

    /// False when something is missing, and has been told.
    bool save();
    /// Hides, and forgets what was not saved.
    void leave();
    void enableReminderControls();
    /// None for a new task.
    std::optional<EditedTask> edited() const;
    /// Answers the id of the stored task.
    qint32 store(TaskInput entered) const;
    QWidget* controlOf(TaskField field) const;

    const FormServices& m_services;
    const TaskDetailsHost& m_host;
    TaskDetailsControls m_controls;
    QString m_tag;
    bool m_loadedReminderOn = false;
    Moment m_loadedReminder{};
    /// None while the form holds nothing that could be lost.
    std::optional<TaskInput> m_filled;
};
