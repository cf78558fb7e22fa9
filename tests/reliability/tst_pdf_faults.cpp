#include "reliability/Sweep.h"
#include "support/TestMain.h"
#include "widgets/printing/PageOutput.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <random>

namespace
{

/// A picture of noise on each page: the file is written in several pieces.
class NoisyPages final : public PrintedPages
{
public:
    NoisyPages()
    {
        std::mt19937 chance(1);
        for (int y = 0; y < m_noise.height(); ++y) {
            for (int x = 0; x < m_noise.width(); ++x) {
                m_noise.setPixel(x, y, static_cast<uint>(chance()));
            }
        }
    }
    int pageCount() const override { return 2; }
    void paintPage(QPainter& painter, int page) const override
    {
        painter.setFont(QFont(QApplication::font().family(), 20));
        painter.drawText(QPointF(100, 300), QStringLiteral("page %1").arg(page));
        painter.drawImage(QPointF(100, 600), m_noise);
    }

private:
    QImage m_noise{700, 700, QImage::Format_RGB32};
};

/// The content of "out.pdf" without what differs each time that it is written, or "none".
std::string fileIn(const std::string& folder)
{
    QFile file(QString::fromStdString(folder) + QStringLiteral("/out.pdf"));
    if (!file.open(QIODevice::ReadOnly)) {
        return "none";
    }
    QString text = QString::fromLatin1(file.readAll());
    for (const char* varies : {"D:\\d{14}[^)]*", "\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d[^<]*",
             "uuid:[-0-9a-f]{36}", "/ID \\[[^]]*\\]"}) {
        text.replace(QRegularExpression(QString::fromLatin1(varies)), QString());
    }
    return text.toStdString();
}

} // namespace

class TestPdfFaults : public TestCase
{
    Q_OBJECT

private slots:
    void aNewFileIsWholeOrNotThere();
    void anOlderFileIsReplacedWholeOrNotAtAll();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    void trySweep(const QTemporaryDir& folder)
    {
        const NoisyPages pages;
        const auto write = [&] {
            const PdfTarget target{
                folder.filePath(QStringLiteral("out.pdf")), QStringLiteral("Numbers"), usualPage()};
            return writePdf(target, pages, allPages(pages)) ? Told::Failure : Told::Success;
        };
        m_all.tryEverything(folder.path(), {write, fileIn});
    }

    SweepTotals m_all;
};

void TestPdfFaults::aNewFileIsWholeOrNotThere()
{
    const QTemporaryDir folder;
    trySweep(folder);
}

void TestPdfFaults::anOlderFileIsReplacedWholeOrNotAtAll()
{
    const QTemporaryDir folder;
    QFile older(folder.filePath(QStringLiteral("out.pdf")));
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("an older report") > 0);
    older.close();
    trySweep(folder);
}

AMBERTASK_TEST_MAIN(TestPdfFaults)
#include "tst_pdf_faults.moc"
