#include "ProgramFixture.h"
#include "support/TestMain.h"
#include "widgets/WindowPlacement.h"

#include <QCheckBox>
#include <QRadioButton>

class SettingsInEffectTest : public TestCase
{
    Q_OBJECT

private slots:
    void alwaysOnTopAndMinimizedStartHiddenAndComeUpTopmostWithShow()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        QCoreApplication::processEvents();
        QVERIFY(!f.main().isVisible());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Show"));
        f.menu("mnuShow")->trigger();
        QVERIFY(f.main().isVisible());
        QVERIFY(isTopmost(&f.main()));
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Hide"));
    }

    void anUncheckedColumnLeavesTheListAtTheNextFilterChangeWithoutBeingSaved_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("setting");
        QTest::newRow("status") << QStringLiteral("chkShowStatus") << QStringLiteral("0status")
                                << QStringLiteral("show_task_status");
        QTest::newRow("due date") << QStringLiteral("chkShowDueDate") << QStringLiteral("0due date")
                                  << QStringLiteral("show_task_due_date");
        QTest::newRow("priority") << QStringLiteral("chkShowPeriority") << QStringLiteral("0periority")
                                  << QStringLiteral("show_task_periority");
        QTest::newRow("reminder") << QStringLiteral("chkShowReminder") << QStringLiteral("0reminder")
                                  << QStringLiteral("show_task_reminder");
    }

    void anUncheckedColumnLeavesTheListAtTheNextFilterChangeWithoutBeingSaved()
    {
        QFETCH(QString, box);
        QFETCH(QString, key);
        QFETCH(QString, setting);
        ProgramFixture f;
        f.start();
        QStringList expected = keys(f);
        QCOMPARE(expected.size(), 6);
        auto* column = f.main().findChild<QCheckBox*>(box);
        QVERIFY(column->isChecked());
        column->click();
        QCOMPARE(keys(f), expected);
        f.control<QRadioButton>(f.main(), "opnActiveTasks")->click();
        QVERIFY(expected.removeOne(key));
        QCOMPARE(keys(f), expected);
        QCOMPARE(f.database.sql(QStringLiteral("select %1 from settings").arg(setting)).toInt(), 1);
    }

private:
    static QStringList keys(ProgramFixture& f)
    {
        const QAbstractItemModel* model = f.grid(f.main())->model();
        QStringList keys;
        for (int i = 0; i < model->columnCount(); ++i) {
            keys.append(model->headerData(i, Qt::Horizontal, Qt::UserRole).toString());
        }
        return keys;
    }
};

AMBERTASK_TEST_MAIN(SettingsInEffectTest)
#include "tst_program_settings_in_effect.moc"
