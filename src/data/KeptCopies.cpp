#include "data/KeptCopies.h"

#include "data/ClsDatabase.h"
#include "data/CopyThinning.h"
#include "data/DataFileCopies.h"
#include "store/UnchangedFile.h"
#include "system/Clock.h"
#include "system/FileReplace.h"
#include "system/ProgramFolder.h"
#include "system/Progress.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>
#include <tuple>
#include <utility>
#include <vector>

namespace
{

constexpr std::array<std::pair<CopyOccasion, QLatin1String>, 5> NamesOfOccasions{
    {{CopyOccasion::Day, QLatin1String("first change")}, {CopyOccasion::Restore, QLatin1String("restore")},
        {CopyOccasion::Import, QLatin1String("import")}, {CopyOccasion::Deletion, QLatin1String("deletion")},
        {CopyOccasion::Upgrade, QLatin1String("upgrade")}}};

constexpr QFileDevice::Permissions AllPermissions = PrivateFolder | QFileDevice::ReadGroup
    | QFileDevice::WriteGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::WriteOther
    | QFileDevice::ExeOther;

/// What the name of a copy says. The names sort by time, and no file system refuses a character of theirs.
struct CopyName {
    Moment moment;
    CopyOccasion occasion;
    int number = 1; ///< of several in one second

    QString text() const
    {
        const auto* name = std::find_if(NamesOfOccasions.begin(), NamesOfOccasions.end(),
            [this](const auto& known) { return known.first == occasion; });
        const QString time = QString::fromStdString(storedText(moment)).replace(u':', u'-');
        const QString further = number == 1 ? QString() : QStringLiteral(" (%1)").arg(number);
        return QStringLiteral("%1 before %2%3.dat").arg(time, name->second, further);
    }
};

std::optional<CopyName> readName(const QString& text)
{
    static const QRegularExpression form(QStringLiteral(
        "^(\\d{4}-\\d\\d-\\d\\d \\d\\d)-(\\d\\d)-(\\d\\d) before ([a-z ]+)(?: \\((\\d{1,4})\\))?\\.dat$"));
    const QRegularExpressionMatch match = form.match(text);
    const auto moment = momentFromStoredText(QStringLiteral("%1:%2:%3")
                                                 .arg(match.captured(1), match.captured(2), match.captured(3))
                                                 .toStdString());
    const auto* occasion = std::find_if(NamesOfOccasions.begin(), NamesOfOccasions.end(),
        [&](const auto& known) { return known.second == match.captured(4); });
    if (!moment || occasion == NamesOfOccasions.end()) {
        return std::nullopt;
    }
    return CopyName{*moment, occasion->first, match.captured(5).isEmpty() ? 1 : match.captured(5).toInt()};
}

/// Hands out the data file under the write lock of a connection.
class Holding final : public CopyKeeper
{
public:
    explicit Holding(std::function<void(const UnchangedFile&)> work) : m_work(std::move(work)) { }
    /// Throws what the work throws: nothing is changed then.
    void aboutToChange(const UnchangedFile& file) override { m_work(file); }
    void copyTried(bool) override { }

private:
    std::function<void(const UnchangedFile&)> m_work;
};

bool isSame(const UnchangedFile& file, const QString& copy)
{
    QFile kept(copy);
    return kept.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && file.isSameAs(kept);
}

} // namespace

KeptCopies::KeptCopies(const DatabaseEngine& engine) : m_engine(engine.unheard())
{
    m_engine.progress = nullptr;
    // A damaged file is what it is.
    m_engine.knownSound = nullptr;
    m_engine.changes = nullptr;
}

QString KeptCopies::folder() const
{
    return pathIn(m_engine.programFolder, QStringLiteral("copies"));
}

QList<KeptCopy> KeptCopies::list() const
{
    std::vector<std::pair<CopyName, QFileInfo>> found;
    for (const QFileInfo& file : QDir(folder()).entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        if (const auto name = readName(file.fileName())) {
            found.emplace_back(*name, file);
        }
    }
    std::sort(found.begin(), found.end(), [](const auto& left, const auto& right) {
        return std::tie(left.first.moment, left.first.number)
            > std::tie(right.first.moment, right.first.number);
    });
    QList<KeptCopy> copies;
    for (const auto& [name, file] : found) {
        copies.append({name.moment, name.occasion, file.filePath(), file.size()});
    }
    return copies;
}

QString KeptCopies::keep(CopyOccasion occasion, Progress* progress) const
{
    QString why = attempt([&] {
        DataFileCopies(m_engine).leaveWriteAheadMode();
        Holding holding([&](const UnchangedFile& file) {
            const QList<KeptCopy> copies = list();
            // Whoever tries again what did not succeed needs no second copy, which would push out another.
            if (copies.isEmpty() || !isSame(file, copies.first().path)) {
                copyNow(occasion, file, copies, progress);
            }
        });
        DatabaseEngine locking = m_engine;
        locking.copies = &holding;
        Connection connection = ClsDatabase(locking).Connect();
        connection.open();
        connection.beginWriting();
        connection.abandon();
    });
    if (m_engine.copies != nullptr) {
        m_engine.copies->copyTried(why.isEmpty());
    }
    return why;
}

QString KeptCopies::keepOfToday(const UnchangedFile& file) const
{
    return attempt([&] {
        const Moment today = startOfDay(m_engine.clock->now());
        const QList<KeptCopy> copies = list();
        const bool isThere = std::any_of(copies.begin(), copies.end(),
            [today](const KeptCopy& copy) { return startOfDay(copy.moment) == today; });
        if (!isThere) {
            copyNow(CopyOccasion::Day, file, copies, nullptr);
        }
    });
}

void KeptCopies::copyNow(
    CopyOccasion occasion, const UnchangedFile& file, const QList<KeptCopy>& copies, Progress* progress) const
{
    requireRoomFor(file.size(), copies);
    replaceByWriting(
        newPath(occasion), PrivateFile, [&](QIODevice& target) { file.copyTo(target, progress); });
}

QString KeptCopies::attempt(const std::function<void()>& copy) const
{
    QString why;
    try {
        makeOwnFolder();
        copy();
    } catch (const Cancelled&) {
        throw;
    } catch (const std::exception& error) {
        why = reasonOf(error);
    }
    dropOld();
    return why;
}

void KeptCopies::makeOwnFolder() const
{
    const QFileInfo place(folder());
    if (place.exists() && !place.isDir()) {
        throw FileError(folder(), tr("it is not a folder"));
    }
    makeFolder(folder());
    // One that the user has put elsewhere by a link is the user's own. The files are private in any case.
    if (!place.isSymLink() && (QFileInfo(folder()).permissions() & AllPermissions) != PrivateFolder) {
        QFile::setPermissions(folder(), PrivateFolder);
    }
}

qint64 KeptCopies::roomWith(const QList<KeptCopy>& copies) const
{
    std::error_code error;
    const std::filesystem::space_info disk =
        std::filesystem::space(QFileInfo(folder()).filesystemFilePath(), error);
    if (error) {
        return roomForCopies(std::numeric_limits<qint64>::max());
    }
    auto free = static_cast<qint64>(disk.available);
    for (const KeptCopy& copy : copies) {
        free += copy.size;
    }
    return roomForCopies(free);
}

void KeptCopies::requireRoomFor(qint64 size, const QList<KeptCopy>& copies) const
{
    if (size > roomForCopies(std::numeric_limits<qint64>::max())) {
        throw FileError(folder(), FileError::reason(EFBIG));
    }
    if (size > roomWith(copies)) {
        throw FileError(folder(), tr("the disk is nearly full"));
    }
}

QString KeptCopies::newPath(CopyOccasion occasion) const
{
    CopyName name{m_engine.clock->now(), occasion};
    while (isPresent(pathIn(folder(), name.text()))) {
        ++name.number;
    }
    return pathIn(folder(), name.text());
}

void KeptCopies::dropOld() const
{
    const QList<KeptCopy> copies = list();
    std::vector<CopyInTime> inTime;
    for (const KeptCopy& copy : copies) {
        inTime.push_back({copy.moment, copy.size});
    }
    for (const std::size_t place : copiesToDrop(inTime, m_engine.clock->now(), roomWith(copies))) {
        // One that stays is tried again with the next copy.
        QFile::remove(copies[static_cast<qsizetype>(place)].path);
    }
}
