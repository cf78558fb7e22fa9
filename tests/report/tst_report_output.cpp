#include "support/FullDisk.h"
#include "support/PdfFile.h"
#include "support/TestMain.h"
#include "tests/report/PreviewUnderTest.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

/// The report on paper and in files, from its window.
class ReportOutputTest : public TestCase
{
    Q_OBJECT

private slots:
    // The dialog of Qt, driven as a user would; without a printer it knows files alone.
    void theChosenPagesArePrinted()
    {
        PreviewUnderTest f(60, true);
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("printed.pdf"));
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            seen = true;
            dialog->findChild<QLineEdit*>(QStringLiteral("filename"))->setText(file);
            dialog->findChild<QRadioButton*>(QStringLiteral("printRange"))->setChecked(true);
            dialog->findChild<QSpinBox*>(QStringLiteral("from"))->setValue(2);
            dialog->findChild<QSpinBox*>(QStringLiteral("to"))->setValue(3);
            dialog->accept();
        });
        f.press("btnPrint");
        QVERIFY(seen);
        QCOMPARE(f.host.failures, QStringList());
        const QStringList pages = pagesOfPdf(file);
        QCOMPARE(pages.size(), 2);
        QVERIFY(!pages[0].contains(QStringLiteral("record 1.")));
        QVERIFY(pages[0].contains(QStringLiteral("record ")));
    }

    void aPrintIntoAFileOnAFullDiskIsToldWithPathAndReason()
    {
        PreviewUnderTest f(60, true);
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("printed.pdf"));
        std::optional<FullDisk> disk;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            dialog->findChild<QLineEdit*>(QStringLiteral("filename"))->setText(file);
            dialog->accept();
            disk.emplace(4096);
        });
        f.press("btnPrint");
        QVERIFY(disk);
        disk.reset();
        const QString told = QStringLiteral("The report could not be written to \"%1\": ").arg(file);
        QCOMPARE(f.host.failures.size(), 1);
        QVERIFY2(f.host.failures[0].startsWith(told), qPrintable(f.host.failures[0]));
        QVERIFY2(f.host.failures[0].size() > told.size() + 5, qPrintable(f.host.failures[0]));
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void thePdfHoldsAllPages()
    {
        PreviewUnderTest f(60);
        const QTemporaryDir folder;
        f.host.file = folder.filePath(QStringLiteral("out.pdf"));
        f.press("btnExport");
        QCOMPARE(f.host.failures, QStringList());
        const QStringList pages = pagesOfPdf(f.host.file);
        QCOMPARE(pages.size(), f.window.pageCount());
        QVERIFY(pages.last().contains(QStringLiteral("record 60.")));
        QCOMPARE(f.said(), QStringLiteral("PDF saved to \"%1\"").arg(f.host.file));
    }

    void aCancelledExportWritesNothing()
    {
        PreviewUnderTest f(1);
        f.press("btnExport");
        QCOMPARE(f.host.failures, QStringList());
        QCOMPARE(f.said(), QString());
    }

    // Long enough for the box, which the real time brings.
    void aLongExportIsCancelledByItsBoxAndLeavesNoFile()
    {
        PreviewUnderTest f(1);
        f.window.setContent(contentOf(recordsOf(60000)));
        const QTemporaryDir folder;
        f.host.file = folder.filePath(QStringLiteral("out.pdf"));
        QTimer looking;
        QString text;
        connect(&looking, &QTimer::timeout, this, [&] {
            if (auto* box = f.control<QDialog>("progress")) {
                text = box->findChild<QLabel*>()->text();
                box->findChild<QPushButton*>(QStringLiteral("btnCancel"))->click();
            }
        });
        looking.start(10);
        f.press("btnExport");
        QCOMPARE(text, QStringLiteral("Writing the PDF file..."));
        QCOMPARE(f.host.failures, QStringList());
        QCOMPARE(f.said(), QString());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void anExportKeepsItsContentAndPaperWhateverTheWindowShowsMeanwhile()
    {
        PreviewUnderTest f(1);
        const std::vector<int> papers{f.control<QComboBox>("cmbPaper")->findText(QStringLiteral("A4")),
            f.control<QComboBox>("cmbPaper")->findText(QStringLiteral("A5"))};
        QVERIFY(papers[0] >= 0 && papers[1] >= 0);
        f.choose("cmbPaper", papers[0]);
        f.window.setContent(contentOf(recordsOf(20000)));
        const int count = f.window.pageCount();
        const QTemporaryDir folder;
        f.host.file = folder.filePath(QStringLiteral("out.pdf"));
        QTimer meanwhile;
        bool isExporting = false;
        bool hasChanged = false;
        connect(&meanwhile, &QTimer::timeout, this, [&] {
            if (isExporting && !hasChanged) {
                hasChanged = true;
                f.window.setContent(contentOf(recordsOf(2)));
                f.choose("cmbPaper", papers[1]);
            }
        });
        meanwhile.start(1);
        isExporting = true;
        f.press("btnExport");
        isExporting = false;
        QVERIFY(hasChanged);
        QCOMPARE(f.host.failures, QStringList());
        QCOMPARE(f.window.pageCount(), 1);
        const QStringList pages = pagesOfPdf(f.host.file);
        QCOMPARE(pages.size(), count);
        QVERIFY(pages.last().contains(QLatin1String("record 20000.")));
        QCOMPARE(pictureOfPdf(f.host.file, count).size(), QSize(827, 1170));
    }

    void anUnwritablePathIsReportedAndLeavesNoHalfFile()
    {
        PreviewUnderTest f(1);
        const QTemporaryDir folder;
        f.host.file = folder.filePath(QStringLiteral("missing/out.pdf"));
        f.press("btnExport");
        QCOMPARE(f.host.failures.size(), 1);
        QCOMPARE(f.host.failures[0],
            QStringLiteral(
                "The report could not be written to \"%1\": the file or its folder does not exist.")
                .arg(f.host.file));
        QCOMPARE(f.said(), QString());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void aFolderInPlaceOfTheFileIsReported()
    {
        PreviewUnderTest f(1);
        const QTemporaryDir folder;
        f.host.file = folder.path();
        f.press("btnExport");
        QCOMPARE(f.host.failures.size(), 1);
        QVERIFY(QDir(folder.path()).isEmpty());
    }
};

AMBERTASK_TEST_MAIN(ReportOutputTest)
#include "tst_report_output.moc"
