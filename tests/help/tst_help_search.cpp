#include "support/TestMain.h"
#include "tests/help/HelpUnderTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

/// The full-text search of the help window.
class HelpSearchTest : public TestCase
{
    Q_OBJECT

private slots:
    void theSearchOpensWithAnEmptyQuery()
    {
        Help help;
        help.search(QStringLiteral("backup"));
        help.window.showSearch();
        QCOMPARE(help.page(), QStringLiteral("Search"));
        QVERIFY(help.control("txtSearch").hasFocus());
        QCOMPARE(help.control<QLineEdit>("txtSearch").text(), QString());
        QCOMPARE(help.control<QListWidget>("lstHits").count(), 0);
        QVERIFY(!help.control("btnSearch").isEnabled());
    }

    void aHitIsShownWithItsWordsMarked()
    {
        Help help;
        help.search(QStringLiteral("slept"));
        QCOMPARE(help.topic.topic(), QStringLiteral("/reminders.html"));
        const auto marks = help.topic.extraSelections();
        QCOMPARE(marks.size(), 1);
        QCOMPARE(marks.first().cursor.selectedText(), QStringLiteral("slept"));
        help.window.showContext(0);
        QCOMPARE(help.topic.extraSelections().size(), 0);
    }

    void hitsAreMarkedInAnyScript_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("marked");
        QTest::newRow("greek, in capitals")
            << QStringLiteral("Η υπενθύμιση") << QStringLiteral("ΥΠΕΝΘΎΜΙΣΗ") << QStringLiteral("υπενθύμιση");
        QTest::newRow("cyrillic") << QStringLiteral("Новая задача") << QStringLiteral("задач")
                                  << QStringLiteral("задач");
        QTest::newRow("arabic") << QStringLiteral("موعد مع") << QStringLiteral("موعد")
                                << QStringLiteral("موعد");
        QTest::newRow("hebrew") << QStringLiteral("לקנות חלב") << QStringLiteral("חלב")
                                << QStringLiteral("חלב");
        QTest::newRow("chinese, inside a sentence")
            << QStringLiteral("新的任务提醒") << QStringLiteral("任务") << QStringLiteral("任务");
        QTest::newRow("two words, the last first")
            << QStringLiteral("Новая задача") << QStringLiteral("ЗАДАЧА нов") << QStringLiteral("задача Нов");
        QTest::newRow("a letter and its mark, typed as one") << QStringLiteral(
            "cafe\u0301 noir") << QStringLiteral("caf\u00e9") << QStringLiteral("caf\u00e9");
        QTest::newRow("a letter with its mark, typed as two") << QStringLiteral(
            "caf\u00e9 noir") << QStringLiteral("CAFE\u0301") << QStringLiteral("caf\u00e9");
        QTest::newRow("beyond sixteen bits") << QStringLiteral("a \U0001F4C5 b")
                                             << QStringLiteral("\U0001F4C5") << QStringLiteral("\U0001F4C5");
    }

    void hitsAreMarkedInAnyScript()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, query);
        QFETCH(const QString, marked);
        const QTemporaryDir folder;
        QFile good(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(good.open(QIODevice::ReadOnly));
        QByteArray bytes = good.readAll();
        const QByteArray before("Every filter takes effect as soon as you change it.");
        QByteArray after = text.toUtf8();
        QVERIFY(after.size() <= before.size() && bytes.count(before) == 1);
        after += QByteArray(before.size() - after.size(), ' ');
        bytes.replace(before, after);
        QFile file(folder.filePath(QStringLiteral("script.chm")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        Help help;
        help.window.setFile(file.fileName());
        help.window.showSearch();
        help.control<QLineEdit>("txtSearch").setText(query);
        QTest::keyClick(&help.control("txtSearch"), Qt::Key_Return);
        QCOMPARE(help.topic.topic(), QStringLiteral("/tasks.html"));
        QStringList words;
        for (const auto& mark : help.topic.extraSelections()) {
            words.append(mark.cursor.selectedText());
        }
        QCOMPARE(words.join(u' '), marked);
    }

    void wordsThatNoTopicContainsAreTold()
    {
        Help help;
        help.search(QStringLiteral("qwertz"));
        QCOMPARE(help.control<QLabel>("lblResult").text(),
            QStringLiteral("No topic contains all of these words."));
        QCOMPARE(help.control<QListWidget>("lstHits").count(), 0);
    }
};

AMBERTASK_TEST_MAIN(HelpSearchTest)
#include "tst_help_search.moc"
