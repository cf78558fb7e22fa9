#include "support/TestMain.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/LinkLabel.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

/// Controls as assistive technology works them.
class AccessibleControlsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aToggledCheckBoxIsClicked()
    {
        CheckBox box(QStringLiteral("&Enable"));
        const QSignalSpy clicks(&box, &QCheckBox::clicked);
        act(box, QAccessibleActionInterface::toggleAction());
        QVERIFY(box.isChecked());
        QVERIFY(accessible(box)->state().checked);
        act(box, QAccessibleActionInterface::toggleAction());
        QVERIFY(!box.isChecked());
        QVERIFY(!accessible(box)->state().checked);
        QCOMPARE(clicks.count(), 2);
    }

    void aBoxCheckedByTheProgramIsNotClicked()
    {
        CheckBox box;
        const QSignalSpy clicks(&box, &QCheckBox::clicked);
        box.setChecked(true);
        QVERIFY(accessible(box)->state().checked);
        QCOMPARE(clicks.count(), 0);
    }

    void aDisabledBoxOffersNoToggleAndObeysNone()
    {
        CheckBox box;
        box.setEnabled(false);
        QVERIFY(!accessible(box)->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::toggleAction()));
        act(box, QAccessibleActionInterface::toggleAction());
        QVERIFY(!box.isChecked());
    }

    void aCheckBoxSaysWhatItIs()
    {
        CheckBox box(QStringLiteral("Dogs && &cats"));
        QAccessibleInterface* seen = accessible(box);
        QCOMPARE(seen->role(), QAccessible::CheckBox);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Dogs & cats"));
        QCOMPARE(seen->text(QAccessible::Accelerator), QStringLiteral("Alt+C"));
        QCOMPARE(seen->actionInterface()->keyBindingsForAction(QAccessibleActionInterface::toggleAction()),
            QStringList(QStringLiteral("Alt+C")));
        QVERIFY(seen->state().checkable);
        QVERIFY(seen->state().focusable);
        box.setAccessibleName(QStringLiteral("Pets"));
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Pets"));
    }

    void aLinkIsALinkThatCanBePressed()
    {
        LinkLabel link(QStringLiteral("More"));
        const QSignalSpy clicks(&link, &LinkLabel::clicked);
        QAccessibleInterface* seen = accessible(link);
        QCOMPARE(seen->role(), QAccessible::Link);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("More"));
        QVERIFY(seen->state().focusable);
        act(link, QAccessibleActionInterface::pressAction());
        QCOMPARE(clicks.count(), 1);
    }

    void theEntriesOfAComboAreReadWhileItIsClosed()
    {
        ComboBox combo;
        combo.addItems({QStringLiteral("Low"), QStringLiteral("Normal"), QStringLiteral("High")});
        combo.setCurrentIndex(1);
        QAccessibleInterface* entries = listOf(combo);
        QCOMPARE(entries->role(), QAccessible::List);
        QCOMPARE(entries->childCount(), 3);
        QCOMPARE(entries->child(3), nullptr);
        for (int row = 0; row < 3; ++row) {
            QAccessibleInterface* entry = entries->child(row);
            QCOMPARE(entry->text(QAccessible::Name), combo.itemText(row));
            QCOMPARE(entry->role(), QAccessible::ListItem);
            QCOMPARE(entries->indexOfChild(entry), row);
            QCOMPARE(entry->parent(), entries);
            QCOMPARE(entry->state().selected, row == 1);
            QVERIFY(entry->state().invisible);
        }
    }

    void aPressedEntryIsChosen()
    {
        ComboBox combo;
        combo.addItems({QStringLiteral("Low"), QStringLiteral("Normal"), QStringLiteral("High")});
        const QSignalSpy choices(&combo, &QComboBox::activated);
        press(listOf(combo)->child(2));
        QCOMPARE(combo.currentText(), QStringLiteral("High"));
        QVERIFY(listOf(combo)->child(2)->state().selected);
        QCOMPARE(choices.count(), 1);
    }

    void anOpenListClosesOverThePressedEntry()
    {
        ComboBox combo;
        combo.addItems({QStringLiteral("Low"), QStringLiteral("Normal")});
        combo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&combo));
        combo.showPopup();
        QTRY_VERIFY(combo.view()->isVisible());
        QAccessibleInterface* entry = listOf(combo)->child(1);
        QVERIFY(!entry->state().invisible);
        const QPoint middle = entry->rect().center();
        QCOMPARE(listOf(combo)->childAt(middle.x(), middle.y()), entry);
        press(entry);
        QTRY_VERIFY(!combo.view()->isVisible());
        QCOMPARE(combo.currentText(), QStringLiteral("Normal"));
    }

    void theEntriesOfADisabledComboCannotBePressed()
    {
        ComboBox combo;
        combo.addItems({QStringLiteral("Low"), QStringLiteral("Normal")});
        combo.setEnabled(false);
        QVERIFY(listOf(combo)->child(1)->actionInterface()->actionNames().isEmpty());
        press(listOf(combo)->child(1));
        QCOMPARE(combo.currentText(), QStringLiteral("Low"));
    }

    void entriesThatAreGoneAreNoLongerValid()
    {
        ComboBox combo;
        combo.addItems({QStringLiteral("Low"), QStringLiteral("Normal")});
        QAccessibleInterface* entry = listOf(combo)->child(1);
        combo.removeItem(1);
        QVERIFY(!entry->isValid());
        QCOMPARE(listOf(combo)->childCount(), 1);
        press(entry);
        QCOMPARE(combo.currentText(), QStringLiteral("Low"));
        combo.addItem(QStringLiteral("High"));
        QCOMPARE(listOf(combo)->child(1)->text(QAccessible::Name), QStringLiteral("High"));
    }

private:
    static QAccessibleInterface* listOf(ComboBox& combo) { return accessible(*combo.view()); }
    static void press(QAccessibleInterface* entry)
    {
        entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    static QAccessibleInterface* accessible(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget);
    }
    static void act(QWidget& widget, const QString& action)
    {
        accessible(widget)->actionInterface()->doAction(action);
    }
};

AMBERTASK_TEST_MAIN(AccessibleControlsTest)
#include "tst_accessible_controls.moc"
