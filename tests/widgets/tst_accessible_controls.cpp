#include "support/TestMain.h"
#include "widgets/AccessibleControls.h"
#include "widgets/CheckBox.h"
#include "widgets/ComboBox.h"
#include "widgets/LinkLabel.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <array>

/// Controls as assistive technology works them.
class AccessibleControlsTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { installAccessibleControls(); }

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

    void aButtonWithAMenuSaysWhatItIs()
    {
        QPushButton button;
        QMenu menu;
        button.setMenu(&menu);
        button.setText(QStringLiteral("&Set to"));
        QAccessibleInterface* seen = accessible(button);
        QCOMPARE(seen->role(), QAccessible::ButtonMenu);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Set to"));
        QCOMPARE(seen->text(QAccessible::Accelerator), QStringLiteral("Alt+S"));
        QVERIFY(seen->state().hasPopup);
        QVERIFY(!seen->state().pressed);
        button.setDown(true);
        QVERIFY(seen->state().pressed);
    }

    /// Who asks over the bus waits for the answer and cannot choose from the menu meanwhile.
    void theMenuOfAButtonOpensOnceTheActionHasReturned()
    {
        QPushButton button;
        QMenu menu;
        menu.addAction(QStringLiteral("In 1 hour"));
        button.setMenu(&menu);
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        bool isOpen = false;
        connect(&menu, &QMenu::aboutToShow, &menu, [&] {
            QTimer::singleShot(0, &menu, [&] {
                isOpen = menu.isVisible();
                menu.close();
            });
        });
        act(button, QAccessibleActionInterface::showMenuAction());
        QVERIFY(!isOpen);
        QTRY_VERIFY(isOpen);
    }

    void theMenuOfADisabledButtonStaysClosed()
    {
        QPushButton button;
        QMenu menu;
        button.setMenu(&menu);
        button.setEnabled(false);
        const QSignalSpy shows(&menu, &QMenu::aboutToShow);
        QVERIFY(accessible(button)->actionInterface()->actionNames().isEmpty());
        act(button, QAccessibleActionInterface::showMenuAction());
        QCoreApplication::processEvents();
        QCOMPARE(shows.count(), 0);
    }

    void aButtonWithoutAMenuIsPressed()
    {
        QPushButton button;
        const QSignalSpy clicks(&button, &QPushButton::clicked);
        QCOMPARE(accessible(button)->role(), QAccessible::Button);
        act(button, QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(clicks.count(), 1);
    }

    void aWindowSaysThatItIsOne()
    {
        QWidget window;
        const std::array<std::pair<QWidget*, QAccessible::Role>, 3> seen{
            std::pair(&window, QAccessible::Window),
            std::pair(new QWidget(&window, Qt::Dialog), QAccessible::Dialog),
            std::pair(new QWidget(&window), QAccessible::Client)};
        for (const auto& [widget, role] : seen) {
            widget->setWindowTitle(QStringLiteral("Title"));
            QCOMPARE(accessible(*widget)->role(), role);
        }
        QCOMPARE(accessible(window)->text(QAccessible::Name), QStringLiteral("Title"));
    }

    void theEntriesOfAComboAreReadWhileItIsClosed()
    {
        ComboBox combo;
        combo.addItems({QStringLiteral("Low"), QStringLiteral("Normal"), QStringLiteral("High")});
        combo.setCurrentIndex(1);
        QAccessibleInterface* entries = listOf(combo);
        QCOMPARE(entries->role(), QAccessible::List);
        QCOMPARE(entries->parent(), accessible(combo));
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

    void theChosenEntryOfAClosedBoxHasItsFocus()
    {
        QWidget window;
        auto* button = new QPushButton(&window);
        auto* combo = new ComboBox(&window);
        combo->addItems({QStringLiteral("Low"), QStringLiteral("Normal")});
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        combo->setFocus();
        QVERIFY(listOf(*combo)->child(0)->state().focused);
        QTest::keyClick(combo, Qt::Key_Down);
        QVERIFY(!listOf(*combo)->child(0)->state().focused);
        QVERIFY(listOf(*combo)->child(1)->state().focused);
        button->setFocus();
        QVERIFY(!listOf(*combo)->child(1)->state().focused);
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
