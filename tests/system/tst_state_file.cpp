#include "support/FileContent.h"
#include "support/TestMain.h"
#include "system/StateFile.h"

#include <QTemporaryDir>

class StateFileTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatWasSetIsFoundAgain()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a/b/window"));
        {
            StateFile file(path);
            QCOMPARE(file.value(QStringLiteral("place")), QString());
            file.set(QStringLiteral("place"), QStringLiteral("1 2 3 4"));
            file.set(QStringLiteral("column.0due date"), QStringLiteral("a=b"));
            file.save();
        }
        StateFile file(path);
        QCOMPARE(file.value(QStringLiteral("place")), QStringLiteral("1 2 3 4"));
        QCOMPARE(file.value(QStringLiteral("column.0due date")), QStringLiteral("a=b"));
        QCOMPARE(file.names(QStringLiteral("column.")), QStringList(QStringLiteral("column.0due date")));
        file.set(QStringLiteral("place"), {});
        file.save();
        QCOMPARE(contentOf(path), QByteArray("column.0due date=a=b\n"));
    }

    void anUnchangedStateIsNotWritten()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("window"));
        StateFile file(path);
        file.save();
        QVERIFY(!QFile::exists(path));
        file.set(QStringLiteral("folded"), QStringLiteral("yes"));
        file.save();
        QVERIFY(QFile::remove(path));
        file.set(QStringLiteral("folded"), QStringLiteral("yes"));
        file.save();
        QVERIFY(!QFile::exists(path));
    }

    void aDamagedFileGivesNoPlaceAndTakesANewOne_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("bytes") << QByteArray("\x00\xff\xfe=\x01\n\n=\n==\nplace", 17);
        QTest::newRow("huge") << QByteArray("place=1 2 3 4\n") + QByteArray(1'000'000, 'x');
    }
    void aDamagedFileGivesNoPlaceAndTakesANewOne()
    {
        QFETCH(const QByteArray, content);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("window"));
        writeText(path, content);
        StateFile file(path);
        QCOMPARE(file.value(QStringLiteral("place")), QString());
        file.set(QStringLiteral("place"), QStringLiteral("5 6 7 8"));
        file.save();
        QCOMPARE(StateFile(path).value(QStringLiteral("place")), QStringLiteral("5 6 7 8"));
    }

    void aFolderInItsPlaceIsLeftAlone()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("window"));
        QVERIFY(QDir().mkpath(path + QStringLiteral("/inside")));
        StateFile file(path);
        file.set(QStringLiteral("folded"), QStringLiteral("yes"));
        file.save();
        QVERIFY(QDir(path + QStringLiteral("/inside")).exists());
    }

    void aFileInThePlaceOfItsFolderIsLeftAlone()
    {
        const QTemporaryDir folder;
        const QString inTheWay = folder.filePath(QStringLiteral("ambertask"));
        writeText(inTheWay, "mine");
        StateFile file(inTheWay + QStringLiteral("/window"));
        file.set(QStringLiteral("folded"), QStringLiteral("yes"));
        file.save();
        QCOMPARE(contentOf(inTheWay), QByteArray("mine"));
    }

    void ofTwoProgramsTheLastOneWinsAndTheFileIsWhole()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("window"));
        StateFile one(path);
        StateFile other(path);
        one.set(QStringLiteral("place"), QStringLiteral("1 2 3 4"));
        other.set(QStringLiteral("folded"), QStringLiteral("yes"));
        one.save();
        other.save();
        QCOMPARE(contentOf(path), QByteArray("folded=yes\n"));
    }

    void withoutAPathNothingIsKept()
    {
        StateFile file({});
        file.set(QStringLiteral("folded"), QStringLiteral("yes"));
        file.save();
        QCOMPARE(file.value(QStringLiteral("folded")), QStringLiteral("yes"));
    }
};

AMBERTASK_TEST_MAIN(StateFileTest)
#include "tst_state_file.moc"
