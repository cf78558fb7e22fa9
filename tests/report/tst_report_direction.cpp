#include "report/ReportLayout.h"
#include "support/TestMain.h"
#include "tests/report/ReportSamples.h"
#include "widgets/printing/PageOutput.h"

#include <QPageSize>
#include <QPainter>
#include <QTest>

namespace
{

constexpr qreal PixelsPerUnit = 0.2;

QPageLayout pageOf(QPageSize::PageSizeId size = QPageSize::A4)
{
    return {QPageSize(size), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter};
}

/// The first page, that many pixels a unit.
QImage picture(const ReportContent& content, const QPageLayout& page, Qt::LayoutDirection direction)
{
    const QSizeF area = printableArea(page);
    const ReportLayout layout(std::make_shared<const ReportContent>(content), area, direction);
    QImage paper((area * PixelsPerUnit).toSize(), QImage::Format_Grayscale8);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(PixelsPerUnit, PixelsPerUnit);
    layout.paintPage(painter, 0);
    return paper;
}

bool isInk(const QImage& paper, int x, int y)
{
    return paper.valid(x, y) && qGray(paper.pixel(x, y)) < 128;
}

/// Dark pixels.
int ink(const QImage& paper)
{
    int count = 0;
    for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < paper.width(); ++x) {
            count += isInk(paper, x, y) ? 1 : 0;
        }
    }
    return count;
}

/// Dark pixels of one paper that have none on the other within a pixel to each side.
int inkBeside(const QImage& paper, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < paper.width(); ++x) {
            bool isMet = !isInk(paper, x, y);
            for (int there = x - 1; there <= x + 1; ++there) {
                isMet = isMet || isInk(other, there, y);
            }
            count += isMet ? 0 : 1;
        }
    }
    return count;
}

} // namespace

/// The report of texts that run from right to left, and of a program that is read so.
class ReportDirectionTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTextThatRunsFromRightToLeftBeginsAtTheRight()
    {
        const ReportContent content = contentOf({recordOf(QStringLiteral("שלום"))});
        const QImage paper = picture(content, pageOf(), Qt::LeftToRight);
        // The rightmost column of a record is the name's alone.
        const int top = static_cast<int>(millimetres(21) * PixelsPerUnit);
        const int width = static_cast<int>(millimetres(8) * PixelsPerUnit);
        const int height = static_cast<int>(millimetres(12) * PixelsPerUnit);
        QVERIFY(ink(paper.copy(paper.width() - width, top, width, height)) > 20);
    }

    void readFromRightToLeftTheReportIsMirrored_data()
    {
        QTest::addColumn<bool>("narrow");
        QTest::newRow("values side by side") << false;
        QTest::newRow("values below each other") << true;
    }

    void readFromRightToLeftTheReportIsMirrored()
    {
        // Of letters that are their own mirror image. The title is a name; it is not mirrored in itself.
        QFETCH(const bool, narrow);
        ReportContent content = contentOf({recordOf({})});
        for (ReportSection& section : content.sections) {
            for (ReportControl& control : section.controls) {
                control.caption =
                    control.name == QLatin1String("Label7") || control.name == QLatin1String("Label8")
                    ? QString()
                    : QStringLiteral("HIH");
            }
        }
        content.image = QImage(8, 8, QImage::Format_RGB32);
        content.image.fill(Qt::black);
        for (const std::size_t shortValue : {0, 2, 3, 4}) {
            content.records[0][shortValue] = QString(narrow ? 20 : 3, u'H');
        }
        const QPageLayout page = pageOf(narrow ? QPageSize::A6 : QPageSize::A4);
        const QImage usual = picture(content, page, Qt::LeftToRight);
        const QImage mirrored = picture(content, page, Qt::RightToLeft);
        QVERIFY(ink(usual) > 200);
        // Letters are set on whole pixels: some stems lie a little farther off.
        const QImage expected = usual.mirrored(true, false);
        QVERIFY2(inkBeside(expected, mirrored) * 10 < ink(expected),
            qPrintable(QString::number(inkBeside(expected, mirrored))));
        QVERIFY(inkBeside(mirrored, expected) * 10 < ink(mirrored));
        QVERIFY(inkBeside(usual, mirrored) * 2 > ink(usual));
    }

    void aNameAndADescriptionKeepTheirOwnDirectionInAMirroredReport()
    {
        ReportContent content = contentOf({recordOf(QStringLiteral("HHHH"), QStringLiteral("HHHH"))});
        const auto inkAtTheLeft = [&] {
            const QImage paper = picture(content, pageOf(), Qt::RightToLeft);
            return ink(paper.copy(0, 0, paper.width() / 20, paper.height()));
        };
        const int ofBoth = inkAtTheLeft();
        content.records[0][1].clear();
        const int ofTheDescription = inkAtTheLeft();
        content.records[0][5].clear();
        QVERIFY(inkAtTheLeft() + 10 < ofTheDescription);
        QVERIFY(ofTheDescription + 10 < ofBoth);
    }
};

AMBERTASK_TEST_MAIN(ReportDirectionTest)
#include "tst_report_direction.moc"
