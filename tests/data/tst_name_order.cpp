#include "data/ClsCategory.h"
#include "data/ClsTask.h"
#include "data/NameOrder.h"
#include "data/TaskCodes.h"
#include "store/UnicodeCollation.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>
#include <random>

namespace
{

/// The system's locale while it lives.
class UsedLocale
{
public:
    explicit UsedLocale(const QString& name) { QLocale::setDefault(QLocale(name)); }
    ~UsedLocale() { QLocale::setDefault(QLocale::system()); }
    UsedLocale(const UsedLocale&) = delete;
    UsedLocale& operator=(const UsedLocale&) = delete;
};

/// In SQLite's order, then in the readers' order.
std::vector<std::string> sorted(std::vector<std::string> names, const NameOrder& order)
{
    std::sort(names.begin(), names.end(),
        [](const std::string& one, const std::string& other) { return compareIgnoringCase(one, other) < 0; });
    order.sort(names, [](const std::string& name) -> std::string_view { return name; });
    return names;
}

QStringList listed(TestDatabase& database)
{
    QStringList names;
    for (const ClsTask& task :
        ClsTask(database.engine())
            .GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::Name, false, {}, {}, TaskType::All)) {
        names.append(task.TaskName());
    }
    return names;
}

/// Names made of parts that are hard to order: letters with and without marks, marks alone, directions,
/// digits of several scripts, halves of characters, what is no UTF-8, and all that at any length.
std::string hostileName(std::mt19937& chance)
{
    static const std::vector<std::string> parts{"", "a", "A", "z", "Z", "0", "1", "01", "2", "10",
        "99999999999999999999999", " ", "-", ".", "_", "\xC3\xA4", "\xC3\x84", "a\xCC\x88", "\xCC\x88",
        "\xCC\x81\xCC\x81\xCC\x81", "\xC3\x9F", "\xE1\xBA\x9E", "ss", "\xE2\x84\xAA", "k", "\xC4\xB0", "i",
        "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D", "\xD9\xA1\xD9\xA0", "\xD9\xA2", "\xE0\xA5\xA7",
        "\xF0\x9D\x9F\x8F", "\xE4\xB8\xAD", "\xE6\x96\x87", "\xE3\x82\xA2", "\xEF\xBD\xB1",
        "\xF0\x9F\x98\x80", "\xE2\x80\x8F", "\xE2\x80\xAE", "\xE2\x80\x8B", "\xED\xA0\x80", "\xC3", "\x80",
        "\xFF", "\xF0\x9F\x98", "\xEF\xBF\xBF", "\xEF\xBF\xBD", std::string(1, '\0'), "\n"};
    std::string name;
    const auto below = [&chance](std::size_t limit) {
        return chance() % limit;
    };
    const std::size_t count = below(40) == 0 ? 200 + below(400) : below(5);
    for (std::size_t i = 0; i < count; ++i) {
        name += parts[below(parts.size())];
    }
    return name;
}

} // namespace

/// The order in which names are listed.
class NameOrderTest : public TestCase
{
    Q_OBJECT

private slots:
    void namesStandWhereReadersLookThemUp_data();
    void namesStandWhereReadersLookThemUp();
    void lettersOfAnotherScriptStandTogether();
    void theListFollowsTheLocaleOfTheSystem();
    void namesThatTheEngineTakesForTheSameKeepTheirOrder();
    void namesThatSortAlikeAreStillDifferent();
    void theOrderIsTotalForWhateverNames_data();
    void theOrderIsTotalForWhateverNames();
    void whereAnIndexOfAnotherToolSortsNamesTheListIsTheSame();
    void anyLettersFoldAsTheEngineFolds();
    void onlyAListByNameIsSortedAnew();
};

void NameOrderTest::namesStandWhereReadersLookThemUp_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("order");
    QTest::newRow("numbers by their value") << "en_US"
                                            << QStringList{QStringLiteral("Task 1"), QStringLiteral("task 2"),
                                                   QStringLiteral("Task 10"), QStringLiteral("Task 100")};
    QTest::newRow("numbers in Arabic digits")
        << "ar_EG" << QStringList{QStringLiteral(u"٢"), QStringLiteral(u"١٠"), QStringLiteral(u"٢٠")};
    QTest::newRow("German") << "de_DE"
                            << QStringList{QStringLiteral(u"Äpfel"), QStringLiteral("Birnen"),
                                   QStringLiteral(u"Öl"), QStringLiteral("Zebra"), QStringLiteral("zoo")};
    QTest::newRow("Swedish") << "sv_SE"
                             << QStringList{QStringLiteral("Birnen"), QStringLiteral("Zebra"),
                                    QStringLiteral(u"Äpfel"), QStringLiteral(u"Öl")};
    QTest::newRow("Spanish") << "es_ES"
                             << QStringList{
                                    QStringLiteral("nube"), QStringLiteral(u"ñandú"), QStringLiteral("oso")};
    QTest::newRow("Chinese by sound")
        << "zh_CN" << QStringList{QStringLiteral(u"北京"), QStringLiteral(u"上海"), QStringLiteral(u"中文")};
    QTest::newRow("numbers and letters")
        << "en_US"
        << QStringList{QStringLiteral("Task"), QStringLiteral("Task 7"), QStringLiteral("Task 007b"),
               QStringLiteral("Task 12345678"), QStringLiteral("Task 123456789"),
               QStringLiteral("Task 1234567890123456789"), QStringLiteral("Task a")};
    QTest::newRow("no locale") << "C"
                               << QStringList{QStringLiteral(u"Äpfel"), QStringLiteral("apple"),
                                      QStringLiteral("Task 9"), QStringLiteral("Task 10")};
}

void NameOrderTest::namesStandWhereReadersLookThemUp()
{
    QFETCH(const QString, locale);
    QFETCH(const QStringList, order);
    const UsedLocale used(locale);
    TestDatabase database;
    for (auto name = order.crbegin(); name != order.crend(); ++name) {
        aTask(database).named(*name).add();
    }
    QCOMPARE(listed(database), order);
}

void NameOrderTest::lettersOfAnotherScriptStandTogether()
{
    // Whether before or behind those of the locale's own script is the system's choice.
    const UsedLocale used(QStringLiteral("zh_CN"));
    TestDatabase database;
    for (const char16_t* name : {u"北京", u"a", u"中文"}) {
        aTask(database).named(QString::fromUtf16(name)).add();
    }
    QVERIFY(listed(database).indexOf(QStringLiteral("a")) != 1);
}

void NameOrderTest::theListFollowsTheLocaleOfTheSystem()
{
    TestDatabase database;
    aTask(database).named(QStringLiteral(u"Äpfel")).add();
    aTask(database).named(QStringLiteral("zebra")).add();
    const UsedLocale swedish(QStringLiteral("sv_SE"));
    QCOMPARE(listed(database).first(), QStringLiteral("zebra"));
    const UsedLocale german(QStringLiteral("de_DE"));
    QCOMPARE(listed(database).first(), QStringLiteral(u"Äpfel"));
}

void NameOrderTest::namesThatTheEngineTakesForTheSameKeepTheirOrder()
{
    TestDatabase database;
    const QStringList made{
        QStringLiteral("B"), QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("B")};
    for (const QString& name : made) {
        aTask(database).named(name).add();
    }
    QCOMPARE(listed(database),
        QStringList({QStringLiteral("a"), QStringLiteral("B"), QStringLiteral("b"), QStringLiteral("B")}));
}

void NameOrderTest::namesThatSortAlikeAreStillDifferent()
{
    TestDatabase database;
    for (const char* name : {"1", "01", "a b", "a\u00A0b", "\u00E9", "e\u0301"}) {
        ClsCategory category(database.engine());
        category.setCatName(QString::fromUtf8(name));
        QCOMPARE(category.Add(), false);
        QCOMPARE(category.Add(), true);
    }
    const NameOrder order;
    QCOMPARE(order.key("1").compare(order.key("01")), 0);
    QCOMPARE(sorted({"1", "01"}, order), (std::vector<std::string>{"01", "1"}));
}

void NameOrderTest::theOrderIsTotalForWhateverNames_data()
{
    QTest::addColumn<QString>("locale");
    for (const char* locale : {"C", "en_US", "de_DE", "sv_SE", "tr_TR", "ar_EG", "he_IL", "zh_CN", "ja_JP"}) {
        QTest::newRow(locale) << locale;
    }
}

void NameOrderTest::theOrderIsTotalForWhateverNames()
{
    QFETCH(const QString, locale);
    const UsedLocale used(locale);
    const NameOrder order;
    std::mt19937 chance(20260115);
    std::vector<std::string> names;
    for (int i = 0; i < 400; ++i) {
        names.push_back(hostileName(chance));
    }
    names.push_back(std::string(10'000'000, 'x'));
    names.push_back(std::string(10'000'000, 'x') + 'y');
    names.push_back(std::string(300, '7') + 'a');
    names.push_back(std::string(300, '7') + 'b');
    const std::vector<std::string> once = sorted(names, order);
    // Neither the original order nor a second sort makes a difference.
    std::shuffle(names.begin(), names.end(), chance);
    const std::vector<std::string> again = sorted(names, order);
    QCOMPARE(again.size(), once.size());
    for (std::size_t i = 0; i < once.size(); ++i) {
        QCOMPARE(compareIgnoringCase(once[i], again[i]), 0);
    }
    std::vector<QCollatorSortKey> keys;
    for (const std::string& name : once) {
        keys.push_back(order.key(name));
    }
    for (std::size_t i = 0; i < once.size(); ++i) {
        for (std::size_t k = i; k < once.size(); ++k) {
            const int byKey = keys[i].compare(keys[k]);
            const int byEngine = compareIgnoringCase(once[i], once[k]);
            // Every pair agrees, so the order is transitive and equal names are adjacent.
            QVERIFY(byKey < 0 || (byKey == 0 && byEngine <= 0));
            QVERIFY(byEngine != 0 || byKey == 0);
            QCOMPARE(keys[k].compare(keys[i]) > 0, byKey < 0);
        }
    }
}

void NameOrderTest::whereAnIndexOfAnotherToolSortsNamesTheListIsTheSame()
{
    const UsedLocale used(QStringLiteral("sv_SE"));
    QStringList lists[2];
    for (const bool hasIndex : {false, true}) {
        TestDatabase database;
        if (hasIndex) {
            database.sql(QStringLiteral("create index i on tasks(task_name)"));
        }
        std::mt19937 chance(20260115);
        for (int i = 0; i < 200; ++i) {
            std::string name = hostileName(chance);
            name.erase(std::remove(name.begin(), name.end(), '\0'), name.end());
            aTask(database).named(QString::fromStdString(name)).add();
        }
        lists[hasIndex ? 1 : 0] = listed(database);
        QCOMPARE(database.sql(QStringLiteral("pragma quick_check")).toString(), QStringLiteral("ok"));
    }
    QCOMPARE(lists[0], lists[1]);
}

void NameOrderTest::anyLettersFoldAsTheEngineFolds()
{
    // Equal for SQLite, however many bytes they have.
    QCOMPARE(foldedBeginning("\xE2\x84\xAA"
                             "ey",
                 10),
        QStringLiteral("key"));
    QCOMPARE(foldedBeginning("\xC3\x84\xF0\x90\x90\x80", 10), QStringLiteral(u"\u00E4\U00010428"));
    QCOMPARE(foldedBeginning("ABC", 2), QStringLiteral("ab"));
    QCOMPARE(foldedBeginning("\xE2\x84\xAA"
                             "BC",
                 2),
        QStringLiteral("kb"));
    QCOMPARE(foldedBeginning("a\xC3", 10), QStringLiteral(u"a\uFFFD"));
    QCOMPARE(foldedBeginning("", 10), QString());
}

void NameOrderTest::onlyAListByNameIsSortedAnew()
{
    TestDatabase database;
    for (const char* name : {"b", "a", "c"}) {
        aTask(database).named(QString::fromLatin1(name)).add();
    }
    for (const qint32 sortBy : {TaskSort::None, TaskSort::Status, TaskSort::DueDate, TaskSort::Periority}) {
        QStringList names;
        for (const ClsTask& task :
            ClsTask(database.engine())
                .GetTasks(CategoryFilter::All, TaskStatus::All, sortBy, false, {}, {}, TaskType::All)) {
            names.append(task.TaskName());
        }
        QCOMPARE(names.join(QString()), QStringLiteral("bac"));
    }
}

AMBERTASK_TEST_MAIN(NameOrderTest)
#include "tst_name_order.moc"
