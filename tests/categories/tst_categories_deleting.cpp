#include "categories/PageUnderTest.h"
#include "data/KeptCopies.h"
#include "support/FileContent.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "widgets/QuietLine.h"

#include <QFile>
#include <QSignalSpy>

namespace
{

/// The page with the category "Work", which has a task and is selected.
struct FilledPage : PageUnderTest {
    FilledPage()
    {
        aTask(database).in(database.addCategory(QStringLiteral("Work"))).add();
        page->LoadCategories();
        select(0);
    }
    QString said() const { return find<QuietLine>("lblCategoriesNote")->said(); }
};

} // namespace

class CategoriesDeletingTest : public TestCase
{
    Q_OBJECT

private slots:
    void deletingAsksWithTheNameBetweenSingleQuotes();
    void aNameOfMarkersStandsInTheQuestionAsItIs();
    void answeringNoChangesNothing();
    void theDeleteKeyAsks();
    void deletingACategoryRemovesItsTasks();
    void theListIsRebuiltBeforeTheOthersFollow();
    void deletingTheFirstSelectsWhatTakesItsPlace();
    void deletingTheLastSelectsTheNewLast();
    void deletingTheOnlyOneLeavesNothingSelected();
    void thePictureFileOfADeletedCategoryStays();
    void aFailureIsReportedAndTheCategoryStaysListed();
    void aDeletedCategoryIsInACopy();
    void aCategoryWithoutTasksIsNotWorthACopy();
    void withoutACopyItIsDeletedAndThePageSaysSo();

private:
    static QString question(const QString& name)
    {
        return QLatin1String("Are you sure you want to delete '") + name
            + QLatin1String("' category, all tasks under this category will be deleted?");
    }
};

void CategoriesDeletingTest::deletingAsksWithTheNameBetweenSingleQuotes()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    test.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 'Work' category, all tasks under "
                                          "this category will be deleted?"),
        true);
    test.press("btnDeleteCat");
    QCOMPARE(test.list()->count(), 0);
}

void CategoriesDeletingTest::aNameOfMarkersStandsInTheQuestionAsItIs()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("%1 <b>100 %2</b>"));
    test.page->LoadCategories();
    test.select(0);
    test.dialogs.expectAsk(question(QStringLiteral("%1 <b>100 %2</b>")), false);
    test.press("btnDeleteCat");
}

void CategoriesDeletingTest::answeringNoChangesNothing()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    test.select(0);
    test.database.statements().take();
    const QSignalSpy changed(test.page.get(), &CategoriesPage::categoriesChanged);
    test.dialogs.expectAsk(question(QStringLiteral("Work")), false);
    test.press("btnDeleteCat");
    QCOMPARE(test.listed(), QStringLiteral("[Work] Home"));
    QVERIFY(test.database.statements().take().isEmpty());
    QCOMPARE(changed.count(), 0);
}

void CategoriesDeletingTest::theDeleteKeyAsks()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    test.dialogs.expectAsk(question(QStringLiteral("Work")), false);
    QTest::keyClick(test.list(), Qt::Key_Delete);
    QVERIFY(test.dialogs.allUsed());
    // Held, it does not ask again.
    QTest::simulateEvent(test.list(), true, Qt::Key_Delete, {}, QString(), true);
}

void CategoriesDeletingTest::deletingACategoryRemovesItsTasks()
{
    PageUnderTest test;
    const qint16 work = test.database.addCategory(QStringLiteral("Work"));
    const qint16 home = test.database.addCategory(QStringLiteral("Home"));
    aTask(test.database).named(QStringLiteral("letter")).in(work).add();
    aTask(test.database).named(QStringLiteral("dishes")).in(home).add();
    test.page->LoadCategories();
    test.select(0);
    test.database.statements().take();
    test.dialogs.expectAsk(question(QStringLiteral("Work")), true);
    test.press("btnDeleteCat");

    QCOMPARE(test.database.rows(QStringLiteral("select task_name from tasks")),
        QList<QVariantList>{{QStringLiteral("dishes")}});
    QCOMPARE(test.database.statements().take(),
        (QStringList{QStringLiteral("delete from categories where cat_id = %1").arg(work),
            QStringLiteral("delete from tasks where cat_id = %1").arg(work),
            QStringLiteral(
                "select cat_id,cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from categories")}));
}

void CategoriesDeletingTest::theListIsRebuiltBeforeTheOthersFollow()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    test.select(0);
    test.database.sql(QStringLiteral("update categories set cat_name = 'House' where cat_name = 'Home'"));
    QString seen;
    connect(test.page.get(), &CategoriesPage::categoriesChanged, this, [&] { seen = test.listed(); });
    test.dialogs.expectAsk(question(QStringLiteral("Work")), true);
    test.press("btnDeleteCat");
    QCOMPARE(seen, QStringLiteral("[House]"));
}

void CategoriesDeletingTest::deletingTheFirstSelectsWhatTakesItsPlace()
{
    PageUnderTest test;
    for (const char* name : {"A", "B", "C"}) {
        test.database.addCategory(QLatin1String(name));
    }
    test.page->LoadCategories();
    test.select(1);
    test.dialogs.expectAsk(question(QStringLiteral("B")), true);
    test.press("btnDeleteCat");
    QCOMPARE(test.listed(), QStringLiteral("A [C]"));
    test.select(0);
    test.dialogs.expectAsk(question(QStringLiteral("A")), true);
    test.press("btnDeleteCat");
    QCOMPARE(test.listed(), QStringLiteral("[C]"));
}

void CategoriesDeletingTest::deletingTheLastSelectsTheNewLast()
{
    PageUnderTest test;
    for (const char* name : {"A", "B", "C"}) {
        test.database.addCategory(QLatin1String(name));
    }
    test.page->LoadCategories();
    test.select(2);
    test.dialogs.expectAsk(question(QStringLiteral("C")), true);
    test.press("btnDeleteCat");
    QCOMPARE(test.listed(), QStringLiteral("A [B]"));
}

void CategoriesDeletingTest::deletingTheOnlyOneLeavesNothingSelected()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    test.dialogs.expectAsk(question(QStringLiteral("Work")), true);
    test.press("btnDeleteCat");
    QCOMPARE(test.list()->count(), 0);
    QVERIFY(test.list()->selectedItems().isEmpty());
}

void CategoriesDeletingTest::thePictureFileOfADeletedCategoryStays()
{
    PageUnderTest test;
    const QString path = writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif"));
    test.page->LoadCategories();
    test.select(0);
    test.dialogs.expectAsk(question(QStringLiteral("Own")), true);
    test.press("btnDeleteCat");
    QVERIFY(QFile::exists(path));
}

void CategoriesDeletingTest::aFailureIsReportedAndTheCategoryStaysListed()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    QVERIFY(QFile::remove(test.database.dataFile()));
    const QSignalSpy changed(test.page.get(), &CategoriesPage::categoriesChanged);
    test.dialogs.expectAsk(question(QStringLiteral("Work")), true);
    test.dialogs.expectError(QStringLiteral("data.dat"));
    test.press("btnDeleteCat");
    QCOMPARE(test.listed(), QStringLiteral("[Work]"));
    QCOMPARE(changed.count(), 0);
}

void CategoriesDeletingTest::aDeletedCategoryIsInACopy()
{
    FilledPage test;
    const QByteArray before = contentOf(test.database.dataFile());
    test.dialogs.expectAsk(question(QStringLiteral("Work")), true);
    test.press("btnDeleteCat");
    const QList<KeptCopy> copies = KeptCopies(test.database.engine()).list();
    QCOMPARE(copies.size(), 1);
    QCOMPARE(copies.first().occasion, CopyOccasion::Deletion);
    QVERIFY(contentOf(copies.first().path) == before);
    QCOMPARE(test.said(), QStringLiteral("Category \"Work\" deleted with its tasks"));
}

void CategoriesDeletingTest::aCategoryWithoutTasksIsNotWorthACopy()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    test.dialogs.expectAsk(question(QStringLiteral("Work")), true);
    test.press("btnDeleteCat");
    QCOMPARE(test.list()->count(), 0);
    QVERIFY(KeptCopies(test.database.engine()).list().isEmpty());
}

void CategoriesDeletingTest::withoutACopyItIsDeletedAndThePageSaysSo()
{
    FilledPage test;
    writeText(test.database.folder() + QStringLiteral("/copies"), "not a folder");
    test.dialogs.expectAsk(question(QStringLiteral("Work")), true);
    test.press("btnDeleteCat");
    QCOMPARE(test.list()->count(), 0);
    QCOMPARE(test.said(),
        QStringLiteral("Category \"Work\" deleted with its tasks. No copy was kept: it is not a folder"));
}

AMBERTASK_TEST_MAIN(CategoriesDeletingTest)
#include "tst_categories_deleting.moc"
