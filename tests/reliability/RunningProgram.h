#pragma once

#include "app/RecordedMachine.h"

#include <QDate>
#include <QHash>
#include <QMap>
#include <QString>
#include <chrono>
#include <memory>

class GridView;

/// What a user enters into the task dialog.
struct TaskEntry {
    QString name;
    QString description;
    qint16 category = 0;
    qint32 status = 0;
    qint32 periority = 1;
    Moment due{};
    bool reminderOn = false;
    Moment reminder{};
    QString sound; ///< unchecked when empty
    QString file; ///< unchecked when empty
    int repeat = -1; ///< of the list of repeats; negative to leave it as it is
};

/// The whole program on a machine that only remembers, worked by a user's hands: every action goes through
/// the windows. The program can be ended, killed and started again on the
/// same data file.
class RunningProgram
{
public:
    /// Not started yet.
    RunningProgram() = default;
    /// On a program folder that is there already and stays.
    explicit RunningProgram(const QString& programFolder) : m_machine(programFolder) { }
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    void start();
    /// As "Exit" ends it.
    void end();
    /// Throws the program away without telling it anything.
    void kill();
    bool isRunning() const { return m_program != nullptr; }
    Program& program() { return *m_program; }
    RecordedMachine& machine() { return m_machine; }
    TestDatabase& database() { return m_machine.database; }

    /// What the checker's timer does every ten seconds.
    void tick();
    bool isAlertVisible();
    QString alertCaption();
    /// The ids of the tasks that the alert lists, from the top.
    QList<qint32> listed();
    /// What the alert lists of each, by their ids: the name, and behind it how often it has come.
    QHash<qint32, QString> listedTexts();
    /// Selects a listed task; false when it is not listed.
    bool selectListed(qint32 id);

    void addTask(const TaskEntry& entry);
    /// From the list of the main window, which is to show the task.
    void editTask(qint32 id, const TaskEntry& entry);
    /// From the alert window, which is to list the task.
    void editListedTask(qint32 id, const TaskEntry& entry);
    void deleteTask(qint32 id);
    /// A task that repeats, this time or all times.
    void deleteRepeating(qint32 id, MessageBoxes::Times times);
    /// Completes a task from the list of the main window, which is to show the task.
    void completeTask(qint32 id);
    /// From the menu of the alert window.
    void completeListed(qint32 id);
    void dismiss(qint32 id);
    void dismissAll();
    void remindLater(qint32 id, Moment moment);
    void addCategory(const QString& name, const QString& description, int icon);
    void editCategory(qint16 id, const QString& description, int icon);
    void deleteCategory(qint16 id);
    /// Answers yes when `expected` tasks are to be deleted, more than none.
    void bulkDelete(qint16 category, qint32 status, qint32 taskType, QDate from, QDate to, int expected);
    /// Checks the boxes of that name, unchecks those that are not, and saves.
    void saveSettings(const QMap<QByteArray, bool>& boxes);
    /// The list of tasks shows all of them, whatever day they are due on.
    void showAllDates();
    void backUp(const QString& file);
    void restore(const QString& file);

    template <typename Control> static Control* control(QWidget& window, const char* name)
    {
        return window.findChild<Control*>(QLatin1String(name));
    }
    static void press(QWidget& window, const char* button);

private:
    void selectInMainList(qint32 id);
    void selectCategory(qint16 id);
    void fillAndConfirm(const QString& description, int icon);
    void fillAndConfirm(const TaskEntry& entry);

    RecordedMachine m_machine;
    std::unique_ptr<Program> m_program;
};
