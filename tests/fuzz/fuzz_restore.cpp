#include "TemporaryFile.h"
#include "data/ClsCategory.h"
#include "data/ClsDatabase.h"
#include "data/ClsTask.h"
#include "data/DataFileCheck.h"
#include "store/Connection.h"
#include "store/DatabaseEngine.h"
#include "store/RollbackJournal.h"
#include "system/Clock.h"
#include "system/RuntimeError.h"

#include <cstdint>

namespace
{

class StandingClock final : public Clock
{
public:
    Moment now() const override { return Moment(std::chrono::seconds(1'768'471'200)); }
};

} // namespace

// Any bytes as a file to restore: refused with an error, or everything in it can be read and new records
// can be written. The check itself changes nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFile file(QStringLiteral("data.dat"));
    static const StandingClock clock;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    file.write(bytes);
    QFile::remove(file.path() + QLatin1String("-journal"));
    QFile::remove(file.path() + QLatin1String("-wal"));
    QFile::remove(file.path() + QLatin1String("-shm"));
    const DatabaseEngine engine{file.folder(), &clock};
    QByteArray turned;
    try {
        useRollbackJournal(file.path());
        turned = file.read();
        requireServiceableDataFile(engine);
    } catch (const RuntimeError& error) {
        require(!error.text().isEmpty(), "a refusal says why");
        return 0;
    }
    require(file.read() == turned, "the check changes nothing");
    constexpr qsizetype Formats = 18;
    require(turned.mid(Formats, 2) == QByteArray(2, '\x01'), "it is in rollback-journal mode");
    require(bytes.mid(Formats, 2) != turned.mid(Formats, 2) || bytes == turned, "only others are turned");
    {
        Connection connection = ClsDatabase(engine).Connect();
        connection.open();
        const RecordSet verdict = connection.execute(QStringLiteral("pragma integrity_check"));
        require(verdict.text(0) == QLatin1String("ok"), "what is accepted is sound for the engine");
    }
    // From here on nothing may be refused: an exception ends the process.
    ClsTask task(engine);
    task.setTaskName(QStringLiteral("007"));
    task.setCategoryId(1);
    task.setReminderOn(true);
    task.setDueDateTime(clock.now());
    task.setReminderDateTime(clock.now());
    task.Add();
    task.readAll();
    ClsCategory category(engine);
    category.setCatName(QStringLiteral("another one"));
    category.Add();
    category.GetAllCategories();
    return 0;
}
