#include "TasksPageFixture.h"
#include "support/TestMain.h"

#include <QSignalSpy>

namespace
{

/// A list of the tasks "a", "b" and "c".
struct ThreeTasks : TasksPageFixture {
    ThreeTasks()
    {
        for (const char* name : {"a", "b", "c"}) {
            aTask(services.database).named(QLatin1String(name)).in(home).add();
        }
        load();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        page.focusList();
    }
    void strike(int key, Qt::KeyboardModifiers modifiers, bool isRepeat)
    {
        QTest::simulateEvent(page.grid(), true, key, modifiers, QString(), isRepeat);
    }
    void hold(int key, Qt::KeyboardModifiers modifiers = {})
    {
        // An even number: what changes to and fro would be as before.
        for (const bool isRepeat : {false, true, true, true}) {
            strike(key, modifiers, isRepeat);
        }
    }
};

} // namespace

/// Keys that are held on the page of the tasks.
class HeldKeysTest : public TestCase
{
    Q_OBJECT

private slots:
    void aHeldKeyChangesTheTasksOnce()
    {
        ThreeTasks f;
        for (const int row : {0, 1, 2}) {
            f.page.grid()->selectRows({row});
            f.strike(Qt::Key_D, Qt::ControlModifier, false);
        }
        f.page.grid()->selectRows({0});
        // Set back, and not completed again.
        f.hold(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.services.database.storedOfAll("task_status"), QStringLiteral("0 2 2"));
        f.hold(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.services.database.storedOfAll("task_status"), QStringLiteral("2 2 2"));
        f.services.undo.undo();
        f.services.undo.undo();
        QCOMPARE(f.services.database.storedOfAll("task_status"), QStringLiteral("2 0 0"));
        f.hold(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(f.services.database.storedOfAll("task_status"), QStringLiteral("2 2 0"));
    }

    void aHeldMnemonicTakesBackOneStep()
    {
        ThreeTasks f;
        for (const int row : {0, 1, 2}) {
            f.page.grid()->selectRows({row});
            f.strike(Qt::Key_D, Qt::ControlModifier, false);
        }
        auto* undo = f.control<QPushButton>("btnUndo");
        const QSignalSpy clicks(undo, &QPushButton::clicked);
        for (const bool isRepeat : {false, true, true}) {
            // The animation of a press swallows the next ones.
            QTRY_VERIFY(!undo->isDown());
            f.strike(Qt::Key_N, Qt::AltModifier, isRepeat);
        }
        QTRY_VERIFY(!undo->isDown());
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(f.services.database.storedOfAll("task_status"), QStringLiteral("2 2 0"));
    }

    void aHeldDeleteAsksOnce()
    {
        ThreeTasks f;
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.page.grid()->selectRows({0});
        f.hold(Qt::Key_Delete);
        QVERIFY(f.services.dialogs.allUsed());
        QCOMPARE(f.names(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
    }
};

AMBERTASK_TEST_MAIN(HeldKeysTest)
#include "tst_held_keys.moc"
