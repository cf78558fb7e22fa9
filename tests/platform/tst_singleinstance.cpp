#include "platform/SingleInstance.h"
#include "support/TestMain.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

class SingleInstanceTest : public TestCase
{
    Q_OBJECT

private slots:
    void theSecondCopyOnAFolderSeesTheFirst()
    {
        const QTemporaryDir folder;
        const SingleInstance first(folder.path());
        QVERIFY(!first.otherCopyRuns());
        const SingleInstance second(folder.path());
        QVERIFY(second.otherCopyRuns());
    }

    void copiesOnDifferentFoldersDoNotMeet()
    {
        const QTemporaryDir one;
        const QTemporaryDir other;
        const SingleInstance first(one.path());
        const SingleInstance second(other.path());
        QVERIFY(!second.otherCopyRuns());
    }

    void theGuardEndsWithItsCopyAndLeavesNothingBehind()
    {
        const QTemporaryDir folder;
        std::make_unique<SingleInstance>(folder.path()).reset();
        const SingleInstance next(folder.path());
        QVERIFY(!next.otherCopyRuns());
        QVERIFY(QDir(folder.path()).isEmpty());
    }
};

AMBERTASK_TEST_MAIN(SingleInstanceTest)
#include "tst_singleinstance.moc"
