#include "categories/CategoryList.h"
#include "categories/PageUnderTest.h"
#include "store/DatabaseError.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QFile>
#include <QHelpEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolTip>
#include <QtEndian>

class CategoriesListTest : public TestCase
{
    Q_OBJECT

private slots:
    void theListShowsEveryCategoryInTheOrderOfTheStore();
    void anItemCarriesItsIdDescriptionAndPicture();
    void loadingReadsOnceAndWritesNothingForBuiltInIcons();
    void aCustomPictureIsAppendedAndItsNumberWrittenBack();
    void everyLoadWritesAllNumbersWithOneCommit();
    void reloadingTwiceAppendsTwoPicturesAndStoresTheLatest();
    void aReloadDecodesNoPictureAnew();
    void aReloadKeepsTheSelectedCategory();
    void aReloadSelectsNothingWhenTheCategoryIsGone();
    void aMissingPictureKeepsItsPlaceAndIsReportedOnce();
    void aPictureBehindAFolderNameIsRefused_data();
    void aPictureBehindAFolderNameIsRefused();
    void aTextNamedGifKeepsItsPlace();
    void aPictureThatIsNotKnownYetHasAStandInUntilItIsRead();
    void theNextStartHasThePictureAtOnce();
    void theVisiblePageReportsAnUnreadablePictureByItself();
    void aPictureMissedWhileHiddenIsToldAfterwards();
    void anIconNumberOutsideOfTheListHasAStandIn();
    void anIconNumberThatDoesNotFitIsNotWritten();
    void withoutADataFileTheListStaysAsItWas();
    void theDescriptionIsShownAsPlainText();
    void aLabelIsNotEditedInPlace();
    void itemsHaveOneSizeWhateverTheirNames();
    void whereNothingIsSelectedTheFirstKeySelects();
    void aHeldEnterOpensOnce();
    void theFocusMakesNoCategoryTheCurrentOne();
};

void CategoriesListTest::theListShowsEveryCategoryInTheOrderOfTheStore()
{
    PageUnderTest test;
    for (const char* name : {"Work", "Alpha", "Middle"}) {
        test.database.addCategory(QLatin1String(name));
    }
    test.page->LoadCategories();
    QCOMPARE(test.listed(), QStringLiteral("Work Alpha Middle"));
    QCOMPARE(test.list()->viewMode(), QListView::IconMode);
}

void CategoriesListTest::whereNothingIsSelectedTheFirstKeySelects()
{
    PageUnderTest test;
    for (const char* name : {"Work", "Alpha"}) {
        test.database.addCategory(QLatin1String(name));
    }
    test.page->LoadCategories();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Home, Qt::Key_End}) {
        test.list()->clearSelection();
        // Where the focus comes to rest.
        test.list()->setCurrentRow(0, QItemSelectionModel::NoUpdate);
        QTest::keyClick(test.list(), key);
        QCOMPARE(test.listed(),
            key == Qt::Key_End ? QStringLiteral("Work [Alpha]") : QStringLiteral("[Work] Alpha"));
    }
}

void CategoriesListTest::aHeldEnterOpensOnce()
{
    PageUnderTest test;
    const QSignalSpy opened(test.find<CategoryList>("lstViewCategories"), &CategoryList::enterPressed);
    for (const bool isRepeat : {false, true, true}) {
        QTest::simulateEvent(test.list(), true, Qt::Key_Return, {}, QString(), isRepeat);
    }
    QCOMPARE(opened.size(), 1);
}

void CategoriesListTest::anItemCarriesItsIdDescriptionAndPicture()
{
    PageUnderTest test;
    const qint16 id = test.database.addCategory(QStringLiteral("Work"), 7);
    test.database.sql(QStringLiteral("update categories set cat_desc = 'At the office'"));
    test.page->LoadCategories();

    const QListWidgetItem* item = test.list()->item(0);
    QCOMPARE(item->data(Qt::UserRole).toInt(), int(id));
    QCOMPARE(item->toolTip(), QStringLiteral("At the office"));
    QCOMPARE(item->data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("At the office"));
    QCOMPARE(item->icon().cacheKey(), test.images.picture(8).cacheKey());
}

void CategoriesListTest::loadingReadsOnceAndWritesNothingForBuiltInIcons()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    QCOMPARE(test.database.statements().take(),
        QStringList{QStringLiteral(
            "select cat_id,cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from categories")});
    QCOMPARE(test.images.count(), 21);
}

void CategoriesListTest::aCustomPictureIsAppendedAndItsNumberWrittenBack()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), jpegOf(QSize(24, 24), Qt::green));
    const qint16 id = test.addCustom(QStringLiteral("It's"), QStringLiteral("icon5.gif"));
    test.page->LoadCategories();

    QCOMPARE(test.images.count(), 22);
    QCOMPARE(test.list()->item(0)->icon().cacheKey(), test.images.picture(22).cacheKey());
    QTRY_VERIFY(test.images.picture(22).pixmap(24, 24).toImage().pixelColor(12, 12).green() > 200);
    QCOMPARE(test.database.statements().take().value(1),
        QStringLiteral(
            "Update categories set cat_name = 'It''s',cat_desc = '', cat_icon = 21,custom_icon = 1 "
            ",cat_icon_name = 'icon5.gif'  where cat_id =  %1")
            .arg(id));
}

void CategoriesListTest::everyLoadWritesAllNumbersWithOneCommit()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    for (const char* name : {"Own", "Other", "Third"}) {
        test.addCustom(QString::fromLatin1(name), QStringLiteral("icon5.gif"));
    }
    const auto commits = [&] {
        QFile file(test.database.dataFile());
        return file.open(QIODevice::ReadOnly) ? qFromBigEndian<quint32>(file.read(28).constData() + 24) : 0;
    };
    test.page->LoadCategories();
    test.database.statements().take();
    const quint32 before = commits();
    test.page->LoadCategories();
    const QStringList statements = test.database.statements().take();
    QCOMPARE(statements.filter(QStringLiteral("Update categories set")).size(), 3);
    QCOMPARE(commits(), before + 1);
    QCOMPARE(test.database.sql(QStringLiteral("select max(cat_icon) from categories")).toInt(), 26);
}

void CategoriesListTest::reloadingTwiceAppendsTwoPicturesAndStoresTheLatest()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif"));
    test.page->LoadCategories();
    test.page->LoadCategories();
    QCOMPARE(test.images.count(), 23);
    QCOMPARE(test.database.sql(QStringLiteral("select cat_icon from categories")).toInt(), 23 - 1);
    QVERIFY(test.page->takeUnreadablePictures().isEmpty());
}

void CategoriesListTest::aReloadDecodesNoPictureAnew()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), jpegOf(QSize(4000, 3000)));
    test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif"));
    test.page->LoadCategories();
    QSignalSpy came(test.page.get(), &CategoriesPage::pictureCame);
    QVERIFY(came.wait());
    test.page->LoadCategories();
    test.page->LoadCategories();
    QCOMPARE(test.images.picture(24).cacheKey(), test.images.picture(23).cacheKey());
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.page->LoadCategories();
    QTRY_COMPARE(test.images.picture(25).availableSizes(), QList<QSize>{QSize(1, 1)});
    QCOMPARE(test.list()->item(0)->icon().cacheKey(), test.images.picture(25).cacheKey());
}

void CategoriesListTest::aReloadKeepsTheSelectedCategory()
{
    PageUnderTest test;
    const qint16 first = test.database.addCategory(QStringLiteral("Work"));
    test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    QCOMPARE(test.listed(), QStringLiteral("Work Home"));
    test.select(1);
    test.database.sql(QStringLiteral("delete from categories where cat_id = %1").arg(first));
    test.page->LoadCategories();
    QCOMPARE(test.listed(), QStringLiteral("[Home]"));
}

void CategoriesListTest::aReloadSelectsNothingWhenTheCategoryIsGone()
{
    PageUnderTest test;
    const qint16 first = test.database.addCategory(QStringLiteral("Work"));
    test.database.addCategory(QStringLiteral("Home"));
    test.page->LoadCategories();
    test.select(0);
    test.database.sql(QStringLiteral("delete from categories where cat_id = %1").arg(first));
    test.page->LoadCategories();
    QCOMPARE(test.listed(), QStringLiteral("Home"));
}

void CategoriesListTest::aMissingPictureKeepsItsPlaceAndIsReportedOnce()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("First"));
    test.addCustom(QStringLiteral("Lost"), QStringLiteral("icon77.gif"));
    test.database.addCategory(QStringLiteral("Last"));
    test.page->LoadCategories();
    QCOMPARE(test.listed(), QStringLiteral("First Lost Last"));
    QVERIFY(!test.list()->item(1)->icon().isNull());

    const QStringList reports = test.page->takeUnreadablePictures();
    QCOMPARE(reports.size(), 1);
    QVERIFY(reports.first().contains(QLatin1String("icon77.gif")));
    test.page->LoadCategories();
    QVERIFY(test.page->takeUnreadablePictures().isEmpty());
}

void CategoriesListTest::aPictureBehindAFolderNameIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("parent folder") << QStringLiteral("../outside.gif");
    QTest::newRow("root") << QStringLiteral("/etc/hostname");
    QTest::newRow("backslash") << QStringLiteral("..\\outside.gif");
    QTest::newRow("this folder") << QStringLiteral(".");
    QTest::newRow("the folder above") << QStringLiteral("..");
    QTest::newRow("nothing") << QString();
}

void CategoriesListTest::aPictureBehindAFolderNameIsRefused()
{
    QFETCH(QString, name);
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon1.gif"), gifOf());
    writeFile(test.database.folder(), QStringLiteral("outside.gif"), jpegOf(QSize(24, 24)));
    test.addCustom(QStringLiteral("Sly"), name);
    test.page->LoadCategories();
    QCOMPARE(test.listed(), QStringLiteral("Sly"));
    QCOMPARE(test.page->takeUnreadablePictures().size(), 1);
}

void CategoriesListTest::aTextNamedGifKeepsItsPlace()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon3.gif"), "Dear Sir or Madam");
    writeFile(test.customIcons(), QStringLiteral("icon4.gif"), gifOf());
    test.addCustom(QStringLiteral("Letter"), QStringLiteral("icon3.gif"));
    test.addCustom(QStringLiteral("Dot"), QStringLiteral("icon4.gif"));
    test.page->LoadCategories();
    QCOMPARE(test.listed(), QStringLiteral("Letter Dot"));
    QCOMPARE(test.list()->item(1)->icon().cacheKey(), test.images.picture(23).cacheKey());
    QSignalSpy came(test.page.get(), &CategoriesPage::pictureCame);
    QVERIFY(came.wait());
    QVERIFY(test.page->takeUnreadablePictures().value(0).contains(QLatin1String("icon3.gif")));
}

void CategoriesListTest::aPictureThatIsNotKnownYetHasAStandInUntilItIsRead()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), pngOf(QSize(1000, 1000), Qt::green));
    test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif"));
    const auto colour = [&test] {
        return test.list()->item(0)->icon().pixmap(96, 96).toImage().pixelColor(48, 5);
    };
    test.page->LoadCategories();
    QVERIFY(colour() != QColor(Qt::green));
    QTRY_COMPARE(colour(), QColor(Qt::green));
    // What else shows the picture has taken it from the image list before.
    QCOMPARE(test.images.picture(22).pixmap(96, 96).toImage().pixelColor(48, 5), QColor(Qt::green));
    QVERIFY(test.page->takeUnreadablePictures().isEmpty());
}

void CategoriesListTest::theNextStartHasThePictureAtOnce()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), pngOf(QSize(1000, 1000), Qt::green));
    test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif"));
    test.page->LoadCategories();
    QSignalSpy came(test.page.get(), &CategoriesPage::pictureCame);
    QVERIFY(came.wait());
    CategoriesPage next(test.services, [&test]() -> frmCategoryDetails& { return *test.dialog; });
    next.LoadCategories();
    QCOMPARE(test.images.picture(23).pixmap(96, 96).toImage().pixelColor(48, 48), QColor(Qt::green));
}

void CategoriesListTest::theVisiblePageReportsAnUnreadablePictureByItself()
{
    PageUnderTest test;
    QVERIFY(test.show());
    test.addCustom(QStringLiteral("Lost"), QStringLiteral("icon77.gif"));
    test.addCustom(QStringLiteral("Gone"), QStringLiteral("icon78.gif"));
    test.page->LoadCategories();
    test.dialogs.expectError(QStringLiteral("icon78.gif"));
    QTRY_VERIFY(test.dialogs.allUsed());
    QVERIFY(test.page->takeUnreadablePictures().isEmpty());
}

void CategoriesListTest::aPictureMissedWhileHiddenIsToldAfterwards()
{
    PageUnderTest test;
    QVERIFY(test.show());
    QTRY_VERIFY(!test.page->isReadingPictures());
    test.page->window()->hide();
    test.addCustom(QStringLiteral("Lost"), QStringLiteral("icon77.gif"));
    test.page->LoadCategories();
    QCoreApplication::processEvents();
    QVERIFY(test.show());
    test.addCustom(QStringLiteral("Gone"), QStringLiteral("icon78.gif"));
    test.page->LoadCategories();
    test.dialogs.expectError(QStringLiteral("icon77.gif"));
    QTRY_VERIFY(test.dialogs.allUsed());
    QVERIFY(test.page->takeUnreadablePictures().isEmpty());
}

void CategoriesListTest::anIconNumberOutsideOfTheListHasAStandIn()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("High"), 30000);
    test.database.addCategory(QStringLiteral("Low"), -5);
    test.page->LoadCategories();
    QVERIFY(!test.list()->item(0)->icon().isNull());
    QVERIFY(!test.list()->item(1)->icon().isNull());
}

void CategoriesListTest::anIconNumberThatDoesNotFitIsNotWritten()
{
    PageUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif"));
    while (test.images.count() < 32767) {
        test.images.append(QIcon());
    }
    test.page->LoadCategories();
    test.page->LoadCategories();
    // 32,767 is the last number: the second load would have to write 32,768.
    QCOMPARE(test.database.sql(QStringLiteral("select cat_icon from categories")).toInt(), 32767);
    QCOMPARE(test.listed(), QStringLiteral("Own"));
    QVERIFY(test.page->takeUnreadablePictures().value(0).contains(QLatin1String("Overflow")));
}

void CategoriesListTest::withoutADataFileTheListStaysAsItWas()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    QVERIFY(QFile::remove(test.database.dataFile()));
    QVERIFY(caught<DatabaseError>([&] { test.page->LoadCategories(); }));
    QCOMPARE(test.listed(), QStringLiteral("Work"));
}

void CategoriesListTest::theDescriptionIsShownAsPlainText()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.database.sql(QStringLiteral("update categories set cat_desc = '<b>bold</b> & more'"));
    test.page->LoadCategories();
    QVERIFY(test.show());
    const QPoint centre = test.centreOf(0);
    QHelpEvent event(QEvent::ToolTip, centre, test.list()->viewport()->mapToGlobal(centre));
    QCoreApplication::sendEvent(test.list()->viewport(), &event);
    QVERIFY2(QToolTip::text().contains(QLatin1String("&lt;b&gt;bold&lt;/b&gt; &amp; more")),
        qPrintable(QToolTip::text()));
    QToolTip::hideText();
}

void CategoriesListTest::aLabelIsNotEditedInPlace()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    QVERIFY(test.show());
    test.select(0);
    test.page->focusList();
    QTest::keyClick(test.list(), Qt::Key_F2);
    QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
    test.list()->editItem(test.list()->item(0));
    QVERIFY(!test.list()->isPersistentEditorOpen(test.list()->item(0)));
    QVERIFY(!test.list()->item(0)->flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(test.list()->findChild<QLineEdit*>() == nullptr);
}

void CategoriesListTest::itemsHaveOneSizeWhateverTheirNames()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("W"));
    test.database.addCategory(QString(3000, QLatin1Char('x')));
    test.database.addCategory(QStringLiteral("one\ntwo\nthree\nfour"));
    test.page->LoadCategories();
    QVERIFY(test.show());
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(test.list()->visualItemRect(test.list()->item(row)).size(), test.list()->gridSize());
    }
}

void CategoriesListTest::theFocusMakesNoCategoryTheCurrentOne()
{
    PageUnderTest test;
    test.database.addCategory(QStringLiteral("Work"));
    test.page->LoadCategories();
    QVERIFY(test.show());
    test.page->focusList();
    QTRY_VERIFY(test.list()->hasFocus());
    QVERIFY(!test.list()->currentIndex().isValid());
}

AMBERTASK_TEST_MAIN(CategoriesListTest)
#include "tst_categories_list.moc"
