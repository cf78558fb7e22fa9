#include "WordsModel.h"
#include "support/TestMain.h"
#include "widgets/GridView.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

namespace
{

struct ShownGrid {
    ShownGrid()
    {
        grid.setAccessibleName(QStringLiteral("Words"));
        model.setWords({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}, columns());
        grid.setGridModel(&model);
        grid.resize(500, 300);
        grid.show();
        isActive = QTest::qWaitForWindowActive(&grid);
    }
    QAccessibleInterface* seen() { return QAccessible::queryAccessibleInterface(&grid); }
    QAccessibleTableInterface* table() { return seen()->tableInterface(); }

    WordsModel model;
    GridView grid;
    bool isActive = false;
};

QString nameOf(QAccessibleInterface* seen)
{
    return seen == nullptr ? QStringLiteral("(nothing)") : seen->text(QAccessible::Name);
}

} // namespace

/// A grid as assistive technology sees it: what it shows and nothing else.
class tst_accessible_grid : public TestCase
{
    Q_OBJECT

private slots:
    void onlyTheVisibleColumnsAreCounted()
    {
        ShownGrid shown;
        QCOMPARE(shown.seen()->role(), QAccessible::Table);
        QCOMPARE(nameOf(shown.seen()), QStringLiteral("Words"));
        QCOMPARE(shown.table()->columnCount(), 2);
        QCOMPARE(shown.table()->rowCount(), 3);
        QCOMPARE(shown.table()->columnDescription(0), QStringLiteral("Name"));
        QCOMPARE(shown.table()->columnDescription(1), QStringLiteral("Periority"));
        QCOMPARE(shown.table()->columnDescription(2), QString());
        QCOMPARE(shown.table()->columnDescription(-1), QString());
    }

    void theChildrenAreTheCaptionsAndThenTheRows()
    {
        ShownGrid shown;
        QStringList names;
        for (int i = 0; i < shown.seen()->childCount(); ++i) {
            QAccessibleInterface* child = shown.seen()->child(i);
            names += nameOf(child);
            QCOMPARE(shown.seen()->indexOfChild(child), i);
            QCOMPARE(child->parent(), shown.seen());
            QCOMPARE(child->role(), i < 2 ? QAccessible::ColumnHeader : QAccessible::Cell);
            QCOMPARE(shown.seen()->child(i), child);
        }
        QCOMPARE(
            names.join(u'|'), QStringLiteral("Name|Periority|one|picture 0|two|picture 1|three|picture 2"));
        QCOMPARE(shown.seen()->child(8), nullptr);
        QCOMPARE(shown.seen()->child(-1), nullptr);
        QCOMPARE(shown.seen()->indexOfChild(shown.seen()), -1);
    }

    void aCellKnowsItsPlaceAndItsCaption()
    {
        ShownGrid shown;
        QAccessibleInterface* seen = shown.table()->cellAt(2, 1);
        QCOMPARE(nameOf(seen), QStringLiteral("picture 2"));
        QAccessibleTableCellInterface* cell = seen->tableCellInterface();
        QCOMPARE(cell->rowIndex(), 2);
        QCOMPARE(cell->columnIndex(), 1);
        QCOMPARE(cell->rowExtent(), 1);
        QCOMPARE(cell->columnExtent(), 1);
        QCOMPARE(cell->table(), shown.seen());
        QVERIFY(cell->rowHeaderCells().isEmpty());
        QCOMPARE(cell->columnHeaderCells(), QList<QAccessibleInterface*>{shown.seen()->child(1)});
        for (const auto& [row, column] :
            {std::pair(0, 2), std::pair(3, 0), std::pair(-1, 0), std::pair(0, -1)}) {
            QCOMPARE(shown.table()->cellAt(row, column), nullptr);
        }
    }

    void cellsAndCaptionsLieWhereTheyArePainted()
    {
        ShownGrid shown;
        QAccessibleInterface* cell = shown.table()->cellAt(1, 0);
        const QRect painted = shown.grid.visualRect(shown.model.index(1, 1));
        QCOMPARE(cell->rect(), painted.translated(shown.grid.viewport()->mapToGlobal(QPoint(0, 0))));
        const QPoint middle = cell->rect().center();
        QCOMPARE(shown.seen()->childAt(middle.x(), middle.y()), cell);
        QAccessibleInterface* caption = shown.seen()->child(1);
        QCOMPARE(caption->rect().width(), shown.grid.columnWidth(2));
        QCOMPARE(caption->rect().left(), shown.table()->cellAt(0, 1)->rect().left());
        const QPoint above = caption->rect().center();
        QCOMPARE(shown.seen()->childAt(above.x(), above.y()), caption);
        const QPoint below = shown.grid.mapToGlobal(QPoint(50, shown.grid.height() - 5));
        QCOMPARE(shown.seen()->childAt(below.x(), below.y()), nullptr);
        QVERIFY(!cell->state().invisible);
        shown.grid.hide();
        QVERIFY(cell->state().invisible);
        QVERIFY(caption->state().invisible);
    }

    void aRowIsSelectedByACell()
    {
        ShownGrid shown;
        QAccessibleInterface* cell = shown.table()->cellAt(1, 0);
        QVERIFY(!cell->state().selected);
        QVERIFY(shown.table()->selectedRows().isEmpty());
        const QString select = QAccessibleActionInterface::toggleAction();
        QCOMPARE(cell->actionInterface()->actionNames(), QStringList(select));
        cell->actionInterface()->doAction(select);
        QCOMPARE(shown.grid.selectedRow(), 1);
        QVERIFY(cell->state().selected);
        QVERIFY(cell->tableCellInterface()->isSelected());
        QVERIFY(!shown.table()->cellAt(0, 0)->state().selected);
        QCOMPARE(shown.table()->selectedRows(), QList<int>{1});
        QCOMPARE(shown.table()->selectedRowCount(), 1);
        QCOMPARE(shown.table()->selectedCellCount(), 2);
        QCOMPARE(shown.table()->selectedCells(),
            (QList<QAccessibleInterface*>{cell, shown.table()->cellAt(1, 1)}));
        QVERIFY(shown.table()->isRowSelected(1));
        QVERIFY(!shown.table()->isRowSelected(0));
        cell->actionInterface()->doAction(select);
        QCOMPARE(shown.grid.selectedRow(), 1);
    }

    void theMenuIsOfferedWhereThereIsOneAlone()
    {
        ShownGrid shown;
        const QString showMenu = QAccessibleActionInterface::showMenuAction();
        QAccessibleInterface* cell = shown.table()->cellAt(1, 0);
        QVERIFY(!shown.seen()->actionInterface()->actionNames().contains(showMenu));
        QVERIFY(!cell->actionInterface()->actionNames().contains(showMenu));
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        QVERIFY(shown.seen()->actionInterface()->actionNames().contains(showMenu));
        QVERIFY(cell->actionInterface()->actionNames().contains(showMenu));
        shown.grid.setEnabled(false);
        QVERIFY(!shown.seen()->actionInterface()->actionNames().contains(showMenu));
        QVERIFY(!cell->actionInterface()->actionNames().contains(showMenu));
        shown.seen()->actionInterface()->doAction(showMenu);
        cell->actionInterface()->doAction(showMenu);
        QCOMPARE(asked.count(), 0);
        QCOMPARE(shown.table()->selectedRows(), QList<int>());
    }

    void theMenuOfTheGridIsThatOfTheMenuKey()
    {
        ShownGrid shown;
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        shown.grid.selectRows({1, 2});
        QTest::keyClick(&shown.grid, Qt::Key_F10, Qt::ShiftModifier);
        shown.seen()->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QCOMPARE(asked.count(), 2);
        QCOMPARE(asked[1], asked[0]);
        QCOMPARE(shown.table()->selectedRows(), QList<int>({1, 2}));
    }

    void theMenuOfACellIsForItsRowOrForAllThatAreSelectedWithIt()
    {
        ShownGrid shown;
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        const QString showMenu = QAccessibleActionInterface::showMenuAction();
        shown.grid.selectRows({0, 1});
        shown.table()->cellAt(1, 1)->actionInterface()->doAction(showMenu);
        QCOMPARE(shown.table()->selectedRows(), QList<int>({0, 1}));
        QCOMPARE(shown.grid.selectedRow(), 1);
        shown.table()->cellAt(2, 0)->actionInterface()->doAction(showMenu);
        QCOMPARE(shown.table()->selectedRows(), QList<int>{2});
        QCOMPARE(asked.count(), 2);
        for (int menu = 0; menu < 2; ++menu) {
            const QRect row = shown.table()->cellAt(menu + 1, 0)->rect();
            QCOMPARE(asked[menu][0].toPoint(), row.bottomLeft());
        }
    }

    void theFocusIsStillSetByAnAction()
    {
        ShownGrid shown;
        QVERIFY(shown.isActive);
        shown.grid.clearFocus();
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        shown.seen()->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(shown.grid.hasFocus());
        QCOMPARE(asked.count(), 0);
    }

    void rowsAreSelectedAndColumnsAreNot()
    {
        ShownGrid shown;
        QVERIFY(shown.table()->selectRow(2));
        QCOMPARE(shown.grid.selectedRow(), 2);
        QVERIFY(!shown.table()->selectRow(3));
        QVERIFY(!shown.table()->selectRow(-1));
        QCOMPARE(shown.grid.selectedRow(), 2);
        QVERIFY(!shown.table()->selectColumn(0));
        QVERIFY(!shown.table()->unselectColumn(0));
        QVERIFY(!shown.table()->isColumnSelected(0));
        QVERIFY(shown.table()->selectedColumns().isEmpty());
        QCOMPARE(shown.table()->selectedColumnCount(), 0);
        QCOMPARE(shown.grid.selectedRow(), 2);
    }

    void rowsAreAddedToTheSelectionAndTakenAway()
    {
        ShownGrid shown;
        QVERIFY(shown.seen()->state().multiSelectable);
        QVERIFY(shown.seen()->state().extSelectable);
        QVERIFY(shown.table()->selectRow(2));
        QVERIFY(shown.table()->selectRow(0));
        QCOMPARE(shown.table()->selectedRows(), QList<int>({0, 2}));
        QCOMPARE(shown.table()->selectedRowCount(), 2);
        QCOMPARE(shown.table()->selectedCellCount(), 4);
        QVERIFY(shown.table()->isRowSelected(0));
        QVERIFY(!shown.table()->isRowSelected(1));
        QVERIFY(!shown.table()->isRowSelected(3));
        QVERIFY(shown.table()->cellAt(0, 1)->state().selected);
        QVERIFY(shown.table()->unselectRow(2));
        QVERIFY(!shown.table()->unselectRow(2));
        QVERIFY(!shown.table()->unselectRow(3));
        QCOMPARE(shown.table()->selectedRows(), QList<int>{0});
    }

    void theCellWithTheFocusIsTheOneThatIsShown()
    {
        ShownGrid shown;
        QVERIFY(shown.isActive);
        shown.grid.setFocus();
        shown.grid.selectOnly(0);
        QTest::keyClick(&shown.grid, Qt::Key_Down);
        QCOMPARE(nameOf(shown.seen()->focusChild()), QStringLiteral("two"));
        QTest::keyClick(&shown.grid, Qt::Key_Right);
        QAccessibleInterface* focused = shown.seen()->focusChild();
        QCOMPARE(nameOf(focused), QStringLiteral("picture 1"));
        QVERIFY(focused->state().focused);
        QVERIFY(!shown.table()->cellAt(1, 0)->state().focused);
        QVERIFY(shown.seen()->state().focused);
        shown.grid.clearFocus();
        QCOMPARE(shown.seen()->focusChild(), nullptr);
        QVERIFY(!focused->state().focused);
    }

    void aHiddenCurrentCellIsTakenForTheFirstThatIsShown()
    {
        ShownGrid shown;
        QVERIFY(shown.isActive);
        shown.grid.setFocus();
        shown.grid.setCurrentIndex(shown.model.index(1, 0));
        QCOMPARE(nameOf(shown.seen()->focusChild()), QStringLiteral("two"));
        QVERIFY(shown.table()->cellAt(1, 0)->state().focused);
    }

    void aCellStaysItselfWhenARowAboveIsRemoved()
    {
        ShownGrid shown;
        QAccessibleInterface* removed = shown.table()->cellAt(0, 0);
        QAccessibleInterface* cell = shown.table()->cellAt(1, 0);
        const QAccessible::Id removedId = QAccessible::uniqueId(removed);
        shown.model.removeWord(0);
        // Qt tells of it when somebody listens.
        QAccessibleTableModelChangeEvent change(&shown.grid, QAccessibleTableModelChangeEvent::RowsRemoved);
        shown.table()->modelChange(&change);
        QCOMPARE(QAccessible::accessibleInterface(removedId), nullptr);
        QCOMPARE(shown.table()->rowCount(), 2);
        QCOMPARE(shown.table()->cellAt(0, 0), cell);
        QCOMPARE(nameOf(cell), QStringLiteral("two"));
        QCOMPARE(cell->tableCellInterface()->rowIndex(), 0);
    }

    void columnsThatComeAndGoAreSeen()
    {
        ShownGrid shown;
        QAccessibleInterface* caption = shown.seen()->child(1);
        QAccessibleInterface* cell = shown.table()->cellAt(0, 1);
        shown.model.setWords({QStringLiteral("one")}, columns().mid(0, 2));
        QCOMPARE(shown.table()->columnCount(), 1);
        QCOMPARE(shown.seen()->childCount(), 2);
        QVERIFY(!caption->isValid());
        QVERIFY(!cell->isValid());
        QVERIFY(cell->state().invalid);
        QCOMPARE(nameOf(shown.seen()->child(1)), QStringLiteral("one"));
        shown.model.setWords({QStringLiteral("one")}, columns());
        QCOMPARE(nameOf(shown.seen()->child(1)), QStringLiteral("Periority"));
    }

    void aGridWithoutAModelIsEmpty()
    {
        GridView grid;
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&grid);
        QCOMPARE(seen->childCount(), 0);
        QCOMPARE(seen->tableInterface()->rowCount(), 0);
        QCOMPARE(seen->tableInterface()->columnCount(), 0);
        QVERIFY(seen->tableInterface()->selectedRows().isEmpty());
        QCOMPARE(seen->focusChild(), nullptr);
    }
};

AMBERTASK_TEST_MAIN(tst_accessible_grid)
#include "tst_accessible_grid.moc"
