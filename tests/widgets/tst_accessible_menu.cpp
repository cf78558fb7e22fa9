#include "support/TestMain.h"
#include "widgets/AccessibleControls.h"

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

namespace
{

QAccessibleInterface* accessible(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

void press(QAction* action)
{
    accessible(action)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

QStringList actionsOf(QAction* action)
{
    return accessible(action)->actionInterface()->actionNames();
}

/// An open menu.
struct OpenMenu {
    OpenMenu()
    {
        edit = menu.addAction(QStringLiteral("&Edit"));
        edit->setShortcut(Qt::Key_F2);
        separator = menu.addSeparator();
        status = menu.addMenu(QStringLiteral("&Status"));
        done = status->addAction(QStringLiteral("D&one && gone"));
        done->setCheckable(true);
        menu.popup(QPoint(10, 10));
    }
    QMenu menu;
    QAction* edit;
    QAction* separator;
    QMenu* status;
    QAction* done;
};

} // namespace

/// Menus as assistive technology sees and works them.
class AccessibleMenuTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { installAccessibleControls(); }

    void anEntryActsOnceTheMenuIsClosedAndTheCallerIsAnswered()
    {
        OpenMenu open;
        bool wasOpen = true;
        connect(open.edit, &QAction::triggered, &open.menu, [&] { wasOpen = open.menu.isVisible(); });
        const QSignalSpy triggered(&open.menu, &QMenu::triggered);
        press(open.edit);
        QCOMPARE(triggered.count(), 0);
        QTRY_COMPARE(triggered.count(), 1);
        QVERIFY(!wasOpen);
    }

    void anEntryOfAMenuBelowClosesBoth()
    {
        OpenMenu open;
        accessible(open.status->menuAction())
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(open.status->isVisible());
        const QSignalSpy triggered(&open.menu, &QMenu::triggered);
        press(open.done);
        QTRY_COMPARE(triggered.count(), 1);
        QVERIFY(!open.status->isVisible());
        QVERIFY(!open.menu.isVisible());
        QVERIFY(open.done->isChecked());
        QVERIFY(accessible(open.done)->state().checked);
    }

    void anEntryThatIsGoneByThenDoesNothing()
    {
        OpenMenu open;
        const QSignalSpy triggered(&open.menu, &QMenu::triggered);
        press(open.done);
        open.status->clear();
        QCoreApplication::processEvents();
        QCOMPARE(triggered.count(), 0);
    }

    void whatCannotBeChosenOffersNothing()
    {
        OpenMenu open;
        open.edit->setEnabled(false);
        const QSignalSpy triggered(&open.menu, &QMenu::triggered);
        press(open.edit);
        press(open.separator);
        press(open.status->menuAction());
        QCoreApplication::processEvents();
        QCOMPARE(triggered.count(), 0);
        QVERIFY(open.menu.isVisible());
        QCOMPARE(actionsOf(open.edit), QStringList());
        QCOMPARE(actionsOf(open.separator), QStringList());
        QCOMPARE(actionsOf(open.done), QStringList(QAccessibleActionInterface::pressAction()));
        QCOMPARE(
            actionsOf(open.status->menuAction()), QStringList(QAccessibleActionInterface::showMenuAction()));
    }

    void entriesAreReadWithTheirKeys()
    {
        const OpenMenu open;
        QAccessibleInterface* edit = accessible(open.edit);
        QCOMPARE(edit->text(QAccessible::Name), QStringLiteral("Edit"));
        QCOMPARE(edit->text(QAccessible::Accelerator), QStringLiteral("F2"));
        QCOMPARE(edit->actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
            QStringList(QStringLiteral("F2")));
        QCOMPARE(accessible(open.done)->text(QAccessible::Name), QStringLiteral("Done & gone"));
        QCOMPARE(accessible(open.done)->text(QAccessible::Accelerator), QStringLiteral("Alt+O"));
        QCOMPARE(accessible(open.status)->text(QAccessible::Name), QStringLiteral("Status"));
        open.edit->setShortcut({});
        open.edit->setText(QStringLiteral("&Undo\tCtrl+Z"));
        QCOMPARE(edit->text(QAccessible::Name), QStringLiteral("Undo"));
    }

    void aMenuHasItsEntriesAndTheirMenus()
    {
        OpenMenu open;
        QAccessibleInterface* menu = accessible(&open.menu);
        QCOMPARE(menu->role(), QAccessible::PopupMenu);
        QCOMPARE(menu->childCount(), 3);
        const QList<QAction*> actions{open.edit, open.separator, open.status->menuAction()};
        for (int i = 0; i < 3; ++i) {
            QAccessibleInterface* entry = menu->child(i);
            QCOMPARE(entry->object(), actions[i]);
            QCOMPARE(entry->parent(), menu);
            QCOMPARE(menu->indexOfChild(entry), i);
            QCOMPARE(entry->role(), i == 1 ? QAccessible::Separator : QAccessible::MenuItem);
            QCOMPARE(entry->childCount(), i == 2 ? 1 : 0);
        }
        QCOMPARE(menu->child(3), nullptr);
        QCOMPARE(menu->child(-1), nullptr);
        QAccessibleInterface* status = accessible(open.status);
        QCOMPARE(menu->child(2)->child(0), status);
        QCOMPARE(menu->child(2)->indexOfChild(status), 0);
        QCOMPARE(menu->child(2)->child(1), nullptr);
        QCOMPARE(menu->child(0)->child(0), nullptr);
        QCOMPARE(menu->child(0)->indexOfChild(status), -1);
        QCOMPARE(status->parent(), menu->child(2));
        QVERIFY(menu->child(2)->state().hasPopup);
        QVERIFY(!menu->child(0)->state().hasPopup);
        open.status->clear();
        QCOMPARE(status->childCount(), 0);
    }

    void entriesLieWhereTheyArePaintedWhileTheMenuIsOpen()
    {
        OpenMenu open;
        QAccessibleInterface* edit = accessible(open.edit);
        QCOMPARE(edit->rect(), open.menu.actionGeometry(open.edit).translated(open.menu.pos()));
        const QPoint middle = edit->rect().center();
        QCOMPARE(accessible(&open.menu)->childAt(middle.x(), middle.y()), edit);
        QVERIFY(!edit->state().invisible);
        open.menu.setActiveAction(open.edit);
        QVERIFY(edit->state().focused);
        QCOMPARE(accessible(&open.menu)->focusChild(), edit);
        open.menu.close();
        QVERIFY(edit->state().invisible);
        QVERIFY(edit->rect().isEmpty());
        QVERIFY(!edit->state().focused);
    }
};

AMBERTASK_TEST_MAIN(AccessibleMenuTest)
#include "tst_accessible_menu.moc"
