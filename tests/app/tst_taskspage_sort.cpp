#include "TasksPageFixture.h"
#include "support/DraggedEdge.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QHeaderView>

using namespace std::chrono_literals;

namespace
{

struct SortedPage : TasksPageFixture {
    SortedPage()
    {
        const Moment now = services.database.clock().now();
        add(u"Anna", 2, now + 3h, 1);
        add(u"berta", 0, now + 1h, 2);
        add(u"Berta", 1, now + 2h, 0);
        add(u"Carl", 0, now + 1h, 1);
        load();
    }
    void add(QStringView name, int status, Moment due, int periority)
    {
        aTask(services.database)
            .named(name.toString())
            .in(home)
            .withStatus(status)
            .dueAt(due)
            .withPeriority(periority)
            .add();
    }
    QHeaderView& header() { return *page.grid()->horizontalHeader(); }
    int columnOf(const char* word)
    {
        return static_cast<int>(keys().indexOf(QLatin1Char('0') + QLatin1String(word)));
    }
    QPoint captionPlace(const char* word)
    {
        const int column = columnOf(word);
        return {header().sectionViewportPosition(column) + header().sectionSize(column) / 2,
            header().height() / 2};
    }
    void clickCaption(const char* word)
    {
        QTest::mouseClick(header().viewport(), Qt::LeftButton, {}, captionPlace(word));
    }
    /// The column with the sort sign and its direction; empty for none.
    QString sign()
    {
        return header().isSortIndicatorShown() ? keys().value(header().sortIndicatorSection()).mid(1)
                + (header().sortIndicatorOrder() == Qt::AscendingOrder ? u'+' : u'-')
                                               : QString();
    }
    QString sort() { return control<QComboBox>("cmbSort")->currentText(); }
    QAccessibleInterface* caption(const char* word)
    {
        QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(page.grid());
        return grid->child(columnOf(word) - 1);
    }
};

QStringList list(const char* names)
{
    return QString::fromLatin1(names).split(u' ');
}

} // namespace

class TasksPageSortTest : public TestCase
{
    Q_OBJECT

private slots:
    void aClickOnACaptionChoosesThatOrder_data()
    {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QStringList>("ascending");
        QTest::addColumn<QStringList>("descending");
        QTest::newRow("name") << QByteArray("name") << "Name" << list("Anna berta Berta Carl")
                              << list("Carl berta Berta Anna");
        QTest::newRow("status") << QByteArray("status") << "Status" << list("berta Carl Berta Anna")
                                << list("Anna Berta berta Carl");
        QTest::newRow("due") << QByteArray("due date") << "Due Date" << list("berta Carl Berta Anna")
                             << list("Anna Berta berta Carl");
        QTest::newRow("priority") << QByteArray("periority") << "Priority" << list("Berta Anna Carl berta")
                                  << list("berta Anna Carl Berta");
    }
    void aClickOnACaptionChoosesThatOrder()
    {
        QFETCH(const QByteArray, column);
        QFETCH(const QString, sort);
        QFETCH(const QStringList, ascending);
        QFETCH(const QStringList, descending);
        SortedPage f;
        QCOMPARE(f.sign(), QString());
        f.clickCaption(column.constData());
        QCOMPARE(f.sort(), sort);
        QCOMPARE(f.names(), ascending);
        QCOMPARE(f.sign(), QString::fromLatin1(column + '+'));
        const QStringList asked = f.services.database.statements().take();
        QCOMPARE(asked.size(), 1);
        f.clickCaption(column.constData());
        QCOMPARE(f.sort(), sort);
        QCOMPARE(f.names(), descending);
        QCOMPARE(f.sign(), QString::fromLatin1(column + '-'));
        // The statement is the same: the order is turned round after reading.
        QCOMPARE(f.services.database.statements().take(), asked);
        f.clickCaption(column.constData());
        QCOMPARE(f.names(), ascending);
    }

    void theSignFollowsTheListOfOrders()
    {
        SortedPage f;
        f.choose("cmbSort", QStringLiteral("Due Date"));
        QCOMPARE(f.sign(), QStringLiteral("due date+"));
        f.choose("cmbSort", QStringLiteral("None"));
        QCOMPARE(f.sign(), QString());
        f.choose("cmbSort", QStringLiteral("None"));
        QCOMPARE(f.names(), list("Anna berta Berta Carl"));
    }

    void anotherOrderBeginsAscending()
    {
        SortedPage f;
        f.clickCaption("name");
        f.clickCaption("name");
        QCOMPARE(f.sign(), QStringLiteral("name-"));
        f.choose("cmbSort", QStringLiteral("Status"));
        QCOMPARE(f.sign(), QStringLiteral("status+"));
        f.clickCaption("name");
        QCOMPARE(f.sign(), QStringLiteral("name+"));
    }

    void theSameOrderChosenAgainIsTurnedRoundForTheKeyboard()
    {
        SortedPage f;
        f.choose("cmbSort", QStringLiteral("Name"));
        f.choose("cmbSort", QStringLiteral("Name"));
        QCOMPARE(f.sign(), QStringLiteral("name-"));
        QCOMPARE(f.names(), list("Carl berta Berta Anna"));
    }

    void theOrderStaysTurnedRoundWhenTheListIsReadAgain()
    {
        SortedPage f;
        f.clickCaption("name");
        f.clickCaption("name");
        f.page.LoadTasks();
        QCOMPARE(f.names(), list("Carl berta Berta Anna"));
        QCOMPARE(f.sign(), QStringLiteral("name-"));
        QVERIFY(f.page.filter().isDescending);
    }

    void remindersHaveNoOrder()
    {
        SortedPage f;
        f.clickCaption("name");
        f.services.database.statements().take();
        f.clickCaption("reminder");
        QCOMPARE(f.sign(), QStringLiteral("name+"));
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void anOrderWorksWhileItsColumnIsHidden()
    {
        SortedPage f;
        f.columns.status = false;
        f.choose("cmbSort", QStringLiteral("Status"));
        QCOMPARE(f.names(), list("berta Carl Berta Anna"));
        QCOMPARE(f.sign(), QString());
        f.columns.status = true;
        f.page.LoadTasks();
        QCOMPARE(f.sign(), QStringLiteral("status+"));
    }

    void theSignIsDrawnAtTheEndOfItsColumn()
    {
        SortedPage f;
        const auto seen = [&f] {
            return f.header().grab().toImage();
        };
        const QImage without = seen();
        f.clickCaption("name");
        const QImage ascending = seen();
        f.clickCaption("name");
        const QImage descending = seen();
        const int end = f.header().sectionViewportPosition(f.columnOf("name"))
            + f.header().sectionSize(f.columnOf("name"));
        const QRect place(end - 20, 0, 18, f.header().height());
        QVERIFY(ascending.copy(place) != without.copy(place));
        QVERIFY(descending.copy(place) != ascending.copy(place));
        QVERIFY(descending.copy(place) != without.copy(place));
    }

    void draggingAnEdgeDoesNotSort()
    {
        SortedPage f;
        const int column = f.columnOf("name");
        const int width = f.header().sectionSize(column);
        dragEdge(f.header(), column, -60);
        QVERIFY(f.header().sectionSize(column) < width);
        QCOMPARE(f.sort(), QStringLiteral("None"));
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void assistiveTechnologyHearsTheOrderAndTurnsItRound()
    {
        SortedPage f;
        QAccessibleInterface* caption = f.caption("due date");
        QCOMPARE(caption->text(QAccessible::Name), QStringLiteral("Due Date"));
        QCOMPARE(caption->text(QAccessible::Description), QStringLiteral("Sorts the list"));
        caption->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(f.sort(), QStringLiteral("Due Date"));
        QCOMPARE(caption->text(QAccessible::Description), QStringLiteral("Sorted in ascending order"));
        caption->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(caption->text(QAccessible::Description), QStringLiteral("Sorted in descending order"));
        QCOMPARE(f.caption("reminder")->text(QAccessible::Description), QString());
        QCOMPARE(f.caption("reminder")->actionInterface()->actionNames(), QStringList());
    }
};

AMBERTASK_TEST_MAIN(TasksPageSortTest)
#include "tst_taskspage_sort.moc"
