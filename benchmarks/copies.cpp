// Backup and restore of a large data file, and the copies that the program makes by itself.
#include "data/CopyDifference.h"
#include "data/DataFileCopies.h"
#include "data/DayCopy.h"
#include "data/KeptCopies.h"
#include "data/TaskChanges.h"
#include "limits/PlainCopy.h"
#include "support/Bench.h"
#include "support/TaskFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Bench bench(argc, argv);
    const TaskFile file({bench.size(1'150'000, 100)});
    const double size = static_cast<double>(QFileInfo(file.path()).size()) / 1e6;
    const DataFileCopies copies(file.engine());
    const QString backup = file.folder() + QStringLiteral("/backup.abk");
    const QString plain = file.folder() + QStringLiteral("/plain");
    // To a new file each time: replacing one would reuse the memory of the old one.
    const auto copy = [&] {
        QFile::remove(plain);
        plainCopy(file.path(), plain);
    };
    const auto backUp = [&] {
        QFile::remove(backup);
        copies.backUpTo(backup);
    };
    bench.ratio(QStringLiteral("Backup of %1 MB; plain copy with a flush").arg(size, 0, 'f', 0),
        bench.alternate(9, backUp, copy), 1.1);
    // As many as there are ids.
    const TaskFile full({bench.size(32'767, 100)});
    const DataFileCopies store(full.engine());
    const QString toRestore = full.folder() + QStringLiteral("/backup.abk");
    store.backUpTo(toRestore);
    bench.value(QStringLiteral("Restore of 32,767 tasks"),
        bench.median(9, [&] { store.restoreFrom(toRestore); }), 150, QStringLiteral("ms"));

    int status = 0;
    const auto change = [&](const DatabaseEngine& engine) {
        TaskChanges::setStatus(engine, {1}, ++status % 3);
    };
    const auto emptied = [&](const char* name) {
        QDir folder(full.folder() + QLatin1Char('/') + QLatin1String(name));
        for (const QString& former : folder.entryList(QDir::Files)) {
            folder.remove(former);
        }
        return folder;
    };
    QDir(full.folder()).mkdir(QStringLiteral("plain"));
    const auto firstOfTheDay = [&] {
        emptied("copies");
        DayCopy day(full.engine(), [](const QString&) {});
        DatabaseEngine engine = full.engine();
        engine.copies = &day;
        change(engine);
    };
    const auto anyOtherAndAPlainCopy = [&] {
        plainCopy(full.path(), emptied("plain").filePath(QStringLiteral("copy")));
        change(full.engine());
    };
    bench.ratio(
        QStringLiteral("The day's first change of 32,767 tasks; any other and a plain copy with a flush"),
        bench.alternate(21, firstOfTheDay, anyOtherAndAPlainCopy), 1.1);
    const QString kept = KeptCopies(full.engine()).list().first().path;
    bench.value(QStringLiteral("A copy of 32,767 tasks compared with the data file"),
        bench.median(9, [&] { differenceFromNow(full.engine(), kept); }), 150, QStringLiteral("ms"));
    return 0;
}
