#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"
#include "support/PdfFile.h"
#include "support/TestMain.h"
#include "system/Progress.h"
#include "widgets/printing/PageOutput.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace
{

constexpr int Pages = 100;

class NumberedPages final : public PrintedPages
{
public:
    int pageCount() const override { return Pages; }
    void paintPage(QPainter& painter, int page) const override
    {
        painter.setFont(QFont(QApplication::font().family(), 20));
        painter.drawText(QPointF(100, 1000), QStringLiteral("page %1").arg(page + 1));
    }
};

class CountingProgress final : public Progress
{
public:
    explicit CountingProgress(int cancelAt = Pages + 1) : m_cancelAt(cancelAt) { }
    void advance(qint64 done, qint64 total) override
    {
        steps.append(done);
        lastTotal = total;
        if (done == m_cancelAt) {
            throw Cancelled();
        }
    }

    QList<qint64> steps;
    qint64 lastTotal = 0;

private:
    int m_cancelAt;
};

struct Fixture {
    PdfTarget target() const { return {file, QStringLiteral("Numbers"), usualPage()}; }
    QStringList files() const
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("out.pdf"));
    NumberedPages pages;
};

} // namespace

class PageOutputTest : public TestCase
{
    Q_OBJECT

private slots:
    void thePagesAreWrittenInTheirOrder()
    {
        const Fixture f;
        QVERIFY(!writePdf(f.target(), f.pages, {4, 2}));
        const QStringList pages = pagesOfPdf(f.file);
        QCOMPARE(pages.size(), 2);
        QCOMPARE(pages[0].simplified(), QStringLiteral("page 5"));
        QCOMPARE(pages[1].simplified(), QStringLiteral("page 3"));
    }

    void eachPageIsToldOf()
    {
        const Fixture f;
        CountingProgress progress;
        QVERIFY(!writePdf(f.target(), f.pages, allPages(f.pages), &progress));
        QCOMPARE(progress.steps.size(), Pages);
        QCOMPARE(progress.steps.last(), Pages);
        QCOMPARE(progress.lastTotal, Pages);
        QCOMPARE(pagesOfPdf(f.file).size(), Pages);
    }

    void aCancelledFileIsNotThere()
    {
        const Fixture f;
        CountingProgress progress(50);
        QVERIFY_THROWS_EXCEPTION(
            Cancelled, (void)writePdf(f.target(), f.pages, allPages(f.pages), &progress));
        QCOMPARE(progress.steps.size(), 50);
        QCOMPARE(f.files(), QStringList());
    }

    void cancellingLeavesTheOlderFile()
    {
        const Fixture f;
        QFile old(f.file);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
        old.close();
        CountingProgress progress(Pages);
        QVERIFY_THROWS_EXCEPTION(
            Cancelled, (void)writePdf(f.target(), f.pages, allPages(f.pages), &progress));
        QCOMPARE(f.files(), QStringList(QStringLiteral("out.pdf")));
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), QByteArray("old"));
    }

    void anOlderFileKeepsWhoMayReadIt()
    {
        constexpr QFileDevice::Permissions Mode =
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadUser | QFileDevice::WriteUser;
        const Fixture f;
        QVERIFY(!writePdf(f.target(), f.pages, {1}));
        QVERIFY(QFile::permissions(f.file).testFlag(QFileDevice::ReadOther));
        QVERIFY(QFile::setPermissions(f.file, Mode));
        QVERIFY(!writePdf(f.target(), f.pages, {2}));
        QCOMPARE(QFile::permissions(f.file), Mode);
    }

    void aWriteProtectedFileStaysAsItIs()
    {
        const Fixture f;
        const QString folder = QFileInfo(f.file).absolutePath();
        QVERIFY(QFile::setPermissions(folder, QFileDevice::Permissions(0x7777)));
        QFile old(f.file);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
        old.close();
        const auto isRefused = [&f] {
            return writePdf(f.target(), f.pages, {1}).has_value();
        };
        QVERIFY(old.setPermissions(QFileDevice::Permissions(0x4444)));
        QCOMPARE(asAnOrdinaryUser(isRefused), 0);
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), QByteArray("old"));
        // In the same folder, for the same user.
        QVERIFY(old.setPermissions(QFileDevice::Permissions(0x6666)));
        QCOMPARE(asAnOrdinaryUser(isRefused), 1);
    }

    void aFullDiskIsAFailureAndLeavesNoHalfFile()
    {
        const Fixture f;
        const FullDisk disk(4096);
        const auto failure = writePdf(f.target(), f.pages, allPages(f.pages));
        QVERIFY(failure.has_value());
        QVERIFY(!failure->isEmpty());
        QCOMPARE(f.files(), QStringList());
    }
};

AMBERTASK_TEST_MAIN(PageOutputTest)
#include "tst_page_output.moc"
