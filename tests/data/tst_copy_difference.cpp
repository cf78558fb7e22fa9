#include "data/CopyDifference.h"
#include "data/DataFileCopies.h"
#include "support/CaughtError.h"
#include "support/OrdinaryUser.h"
#include "support/TestMain.h"
#include "support/Unconstrained.h"
#include "tests/data/CopiesUnderTest.h"

namespace
{

/// A data file with five tasks, and a copy of it.
struct ComparedCopy : CopiesUnderTest {
    ComparedCopy()
    {
        for (int i = 1; i <= 5; ++i) {
            aTask(database).named(QStringLiteral("task %1").arg(i)).add();
        }
        kept().keep(CopyOccasion::Deletion);
        copy = kept().list().first().path;
    }

    CopyDifference difference() const { return differenceFromNow(engine, copy); }
    QString counts() const
    {
        const CopyDifference found = difference();
        return QStringLiteral("%1 of them %2 added %3 changed %4 gone%5")
            .arg(found.tasks)
            .arg(found.added)
            .arg(found.changed)
            .arg(found.gone)
            .arg(found.hasOtherCategories ? QStringLiteral(" other categories") : QString());
    }

    QString copy;
};

} // namespace

class TestCopyDifference : public TestCase
{
    Q_OBJECT

private slots:
    void whatIsTheSameHasNoDifference();
    void tasksAreAddedChangedAndGone();
    void everyColumnOfATaskCounts_data();
    void everyColumnOfATaskCounts();
    void aChangedRuleIsAChange();
    void aReminderThatHasSoundedIsNoChange();
    void categoriesCountWithTheirPictures();
    void thePlaceOfAPictureInTheListIsNoChange();
    void valuesThatDoNotConvertAreCompared();
    void anEmptyFileOnOneSide_data();
    void anEmptyFileOnOneSide();
    void aCopyOfAnEarlierVersionIsCompared();
    void aLaterVersionIsNamed();
    void whatIsNoDataFileIsNamed_data();
    void whatIsNoDataFileIsNamed();
    void aDamagedPageIsNoticed();
    void aCopyThatIsGoneIsNamed();
    void aCopyThatMayNotBeReadIsNamed();
    void aDataFileThatCannotBeReadIsNoFaultOfTheCopy();
    void nothingIsWrittenAndNothingTold();
};

void TestCopyDifference::whatIsTheSameHasNoDifference()
{
    const ComparedCopy test;
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 0 changed 0 gone"));
    QCOMPARE(test.difference().unusable, QString());
}

void TestCopyDifference::tasksAreAddedChangedAndGone()
{
    ComparedCopy test;
    test.database.sql(QStringLiteral("update tasks set task_name='other' where task_id in (2,4)"));
    test.database.sql(QStringLiteral("delete from tasks where task_id in (1,3,5)"));
    aTask(test.database).add();
    QCOMPARE(test.counts(), QStringLiteral("5 of them 1 added 2 changed 3 gone"));
}

void TestCopyDifference::everyColumnOfATaskCounts_data()
{
    QTest::addColumn<QString>("assignment");
    for (const char* assignment : {"task_name='TASK 1'", "task_desc='x'", "task_status=4", "cat_id=3",
             "task_due_date='2026-01-15 11:00:01'", "task_periority=0", "reminder_on=1",
             "reminder_date_time='2026-01-15 11:00:01'", "reminder_sound='a.wav'", "reminder_file='a.sh'",
             "dismissed=1", "task_name='task 1 '", "task_name=cast('task 1' as blob)"}) {
        QTest::newRow(assignment) << QString::fromLatin1(assignment);
    }
}

void TestCopyDifference::everyColumnOfATaskCounts()
{
    QFETCH(const QString, assignment);
    const ComparedCopy test;
    test.database.sql(QStringLiteral("update tasks set %1 where task_id=1").arg(assignment));
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 1 changed 0 gone"));
}

void TestCopyDifference::aChangedRuleIsAChange()
{
    const ComparedCopy test;
    const QByteArray without = test.content();
    test.database.sql(QStringLiteral("insert into repeats values(2,'FREQ=DAILY','2026-01-15 09:00:00',5,3)"));
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 1 changed 0 gone"));
    DataFileCopies(test.engine).backUpTo(test.copy);
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 0 changed 0 gone"));
    for (const char* change :
        {"update repeats set rule='FREQ=WEEKLY'", "update repeats set lead=6", "update repeats set done=4",
            "update repeats set first_moment='2026-01-16 09:00:00'", "delete from repeats"}) {
        const QByteArray before = test.content();
        test.database.sql(QString::fromLatin1(change));
        QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 1 changed 0 gone"));
        writeText(test.database.dataFile(), before);
    }
    writeText(test.copy, without);
    test.database.sql(QStringLiteral("update repeats set of_task=77"));
    // The rule of a task that is gone is nobody's.
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 0 changed 0 gone"));
}

void TestCopyDifference::aReminderThatHasSoundedIsNoChange()
{
    const ComparedCopy test;
    test.database.sql(QStringLiteral("update tasks set played=1"));
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 0 changed 0 gone"));
}

void TestCopyDifference::categoriesCountWithTheirPictures()
{
    const ComparedCopy test;
    for (const char* change : {"update categories set cat_name='other' where cat_id=1",
             "update categories set cat_desc='other' where cat_id=1",
             "update categories set cat_icon=(cat_icon+1)%12 where cat_id=1",
             "delete from categories where cat_id=1", "insert into categories(cat_name) values('other')"}) {
        const QByteArray before = test.content();
        test.database.sql(QString::fromLatin1(change));
        QVERIFY2(test.difference().hasOtherCategories, change);
        writeText(test.database.dataFile(), before);
        QVERIFY2(!test.difference().hasOtherCategories, change);
    }
}

void TestCopyDifference::thePlaceOfAPictureInTheListIsNoChange()
{
    const CopiesUnderTest test;
    test.database.sql(QStringLiteral("update categories set custom_icon=1,cat_icon=21 where cat_id=1"));
    test.kept().keep(CopyOccasion::Deletion);
    test.database.sql(QStringLiteral("update categories set cat_icon=22 where cat_id=1"));
    QVERIFY(!differenceFromNow(test.engine, test.kept().list().first().path).hasOtherCategories);
}

void TestCopyDifference::valuesThatDoNotConvertAreCompared()
{
    for (const Damage& damage : TaskDamages) {
        ComparedCopy test;
        dropConstraints(test.database);
        DataFileCopies(test.engine).backUpTo(test.copy);
        QCOMPARE(test.difference().added + test.difference().changed + test.difference().gone, 0);
        test.database.sql(
            QStringLiteral("update tasks set %1 where task_id=2").arg(QLatin1String(damage.set)));
        const CopyDifference found = test.difference();
        const bool isOfAnId = QLatin1String(damage.column) == QLatin1String("task_id");
        const bool isOfAMark = QLatin1String(damage.column) == QLatin1String("played");
        QVERIFY2(found.unusable.isEmpty(), damage.what);
        QCOMPARE(found.changed, isOfAnId || isOfAMark ? 0 : 1);
        QCOMPARE(found.added, isOfAnId ? 1 : 0);
        QCOMPARE(found.gone, isOfAnId ? 1 : 0);
        // Both ways.
        DataFileCopies(test.engine).backUpTo(test.copy);
        QCOMPARE(test.difference().changed, 0);
    }
}

void TestCopyDifference::anEmptyFileOnOneSide_data()
{
    QTest::addColumn<bool>("now");
    QTest::addColumn<QString>("expected");
    QTest::newRow("now") << true << QStringLiteral("5 of them 0 added 0 changed 5 gone");
    QTest::newRow("then") << false << QStringLiteral("0 of them 5 added 0 changed 0 gone");
}

void TestCopyDifference::anEmptyFileOnOneSide()
{
    QFETCH(const bool, now);
    QFETCH(const QString, expected);
    const ComparedCopy test;
    const QByteArray full = test.content();
    test.database.sql(QStringLiteral("delete from tasks"));
    if (!now) {
        writeText(test.copy, test.content());
        writeText(test.database.dataFile(), full);
    }
    QCOMPARE(test.counts(), expected);
}

void TestCopyDifference::aCopyOfAnEarlierVersionIsCompared()
{
    const ComparedCopy test;
    test.database.sql(
        QStringLiteral("drop index tasks_by_status; drop table repeats; pragma user_version=1"));
    DataFileCopies(test.engine).backUpTo(test.copy);
    DataFileCopies(test.engine).bringUp();
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 0 changed 0 gone"));
    test.database.sql(QStringLiteral("insert into repeats values(2,'FREQ=DAILY','2026-01-15 09:00:00',5,3)"));
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 1 changed 0 gone"));
    QCOMPARE(test.difference().unusable, QString());
}

void TestCopyDifference::aLaterVersionIsNamed()
{
    const ComparedCopy test;
    const QByteArray before = test.content();
    test.database.sql(QStringLiteral("pragma user_version=99"));
    writeText(test.copy, test.content());
    writeText(test.database.dataFile(), before);
    QVERIFY2(test.difference().unusable.contains(QLatin1String("later version")),
        qPrintable(test.difference().unusable));
}

void TestCopyDifference::whatIsNoDataFileIsNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a letter") << QByteArray("Dear Sir or Madam");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a head alone") << QByteArray("SQLite format 3\0", 16);
    QTest::newRow("the beginning") << contentOf(TestDatabase().dataFile()).left(9000);
}

void TestCopyDifference::whatIsNoDataFileIsNamed()
{
    QFETCH(const QByteArray, content);
    const ComparedCopy test;
    writeText(test.copy, content);
    QCOMPARE(test.difference().unusable, QStringLiteral("The file is damaged."));
    QCOMPARE(contentOf(test.copy), content);
    QCOMPARE(test.names().size(), 1);
}

void TestCopyDifference::aDamagedPageIsNoticed()
{
    const ComparedCopy test;
    QByteArray bytes = contentOf(test.copy);
    const int pages = test.database.sql(QStringLiteral("pragma page_count")).toInt();
    const qsizetype size = bytes.size() / pages;
    for (int page = 1; page < pages; ++page) {
        QByteArray damaged = bytes;
        writeText(test.copy, damaged.replace(page * size, size, QByteArray(size, '\x5a')));
        QVERIFY2(!test.difference().unusable.isEmpty(), qPrintable(QString::number(page)));
    }
}

void TestCopyDifference::aCopyThatIsGoneIsNamed()
{
    const ComparedCopy test;
    QVERIFY(QFile::remove(test.copy));
    QVERIFY(test.difference().unusable.contains(QLatin1String("does not exist")));
}

void TestCopyDifference::aCopyThatMayNotBeReadIsNamed()
{
    const ComparedCopy test;
    QVERIFY(QFile::setPermissions(test.copy, QFileDevice::WriteOwner));
    for (const QString& place : {test.database.folder(), test.folder(), test.database.dataFile()}) {
        constexpr auto All = QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
        QVERIFY(QFile::setPermissions(place, QFile::permissions(place) | All));
    }
    QCOMPARE(
        asAnOrdinaryUser([&] { return test.difference().unusable.contains(QLatin1String("no permission")); }),
        0);
}

void TestCopyDifference::aDataFileThatCannotBeReadIsNoFaultOfTheCopy()
{
    const ComparedCopy test;
    writeText(test.database.dataFile(), "no data file");
    QVERIFY(caught([&] { test.difference(); }).has_value());
}

void TestCopyDifference::nothingIsWrittenAndNothingTold()
{
    ComparedCopy test;
    // In write-ahead mode, and with what another program has left beside it.
    QByteArray bytes = contentOf(test.copy);
    writeText(test.copy, bytes.replace(18, 2, QByteArray(2, '\x02')));
    writeText(test.copy + QStringLiteral("-journal"), "left by another program");
    const QByteArray now = test.content();
    const QStringList names = test.names();
    test.database.statements().take();
    const int opened = test.database.statements().opened();
    QCOMPARE(test.counts(), QStringLiteral("5 of them 0 added 0 changed 0 gone"));
    QVERIFY(contentOf(test.copy) == bytes);
    QVERIFY(test.content() == now);
    QCOMPARE(test.names(), names);
    QCOMPARE(test.database.statements().opened(), opened);
}

AMBERTASK_TEST_MAIN(TestCopyDifference)
#include "tst_copy_difference.moc"
