#include "ShownGrid.h"
#include "support/TestMain.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QSignalSpy>
#include <QTest>

namespace
{

struct FiveRows : ShownGrid {
    FiveRows() : ShownGrid({"one", "two", "three", "four", "five"}) { }
    void click(int row, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(grid.viewport(), button, modifiers, placeOf(row));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&grid, key, modifiers); }
    void askForMenu(const QPoint& place)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, grid.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(grid.viewport(), &event);
    }
};

using Rows = QList<int>;

} // namespace

class tst_grid_selection : public TestCase
{
    Q_OBJECT

private slots:
    void shiftAndAClickSelectTheRowsInBetween()
    {
        FiveRows shown;
        shown.click(3);
        shown.click(1, Qt::ShiftModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({1, 2, 3}));
        shown.click(4, Qt::ShiftModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({3, 4}));
        shown.click(0);
        QCOMPARE(shown.grid.selectedRows(), Rows{0});
    }

    void ctrlAndAClickAddARowAndTakeItAway()
    {
        FiveRows shown;
        shown.click(0);
        shown.click(3, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({0, 3}));
        shown.click(0, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows{3});
    }

    void aLetterFindsANameBeforeAnyRowIsCurrent()
    {
        FiveRows shown;
        shown.press(Qt::Key_3);
        QVERIFY(!shown.grid.currentIndex().isValid());
        QCOMPARE(shown.grid.selectedRows(), Rows());
        QTest::qWait(QApplication::keyboardInputInterval() + 1);
        shown.press(Qt::Key_F);
        QCOMPARE(shown.grid.selectedRows(), Rows{3});
    }

    void aHeldEnterOpensOnce()
    {
        FiveRows shown;
        shown.click(0);
        const QSignalSpy opened(&shown.grid, &GridView::enterPressed);
        for (const bool isRepeat : {false, true, true}) {
            QTest::simulateEvent(&shown.grid, true, Qt::Key_Return, {}, QString(), isRepeat);
        }
        QCOMPARE(opened.size(), 1);
    }

    void ctrlAndASelectAllRows()
    {
        FiveRows shown;
        shown.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({0, 1, 2, 3, 4}));
    }

    void shiftAndAKeySelectFromWhereTheSelectionBegan_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Rows>("rows");
        QTest::newRow("down") << int(Qt::Key_Down) << Rows({2, 3});
        QTest::newRow("up") << int(Qt::Key_Up) << Rows({1, 2});
        QTest::newRow("home") << int(Qt::Key_Home) << Rows({0, 1, 2});
        QTest::newRow("end") << int(Qt::Key_End) << Rows({2, 3, 4});
        QTest::newRow("page down") << int(Qt::Key_PageDown) << Rows({2, 3, 4});
    }

    void shiftAndAKeySelectFromWhereTheSelectionBegan()
    {
        QFETCH(int, key);
        QFETCH(Rows, rows);
        FiveRows shown;
        shown.click(4);
        shown.grid.selectOnly(2);
        shown.press(Qt::Key(key), Qt::ShiftModifier);
        QCOMPARE(shown.grid.selectedRows(), rows);
    }

    void shiftAndAClickSelectFromTheRowThatTheProgramSelected()
    {
        FiveRows shown;
        shown.click(4);
        shown.grid.selectOnly(1);
        shown.click(2, Qt::ShiftModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({1, 2}));
        shown.grid.goTo(4);
        shown.click(3, Qt::ShiftModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({3, 4}));
    }

    void severalRowsAreSelectedFromRightToLeftAsWell()
    {
        FiveRows shown;
        shown.grid.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        shown.click(1);
        shown.press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({1, 2}));
        shown.click(4, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({1, 2, 4}));
    }

    void rowsAreAddedByKeysAlone()
    {
        FiveRows shown;
        shown.press(Qt::Key_Home);
        shown.press(Qt::Key_Down, Qt::ControlModifier);
        shown.press(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows{0});
        shown.press(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows({0, 2}));
        shown.press(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows(), Rows{0});
    }

    void anArrowKeyLeavesOneRow()
    {
        FiveRows shown;
        shown.grid.selectRows({2, 3, 4});
        shown.press(Qt::Key_Up);
        QCOMPARE(shown.grid.selectedRows(), Rows{1});
        shown.grid.selectRows({0, 1});
        // There is nowhere to go.
        shown.press(Qt::Key_Up);
        QCOMPARE(shown.grid.selectedRows(), Rows{0});
    }

    void aClickOnOneOfSeveralLeavesIt()
    {
        FiveRows shown;
        shown.grid.selectRows({1, 2, 3});
        shown.click(2);
        QCOMPARE(shown.grid.selectedRows(), Rows{2});
    }

    void theCurrentRowIsTheOneOfSeveral()
    {
        FiveRows shown;
        shown.click(1);
        shown.click(3, Qt::ShiftModifier);
        QCOMPARE(shown.grid.selectedRow(), 3);
        shown.grid.goTo(0);
        QCOMPARE(shown.grid.selectedRow(), 1);
    }

    void theProgramSelectsExactlyTheRowsThatItNames()
    {
        FiveRows shown;
        shown.grid.selectOnly(4);
        shown.grid.selectRows({0, 1, 3});
        QCOMPARE(shown.grid.selectedRows(), Rows({0, 1, 3}));
        QCOMPARE(shown.grid.currentIndex().row(), 0);
        shown.grid.selectRows({2});
        QCOMPARE(shown.grid.selectedRows(), Rows{2});
        shown.grid.selectRows({});
        QCOMPARE(shown.grid.selectedRows(), Rows());
    }

    void afterTheRemovalOfAllSelectedRowsTheOneInTheirPlaceIsSelected()
    {
        FiveRows shown;
        shown.grid.selectRows({1, 3});
        shown.model.removeWord(3);
        QCOMPARE(shown.grid.selectedRows(), Rows{1});
        shown.model.removeWord(1);
        QCOMPARE(shown.grid.selectedRows(), Rows{1});
        QCOMPARE(shown.model.index(1, 1).data().toString(), QStringLiteral("three"));
    }

    void theRemovalOfARowThatIsCurrentOnlySelectsNothing()
    {
        FiveRows shown;
        shown.grid.goTo(1);
        shown.model.removeWord(1);
        QCOMPARE(shown.grid.selectedRows(), Rows());
    }

    void aRightClickSelectsTheRowUnlessItIsSelected()
    {
        FiveRows shown;
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        shown.grid.selectRows({1, 2});
        shown.click(2, {}, Qt::RightButton);
        shown.askForMenu(shown.placeOf(2));
        QCOMPARE(shown.grid.selectedRows(), Rows({1, 2}));
        shown.askForMenu(shown.placeOf(4));
        QCOMPARE(shown.grid.selectedRows(), Rows{4});
        QCOMPARE(asked.count(), 2);
        QCOMPARE(asked[1][0].toPoint(), shown.grid.viewport()->mapToGlobal(shown.placeOf(4)));
    }

    void aRightClickBesideTheRowsMeansNone()
    {
        FiveRows shown;
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        shown.grid.selectOnly(1);
        shown.askForMenu(QPoint(50, shown.grid.viewport()->height() - 5));
        QCOMPARE(shown.grid.selectedRows(), Rows());
        QCOMPARE(asked.count(), 1);
    }

    void theMenuOpensBelowTheCurrentRowByKeys()
    {
        FiveRows shown;
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        shown.grid.selectRows({1, 2});
        shown.press(Qt::Key_F10, Qt::ShiftModifier);
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(&shown.grid, &menuKey);
        const QPoint below =
            shown.grid.viewport()->mapToGlobal(shown.grid.visualRect(shown.grid.currentIndex()).bottomLeft());
        QCOMPARE(asked.count(), 2);
        QCOMPARE(asked[0][0].toPoint(), below);
        QCOMPARE(asked[1][0].toPoint(), below);
        QCOMPARE(shown.grid.selectedRows(), Rows({1, 2}));
    }

    void theMenuOpensInSightByKeysWithoutACurrentRowAndWithOneOutOfSight()
    {
        FiveRows shown;
        const QSignalSpy asked(&shown.grid, &GridView::menuRequested);
        const QRect sight(shown.grid.viewport()->mapToGlobal(QPoint(0, 0)), shown.grid.viewport()->size());
        shown.press(Qt::Key_F10, Qt::ShiftModifier);
        shown.model.setWords(QStringList(100, QStringLiteral("word")), columns());
        shown.grid.selectOnly(99);
        shown.grid.scrollToTop();
        shown.press(Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(asked.count(), 2);
        QVERIFY(sight.adjusted(-1, -1, 1, 1).contains(asked[0][0].toPoint()));
        QVERIFY(sight.adjusted(-1, -1, 1, 1).contains(asked[1][0].toPoint()));
    }

    void theSelectedRowsAreCopiedAsLinesWithTabs()
    {
        FiveRows shown;
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        shown.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
        shown.fill({"one", "with\ta tab\nand a line", "three"});
        shown.grid.selectRows({1, 2});
        shown.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
            QStringLiteral("with a tab and a line\tpicture 1\nthree\tpicture 2"));
    }

    void allOfAFullHouseAreSelectedAndCopied()
    {
        FiveRows shown;
        shown.model.setWords(QStringList(32'767, QStringLiteral("word")), columns());
        shown.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(shown.grid.selectedRows().size(), 32'767);
        shown.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text().count(u'\n'), 32'766);
    }
};

AMBERTASK_TEST_MAIN(tst_grid_selection)
#include "tst_grid_selection.moc"
