#include "help/window/CompiledHelpWindow.h"
#include "help/window/HelpBook.h"
#include "help/window/TopicPages.h"
#include "help/window/TopicView.h"
#include "support/FullDisk.h"
#include "support/PdfFile.h"
#include "support/TestMain.h"
#include "tests/help/RecordedHelpHost.h"
#include "widgets/printing/PageOutput.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace
{

QPageLayout a4()
{
    return {
        QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter};
}

struct Help {
    explicit Help(bool printer = false)
        : hasPrinter(printer), window(host, [this] {
              ++askedForPrinter;
              return hasPrinter;
          })
    {
        window.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
        window.show();
        QApplication::setActiveWindow(&window);
        host.pdfFile = folder.filePath(QStringLiteral("topic.pdf"));
    }

    QPushButton& print() { return *window.findChild<QPushButton*>(QStringLiteral("btnPrint")); }
    TopicView& topic() { return *window.findChild<TopicView*>(); }
    QString printed() { return pagesOfPdf(host.pdfFile).join(QString()); }

    QTemporaryDir folder;
    RecordedHelpHost host;
    bool hasPrinter;
    int askedForPrinter = 0;
    CompiledHelpWindow window;
};

/// As a topic is: without what lies on the disk.
class ClosedDocument final : public QTextDocument
{
protected:
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return QImage(); }
};

/// A page as it is on paper, a tenth of its units large.
QImage pictureOf(const PrintedPages& pages, int page, QSizeF area)
{
    constexpr qreal Scale = 0.1;
    QImage paper((area * Scale).toSize(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(Scale, Scale);
    pages.paintPage(painter, page);
    return paper;
}

} // namespace

class HelpPrintingTest : public TestCase
{
    Q_OBJECT

private slots:
    void openingTheHelpAsksForNoPrinter()
    {
        Help help;
        help.window.showContents();
        QCOMPARE(help.askedForPrinter, 0);
    }

    void withoutAPrinterAPdfFileIsOfferedAndWritten()
    {
        Help help;
        help.window.showContext(0);
        QTest::mouseClick(&help.print(), Qt::LeftButton);
        QCOMPARE(help.host.questions,
            QStringList(
                QStringLiteral("No printer is set up on this computer. Do you want to write this topic "
                               "to a PDF file instead?")));
        QCOMPARE(help.host.proposedNames, QStringList(QStringLiteral("The page Tasks.pdf")));
        QCOMPARE(help.host.failures, QStringList());
        const QString text = help.printed();
        QVERIFY(text.contains(QStringLiteral("The list shows the tasks that match")));
        QVERIFY(text.contains(QStringLiteral("waiting on someone else")));
    }

    void ctrlPPrints()
    {
        Help help;
        help.window.showContext(2);
        QTest::keyClick(&help.window, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(help.printed().contains(QStringLiteral("The page Settings")));
    }

    void whoDeclinesTheOfferIsAskedForNoFile()
    {
        Help help;
        help.host.yes = false;
        help.window.showContext(0);
        help.print().click();
        QCOMPARE(help.host.questions.size(), 1);
        QCOMPARE(help.host.proposedNames, QStringList());
        QVERIFY(QDir(help.folder.path()).isEmpty());
    }

    void aCancelledFileDialogWritesNothing()
    {
        Help help;
        help.host.pdfFile.clear();
        help.window.showContext(0);
        help.print().click();
        QCOMPARE(help.host.proposedNames.size(), 1);
        QCOMPARE(help.host.failures, QStringList());
        QVERIFY(QDir(help.folder.path()).isEmpty());
    }

    void anUnwritablePathIsTold()
    {
        Help help;
        help.host.pdfFile = QStringLiteral("/nowhere/at/all.pdf");
        help.window.showContext(0);
        help.print().click();
        QCOMPARE(help.host.failures,
            QStringList(QStringLiteral("The topic could not be written to \"/nowhere/at/all.pdf\": the file "
                                       "or its folder does not exist.")));
    }

    // The dialog of Qt, driven as a user would; without a printer it knows files alone.
    void withAPrinterTheDialogOfQtPrints()
    {
        Help help(true);
        help.window.showContext(4);
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            seen = true;
            dialog->findChild<QLineEdit*>(QStringLiteral("filename"))->setText(help.host.pdfFile);
            dialog->accept();
        });
        help.print().click();
        QVERIFY(seen);
        QCOMPARE(help.host.questions, QStringList());
        QCOMPARE(help.host.failures, QStringList());
        QVERIFY(help.printed().contains(QStringLiteral("The alert window")));
    }

    void aPrintIntoAFileOnAFullDiskIsToldWithPathAndReason()
    {
        Help help(true);
        help.window.showContext(4);
        std::optional<FullDisk> disk;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            dialog->findChild<QLineEdit*>(QStringLiteral("filename"))->setText(help.host.pdfFile);
            dialog->accept();
            disk.emplace(4096);
        });
        help.print().click();
        QVERIFY(disk);
        disk.reset();
        const QString told =
            QStringLiteral("The topic could not be written to \"%1\": ").arg(help.host.pdfFile);
        QCOMPARE(help.host.failures.size(), 1);
        QVERIFY2(help.host.failures[0].startsWith(told), qPrintable(help.host.failures[0]));
        QVERIFY2(help.host.failures[0].size() > told.size() + 5, qPrintable(help.host.failures[0]));
        QVERIFY(!QFileInfo::exists(help.host.pdfFile));
    }

    void withoutAHelpFileThereIsNothingToPrint()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.setFile(QStringLiteral("/nowhere/help.chm"));
        QVERIFY(!window.findChild<QPushButton*>(QStringLiteral("btnPrint"))->isEnabled());
    }

    void everyTopicIsPrintedWhole()
    {
        Help help;
        const QSizeF area = printableArea(a4());
        const auto book = HelpBook::open(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(book != nullptr);
        int topics = 0;
        for (const QString& topic : book->topics()) {
            help.topic().openTopic(topic);
            const TopicPages pages(*help.topic().document(), area);
            const QString file = help.folder.filePath(QStringLiteral("%1.pdf").arg(topics));
            QVERIFY(!writePdf({file, QStringLiteral("topic"), a4()}, pages, allPages(pages)));
            const QStringList printed = pagesOfPdf(file);
            QCOMPARE(printed.size(), pages.pageCount());
            const QString all = printed.join(u' ').normalized(QString::NormalizationForm_KC);
            for (const QString& line : help.topic().toPlainText().remove(QChar(0xfffc)).split(u'\n')) {
                for (const QString& word : line.split(u' ', Qt::SkipEmptyParts)) {
                    QVERIFY2(all.contains(word), qPrintable(word));
                }
            }
            ++topics;
        }
        QCOMPARE(topics,
            QDir(QStringLiteral(AMBERTASK_HELP_SOURCES)).entryList({QStringLiteral("*.html")}).size());
    }

    void picturesArePrintedWithinTheMargins()
    {
        Help help;
        help.window.showContext(0);
        for (const auto size : {QPageSize::A4, QPageSize::A5}) {
            QPageLayout page = a4();
            page.setPageSize(QPageSize(size));
            const QSizeF area = printableArea(page);
            const TopicPages pages(*help.topic().document(), area);
            // The window of the program is the only thing with these colours on a page.
            int coloured = 0;
            int rightmost = 0;
            for (int number = 0; number < pages.pageCount(); ++number) {
                const QImage paper = pictureOf(pages, number, area);
                for (int y = 0; y < paper.height(); ++y) {
                    for (int x = 0; x < paper.width(); ++x) {
                        if (paper.pixelColor(x, y).hsvSaturation() > 60) {
                            ++coloured;
                            rightmost = qMax(rightmost, x);
                        }
                    }
                }
                QVERIFY(rightmost < paper.width());
            }
            QVERIFY2(coloured > 500, qPrintable(QString::number(coloured)));
        }
    }

    void paperIsBlackOnWhiteInADarkSkin()
    {
        const QPalette usual = QApplication::palette();
        QPalette dark(QColor(0x20, 0x24, 0x2c));
        dark.setColor(QPalette::Text, QColor(0xf0, 0xf0, 0xf0));
        dark.setColor(QPalette::Link, QColor(0xff, 0xe0, 0x80));
        QApplication::setPalette(dark);
        QImage paper;
        {
            Help help;
            // A topic of text and links alone.
            help.topic().openTopic(QStringLiteral("data.html"));
            const QSizeF area = printableArea(a4());
            paper = pictureOf(TopicPages(*help.topic().document(), area), 0, area);
        }
        QApplication::setPalette(usual);
        QCOMPARE(paper.pixelColor(0, 0), QColor(Qt::white));
        int black = 0;
        for (int y = 0; y < paper.height(); ++y) {
            for (int x = 0; x < paper.width(); ++x) {
                const QColor colour = paper.pixelColor(x, y);
                QVERIFY2(colour.hsvSaturation() < 10, qPrintable(colour.name()));
                black += colour.lightness() < 40 ? 1 : 0;
            }
        }
        QVERIFY2(black > 200, qPrintable(QString::number(black)));
    }

    void rowsOfATableAreNotSplitBetweenPages()
    {
        QTextDocument topic;
        QString html = QStringLiteral("<table>");
        for (int row = 0; row < 60; ++row) {
            html += QStringLiteral("<tr><td>left %1.</td><td>right %1.<br>and<br>more</td></tr>").arg(row);
        }
        topic.setHtml(html + QStringLiteral("</table>"));
        const TopicPages pages(topic, printableArea(a4()));
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("rows.pdf"));
        QVERIFY(!writePdf({file, QStringLiteral("rows"), a4()}, pages, allPages(pages)));
        const QStringList printed = pagesOfPdf(file);
        QVERIFY(printed.size() > 2);
        int rows = 0;
        for (const QString& page : printed) {
            QCOMPARE(page.count(QStringLiteral("left")), page.count(QStringLiteral("right")));
            QCOMPARE(page.count(QStringLiteral("left")), page.count(QStringLiteral("more")));
            rows += static_cast<int>(page.count(QStringLiteral("left")));
        }
        QCOMPARE(rows, 60);
    }

    void whatIsTallerThanAPageIsPrintedAllTheSame()
    {
        QTextDocument topic;
        topic.setHtml(QStringLiteral("<table><tr><td>%1</td></tr></table>")
                          .arg(QStringLiteral("some words. ").repeated(2000)));
        const TopicPages pages(topic, printableArea(a4()));
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("tall.pdf"));
        QVERIFY(!writePdf({file, QStringLiteral("tall"), a4()}, pages, allPages(pages)));
        const QStringList printed = pagesOfPdf(file);
        QVERIFY(printed.size() > 2);
        // A line on the border stands on both pages, cut.
        QVERIFY(printed.join(QString()).count(QStringLiteral("words.")) >= 2000);
    }

    void theSizeOfTheLettersOnTheScreenDoesNotCount()
    {
        Help help;
        help.window.showContext(0);
        const QSizeF area = printableArea(a4());
        const int usual = TopicPages(*help.topic().document(), area).pageCount();
        for (int i = 0; i < 10; ++i) {
            help.window.findChild<QPushButton*>(QStringLiteral("btnLarger"))->click();
        }
        QCOMPARE(TopicPages(*help.topic().document(), area).pageCount(), usual);
    }

    void picturesThatTheHelpFileDoesNotHoldAreNotTakenFromTheDisk()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("red.png"));
        QImage red(100, 100, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(file));
        ClosedDocument topic;
        for (const QString& name : {file, QStringLiteral("file://") + file}) {
            topic.setHtml(QStringLiteral("<p>x<img src=\"%1\"></p>").arg(name));
            const QSizeF area = printableArea(a4());
            const QImage paper = pictureOf(TopicPages(topic, area), 0, area);
            for (int x = 0; x < paper.width(); ++x) {
                QVERIFY2(paper.pixelColor(x, 5).hsvSaturation() < 10, qPrintable(name));
            }
        }
    }
};

AMBERTASK_TEST_MAIN(HelpPrintingTest)
#include "tst_help_printing.moc"
