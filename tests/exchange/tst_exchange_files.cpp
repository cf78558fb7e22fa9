#include "ExchangeUnderTest.h"
#include "support/CancellingProgress.h"
#include "support/CaughtError.h"
#include "support/FileContent.h"
#include "support/FullDisk.h"
#include "support/TestMain.h"
#include "system/FileReplace.h"
#include "system/Modules.h"

#include <QFileInfo>
#include <sys/stat.h>

namespace
{

/// Remembers what it was told.
class RecordedProgress final : public Progress
{
public:
    void advance(qint64 done, qint64 total) override { told.append({done, total}); }

    QList<std::pair<qint64, qint64>> told;
};

void addMany(ExchangeUnderTest& under)
{
    TaskStoring storing(under.database.engine());
    TaskRecord task;
    task.category = "Work";
    task.due = task.reminder = at(3, 1, 12, 0);
    task.description = std::string(1000, 'x');
    for (int i = 0; i < 2000; ++i) {
        task.name = "Task " + std::to_string(i);
        storing.put(task);
    }
    storing.finish();
}

} // namespace

class ExchangeFilesTest : public TestCase
{
    Q_OBJECT

private slots:
    void theEndOfTheNameSaysTheFormat();
    void aFileIsExportedAndImportedByItsName();
    void anExportIsReadableByOthersAsFarAsTheUmaskAllows();
    void aFullDiskLeavesTheFileAsItWas();
    void anExportCanBeCancelledAndLeavesTheFileAsItWas();
    void anImportCanBeCancelledAndStoresNothing();
    void progressIsTold();
    void whatCannotBeReadIsSaid();
    void theModuleIsLoadedAtItsFirstUse();
    void aMissingModuleIsSaid();
};

void ExchangeFilesTest::theEndOfTheNameSaysTheFormat()
{
    QVERIFY(exchangeFormatOf(QStringLiteral("a.ics")) == ExchangeFormat::ICalendar);
    QVERIFY(exchangeFormatOf(QStringLiteral("a.b.CSV")) == ExchangeFormat::Csv);
    QVERIFY(!exchangeFormatOf(QStringLiteral("a.txt")) && !exchangeFormatOf(QStringLiteral("ics")));
}

void ExchangeFilesTest::aFileIsExportedAndImportedByItsName()
{
    ExchangeUnderTest under;
    aTask(under.database).named(QStringLiteral("Task")).add();
    const QString file = under.database.folder() + QStringLiteral("/tasks.ics");
    writeText(file, "before");
    QCOMPARE(
        under.exchange.exportTo(file, ExchangeFormat::ICalendar, {}, under.database.engine(), nullptr), 1);
    QCOMPARE(under.exchange.plan(file, ExchangeFormat::ICalendar, under.database.engine(), nullptr).same, 1);
}

void ExchangeFilesTest::anExportIsReadableByOthersAsFarAsTheUmaskAllows()
{
    ExchangeUnderTest under;
    const QString file = under.database.folder() + QStringLiteral("/tasks.csv");
    for (const mode_t mask : {022U, 077U}) {
        const mode_t before = umask(mask);
        under.exchange.exportTo(file, ExchangeFormat::Csv, {}, under.database.engine(), nullptr);
        umask(before);
        struct stat found = {};
        QCOMPARE(stat(QFile::encodeName(file).constData(), &found), 0);
        QCOMPARE(found.st_mode & 0777U, 0644U & ~mask);
    }
}

void ExchangeFilesTest::aFullDiskLeavesTheFileAsItWas()
{
    ExchangeUnderTest under;
    addMany(under);
    const QString file = under.database.folder() + QStringLiteral("/tasks.ics");
    writeText(file, "before");
    const auto error = [&] {
        const FullDisk disk(100'000);
        return caught<FileError>([&] {
            under.exchange.exportTo(file, ExchangeFormat::ICalendar, {}, under.database.engine(), nullptr);
        });
    }();
    QVERIFY(error);
    QCOMPARE(contentOf(file), QByteArray("before"));
}

void ExchangeFilesTest::anExportCanBeCancelledAndLeavesTheFileAsItWas()
{
    ExchangeUnderTest under;
    addMany(under);
    const QString file = under.database.folder() + QStringLiteral("/tasks.ics");
    writeText(file, "before");
    CancellingProgress progress(CancellingProgress::At::FirstStep);
    QVERIFY(caught<Cancelled>([&] {
        under.exchange.exportTo(file, ExchangeFormat::ICalendar, {}, under.database.engine(), &progress);
    }));
    QVERIFY(progress.lastDone > 0);
    QCOMPARE(contentOf(file), QByteArray("before"));
}

void ExchangeFilesTest::anImportCanBeCancelledAndStoresNothing()
{
    ExchangeUnderTest from;
    addMany(from);
    ExchangeUnderTest to;
    for (const ExchangeFormat format : {ExchangeFormat::ICalendar, ExchangeFormat::Csv}) {
        QBuffer buffer;
        buffer.setData(from.exported(format));
        buffer.open(QIODevice::ReadOnly);
        CancellingProgress progress(CancellingProgress::At::FirstStep);
        QVERIFY(
            caught<Cancelled>([&] { to.exchange.plan(buffer, format, to.database.engine(), &progress); }));
        const ImportPlan plan = to.planOf(buffer.data(), format);
        QVERIFY(caught<Cancelled>([&] { to.exchange.carryOut(plan, to.database.engine(), &progress); }));
        QVERIFY(to.tasks().empty());
    }
}

void ExchangeFilesTest::progressIsTold()
{
    ExchangeUnderTest from;
    addMany(from);
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    RecordedProgress progress;
    from.exchange.exportTo(buffer, ExchangeFormat::ICalendar, {}, from.database.engine(), &progress);
    QVERIFY(progress.told.size() > 20 && progress.told.last().second == 2000);
    buffer.seek(0);
    progress.told.clear();
    ExchangeUnderTest to;
    const ImportPlan plan =
        to.exchange.plan(buffer, ExchangeFormat::ICalendar, to.database.engine(), &progress);
    QVERIFY(progress.told.size() > 20 && progress.told.last().second == buffer.size());
    progress.told.clear();
    to.exchange.carryOut(plan, to.database.engine(), &progress);
    QVERIFY(progress.told.size() > 5 && progress.told.last().second == 2000);
}

void ExchangeFilesTest::whatCannotBeReadIsSaid()
{
    ExchangeUnderTest under;
    const auto planned = [&](const QString& file) {
        return caught<RuntimeError>(
            [&] { under.exchange.plan(file, ExchangeFormat::ICalendar, under.database.engine(), nullptr); });
    };
    const auto missing = planned(under.database.folder() + QStringLiteral("/none.ics"));
    QVERIFY(missing && missing->text().contains(QLatin1String("none.ics")));
    const auto folder = planned(under.database.folder());
    QVERIFY(folder && folder->text().contains(QLatin1String("not a file")));
}

void ExchangeFilesTest::theModuleIsLoadedAtItsFirstUse()
{
    const QFileInfo module(QStringLiteral(AMBERTASK_EXCHANGE_MODULE));
    Modules modules(module.absolutePath(), {QLatin1String(ExchangeModule)});
    const std::unique_ptr<Exchange> exchange = loadExchange(modules);
    ExchangeUnderTest under;
    aTask(under.database).add();
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QCOMPARE(exchange->exportTo(buffer, ExchangeFormat::Csv, {}, under.database.engine()), 1);
    buffer.seek(0);
    QCOMPARE(exchange->plan(buffer, ExchangeFormat::Csv, under.database.engine()).same, 1);
    // An error of the module is one of the program.
    QVERIFY(caught<RuntimeError>(
        [&] { exchange->plan(buffer, ExchangeFormat::ICalendar, under.database.engine()); }));
}

void ExchangeFilesTest::aMissingModuleIsSaid()
{
    ExchangeUnderTest under;
    Modules modules(under.database.folder(), {QLatin1String(ExchangeModule)});
    const auto error = caught<RuntimeError>([&] { loadExchange(modules); });
    QVERIFY(error && error->text().contains(QLatin1String("ambertask_exchange")));
}

AMBERTASK_TEST_MAIN(ExchangeFilesTest)

#include "tst_exchange_files.moc"
