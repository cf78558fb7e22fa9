#include "data/ClsCategory.h"
#include "data/HardTexts.h"
#include "store/Connection.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

const QString SelectAll =
    QStringLiteral("select cat_id,cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from categories");

ClsCategory aCategory(const TestDatabase& database)
{
    ClsCategory category(database.engine());
    category.setCatName(QStringLiteral("Bob's"));
    category.setDescription(QStringLiteral("it's his"));
    category.setIconId(7);
    category.setIsCustomIcon(true);
    category.setCustomIconName(QStringLiteral("icon'1.gif"));
    return category;
}

/// Tries to write before each statement, as another process may.
class OtherWriter final : public StatementListener
{
public:
    explicit OtherWriter(const TestDatabase& database) : m_database(database) { }
    void connectionOpened(const QString&) override { }
    void statementExecuted(QStringView) override
    {
        Connection other(m_database.engine(),
            QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + m_database.dataFile());
        other.open();
        refused += caught<DatabaseError>([&] { other.beginWriting(); }) ? 1 : 0;
        other.abandon();
    }
    void connectionClosed() override { }

    int refused = 0;

private:
    const TestDatabase& m_database;
};

} // namespace

class ClsCategoryTest : public TestCase
{
    Q_OBJECT

private slots:
    void aNewCategoryIsEmpty();
    void addingSendsTheDuplicateTestAndTheInsert();
    void addedFieldsAreReadBack();
    void addingANameInOtherCaseIsRefused_data();
    void addingANameInOtherCaseIsRefused();
    void nobodyWritesBetweenTheDuplicateTestAndTheInsert();
    void updatingSendsItsStatement();
    void updatingToAnExistingNameIsAccepted();
    void updatingAnUnknownIdChangesNothing();
    void deletingSendsBothStatementsOnOneConnection();
    void deletingRemovesTheTasksOfThatCategoryAlone();
    void aFailedSecondDeletionKeepsTheFirst();
    void aCategoryIsFoundByItsId();
    void anUnknownIdFindsNothing();
    void allCategoriesComeInTheOrderOfCreation();
    void noCategoriesMakeAnEmptyList();
    void anIdThatDoesNotFitIsAnOverflow();
    void aNullIsAConversionError();
    void hardTextsAreStoredAsTheyAre();
    void everyOperationOpensAndClosesItsOwnConnection();
    void aMissingFileGoesToTheCaller();
};

void ClsCategoryTest::aNewCategoryIsEmpty()
{
    TestDatabase database;
    const ClsCategory category(database.engine());
    QCOMPARE(category.Id(), qint16(0));
    QCOMPARE(category.CatName(), QString());
    QVERIFY(!category.IsCustomIcon());
}

void ClsCategoryTest::addingSendsTheDuplicateTestAndTheInsert()
{
    TestDatabase database;
    QCOMPARE(aCategory(database).Add(), false);
    QCOMPARE(database.statements().take(),
        (QStringList{QStringLiteral("select * from categories where cat_name = 'Bob''s'"),
            QStringLiteral("insert into categories(cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name) "
                           "values('Bob''s','it''s his',7,1,'icon''1.gif')")}));
}

void ClsCategoryTest::addedFieldsAreReadBack()
{
    TestDatabase database;
    aCategory(database).Add();
    QCOMPARE(database.sql(QStringLiteral("select custom_icon from categories where cat_id=5")).toInt(), 1);
    const auto category = ClsCategory(database.engine()).GetCatById(5);
    QVERIFY(category);
    QCOMPARE(category->Id(), qint16(5));
    QCOMPARE(category->CatName(), QStringLiteral("Bob's"));
    QCOMPARE(category->Description(), QStringLiteral("it's his"));
    QCOMPARE(category->IconId(), qint16(7));
    QCOMPARE(category->IsCustomIcon(), true);
    QCOMPARE(category->CustomIconName(), QStringLiteral("icon'1.gif"));
}

void ClsCategoryTest::addingANameInOtherCaseIsRefused_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("added");
    QTest::newRow("same") << QStringLiteral("Bob's") << QStringLiteral("Bob's");
    QTest::newRow("ASCII") << QStringLiteral("Garden") << QStringLiteral("gARDEN");
    QTest::newRow("Latin") << QStringLiteral(u"ÄRGER") << QStringLiteral(u"ärger");
    QTest::newRow("Greek") << QStringLiteral(u"Σ") << QStringLiteral(u"σ");
    QTest::newRow("empty") << QString() << QString();
}

void ClsCategoryTest::addingANameInOtherCaseIsRefused()
{
    QFETCH(const QString, stored);
    QFETCH(const QString, added);
    TestDatabase database;
    ClsCategory category(database.engine());
    category.setCatName(stored);
    QCOMPARE(category.Add(), false);
    category.setCatName(added);
    database.statements().take();
    QCOMPARE(category.Add(), true);
    QCOMPARE(database.statements().take().size(), 1);
    QCOMPARE(database.sql(QStringLiteral("select count(*) from categories")).toInt(), 5);
}

void ClsCategoryTest::nobodyWritesBetweenTheDuplicateTestAndTheInsert()
{
    const TestDatabase database;
    OtherWriter other(database);
    DatabaseEngine engine = database.engine();
    engine.listener = &other;
    ClsCategory category(engine);
    category.setCatName(QStringLiteral("Garden"));
    QVERIFY(!category.Add());
    QCOMPARE(other.refused, 2);
}

void ClsCategoryTest::updatingSendsItsStatement()
{
    TestDatabase database;
    ClsCategory category = aCategory(database);
    category.setId(2);
    category.Update();
    QCOMPARE(database.statements().take(),
        QStringList{
            QStringLiteral("Update categories set cat_name = 'Bob''s',cat_desc = 'it''s his', cat_icon = "
                           "7,custom_icon = 1 ,cat_icon_name = 'icon''1.gif'  where cat_id =  2")});
    QCOMPARE(ClsCategory(database.engine()).GetCatById(2)->CatName(), QStringLiteral("Bob's"));
    QCOMPARE(ClsCategory(database.engine()).GetCatById(1)->CatName(), QStringLiteral("Personal"));
}

void ClsCategoryTest::updatingToAnExistingNameIsAccepted()
{
    TestDatabase database;
    ClsCategory category(database.engine());
    category.setId(1);
    category.setCatName(QStringLiteral("Work"));
    category.Update();
    QCOMPARE(
        database.sql(QStringLiteral("select count(*) from categories where cat_name='Work'")).toInt(), 2);
}

void ClsCategoryTest::updatingAnUnknownIdChangesNothing()
{
    TestDatabase database;
    const auto before = database.rows(QStringLiteral("select * from categories"));
    ClsCategory category = aCategory(database);
    category.setId(77);
    category.Update();
    QCOMPARE(database.rows(QStringLiteral("select * from categories")), before);
}

void ClsCategoryTest::deletingSendsBothStatementsOnOneConnection()
{
    TestDatabase database;
    ClsCategory(database.engine()).DeleteById(3);
    QCOMPARE(database.statements().take(),
        (QStringList{QStringLiteral("delete from categories where cat_id = 3"),
            QStringLiteral("delete from tasks where cat_id = 3")}));
    QCOMPARE(database.statements().opened(), 1);
    QCOMPARE(database.statements().closed(), 1);
}

void ClsCategoryTest::deletingRemovesTheTasksOfThatCategoryAlone()
{
    TestDatabase database;
    aTask(database).in(3).add();
    const qint32 other = aTask(database).in(2).add();
    aTask(database).in(3).add();
    ClsCategory(database.engine()).DeleteById(3);
    QCOMPARE(database.rows(QStringLiteral("select task_id from tasks")),
        QList<QVariantList>{QVariantList{qint64(other)}});
    QCOMPARE(database.sql(QStringLiteral("select count(*) from categories where cat_id=3")).toInt(), 0);
}

void ClsCategoryTest::aFailedSecondDeletionKeepsTheFirst()
{
    TestDatabase database;
    aTask(database).in(3).add();
    database.sql(QStringLiteral("alter table tasks rename to elsewhere"));
    const auto error = caught([&] { ClsCategory(database.engine()).DeleteById(3); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    QCOMPARE(database.sql(QStringLiteral("select count(*) from categories where cat_id=3")).toInt(), 0);
    QCOMPARE(database.sql(QStringLiteral("select count(*) from elsewhere")).toInt(), 1);
}

void ClsCategoryTest::aCategoryIsFoundByItsId()
{
    TestDatabase database;
    const auto category = ClsCategory(database.engine()).GetCatById(2);
    QVERIFY(category);
    QCOMPARE(category->CatName(), QStringLiteral("Work"));
    QCOMPARE(category->IsCustomIcon(), false);
    QCOMPARE(database.statements().take(), QStringList{SelectAll + QStringLiteral(" where cat_id = 2")});
}

void ClsCategoryTest::anUnknownIdFindsNothing()
{
    TestDatabase database;
    QVERIFY(!ClsCategory(database.engine()).GetCatById(99));
    QVERIFY(!ClsCategory(database.engine()).GetCatById(-1));
    QCOMPARE(database.statements().take().last(), SelectAll + QStringLiteral(" where cat_id = -1"));
}

void ClsCategoryTest::allCategoriesComeInTheOrderOfCreation()
{
    TestDatabase database;
    database.sql(QStringLiteral("delete from categories where cat_id = 2"));
    database.addCategory(QStringLiteral("Added"), 4);
    QStringList names;
    for (const ClsCategory& category : ClsCategory(database.engine()).GetAllCategories()) {
        names.append(category.CatName());
    }
    QCOMPARE(names,
        (QStringList{QStringLiteral("Personal"), QStringLiteral("Shopping"), QStringLiteral("Appointments"),
            QStringLiteral("Added")}));
    QCOMPARE(database.statements().take(), QStringList{SelectAll});
}

void ClsCategoryTest::noCategoriesMakeAnEmptyList()
{
    TestDatabase database;
    database.removeAllCategories();
    QVERIFY(ClsCategory(database.engine()).GetAllCategories().empty());
}

void ClsCategoryTest::anIdThatDoesNotFitIsAnOverflow()
{
    TestDatabase database;
    database.sql(QStringLiteral("insert into categories(cat_id,cat_name) values(32767,'last')"));
    QCOMPARE(ClsCategory(database.engine()).GetAllCategories().back().Id(), qint16(32767));
    database.addCategory(QStringLiteral("too many"));
    const auto error = caught([&] { ClsCategory(database.engine()).GetAllCategories(); });
    QVERIFY(error);
    QVERIFY2(
        error->text().contains(QLatin1String("Overflow")) && error->text().contains(QLatin1String("32768")),
        qPrintable(error->text()));
}

void ClsCategoryTest::aNullIsAConversionError()
{
    TestDatabase database;
    database.sql(QStringLiteral("alter table categories drop column cat_desc"));
    database.sql(QStringLiteral("alter table categories add column cat_desc text"));
    const auto error = caught([&] { ClsCategory(database.engine()).GetCatById(1); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Conversion);
    QVERIFY2(error->text().contains(QLatin1String("cat_desc")), qPrintable(error->text()));
}

void ClsCategoryTest::hardTextsAreStoredAsTheyAre()
{
    TestDatabase database;
    database.removeAllCategories();
    const QStringList texts = hardTexts() + QStringList{longTextOfQuotes()};
    for (const QString& text : texts) {
        ClsCategory category(database.engine());
        category.setCatName(text);
        category.setDescription(text);
        category.setCustomIconName(text);
        QCOMPARE(category.Add(), false);
        category.setId(
            static_cast<qint16>(database.sql(QStringLiteral("select max(cat_id) from categories")).toInt()));
        category.Update();
        const auto read = category.GetCatById(category.Id());
        QCOMPARE(read->CatName(), text);
        QCOMPARE(read->Description(), text);
        QCOMPARE(read->CustomIconName(), text);
        QCOMPARE(category.Add(), true);
    }
    QCOMPARE(
        ClsCategory(database.engine()).GetAllCategories().size(), static_cast<std::size_t>(texts.size()));
}

void ClsCategoryTest::everyOperationOpensAndClosesItsOwnConnection()
{
    TestDatabase database;
    ClsCategory category = aCategory(database);
    category.Add();
    category.Add();
    category.Update();
    category.GetCatById(1);
    category.GetAllCategories();
    category.DeleteById(1);
    QCOMPARE(database.statements().opened(), 6);
    QCOMPARE(database.statements().closed(), 6);
}

void ClsCategoryTest::aMissingFileGoesToTheCaller()
{
    TestDatabase database;
    QVERIFY(QFile::remove(database.dataFile()));
    const auto error = caught([&] { ClsCategory(database.engine()).GetAllCategories(); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Storage);
    QVERIFY(!QFile::exists(database.dataFile()));
}

AMBERTASK_TEST_MAIN(ClsCategoryTest)
#include "tst_cls_category.moc"
