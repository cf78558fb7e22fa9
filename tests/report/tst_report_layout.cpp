#include "report/ReportLayout.h"
#include "support/PdfFile.h"
#include "support/TestMain.h"
#include "tests/report/ReportSamples.h"
#include "widgets/printing/PageOutput.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QPageRanges>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <numeric>

namespace
{

QPageLayout pageOf(
    QPageSize::PageSizeId size = QPageSize::A4, QPageLayout::Orientation orientation = QPageLayout::Portrait)
{
    return {QPageSize(size), orientation, QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter};
}

QString linesOf(int count)
{
    QStringList lines;
    for (int i = 1; i <= count; ++i) {
        lines.append(QStringLiteral("line %1.").arg(i));
    }
    return lines.join(u'\n');
}

ReportLayout laidOut(const ReportContent& content, const QPageLayout& page)
{
    return ReportLayout(std::make_shared<const ReportContent>(content), printableArea(page));
}

/// The pages that a report of these records has as a PDF.
QStringList exported(const ReportContent& content, const QPageLayout& page = pageOf())
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("report.pdf"));
    const ReportLayout layout = laidOut(content, page);
    if (const auto failure = writePdf({file, content.caption, page}, layout, allPages(layout))) {
        QTest::qFail(qPrintable(*failure), __FILE__, __LINE__);
        return {};
    }
    return pagesOfPdf(file);
}

} // namespace

class ReportLayoutTest : public TestCase
{
    Q_OBJECT

private slots:
    void anEmptyReportIsOnePageWithItsHeader()
    {
        const QStringList pages = exported(contentOf({}));
        QCOMPARE(pages.size(), 1);
        QVERIFY(pages[0].contains(QStringLiteral("Amber Organizer")));
        QVERIFY(!pages[0].contains(QStringLiteral("Category")));
    }

    void aRecordShowsItsLabelsAndValues()
    {
        const QStringList pages =
            exported(contentOf({recordOf(QStringLiteral("Call"), QStringLiteral("At nine"))}));
        QCOMPARE(pages.size(), 1);
        const QString page = pages[0].simplified();
        QCOMPARE(page,
            QStringLiteral(
                "Amber Organizer https://vendor.example Category Work Call Periority High Status In "
                "Progress Due date 15/01/2026 Description At nine"));
    }

    void everyRecordStandsOnceInOrderAndWholeOnItsPage()
    {
        constexpr int Count = 60;
        const QStringList pages = exported(contentOf(recordsOf(Count)));
        QVERIFY(pages.size() > 2);
        int next = 1;
        for (const QString& page : pages) {
            while (next <= Count && page.contains(QStringLiteral("record %1.").arg(next))) {
                QVERIFY(page.contains(QRegularExpression(QStringLiteral("about %1\\b").arg(next))));
                ++next;
            }
        }
        QCOMPARE(next, Count + 1);
        QCOMPARE(pages.join(QString()).count(QStringLiteral("record ")), Count);
    }

    void theHeaderRepeatsAndNoPageNumberIsPrinted()
    {
        const QStringList pages = exported(contentOf(recordsOf(60)));
        for (const QString& page : pages) {
            QCOMPARE(page.count(QStringLiteral("Amber Organizer")), 1);
            QCOMPARE(page.count(QStringLiteral("https://vendor.example")), 1);
            QVERIFY(!page.contains(QStringLiteral("Page"), Qt::CaseInsensitive));
        }
    }

    void aRecordThatDoesNotFitAnyMoreBeginsTheNextPage()
    {
        auto records = recordsOf(5);
        records.push_back(recordOf(QStringLiteral("the long one"), linesOf(40)));
        const QStringList pages = exported(contentOf(std::move(records)));
        QCOMPARE(pages.size(), 2);
        QVERIFY(!pages[0].contains(QStringLiteral("the long one")));
        QVERIFY(pages[1].contains(QStringLiteral("the long one")));
        QVERIFY(pages[1].contains(QStringLiteral("line 40.")));
    }

    void aRecordTallerThanAPageIsSplitBetweenItsLines()
    {
        auto records = recordsOf(1);
        records.push_back(recordOf(QStringLiteral("the endless one"), linesOf(150)));
        records.push_back(recordOf(QStringLiteral("the last one")));
        const QStringList pages = exported(contentOf(std::move(records)));
        QCOMPARE(pages.size(), 4);
        QVERIFY(pages[1].contains(QStringLiteral("the endless one")));
        const QString all = pages.join(QString());
        QCOMPARE(all.count(QStringLiteral("the endless one")), 1);
        qsizetype position = 0;
        for (int i = 1; i <= 150; ++i) {
            const QString line = QStringLiteral("line %1.").arg(i);
            QCOMPARE(all.count(line), 1);
            QVERIFY(all.indexOf(line) > position);
            position = all.indexOf(line);
        }
        QVERIFY(pages[3].contains(QStringLiteral("the last one")));
    }

    void aTallNameIsSplitAsWell()
    {
        const QString name = QStringLiteral("wide words ").repeated(2000);
        const QStringList pages = exported(contentOf({recordOf(name)}));
        QVERIFY(pages.size() > 2);
        QCOMPARE(pages.join(QString()).count(QStringLiteral("words")), 2000);
    }

    void theLastLineOfEveryPageLiesInsideThePage_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("orientation");
        for (const auto size :
            {QPageSize::A3, QPageSize::A4, QPageSize::A5, QPageSize::Letter, QPageSize::Legal}) {
            for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
                QTest::addRow("%s %d", qPrintable(QPageSize::name(size)), orientation)
                    << int(size) << int(orientation);
            }
        }
    }

    // Paints each page with room around it and looks for ink there.
    void theLastLineOfEveryPageLiesInsideThePage()
    {
        QFETCH(int, size);
        QFETCH(int, orientation);
        auto records = recordsOf(40);
        records.push_back(recordOf(QStringLiteral("wide ").repeated(60), linesOf(120)));
        records.push_back(recordOf(QString(400, u'W'), QString(3000, u'm')));
        // A long category, which could be broken behind every hyphen.
        for (int length = 20; length < 60; length += 5) {
            records.push_back(recordOf(QStringLiteral("task")));
            records.back()[0] =
                QStringLiteral("%1 ").arg(QStringLiteral("well-").repeated(length)).repeated(3);
        }
        const ReportContent content = contentOf(std::move(records));
        const QPageLayout page = pageOf(
            static_cast<QPageSize::PageSizeId>(size), static_cast<QPageLayout::Orientation>(orientation));
        const ReportLayout layout = laidOut(content, page);
        QVERIFY(layout.pageCount() > 3);
        constexpr int Border = 40;
        constexpr qreal Scale = 0.1;
        const QSize area = (printableArea(page) * Scale).toSize() + QSize(1, 1);
        for (int number = 0; number < layout.pageCount(); ++number) {
            QImage paper(area + QSize(2 * Border, 2 * Border), QImage::Format_Grayscale8);
            paper.fill(Qt::white);
            QPainter painter(&paper);
            painter.translate(Border, Border);
            painter.scale(Scale, Scale);
            layout.paintPage(painter, number);
            painter.end();
            const QRect inside(QPoint(Border, Border), area);
            int ink = 0;
            for (int y = 0; y < paper.height(); ++y) {
                for (int x = 0; x < paper.width(); ++x) {
                    if (qGray(paper.pixel(x, y)) < 200) {
                        ++ink;
                        QVERIFY2(inside.adjusted(-1, -1, 1, 1).contains(x, y),
                            qPrintable(QStringLiteral("page %1: ink at %2, %3").arg(number).arg(x).arg(y)));
                    }
                }
            }
            QVERIFY(ink > 100);
        }
    }

    void textsOfAnyScriptAndMarkupStayAsTheyAre()
    {
        const QString greek = QStringLiteral("Καλημέρα κόσμε");
        const QString cyrillic = QStringLiteral("Позвонить врачу");
        const QString markup = QStringLiteral("<b>bold</b> & <img src=x>");
        const QString hebrew = QStringLiteral("לקנות חלב");
        const QString page =
            exported(contentOf({recordOf(greek, markup), recordOf(cyrillic, hebrew)})).join(QString());
        QVERIFY(page.contains(greek));
        QVERIFY(page.contains(cyrillic));
        QVERIFY(page.contains(markup));
        // The reader of the file sets the letters of this script apart.
        QVERIFY(QString(page).remove(u' ').contains(QString(hebrew).remove(u' ')));
    }

    void longTextsAreBrokenBetweenWordsInEveryAlphabet_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("latin") << QStringLiteral("Zahnarzttermin");
        QTest::newRow("latin with marks") << QStringLiteral("Überprüfungsgrößen");
        QTest::newRow("greek") << QStringLiteral("υπενθύμιση");
        QTest::newRow("cyrillic") << QStringLiteral("Напоминание");
    }

    void longTextsAreBrokenBetweenWordsInEveryAlphabet()
    {
        QFETCH(const QString, word);
        const QString page =
            exported(contentOf({recordOf(QStringLiteral("x"), (word + u' ').repeated(60))})).value(0);
        int lines = 0;
        int words = 0;
        for (const QString& line : page.split(u'\n')) {
            const auto found = line.simplified().count(QString(word).simplified());
            words += static_cast<int>(found);
            lines += found > 1 ? 1 : 0;
        }
        QCOMPARE(words, 60);
        QVERIFY2(lines > 3 && lines < 30, qPrintable(QString::number(lines)));
    }

    void lineEndsOfAllKindsBreakTheDescription()
    {
        const QString page =
            exported(contentOf({recordOf(QStringLiteral("x"), QStringLiteral("one\r\ntwo\nthree\rfour"))}))
                .value(0);
        const QStringList lines = page.split(u'\n');
        int found = 0;
        for (const char* word : {"one", "two", "three", "four"}) {
            found += static_cast<int>(lines.filter(QLatin1String(word)).size());
        }
        QCOMPARE(found, 4);
        QCOMPARE(
            lines.filter(QRegularExpression(QStringLiteral("one.*two|two.*three|three.*four"))).size(), 0);
    }

    void aPageIsFoundByItsRecord()
    {
        const ReportContent content = contentOf(recordsOf(60));
        const ReportLayout layout = laidOut(content, pageOf());
        for (int page = 0; page < layout.pageCount(); ++page) {
            QCOMPARE(layout.pageOf(layout.firstRecord(page)), page);
        }
        QCOMPARE(layout.pageOf(59), layout.pageCount() - 1);
        QCOMPARE(layout.pageOf(layout.firstRecord(1) - 1), 0);
    }

    void theChosenPagesArePrinted()
    {
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        QCOMPARE(chosenPages(printer, 3, 1), (std::vector<int>{0, 1, 2}));
        printer.setPrintRange(QPrinter::CurrentPage);
        QCOMPARE(chosenPages(printer, 3, 1), (std::vector<int>{1}));
        // Larger paper has fewer pages.
        QCOMPARE(chosenPages(printer, 3, 7), (std::vector<int>{2}));
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(2, 9);
        QCOMPARE(chosenPages(printer, 3, 0), (std::vector<int>{1, 2}));
        printer.setFromTo(7, 9);
        QCOMPARE(chosenPages(printer, 3, 0), (std::vector<int>{}));
        QPageRanges ranges;
        ranges.addPage(1);
        ranges.addRange(3, 4);
        printer.setPageRanges(ranges);
        QCOMPARE(chosenPages(printer, 5, 0), (std::vector<int>{0, 2, 3}));
        printer.setPrintRange(QPrinter::AllPages);
        printer.setPageOrder(QPrinter::LastPageFirst);
        QCOMPARE(chosenPages(printer, 3, 0), (std::vector<int>{2, 1, 0}));
    }

    // The printer's own resolution differs from the one that the pages were laid out at.
    void whatIsPrintedIsWhatIsExported()
    {
        const ReportContent content = contentOf(recordsOf(30));
        const QTemporaryDir folder;
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(QStringLiteral("printed.pdf")));
        printer.setResolution(300);
        printer.setPageLayout(pageOf());
        const ReportLayout layout = laidOut(content, printer.pageLayout());
        QVERIFY(paintPages(printer, layout, chosenPages(printer, layout.pageCount(), 0)));
        QCOMPARE(pagesOfPdf(printer.outputFileName()), exported(content));
    }

    void aPrinterThatCannotBePaintedOnIsAFailure()
    {
        const ReportContent content = contentOf(recordsOf(1));
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QStringLiteral("/nowhere/at/all.pdf"));
        const ReportLayout layout = laidOut(content, pageOf());
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("QPainter::begin\\(\\): Returned false")));
        QVERIFY(!paintPages(printer, layout, {0}));
    }

    void anExportReplacesAFileWhole()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("report.pdf"));
        QFile before(file);
        QVERIFY(before.open(QIODevice::WriteOnly));
        before.write(QByteArray(1000000, 'x'));
        before.close();
        const ReportContent content = contentOf(recordsOf(1));
        const ReportLayout layout = laidOut(content, pageOf());
        QVERIFY(!writePdf({file, content.caption, pageOf()}, layout, allPages(layout)));
        QVERIFY(pagesOfPdf(file).value(0).contains(QStringLiteral("record 1.")));
        QVERIFY(QFileInfo(file).size() < 1000000);
        QCOMPARE(
            QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
    }
};

AMBERTASK_TEST_MAIN(ReportLayoutTest)
#include "tst_report_layout.moc"
