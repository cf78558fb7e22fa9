#include "data/KeptCopies.h"
#include "exchange/window/FileExchange.h"
#include "exchange/window/frmImport.h"
#include "support/TestMain.h"
#include "support/TestServices.h"
#include "tests/exchange/window/RecordedExchange.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

/// Export and import as the user asks for them.
class FileExchangeTest : public TestCase
{
    Q_OBJECT

private:
    struct Fixture {
        Fixture()
            : exchange(services.services,
                [this] {
                    ++loaded;
                    return std::make_unique<RecordedExchange>(log);
                }),
              said(&exchange, &FileExchange::said), imported(&exchange, &FileExchange::imported)
        {
            page.show();
        }
        QString note() { return said.isEmpty() ? QString() : said.constLast().constFirst().toString(); }
        void choose(const QString& file)
        {
            services.dialogs.expectOpen(file, [this](const FileDialogRequest& request) {
                QVERIFY(!services.checkerTimer.enabled);
                QVERIFY(request.fileMustExist);
            });
        }
        void confirm()
        {
            QTest::mouseClick(
                exchange.window()->findChild<QPushButton*>(QStringLiteral("btnImportTasks")), Qt::LeftButton);
        }

        TestServices services;
        RecordedExchange::Log log;
        int loaded = 0;
        QWidget page;
        FileExchange exchange;
        QSignalSpy said;
        QSignalSpy imported;
    };

private slots:
    void allTasksAreExportedAsTheNameOfTheFileSays()
    {
        Fixture f;
        f.services.dialogs.expectSave(
            QStringLiteral("/home/anna/all.CSV"), [&f](const FileDialogRequest& request) {
                QVERIFY(!f.services.checkerTimer.enabled);
                QVERIFY(request.promptBeforeOverwriting);
                QVERIFY(request.endsAsChosen);
                QVERIFY2(request.fileName.endsWith(QLatin1String(".ics")), qPrintable(request.fileName));
                QVERIFY(!request.fileName.contains(u'/'));
                QCOMPARE(nameFilters(request),
                    QStringList(
                        {QStringLiteral("iCalendar Files (*.ics)"), QStringLiteral("CSV Files (*.csv)")}));
            });
        f.exchange.exportAll(&f.page);
        QCOMPARE(f.log.files, QStringList(QStringLiteral("/home/anna/all.CSV")));
        QCOMPARE(f.log.formats, QList{ExchangeFormat::Csv});
        QVERIFY(!f.log.choices.front().tasks.has_value());
        QVERIFY(f.services.checkerTimer.enabled);
        QCOMPARE(f.note(),
            QStringLiteral("3 tasks were exported to \"%1\"")
                .arg(QDir::toNativeSeparators(QStringLiteral("/home/anna/all.CSV"))));
    }

    void theTasksOfAReportAreExportedInItsOrder()
    {
        Fixture f;
        f.services.dialogs.expectSave(QStringLiteral("/home/anna/some.ics"));
        const QString note = f.exchange.exportTasks(&f.page, {QList<qint32>{7}});
        QCOMPARE(*f.log.choices.front().tasks, QList<qint32>{7});
        QCOMPARE(note,
            QStringLiteral("1 task was exported to \"%1\"")
                .arg(QDir::toNativeSeparators(QStringLiteral("/home/anna/some.ics"))));
        QVERIFY(f.said.isEmpty());
    }

    void aCancelledDialogChangesAndSaysNothing()
    {
        Fixture f;
        f.services.dialogs.expectSave({});
        f.exchange.exportAll(&f.page);
        f.choose({});
        f.exchange.importTasks(&f.page);
        QVERIFY(f.log.files.isEmpty() && f.said.isEmpty());
        QCOMPARE(f.loaded, 0);
        QVERIFY(f.exchange.window() == nullptr);
    }

    void aNameThatSaysNoFormatIsToldAndNothingIsWritten()
    {
        Fixture f;
        f.services.dialogs.expectSave(QStringLiteral("/home/anna/all.txt"));
        f.exchange.exportAll(&f.page);
        QVERIFY2(f.note().contains(QLatin1String("neither with .ics nor with .csv")), qPrintable(f.note()));
        f.choose(QStringLiteral("/home/anna/all.txt"));
        f.exchange.importTasks(&f.page);
        QVERIFY2(f.note().startsWith(QLatin1String("Nothing was imported")), qPrintable(f.note()));
        QVERIFY(f.log.files.isEmpty());
    }

    void nothingIsStoredBeforeTheUserHasSeenWhatWouldHappen()
    {
        Fixture f;
        f.log.prepared = samplePlan();
        bool stored = false;
        f.log.storing = [&stored](const DatabaseEngine&) {
            stored = true;
        };
        f.choose(QStringLiteral("/home/anna/garden.ics"));
        f.exchange.importTasks(&f.page);
        QVERIFY(f.exchange.window() != nullptr && f.exchange.window()->isVisible());
        QVERIFY(!stored && f.imported.isEmpty() && f.said.isEmpty());
        f.confirm();
        QVERIFY(stored);
        QCOMPARE(f.log.taken, std::vector<bool>(4, false));
        QCOMPARE(f.imported.count(), 1);
        QCOMPARE(f.note(), QStringLiteral("2 tasks were added, 1 task was changed"));
        QVERIFY(!f.exchange.window()->isVisible());
    }

    void whatHasChangedSinceTheUserLookedIsShownBeforeItIsStored()
    {
        Fixture f;
        f.log.prepared = samplePlan();
        int stored = 0;
        f.log.storing = [&stored](const DatabaseEngine&) {
            ++stored;
        };
        f.choose(QStringLiteral("/home/anna/garden.ics"));
        f.exchange.importTasks(&f.page);
        // Another process has stored one of the new tasks, or a restore has.
        f.log.prepared.tasks[0].outcome = ImportedTask::Outcome::Changed;
        f.log.prepared.tasks[0].task.id = 7;
        f.services.dialogs.expectExclamationWith(QStringLiteral("have been changed meanwhile"));
        f.confirm();
        QCOMPARE(stored, 0);
        QVERIFY(f.exchange.window()->isVisible() && f.imported.isEmpty());
        f.confirm();
        QCOMPARE(stored, 1);
        QVERIFY(!f.exchange.window()->isVisible());
    }

    void aFileThatCannotBeReadAnyMoreIsTold()
    {
        Fixture f;
        f.log.prepared = samplePlan();
        f.choose(QStringLiteral("/home/anna/garden.ics"));
        f.exchange.importTasks(&f.page);
        f.log.failure = QStringLiteral("it is gone");
        f.services.dialogs.expectExclamationWith(QStringLiteral("Nothing was imported.\nit is gone"));
        f.confirm();
        QVERIFY(f.exchange.window()->isVisible() && f.imported.isEmpty());
    }

    void anImportIsOneStepOfUndo()
    {
        Fixture f;
        aTask(f.services.database).named(QStringLiteral("Rake")).add();
        f.log.prepared = samplePlan();
        f.log.storing = [](const DatabaseEngine& engine) {
            TaskChanges::setStatus(engine, {1}, 2);
        };
        f.choose(QStringLiteral("/home/anna/garden.ics"));
        f.exchange.importTasks(&f.page);
        f.confirm();
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("3 tasks imported"));
        f.services.undo.undo();
        QVERIFY(!f.services.undo.canUndo());
        QCOMPARE(f.services.database.sql(QStringLiteral("select task_status from tasks")).toInt(), 0);
    }

    void aCopyOfTheDataIsKeptBeforeAnImport()
    {
        Fixture f;
        f.log.prepared = samplePlan();
        QList<KeptCopy> copies;
        f.log.storing = [&copies](const DatabaseEngine& engine) {
            copies = KeptCopies(engine).list();
        };
        f.choose(QStringLiteral("/home/anna/garden.ics"));
        f.exchange.importTasks(&f.page);
        QVERIFY(KeptCopies(f.services.services.engine).list().isEmpty());
        f.confirm();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(copies.constFirst().occasion, CopyOccasion::Import);
    }

    void withoutRoomForACopyTheTasksComeInAndTheLineSaysSo()
    {
        Fixture f;
        f.log.prepared = samplePlan();
        // A file where the folder of copies would be.
        QFile inTheWay(f.services.database.folder() + QStringLiteral("/copies"));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        f.choose(QStringLiteral("/home/anna/garden.ics"));
        f.exchange.importTasks(&f.page);
        f.confirm();
        QCOMPARE(f.imported.count(), 1);
        QVERIFY2(f.note().startsWith(QLatin1String("2 tasks were added")), qPrintable(f.note()));
        QVERIFY2(f.note().contains(QLatin1String("copy")), qPrintable(f.note()));
    }

    void aFailedImportIsToldAndTheWindowStays()
    {
        Fixture f;
        f.log.prepared = samplePlan();
        f.log.storing = [](const DatabaseEngine&) {
            throw RuntimeError(QStringLiteral("The disk is full."));
        };
        f.choose(QStringLiteral("/home/anna/garden.ics"));
        f.exchange.importTasks(&f.page);
        f.services.dialogs.expectExclamationWith(QStringLiteral("The disk is full."));
        f.confirm();
        QVERIFY(f.exchange.window()->isVisible());
        QVERIFY(f.imported.isEmpty());
        QVERIFY(!f.services.undo.canUndo());
    }

    void theModuleIsLoadedOnce()
    {
        Fixture f;
        for (const char* file : {"/home/anna/a.ics", "/home/anna/b.csv"}) {
            f.services.dialogs.expectSave(QLatin1String(file));
            f.exchange.exportAll(&f.page);
        }
        QCOMPARE(f.loaded, 1);
    }
};

AMBERTASK_TEST_MAIN(FileExchangeTest)
#include "tst_file_exchange.moc"
