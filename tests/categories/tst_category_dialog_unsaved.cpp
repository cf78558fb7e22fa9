#include "categories/DialogUnderTest.h"
#include "support/ClosedWindow.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QSignalSpy>
#include <functional>

using Unsaved = MessageBoxes::Unsaved;

namespace
{

const QString NotSaved = QStringLiteral("The changes to 'Garden' are not saved.");

} // namespace

class CategoryDialogUnsavedTest : public TestCase
{
    Q_OBJECT

private slots:
    void anUntouchedFormIsLetGoWithoutAQuestion();
    void everyFieldIsInput();
    void keptInputStaysAndDiscardedInputGoes();
    void aTakenNameKeepsTheInputAndDropsTheRequest();
    void inputThatWasCancelledIsNotAskedAboutAgain();
    void escapeOnChangedInputAsks();
    void anEscapeThatIsHeldIsPressedOnce();
};

void CategoryDialogUnsavedTest::anUntouchedFormIsLetGoWithoutAQuestion()
{
    DialogUnderTest test;
    QVERIFY(test.dialog.letGo());
    writeFile(test.customIcons(), QStringLiteral("icon5.gif"), gifOf());
    test.dialog.SetTag(test.addCustom(QStringLiteral("Own"), QStringLiteral("icon5.gif")));
    QVERIFY(test.show());
    QVERIFY(test.dialog.letGo());
    test.dialog.clearTag();
    test.dialog.EmptyForm();
    QVERIFY(test.dialog.letGo());
}

void CategoryDialogUnsavedTest::everyFieldIsInput()
{
    const QList<std::function<void(DialogUnderTest&)>> changes{
        [](DialogUnderTest& test) { test.name()->setText(QStringLiteral("Garden")); },
        [](DialogUnderTest& test) { test.description()->setPlainText(QStringLiteral("x")); },
        [](DialogUnderTest& test) { test.icon(3)->click(); },
        [](DialogUnderTest& test) {
            test.choose(test.customIcon());
        }};
    for (const auto& change : changes) {
        DialogUnderTest test;
        QVERIFY(test.show());
        change(test);
        const QString text = test.name()->text().isEmpty()
            ? QStringLiteral("The changes to the category are not saved.")
            : NotSaved;
        test.dialogs.expectUnsaved(text, Unsaved::Keep);
        QVERIFY(!test.dialog.letGo());
    }
}

void CategoryDialogUnsavedTest::keptInputStaysAndDiscardedInputGoes()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Garden"));
    test.dialog.hide();
    test.dialogs.expectUnsaved(NotSaved, Unsaved::Keep);
    QVERIFY(!test.dialog.letGo());
    QVERIFY(test.dialog.isVisible());
    QCOMPARE(test.name()->text(), QStringLiteral("Garden"));
    test.dialogs.expectUnsaved(NotSaved, Unsaved::Discard);
    QVERIFY(test.dialog.letGo());
    QCOMPARE(test.stored(), QString());
}

void CategoryDialogUnsavedTest::aTakenNameKeepsTheInputAndDropsTheRequest()
{
    DialogUnderTest test;
    test.database.addCategory(QStringLiteral("Garden"));
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Garden"));
    test.dialogs.expectUnsaved(NotSaved, Unsaved::Save);
    test.dialogs.expectTell(
        MessageBoxes::Icon::Exclamation, QStringLiteral("A category with the same name already exists"));
    QVERIFY(!test.dialog.letGo());
    QVERIFY(test.dialog.isVisible());
    QCOMPARE(test.name()->selectedText(), QStringLiteral("Garden"));
}

void CategoryDialogUnsavedTest::inputThatWasCancelledIsNotAskedAboutAgain()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Garden"));
    test.press("btnCancel");
    QVERIFY(test.dialog.letGo());
    test.dialog.EmptyForm();
    QVERIFY(test.show());
    test.name()->setText(QStringLiteral("Garden"));
    QVERIFY(!closeBySystem(test.dialog));
    QVERIFY(test.dialog.letGo());
}

void CategoryDialogUnsavedTest::escapeOnChangedInputAsks()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    const QSignalSpy cancelled(&test.dialog, &frmCategoryDetails::cancelled);
    const QSignalSpy saved(&test.dialog, &frmCategoryDetails::categorySaved);
    test.name()->setText(QStringLiteral("Garden"));
    test.dialogs.expectUnsaved(NotSaved, Unsaved::Keep);
    QTest::keyClick(test.name(), Qt::Key_Escape);
    QVERIFY(test.dialog.isVisible());
    QCOMPARE(cancelled.count(), 0);
    test.dialogs.expectUnsaved(NotSaved, Unsaved::Save);
    QTest::keyClick(test.name(), Qt::Key_Escape);
    QVERIFY(!test.dialog.isVisible());
    QCOMPARE(saved.count(), 1);
    QCOMPARE(cancelled.count(), 0);
    QCOMPARE(test.stored(), QStringLiteral("Garden||0|0|"));
}

void CategoryDialogUnsavedTest::anEscapeThatIsHeldIsPressedOnce()
{
    DialogUnderTest test;
    QVERIFY(test.show());
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(test.name(), &held);
    QVERIFY(test.dialog.isVisible());
}

AMBERTASK_TEST_MAIN(CategoryDialogUnsavedTest)
#include "tst_category_dialog_unsaved.moc"
