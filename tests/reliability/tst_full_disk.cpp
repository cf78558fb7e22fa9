#include "reliability/FaultyDisk.h"
#include "support/TestMain.h"
#include "system/SingleInstance.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// What a disk that takes no new file is no reason to refuse.
class TestFullDisk : public TestCase
{
    Q_OBJECT

private slots:
    void theProgramStartsAndASecondCopyIsKeptAway();
};

void TestFullDisk::theProgramStartsAndASecondCopyIsKeptAway()
{
    const QTemporaryDir folder;
    QFile data(folder.filePath(QStringLiteral("data.dat")));
    QVERIFY(data.open(QIODevice::WriteOnly));
    data.close();
    FaultyDisk disk(folder.path().toStdString());
    disk.watch({1, ENOSPC});
    const SingleInstance first(folder.path());
    QVERIFY(disk.hasRefused());
    disk.watch({1, ENOSPC});
    const SingleInstance second(folder.path());
    disk.stopWatching();
    QCOMPARE(first.failure(), QString());
    QVERIFY(!first.otherCopyRuns());
    QVERIFY(second.otherCopyRuns());
}

AMBERTASK_TEST_MAIN(TestFullDisk)
#include "tst_full_disk.moc"
