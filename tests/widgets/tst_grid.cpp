#include "ShownGrid.h"
#include "support/TestMain.h"
#include "widgets/ImageList.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

namespace
{

/// Whether the widget has come up, if only for a moment.
class Appearance final : public QObject
{
public:
    explicit Appearance(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        hasCome = hasCome || event->type() == QEvent::Show;
        return false;
    }

    bool hasCome = false;
};

int widthOfAll(const GridView& grid)
{
    int width = 0;
    for (int column = 0; column < grid.model()->columnCount(); ++column) {
        width += grid.columnWidth(column);
    }
    return width;
}

} // namespace

class tst_grid : public TestCase
{
    Q_OBJECT

private slots:
    void theModelKeepsTheRulesOfModels()
    {
        WordsModel model;
        const QAbstractItemModelTester tester(&model);
        model.setWords({QStringLiteral("a"), QStringLiteral("b")}, columns());
        model.removeWord(0);
        model.setColumns(columns().mid(1));
        QCOMPARE(model.columnCount(), 2);
        QCOMPARE(model.columnCount(model.index(0, 0)), 0);
    }

    void theHeaderCarriesTextAndKeyAlignedLeft()
    {
        WordsModel model;
        model.setColumns(columns());
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Name"));
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::UserRole).toString(), QStringLiteral("name"));
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
            int(Qt::AlignLeft | Qt::AlignVCenter));
        QVERIFY(!model.headerData(1, Qt::Horizontal, Qt::DecorationRole).isValid());
        QVERIFY(!model.headerData(3, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(!model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    }

    void aPictureCellSaysItsWordToScreenReadersAndInTheToolTip()
    {
        WordsModel model;
        model.setWords({QStringLiteral("<b>a</b>")}, columns());
        QCOMPARE(model.index(0, 2).data().toString(), QString());
        QCOMPARE(model.index(0, 2).data(Qt::AccessibleTextRole).toString(), QStringLiteral("picture 0"));
        QCOMPARE(model.index(0, 2).data(Qt::ToolTipRole).toString(), QStringLiteral("<qt>picture 0</qt>"));
        QCOMPARE(model.index(0, 1).data(Qt::AccessibleTextRole).toString(), QStringLiteral("<b>a</b>"));
        QCOMPARE(model.index(0, 1).data(Qt::ToolTipRole).toString(),
            QStringLiteral("<qt>&lt;b&gt;a&lt;/b&gt;</qt>"));
    }

    void picturesAreCountedFromZeroAndMissingOnesAreEmpty()
    {
        ImageList images;
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        images.append(QIcon(pixmap));
        WordsModel model;
        model.setWords({QStringLiteral("a"), QStringLiteral("b")}, columns());
        QVERIFY(!model.index(0, 2).data(Qt::DecorationRole).isValid());
        model.setImageList(&images);
        QCOMPARE(
            model.index(0, 2).data(Qt::DecorationRole).value<QIcon>().cacheKey(), images.icon(0).cacheKey());
        QVERIFY(model.index(1, 2).data(Qt::DecorationRole).value<QIcon>().isNull());
        QVERIFY(!model.index(0, 1).data(Qt::DecorationRole).isValid());
    }

    void columnsFillTheGridInTheProportionOfTheirDivisors_data()
    {
        QTest::addColumn<int>("width");
        for (const int width : {300, 403, 500, 639, 960, 1001, 1920}) {
            QTest::addRow("%d", width) << width;
        }
    }

    void columnsFillTheGridInTheProportionOfTheirDivisors()
    {
        QFETCH(int, width);
        ShownGrid shown;
        shown.grid.resize(width, 300);
        QCoreApplication::processEvents();
        QVERIFY(shown.grid.isColumnHidden(0));
        QCOMPARE(widthOfAll(shown.grid), shown.grid.viewport()->width());
        const double unit = shown.grid.viewport()->width() / (1.0 / 26 + 1.0 / 200);
        QCOMPARE(shown.grid.columnWidth(2), static_cast<int>(std::lround(unit / 200)));
        QVERIFY(std::abs(shown.grid.columnWidth(1) - unit / 26) < 1);
    }

    void theColumnsMakeRoomForAScrollBar()
    {
        ShownGrid shown;
        const int before = shown.grid.viewport()->width();
        const Appearance& other = *new Appearance(shown.grid.horizontalScrollBar());
        shown.model.setWords(QStringList(100, QStringLiteral("word")), columns());
        QTRY_VERIFY(shown.grid.verticalScrollBar()->isVisible());
        QVERIFY(shown.grid.viewport()->width() < before);
        QCOMPARE(widthOfAll(shown.grid), shown.grid.viewport()->width());
        QCoreApplication::processEvents();
        QVERIFY(!other.hasCome);
        shown.model.setWords({QStringLiteral("word")}, columns());
        QTRY_COMPARE(shown.grid.viewport()->width(), before);
        QCOMPARE(widthOfAll(shown.grid), before);
    }

    void aDraggedColumnKeepsItsProportionAlsoWhenTheColumnsAreMadeAnew()
    {
        ShownGrid shown;
        const int width = shown.grid.viewport()->width();
        shown.grid.horizontalHeader()->resizeSection(1, width / 2);
        QCOMPARE(widthOfAll(shown.grid), width);
        shown.grid.resize(shown.grid.width() + width, 300);
        QCoreApplication::processEvents();
        QCOMPARE(shown.grid.viewport()->width(), 2 * width);
        QCOMPARE(shown.grid.columnWidth(1), width / 2 * 2);
        QCOMPARE(widthOfAll(shown.grid), 2 * width);
        shown.model.setColumns(columns());
        QVERIFY(std::abs(shown.grid.columnWidth(1) - width) <= 1);
        QVERIFY(shown.grid.isColumnHidden(0));
    }

    void moreColumnsUnderAHigherHeaderFillTheGrid()
    {
        ShownGrid shown;
        QList<GridColumn> more = columns();
        more[1].header = QStringLiteral("Name\nand more");
        more += more;
        // The header has the grid laid out anew while it learns of the columns.
        shown.model.setColumns(more);
        QCOMPARE(widthOfAll(shown.grid), shown.grid.viewport()->width());
        QVERIFY(shown.grid.columnWidth(4) > shown.grid.columnWidth(5));
        shown.model.setColumns(columns());
        QCOMPARE(widthOfAll(shown.grid), shown.grid.viewport()->width());
    }

    void draggingLeavesNoGapAndPushesNoColumnOut()
    {
        ShownGrid shown;
        const int width = shown.grid.viewport()->width();
        QHeaderView& header = *shown.grid.horizontalHeader();
        header.resizeSection(1, 2 * width);
        QCOMPARE(widthOfAll(shown.grid), width);
        QCOMPARE(header.sectionSize(2), header.minimumSectionSize());
        // The last one ends where the grid does.
        header.resizeSection(2, 100);
        QCOMPARE(header.sectionSize(2), header.minimumSectionSize());
        QCOMPARE(widthOfAll(shown.grid), width);
    }

    void ofATextWithoutEndAPartIsShownAndTheWholeIsKept()
    {
        WordsModel model;
        const QString endless(10'000'000, u'\u0628');
        model.setWords({endless}, columns());
        GridView grid;
        grid.setGridModel(&model);
        grid.resize(960, 300);
        grid.grab();
        grid.selectOnly(0);
        grid.grab();
        for (const int role : {Qt::DisplayRole, Qt::AccessibleTextRole, Qt::ToolTipRole}) {
            const QString shown = model.index(0, 1).data(role).toString();
            QVERIFY(shown.contains(u'\u2026'));
            QVERIFY(shown.size() < 3000);
        }
    }

    void theSelectionIsOneWholeRowOrNone()
    {
        ShownGrid shown;
        QCOMPARE(shown.grid.selectedRow(), -1);
        shown.grid.selectOnly(1);
        QCOMPARE(shown.grid.selectedRow(), 1);
        QCOMPARE(shown.grid.currentIndex(), shown.model.index(1, 1));
        shown.grid.selectOnly(2);
        QCOMPARE(shown.grid.selectionModel()->selectedRows().size(), 1);
        QCOMPARE(shown.grid.selectedRow(), 2);
        shown.grid.selectOnly(-1);
        QCOMPARE(shown.grid.selectedRow(), -1);
        shown.grid.selectOnly(3);
        QCOMPARE(shown.grid.selectedRow(), -1);
    }

    void aRowIsSelectedFromRightToLeftToo()
    {
        ShownGrid shown;
        shown.grid.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        shown.grid.selectOnly(1);
        QCOMPARE(shown.grid.selectedRow(), 1);
        QCOMPARE(shown.grid.currentIndex().row(), 1);
        shown.grid.selectOnly(1);
        QCOMPARE(shown.grid.selectedRow(), 1);
        QTest::keyClick(&shown.grid, Qt::Key_Home);
        QCOMPARE(shown.grid.selectedRow(), 0);
    }

    void aGridWithoutAModelHasNoSelectedRow()
    {
        const GridView grid;
        QCOMPARE(grid.selectedRow(), -1);
    }

    void aClickOnAHeaderSelectsNothing()
    {
        ShownGrid shown;
        const QHeaderView* header = shown.grid.horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionSize(1) / 2, 5));
        QCOMPARE(shown.grid.selectedRow(), -1);
    }

    void nothingIsSelectedAfterARebuild()
    {
        ShownGrid shown;
        shown.grid.selectOnly(1);
        shown.model.setWords({QStringLiteral("x"), QStringLiteral("y")}, columns());
        QCOMPARE(shown.grid.selectedRow(), -1);
    }

    void afterARemovalTheRowThatTakesThePlaceIsSelectedElseTheLast()
    {
        ShownGrid shown;
        shown.grid.selectOnly(1);
        shown.model.removeWord(1);
        QCOMPARE(shown.grid.selectedRow(), 1);
        shown.model.removeWord(1);
        QCOMPARE(shown.grid.selectedRow(), 0);
        shown.model.removeWord(0);
        QCOMPARE(shown.grid.selectedRow(), -1);
    }

    void removingAnotherRowKeepsTheSelection()
    {
        ShownGrid shown;
        shown.grid.selectOnly(2);
        shown.model.removeWord(0);
        QCOMPARE(shown.grid.selectedRow(), 1);
    }

    void aDoubleClickReportsTheRowOnce()
    {
        ShownGrid shown;
        const QSignalSpy reported(&shown.grid, &GridView::rowDoubleClicked);
        QTest::mouseClick(shown.grid.viewport(), Qt::LeftButton, {}, shown.placeOf(1));
        QCOMPARE(reported.count(), 0);
        QTest::mouseDClick(shown.grid.viewport(), Qt::LeftButton, {}, shown.placeOf(1));
        QCOMPARE(reported.count(), 1);
        QCOMPARE(shown.grid.selectedRow(), 1);
    }

    void aDoubleClickBesideTheRowsReportsNothing()
    {
        ShownGrid shown;
        const QSignalSpy reported(&shown.grid, &GridView::rowDoubleClicked);
        const QPoint below(50, shown.grid.viewport()->height() - 5);
        QTest::mouseClick(shown.grid.viewport(), Qt::LeftButton, {}, below);
        QTest::mouseDClick(shown.grid.viewport(), Qt::LeftButton, {}, below);
        QCOMPARE(reported.count(), 0);
    }

    void deleteAndEnterAreReportedAndTabLeavesTheGrid()
    {
        ShownGrid shown;
        const QSignalSpy deletes(&shown.grid, &GridView::deletePressed);
        const QSignalSpy enters(&shown.grid, &GridView::enterPressed);
        QTest::keyClick(&shown.grid, Qt::Key_Delete);
        QTest::keyClick(&shown.grid, Qt::Key_Return);
        QTest::keyClick(&shown.grid, Qt::Key_Enter, Qt::KeypadModifier);
        QTest::keyClick(&shown.grid, Qt::Key_Delete, Qt::KeypadModifier);
        QTest::keyClick(&shown.grid, Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(deletes.count(), 2);
        QCOMPARE(enters.count(), 2);
        QVERIFY(!shown.grid.tabKeyNavigation());
    }

    void theArrowKeysMoveTheSelection()
    {
        ShownGrid shown;
        shown.grid.selectOnly(0);
        QTest::keyClick(&shown.grid, Qt::Key_Down);
        QCOMPARE(shown.grid.selectedRow(), 1);
        QTest::keyClick(&shown.grid, Qt::Key_Up);
        QCOMPARE(shown.grid.selectedRow(), 0);
    }

    void homeAndEndSelectTheFirstAndTheLastRow()
    {
        ShownGrid shown;
        shown.grid.selectOnly(1);
        QTest::keyClick(&shown.grid, Qt::Key_Home);
        QCOMPARE(shown.grid.selectedRow(), 0);
        QTest::keyClick(&shown.grid, Qt::Key_End);
        QCOMPARE(shown.grid.selectedRow(), 2);
        QTest::keyClick(&shown.grid, Qt::Key_Home, Qt::KeypadModifier);
        QCOMPARE(shown.grid.selectedRow(), 0);
        shown.model.setWords({}, columns());
        QTest::keyClick(&shown.grid, Qt::Key_Home);
        QTest::keyClick(&shown.grid, Qt::Key_End);
        QCOMPARE(shown.grid.selectedRow(), -1);
    }

    void whereNoRowIsCurrentTheFirstKeySelectsTheFirstOrTheLast_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("down") << int(Qt::Key_Down) << 0;
        QTest::newRow("up") << int(Qt::Key_Up) << 0;
        QTest::newRow("page up") << int(Qt::Key_PageUp) << 0;
        QTest::newRow("home") << int(Qt::Key_Home) << 0;
        QTest::newRow("end") << int(Qt::Key_End) << 2;
    }

    void whereNoRowIsCurrentTheFirstKeySelectsTheFirstOrTheLast()
    {
        QFETCH(int, key);
        QFETCH(int, row);
        ShownGrid shown;
        shown.grid.clearFocus();
        shown.model.setWords(
            {QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}, columns());
        shown.grid.setFocus(Qt::TabFocusReason);
        QCOMPARE(shown.grid.selectedRow(), -1);
        QTest::keyClick(&shown.grid, Qt::Key(key));
        QCOMPARE(shown.grid.selectedRow(), row);
    }

    void aRowIsGoneToWithoutBeingSelected()
    {
        ShownGrid shown;
        shown.grid.goTo(1);
        QCOMPARE(shown.grid.currentIndex(), shown.model.index(1, 1));
        QCOMPARE(shown.grid.selectedRow(), -1);
    }

    void aRowThatIsGoneToIsScrolledTo()
    {
        ShownGrid shown;
        shown.model.setWords(QStringList(100, QStringLiteral("word")), columns());
        shown.grid.goTo(60);
        QVERIFY(shown.grid.viewport()->rect().contains(shown.placeOf(60)));
    }

    void theKeysGoOnFromTheCurrentRow_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("down") << 1 << int(Qt::Key_Down) << 2;
        QTest::newRow("up") << 1 << int(Qt::Key_Up) << 0;
        QTest::newRow("page down") << 1 << int(Qt::Key_PageDown) << 2;
        QTest::newRow("down from the last") << 2 << int(Qt::Key_Down) << 2;
        QTest::newRow("up from the first") << 0 << int(Qt::Key_Up) << 0;
        QTest::newRow("blank") << 1 << int(Qt::Key_Space) << 1;
    }

    void theKeysGoOnFromTheCurrentRow()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(int, row);
        ShownGrid shown;
        shown.grid.goTo(from);
        QTest::keyClick(&shown.grid, Qt::Key(key));
        QCOMPARE(shown.grid.selectedRow(), row);
    }

    void theFocusMakesNoRowTheCurrentOne()
    {
        ShownGrid shown;
        shown.grid.clearFocus();
        shown.model.setWords({QStringLiteral("one"), QStringLiteral("two")}, columns());
        shown.grid.setFocus(Qt::TabFocusReason);
        QVERIFY(shown.grid.hasFocus());
        QVERIFY(!shown.grid.currentIndex().isValid());
    }

    void allRowsHaveOneHeight()
    {
        ShownGrid shown;
        QCOMPARE(shown.grid.rowHeight(0), shown.grid.rowHeight(2));
        QVERIFY(shown.grid.rowHeight(0) >= shown.grid.fontMetrics().height());
    }
};

AMBERTASK_TEST_MAIN(tst_grid)
#include "tst_grid.moc"
