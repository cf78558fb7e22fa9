#include "report/PreviewWindow.h"
#include "settings/SkinEngine.h"
#include "support/PdfFile.h"
#include "support/TestMain.h"
#include "tests/report/RecordedReportHost.h"
#include "tests/report/ReportSamples.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

namespace
{

struct Exported {
    explicit Exported(std::vector<std::vector<QString>> records)
    {
        PreviewWindow window(host, [] { return false; });
        window.setContent(contentOf(std::move(records)));
        window.exportTo(file);
        pageCount = window.pageCount();
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("report.pdf"));
    RecordedReportHost host;
    int pageCount = 0;
};

/// How much of a picture is darker than that, in thousandths.
double darkPart(const QImage& picture, int lightness)
{
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            dark += qGray(picture.pixel(x, y)) < lightness ? 1 : 0;
        }
    }
    return dark * 1000.0 / (picture.width() * picture.height());
}

} // namespace

/// The report as a PDF file, seen by a reader that is not ours.
class ReportPdfTest : public TestCase
{
    Q_OBJECT

private:
    static std::vector<std::vector<QString>> arabicRecords(int count)
    {
        std::vector<std::vector<QString>> records;
        for (int i = 0; i < count; ++i) {
            records.push_back(recordOf(QStringLiteral("\u0627\u0644\u0627\u062a\u0635\u0627\u0644"),
                QStringLiteral(
                    "\u0645\u0648\u0639\u062f \u0645\u0639 \u0627\u0644\u0637\u0628\u064a\u0628")));
        }
        return records;
    }

private slots:
    void everyPageIsBlackOnWhiteInADarkSkin_data()
    {
        QTest::addColumn<bool>("arabic");
        QTest::newRow("latin") << false;
        QTest::newRow("arabic") << true;
    }

    void everyPageIsBlackOnWhiteInADarkSkin()
    {
        QFETCH(const bool, arabic);
        SkinEngine engine;
        engine.loadSkinFile(QStringLiteral(AMBERTASK_SHIPPED_SKINS "/Midnight.skf"));
        engine.applySkin();
        QVERIFY(QApplication::palette().window().color().lightness() < 80);
        const Exported exported(arabic ? arabicRecords(60) : recordsOf(60));
        QVERIFY(exported.pageCount > 4);
        for (const int page : {1, exported.pageCount / 2, exported.pageCount}) {
            const QImage picture = pictureOfPdf(exported.file, page);
            QVERIFY(!picture.isNull());
            QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::white));
            QCOMPARE(picture.pixelColor(picture.width() - 1, picture.height() - 1), QColor(Qt::white));
            const double ink = darkPart(picture, 80);
            QVERIFY2(ink > 1, qPrintable(QStringLiteral("page %1: %2").arg(page).arg(ink)));
            QVERIFY2(darkPart(picture, 250) < 150, qPrintable(QString::number(page)));
        }
    }

    void arabicIsReadBackAsText()
    {
        const Exported exported(arabicRecords(1));
        const QString text =
            pagesOfPdf(exported.file).join(QString()).normalized(QString::NormalizationForm_KC);
        for (const QString& word :
            {QStringLiteral("\u0645\u0648\u0639\u062f"), QStringLiteral("\u0645\u0639")}) {
            QVERIFY2(text.contains(word), qPrintable(text));
        }
    }

    void arabicBeginsAtTheRight()
    {
        // A strip along the right margin, below the header: texts that run from left to right do not come so
        // far.
        const auto inkAtTheRight = [](std::vector<std::vector<QString>> records) {
            const Exported exported(std::move(records));
            const QImage picture = pictureOfPdf(exported.file, 1);
            constexpr int Margin = 59;
            constexpr int Strip = 31;
            return darkPart(picture.copy(picture.width() - Margin - Strip, 120, Strip, 120), 80);
        };
        QCOMPARE(inkAtTheRight(recordsOf(1)), 0.0);
        QVERIFY(inkAtTheRight(arabicRecords(1)) > 1);
    }
};

AMBERTASK_TEST_MAIN(ReportPdfTest)
#include "tst_report_pdf.moc"
