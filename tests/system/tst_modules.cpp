#include "support/TestMain.h"
#include "system/Modules.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <fcntl.h>

namespace
{

const QString Name = QStringLiteral("a_module");
const QString Earlier = QStringLiteral(AMBERTASK_EARLIER_MODULE);
const QString Later = QStringLiteral(AMBERTASK_LATER_MODULE);

/// Where the modules of a program lie.
struct ModuleFolder {
    QTemporaryDir folder;

    QString path() const { return folder.path(); }
    QString file() const { return folder.filePath(Name + QStringLiteral(".so")); }
    /// Installs a module as packages do: as a new file that replaces the one there.
    void bring(const QString& module) const
    {
        const QString beside = folder.filePath(QStringLiteral("unfinished"));
        QVERIFY(QFile::copy(module, beside));
        QFile::remove(file());
        QVERIFY(QFile::rename(beside, file()));
    }
};

/// Which module it is; 0 for none.
int answerOf(Modules& modules)
{
    const auto answer = modules.resolve<int (*)()>(Name, "ambertaskTestModule");
    return answer == nullptr ? 0 : answer();
}

} // namespace

class ModulesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aModuleIsFoundByItsName()
    {
        const ModuleFolder folder;
        folder.bring(Earlier);
        Modules modules(folder.path(), {Name});
        QCOMPARE(answerOf(modules), 1);
        QCOMPARE(answerOf(modules), 1);
        QVERIFY(modules.resolve<void (*)()>(Name, "thereIsNoSuchFunction") == nullptr);
    }

    void aModuleWhoseFileIsGoneSinceTheStartIsLoaded()
    {
        const ModuleFolder folder;
        folder.bring(Earlier);
        Modules modules(folder.path(), {Name});
        QVERIFY(QDir(folder.path()).removeRecursively());
        QCOMPARE(answerOf(modules), 1);
    }

    void aModuleOfAnotherVersionInItsPlaceIsNot()
    {
        const ModuleFolder folder;
        folder.bring(Earlier);
        Modules modules(folder.path(), {Name});
        folder.bring(Later);
        QCOMPARE(answerOf(modules), 1);
    }

    void whatHasTakenThePlaceIsLoadedByTheNextStart()
    {
        const ModuleFolder folder;
        folder.bring(Earlier);
        {
            Modules modules(folder.path(), {Name});
            QCOMPARE(answerOf(modules), 1);
        }
        folder.bring(Later);
        Modules modules(folder.path(), {Name});
        QCOMPARE(answerOf(modules), 2);
    }

    void aModuleThatComesLaterIsFound()
    {
        const ModuleFolder folder;
        Modules modules(folder.path(), {Name});
        QCOMPARE(answerOf(modules), 0);
        folder.bring(Later);
        QCOMPARE(answerOf(modules), 2);
    }

    void aModuleThatNobodyNamedIsFoundByItsPath()
    {
        const ModuleFolder folder;
        folder.bring(Later);
        Modules modules(folder.path(), {});
        QCOMPARE(answerOf(modules), 2);
    }

    void aDamagedModuleIsNone()
    {
        const ModuleFolder folder;
        QFile file(folder.file());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("not a module") > 0);
        file.close();
        Modules modules(folder.path(), {Name});
        QCOMPARE(answerOf(modules), 0);
    }

    void aProgramWhoseFileIsGoneSinceTheStartIsStillReached()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(Name);
        const auto write = [&path](const char* text) {
            QFile::remove(path);
            QFile file(path);
            return file.open(QIODevice::WriteOnly) && file.write(text) > 0;
        };
        const auto read = [](const QString& name) {
            QFile file(name);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QVERIFY(write("earlier"));
        const Modules modules(folder.path(), {}, {Name});
        QCOMPARE(modules.program(Name), path);
        QVERIFY(write("later"));
        QCOMPARE(read(modules.program(Name)), QByteArray("earlier"));
        QVERIFY(QFile::remove(path));
        QCOMPARE(read(modules.program(Name)), QByteArray("earlier"));
    }

    void theHeldFilesAreNotPassedToStartedProgramsAndClosedAtTheEnd()
    {
        const ModuleFolder folder;
        folder.bring(Earlier);
        const QSet<int> before = openFiles();
        {
            Modules modules(folder.path(), {Name});
            const QSet<int> held = openFiles() - before;
            QCOMPARE(held.size(), 1);
            QVERIFY((::fcntl(*held.begin(), F_GETFD) & FD_CLOEXEC) != 0);
        }
        QCOMPARE(openFiles(), before);
    }

private:
    static QSet<int> openFiles()
    {
        QSet<int> handles;
        for (const QString& name :
            QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System)) {
            // The one of the listing itself is closed by now.
            if (::fcntl(name.toInt(), F_GETFD) != -1) {
                handles.insert(name.toInt());
            }
        }
        return handles;
    }
};

AMBERTASK_TEST_MAIN(ModulesTest)
#include "tst_modules.moc"
