#include "exchange/window/frmImport.h"
#include "support/TestMain.h"
#include "tests/exchange/window/RecordedExchange.h"
#include "widgets/GridView.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

/// The window that shows what an import would do.
class ImportWindowTest : public TestCase
{
    Q_OBJECT

private:
    struct Fixture {
        Fixture() : confirmed(&window, &frmImport::confirmed) { }
        template <typename Control> Control* control(const char* name)
        {
            return window.findChild<Control*>(QLatin1String(name));
        }
        bool show(ImportPlan plan = samplePlan())
        {
            window.setPlan(QStringLiteral("/home/anna/<i>garden.ics"), std::move(plan));
            window.show();
            return QTest::qWaitForWindowExposed(&window);
        }
        QString summary() { return control<QPlainTextEdit>("txtImportSummary")->toPlainText(); }
        QString cell(int row, int column)
        {
            return control<GridView>("grdImport")->model()->index(row, column).data().toString();
        }
        QListWidgetItem* program(int row) { return control<QListWidget>("lstImportPrograms")->item(row); }

        frmImport window;
        QSignalSpy confirmed;
    };

private slots:
    void itShowsWhatWouldHappen()
    {
        Fixture f;
        QVERIFY(f.show());
        QVERIFY2(f.summary().contains(QLatin1String("2 tasks are new")), qPrintable(f.summary()));
        QVERIFY(f.summary().contains(QLatin1String("New categories: ")));
        QVERIFY(
            f.summary().contains(QLatin1String("Line 12, \"Dig\": The due date \"never\" is no moment.")));
        QCOMPARE(f.control<GridView>("grdImport")->model()->rowCount(), 4);
        QCOMPARE(f.cell(0, 0), QStringLiteral("New"));
        QCOMPARE(f.cell(1, 0), QStringLiteral("Changed"));
        QCOMPARE(f.cell(1, 1), QStringLiteral("Water the roses"));
        QCOMPARE(f.cell(3, 0), QStringLiteral("Same"));
        QCOMPARE(f.cell(1, 3), QStringLiteral("Garden"));
    }

    void whatTheFileSaysIsPlainText()
    {
        Fixture f;
        QVERIFY(f.show());
        const auto* file = f.control<QLabel>("lblImportFile");
        QCOMPARE(file->textFormat(), Qt::PlainText);
        QVERIFY(file->text().contains(QLatin1String("<i>")));
        QCOMPARE(f.cell(0, 1), QStringLiteral("Cut the <b>hedge</b>"));
    }

    void noProgramIsTakenUnlessItIsTicked()
    {
        Fixture f;
        QVERIFY(f.show());
        QCOMPARE(f.control<QListWidget>("lstImportPrograms")->count(), 2);
        QCOMPARE(f.program(0)->checkState(), Qt::Unchecked);
        QVERIFY(f.program(1)->text().contains(QLatin1String("/usr/bin/second")));
        QVERIFY(f.program(1)->text().contains(QLatin1String("Rake the leaves")));
        f.program(1)->setCheckState(Qt::Checked);
        QVERIFY(!f.window.plan().tasks[1].takesProgram);
        QVERIFY(f.window.plan().tasks[3].takesProgram);
        // Another file starts anew, also when it is the same one.
        QVERIFY(f.show());
        QCOMPARE(f.program(1)->checkState(), Qt::Unchecked);
        QVERIFY(!f.window.plan().tasks[3].takesProgram);
    }

    void withoutProgramsNoListOfThemIsShown()
    {
        Fixture f;
        ImportPlan plan = samplePlan();
        for (ImportedTask& imported : plan.tasks) {
            imported.program.clear();
        }
        QVERIFY(f.show(plan));
        QVERIFY(!f.control<QListWidget>("lstImportPrograms")->isVisible());
        QVERIFY(!f.control<QLabel>("lblPrograms")->isVisible());
    }

    void aFileThatChangesNothingCannotBeImported()
    {
        Fixture f;
        ImportPlan plan = samplePlan();
        plan.tasks.erase(plan.tasks.begin(), plan.tasks.begin() + 3);
        QVERIFY(f.show(plan));
        const auto* import = f.control<QPushButton>("btnImportTasks");
        QVERIFY(!import->isEnabled());
        // A program is a change.
        f.program(0)->setCheckState(Qt::Checked);
        QVERIFY(import->isEnabled());
        f.program(0)->setCheckState(Qt::Unchecked);
        QVERIFY(!import->isEnabled());
    }

    void onlyTheButtonImports()
    {
        Fixture f;
        QVERIFY(f.show());
        // The Enter of the file dialog may still be held.
        for (const char* name : {"txtImportSummary", "grdImport", "lstImportPrograms"}) {
            QTest::keyClick(f.control<QWidget>(name), Qt::Key_Return);
        }
        QVERIFY(f.window.focusWidget() != f.control<QPushButton>("btnImportTasks"));
        QCOMPARE(f.confirmed.count(), 0);
        QTest::mouseClick(f.control<QPushButton>("btnImportTasks"), Qt::LeftButton);
        QCOMPARE(f.confirmed.count(), 1);
        QVERIFY(f.window.isVisible());
    }

    void escapeCancelAndTheCloseBoxLeaveEverythingAsItIs()
    {
        Fixture f;
        QVERIFY(f.show());
        QTest::keyClick(&f.window, Qt::Key_Escape);
        QVERIFY(!f.window.isVisible());
        QVERIFY(f.show());
        QTest::mouseClick(f.control<QPushButton>("btnCancelImport"), Qt::LeftButton);
        QVERIFY(!f.window.isVisible());
        QCOMPARE(f.confirmed.count(), 0);
    }

    void thatMorePartsAreUnreadableThanAreNamedIsSaid()
    {
        ImportPlan plan = samplePlan();
        plan.unreadableParts = 100'000;
        QVERIFY(importSummary(plan).contains(QLatin1String("And more that cannot be read")));
        QVERIFY(!importSummary(samplePlan()).contains(QLatin1String("And more")));
    }

    void endlessNamesAreCut()
    {
        ImportPlan plan = samplePlan();
        plan.newCategories = {QString(1'000'000, u'c')};
        plan.unreadable[0].name = QString(1'000'000, u'n');
        QVERIFY(importSummary(plan).size() < 2000);
    }
};

AMBERTASK_TEST_MAIN(ImportWindowTest)
#include "tst_import_window.moc"
