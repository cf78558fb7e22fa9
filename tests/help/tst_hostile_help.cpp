#include "help/window/CompiledHelpWindow.h"
#include "help/window/HelpBook.h"
#include "help/window/TopicView.h"
#include "support/TestMain.h"
#include "tests/help/HelpFileOf.h"
#include "tests/help/RecordedHelpHost.h"

#include <QBuffer>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <numeric>

namespace
{

QByteArray blackPicture(QSize size)
{
    QImage picture(size, QImage::Format_Mono);
    picture.fill(0);
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG")) {
        QTest::qFail("the picture was not written", __FILE__, __LINE__);
    }
    return buffer.data();
}

qsizetype lettersOf(const QStringList& texts)
{
    return std::accumulate(texts.begin(), texts.end(), qsizetype{0},
        [](qsizetype sum, const QString& text) { return sum + text.size(); });
}

} // namespace

/// Files that are made to take all memory or all time: each of their parts is within its bounds, the sum is
/// not.
class HostileHelpTest : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString file(const HelpObjects& objects)
    {
        QFile written(m_folder.filePath(QStringLiteral("hostile.chm")));
        const QByteArray bytes = helpFileOf(objects);
        return written.open(QIODevice::WriteOnly) && written.write(bytes) == bytes.size() ? written.fileName()
                                                                                          : QString();
    }

    /// What the window shows as the first topic.
    QString shownFor(const QByteArray& firstTopic)
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.setFile(file({{"/#SYSTEM", helpSystem("a.html")}, {"/a.html", firstTopic}}));
        window.show();
        window.showDefaultTopic();
        return window.findChild<TopicView*>()->toPlainText();
    }

    static HelpObjects withTopics(int count, const QByteArray& topic)
    {
        HelpObjects objects{{"/#SYSTEM", helpSystem("first.html")}, {"/first.html", helpTopic("before all")}};
        for (int number = 0; number < count; ++number) {
            objects.append({"/" + QByteArray::number(number) + ".html", topic});
        }
        return objects;
    }

private slots:
    void aFileMadeByTheTestIsReadAsAnyOther()
    {
        const auto book = HelpBook::open(file({{"/#SYSTEM", helpSystem("a.html", "toc.hhc")},
            {"/#STRINGS", QByteArray("\0b.html\0", 8)}, {"/#IVB", helpContexts({{7, 1}})},
            {"/toc.hhc",
                "<UL><LI><OBJECT><param name=\"Name\" value=\"First\"><param name=\"Local\" "
                "value=\"a.html\"></OBJECT></UL>"},
            {"/a.html", helpTopic("some words")}, {"/b.html", helpTopic("other words")}}));
        QVERIFY(book != nullptr);
        QCOMPARE(book->title(), QStringLiteral("Help"));
        QCOMPARE(book->defaultTopic(), QStringLiteral("/a.html"));
        QCOMPARE(book->topicOf(7), std::optional(QStringLiteral("/b.html")));
        QCOMPARE(book->contents().at(0).name, QStringLiteral("First"));
        QCOMPARE(book->find(QStringLiteral("WORDS")).size(), std::size_t{2});
    }

    void contextsThatShareALongStringTakeNoMemory()
    {
        QList<QPair<quint32, quint32>> places{{0, 1}};
        for (quint32 number = 1; number < 100000; ++number) {
            places.append({number, 8 + number % 50});
        }
        const auto book = HelpBook::open(file({{"/#SYSTEM", helpSystem("a.html")},
            {"/#STRINGS", QByteArray("\0a.html\0", 8) + QByteArray(100000, 'x')},
            {"/#IVB", helpContexts(places)}, {"/a.html", helpTopic("text")}}));
        QVERIFY(book != nullptr);
        QCOMPARE(book->topicOf(0), std::optional(QStringLiteral("/a.html")));
        QCOMPARE(lettersOf(book->contexts().values()), qsizetype{7});
    }

    void theNumberOfContextsIsBounded()
    {
        QList<QPair<quint32, quint32>> places;
        for (quint32 number = 0; number < 100000; ++number) {
            places.append({number, 1});
        }
        const auto book = HelpBook::open(
            file({{"/#SYSTEM", helpSystem("a.html")}, {"/#STRINGS", '\0' + QByteArray(500, 'x') + '\0'},
                {"/#IVB", helpContexts(places)}, {"/a.html", helpTopic("text")}}));
        QVERIFY(book != nullptr);
        QCOMPARE(book->contexts().size(), 4096);
    }

    void aTagOfTooManyLettersIsPassedOver()
    {
        const auto entry = [](qsizetype letters) {
            return QStringLiteral("<OBJECT><param name=\"Name\" value=\"%1\"></OBJECT>")
                .arg(QString(letters, u'a'));
        };
        QCOMPARE(parseSitemap(entry(4000) + entry(5000) + entry(1000000) + entry(1)).size(), std::size_t{2});
    }

    void aDirectoryOfTooManyNamesIsRefused()
    {
        const auto book = HelpBook::open(file(withTopics(9000, "x")));
        QVERIFY(book != nullptr);
        QCOMPARE(book->topics().size(), 9001);
        QVERIFY(HelpBook::open(file(withTopics(60000, "x"))) == nullptr);
        QVERIFY(HelpBook::open(file(withTopics(200000, "x"))) == nullptr);
    }

    void aDirectoryOfLongNamesIsRefused()
    {
        HelpObjects objects = withTopics(1, "x");
        objects.append({"/" + QByteArray(500, 'n') + ".html", "x"});
        QVERIFY(HelpBook::open(file(objects)) != nullptr);
        objects.append({"/" + QByteArray(600, 'n') + ".html", "x"});
        QVERIFY(HelpBook::open(file(objects)) == nullptr);
    }

    void aTopicThatQtWouldReadForHoursIsToldInstead_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("unclosed tags") << QByteArray("<b>").repeated(80000);
        QTest::newRow("nested lists") << QByteArray("<ul><li>").repeated(30000);
        QTest::newRow("nested tables") << QByteArray("<table><tr><td>").repeated(40);
        QTest::newRow("long") << QByteArray(300000, 'x');
    }

    void aTopicThatQtWouldReadForHoursIsToldInstead()
    {
        QFETCH(const QByteArray, body);
        const QString shown = shownFor(helpTopic(body));
        QVERIFY2(shown.contains(QLatin1String("no readable page \"/a.html\"")), qPrintable(shown.left(200)));
        HelpObjects objects = withTopics(1, helpTopic(body + "a word"));
        objects.append({"/last.html", helpTopic("another word")});
        const auto hits = HelpBook::open(file(objects))->find(QStringLiteral("word"));
        QCOMPARE(hits.size(), std::size_t{1});
        QCOMPARE(hits.front().topic, QStringLiteral("/last.html"));
    }

    void tablesInTablesOfOurOwnDepthAreShown()
    {
        QVERIFY(shownFor(helpTopic(QByteArray("<table><tr><td>").repeated(3) + "inside"))
                    .contains(QLatin1String("inside")));
    }

    void aSearchReadsOnlySoMuch_data()
    {
        QTest::addColumn<int>("topics");
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("letters") << 400 << QByteArray(20000, 'x');
        QTest::newRow("tags") << 400 << QByteArray("<b>x</b>").repeated(900);
    }

    void aSearchReadsOnlySoMuch()
    {
        QFETCH(const int, topics);
        QFETCH(const QByteArray, body);
        const auto book = HelpBook::open(file(withTopics(topics, helpTopic(body))));
        QCOMPARE(book->find(QStringLiteral("before")).size(), std::size_t{1});
        const std::size_t found = book->find(QStringLiteral("x")).size();
        QVERIFY2(found >= 1 && found <= 110, qPrintable(QString::number(found)));
    }

    void thePicturesOfATopicTakeOnlySoMuchTogether()
    {
        QByteArray body = "<img src=\"small.png\">";
        for (int number = 0; number < 100; ++number) {
            body += "<img src=\"p.png?" + QByteArray::number(number) + "\">";
        }
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.setFile(file({{"/#SYSTEM", helpSystem("a.html")}, {"/a.html", helpTopic(body)},
            {"/b.html", helpTopic("<img src=\"p.png\">")}, {"/p.png", blackPicture({1000, 1000})},
            {"/small.png", blackPicture({10, 10})}}));
        window.show();
        window.showDefaultTopic();
        const auto& topic = *window.findChild<TopicView*>();
        qint64 pixels = 0;
        int pictures = 0;
        for (QTextBlock block = topic.document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); part != block.end(); ++part) {
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                if (format.isValid()) {
                    const auto picture = topic.document()
                                             ->resource(QTextDocument::ImageResource, QUrl(format.name()))
                                             .value<QImage>();
                    QVERIFY(!picture.isNull());
                    pixels += qint64{picture.width()} * picture.height();
                    ++pictures;
                }
            }
        }
        QCOMPARE(pictures, 101);
        QVERIFY2(pixels > 1000000 && pixels < 9000000, qPrintable(QString::number(pixels)));
        // The next topic has the whole room again.
        window.findChild<TopicView*>()->openTopic(QStringLiteral("b.html"));
        QCOMPARE(topic.document()
                     ->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("p.png")))
                     .value<QImage>()
                     .width(),
            1000);
    }
};

AMBERTASK_TEST_MAIN(HostileHelpTest)
#include "tst_hostile_help.moc"
