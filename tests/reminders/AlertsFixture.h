#pragma once

#include "reminders/AlertsHost.h"
#include "reminders/frmAlerts.h"
#include "support/TestServices.h"
#include "system/WaveBackend.h"
#include "widgets/GridView.h"

#include <QAbstractButton>
#include <QStringList>
#include <QTest>
#include <QTimer>

/// Remembers what was played and stopped.
class RecordedWave final : public WaveBackend
{
public:
    explicit RecordedWave(QStringList& log) : m_log(log) { }
    void play(const QString& file) override { m_log.append(QStringLiteral("play ") + file); }
    void stopAll() override { m_log.append(QStringLiteral("stop")); }

private:
    QStringList& m_log;
};

class RecordedAlertsHost final : public AlertsHost
{
public:
    void openTask(qint16 id) override { opened.append(id); }
    QList<qint16> opened;
};

/// An alert window over a database of its own, not loaded: a test calls the tick.
struct AlertsFixture {
    explicit AlertsFixture(NotificationsFactory notifications = {})
        : window(
            world.services, host,
            [this] {
                auto made = std::make_unique<RecordedWave>(sounds);
                wave = made.get();
                return made;
            },
            std::move(notifications))
    {
    }

    TestDatabase& database() { return world.database; }
    SteppedClock& clock() { return world.database.clock(); }
    /// The moment that the clock shows.
    Moment now() const { return world.services.clock.now(); }
    TaskBuilder aDueTask(const QString& name)
    {
        return aTask(database()).named(name).remindingAt(now() - std::chrono::minutes(1));
    }

    void tick() { window.tmrTasksChecker_Timer(); }
    /// Lets the half second pass in which the buttons of a window that has just come up act on no key.
    void passKeyRest() const
    {
        auto* rest = control<QTimer>(QStringLiteral("tmrKeyRest"));
        QCoreApplication::processEvents();
        rest->setInterval(0);
        QCoreApplication::processEvents();
        QVERIFY(!rest->isActive());
        rest->setInterval(500);
    }
    QString caption() const { return window.windowTitle(); }
    template <typename Control> Control* control(const QString& name) const
    {
        return window.findChild<Control*>(name);
    }
    GridView* grid() const { return control<GridView>(QStringLiteral("grdTasks")); }
    void click(const QString& button) { QTest::mouseClick(control<QAbstractButton>(button), Qt::LeftButton); }

    int rows() const { return grid()->model()->rowCount(); }
    QString cell(int row, int column) const { return grid()->model()->index(row, column).data().toString(); }
    /// The name column, from the top.
    QStringList names() const
    {
        QStringList all;
        for (int row = 0; row < rows(); ++row) {
            all.append(cell(row, 1));
        }
        return all;
    }
    /// A column of the stored task, as a text.
    QString stored(qint32 id, const QString& column)
    {
        return database()
            .sql(QStringLiteral("select %1 from tasks where task_id=%2").arg(column).arg(id))
            .toString();
    }
    bool isPlayed(qint32 id) { return stored(id, QStringLiteral("played")) == QLatin1String("1"); }
    QStringList takeSounds() { return std::exchange(sounds, {}); }

    QStringList sounds; ///< "play <file>" and "stop", in order
    RecordedWave* wave = nullptr; ///< none before the first sound
    TestServices world;
    RecordedAlertsHost host;
    frmAlerts window;
};

inline const QString DueQuery = QStringLiteral(
    "select * from tasks,categories  where tasks.cat_id=categories.cat_id and reminder_date_time <= now() "
    "and dismissed =0 and reminder_on=true");
inline const QString MarkPlayed = QStringLiteral(
    "update  tasks set played=1 where reminder_date_time <= now() and dismissed =0 and reminder_on=true");
