#include "ProgramFixture.h"
#include "app/EmptyListNote.h"
#include "app/FindField.h"
#include "app/TasksPage.h"
#include "support/TestMain.h"
#include "widgets/QuietLine.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

namespace
{

enum PageIndex { Tasks, Categories, Settings };

struct FindFixture : ProgramFixture {
    bool show(
        const QStringList& names = {QStringLiteral("Call the dentist"), QStringLiteral("Caf\u00e9 au lait"),
            QStringLiteral("Water the garden"), QStringLiteral("Call the garage")})
    {
        const qint16 home = database.addCategory(QStringLiteral("Home"), 0);
        for (const QString& name : names) {
            ClsTask task(database.engine());
            task.setTaskName(name);
            task.setCategoryId(home);
            task.setDueDateTime(database.clock().now());
            ids.append(task.Add());
        }
        start();
        program.loadDialogs();
        return QTest::qWaitForWindowActive(&main());
    }
    FindField& field() { return *control<FindField>(main(), "txtFind"); }
    QTabWidget& tabs() { return *control<QTabWidget>(main(), "tabMain"); }
    TasksPage& page() { return *main().tasksPage(); }
    GridView& list() { return *page().grid(); }
    void type(const char* text) { QTest::keyClicks(&field(), QLatin1String(text)); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    QStringList names()
    {
        QStringList names;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            names.append(list().model()->index(row, 1).data().toString());
        }
        return names;
    }
    QString focus()
    {
        return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
    }

    QList<qint32> ids;
};

} // namespace

class FindingTest : public TestCase
{
    Q_OBJECT

private slots:
    void theFieldIsReachedFromEveryPage()
    {
        FindFixture f;
        QVERIFY(f.show());
        QCOMPARE(f.focus(), QStringLiteral("grdTasks"));
        f.key(Qt::Key_Down);
        f.key(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(f.focus(), QStringLiteral("txtFind"));
        for (const int page : {Categories, Settings}) {
            f.tabs().setCurrentIndex(page);
            f.key(Qt::Key_F, Qt::ControlModifier);
            QCOMPARE(f.focus(), QStringLiteral("txtFind"));
            QCOMPARE(f.tabs().currentIndex(), int(Tasks));
        }
    }

    void theFieldSaysWhatItIs()
    {
        FindFixture f;
        QVERIFY(f.show());
        QCOMPARE(f.field().toolTip(), QStringLiteral("Ctrl+F"));
        QCOMPARE(f.field().accessibleName(), QStringLiteral("Find tasks"));
        QVERIFY(!f.field().placeholderText().isEmpty());
        f.field().setFocus();
        QVERIFY(f.field().isClearButtonEnabled());
        QCOMPARE(f.tabs().tabBar()->nextInFocusChain(), &f.field());
    }

    void typingShowsWhatIsFoundAndAsksTheDataFileNothing()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.database.statements().take();
        f.type("CALL");
        QCOMPARE(
            f.names(), QStringList({QStringLiteral("Call the dentist"), QStringLiteral("Call the garage")}));
        f.type(" gar");
        QCOMPARE(f.names(), QStringList(QStringLiteral("Call the garage")));
        f.field().setText(QStringLiteral("cafe"));
        QCOMPARE(f.names(), QStringList(QString::fromUtf16(u"Caf\u00e9 au lait")));
        f.field().clear();
        QCOMPARE(f.names().size(), 4);
        QCOMPARE(f.database.statements().take(), QStringList());
    }

    void typingOnAnotherPageTurnsToTheTasks()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.tabs().setCurrentIndex(Settings);
        f.field().setFocus();
        f.type("dent");
        QCOMPARE(f.tabs().currentIndex(), int(Tasks));
        QCOMPARE(f.focus(), QStringLiteral("txtFind"));
        QCOMPARE(f.field().text(), QStringLiteral("dent"));
        QCOMPARE(f.names(), QStringList(QStringLiteral("Call the dentist")));
    }

    void downAndEnterGoToTheListAndEscapeClears_data()
    {
        QTest::addColumn<int>("key");
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::addRow("%x", key) << int(key);
        }
    }
    void downAndEnterGoToTheListAndEscapeClears()
    {
        QFETCH(int, key);
        FindFixture f;
        QVERIFY(f.show());
        f.field().setFocus();
        f.type("gar");
        f.key(Qt::Key(key));
        QCOMPARE(f.focus(), QStringLiteral("grdTasks"));
        QCOMPARE(f.list().selectedRow(), 0);
        f.list().selectOnly(1);
        f.key(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(f.field().selectedText(), QStringLiteral("gar"));
        f.key(Qt::Key(key));
        QCOMPARE(f.list().selectedRow(), 1);
        f.key(Qt::Key_F, Qt::ControlModifier);
        f.key(Qt::Key_Escape);
        QCOMPARE(f.focus(), QStringLiteral("grdTasks"));
        QCOMPARE(f.field().text(), QString());
        // The task stays selected among all tasks.
        QCOMPARE(f.list().selectedRow(), 3);
    }

    void escapeInTheListEndsTheSearch()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.field().setFocus();
        f.type("gar");
        f.key(Qt::Key_Down);
        f.key(Qt::Key_Escape);
        QCOMPARE(f.field().text(), QString());
        QCOMPARE(f.names().size(), 4);
        QCOMPARE(f.focus(), QStringLiteral("grdTasks"));
    }

    void noOtherRowIsSelectedInsteadOfOneThatGoes()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.list().selectOnly(1);
        f.type("call");
        QCOMPARE(f.list().selectedRow(), -1);
        QVERIFY(!f.list().currentIndex().isValid());
    }

    void aSelectedRowThatStaysStaysSelected()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.list().selectOnly(3);
        f.type("gar");
        QCOMPARE(f.list().selectedRow(), 1);
        QCOMPARE(f.list().currentIndex().row(), 1);
        f.type("a");
        QCOMPARE(f.list().selectedRow(), 0);
        f.field().setText(QStringLiteral("call"));
        QCOMPARE(f.list().selectedRow(), 1);
    }

    void theRowsChangeByTheRulesOfModels()
    {
        FindFixture f;
        QVERIFY(f.show());
        const QAbstractItemModelTester tester(
            f.list().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        for (const char* text : {"a", "al", "gar", "call", "", "zzz", "t", "the gar", ""}) {
            f.field().setText(QLatin1String(text));
        }
        QCOMPARE(f.names().size(), 4);
    }

    void aRebuiltListIsSearchedAgain()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.type("garage");
        ClsTask task(f.database.engine());
        task.setTaskName(QStringLiteral("Sweep the garage"));
        task.setCategoryId(1);
        const qint32 id = task.Add();
        f.main().LoadTasks();
        QCOMPARE(
            f.names(), QStringList({QStringLiteral("Call the garage"), QStringLiteral("Sweep the garage")}));
        QVERIFY(f.page().goToTask(id));
        QVERIFY(!f.page().goToTask(f.ids[0]));
        QVERIFY(f.page().isHiddenByFind(f.ids[0]));
        QVERIFY(!f.page().isHiddenByFind(id));
    }

    void aFoundTaskIsDeletedAndNoOther()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.type("gar");
        f.list().selectOnly(0);
        f.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.press(f.page(), "btnTaskDelete");
        QCOMPARE(f.names(), QStringList(QStringLiteral("Call the garage")));
        QCOMPARE(f.page().quietLine().shown(), QStringLiteral("1 of 3 tasks"));
        f.field().clear();
        QCOMPARE(f.names(),
            QStringList({QStringLiteral("Call the dentist"), QString::fromUtf16(u"Caf\u00e9 au lait"),
                QStringLiteral("Call the garage")}));
    }

    void theLineAtTheFootCountsAndIsNotHushedByKeys()
    {
        FindFixture f;
        QVERIFY(f.show());
        const QuietLine& line = f.page().quietLine();
        f.field().setFocus();
        f.type("call");
        QCOMPARE(line.text(), QStringLiteral("2 of 4 tasks"));
        f.key(Qt::Key_Down);
        f.key(Qt::Key_Down);
        QTest::mouseClick(f.list().viewport(), Qt::LeftButton);
        QCOMPARE(line.text(), QStringLiteral("2 of 4 tasks"));
        f.page().quietLine().say(QStringLiteral("said"));
        QCOMPARE(line.text(), QStringLiteral("said"));
        f.key(Qt::Key_Up);
        QCOMPARE(line.text(), QStringLiteral("2 of 4 tasks"));
        f.field().clear();
        QCOMPARE(line.text(), QString());
    }

    void aListOfOneTaskIsCountedInTheSingular()
    {
        QCOMPARE(foundText(0, 1), QStringLiteral("0 of 1 task"));
        QCOMPARE(foundText(3, 41), QStringLiteral("3 of 41 tasks"));
    }

    void foundPartsOfNamesAreMarked()
    {
        FindFixture f;
        QVERIFY(f.show());
        const auto marks = [&](int row, int column) {
            return f.list().model()->index(row, column).data(GridModel::MarksRole).value<QList<TextPart>>();
        };
        QVERIFY(marks(1, 1).isEmpty());
        f.type("cafe");
        QCOMPARE(marks(0, 1), QList<TextPart>({TextPart{0, 4}}));
        QVERIFY(marks(0, 3).isEmpty());
    }

    void marksArePaintedInTheirColoursAndOnlyWhileSomethingIsLookedFor()
    {
        FindFixture f;
        QVERIFY(f.show());
        f.list().setProperty("markColor", QColor(Qt::red));
        const auto marked = [&] {
            const QRect cell = f.list().visualRect(f.list().model()->index(0, 1));
            const QImage image = f.list().viewport()->grab(cell).toImage();
            QRect red;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (image.pixelColor(x, y) == QColor(Qt::red)) {
                        red |= QRect(x, y, 1, 1);
                    }
                }
            }
            return red;
        };
        QVERIFY(marked().isNull());
        f.type("garage");
        const QFontMetrics letters = f.list().fontMetrics();
        // A letter's place is rounded to pixels.
        QVERIFY(qAbs(marked().width() - letters.horizontalAdvance(QStringLiteral("garage"))) <= 1);
        QVERIFY(marked().left() >= letters.horizontalAdvance(QStringLiteral("Call the ")));
        f.key(Qt::Key_Escape);
        QVERIFY(marked().isNull());
    }

    void whoComesToTheFieldFindsTheTextsFoldedAndWhoLeavesGivesTheMemoryBack()
    {
        FindFixture f;
        QVERIFY(f.show());
        const auto waits = [&] {
            const auto* rest = f.page().findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
            return rest != nullptr && rest->isActive();
        };
        f.key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(!waits());
        f.type("gar");
        f.key(Qt::Key_Down);
        f.key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(!waits());
        f.key(Qt::Key_Escape);
        QVERIFY(waits());
    }

    void aSyllableThatIsBeingComposedIsLookedForAndOtherCompositionIsNot()
    {
        FindFixture f;
        QVERIFY(f.show({QString::fromUtf16(u"\ud558\ub098"), QStringLiteral("ni")}));
        const auto compose = [&](const QString& text) {
            QInputMethodEvent event(text, {});
            QCoreApplication::sendEvent(&f.field(), &event);
        };
        compose(QString::fromUtf16(u"\ud55c"));
        QCOMPARE(f.names(), QStringList(QString::fromUtf16(u"\ud558\ub098")));
        compose(QStringLiteral("ni"));
        QCOMPARE(f.names().size(), 2);
    }

    void anEmptyListSaysWhy()
    {
        QCOMPARE(emptyList(4, 2, true), EmptyList::No);
        QCOMPARE(emptyList(4, 0, true), EmptyList::NothingFound);
        QCOMPARE(emptyList(0, 0, true), EmptyList::NoneUnderFilters);
        QCOMPARE(emptyList(0, 0, false), EmptyList::NoTask);

        FindFixture f;
        QVERIFY(f.show());
        QCOMPARE(f.list().accessibleDescription(), QString());
        f.type("<b>zzz");
        QCOMPARE(f.list().accessibleDescription(), QStringLiteral("Nothing found for \"<b>zzz\""));
        QCOMPARE(f.page().quietLine().text(), QStringLiteral("0 of 4 tasks"));
        QVERIFY(f.page().findChild<QPushButton*>(QStringLiteral("btnShowAll")) == nullptr);
        f.field().clear();
        QCOMPARE(f.list().accessibleDescription(), QString());

        FindFixture none;
        QVERIFY(none.show({}));
        QCOMPARE(none.list().emptyText(), QStringLiteral("There are no tasks yet"));
    }

    void showAllResetsEveryFilterAsOneChange()
    {
        FindFixture f;
        QVERIFY(f.show());
        auto* status = f.control<QComboBox>(f.page(), "cmbStatus");
        status->setCurrentIndex(3);
        emit status->activated(3);
        auto* sort = f.control<QComboBox>(f.page(), "cmbSort");
        sort->setCurrentIndex(1);
        f.control<QRadioButton>(f.page(), "opnSpecificDate")->click();
        f.control<QRadioButton>(f.page(), "opnExpiredTasks")->click();
        QCOMPARE(f.list().emptyText(), QStringLiteral("No task matches the filters"));
        auto* showAll = f.control<QPushButton>(f.page(), "btnShowAll");
        QVERIFY(showAll->isVisible());
        QVERIFY(f.list().geometry().contains(showAll->geometry()));
        // Among the children that assistive technology meets, and in the chain of the Tab key.
        QAccessibleInterface* page = QAccessible::queryAccessibleInterface(&f.page());
        QVERIFY(page->indexOfChild(QAccessible::queryAccessibleInterface(showAll)) >= 0);
        QCOMPARE(showAll->focusPolicy() & Qt::TabFocus, Qt::TabFocus);
        f.database.statements().take();
        showAll->setFocus();
        f.key(Qt::Key_Space);
        QCOMPARE(f.database.statements().take().size(), 1);
        QVERIFY(!f.page().filter().isNarrow());
        QCOMPARE(f.page().filter().sortBy, TaskSort::Name);
        QCOMPARE(f.names().size(), 4);
        QVERIFY(!showAll->isVisible());
        QCOMPARE(f.focus(), QStringLiteral("grdTasks"));
    }

    void theReportIsAskedForTheTasksThatAreSeen()
    {
        FindFixture f;
        QVERIFY(f.show());
        ShownTasks shown;
        connect(&f.page(), &TasksPage::printRequested, this,
            [&](const TaskFilter&, const ShownTasks& tasks) { shown = tasks; });
        f.type("gar");
        f.press(f.page(), "btnTaskPrint");
        QVERIFY(shown);
        QCOMPARE(*shown, std::vector<qint32>({f.ids[2], f.ids[3]}));
    }
};

AMBERTASK_TEST_MAIN(FindingTest)
#include "tst_finding.moc"
