#include "store/DatabaseError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "widgets/Combos.h"
#include "widgets/clsGuiLoader.h"

#include <QComboBox>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

namespace
{

/// Text and number of every entry: "Name 0".
QStringList entriesOf(const QComboBox& combo)
{
    QStringList entries;
    for (int i = 0; i < combo.count(); ++i) {
        entries.append(combo.itemText(i) + u' ' + combo.itemData(i).toString());
    }
    return entries;
}

} // namespace

class TestGuiLoader : public TestCase
{
    Q_OBJECT

private slots:
    void sortOrdersStandInTheirOrderWithTheirNumbers();
    void statusesStandInTheirOrderWithTheirNumbers();
    void prioritiesStandInTheirOrderWithTheirNumbers();
    void categoriesFollowAllInTheOrderOfTheStore();
    void theCategoryAtTheGivenIndexIsSelected();
    void loadingTwiceListsEveryEntryOnce();
    void aReloadKeepsTheSelectedCategoryThatMoved();
    void aReloadSelectsAllWhenTheSelectedCategoryIsGone();
    void aReloadWithoutAllKeepsTheSelectedCategory();
    void aReloadWithoutAllSelectsNoneWhenTheCategoryIsGone();
    void aReloadWithoutAllLeavesNothingSelectedWhenNothingWas();
    void aCategoryNameIsShownAsItIsWritten();
    void fillingAListReportsNoChoiceOfTheUser();
    void aFailureLeavesTheListAsItWas();
    void theLastEntryOfANumberIsSelected();
    void anUnknownNumberSelectsNone();
    void theNumberOfNothingIsTheGivenOne();

private:
    TestDatabase m_database;
    clsGuiLoader m_loader{m_database.engine()};
};

void TestGuiLoader::sortOrdersStandInTheirOrderWithTheirNumbers()
{
    QComboBox combo;
    m_loader.LoadSortByCombo(combo);
    QCOMPARE(entriesOf(combo), QStringList({"None 4", "Name 0", "Priority 3", "Status 1", "Due Date 2"}));
    QCOMPARE(combo.currentIndex(), 0);
}

void TestGuiLoader::statusesStandInTheirOrderWithTheirNumbers()
{
    QComboBox combo;
    m_loader.LoadStatusCombo(combo);
    QCOMPARE(entriesOf(combo),
        QStringList({"All 5", "Not Started 0", "In Progress 1", "Completed 2", "Waiting on someone else 3",
            "Deferred 4"}));
    QCOMPARE(combo.currentIndex(), 0);
}

void TestGuiLoader::prioritiesStandInTheirOrderWithTheirNumbers()
{
    QComboBox combo;
    m_loader.LoadPeriorityCombo(combo);
    QCOMPARE(entriesOf(combo), QStringList({"Normal 1", "Low 2", "High 0"}));
}

void TestGuiLoader::categoriesFollowAllInTheOrderOfTheStore()
{
    m_database.removeAllCategories();
    const qint16 zebra = m_database.addCategory(QStringLiteral("Zebra"));
    const qint16 ant = m_database.addCategory(QStringLiteral("Ant"));
    QComboBox combo;
    m_loader.LoadCategoriesCombo(combo);
    QCOMPARE(entriesOf(combo),
        QStringList({"All -2", QStringLiteral("Zebra %1").arg(zebra), QStringLiteral("Ant %1").arg(ant)}));
    QCOMPARE(combo.currentIndex(), 0);
}

void TestGuiLoader::theCategoryAtTheGivenIndexIsSelected()
{
    m_database.addCategory(QStringLiteral("More"));
    QComboBox combo;
    m_loader.LoadCategoriesCombo(combo, 1);
    QCOMPARE(combo.currentIndex(), 1);
}

void TestGuiLoader::loadingTwiceListsEveryEntryOnce()
{
    QComboBox combo;
    m_loader.LoadPeriorityCombo(combo);
    m_loader.LoadPeriorityCombo(combo);
    QCOMPARE(combo.count(), 3);
    m_loader.LoadStatusCombo(combo);
    m_loader.LoadStatusCombo(combo);
    QCOMPARE(combo.count(), 6);
    m_loader.LoadSortByCombo(combo);
    m_loader.LoadSortByCombo(combo);
    QCOMPARE(combo.count(), 5);
    m_loader.LoadCategoriesCombo(combo);
    const int count = combo.count();
    m_loader.LoadCategoriesCombo(combo);
    QCOMPARE(combo.count(), count);
}

void TestGuiLoader::aReloadKeepsTheSelectedCategoryThatMoved()
{
    m_database.removeAllCategories();
    const qint16 first = m_database.addCategory(QStringLiteral("first"));
    const qint16 second = m_database.addCategory(QStringLiteral("second"));
    QComboBox combo;
    m_loader.LoadCategoriesCombo(combo, 2);
    m_database.sql(QStringLiteral("delete from categories where cat_id = %1").arg(first));
    m_loader.reloadCategoriesCombo(combo);
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(combo.currentData().toInt(), int(second));
}

void TestGuiLoader::aReloadSelectsAllWhenTheSelectedCategoryIsGone()
{
    const qint16 gone = m_database.addCategory(QStringLiteral("gone"));
    QComboBox combo;
    m_loader.LoadCategoriesCombo(combo);
    selectNumber(combo, gone);
    m_database.sql(QStringLiteral("delete from categories where cat_id = %1").arg(gone));
    m_loader.reloadCategoriesCombo(combo);
    QCOMPARE(combo.currentText(), QStringLiteral("All"));
}

void TestGuiLoader::aReloadWithoutAllKeepsTheSelectedCategory()
{
    const qint16 kept = m_database.addCategory(QStringLiteral("kept"));
    QComboBox combo;
    m_loader.reloadCategoriesComboWithoutAll(combo);
    selectNumber(combo, kept);
    m_database.addCategory(QStringLiteral("new"));
    m_loader.reloadCategoriesComboWithoutAll(combo);
    QCOMPARE(combo.currentData().toInt(), int(kept));
    QCOMPARE(combo.findText(QStringLiteral("All")), -1);
    QVERIFY(combo.findText(QStringLiteral("new")) > 0);
}

void TestGuiLoader::aReloadWithoutAllSelectsNoneWhenTheCategoryIsGone()
{
    const qint16 gone = m_database.addCategory(QStringLiteral("gone"));
    QComboBox combo;
    m_loader.reloadCategoriesComboWithoutAll(combo);
    selectNumber(combo, gone);
    m_database.sql(QStringLiteral("delete from categories where cat_id = %1").arg(gone));
    m_loader.reloadCategoriesComboWithoutAll(combo);
    QCOMPARE(combo.currentIndex(), -1);
}

void TestGuiLoader::aReloadWithoutAllLeavesNothingSelectedWhenNothingWas()
{
    QComboBox combo;
    m_loader.reloadCategoriesComboWithoutAll(combo);
    QVERIFY(combo.count() > 0);
    QCOMPARE(combo.currentIndex(), -1);
}

void TestGuiLoader::aCategoryNameIsShownAsItIsWritten()
{
    const QString name = QStringLiteral("<b>R&D</b> 'quoted' \u05e9\u05dc\u05d5\u05dd");
    m_database.addCategory(name);
    QComboBox combo;
    m_loader.LoadCategoriesCombo(combo);
    QCOMPARE(combo.itemText(combo.count() - 1), name);
}

void TestGuiLoader::fillingAListReportsNoChoiceOfTheUser()
{
    QComboBox combo;
    const QSignalSpy chosen(&combo, &QComboBox::activated);
    m_loader.LoadCategoriesCombo(combo, 1);
    m_loader.reloadCategoriesCombo(combo);
    m_loader.LoadStatusCombo(combo);
    QCOMPARE(chosen.count(), 0);
}

void TestGuiLoader::aFailureLeavesTheListAsItWas()
{
    TestDatabase database;
    const clsGuiLoader loader(database.engine());
    QComboBox combo;
    loader.LoadCategoriesCombo(combo, 2);
    const QStringList before = entriesOf(combo);
    QVERIFY(QFile::remove(database.dataFile()));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, loader.LoadCategoriesCombo(combo));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, loader.reloadCategoriesCombo(combo));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, loader.reloadCategoriesComboWithoutAll(combo));
    QCOMPARE(entriesOf(combo), before);
    QCOMPARE(combo.currentIndex(), 2);
}

void TestGuiLoader::theLastEntryOfANumberIsSelected()
{
    QComboBox combo;
    combo.addItem(QStringLiteral("a"), 7);
    combo.addItem(QStringLiteral("b"), 7);
    combo.addItem(QStringLiteral("c"), 8);
    selectNumber(combo, 7);
    QCOMPARE(combo.currentIndex(), 1);
}

void TestGuiLoader::anUnknownNumberSelectsNone()
{
    QComboBox combo;
    combo.addItem(QStringLiteral("a"), 7);
    selectNumber(combo, 9);
    QCOMPARE(combo.currentIndex(), -1);
}

void TestGuiLoader::theNumberOfNothingIsTheGivenOne()
{
    QComboBox combo;
    combo.addItem(QStringLiteral("a"), 7);
    QCOMPARE(selectedNumber(combo, -5), 7);
    combo.setCurrentIndex(-1);
    QCOMPARE(selectedNumber(combo, -5), -5);
}

AMBERTASK_TEST_MAIN(TestGuiLoader)
#include "tst_gui_loader.moc"
