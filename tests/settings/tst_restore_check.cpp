#include "settings/RestoreUnderTest.h"
#include "support/TestMain.h"

#include <QtEndian>

/// What a restore accepts and what it refuses.
class TestRestoreCheck : public TestCase
{
    Q_OBJECT

private slots:
    void aFileThatIsNoBackupChangesNothing_data();
    void aFileThatIsNoBackupChangesNothing();
    void aBackupWithADamagedPageIsRefused_data();
    void aBackupWithADamagedPageIsRefused();
    void aBackupWithAnIndexOfItsOwnIsRestored_data();
    void aBackupWithAnIndexOfItsOwnIsRestored();
    void whatATaskWithoutACategoryHoldsKeepsNothingFromBeingRestored();
};

void TestRestoreCheck::aFileThatIsNoBackupChangesNothing_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray() << QByteArray();
    QTest::newRow("empty") << QByteArray() << QByteArray("");
    QTest::newRow("a text") << QByteArray() << QByteArray("Dear diary");
    QTest::newRow("only a header") << QByteArray() << QByteArray("SQLite format 3\0", 16);
    QTest::newRow("cut short") << QByteArray() << QByteArray("cut");
    QTest::newRow("damaged inside") << QByteArray() << QByteArray("damage");
    QTest::newRow("no tasks") << QByteArray("drop table tasks") << QByteArray();
    QTest::newRow("no categories") << QByteArray("drop table categories") << QByteArray();
    QTest::newRow("no settings") << QByteArray("drop table settings") << QByteArray();
    QTest::newRow("no origins") << QByteArray("drop table task_origins") << QByteArray();
    QTest::newRow("origins without a column")
        << QByteArray("alter table task_origins drop column uid") << QByteArray();
    QTest::newRow("an origin that is none")
        << QByteArray("drop table task_origins; create table task_origins(of_task integer primary key, uid, "
                      "properties); insert into task_origins(of_task) values(1)")
        << QByteArray();
    QTest::newRow("no repeats") << QByteArray("drop table repeats") << QByteArray();
    QTest::newRow("repeats without a column")
        << QByteArray("alter table repeats drop column lead") << QByteArray();
    QTest::newRow("repeats that would lose their leading zeros") << QByteArray(
        "pragma writable_schema=1; update sqlite_schema set sql=replace(sql,'rule TEXT','rule "
        "REAL') where name='repeats'") << QByteArray();
    QTest::newRow("a repeat from no moment on")
        << QByteArray("insert into repeats(of_task,rule,first_moment) values(1,'FREQ=DAILY','soon')")
        << QByteArray();
    QTest::newRow("a column less") << QByteArray("alter table tasks drop column played") << QByteArray();
    QTest::newRow("another database") << QByteArray(
        "drop table tasks; drop table settings; drop table categories;"
        "create table songs(title)") << QByteArray();
    QTest::newRow("a view instead of a table")
        << QByteArray("alter table tasks rename to t; create view tasks as select * from t") << QByteArray();
    QTest::newRow("a name that tasks and categories share")
        << QByteArray("alter table tasks add column cat_icon default 0") << QByteArray();
    QTest::newRow("a mark that tasks and categories share")
        << QByteArray("alter table categories add column dismissed default 0") << QByteArray();
    QTest::newRow("an order of tasks that nobody knows")
        << QByteArray("pragma writable_schema=1; update sqlite_schema set sql=replace(sql,"
                      "'task_name TEXT NOT NULL DEFAULT '''' COLLATE NOCASE',"
                      "'task_name TEXT NOT NULL DEFAULT '''' COLLATE OTHER')")
        << QByteArray();
    QTest::newRow("a moment that is none")
        << QByteArray("update tasks set task_due_date='soon'") << QByteArray();
    QTest::newRow("a reminder whose mark is no flag")
        << QByteArray("update tasks set played='no'") << QByteArray();
    QTest::newRow("settings that are no flags")
        << QByteArray("update settings set show_grid='yes'") << QByteArray();
    QTest::newRow("new tasks would count as played")
        << QByteArray("pragma writable_schema=1; update sqlite_schema set sql="
                      "replace(sql,'played INTEGER NOT NULL DEFAULT 0','played INTEGER NOT NULL DEFAULT 1')")
        << QByteArray();
    QTest::newRow("names would lose their leading zeros") << QByteArray(
        "pragma writable_schema=1; update sqlite_schema set sql="
        "replace(sql,'task_name TEXT','task_name REAL')") << QByteArray();
    QTest::newRow("an order of names that nobody knows")
        << QByteArray("pragma writable_schema=1; update sqlite_schema set sql=replace(sql,"
                      "'cat_name TEXT NOT NULL DEFAULT '''' COLLATE NOCASE',"
                      "'cat_name TEXT NOT NULL DEFAULT '''' COLLATE OTHER')")
        << QByteArray();
    QTest::newRow("no task ids are left")
        << QByteArray("update sqlite_sequence set seq=2147483647 where name='tasks'") << QByteArray();
    QTest::newRow("no category ids are left")
        << QByteArray("update sqlite_sequence set seq=32767 where name='categories'") << QByteArray();
    QTest::newRow("of a format that can only be read") << QByteArray() << QByteArray("format");
    QTest::newRow("a category id of 17 bits")
        << QByteArray("update categories set cat_id=70000 where cat_id=4") << QByteArray();
    const auto behindTheBackOf = [](const QByteArray& index, const QByteArray& change) {
        return "create table kept as select * from sqlite_schema where name='" + index
            + "'; pragma writable_schema=1; delete from sqlite_schema where name='" + index
            + "'; pragma writable_schema=reset; " + change
            + "; pragma writable_schema=1; insert into sqlite_schema select * from kept; "
              "pragma writable_schema=reset; drop table kept";
    };
    for (const char* index : {"tasks_by_reminder", "tasks_by_status", "tasks_by_category"}) {
        QTest::addRow("a task that %s lacks", index) << behindTheBackOf(index,
            "insert into tasks(cat_id,task_due_date,reminder_date_time) "
            "values(1,'2026-01-15 10:00:00','2026-01-15 10:00:00')")
                                                     << QByteArray();
        QTest::addRow("a task of %s that is gone", index)
            << behindTheBackOf(index, "delete from tasks") << QByteArray();
        QTest::addRow("a task that has changed behind the back of %s", index) << behindTheBackOf(
            index, "update tasks set task_status=task_status+1, cat_id=cat_id+1, dismissed=1-dismissed")
                                                                              << QByteArray();
    }
    QTest::newRow("a task that an index unknown to us lacks")
        << "create index i on tasks(task_due_date desc); "
            + behindTheBackOf("i", "update tasks set task_due_date='2026-01-16 10:00:00'")
        << QByteArray();
    QTest::newRow("a category that an index lacks") << "create index i on categories(cat_icon); "
            + behindTheBackOf("i", "update categories set cat_icon=9 where cat_id=1")
                                                    << QByteArray();
}

void TestRestoreCheck::aFileThatIsNoBackupChangesNothing()
{
    QFETCH(const QByteArray, sql);
    QFETCH(const QByteArray, content);
    RestoreUnderTest test;
    QString file = test.backup();
    if (!sql.isEmpty()) {
        execute(file, sql.constData());
    } else if (content == "cut") {
        writeText(file, contentOf(file).chopped(4096));
    } else if (content == "damage") {
        QByteArray bytes = contentOf(file);
        writeText(file, bytes.replace(4096, 8192, QByteArray(8192, '\x55')));
    } else if (content == "format") {
        constexpr int WriteFormat = 18;
        QByteArray bytes = contentOf(file);
        bytes[WriteFormat] = 9;
        writeText(file, bytes);
    } else if (content.isNull()) {
        file += QStringLiteral(".missing");
    } else {
        writeText(file, content);
    }
    const QByteArray before = contentOf(test.database.dataFile());
    test.restore(file);
    QVERIFY(contentOf(test.database.dataFile()) == before);
    QCOMPARE(test.files(), QStringList(QStringLiteral("data.dat")));
    QCOMPARE(test.restored.size(), 0);
    QVERIFY(test.checkerTimer.enabled);
}

void TestRestoreCheck::aBackupWithADamagedPageIsRefused_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("position");
    QTest::newRow("the kind of the page of tasks") << QStringLiteral("tasks") << 0;
    QTest::newRow("the number of tasks") << QStringLiteral("tasks") << 4;
    QTest::newRow("the place of a task") << QStringLiteral("tasks") << 9;
    for (const char* index : {"tasks_by_reminder", "tasks_by_status", "tasks_by_category"}) {
        const auto row = [index](const char* what, int position) {
            QTest::addRow("%s of %s", what, index) << QString::fromLatin1(index) << position;
        };
        row("the kind of the page", 0);
        row("the number of entries", 4);
        row("the place of an entry", 9);
        row("the order of entries", 11);
        row("the last byte of the first entry", 4095);
        row("its last but one", 4094);
    }
    QTest::newRow("the next page of a long text") << QStringLiteral("long text") << 3;
    QTest::newRow("the first free page") << QStringLiteral("head") << 35;
    QTest::newRow("the number of free pages") << QStringLiteral("head") << 39;
    QTest::newRow("a page in the list of free pages") << QStringLiteral("free pages") << 11;
    QTest::newRow("the length of that list") << QStringLiteral("free pages") << 7;
}

void TestRestoreCheck::aBackupWithADamagedPageIsRefused()
{
    QFETCH(const QString, page);
    QFETCH(const int, position);
    constexpr int PageSize = 4096;
    RestoreUnderTest test;
    execute(test.backup(),
        "insert into tasks(task_desc,cat_id,task_due_date,reminder_date_time) with recursive n(i) as "
        "(select 1 union all select i+1 from n where i<6) select case when i>4 then hex(zeroblob(9000)) else "
        "'' end, "
        "1, '2026-01-15 10:00:00', '2026-01-15 1'||i||':00:00' from n; delete from tasks where task_id=6");
    const QByteArray sound = contentOf(test.backup());
    QByteArray bytes = sound;
    const auto numberAt = [&bytes](qsizetype place) {
        return qFromBigEndian<qint32>(bytes.constData() + place);
    };
    int number = 1;
    if (page == QLatin1String("free pages")) {
        constexpr int FirstFreePage = 32;
        number = numberAt(FirstFreePage);
    } else if (page == QLatin1String("long text")) {
        const QByteArray text(PageSize - 4, '0');
        while (bytes.mid((number - 1) * PageSize + 4, text.size()) != text) {
            ++number;
        }
        QVERIFY(numberAt((number - 1) * PageSize) > 0);
    } else if (page != QLatin1String("head")) {
        number =
            test.database.sql(QStringLiteral("select rootpage from sqlite_schema where name='%1'").arg(page))
                .toInt();
    }
    const qsizetype place = (number - 1) * PageSize + position;
    bytes[place] = static_cast<char>(bytes.at(place) ^ 1);
    writeText(test.backup(), bytes);
    const QByteArray before = contentOf(test.database.dataFile());
    test.restore(test.backup());
    QVERIFY(contentOf(test.database.dataFile()) == before);
    QCOMPARE(test.restored.size(), 0);
    writeText(test.backup(), sound);
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 1);
}

// Only SQLite can tell whether it is sound.
void TestRestoreCheck::aBackupWithAnIndexOfItsOwnIsRestored_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::newRow("in another direction") << QByteArray("create index i on tasks(played, dismissed desc)");
    QTest::newRow("of an expression") << QByteArray("create index i on tasks(cat_id+1)");
    QTest::newRow("of categories") << QByteArray("create index i on categories(cat_icon)");
    QTest::newRow("of a status that is a fraction")
        << QByteArray("update tasks set played=0.5; create index i on tasks(played)");
    QTest::newRow("and a table of its own") << QByteArray("create table t(a primary key) without rowid");
}

void TestRestoreCheck::aBackupWithAnIndexOfItsOwnIsRestored()
{
    QFETCH(const QByteArray, sql);
    RestoreUnderTest test;
    execute(test.backup(), sql.constData());
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 1);
    QCOMPARE(test.tasks(), QStringList(QStringLiteral("before")));
}

// Nobody sees it.
void TestRestoreCheck::whatATaskWithoutACategoryHoldsKeepsNothingFromBeingRestored()
{
    RestoreUnderTest test;
    execute(test.backup(),
        "insert into tasks(task_name,cat_id,task_due_date,reminder_date_time,played) "
        "values('x',77,'soon','','no')");
    test.restore(test.backup());
    QCOMPARE(test.restored.size(), 1);
}

AMBERTASK_TEST_MAIN(TestRestoreCheck)
#include "tst_restore_check.moc"
