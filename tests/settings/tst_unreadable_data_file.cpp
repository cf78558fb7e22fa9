#include "data/ClsDatabase.h"
#include "data/DataFileCopies.h"
#include "settings/DeadOperation.h"
#include "store/DatabaseError.h"
#include "support/CaughtError.h"
#include "support/OrdinaryUser.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QDir>
#include <sys/stat.h>

namespace
{

constexpr int Refused = 1;
constexpr int Done = 0;

/// A program folder of an ordinary user with what a process left that died in the middle of deleting two
/// hundred tasks, and a backup that holds one.
struct DeadProgram {
    DeadProgram()
    {
        aTask(database).named(QStringLiteral("backed up")).add();
        QVERIFY(QFile::copy(database.dataFile(), path("b.abk")));
        database.sql(QStringLiteral("delete from tasks"));
        database.sql(TwoHundredTasks);
        leaveDeadOperation(database.dataFile(), folder.path());
        QVERIFY(QFile::remove(path("work.dat")));
        if (geteuid() == 0) {
            constexpr uid_t nobody = 65534;
            for (const QString& name : files() + QStringList(QStringLiteral("."))) {
                QCOMPARE(chown(QFile::encodeName(folder.filePath(name)).constData(), nobody, nobody), 0);
            }
        }
    }
    ~DeadProgram()
    {
        for (const QString& name : files()) {
            chmod(QFile::encodeName(folder.filePath(name)).constData(), 0600);
        }
    }
    DeadProgram(const DeadProgram&) = delete;
    DeadProgram& operator=(const DeadProgram&) = delete;

    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    /// Takes a file away from everybody but the superuser.
    void hide(const char* name) const { setMode(name, 0); }
    void setMode(const char* name, int mode) const
    {
        QCOMPARE(chmod(QFile::encodeName(path(name)).constData(), static_cast<mode_t>(mode)), 0);
    }
    /// As the owner of the folder: Done, or Refused when it throws.
    int open() const
    {
        return tried([this] {
            Connection connection = ClsDatabase(engine).Connect();
            connection.open();
            connection.close();
        });
    }
    int backUp() const
    {
        return tried([this] { DataFileCopies(engine).backUpTo(path("new.abk")); });
    }
    int restore() const
    {
        return tried([this] { DataFileCopies(engine).restoreFrom(path("b.abk")); });
    }
    /// The number of tasks in a file of the folder, after SQLite has rolled back the journal beside it.
    int tasksIn(const QString& name) const
    {
        const QTemporaryDir copy;
        for (const QString& suffix : {QString(), QStringLiteral("-journal")}) {
            if (QFile::exists(folder.filePath(name + suffix))) {
                writeFile(copy.path(), QStringLiteral("data.dat") + suffix, bytesIn(name + suffix));
            }
        }
        return TestDatabase(copy.path()).sql(QStringLiteral("select count(*) from tasks")).toInt();
    }
    /// What lies in the folder and all its bytes.
    QList<QPair<QString, QByteArray>> content() const
    {
        QList<QPair<QString, QByteArray>> all;
        for (const QString& name : files()) {
            all.append({name, bytesIn(name)});
        }
        return all;
    }

    TestDatabase database;
    QTemporaryDir folder;
    DatabaseEngine engine{folder.path(), database.engine().clock, nullptr};

private:
    /// The bytes of a file that may be hidden, and stays so.
    QByteArray bytesIn(const QString& name) const
    {
        const QByteArray file = QFile::encodeName(folder.filePath(name));
        struct stat before {
        };
        stat(file.constData(), &before);
        chmod(file.constData(), 0600);
        QByteArray bytes = bytesOf(folder.filePath(name));
        chmod(file.constData(), before.st_mode & 07777);
        return bytes;
    }
    static int tried(const std::function<void()>& action)
    {
        return asAnOrdinaryUser([&] { return !caught<RuntimeError>(action).has_value(); });
    }
};

const QStringList OnlyWhatWasThere{
    QStringLiteral("b.abk"), QStringLiteral("data.dat"), QStringLiteral("data.dat-journal")};

} // namespace

/// A data file that its user may not read, beside it the journal of an operation that died.
class UnreadableDataFileTest : public TestCase
{
    Q_OBJECT

private slots:
    void theJournalWouldBringBackWhatThereWas()
    {
        const DeadProgram program;
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat")), 200);
        QCOMPARE(program.files(), OnlyWhatWasThere);
        QCOMPARE(program.open(), Done);
    }

    void nothingIsLostByWhatCannotBeDone_data()
    {
        QTest::addColumn<QByteArray>("hidden");
        QTest::newRow("the file") << QByteArray("data.dat");
        QTest::newRow("the journal") << QByteArray("data.dat-journal");
    }
    void nothingIsLostByWhatCannotBeDone()
    {
        QFETCH(const QByteArray, hidden);
        const DeadProgram program;
        program.hide(hidden.constData());
        const auto before = program.content();
        QCOMPARE(program.open(), Refused);
        QCOMPARE(program.backUp(), Refused);
        QVERIFY(program.content() == before);
        QCOMPARE(asAnOrdinaryUser([&] {
            DataFileCopies(program.engine).keepPrivate();
            DataFileCopies(program.engine).leaveWriteAheadMode();
            return true;
        }),
            Done);
        QVERIFY(program.content() == before);
        program.setMode(hidden.constData(), 0600);
        QCOMPARE(program.open(), Done);
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat")), 200);
    }

    void theFileIsNamedWithTheReason()
    {
        const DeadProgram program;
        program.hide("data.dat");
        QCOMPARE(asAnOrdinaryUser([&] {
            Connection connection = ClsDatabase(program.engine).Connect();
            const auto error = caught<DatabaseError>([&] { connection.open(); });
            return error.has_value() && error->text().contains(program.path("data.dat"))
                && error->text().contains(qt_error_string(EACCES));
        }),
            Done);
    }

    void aRestoreOverItKeepsItWithItsJournal()
    {
        const DeadProgram program;
        program.hide("data.dat");
        QCOMPARE(program.restore(), Done);
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat")), 1);
        QCOMPARE(program.files(),
            QStringList({QStringLiteral("b.abk"), QStringLiteral("data.dat"),
                QStringLiteral("data.dat.before-restore"),
                QStringLiteral("data.dat.before-restore-journal")}));
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat.before-restore")), 200);
        QCOMPARE(program.open(), Done);
    }

    void theJournalOfAnEarlierOneIsNotTakenForThatOfALaterOne()
    {
        const DeadProgram program;
        program.hide("data.dat");
        QCOMPARE(program.restore(), Done);
        QCOMPARE(program.restore(), Done);
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat")), 1);
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat.before-restore")), 1);
        QVERIFY(!QFile::exists(program.path("data.dat.before-restore-journal")));
    }

    void aJournalThatCannotBeReadHoldsARestore()
    {
        const DeadProgram program;
        program.hide("data.dat-journal");
        const auto before = program.content();
        QCOMPARE(program.restore(), Refused);
        QVERIFY(program.content() == before);
    }

    void whereNeitherCanBeReadARestoreKeepsBoth()
    {
        const DeadProgram program;
        program.hide("data.dat");
        program.hide("data.dat-journal");
        QCOMPARE(program.restore(), Done);
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat")), 1);
        QCOMPARE(program.tasksIn(QStringLiteral("data.dat.before-restore")), 200);
    }

    /// As after a run with the rights of the superuser. The system may refuse to give such a file a second
    /// name.
    void aRestoreOverTheFileOfAnotherUserKeepsItOrIsRefused()
    {
        const DeadProgram program;
        program.hide("data.dat");
        if (geteuid() == 0) {
            QCOMPARE(chown(QFile::encodeName(program.path("data.dat")).constData(), 0, 0), 0);
        }
        const auto before = program.content();
        if (program.restore() == Done) {
            QCOMPARE(program.tasksIn(QStringLiteral("data.dat")), 1);
            QCOMPARE(program.tasksIn(QStringLiteral("data.dat.before-restore")), 200);
        } else {
            QVERIFY(program.content() == before);
        }
    }

    void anUnreadableBackupChangesNothing()
    {
        const DeadProgram program;
        program.hide("b.abk");
        const auto before = program.content();
        QCOMPARE(program.restore(), Refused);
        QVERIFY(program.content() == before);
    }
};

AMBERTASK_TEST_MAIN(UnreadableDataFileTest)
#include "tst_unreadable_data_file.moc"
