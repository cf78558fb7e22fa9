#include "categories/DialogUnderTest.h"
#include "support/TestMain.h"

#include <QFile>
#include <QSignalSpy>

class CategoryDialogSavingTest : public TestCase
{
    Q_OBJECT

private slots:
    void aNameOfOnlyBlanksIsRefused_data();
    void aNameOfOnlyBlanksIsRefused();
    void blanksAroundANameAreStored();
    void addingStoresWhatWasEntered();
    void addingRunsTwoStatements();
    void editingRunsOneUpdateAfterAskingForTheCategory();
    void theNameStaysLockedWhileEditing();
    void backToABuiltInIconForgetsThePicture();
    void theSameNameAgainIsRefusedAndSelected();
    void theViewsFollowInTheirOrder();
    void aStoreThatFailsKeepsTheDialogWithItsInput();
    void aCategoryDeletedMeanwhileKeepsTheInput();
};

void CategoryDialogSavingTest::aNameOfOnlyBlanksIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
}

void CategoryDialogSavingTest::aNameOfOnlyBlanksIsRefused()
{
    QFETCH(QString, name);
    DialogUnderTest test;
    QVERIFY(test.show());
    test.name()->setText(name);
    test.description()->setPlainText(QStringLiteral("kept"));
    test.description()->setFocus();
    test.dialogs.expectTell(MessageBoxes::Icon::Exclamation, QStringLiteral("Please enter category name."));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QVERIFY(test.name()->hasFocus());
    QCOMPARE(test.name()->text(), name);
    QCOMPARE(test.description()->toPlainText(), QStringLiteral("kept"));
    QVERIFY(test.database.statements().take().isEmpty());
}

void CategoryDialogSavingTest::blanksAroundANameAreStored()
{
    DialogUnderTest test;
    test.name()->setText(QStringLiteral("  Work "));
    test.press("btnOk");
    QCOMPARE(test.stored(), QStringLiteral("  Work ||0|0|"));
}

void CategoryDialogSavingTest::addingStoresWhatWasEntered()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    QTest::keyClicks(test.name(), QStringLiteral("Bob's"));
    QTest::keyClicks(test.description(), QStringLiteral("one two"));
    QTest::mousePress(test.icon(8), Qt::LeftButton);
    test.press("btnOk");
    QCOMPARE(test.stored(), QStringLiteral("Bob's|one two|8|0|"));
    QVERIFY(!test.dialog.isVisible());
}

void CategoryDialogSavingTest::addingRunsTwoStatements()
{
    DialogUnderTest test;
    test.name()->setText(QStringLiteral("Bob's"));
    test.press("btnOk");
    QCOMPARE(test.database.statements().take(),
        (QStringList{QStringLiteral("select * from categories where cat_name = 'Bob''s'"),
            QStringLiteral("insert into categories(cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name) "
                           "values('Bob''s','',0,0,'')")}));
}

void CategoryDialogSavingTest::editingRunsOneUpdateAfterAskingForTheCategory()
{
    DialogUnderTest test;
    const qint16 id = test.database.addCategory(QStringLiteral("Work"), 4);
    test.dialog.SetTag(QString::number(id));
    test.description()->setPlainText(QStringLiteral("new"));
    test.database.statements().take();
    test.press("btnOk");
    QCOMPARE(test.database.statements().take(),
        (QStringList{QStringLiteral("select cat_id,cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from "
                                    "categories where cat_id = %1")
                         .arg(id),
            QStringLiteral(
                "Update categories set cat_name = 'Work',cat_desc = 'new', cat_icon = 4,custom_icon = 0 "
                ",cat_icon_name = ''  where cat_id =  %1")
                .arg(id)}));
    QCOMPARE(test.stored(), QStringLiteral("Work|new|4|0|"));
}

void CategoryDialogSavingTest::theNameStaysLockedWhileEditing()
{
    DialogUnderTest test;
    test.dialog.SetTag(QString::number(test.database.addCategory(QStringLiteral("Work"))));
    QVERIFY(test.show());
    QVERIFY(!test.name()->isEnabled());
    QVERIFY(test.description()->hasFocus());
    QTest::keyClicks(test.description(), QStringLiteral("x"));
    QCOMPARE(test.name()->text(), QStringLiteral("Work"));
}

void CategoryDialogSavingTest::backToABuiltInIconForgetsThePicture()
{
    DialogUnderTest test;
    test.dialogs.expectError(QStringLiteral("icon5.gif"));
    test.dialog.SetTag(test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif")));
    test.choose(test.defaultIcon());
    test.dialog.SelectIcon(2);
    test.press("btnOk");
    QCOMPARE(test.stored(), QStringLiteral("Own||2|0|"));
}

void CategoryDialogSavingTest::theSameNameAgainIsRefusedAndSelected()
{
    DialogUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("wORK"));
    test.description()->setFocus();
    const QSignalSpy stored(&test.dialog, &frmCategoryDetails::categoryStored);
    test.dialogs.expectTell(
        MessageBoxes::Icon::Exclamation, QStringLiteral("A category with the same name already exists"));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QVERIFY(test.name()->hasFocus());
    QCOMPARE(test.name()->selectedText(), QStringLiteral("wORK"));
    QCOMPARE(stored.count(), 0);
    QCOMPARE(test.stored(), QStringLiteral("Work||0|0|"));
}

void CategoryDialogSavingTest::theViewsFollowInTheirOrder()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    QStringList order;
    const auto note = [&](const char* what) {
        order.append(QLatin1String(what) + QLatin1String(test.dialog.isVisible() ? " visible" : " hidden"));
    };
    connect(&test.dialog, &frmCategoryDetails::categoryStored, this, [&] { note("stored"); });
    connect(&test.dialog, &frmCategoryDetails::categorySaved, this, [&] { note("saved"); });
    connect(&test.dialog, &frmCategoryDetails::cancelled, this, [&] { note("cancelled"); });
    test.name()->setText(QStringLiteral("Work"));
    test.press("btnOk");
    QCOMPARE(order, (QStringList{QStringLiteral("stored visible"), QStringLiteral("saved hidden")}));
}

void CategoryDialogSavingTest::aStoreThatFailsKeepsTheDialogWithItsInput()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Work"));
    QVERIFY(QFile::remove(test.database.dataFile()));
    const QSignalSpy stored(&test.dialog, &frmCategoryDetails::categoryStored);
    test.dialogs.expectError(QStringLiteral("data.dat"));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QCOMPARE(test.name()->text(), QStringLiteral("Work"));
    QCOMPARE(stored.count(), 0);
}

void CategoryDialogSavingTest::aCategoryDeletedMeanwhileKeepsTheInput()
{
    DialogUnderTest test;
    test.dialog.SetTag(QString::number(test.database.addCategory(QStringLiteral("Work"))));
    QVERIFY(test.show());
    test.description()->setPlainText(QStringLiteral("long text"));
    test.database.removeAllCategories();
    const QSignalSpy stored(&test.dialog, &frmCategoryDetails::categoryStored);
    test.dialogs.expectError(QStringLiteral("no longer exists"));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QCOMPARE(test.description()->toPlainText(), QStringLiteral("long text"));
    QCOMPARE(stored.count(), 0);
    QCOMPARE(test.stored(), QString());
}

AMBERTASK_TEST_MAIN(CategoryDialogSavingTest)
#include "tst_category_dialog_saving.moc"
