#pragma once

#include "data/RepeatRules.h"
#include "support/TestServices.h"
#include "tasks/TaskDetailsHost.h"
#include "tasks/frmTaskDetails.h"

#include <QStringList>
#include <QTest>

class TestHost final : public TaskDetailsHost
{
public:
    int selectedCategoryIndex() const override { return filterIndex; }
    int filterIndex = 0;
};

/// The task dialog as the program runs it, over a data file of its own and with scripted boxes.
class TaskDialog
{
public:
    /// `filterIndex` is the index selected in the main window's category filter.
    explicit TaskDialog(int filterIndex = 0);

    template <typename Control> Control* control(const char* name) const
    {
        auto* found = form->findChild<Control*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("the dialog has no control %s of that kind", name);
        }
        return found;
    }
    QWidget* widget(const char* name) const { return control<QWidget>(name); }

    /// Shows the dialog as the active window.
    void show() const;
    /// Shows it for a new task with a name and the first category, due and reminding in an hour, all of it
    /// valid.
    void showValid() const;
    void click(const char* name) const;
    /// A key press for the control that has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    QString text(const char* name) const;
    void setText(const char* name, const QString& text) const;
    void setMoment(const char* date, const char* time, Moment moment) const;
    /// What the pair of pickers shows, to the minute, as the data file would keep it.
    QString moment(const char* date, const char* time) const;
    QString focused() const;
    /// The only stored task, as `column` keeps it.
    QVariant stored(const QString& column) const;

    TestServices services;
    Repeating repeating;
    DatabaseEngine engine; ///< that of the database, with `repeating`
    FormServices formServices; ///< those of `services`, with `engine`
    TestHost host;
    std::unique_ptr<frmTaskDetails> form;
    /// The dialog's signals, each with the dialog's state at that moment: "taskSaved hidden".
    QStringList facts;

private:
    void note(const QString& fact);
};

/// `delta` before or after 15 January 2026, 10:00:00, where the clock of a test stands.
Moment fromStart(std::chrono::seconds delta);
