#include "store/Connection.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QTest>

namespace
{

const QString DeleteSettings = QStringLiteral("delete from settings");
const QString CountSettings = QStringLiteral("select count(*) from settings");

/// A data file, and a DatabaseEngine that does not know yet whether the file is sound.
struct UnknownFile {
    Connection opened()
    {
        Connection connection(
            engine, QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
        connection.open();
        return connection;
    }
    /// Makes the list of free pages begin with a page of the table `tasks`: what is written next would be
    /// written over it. Nothing that only reads can notice.
    QByteArray damage()
    {
        const int page =
            database.sql(QStringLiteral("select rootpage from sqlite_schema where name='tasks'")).toInt();
        database.sql(QStringLiteral("create table t(x); drop table t"));
        QByteArray bytes = bytesOf(database.dataFile());
        constexpr int FirstFreePage = 32;
        bytes.replace(FirstFreePage, 4, QByteArray(3, '\0') + static_cast<char>(page));
        writeFile(database.folder(), QStringLiteral("data.dat"), bytes);
        return bytes;
    }

    TestDatabase database;
    bool sound = false;
    DatabaseEngine engine{database.folder(), &database.clock(), nullptr, nullptr, &sound};
};

} // namespace

class LookingThroughTest : public TestCase
{
    Q_OBJECT

private slots:
    void theFirstWritingLooksThroughTheFile();
    void readingDoesNot();
    void aDamagedFileIsReadButNotWrittenTo();
    void afterwardsItIsNotLookedThroughAgain();
    void anOddValueInARecordKeepsNothingFromBeingWritten();
};

void LookingThroughTest::theFirstWritingLooksThroughTheFile()
{
    UnknownFile file;
    Connection connection = file.opened();
    connection.execute(DeleteSettings);
    QVERIFY(file.sound);
    connection.close();
    QCOMPARE(file.database.sql(CountSettings).toInt(), 0);
}

void LookingThroughTest::readingDoesNot()
{
    UnknownFile file;
    file.opened().execute(QStringLiteral("select * from settings"));
    QVERIFY(!file.sound);
}

void LookingThroughTest::aDamagedFileIsReadButNotWrittenTo()
{
    UnknownFile file;
    aTask(file.database).add();
    const QByteArray bytes = file.damage();
    Connection connection = file.opened();
    QVERIFY(!connection.execute(QStringLiteral("select * from tasks")).atEnd());
    const auto error = caught([&] { connection.execute(DeleteSettings); });
    QVERIFY(error && error->kind() == DatabaseError::Kind::Storage);
    QVERIFY2(error->text().contains(file.database.dataFile())
            && error->text().contains(QLatin1String("malformed")),
        qPrintable(error->text()));
    connection.close();
    QVERIFY(!file.sound);
    QVERIFY(bytesOf(file.database.dataFile()) == bytes);
}

void LookingThroughTest::afterwardsItIsNotLookedThroughAgain()
{
    UnknownFile file;
    file.opened().execute(DeleteSettings);
    file.damage();
    QVERIFY(!caught([&] { file.opened().execute(QStringLiteral("update categories set cat_icon=1")); }));
}

void LookingThroughTest::anOddValueInARecordKeepsNothingFromBeingWritten()
{
    UnknownFile file;
    const auto define = [&](const char* old, const char* other) {
        file.database.sql(QStringLiteral("pragma writable_schema=1; update sqlite_schema set "
                                         "sql=replace(sql,'cat_desc %1','cat_desc %2')")
                              .arg(QLatin1String(old), QLatin1String(other)));
    };
    define("TEXT NOT NULL", "TEXT");
    file.database.sql(QStringLiteral("update categories set cat_desc=null"));
    define("TEXT", "TEXT NOT NULL");
    QVERIFY(file.database.sql(QStringLiteral("pragma quick_check")).toString() != QLatin1String("ok"));
    file.opened().execute(DeleteSettings);
    QCOMPARE(file.database.sql(CountSettings).toInt(), 0);
}

AMBERTASK_TEST_MAIN(LookingThroughTest)
#include "tst_looking_through.moc"
