#include "tasks/TaskDialog.h"

#include "widgets/ControlValue.h"
#include "widgets/Pickers.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimeEdit>

namespace
{

DatabaseEngine repeatingEngine(const TestDatabase& database, Repeating& repeating)
{
    DatabaseEngine engine = database.engine();
    engine.repeating = &repeating;
    return engine;
}

} // namespace

TaskDialog::TaskDialog(int filterIndex)
    : engine(repeatingEngine(services.database, repeating)), formServices{engine, services.database.clock(),
                                                                 services.dialogs, services.dialogs,
                                                                 services.dialogs, services.shell,
                                                                 services.checkerTimer, services.images,
                                                                 services.services.alwaysOnTop,
                                                                 services.files, services.undo}
{
    host.filterIndex = filterIndex;
    form = std::make_unique<frmTaskDetails>(formServices, host);
    QObject::connect(form.get(), &frmTaskDetails::taskStored, form.get(), [this] { note("taskStored"); });
    QObject::connect(form.get(), &frmTaskDetails::taskSaved, form.get(), [this] { note("taskSaved"); });
    QObject::connect(form.get(), &frmTaskDetails::cancelled, form.get(), [this] { note("cancelled"); });
    services.database.statements().take();
}

void TaskDialog::note(const QString& fact)
{
    facts.append(fact + (form->isVisible() ? QLatin1String(" shown") : QLatin1String(" hidden")));
}

void TaskDialog::show() const
{
    form->show();
    form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form.get()));
}

void TaskDialog::showValid() const
{
    form->EmptyForm();
    control<QLineEdit>("txtTask")->setText(QStringLiteral("task"));
    control<QComboBox>("cmbCategories")->setCurrentIndex(0);
    setMoment("dtpDueDate", "dtpDueTime", fromStart(std::chrono::hours(1)));
    setMoment("dtpReminderDate", "dtpReminderTime", fromStart(std::chrono::hours(1)));
    show();
}

void TaskDialog::click(const char* name) const
{
    auto* button = control<QAbstractButton>(name);
    QVERIFY2(button->isEnabled(), name);
    // A check box reacts to clicks on its mark and its text only.
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
}

void TaskDialog::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(form->focusWidget(), key, modifiers);
}

QString TaskDialog::text(const char* name) const
{
    return valueOf(widget(name));
}

void TaskDialog::setText(const char* name, const QString& text) const
{
    if (auto* description = qobject_cast<QPlainTextEdit*>(widget(name))) {
        description->setPlainText(text);
    } else {
        control<QLineEdit>(name)->setText(text);
    }
}

void TaskDialog::setMoment(const char* date, const char* time, Moment moment) const
{
    setPickers(*control<QDateEdit>(date), *control<QTimeEdit>(time), moment);
}

QString TaskDialog::moment(const char* date, const char* time) const
{
    return QString::fromStdString(
        storedText(composeMoment(control<QDateEdit>(date)->date(), control<QTimeEdit>(time)->time())));
}

QString TaskDialog::focused() const
{
    return form->focusWidget() == nullptr ? QString() : form->focusWidget()->objectName();
}

QVariant TaskDialog::stored(const QString& column) const
{
    return services.database.sql(QStringLiteral("select %1 from tasks").arg(column));
}

Moment fromStart(std::chrono::seconds delta)
{
    return toMoment(QDate(2026, 1, 15), QTime(10, 0)) + delta;
}
