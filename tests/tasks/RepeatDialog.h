#pragma once

#include "tasks/TaskDialog.h"
#include "tasks/frmRepeat.h"
#include "widgets/ComboBox.h"

#include <QApplication>

/// The usual entries of the list of repeats, in their order, which "Custom ..." follows.
struct RepeatEntry {
    enum { Never, Day, Weekday, Week, TwoWeeks, SameDay, LastDay, NthWeekday, Year, Count };
};

/// The visible window for other repeats; null for none.
inline frmRepeat* openRepeatWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<frmRepeat*>(window); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

/// Not told by qWaitForWindowActive(), for which a window is active with its owner.
inline bool comesActive(const QWidget& window)
{
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

/// The task dialog for tasks that repeat.
class RepeatDialog : public TaskDialog
{
public:
    void choose(int entry) const { control<ComboBox>("cmbRepeat")->choose(entry); }
    frmRepeat& openCustom() const
    {
        choose(control<ComboBox>("cmbRepeat")->count() - 1);
        frmRepeat* window = openRepeatWindow();
        if (window == nullptr || !comesActive(*window)) {
            qFatal("no window for other repeats");
        }
        return *window;
    }
    /// Rule, first moment, lead and done of the only task; empty for never.
    QVariantList repeat() const
    {
        const auto rows = services.database.rows(QStringLiteral(
            "select rule,first_moment,lead,done from repeats where of_task in (select task_id from tasks)"));
        return rows.isEmpty() ? QVariantList() : rows.first();
    }
    /// A daily task that is due an hour from the start of the test, for the fourth time, and reminds 15
    /// minutes before.
    qint16 addDaily()
    {
        using namespace std::chrono_literals;
        const qint32 id = aTask(services.database)
                              .named(QStringLiteral("task"))
                              .dueAt(fromStart(1h))
                              .remindingAt(fromStart(45min))
                              .add();
        services.database.sql(QStringLiteral("insert into repeats(of_task,rule,first_moment,lead,done) "
                                             "values(%1,'FREQ=DAILY;INTERVAL=1','2026-01-12 11:00:00',15,3)")
                                  .arg(id));
        repeating.setUsed(true);
        return static_cast<qint16>(id);
    }
};
