#pragma once

#include "store/DatabaseEngine.h"
#include "system/Moment.h"

#include <QCoreApplication>
#include <QList>
#include <functional>

class Progress;
class UnchangedFile;

/// Before what a copy of the data file was made.
enum class CopyOccasion { Day, Restore, Import, Deletion, Upgrade };

/// A copy in the folder of copies.
struct KeptCopy {
    Moment moment; ///< when it was made
    CopyOccasion occasion;
    QString path;
    qint64 size; ///< bytes
};

/// The copies of the data file that the program makes by itself, in the folder "copies" of the program
/// folder. Each is a file of its own, byte for byte what the data file was, on the disk before the change
/// that it was made for, and private. Making one drops those that are not worth their room any more
/// (CopyThinning).
class KeptCopies
{
    Q_DECLARE_TR_FUNCTIONS(KeptCopies)

public:
    explicit KeptCopies(const DatabaseEngine& engine);

    QString folder() const;
    /// All copies, the newest first. Other files in the folder are passed over.
    QList<KeptCopy> list() const;

    /// Keeps a copy before a change other than the day's first. No connection of this process to the data
    /// file may be open; other processes may use it. A copy that would be the same as the newest one is not
    /// made again. Returns why there is no copy, in words that follow a colon; empty when there is one.
    /// Throws Cancelled only.
    QString keep(CopyOccasion occasion, Progress* progress = nullptr) const;
    /// Keeps a copy before the first change of a day, unless one of the day is there. Returns as above;
    /// throws nothing.
    QString keepOfToday(const UnchangedFile& file) const;

private:
    void makeOwnFolder() const;
    void requireRoomFor(qint64 size, const QList<KeptCopy>& copies) const;
    QString newPath(CopyOccasion occasion) const;
    QString attempt(const std::function<void()>& copy) const;
    void copyNow(CopyOccasion occasion, const UnchangedFile& file, const QList<KeptCopy>& copies,
        Progress* progress) const;
    qint64 roomWith(const QList<KeptCopy>& copies) const;
    void dropOld() const;

    DatabaseEngine m_engine; ///< only for reading the file: nothing of it is told
};
