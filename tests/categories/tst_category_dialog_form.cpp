#include "categories/DialogUnderTest.h"
#include "support/CaughtError.h"
#include "support/ClosedWindow.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/RuntimeError.h"

#include <QAccessible>
#include <QSet>
#include <QSignalSpy>

class CategoryDialogFormTest : public TestCase
{
    Q_OBJECT

private slots:
    void theDialogStartsEmptyWithTheFirstIconSelected();
    void theIconsAreTheFirstTwelvePicturesOfTheList();
    void pressingAnyMouseButtonOnAnIconSelectsIt();
    void theSelectedIconHasABorder();
    void theArrowKeysMoveAmongTheIcons();
    void selectIconMarksOneAlone_data();
    void selectIconMarksOneAlone();
    void theOptionsEnableTheirPanelInWhite();
    void theHintIsReadableUnderADarkSkin();
    void setTagFillsTheFormAndLocksTheName();
    void setTagShowsTheCustomPicture();
    void setTagReportsAPictureThatIsMissing();
    void setTagOfAMissingCategoryLeavesTheFormAsItWas_data();
    void setTagOfAMissingCategoryLeavesTheFormAsItWas();
    void emptyFormForgetsTheCategoryBefore();
    void escapeAnywhereCancels_data();
    void escapeAnywhereCancels();
    void cancelHidesAndTellsOnce();
    void theCloseBoxHides();
    void theTabKeyGoesThroughTheControls();
    void theTextsAreTheSystemsOwn();
    void everyControlHasANameAndAKeyOfItsOwn();
    void noButtonActsOnEnterByDefault();
    void aHeldEnterThatOpensTheDialogWritesNothing();
};

void CategoryDialogFormTest::theDialogStartsEmptyWithTheFirstIconSelected()
{
    DialogUnderTest test;
    QCOMPARE(test.name()->text(), QString());
    QCOMPARE(test.description()->toPlainText(), QString());
    QCOMPARE(test.bordered(), QList<int>{0});
    QVERIFY(test.defaultIcon()->isChecked());
    QVERIFY(test.dialog.tag().isEmpty());
}

void CategoryDialogFormTest::theIconsAreTheFirstTwelvePicturesOfTheList()
{
    DialogUnderTest test;
    for (int i = 0; i < 12; ++i) {
        QCOMPARE(test.icon(i)->icon().cacheKey(), test.images.picture(i + 1).cacheKey());
    }
    QVERIFY(test.icon(12) == nullptr);
}

void CategoryDialogFormTest::pressingAnyMouseButtonOnAnIconSelectsIt()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    QTest::mousePress(test.icon(5), Qt::LeftButton);
    QCOMPARE(test.bordered(), QList<int>{5});
    QTest::mousePress(test.icon(11), Qt::RightButton, {}, QPoint(1, 1));
    QCOMPARE(test.bordered(), QList<int>{11});
}

void CategoryDialogFormTest::theSelectedIconHasABorder()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    test.name()->setFocus();
    test.dialog.SelectIcon(3);
    const QColor corner = test.icon(3)->grab().toImage().pixelColor(0, 0);
    const QColor elsewhere = test.icon(4)->grab().toImage().pixelColor(0, 0);
    QVERIFY(corner.lightness() < 0x40);
    QCOMPARE(elsewhere, QColor(Qt::white));
}

void CategoryDialogFormTest::theArrowKeysMoveAmongTheIcons()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    test.icon(0)->setFocus();
    QTest::keyClick(test.dialog.focusWidget(), Qt::Key_Right);
    QCOMPARE(test.bordered(), QList<int>{1});
    QTest::keyClick(test.dialog.focusWidget(), Qt::Key_Down);
    QCOMPARE(test.bordered(), QList<int>{7});
    QTest::keyClick(test.dialog.focusWidget(), Qt::Key_Left);
    QCOMPARE(test.bordered(), QList<int>{6});
    QVERIFY(test.icon(6)->hasFocus());
}

void CategoryDialogFormTest::selectIconMarksOneAlone_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("marked");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("last") << 11 << 11;
    QTest::newRow("beyond") << 12 << 0;
    QTest::newRow("a custom picture's number") << 21 << 0;
    QTest::newRow("negative") << -1 << 0;
}

void CategoryDialogFormTest::selectIconMarksOneAlone()
{
    QFETCH(int, asked);
    QFETCH(int, marked);
    DialogUnderTest test;
    test.dialog.SelectIcon(6);
    test.dialog.SelectIcon(asked);
    QCOMPARE(test.bordered(), QList<int>{marked});
}

void CategoryDialogFormTest::theOptionsEnableTheirPanelInWhite()
{
    const QColor white(0xFF, 0xFF, 0xFF);
    const QColor grey(0xE0, 0xE0, 0xE0);
    DialogUnderTest test;
    QVERIFY(test.show());
    const auto shown = [](PicturePanel* panel) {
        return panel->grab().toImage().pixelColor(2, 2);
    };

    test.choose(test.customIcon());
    QVERIFY(!test.icons()->isEnabled() && test.custom()->isEnabled());
    QCOMPARE(shown(test.icons()), grey);
    QCOMPARE(shown(test.custom()), white);
    test.choose(test.defaultIcon());
    QVERIFY(test.icons()->isEnabled() && !test.custom()->isEnabled());
    QCOMPARE(shown(test.icons()), white);
    QCOMPARE(shown(test.custom()), grey);
}

void CategoryDialogFormTest::theHintIsReadableUnderADarkSkin()
{
    DialogUnderTest test;
    test.dialog.setStyleSheet(QStringLiteral("QWidget { background: #202020; color: #f0f0f0; }"));
    QVERIFY(test.show());
    test.choose(test.customIcon());
    const QImage hint =
        test.custom()->grab(test.find<QLabel>(QStringLiteral("lblIconSize"))->geometry()).toImage();
    int dark = 0;
    int light = 0;
    for (int y = 0; y < hint.height(); ++y) {
        for (int x = 0; x < hint.width(); ++x) {
            dark += hint.pixelColor(x, y).lightness() < 0x60 ? 1 : 0;
            light += hint.pixelColor(x, y).lightness() > 0xF0 ? 1 : 0;
        }
    }
    QVERIFY2(
        dark > 50 && light > 10 * dark, qPrintable(QStringLiteral("%1 dark, %2 light").arg(dark).arg(light)));
}

void CategoryDialogFormTest::setTagFillsTheFormAndLocksTheName()
{
    DialogUnderTest test;
    const qint16 id = test.database.addCategory(QStringLiteral("Work"), 4);
    test.database.sql(QStringLiteral("update categories set cat_desc = 'one' || char(10) || 'two'"));
    test.dialog.SetTag(QString::number(id));
    QCOMPARE(test.dialog.tag(), QString::number(id));
    QCOMPARE(test.name()->text(), QStringLiteral("Work"));
    QVERIFY(!test.name()->isEnabled());
    QCOMPARE(test.description()->toPlainText(), QStringLiteral("one\ntwo"));
    QCOMPARE(test.bordered(), QList<int>{4});
    QVERIFY(test.defaultIcon()->isChecked());
    QVERIFY(!test.showsPicture());
}

void CategoryDialogFormTest::setTagShowsTheCustomPicture()
{
    DialogUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), jpegOf(QSize(24, 24)));
    test.dialog.SelectIcon(9);
    test.dialog.SetTag(test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif")));
    QVERIFY(test.customIcon()->isChecked());
    QVERIFY(test.custom()->isEnabled());
    QVERIFY(test.showsPicture());
    QCOMPARE(test.preview()->property("tag").toString(), QStringLiteral("icon5.gif"));
    QCOMPARE(test.bordered(), QList<int>{0});
}

void CategoryDialogFormTest::setTagReportsAPictureThatIsMissing()
{
    DialogUnderTest test;
    test.dialogs.expectError(QStringLiteral("icon77.gif"));
    test.dialog.SetTag(test.addCustom(QStringLiteral("Lost"), QStringLiteral("icon77.gif")));
    QCOMPARE(test.name()->text(), QStringLiteral("Lost"));
    QVERIFY(test.customIcon()->isChecked());
    QVERIFY(!test.showsPicture());
}

void CategoryDialogFormTest::setTagOfAMissingCategoryLeavesTheFormAsItWas_data()
{
    QTest::addColumn<QString>("tag");
    QTest::newRow("gone") << QStringLiteral("31000");
    QTest::newRow("too large") << QStringLiteral("70000");
    QTest::newRow("no number") << QStringLiteral("abc");
    QTest::newRow("empty") << QString();
}

void CategoryDialogFormTest::setTagOfAMissingCategoryLeavesTheFormAsItWas()
{
    QFETCH(QString, tag);
    DialogUnderTest test;
    test.name()->setText(QStringLiteral("half written"));
    QVERIFY(caught<RuntimeError>([&] { test.dialog.SetTag(tag); }));
    QCOMPARE(test.name()->text(), QStringLiteral("half written"));
    QVERIFY(test.dialog.tag().isEmpty());
}

void CategoryDialogFormTest::emptyFormForgetsTheCategoryBefore()
{
    DialogUnderTest test;
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.dialog.SetTag(test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif")));
    test.dialog.clearTag();
    test.dialog.EmptyForm();
    QCOMPARE(test.name()->text(), QString());
    QVERIFY(test.name()->isEnabled());
    QVERIFY(test.defaultIcon()->isChecked());
    QVERIFY(test.icons()->isEnabled());
    QVERIFY(!test.showsPicture());
    QVERIFY(test.dialog.tag().isEmpty());
}

void CategoryDialogFormTest::escapeAnywhereCancels_data()
{
    QTest::addColumn<QString>("control");
    for (const char* name : {"txtCatName", "txtCatDesc", "opnDefaultIcon", "imgIcon0", "opnCustomIcon",
             "btnBrowse", "btnOk", "btnCancel"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void CategoryDialogFormTest::escapeAnywhereCancels()
{
    QFETCH(QString, control);
    DialogUnderTest test;
    QVERIFY(test.show());
    if (control == QLatin1String("btnBrowse")) {
        test.choose(test.customIcon());
    }
    if (control == QLatin1String("btnBrowse")) {
        test.dialogs.expectUnsaved(
            QStringLiteral("The changes to the category are not saved."), MessageBoxes::Unsaved::Discard);
    }
    const QSignalSpy cancelled(&test.dialog, &frmCategoryDetails::cancelled);
    auto* widget = test.find<QWidget>(control);
    widget->setFocus();
    QVERIFY(widget->hasFocus());
    QTest::keyClick(widget, Qt::Key_Escape);
    QVERIFY(!test.dialog.isVisible());
    QCOMPARE(cancelled.count(), 1);
}

void CategoryDialogFormTest::cancelHidesAndTellsOnce()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    bool visible = true;
    connect(&test.dialog, &frmCategoryDetails::cancelled, this, [&] { visible = test.dialog.isVisible(); });
    test.press("btnCancel");
    QVERIFY(!visible);
    QVERIFY(test.database.statements().take().isEmpty());
}

void CategoryDialogFormTest::theCloseBoxHides()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("kept"));
    const QSignalSpy cancelled(&test.dialog, &frmCategoryDetails::cancelled);
    QVERIFY(!closeBySystem(test.dialog));
    QVERIFY(!test.dialog.isVisible());
    QCOMPARE(cancelled.count(), 0);
    QVERIFY(test.show());
    QCOMPARE(test.name()->text(), QStringLiteral("kept"));
}

void CategoryDialogFormTest::theTabKeyGoesThroughTheControls()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    QVERIFY(test.name()->hasFocus());
    for (const char* next :
        {"txtCatDesc", "opnDefaultIcon", "imgIcon0", "btnOk", "btnCancel", "txtCatName"}) {
        QTest::keyClick(test.dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(test.dialog.focusWidget()->objectName(), QLatin1String(next));
    }
    test.choose(test.customIcon());
    test.customIcon()->setFocus();
    QTest::keyClick(test.dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(test.dialog.focusWidget()->objectName(), QStringLiteral("btnBrowse"));
}

void CategoryDialogFormTest::theTextsAreTheSystemsOwn()
{
    DialogUnderTest test;
    QCOMPARE(test.dialog.windowTitle(), QStringLiteral("Category Details"));
    QCOMPARE(test.dialog.objectName(), QStringLiteral("frmCategoryDetails"));
    QCOMPARE(test.find<QLabel>(QStringLiteral("lblIconSize"))->text(),
        QStringLiteral("Prefered size 24*24 pixels"));
    const auto plain = [](QString text) {
        return text.remove(QLatin1Char('&'));
    };
    QCOMPARE(plain(test.defaultIcon()->text()), QStringLiteral("Default Icon"));
    QCOMPARE(plain(test.customIcon()->text()), QStringLiteral("Custom Icon"));
    QCOMPARE(plain(test.find<QPushButton>(QStringLiteral("btnBrowse"))->text()), QStringLiteral("Browse"));
    QCOMPARE(plain(test.find<QPushButton>(QStringLiteral("btnOk"))->text()), QStringLiteral("OK"));
    QCOMPARE(plain(test.find<QPushButton>(QStringLiteral("btnCancel"))->text()), QStringLiteral("Cancel"));
    QStringList captions;
    for (const QLabel* label : test.dialog.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            captions.append(plain(label->text()) + QLatin1Char('>') + label->buddy()->objectName());
        }
    }
    captions.sort();
    QCOMPARE(captions,
        (QStringList{QStringLiteral("Category>txtCatName"), QStringLiteral("Description>txtCatDesc")}));
}

void CategoryDialogFormTest::everyControlHasANameAndAKeyOfItsOwn()
{
    DialogUnderTest test;
    QStringList keys;
    for (const QLabel* label : test.dialog.findChildren<QLabel*>()) {
        keys.append(QKeySequence::mnemonic(label->text()).toString());
    }
    for (const QAbstractButton* button : test.dialog.findChildren<QAbstractButton*>()) {
        keys.append(button->shortcut().toString());
    }
    keys.removeAll(QString());
    QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
    QCOMPARE(keys.size(), 7);

    QSet<QString> names;
    for (QWidget* widget : test.dialog.findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus && !widget->objectName().startsWith(QLatin1String("qt_"))) {
            const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty(), qPrintable(widget->objectName()));
            QVERIFY2(!names.contains(name), qPrintable(name));
            names.insert(name);
        }
    }
}

void CategoryDialogFormTest::noButtonActsOnEnterByDefault()
{
    DialogUnderTest test;
    for (const QPushButton* button : test.dialog.findChildren<QPushButton*>()) {
        QVERIFY(!button->autoDefault() && !button->isDefault());
    }
}

void CategoryDialogFormTest::aHeldEnterThatOpensTheDialogWritesNothing()
{
    DialogUnderTest test;
    QPlainTextEdit* description = test.description();
    const QString line(QLatin1Char('\r'));
    QTest::simulateEvent(description, true, Qt::Key_Return, {}, line, true);
    QTest::simulateEvent(description, false, Qt::Key_Return, {}, line, false);
    QCOMPARE(description->toPlainText(), QString());
    QTest::simulateEvent(description, true, Qt::Key_Return, {}, line, false);
    QCOMPARE(description->toPlainText(), QStringLiteral("\n"));
}

AMBERTASK_TEST_MAIN(CategoryDialogFormTest)
#include "tst_category_dialog_form.moc"
