#include "reminders/AlertListModel.h"
#include "support/SteppedClock.h"
#include "support/TestMain.h"
#include "widgets/ImageList.h"

#include <QAbstractItemModelTester>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace
{

constexpr auto Due = std::chrono::local_days(std::chrono::January / 5 / 2026) + 9h + 7min + 3s;

DueReminder reminder(qint32 id, const QString& name, qint32 periority = 1, qint16 icon = 0)
{
    DueReminder made;
    made.id = id;
    made.name = name;
    made.periority = periority;
    made.icon = icon;
    made.dueDate = Due;
    made.category = QStringLiteral("Work");
    made.reminder = QString::fromStdString(storedText(Due));
    return made;
}

void fill(ImageList& images)
{
    for (int i = 0; i < 21; ++i) {
        QPixmap pixmap(16, 16);
        pixmap.fill(QColor(i, 2 * i, 3 * i));
        images.append(QIcon(pixmap));
    }
}

/// The picture that a cell shows as its index in the list; -1 for none.
int pictureOf(const QModelIndex& cell)
{
    const QVariant icon = cell.data(Qt::DecorationRole);
    return icon.isNull() ? -1 : icon.value<QIcon>().pixmap(16, 16).toImage().pixelColor(0, 0).red();
}

} // namespace

class tst_alertlistmodel : public TestCase
{
    Q_OBJECT

private slots:
    void theColumnsCarryTheirKeysAndHeaders()
    {
        AlertListModel model(m_clock);
        QCOMPARE(model.columnCount(), 0);
        model.createColumns();
        QStringList keys;
        QStringList headers;
        QList<int> divisors;
        for (const GridColumn& column : model.columns()) {
            keys.append(column.key);
            headers.append(column.header);
            divisors.append(column.widthDivisor);
        }
        QCOMPARE(keys,
            QStringList({QStringLiteral("id"), QStringLiteral("name"), QStringLiteral("periority"),
                QStringLiteral("due date")}));
        QCOMPARE(headers,
            QStringList({QStringLiteral("id"), QStringLiteral("Name"), QStringLiteral("Periority"),
                QStringLiteral("Due Date")}));
        QCOMPARE(divisors, QList<int>({0, 26, 200, 48}));
    }

    void aRowShowsIdNamePriorityPictureAndDueMoment()
    {
        ImageList images;
        fill(images);
        AlertListModel model(m_clock);
        const QAbstractItemModelTester tester(&model);
        model.setImageList(&images);
        model.createColumns();
        model.setReminders({reminder(42, QStringLiteral("Call"), 1, 7)});
        QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("42"));
        QCOMPARE(model.index(0, 1).data().toString(), QStringLiteral("Call"));
        QCOMPARE(pictureOf(model.index(0, 1)), 7);
        QCOMPARE(model.index(0, 2).data().toString(), QString());
        QCOMPARE(model.index(0, 3).data().toString(), QStringLiteral("1/5/2026 9:07:03 AM"));
        QCOMPARE(model.idAt(0), 42);
    }

    void thePriorityPictureFollowsTheCode_data()
    {
        QTest::addColumn<qint32>("periority");
        QTest::addColumn<int>("picture");
        QTest::addColumn<QString>("word");
        QTest::newRow("high") << 0 << 19 << QStringLiteral("High");
        QTest::newRow("normal") << 1 << 18 << QStringLiteral("Normal");
        QTest::newRow("low") << 2 << 20 << QStringLiteral("Low");
        QTest::newRow("code above the range") << 3 << -1 << QString();
        QTest::newRow("code below the range") << -1 << -1 << QString();
    }

    void thePriorityPictureFollowsTheCode()
    {
        QFETCH(qint32, periority);
        ImageList images;
        fill(images);
        AlertListModel model(m_clock);
        model.setImageList(&images);
        model.createColumns();
        model.setReminders({reminder(1, QStringLiteral("x"), periority)});
        QTEST(pictureOf(model.index(0, 2)), "picture");
        QTEST(model.index(0, 2).data(Qt::AccessibleTextRole).toString(), "word");
    }

    void aToolTipSaysTheNameInFullAsPlainText()
    {
        AlertListModel model(m_clock);
        model.createColumns();
        model.setReminders({reminder(1, QStringLiteral("<h1>Call</h1> & \"more\""))});
        QCOMPARE(model.index(0, 1).data(Qt::ToolTipRole).toString(),
            QStringLiteral("<qt>&lt;h1&gt;Call&lt;/h1&gt; &amp; &quot;more&quot;<br>Due today<br>Category: "
                           "Work<br>due now</qt>"));
    }

    void everyCellSaysHowLateItsReminderIsWhenItIsLookedAt()
    {
        SteppedClock clock(Due + 12min);
        AlertListModel model(clock);
        model.createColumns();
        model.setReminders({reminder(1, QStringLiteral("Call"), 0)});
        const auto toolTip = [&model](int column) {
            return model.index(0, column).data(Qt::ToolTipRole).toString();
        };
        const auto described = [&model](int column) {
            return model.index(0, column).data(Qt::AccessibleDescriptionRole).toString();
        };
        QCOMPARE(toolTip(1), QStringLiteral("<qt>Call<br>Overdue<br>Category: Work<br>12 minutes late</qt>"));
        QCOMPARE(toolTip(2), QStringLiteral("<qt>High<br>Overdue<br>12 minutes late</qt>"));
        QCOMPARE(toolTip(3), QStringLiteral("<qt>1/5/2026 9:07:03 AM<br>Overdue<br>12 minutes late</qt>"));
        QCOMPARE(described(1), QStringLiteral("Overdue\nCategory: Work\n12 minutes late"));
        QCOMPARE(described(3), QStringLiteral("Overdue\n12 minutes late"));
        clock.step(1min);
        QCOMPARE(toolTip(2), QStringLiteral("<qt>High<br>Overdue<br>13 minutes late</qt>"));
        QCOMPARE(described(3), QStringLiteral("Overdue\n13 minutes late"));
    }

    void aReminderWithoutAReadableMomentSaysNothingOfIt()
    {
        AlertListModel model(m_clock);
        model.createColumns();
        DueReminder unreadable = reminder(1, QStringLiteral("Call"), 0);
        unreadable.reminder = QStringLiteral("soon");
        model.setReminders({unreadable});
        QCOMPARE(
            model.index(0, 2).data(Qt::ToolTipRole).toString(), QStringLiteral("<qt>High<br>Due today</qt>"));
    }

    void aRefillReplacesTheRowsAndKeepsTheColumns()
    {
        AlertListModel model(m_clock);
        const QAbstractItemModelTester tester(&model);
        model.createColumns();
        model.setReminders({reminder(1, QStringLiteral("a")), reminder(2, QStringLiteral("b"))});
        const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.setReminders({reminder(3, QStringLiteral("c"))});
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.idAt(0), 3);
        model.setReminders({});
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(resets.count(), 0);
    }

    void removingARowLeavesTheOthersInPlace()
    {
        AlertListModel model(m_clock);
        const QAbstractItemModelTester tester(&model);
        model.createColumns();
        const DueReminder a = reminder(1, QStringLiteral("a"));
        const DueReminder b = reminder(2, QStringLiteral("b"));
        const DueReminder c = reminder(3, QStringLiteral("c"));
        model.setReminders({a, b, c});
        model.removeReminders({1});
        QVERIFY(model.lists({a, c}));
        QVERIFY(!model.lists({c, a}));
        QVERIFY(!model.lists({a}));
        QVERIFY(!model.lists({a, b}));
    }

    void theRowsThatCountAsShown_data()
    {
        using Ids = QList<int>;
        QTest::addColumn<Ids>("listed");
        QTest::addColumn<Ids>("due");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<int>("shown");
        QTest::newRow("seen, others due") << Ids{1, 2} << Ids{3, 4} << true << 2;
        QTest::newRow("hidden, the same due") << Ids{1, 2} << Ids{1, 2} << false << 2;
        QTest::newRow("hidden, the same in another order") << Ids{1, 2} << Ids{2, 1} << false << 2;
        QTest::newRow("hidden, fewer due") << Ids{1, 2} << Ids{2} << false << 2;
        QTest::newRow("hidden, none due") << Ids{1, 2} << Ids{} << false << 2;
        QTest::newRow("hidden, one more due") << Ids{1, 2} << Ids{1, 2, 3} << false << 2;
        QTest::newRow("hidden, others due") << Ids{1, 2} << Ids{3, 4} << false << 0;
        QTest::newRow("hidden, one instead of another") << Ids{1, 2} << Ids{1, 3} << false << 0;
        QTest::newRow("hidden, one instead of two") << Ids{1, 2} << Ids{3} << false << 0;
        QTest::newRow("nothing listed") << Ids{} << Ids{1} << false << 0;
    }

    void theRowsThatCountAsShown()
    {
        QFETCH(const QList<int>, listed);
        QFETCH(const QList<int>, due);
        QFETCH(const bool, visible);
        AlertListModel model(m_clock);
        const auto reminders = [](const QList<int>& ids) {
            std::vector<DueReminder> made;
            for (const int id : ids) {
                made.push_back(reminder(id, QString::number(id)));
            }
            return made;
        };
        model.setReminders(reminders(listed));
        QTEST(model.shownCount(reminders(due), visible), "shown");
    }

    void aTaskThatRemindsAtAnotherMomentIsAnotherReminder()
    {
        AlertListModel model(m_clock);
        model.setReminders({reminder(1, QStringLiteral("a"))});
        DueReminder moved = reminder(1, QStringLiteral("a"));
        moved.reminder = QString::fromStdString(storedText(Due + 1min));
        QCOMPARE(model.shownCount({moved}, false), 0);
        QCOMPARE(model.shownCount({moved}, true), 1);
    }

    void aRowIsFoundByItsTask()
    {
        AlertListModel model(m_clock);
        model.setReminders({reminder(7, QStringLiteral("a")), reminder(5, QStringLiteral("b"))});
        QCOMPARE(model.rowsOf({5, 6}), QList<int>{1});
        QCOMPARE(model.idAt(1), 5);
        QCOMPARE(model.rowsOf({6}), QList<int>());
    }

private:
    const SteppedClock m_clock{Due};
};

AMBERTASK_TEST_MAIN(tst_alertlistmodel)
#include "tst_alertlistmodel.moc"
