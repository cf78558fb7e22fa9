#include "support/TestMain.h"
#include "ui/CheckBox.h"
#include "ui/LinkLabel.h"

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

private:
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
