#include "categories/PageUnderTest.h"
#include "support/TestMain.h"
#include "widgets/WindowPlacement.h"

#include <QFile>
#include <QLineEdit>
#include <QSet>
#include <QSignalSpy>
#include <QWindow>

class CategoriesButtonsTest : public TestCase
{
    Q_OBJECT

private slots:
    void addOpensAnEmptyDialogOwnedByTheMainWindow();
    void addAfterAnEditAdds();
    void editLoadsTheSelectedCategory();
    void doubleClickAndEnterOpenTheEditDialog();
    void theDialogIsTopmostWhenTheSettingIsOn();
    void editWithNothingSelectedDoesNothing();
    void theButtonsDoNothingOnAnEmptyList();
    void editingACategoryThatIsGoneIsReported();
    void aCategoryThatIsGoneLeavesTheOpenDialogAlone();
    void unsavedInputIsAskedAboutBeforeTheDialogIsFilledAnew_data();
    void unsavedInputIsAskedAboutBeforeTheDialogIsFilledAnew();
    void withoutADataFileEditIsReported();
    void openingThePageSelectsTheFirstOfSeveral();
    void openingThePageLeavesASingleItemAlone();
    void helpIsAskedForOnlyOnceItIsThere();
    void theButtonsHaveTheirCaptionsAndUniqueKeys();
    void theTabKeyGoesFromTheListThroughTheButtons();
};

void CategoriesButtonsTest::addOpensAnEmptyDialogOwnedByTheMainWindow()
{
    PageUnderTest test;
    QVERIFY(test.show());
    test.press("btnAddCat");
    QVERIFY(test.dialog->isVisible());
    QVERIFY(test.dialog->tag().isEmpty());
    QVERIFY(!test.dialog->isModal());
    QVERIFY(!isTopmost(test.dialog.get()));
    QCOMPARE(test.dialog->windowHandle()->transientParent(), test.page->windowHandle());
    QVERIFY(test.database.statements().take().isEmpty());
}

void CategoriesButtonsTest::addAfterAnEditAdds()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    test.press("btnEditCat");
    test.press("btnAddCat");
    QVERIFY(test.dialog->tag().isEmpty());
    auto* name = test.dialog->findChild<QLineEdit*>(QStringLiteral("txtCatName"));
    QVERIFY(name->isEnabled());
    QCOMPARE(name->text(), QString());
}

void CategoriesButtonsTest::editLoadsTheSelectedCategory()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    const qint16 id = test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    test.select(1);
    test.database.statements().take();
    test.press("btnEditCat");
    QVERIFY(test.dialog->isVisible());
    QCOMPARE(test.dialog->tag(), QString::number(id));
    QCOMPARE(
        test.dialog->findChild<QLineEdit*>(QStringLiteral("txtCatName"))->text(), QStringLiteral("Home"));
    QCOMPARE(test.database.statements().take(),
        QStringList{QStringLiteral("select cat_id,cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from "
                                   "categories where cat_id = %1")
                        .arg(id)});
}

void CategoriesButtonsTest::doubleClickAndEnterOpenTheEditDialog()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    const qint16 id = test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    QVERIFY(test.show());

    QTest::mouseClick(test.list()->viewport(), Qt::LeftButton, {}, test.centreOf(1));
    QTest::mouseDClick(test.list()->viewport(), Qt::LeftButton, {}, test.centreOf(1));
    QVERIFY(test.dialog->isVisible());
    QCOMPARE(test.dialog->tag(), QString::number(id));

    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        test.dialog->hide();
        QTest::keyClick(test.list(), key);
        QVERIFY(test.dialog->isVisible());
    }
}

void CategoriesButtonsTest::theDialogIsTopmostWhenTheSettingIsOn()
{
    PageUnderTest test;
    test.alwaysOnTop = true;
    test.press("btnAddCat");
    QVERIFY(test.dialog->isVisible());
    QVERIFY(isTopmost(test.dialog.get()));
}

void CategoriesButtonsTest::editWithNothingSelectedDoesNothing()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.press("btnEditCat");
    test.press("btnDeleteCat");
    QTest::keyClick(test.list(), Qt::Key_Delete);
    QVERIFY(!test.dialog->isVisible());
    QCOMPARE(test.listed(), QStringLiteral("Work"));
}

void CategoriesButtonsTest::theButtonsDoNothingOnAnEmptyList()
{
    PageUnderTest test;
    test.page->LoadCategories();
    test.database.statements().take();
    test.press("btnEditCat");
    test.press("btnDeleteCat");
    QTest::keyClick(test.list(), Qt::Key_Return);
    QTest::keyClick(test.list(), Qt::Key_Delete);
    QVERIFY(!test.dialog->isVisible());
    QVERIFY(test.database.statements().take().isEmpty());
}

void CategoriesButtonsTest::editingACategoryThatIsGoneIsReported()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    test.database.removeAllCategories();
    test.dialogs.expectError(QStringLiteral("no longer exists"));
    test.press("btnEditCat");
    QVERIFY(!test.dialog->isVisible());
}

void CategoriesButtonsTest::aCategoryThatIsGoneLeavesTheOpenDialogAlone()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    test.database.removeAllCategories();
    test.press("btnAddCat");
    auto* name = test.dialog->findChild<QLineEdit*>(QStringLiteral("txtCatName"));
    QTest::keyClicks(name, QStringLiteral("half written"));
    test.dialogs.expectUnsaved(
        QStringLiteral("The changes to 'half written' are not saved."), MessageBoxes::Unsaved::Discard);
    test.dialogs.expectError(QStringLiteral("no longer exists"));
    test.press("btnEditCat");
    QCOMPARE(name->text(), QStringLiteral("half written"));
    QVERIFY(test.dialog->tag().isEmpty());
}

void CategoriesButtonsTest::unsavedInputIsAskedAboutBeforeTheDialogIsFilledAnew_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("add") << QStringLiteral("btnAddCat");
    QTest::newRow("edit") << QStringLiteral("btnEditCat");
}

void CategoriesButtonsTest::unsavedInputIsAskedAboutBeforeTheDialogIsFilledAnew()
{
    QFETCH(QString, button);
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    QVERIFY(test.show());
    test.press("btnAddCat");
    auto* name = test.dialog->findChild<QLineEdit*>(QStringLiteral("txtCatName"));
    name->setText(QStringLiteral("Garden"));
    const QString text = QStringLiteral("The changes to 'Garden' are not saved.");
    test.select(0);
    test.dialogs.expectUnsaved(text, MessageBoxes::Unsaved::Keep);
    test.press(button.toLatin1());
    QCOMPARE(name->text(), QStringLiteral("Garden"));
    QVERIFY(test.dialog->tag().isEmpty());
    test.dialogs.expectUnsaved(text, MessageBoxes::Unsaved::Save);
    test.press(button.toLatin1());
    QCOMPARE(test.database.sql(QStringLiteral("select group_concat(cat_name) from categories")).toString(),
        QStringLiteral("Work,Garden"));
    QVERIFY(test.dialog->isVisible());
    const bool edits = button == QLatin1String("btnEditCat");
    QCOMPARE(name->text(), edits ? QStringLiteral("Work") : QString());
    QCOMPARE(test.dialog->tag().isEmpty(), !edits);
    test.press(button.toLatin1());
}

void CategoriesButtonsTest::withoutADataFileEditIsReported()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.select(0);
    QVERIFY(QFile::remove(test.database.dataFile()));
    test.dialogs.expectError(QStringLiteral("data.dat"));
    test.press("btnEditCat");
    QVERIFY(!test.dialog->isVisible());
}

void CategoriesButtonsTest::openingThePageSelectsTheFirstOfSeveral()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    test.select(1);
    test.page->pageOpened();
    QCOMPARE(test.listed(), QStringLiteral("[Work] Home"));
}

void CategoriesButtonsTest::openingThePageLeavesASingleItemAlone()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    test.page->pageOpened();
    QCOMPARE(test.listed(), QStringLiteral("Work"));
}

void CategoriesButtonsTest::helpIsAskedForOnlyOnceItIsThere()
{
    PageUnderTest test;
    const QSignalSpy asked(test.page.get(), &CategoriesPage::helpRequested);
    test.press("btnHelpCategories");
    QCOMPARE(asked.count(), 0);
    test.page->setHelpEnabled(true);
    test.press("btnHelpCategories");
    QCOMPARE(asked.count(), 1);
}

void CategoriesButtonsTest::theButtonsHaveTheirCaptionsAndUniqueKeys()
{
    PageUnderTest test;
    QSet<QString> keys;
    const QList<QPair<const char*, const char*>> captions{{"btnAddCat", "Add"}, {"btnEditCat", "Edit"},
        {"btnDeleteCat", "Delete"}, {"btnHelpCategories", "Help"}};
    for (const auto& [name, caption] : captions) {
        const auto* button = test.find<QPushButton>(name);
        QVERIFY(button != nullptr);
        QCOMPARE(QString(button->text()).remove(QLatin1Char('&')), QLatin1String(caption));
        QVERIFY(!button->autoDefault());
        QVERIFY(!button->accessibleName().isEmpty());
        keys.insert(button->shortcut().toString());
    }
    QCOMPARE(keys.size(), captions.size());
}

void CategoriesButtonsTest::theTabKeyGoesFromTheListThroughTheButtons()
{
    PageUnderTest test;
    test.page->setHelpEnabled(true);
    QVERIFY(test.show());
    test.page->focusList();
    QTRY_VERIFY(test.list()->hasFocus());
    for (const char* next : {"btnAddCat", "btnEditCat", "btnDeleteCat", "btnHelpCategories"}) {
        QTest::keyClick(test.page->focusWidget(), Qt::Key_Tab);
        QCOMPARE(test.page->focusWidget()->objectName(), QLatin1String(next));
    }
}

AMBERTASK_TEST_MAIN(CategoriesButtonsTest)
#include "tst_categories_buttons.moc"
