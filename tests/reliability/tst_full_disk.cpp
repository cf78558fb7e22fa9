#include "categories/CategoriesPage.h"
#include "reliability/FaultyDisk.h"
#include "support/TestMain.h"
#include "support/TestServices.h"
#include "system/SingleInstance.h"

#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <stdexcept>

/// What a disk that takes no new file is no reason to refuse.
class TestFullDisk : public TestCase
{
    Q_OBJECT

private slots:
    void theProgramStartsAndASecondCopyIsKeptAway();
    void aFullDiskIsNoReasonNotToStartWithAPictureOfOnesOwn();
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

void TestFullDisk::aFullDiskIsNoReasonNotToStartWithAPictureOfOnesOwn()
{
    TestServices services;
    services.database.addCategory(QStringLiteral("Own"));
    services.database.sql(QStringLiteral("update categories set custom_icon=1,cat_icon_name='icon5.gif'"));
    CategoriesPage page(services.services, []() -> frmCategoryDetails& { throw std::logic_error("unused"); });
    FaultyDisk disk(services.database.folder().toStdString());
    disk.watch({});
    page.LoadCategories();
    disk.stopWatching();
    const auto write = std::find_if(disk.calls().begin(), disk.calls().end(),
        [](const FaultyDisk::Call& call) { return call.kind == FileCall::Write; });
    QVERIFY(write != disk.calls().end());
    const auto atCall = static_cast<std::size_t>(write - disk.calls().begin()) + 1;
    disk.watch({atCall, ENOSPC, FaultyDisk::Lasting::ForThisKind});
    QVERIFY_THROWS_NO_EXCEPTION(page.LoadCategories());
    disk.stopWatching();
    QVERIFY(disk.hasRefused());
    const auto categories = services.database.sql(QStringLiteral("select count(*) from categories")).toInt();
    QCOMPARE(page.findChild<QListWidget*>(QStringLiteral("lstViewCategories"))->count(), categories);
}

AMBERTASK_TEST_MAIN(TestFullDisk)
#include "tst_full_disk.moc"
