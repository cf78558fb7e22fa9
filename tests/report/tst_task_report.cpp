#include "app/drTasks.h"
#include "data/TaskCodes.h"
#include "report/PreviewWindow.h"
#include "support/CaughtError.h"
#include "support/PdfFile.h"
#include "support/RecordedReportWindow.h"
#include "support/TestMain.h"
#include "support/TestServices.h"
#include "system/Language.h"
#include "tests/report/ReportSamples.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QLibrary>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

using namespace std::chrono_literals;

/// The report over a data file, in its real window.
class TaskReportTest : public TestCase
{
    Q_OBJECT

private:
    struct Fixture {
        Fixture()
            : report(
                services.services,
                [this](ReportHost& host) {
                    auto made = std::make_unique<PreviewWindow>(host, [] { return false; });
                    window = made.get();
                    return made;
                },
                [this](QWidget* /*owner*/, const QList<qint32>& ids) -> QString {
                    saved = ids;
                    if (!failure.isEmpty()) {
                        throw RuntimeError(failure);
                    }
                    return QStringLiteral("saved");
                })
        {
        }
        void print(const TaskFilter& filter = {}) { report.printTasks(filter, &owner); }
        /// The text of the report that is in view.
        QString text()
        {
            const QTemporaryDir folder;
            const QString file = folder.filePath(QStringLiteral("report.pdf"));
            window->exportTo(file);
            return pagesOfPdf(file).join(QString());
        }
        int openConnections()
        {
            return services.database.statements().opened() - services.database.statements().closed();
        }

        TestServices services;
        QWidget owner;
        PreviewWindow* window = nullptr;
        QList<qint32> saved;
        QString failure;
        drTasks report;
    };

private slots:
    void ofASearchTheReportShowsTheTasksThatItFound()
    {
        Fixture f;
        aTask(f.services.database).named(QStringLiteral("dentist")).add();
        const qint32 found = aTask(f.services.database).named(QStringLiteral("garage")).add();
        aTask(f.services.database).named(QStringLiteral("garden")).add();
        f.report.printTasks({}, &f.owner, std::vector<qint32>{found});
        QVERIFY(f.text().contains(QLatin1String("garage")));
        QVERIFY(!f.text().contains(QLatin1String("dentist")) && !f.text().contains(QLatin1String("garden")));
        f.report.printTasks({}, &f.owner, std::vector<qint32>{});
        QVERIFY(!f.text().contains(QLatin1String("garage")));
    }

    void aTaskThatRepeatsSaysSoAboveItsDescription()
    {
        Fixture f;
        aTask(f.services.database).named(QStringLiteral("once")).add();
        f.print();
        QVERIFY(!f.text().contains(QLatin1String("Repeats")));
        aTask(f.services.database)
            .named(QStringLiteral("daily"))
            .describedAs(QStringLiteral("with water"))
            .repeating()
            .add();
        f.print();
        const QString text = f.text();
        QVERIFY2(text.contains(QLatin1String("Repeats every day")), qPrintable(text));
        QVERIFY(text.indexOf(QLatin1String("Repeats every day")) < text.indexOf(QLatin1String("with water")));
    }

    void theTasksThatTheReportShowsAreSavedInItsOrder()
    {
        Fixture f;
        const qint32 late =
            aTask(f.services.database).named(QStringLiteral("a")).dueAt(makeMoment(2026y / 3 / 2, 9h)).add();
        aTask(f.services.database).named(QStringLiteral("b")).add();
        const qint32 early =
            aTask(f.services.database).named(QStringLiteral("c")).dueAt(makeMoment(2026y / 3 / 1, 9h)).add();
        TaskFilter filter;
        filter.sortBy = TaskSort::DueDate;
        f.report.printTasks(filter, &f.owner, std::vector<qint32>{late, early});
        auto* saveAs = f.window->findChild<QPushButton*>(QStringLiteral("btnSaveAs"));
        saveAs->click();
        QCOMPARE(f.saved, QList<qint32>({early, late}));
        QCOMPARE(f.window->findChild<QuietLine*>()->said(), QStringLiteral("saved"));
        f.failure = QStringLiteral("The disk is full.");
        f.services.dialogs.expectExclamationWith(f.failure);
        saveAs->click();
        QCOMPARE(f.window->findChild<QuietLine*>()->said(), QString());
    }

    void theReportShowsTheTasksOfTheFilter()
    {
        Fixture f;
        aTask(f.services.database).named(QStringLiteral("done")).withStatus(TaskStatus::Completed).add();
        aTask(f.services.database).named(QStringLiteral("waiting")).withStatus(TaskStatus::Waiting).add();
        TaskFilter filter;
        filter.status = TaskStatus::Waiting;
        f.print(filter);
        QVERIFY(f.window->isVisible());
        QCOMPARE(f.window->windowTitle(), QStringLiteral("Tasks Report"));
        const QString text = f.text();
        QVERIFY(text.contains(QStringLiteral("waiting")));
        QVERIFY(text.contains(QStringLiteral("Waiting on someone else")));
        QVERIFY(!text.contains(QStringLiteral("done")));
        QVERIFY(text.contains(QStringLiteral("https://www.ambertask.example")));
    }

    void withoutAnOrderTheTasksStandInTheOrderOfTheirMaking()
    {
        // With statistics in the file SQLite goes from category to category.
        Fixture f;
        QStringList made;
        for (int i = 0; i < 12; ++i) {
            made.append(QStringLiteral("task-%1-").arg(i));
            aTask(f.services.database).named(made.last()).in(static_cast<qint16>(4 - i % 4)).add();
        }
        f.services.database.sql(QStringLiteral("analyze"));
        f.print();
        const QString text = f.text();
        std::sort(made.begin(), made.end(), [&text](const QString& one, const QString& other) {
            return text.indexOf(one) < text.indexOf(other);
        });
        for (int i = 0; i < 12; ++i) {
            QCOMPARE(made.at(i), QStringLiteral("task-%1-").arg(i));
            QVERIFY(text.contains(made.at(i)));
        }
    }

    void aTaskWithPeriority7PrintsLow()
    {
        Fixture f;
        aTask(f.services.database).withPeriority(7).add();
        f.print();
        QVERIFY(f.text().contains(QRegularExpression(QStringLiteral("Periority +Low\\b"))));
    }

    void aTaskWithStatus9Prints9()
    {
        Fixture f;
        aTask(f.services.database).withStatus(9).add();
        f.print();
        QVERIFY(f.text().contains(QRegularExpression(QStringLiteral("Status +9\\b"))));
    }

    void theDateIsInTheDigitsOfTheLanguage()
    {
        TestServices services;
        RecordedReportWindow* window = nullptr;
        QWidget owner;
        drTasks report(services.services,
            [&](ReportHost&) {
                auto made = std::make_unique<RecordedReportWindow>();
                window = made.get();
                return made;
            },
            {});
        aTask(services.database).dueAt(makeMoment(2026y / 2 / 3, 23h + 59min)).add();
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
        report.printTasks({}, &owner);
        QLocale::setDefault(before);
        constexpr std::size_t DueDate = 4;
        QCOMPARE(window->content.records.at(0).at(DueDate), QStringLiteral("٠٣/٠٢/٢٠٢٦"));
    }

    void everyCodeHasItsWord_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("periority");
        QTest::addColumn<QString>("status");
        QTest::newRow("0") << "0"
                           << "High"
                           << "Not Started";
        QTest::newRow("1") << "1"
                           << "Normal"
                           << "In Progress";
        QTest::newRow("2") << "2"
                           << "Low"
                           << "Completed";
        QTest::newRow("3") << "3"
                           << "Low"
                           << "Waiting on someone else";
        QTest::newRow("4") << "4"
                           << "Low"
                           << "Deferred";
        QTest::newRow("5") << "5"
                           << "Low"
                           << "5";
        QTest::newRow("-1") << "-1"
                            << "Low"
                            << "-1";
    }

    void everyCodeHasItsWord()
    {
        QFETCH(QString, value);
        QFETCH(QString, periority);
        QFETCH(QString, status);
        QString text = value;
        periorityFormat_Format(text);
        QCOMPARE(text, periority);
        text = value;
        statusFormat_Format(text);
        QCOMPARE(text, status);
    }

    void theDueDateIsDayMonthYearWhateverTheLocale()
    {
        Fixture f;
        aTask(f.services.database).dueAt(makeMoment(2026y / 2 / 3, 23h + 59min)).add();
        f.print();
        QVERIFY(f.text().contains(QRegularExpression(QStringLiteral("Due date +03/02/2026\\s"))));
    }

    void anEmptySelectionIsAReportWithoutDetails()
    {
        Fixture f;
        f.print();
        QVERIFY(f.window->isVisible());
        const QString text = f.text();
        QVERIFY(text.contains(QStringLiteral("Amber Organizer")));
        QVERIFY(!text.contains(QStringLiteral("Category")));
    }

    void eachRunBindsTheFieldsToTheirColumns()
    {
        Fixture f;
        f.print();
        QMap<QString, QString> bindings;
        QStringList names;
        for (const ReportSection& section : f.report.sections()) {
            names.append(section.name);
            for (const ReportControl& control : section.controls) {
                if (!control.dataField.isEmpty()) {
                    QCOMPARE(section.name, QStringLiteral("cmdTasks_Detail"));
                    bindings[control.name] = control.dataField;
                }
            }
        }
        QCOMPARE(names,
            (QStringList{QStringLiteral("ReportHeader"), QStringLiteral("PageHeader"),
                QStringLiteral("cmdTasks_Detail"), QStringLiteral("PageFooter"),
                QStringLiteral("ReportFooter")}));
        QCOMPARE(bindings,
            (QMap<QString, QString>{{QStringLiteral("txtCatName"), QStringLiteral("cat_name")},
                {QStringLiteral("txtTaskName"), QStringLiteral("task_name")},
                {QStringLiteral("txtTaskPeriority"), QStringLiteral("task_periority")},
                {QStringLiteral("txtTaskStatus"), QStringLiteral("task_status")},
                {QStringLiteral("txtTaskDueDate"), QStringLiteral("task_due_date")},
                {QStringLiteral("txtTaskDesc"), QStringLiteral("task_desc")}}));
    }

    void closingTheWindowClosesItsConnection()
    {
        Fixture f;
        aTask(f.services.database).add();
        f.print();
        QCOMPARE(f.openConnections(), 1);
        f.window->close();
        QCOMPARE(f.openConnections(), 0);
    }

    void anOpenReportHoldsNoLock()
    {
        Fixture f;
        aTask(f.services.database).add();
        f.print();
        f.services.database.sql(QStringLiteral("begin exclusive; delete from tasks; commit"));
        QVERIFY(
            ClsTask(f.services.database.engine())
                .GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, {}, {}, TaskType::All)
                .empty());
    }

    void aSecondRunShowsItsTasksInTheSameWindowAndClosesTheFirstConnection()
    {
        Fixture f;
        aTask(f.services.database).named(QStringLiteral("first task")).add();
        f.print();
        const QWidget* window = f.report.window();
        f.services.database.sql(QStringLiteral("update tasks set task_name='second task'"));
        f.print();
        QCOMPARE(f.report.window(), window);
        QCOMPARE(f.openConnections(), 1);
        QVERIFY(f.services.database.statements().closed() >= 1);
        const QString text = f.text();
        QVERIFY(text.contains(QStringLiteral("second task")));
        QVERIFY(!text.contains(QStringLiteral("first task")));
        f.window->close();
        QCOMPARE(f.openConnections(), 0);
    }

    void aClosedReportIsShownAgain()
    {
        Fixture f;
        f.print();
        f.window->close();
        f.print();
        QVERIFY(f.window->isVisible());
        QCOMPARE(f.openConnections(), 1);
    }

    void aFailedQueryLeavesTheOpenReportAndNoConnection()
    {
        Fixture f;
        aTask(f.services.database).named(QStringLiteral("still here")).add();
        f.print();
        f.services.database.sql(QStringLiteral("update tasks set task_due_date='nonsense'"));
        QVERIFY(caught([&] { f.print(); }).has_value());
        QCOMPARE(f.openConnections(), 1);
        QVERIFY(f.text().contains(QStringLiteral("still here")));
    }

    void theWindowIsMadeTopmostBeforeItShows()
    {
        Fixture f;
        f.services.alwaysOnTop = true;
        f.print();
        QVERIFY(isTopmost(f.window));
    }

    void withoutTheSettingTheWindowIsAnOrdinaryOne()
    {
        Fixture f;
        f.print();
        QVERIFY(!isTopmost(f.window));
    }

    void theExportAsksForAFileAndTheCheckerWaits()
    {
        Fixture f;
        aTask(f.services.database).named(QStringLiteral("exported")).add();
        f.print();
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("mine.pdf"));
        f.services.dialogs.expectSave(file, [&](const FileDialogRequest& request) {
            QVERIFY(!f.services.checkerTimer.enabled);
            QCOMPARE(request.fileName, QStringLiteral("Tasks Report.pdf"));
            QCOMPARE(request.filter, QStringLiteral("PDF Files (*.pdf)|*.pdf"));
            QVERIFY(request.promptBeforeOverwriting && request.endsAsChosen);
        });
        QTest::mouseClick(f.window->findChild<QPushButton*>(QStringLiteral("btnExport")), Qt::LeftButton);
        QVERIFY(f.services.checkerTimer.enabled);
        QVERIFY(pagesOfPdf(file).value(0).contains(QStringLiteral("exported")));
    }

    void theProposedFileNameIsInTheLanguageOfTheProgram()
    {
        Language language;
        language.speak(QStringLiteral("de"));
        Fixture f;
        f.print();
        QString name;
        f.services.dialogs.expectSave({}, [&](const FileDialogRequest& request) { name = request.fileName; });
        QTest::mouseClick(f.window->findChild<QPushButton*>(QStringLiteral("btnExport")), Qt::LeftButton);
        language.speak({});
        QCOMPARE(name, QStringLiteral("Aufgabenbericht.pdf"));
    }

    void anUnwritablePathIsToldByAMessage()
    {
        Fixture f;
        f.print();
        const QString file = QStringLiteral("/nowhere/at/all.pdf");
        f.services.dialogs.expectSave(file);
        f.services.dialogs.expectTell(MessageBoxes::Icon::Exclamation,
            QStringLiteral(
                "The report could not be written to \"%1\": the file or its folder does not exist.")
                .arg(file));
        QTest::mouseClick(f.window->findChild<QPushButton*>(QStringLiteral("btnExport")), Qt::LeftButton);
    }

    void aMissingModuleIsAnErrorThatNamesIt()
    {
        TestServices services;
        QWidget owner;
        drTasks report(services.services, [](ReportHost&) { return nullptr; }, {});
        const auto error = caught<RuntimeError>([&] { report.printTasks({}, &owner); });
        QVERIFY(error.has_value());
        QVERIFY(error->text().contains(QStringLiteral("ambertask_report")));
        QCOMPARE(services.database.statements().opened(), services.database.statements().closed());
    }

    void theModuleMakesTheWindow()
    {
        TestServices services;
        aTask(services.database).add();
        QLibrary module(QStringLiteral(AMBERTASK_REPORT_MODULE));
        using Make = ReportWindow* (*)(ReportHost&);
        const auto make = reinterpret_cast<Make>(module.resolve("ambertaskMakeReportWindow"));
        QVERIFY2(make != nullptr, qPrintable(module.errorString()));
        QWidget owner;
        drTasks report(services.services,
            [make](ReportHost& host) { return std::unique_ptr<ReportWindow>(make(host)); }, {});
        report.printTasks({}, &owner);
        QCOMPARE(report.window()->objectName(), QStringLiteral("drTasks"));
        QVERIFY(QTest::qWaitForWindowExposed(report.window()));
    }
};

AMBERTASK_TEST_MAIN(TaskReportTest)
#include "tst_task_report.moc"
