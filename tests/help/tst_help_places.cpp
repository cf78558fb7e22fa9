#include "support/TestMain.h"
#include "tests/help/HelpFileOf.h"
#include "tests/help/HelpUnderTest.h"

#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>

namespace
{

QByteArray paragraphs(const char* text)
{
    return QByteArray("<p>").append(text).append("</p>").repeated(200);
}

} // namespace

/// Places within a topic, and the topic that is on show already.
class HelpPlacesTest : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString file()
    {
        QFile written(m_folder.filePath(QStringLiteral("places.chm")));
        const QByteArray bytes = helpFileOf({{"/#SYSTEM", helpSystem("long.html", "toc.hhc")},
            {"/#STRINGS", QByteArray("\0long.html\0", 11)}, {"/#IVB", helpContexts({{1, 1}})},
            {"/long.html",
                helpTopic(paragraphs("before") + "<h2 id=\"middle\">The middle</h2><p>needle</p>"
                    + paragraphs("after"))},
            {"/other.html", helpTopic("another")}, {"/toc.hhc", "<UL></UL>"}});
        return written.open(QIODevice::WriteOnly) && written.write(bytes) == bytes.size() ? written.fileName()
                                                                                          : QString();
    }

    /// The text of the first line in view.
    static QString firstLine(const TopicView& topic)
    {
        return topic.cursorForPosition(QPoint(topic.width() / 2, 4)).block().text();
    }

private slots:
    void aPlaceIsScrolledTo()
    {
        Help help;
        help.window.setFile(file());
        help.topic.openTopic(QStringLiteral("long.html#middle"));
        QCOMPARE(firstLine(help.topic), QStringLiteral("The middle"));
        QCOMPARE(help.topic.topic(), QStringLiteral("/long.html"));
        help.topic.openTopic(QStringLiteral("other.html"));
        help.topic.openTopic(QStringLiteral("long.html#middle"));
        QCOMPARE(firstLine(help.topic), QStringLiteral("The middle"));
    }

    void thePlaceOnShowIsScrolledToAgain()
    {
        Help help;
        help.window.setFile(file());
        help.topic.openTopic(QStringLiteral("long.html#middle"));
        help.topic.verticalScrollBar()->setValue(help.topic.verticalScrollBar()->maximum());
        QCOMPARE(firstLine(help.topic), QStringLiteral("after"));
        help.topic.openTopic(QStringLiteral("long.html#middle"));
        QCOMPARE(firstLine(help.topic), QStringLiteral("The middle"));
        help.topic.openTopic(QStringLiteral("long.html"));
        QCOMPARE(help.topic.verticalScrollBar()->value(), 0);
    }

    void theTopicOnShowIsShownFromItsTopAgain_data()
    {
        QTest::addColumn<QByteArray>("way");
        QTest::newRow("home") << QByteArray("home");
        QTest::newRow("by number") << QByteArray("number");
        QTest::newRow("default topic") << QByteArray("default");
    }

    void theTopicOnShowIsShownFromItsTopAgain()
    {
        QFETCH(const QByteArray, way);
        Help help;
        help.window.setFile(file());
        help.window.showDefaultTopic();
        help.topic.verticalScrollBar()->setValue(help.topic.verticalScrollBar()->maximum());
        QVERIFY(help.topic.verticalScrollBar()->value() > 0);
        if (way == "home") {
            help.press("btnHome");
        } else if (way == "number") {
            help.window.showContext(1);
        } else {
            help.window.showDefaultTopic();
        }
        QCOMPARE(help.topic.verticalScrollBar()->value(), 0);
        QVERIFY(!help.control("btnBack").isEnabled());
    }

    void theContentsLeaveThePlaceThatIsInView()
    {
        Help help;
        help.window.setFile(file());
        help.topic.openTopic(QStringLiteral("long.html#middle"));
        help.window.showContents();
        QCOMPARE(firstLine(help.topic), QStringLiteral("The middle"));
    }

    void aWordThatIsSearchedForIsScrolledToInTheTopicOnShow()
    {
        Help help;
        help.window.setFile(file());
        help.search(QStringLiteral("needle"));
        help.topic.verticalScrollBar()->setValue(0);
        help.search(QStringLiteral("needle"));
        QVERIFY(help.topic.verticalScrollBar()->value() > 0);
        QCOMPARE(help.topic.extraSelections().size(), 1);
        help.window.showDefaultTopic();
        QCOMPARE(help.topic.verticalScrollBar()->value(), 0);
        QCOMPARE(help.topic.extraSelections().size(), 0);
    }
};

AMBERTASK_TEST_MAIN(HelpPlacesTest)
#include "tst_help_places.moc"
