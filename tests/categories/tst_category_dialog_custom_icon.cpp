#include "categories/DialogUnderTest.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

class CategoryDialogCustomIconTest : public TestCase
{
    Q_OBJECT

private slots:
    void customIconWithoutBrowsingIsRefused();
    void aCancelledFileDialogClearsThePreviewAndIsRefused();
    void browsingAsksForPicturesWhileTheCheckerStands();
    void aChosenPictureIsShown();
    void aFileThatIsNoPictureChangesNothing_data();
    void aFileThatIsNoPictureChangesNothing();
    void aJpegIsStoredUnchangedUnderAGifName();
    void theNumberIsTheRoundedMillionth_data();
    void theNumberIsTheRoundedMillionth();
    void withoutADrawTheNumberIsRandom();
    void aPictureOfTheSameNameIsOverwritten();
    void editingWithoutBrowsingCopiesNothing();
    void editingWithANewPictureKeepsTheOldFile();
    void aRefusedNameHasItsPictureCopiedAlready();
    void aPictureThatVanishedBeforeTheCopyIsReported();
    void aFolderThatCannotBeWrittenIsReported();
    void theFolderIsMadeWhenItIsMissing();

private:
    static QStringList files(const DialogUnderTest& test)
    {
        return QDir(test.customIcons()).entryList(QDir::Files);
    }
    static QString source(const DialogUnderTest& test)
    {
        return writeFile(test.database.folder() + QLatin1String("/pictures"), QStringLiteral("my.jpg"),
            jpegOf(QSize(30, 30)));
    }
    static void browse(DialogUnderTest& test, const QString& answer)
    {
        test.choose(test.customIcon());
        test.dialogs.expectOpen(answer);
        test.press("btnBrowse");
    }
};

void CategoryDialogCustomIconTest::customIconWithoutBrowsingIsRefused()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Own"));
    test.choose(test.customIcon());
    test.dialogs.expectTell(
        MessageBoxes::Icon::Exclamation, QStringLiteral("Please browse for a custom icon"));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QVERIFY(test.find<QPushButton>(QStringLiteral("btnBrowse"))->hasFocus());
    QCOMPARE(test.stored(), QString());
}

void CategoryDialogCustomIconTest::aCancelledFileDialogClearsThePreviewAndIsRefused()
{
    DialogUnderTest test;
    test.name()->setText(QStringLiteral("Own"));
    browse(test, source(test));
    QVERIFY(test.showsPicture());
    browse(test, QString());
    QVERIFY(!test.showsPicture());
    test.dialogs.expectTell(
        MessageBoxes::Icon::Exclamation, QStringLiteral("Please browse for a custom icon"));
    test.press("btnOk");
    QCOMPARE(test.stored(), QString());
}

void CategoryDialogCustomIconTest::browsingAsksForPicturesWhileTheCheckerStands()
{
    DialogUnderTest test;
    test.choose(test.customIcon());
    test.dialogs.expectOpen(QString(), [&](const FileDialogRequest& request) {
        QCOMPARE(request.initialFolder, userFolder(QStandardPaths::PicturesLocation));
        QCOMPARE(request.filter, QStringLiteral("Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg"));
        QCOMPARE(request.fileName, QString());
        QVERIFY(request.fileMustExist);
        QVERIFY(!test.checkerTimer.enabled);
    });
    test.press("btnBrowse");
    QCOMPARE(test.checkerTimer.switches, (QList<bool>{false, true}));
}

void CategoryDialogCustomIconTest::aChosenPictureIsShown()
{
    DialogUnderTest test;
    browse(test, source(test));
    const QImage shown = test.preview()->pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(shown.size(), QSize(30, 30));
    QVERIFY(shown.pixelColor(15, 15).red() > 200);
}

void CategoryDialogCustomIconTest::aFileThatIsNoPictureChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << QByteArray("Dear Sir or Madam");
    QTest::newRow("huge") << pngHeaderClaiming(QSize(30000, 30000));
    QTest::newRow("cut off") << jpegOf(QSize(60, 60)).left(400);
}

void CategoryDialogCustomIconTest::aFileThatIsNoPictureChangesNothing()
{
    QFETCH(QByteArray, bytes);
    DialogUnderTest test;
    test.draws = {0.5};
    test.name()->setText(QStringLiteral("Own"));
    const QString good = source(test);
    browse(test, good);
    const qint64 before = test.preview()->pixmap(Qt::ReturnByValue).cacheKey();

    test.dialogs.expectOpen(writeFile(test.database.folder(), QStringLiteral("stranger.gif"), bytes));
    test.dialogs.expectExclamationWith(QStringLiteral("stranger.gif\" cannot be used: it is "));
    test.press("btnBrowse");
    QCOMPARE(test.preview()->pixmap(Qt::ReturnByValue).cacheKey(), before);
    QVERIFY(test.checkerTimer.enabled);
    test.press("btnOk");
    QCOMPARE(bytesOf(test.customIcons() + QLatin1String("/icon500000.gif")), bytesOf(good));
}

void CategoryDialogCustomIconTest::aJpegIsStoredUnchangedUnderAGifName()
{
    DialogUnderTest test;
    test.draws = {0.482913};
    test.name()->setText(QStringLiteral("Own"));
    const QString good = source(test);
    browse(test, good);
    test.press("btnOk");
    QCOMPARE(files(test), QStringList{QStringLiteral("icon482913.gif")});
    QCOMPARE(bytesOf(test.customIcons() + QLatin1String("/icon482913.gif")), bytesOf(good));
    QCOMPARE(test.stored(), QStringLiteral("Own||0|1|icon482913.gif"));

    test.dialog.SetTag(test.database.sql(QStringLiteral("select cat_id from categories")).toString());
    QVERIFY(test.showsPicture());
}

void CategoryDialogCustomIconTest::theNumberIsTheRoundedMillionth_data()
{
    QTest::addColumn<double>("draw");
    QTest::addColumn<QString>("name");
    QTest::newRow("lowest") << 0.0 << QStringLiteral("icon0.gif");
    QTest::newRow("rounded down") << 0.0000074 << QStringLiteral("icon7.gif");
    QTest::newRow("rounded up") << 0.0000076 << QStringLiteral("icon8.gif");
    QTest::newRow("highest") << 0.9999999 << QStringLiteral("icon1000000.gif");
}

void CategoryDialogCustomIconTest::theNumberIsTheRoundedMillionth()
{
    QFETCH(double, draw);
    QFETCH(QString, name);
    DialogUnderTest test;
    test.draws = {draw};
    test.name()->setText(QStringLiteral("Own"));
    browse(test, source(test));
    test.press("btnOk");
    QCOMPARE(files(test), QStringList{name});
}

void CategoryDialogCustomIconTest::withoutADrawTheNumberIsRandom()
{
    DialogUnderTest test;
    frmCategoryDetails dialog(test.services);
    const QString good = source(test);
    for (const char* name : {"A", "B", "C"}) {
        dialog.EmptyForm();
        dialog.findChild<QLineEdit*>(QStringLiteral("txtCatName"))->setText(QLatin1String(name));
        dialog.findChild<QRadioButton*>(QStringLiteral("opnCustomIcon"))->click();
        test.dialogs.expectOpen(good);
        dialog.findChild<QPushButton*>(QStringLiteral("btnBrowse"))->click();
        dialog.findChild<QPushButton*>(QStringLiteral("btnOk"))->click();
    }
    const QStringList names = files(test);
    QVERIFY2(names.size() > 1, "three draws gave one number");
    const QRegularExpression form(QStringLiteral("^icon(\\d{1,6}|1000000)\\.gif$"));
    for (const QString& name : names) {
        QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
    }
}

void CategoryDialogCustomIconTest::aPictureOfTheSameNameIsOverwritten()
{
    DialogUnderTest test;
    test.draws = {0.000005};
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), "old");
    test.name()->setText(QStringLiteral("Own"));
    const QString good = source(test);
    browse(test, good);
    test.press("btnOk");
    QCOMPARE(bytesOf(test.customIcons() + QLatin1String("/icon5.gif")), bytesOf(good));
}

void CategoryDialogCustomIconTest::editingWithoutBrowsingCopiesNothing()
{
    DialogUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.dialog.SetTag(test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif")));
    test.description()->setPlainText(QStringLiteral("new"));
    test.press("btnOk");
    QCOMPARE(files(test), QStringList{QStringLiteral("icon5.gif")});
    QCOMPARE(test.stored(), QStringLiteral("Own|new|0|1|icon5.gif"));
}

void CategoryDialogCustomIconTest::editingWithANewPictureKeepsTheOldFile()
{
    DialogUnderTest test;
    test.draws = {0.000007};
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.dialog.SetTag(test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif")));
    browse(test, source(test));
    test.press("btnOk");
    QCOMPARE(files(test), (QStringList{QStringLiteral("icon5.gif"), QStringLiteral("icon7.gif")}));
    QCOMPARE(test.stored(), QStringLiteral("Own||0|1|icon7.gif"));
}

void CategoryDialogCustomIconTest::aRefusedNameHasItsPictureCopiedAlready()
{
    DialogUnderTest test;
    test.draws = {0.000001};
    test.database.addCategory(QStringLiteral("Work"));
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Work"));
    browse(test, source(test));
    test.dialogs.expectTell(
        MessageBoxes::Icon::Exclamation, QStringLiteral("A category with the same name already exists"));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QCOMPARE(test.name()->selectedText(), QStringLiteral("Work"));
    QCOMPARE(files(test), QStringList{QStringLiteral("icon1.gif")});
}

void CategoryDialogCustomIconTest::aPictureThatVanishedBeforeTheCopyIsReported()
{
    DialogUnderTest test;
    test.draws = {0.000001};
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Own"));
    const QString path = source(test);
    browse(test, path);
    QVERIFY(QFile::remove(path));
    test.dialogs.expectError(QStringLiteral("my.jpg"));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QVERIFY(files(test).isEmpty());
    QCOMPARE(test.stored(), QString());
}

void CategoryDialogCustomIconTest::aFolderThatCannotBeWrittenIsReported()
{
    DialogUnderTest test;
    test.draws = {0.000001};
    QVERIFY(test.show());
    // A file in the place of the folder: nothing can be created in it, even by root.
    writeFile(test.database.folder(), QStringLiteral("custom icons"), "in the way");
    test.name()->setText(QStringLiteral("Own"));
    browse(test, source(test));
    test.dialogs.expectError(QStringLiteral("custom icons"));
    test.press("btnOk");
    QVERIFY(test.dialog.isVisible());
    QCOMPARE(test.stored(), QString());
}

void CategoryDialogCustomIconTest::theFolderIsMadeWhenItIsMissing()
{
    DialogUnderTest test;
    test.draws = {0.000001};
    QVERIFY(!QDir(test.customIcons()).exists());
    test.name()->setText(QStringLiteral("Own"));
    browse(test, source(test));
    test.press("btnOk");
    QCOMPARE(files(test), QStringList{QStringLiteral("icon1.gif")});
}

AMBERTASK_TEST_MAIN(CategoryDialogCustomIconTest)
#include "tst_category_dialog_custom_icon.moc"
