#include "help/window/HelpBook.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

QString entry(const char* name, const char* topic)
{
    return QStringLiteral("<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"%1\">"
                          "<param name=\"Local\" value=\"%2\"></OBJECT>")
        .arg(QLatin1String(name), QLatin1String(topic));
}

} // namespace

class HelpBookTest : public TestCase
{
    Q_OBJECT

private slots:
    void aSitemapIsReadAsATree()
    {
        const auto entries = parseSitemap(QStringLiteral("<UL>") + entry("One", "1.html")
            + QStringLiteral("<UL>") + entry("Under one", "2.html") + QStringLiteral("</UL>")
            + entry("Two", "3.html") + QStringLiteral("</UL>"));
        QCOMPARE(entries.size(), std::size_t{2});
        QCOMPARE(entries[0].name, QStringLiteral("One"));
        QCOMPARE(entries[0].topic, QStringLiteral("1.html"));
        QCOMPARE(entries[0].children.size(), std::size_t{1});
        QCOMPARE(entries[0].children[0].name, QStringLiteral("Under one"));
        QCOMPARE(entries[1].name, QStringLiteral("Two"));
    }

    void charactersOfMarkupInANameAreRead()
    {
        const auto entries = parseSitemap(entry("a &amp; &lt;b&gt; &quot;c&quot; &amp;lt;", "x.html"));
        QCOMPARE(entries.at(0).name, QStringLiteral("a & <b> \"c\" &lt;"));
    }

    void aSitemapWithoutEndOrOrderIsReadAsFarAsItGoes()
    {
        QCOMPARE(parseSitemap(QString()).size(), std::size_t{0});
        QCOMPARE(parseSitemap(QStringLiteral("<UL><UL></UL></UL></UL></UL>") + entry("A", "a.html")).size(),
            std::size_t{1});
        QCOMPARE(parseSitemap(entry("A", "a.html") + QStringLiteral("<OBJECT><param name=\"Name\"")).size(),
            std::size_t{1});
    }

    void depthAndNumberOfEntriesAreBounded()
    {
        QString deep;
        for (int level = 0; level < 500; ++level) {
            deep += QStringLiteral("<UL>") + entry("x", "x.html");
        }
        const auto entries = parseSitemap(deep);
        int depth = 0;
        for (const auto* level = &entries; !level->empty(); level = &level->front().children) {
            ++depth;
        }
        QVERIFY2(depth <= 16, qPrintable(QString::number(depth)));
        QCOMPARE(parseSitemap(entry("x", "x.html").repeated(11000)).size(), std::size_t{10000});
    }

    void theTextOfAPageIsReadInItsEncoding()
    {
        QCOMPARE(
            htmlText("<meta charset=\"utf-8\">\xc3\xa4"), QString::fromUtf8("<meta charset=\"utf-8\">ä"));
        QCOMPARE(htmlText("<meta charset=\"iso-8859-1\">\xe4"),
            QString::fromUtf8("<meta charset=\"iso-8859-1\">ä"));
        QCOMPARE(htmlText("\xc3\xa4"), QString::fromUtf8("ä"));
    }

    void eachContextNumberLeadsToItsTopic_data()
    {
        QTest::addColumn<int>("context");
        QTest::addColumn<QString>("topic");
        QTest::newRow("tasks page") << 0 << QStringLiteral("/tasks.html");
        QTest::newRow("categories page") << 1 << QStringLiteral("/categories.html");
        QTest::newRow("settings page") << 2 << QStringLiteral("/settings.html");
        QTest::newRow("maintenance page") << 3 << QStringLiteral("/maintenance.html");
        QTest::newRow("alert window") << 4 << QStringLiteral("/alert.html");
    }

    void eachContextNumberLeadsToItsTopic()
    {
        QFETCH(const int, context);
        QFETCH(const QString, topic);
        const auto book = HelpBook::open(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(book != nullptr);
        QCOMPARE(book->topicOf(context).value_or(QString()), topic);
        QVERIFY(book->file().contains(topic));
    }

    void unknownContextNumbersLeadNowhere()
    {
        const auto book = HelpBook::open(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(book != nullptr);
        for (const qint32 context : {-1, 5, 1000, std::numeric_limits<qint32>::min()}) {
            QVERIFY(!book->topicOf(context));
        }
    }

    void aSearchFindsTopicsThatContainEveryWord()
    {
        const auto book = HelpBook::open(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(book != nullptr);
        const auto hits = book->find(QStringLiteral("  SLEPT  reminder "));
        QVERIFY(!hits.empty());
        QCOMPARE(hits.front().topic, QStringLiteral("/reminders.html"));
        QCOMPARE(hits.front().title, QStringLiteral("How reminders work"));
        QCOMPARE(book->find(QStringLiteral("slept qwertz")).size(), std::size_t{0});
        QCOMPARE(book->find(QStringLiteral("   ")).size(), std::size_t{0});
    }

    void topicsWithAWordInTheirTitleComeFirst()
    {
        const auto book = HelpBook::open(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(book != nullptr);
        const auto hits = book->find(QStringLiteral("maintenance"));
        QVERIFY(hits.size() > 1);
        QCOMPARE(hits.front().title, QStringLiteral("The page Maintenance"));
    }

    void theIndexIsSorted()
    {
        const auto book = HelpBook::open(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(book != nullptr);
        QVERIFY(book->index().size() > 40);
        for (std::size_t i = 1; i < book->index().size(); ++i) {
            QVERIFY(QString::localeAwareCompare(book->index()[i - 1].name, book->index()[i].name) <= 0);
        }
    }
};

AMBERTASK_TEST_MAIN(HelpBookTest)
#include "tst_help_book.moc"
