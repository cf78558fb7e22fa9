// Export and import of a full house.
#include "exchange/TaskExchange.h"
#include "limits/PlainCopy.h"
#include "support/Bench.h"
#include "support/TaskFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

namespace
{

constexpr double MostForExport = 1000;
constexpr double MostForImport = 2000;

/// Forgets what the user would not notice, so that the progress costs what it costs.
class QuietProgress final : public Progress
{
public:
    void advance(qint64, qint64) override { ++steps; }

    int steps = 0;
};

QByteArray exported(TaskExchange& exchange, const TaskFile& file, ExchangeFormat format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    exchange.exportTo(buffer, format, {}, file.engine(), nullptr);
    return buffer.data();
}

void bench(Bench& bench, const QString& name, ExchangeFormat format, const TaskFile& full)
{
    TaskExchange exchange(QStringLiteral("dd.MM.yyyy"));
    QuietProgress progress;
    const QByteArray bytes = exported(exchange, full, format);
    const QString file = full.folder() + QStringLiteral("/exported");
    bench.value(QStringLiteral("Export of 32,767 tasks, %1").arg(name),
        bench.median(5, [&] { exchange.exportTo(file, format, {}, full.engine(), &progress); }),
        MostForExport, QStringLiteral("ms"));

    // Into a store that is empty again each time.
    const TaskFile empty({0});
    const QString untouched = empty.folder() + QStringLiteral("/untouched");
    QFile::copy(empty.path(), untouched);
    const auto emptied = [&] {
        QFile::remove(empty.path());
        QFile::copy(untouched, empty.path());
    };
    bench.value(QStringLiteral("Import of 32,767 tasks, %1").arg(name),
        bench.median(5,
            [&] {
                emptied();
                QBuffer buffer;
                buffer.setData(bytes);
                buffer.open(QIODevice::ReadOnly);
                const ImportPlan plan = exchange.plan(buffer, format, empty.engine(), &progress);
                exchange.carryOut(plan, empty.engine(), &progress);
            }),
        MostForImport, QStringLiteral("ms"));

    // The same again: everything is compared, and nothing changes.
    bench.value(QStringLiteral("Comparison with 32,767 tasks that are stored, %1").arg(name),
        bench.median(5,
            [&] {
                QBuffer buffer;
                buffer.setData(bytes);
                buffer.open(QIODevice::ReadOnly);
                exchange.plan(buffer, format, full.engine(), &progress);
            }),
        MostForImport, QStringLiteral("ms"));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Bench measured(argc, argv);
    const TaskFile full({measured.size(32'767, 100)});
    bench(measured, QStringLiteral("iCalendar"), ExchangeFormat::ICalendar, full);
    bench(measured, QStringLiteral("CSV"), ExchangeFormat::Csv, full);
    return 0;
}
