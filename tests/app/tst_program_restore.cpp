#include "data/DataFileCopies.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/ProgramFixture.h"
#include "tests/settings/SkinFolder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

/// The whole program, and a backup of another time: one task, one category more.
struct RestoringProgram : ProgramFixture {
    RestoringProgram()
    {
        kept = aTask(database).named(QStringLiteral("of the backup")).add();
        garden = database.addCategory(QStringLiteral("Garden"));
        DataFileCopies(database.engine()).backUpTo(backup());
        database.sql(QStringLiteral("delete from categories where cat_id=%1").arg(garden));
        database.sql(QStringLiteral("update tasks set task_name='of today'"));
    }

    QString backup() const { return elsewhere.filePath(QStringLiteral("b.abk")); }
    void restore(const QString& file)
    {
        dialogs.expectOpen(file);
        press(main(), "btnRestore");
    }
    QStringList names() { return columnOf(QStringLiteral("select task_name from tasks order by task_id")); }
    QStringList categories()
    {
        return columnOf(QStringLiteral("select cat_name from categories order by cat_id"));
    }
    QStringList columnOf(const QString& query)
    {
        QStringList texts;
        for (const QVariantList& row : database.rows(query)) {
            texts.append(row.first().toString());
        }
        return texts;
    }
    /// The table that a statement is about.
    static QString subjectOf(const QString& statement)
    {
        for (const char* table : {"settings", "tasks", "categories"}) {
            if (statement.contains(QLatin1String(table))) {
                return QLatin1String(table);
            }
        }
        return statement;
    }
    static QStringList entriesOf(const QComboBox& combo)
    {
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i) {
            texts.append(combo.itemText(i));
        }
        return texts;
    }

    QTemporaryDir elsewhere;
    qint32 kept = 0;
    qint16 garden = 0;
};

} // namespace

/// What the rest of the program makes of a restored data file.
class ProgramRestoreTest : public TestCase
{
    Q_OBJECT

private slots:
    void everyListShowsTheRestoredFile()
    {
        RestoringProgram f;
        f.start();
        f.program.loadDialogs();
        f.database.statements().take();
        f.restore(f.backup());
        QCOMPARE(f.names(), QStringList(QStringLiteral("of the backup")));
        QCOMPARE(f.grid(f.main())->model()->index(0, 1).data().toString(), QStringLiteral("of the backup"));
        const QStringList all = f.categories();
        QVERIFY(all.contains(QStringLiteral("Garden")));
        const QStringList filtered = QStringList(QStringLiteral("All")) + all;
        QCOMPARE(f.entriesOf(*f.control<QComboBox>(f.main(), "cmbCategories")), filtered);
        QCOMPARE(f.entriesOf(*f.control<QComboBox>(f.main(), "cmbCategoriesMaintenance")), filtered);
        QCOMPARE(f.entriesOf(*f.control<QComboBox>(f.program.taskDetails(), "cmbCategories")), all);
    }

    void theListsAreReloadedInTheirOrderAndTheSettingsSaved()
    {
        RestoringProgram f;
        f.start();
        f.program.loadDialogs();
        f.database.statements().take();
        f.restore(f.backup());
        QStringList order;
        for (const QString& statement : f.database.statements().take()) {
            order.append(statement.section(u' ', 0, 0) + u' ' + RestoringProgram::subjectOf(statement));
        }
        QCOMPARE(order,
            QStringList({QStringLiteral("select tasks"), QStringLiteral("select categories"),
                QStringLiteral("select categories"), QStringLiteral("select categories"),
                QStringLiteral("select categories"), QStringLiteral("delete settings"),
                QStringLiteral("insert settings"), QStringLiteral("select tasks")}));
    }

    void aReloadThatFailsEndsTheRestoreWithoutAWord()
    {
        RestoringProgram f;
        f.start();
        f.program.loadDialogs();
        f.database.statements().take();
        f.database.statements().failAt(QStringLiteral("from categories"));
        f.restore(f.backup());
        f.database.statements().failAt({});
        const QStringList statements = f.database.statements().take();
        QVERIFY(!statements.isEmpty() && statements.last().contains(QLatin1String("from categories")));
        QVERIFY(f.program.alerts().findChild<QTimer*>(QStringLiteral("tmrTasksChecker"))->isActive());
        QCOMPARE(f.names(), QStringList(QStringLiteral("of the backup")));
        // The next one finds everything as usual.
        f.restore(f.backup());
        QVERIFY(
            f.entriesOf(*f.control<QComboBox>(f.main(), "cmbCategories")).contains(QStringLiteral("Garden")));
    }

    void aListThatCannotBeReadAfterARestoreIsEmptyUntilTheNextTick()
    {
        RestoringProgram f;
        f.start();
        f.program.loadDialogs();
        const QAbstractItemModel& list = *f.grid(f.main())->model();
        f.database.statements().failAt(QStringLiteral("select * from tasks inner join"));
        f.restore(f.backup());
        QCOMPARE(f.names(), QStringList(QStringLiteral("of the backup")));
        QCOMPARE(list.rowCount(), 0);
        f.database.statements().failAt({});
        f.program.alerts().tmrTasksChecker_Timer();
        QCOMPARE(list.rowCount(), 1);
        QCOMPARE(list.index(0, 1).data().toString(), QStringLiteral("of the backup"));
    }

    void theTaskOfAnOpenDialogIsStoredAsANewOne()
    {
        RestoringProgram f;
        f.start();
        f.program.loadDialogs();
        f.grid(f.main())->selectOnly(0);
        f.press(f.main(), "btnTaskEdit");
        frmTaskDetails& dialog = f.program.taskDetails();
        f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("typed before the restore"));
        f.restore(f.backup());
        f.press(dialog, "btnOk");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(f.names(),
            QStringList({QStringLiteral("of the backup"), QStringLiteral("typed before the restore")}));
    }

    void aListedReminderIsNotDismissedInTheRestoredFile()
    {
        RestoringProgram f;
        const Moment past = f.database.clock().now() - 1min;
        aTask(f.database).named(QStringLiteral("due today")).remindingAt(past).add();
        f.start();
        f.program.loadDialogs();
        f.program.alerts().tmrTasksChecker_Timer();
        QVERIFY(f.program.alerts().isVisible());
        f.restore(f.backup());
        QVERIFY(!f.program.alerts().isVisible());
        QCOMPARE(f.grid(f.program.alerts())->model()->rowCount(), 0);
    }

    void aReminderOfTheRestoredFileComesUpWithTheNextTick()
    {
        RestoringProgram f;
        const Moment past = f.database.clock().now() - 1min;
        aTask(f.database).named(QStringLiteral("due then")).remindingAt(past).add();
        const QString backup = f.elsewhere.filePath(QStringLiteral("due.abk"));
        DataFileCopies(f.database.engine()).backUpTo(backup);
        f.database.sql(QStringLiteral("update tasks set task_name='due now' where task_name='due then'"));
        f.start();
        f.program.loadDialogs();
        f.restore(backup);
        f.program.alerts().tmrTasksChecker_Timer();
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(
            f.grid(f.program.alerts())->model()->index(0, 1).data().toString(), QStringLiteral("due then"));
    }

    void afterABackupInWriteAheadModeAnOpenReportHindersNothing()
    {
        RestoringProgram f;
        constexpr int Formats = 18;
        QByteArray bytes = contentOf(f.backup());
        writeText(f.elsewhere.filePath(QStringLiteral("ahead.abk")),
            bytes.replace(Formats, 2, QByteArray(2, '\x02')));
        f.start();
        f.program.loadDialogs();
        f.restore(f.elsewhere.filePath(QStringLiteral("ahead.abk")));
        f.press(f.main(), "btnTaskPrint");
        QVERIFY(f.reportWindow != nullptr);
        aTask(f.database).named(QStringLiteral("added under the report")).add();
        const QString later = f.elsewhere.filePath(QStringLiteral("later.abk"));
        f.dialogs.expectSave(later);
        f.press(f.main(), "btnBackup");
        QVERIFY(contentOf(later) == contentOf(f.database.dataFile()));
        f.restore(f.backup());
        QCOMPARE(f.names(), QStringList(QStringLiteral("of the backup")));
    }

    void aReportOfReplacedDataIsNotSaved()
    {
        RestoringProgram f;
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnTaskPrint");
        f.restore(f.backup());
        QCOMPARE(f.reportHost->saveTasks(f.reportWindow),
            QStringLiteral("Nothing was saved: the report shows tasks from before the restore."));
        f.press(f.main(), "btnTaskPrint");
        const QString file = f.elsewhere.filePath(QStringLiteral("tasks.csv"));
        f.dialogs.expectSave(file);
        f.reportHost->saveTasks(f.reportWindow);
        QVERIFY(f.dialogs.allUsed());
        QVERIFY(f.exchange.choices.back().tasks == QList<qint32>{f.kept});
    }

    void anEndOfTheProgramUnderTheFileDialogSavesNothing()
    {
        RestoringProgram f;
        f.start();
        f.program.loadDialogs();
        auto* grid = f.control<QCheckBox>(f.main(), "chkShowGrid");
        grid->setChecked(!grid->isChecked());
        const QList<QVariantList> before = f.database.rows(QStringLiteral("select * from settings"));
        f.dialogs.expectOpen({}, [&f](const FileDialogRequest&) {
            f.program.end();
            QCoreApplication::exit(0);
        });
        QTimer::singleShot(0, &f.main(), [&f] { f.press(f.main(), "btnRestore"); });
        QCoreApplication::exec();
        QCOMPARE(f.database.rows(QStringLiteral("select * from settings")), before);
    }
};

AMBERTASK_TEST_MAIN(ProgramRestoreTest)
#include "tst_program_restore.moc"
