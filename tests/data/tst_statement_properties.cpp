#include "data/ClsCategory.h"
#include "data/ClsTask.h"
#include "data/SqlText.h"
#include "data/TaskCodes.h"
#include "store/Dialect.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>
#include <algorithm>
#include <array>
#include <random>

namespace
{

/// The same statements each time, or other ones by the number in the environment variable AMBERTASK_SEED.
quint32 seed()
{
    bool given = false;
    const int number = qEnvironmentVariableIntValue("AMBERTASK_SEED", &given);
    return given ? static_cast<quint32>(number) : 20260115;
}

class Chance
{
public:
    int below(int limit) { return static_cast<int>(m_generator() % static_cast<unsigned>(limit)); }
    template <std::size_t Count> QString oneOf(const std::array<const char*, Count>& texts)
    {
        return QString::fromUtf8(texts[static_cast<std::size_t>(below(static_cast<int>(Count)))]);
    }
    /// A text of any letters, with many of those that mean something in a statement.
    QString text(int most)
    {
        constexpr std::array Meaning{"'", "''", "#", "#1/1/2007#", "--", "/*", "*/", "[", "]", "\"", "`",
            "<task_name/>", "<task_desc/>", ";", "\n", "\t", "%1", "\\", " ", "ä", "שלום", "😀", "\u2028",
            "\ufeff"};
        QString text;
        for (int left = below(most + 1); left > 0; --left) {
            if (below(2) == 0) {
                text += oneOf(Meaning);
            } else {
                text += letter();
            }
        }
        return text;
    }
    Moment moment()
    {
        return Moment(std::chrono::local_days(std::chrono::year(1900 + below(200)) / 1 / 1))
            + std::chrono::minutes(below(365 * 24 * 60));
    }

private:
    /// Any character but zero, which no statement may hold, and the halves of a pair.
    QString letter()
    {
        char32_t code = 0;
        do {
            code = static_cast<char32_t>(below(5) == 0 ? below(0x110000) : below(0x250));
        } while (code == 0 || QChar::isSurrogate(code));
        return QString::fromUcs4(&code, 1);
    }

    std::mt19937 m_generator{seed()};
};

/// A piece of a statement, and what SQLite is to get for it.
struct Piece {
    QString written;
    QString translated;
};

Piece anyPiece(Chance& chance)
{
    constexpr std::array Words{
        "select", " ", ",", "tasks", "=", "(", ")", "now()", "1", "-", "/", "\n", "where", " >="};
    const auto same = [](const QString& text) {
        return Piece{text, text};
    };
    switch (chance.below(7)) {
    case 0: {
        const Moment moment = chance.moment();
        return {
            u'#' + sqlDateTime(moment) + u'#', u'\'' + QString::fromStdString(storedText(moment)) + u'\''};
    }
    case 1: {
        const Moment moment = startOfDay(chance.moment());
        return {u'#' + sqlDate(moment) + u'#', u'\'' + QString::fromStdString(storedText(moment)) + u'\''};
    }
    case 2:
        return same(u'\'' + EscapeSqlText(chance.text(8)) + u'\'');
    case 3:
        return same(u'[' + chance.text(5).remove(u']') + u']');
    case 4:
        return same(QStringLiteral("/*") + chance.text(5).remove(QStringLiteral("*/")).remove(u'*')
            + QStringLiteral("*/"));
    case 5:
        return same(QStringLiteral("--") + chance.text(5).remove(u'\n') + u'\n');
    default:
        return same(chance.oneOf(Words));
    }
}

} // namespace

class StatementPropertiesTest : public TestCase
{
    Q_OBJECT

private slots:
    void onlyDateLiteralsAreTranslatedWhereverTheyStand();
    void everyTextThatIsStoredComesBackAsItWas();
    void everyMomentThatIsStoredComesBackToTheMinute();
};

void StatementPropertiesTest::onlyDateLiteralsAreTranslatedWhereverTheyStand()
{
    qInfo("AMBERTASK_SEED=%u", seed());
    Chance chance;
    for (int i = 0; i < 20'000; ++i) {
        QString written;
        QString expected;
        for (int left = chance.below(12); left > 0; --left) {
            const Piece piece = anyPiece(chance);
            // A word and what follows must not form the beginning of a comment.
            written += piece.written + u' ';
            expected += piece.translated + u' ';
        }
        const QString translated = QString::fromStdString(translateDialect(written.toStdString()));
        QVERIFY2(translated == expected, qPrintable(written));
    }
}

void StatementPropertiesTest::everyTextThatIsStoredComesBackAsItWas()
{
    Chance chance;
    TestDatabase database;
    std::vector<std::array<QString, 4>> entered;
    for (int i = 0; i < 300; ++i) {
        std::array<QString, 4> texts;
        for (QString& text : texts) {
            text = chance.text(30);
        }
        ClsTask task(database.engine());
        task.setCategoryId(1);
        task.setTaskName(texts[0]);
        task.setDescription(texts[1]);
        task.setReminderSound(texts[2]);
        task.setReminderFile(texts[3]);
        task.setDueDateTime(database.clock().now());
        task.setReminderDateTime(database.clock().now());
        task.Add();
        entered.push_back(texts);
    }
    const auto check = [&] {
        const std::vector<ClsTask> tasks =
            ClsTask(database.engine())
                .GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, {}, {}, TaskType::All);
        QCOMPARE(tasks.size(), entered.size());
        for (std::size_t i = 0; i < tasks.size(); ++i) {
            QCOMPARE(tasks[i].TaskName(), entered[i][0]);
            QCOMPARE(tasks[i].Description(), entered[i][1]);
            QCOMPARE(tasks[i].ReminderSound(), entered[i][2]);
            QCOMPARE(tasks[i].ReminderFile(), entered[i][3]);
        }
    };
    check();
    for (std::size_t i = 0; i < entered.size(); ++i) {
        std::optional<ClsTask> task = ClsTask(database.engine()).GetTaskById(static_cast<qint16>(i + 1));
        QVERIFY(task.has_value());
        std::rotate(entered[i].begin(), entered[i].begin() + 1, entered[i].end());
        task->setTaskName(entered[i][0]);
        task->setDescription(entered[i][1]);
        task->setReminderSound(entered[i][2]);
        task->setReminderFile(entered[i][3]);
        task->Update();
    }
    check();
    for (int i = 0; i < 100; ++i) {
        const QString name = chance.text(20);
        ClsCategory category(database.engine());
        category.setCatName(name);
        category.setDescription(chance.text(20));
        if (!category.Add()) {
            QCOMPARE(ClsCategory(database.engine()).GetAllCategories().back().CatName(), name);
        }
        QVERIFY(category.Add());
    }
}

void StatementPropertiesTest::everyMomentThatIsStoredComesBackToTheMinute()
{
    Chance chance;
    TestDatabase database;
    std::vector<Moment> entered;
    for (int i = 0; i < 200; ++i) {
        const Moment moment = chance.moment() + std::chrono::seconds(chance.below(60));
        ClsTask task(database.engine());
        task.setCategoryId(1);
        task.setDueDateTime(moment);
        task.setReminderDateTime(moment);
        task.Add();
        entered.push_back(toMinute(moment));
        const std::optional<ClsTask> stored =
            ClsTask(database.engine()).GetTaskById(static_cast<qint16>(i + 1));
        QVERIFY(stored && stored->DueDateTime() == entered.back());
        QVERIFY(stored->reminderDateTime() == entered.back());
    }
}

AMBERTASK_TEST_MAIN(StatementPropertiesTest)
#include "tst_statement_properties.moc"
