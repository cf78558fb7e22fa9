#include "app/TaskSearch.h"
#include "app/TextFolding.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

QString folded(const QString& text)
{
    TextFolding folding;
    const QByteArray utf8 = text.toUtf8();
    std::string result;
    folding.append({utf8.constData(), static_cast<std::size_t>(utf8.size())}, result);
    return QString::fromStdString(result);
}

struct Tasks {
    void add(const QString& name, const QString& description = {})
    {
        ClsTask task(database.engine());
        task.setTaskName(name);
        task.setDescription(description);
        tasks.push_back(task);
    }
    QStringList found(const QString& text)
    {
        search.lookFor(text);
        QStringList names;
        for (const int index : search.find(tasks)) {
            names.append(tasks[static_cast<std::size_t>(index)].TaskName());
        }
        return names;
    }

    TestDatabase database;
    std::vector<ClsTask> tasks;
    TaskSearch search;
};

QStringList marked(const QString& text, const QString& words)
{
    TaskSearch search;
    search.lookFor(words);
    QStringList parts;
    for (const TextPart& part : search.found(text)) {
        parts.append(text.mid(part.begin, part.size));
    }
    return parts;
}

} // namespace

class TaskSearchTest : public TestCase
{
    Q_OBJECT

private slots:
    void theSameWordIsFoundHoweverItIsWritten_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("typed");
        const auto row = [](const char* name, const char16_t* written, const char16_t* typed) {
            QTest::newRow(name) << QString::fromUtf16(written) << QString::fromUtf16(typed);
        };
        row("case", u"Call the DENTIST [now]", u"dentist [NOW]");
        row("every letter of ASCII", u"@ABCDEFGHIJKLMNOPQRSTUVWXYZ[`{", u"@abcdefghijklmnopqrstuvwxyz[`{");
        row("composed accents", u"Caf\u00e9", u"cafe");
        row("decomposed accents", u"Cafe\u0301 cr\u00e8me", u"caf\u00e9 creme");
        row("accents typed, none written", u"resume", u"r\u00e9sum\u00e9");
        row("Vietnamese", u"Ti\u1ebfng Vi\u1ec7t", u"tieng viet");
        row("German", u"Gro\u00dfe STRASSE", u"grosse stra\u00dfe");
        row("German, capital", u"STRA\u1e9eE", u"strasse");
        row("Turkish, dotted", u"\u0130STANBUL", u"istanbul");
        row("Turkish, dotless", u"ISPARTA", u"\u0131sparta");
        row("Turkish, both", u"\u0131\u015f\u0131k", u"IS\u0327IK");
        row("Polish", u"\u0141\u00f3d\u017a", u"lodz");
        row("Danish", u"Sm\u00f8rrebr\u00f8d \u00c6ble", u"smorrebrod aeble");
        row("Greek final sigma", u"\u039f\u0394\u03a5\u03a3\u03a3\u0395\u03a5\u03a3",
            u"\u03bf\u03b4\u03c5\u03c3\u03c3\u03b5\u03c5\u03c2");
        row("Greek accents", u"\u1f08\u03b8\u1fc6\u03bd\u03b1\u03b9",
            u"\u03b1\u03b8\u03b7\u03bd\u03b1\u03b9");
        row("Russian", u"\u0401\u043b\u043a\u0430", u"\u0435\u043b\u043a\u0410");
        row("Arabic harakat", u"\u0645\u064f\u062d\u064e\u0645\u0651\u064e\u062f",
            u"\u0645\u062d\u0645\u062f");
        row("Arabic hamza", u"\u0623\u062d\u0645\u062f", u"\u0627\u062d\u0645\u062f");
        row("Arabic stretched", u"\u0645\u0640\u0640\u062d\u0645\u062f", u"\u0645\u062d\u0645\u062f");
        row("Arabic presentation forms", u"\ufefb", u"\u0644\u0627");
        row("Arabic digits", u"\u0663\u06f5", u"35");
        row("Hebrew points", u"\u05e9\u05b8\u05dc\u05d5\u05b9\u05dd", u"\u05e9\u05dc\u05d5\u05dd");
        row("Devanagari", u"\u0915\u093e\u092e", u"\u0915\u093e\u092e");
        row("Han", u"\u4e70\u725b\u5976", u"\u725b\u5976");
        row("wide letters", u"\uff21\uff22\uff23\u3000\uff11", u"abc 1");
        row("half-wide kana", u"\uff76\uff80", u"\u30ab\u30bf");
        row("ligatures", u"\ufb01le o\ufb03ce", u"file OFFICE");
        row("long foldings", u"\ufdfa", u"\u0635\u0644\u0649");
        row("beyond the first plane", u"\U00010400\U0001d400", u"\U00010428a");
        row("soft hyphen and joiners", u"or\u00adgan\u200dizer", u"organizer");
        row("variation of a picture", u"\u2764\ufe0f list", u"\u2764 list");
    }
    void theSameWordIsFoundHoweverItIsWritten()
    {
        QFETCH(QString, written);
        QFETCH(QString, typed);
        Tasks list;
        list.add(QStringLiteral("another"));
        list.add(written);
        QCOMPARE(list.found(typed), QStringList(written));
    }

    void aSyllableOfHangulIsFoundAtEveryKey_data()
    {
        QTest::addColumn<QString>("typed");
        // The keys of "dal-gal-gwa" (egg and), as an input method shows the word meanwhile.
        int key = 0;
        for (const char16_t* typed : {u"\u3137", u"\ub2ec", u"\ub2ed", u"\ub2ec\uac00", u"\ub2ec\uac08",
                 u"\ub2ec\uac08\u3131", u"\ub2ec\uac08\uace0", u"\ub2ec\uac08\uacfc"}) {
            QTest::addRow("key %d", ++key) << QString::fromUtf16(typed);
        }
    }
    void aSyllableOfHangulIsFoundAtEveryKey()
    {
        QFETCH(QString, typed);
        const QString written = QString::fromUtf16(u"\ub2ec\uac08\uacfc \uc6b0\uc720");
        Tasks list;
        list.add(written);
        list.add(QString::fromUtf16(u"\uc6b0\uc720"));
        QCOMPARE(list.found(typed), QStringList(written));
    }

    void vowelSignsOfIndianScriptsAreLetters()
    {
        QVERIFY(folded(QString::fromUtf16(u"\u0915\u0941")) != folded(QString::fromUtf16(u"\u0915")));
    }

    void malformedBytesHideNothingBehindThem()
    {
        TextFolding folding;
        std::string result;
        folding.append("\xff\xc3(\xe2\x82 ABC \xf4\x90\x80\x80 D\xc3", result);
        QVERIFY2(result.find("( ") == std::string::npos && result.find(" abc ") != std::string::npos
                && result.find(" d") != std::string::npos,
            result.c_str());
    }

    void aTextOfAnyLengthIsFoldedWhole()
    {
        const QString part = QString::fromUtf16(u"\u00c4rger mit \ufdfa und \u4e70\u725b ");
        QCOMPARE(folded(part.repeated(1000)), folded(part).repeated(1000));
    }

    void allWordsCountInNameOrDescription()
    {
        Tasks list;
        list.add(QStringLiteral("Call mother"), QStringLiteral("about the garden"));
        list.add(QStringLiteral("Garden"), QStringLiteral("water it"));
        list.add(QStringLiteral("Call the bank"));
        QCOMPARE(list.found(QStringLiteral("garden call")), QStringList(QStringLiteral("Call mother")));
        QCOMPARE(list.found(QStringLiteral("gard")),
            QStringList({QStringLiteral("Call mother"), QStringLiteral("Garden")}));
        QCOMPARE(list.found(QStringLiteral("\tcall  \u3000")),
            QStringList({QStringLiteral("Call mother"), QStringLiteral("Call the bank")}));
        QCOMPARE(list.found(QStringLiteral("call nobody")), QStringList());
    }

    void aWordDoesNotReachFromTheNameIntoTheDescriptionNorIntoTheNextTask()
    {
        Tasks list;
        list.add(QStringLiteral("water"), QStringLiteral("melon"));
        list.add(QStringLiteral("seeds"));
        QCOMPARE(list.found(QStringLiteral("watermelon")), QStringList());
        QCOMPARE(list.found(QStringLiteral("melonseeds")), QStringList());
    }

    void blanksAndLoneAccentsAreNothingToLookFor()
    {
        TaskSearch search;
        QVERIFY(!search.lookFor(QStringLiteral("  ")));
        QVERIFY(!search.isActive());
        QVERIFY(!search.lookFor(QString::fromUtf16(u"\u0301")));
        QVERIFY(!search.isActive());
        QVERIFY(search.lookFor(QStringLiteral("a")));
        QVERIFY(search.isActive());
        QVERIFY(!search.lookFor(QStringLiteral("A ")));
    }

    void whatWasFoundIsRightWhateverIsTypedNext()
    {
        Tasks list;
        for (const char* name : {"alpha", "alphabet", "beta alpha", "betamax", "gamma", "gamut beta"}) {
            list.add(QLatin1String(name));
        }
        // Longer, shorter, another word first, a word in the middle: compared with a search from the start.
        for (const char* text : {"a", "al", "alphab", "alph", "b alph", "be alpha", "be alpha x", "be",
                 "abet be", "amma", "gam", "am g", "am ga be", ""}) {
            Tasks fresh;
            fresh.tasks = list.tasks;
            QCOMPARE(list.found(QLatin1String(text)), fresh.found(QLatin1String(text)));
        }
    }

    void whatIsFoldedInPartsIsFoundTheSame()
    {
        for (const int parts : {0, 1, 2, 3}) {
            Tasks list;
            list.add(QStringLiteral("one tree"));
            list.add(QStringLiteral("two trees"));
            list.add(QStringLiteral("three"));
            for (int part = 1; part <= parts; ++part) {
                QCOMPARE(list.search.prepare(list.tasks, 1), part < 3);
            }
            list.tasks.erase(list.tasks.begin() + 1);
            list.search.taskRemoved(1);
            QCOMPARE(list.found(QStringLiteral("tree")), QStringList(QStringLiteral("one tree")));
            QCOMPARE(list.found(QStringLiteral("thre")), QStringList(QStringLiteral("three")));
        }
    }

    void aListThatChangesIsSearchedAnew()
    {
        Tasks list;
        list.add(QStringLiteral("one tree"));
        list.add(QStringLiteral("two trees"));
        list.add(QStringLiteral("three"));
        QCOMPARE(list.found(QStringLiteral("tree")).size(), 2);
        list.tasks.erase(list.tasks.begin());
        list.search.taskRemoved(0);
        QCOMPARE(list.found(QStringLiteral("tree")), QStringList(QStringLiteral("two trees")));
        QCOMPARE(list.found(QStringLiteral("thr")), QStringList(QStringLiteral("three")));
        list.tasks[0].setTaskName(QStringLiteral("through"));
        list.search.listReplaced();
        QCOMPARE(list.found(QStringLiteral("thr")),
            QStringList({QStringLiteral("through"), QStringLiteral("three")}));
        list.search.lookFor({});
        list.search.rest();
        QCOMPARE(list.found(QStringLiteral("thro")), QStringList(QStringLiteral("through")));
    }

    void theFoundPartsOfAnyTextAreKnown_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("parts");
        const auto row = [](const char* name, const char16_t* text, const char16_t* words,
                             const QStringList& parts) {
            QTest::newRow(name) << QString::fromUtf16(text) << QString::fromUtf16(words) << parts;
        };
        row("every occurrence", u"Tea and tea", u"TEA", {QStringLiteral("Tea"), QStringLiteral("tea")});
        row("neighbours are one part", u"teatime", u"time tea", {QStringLiteral("teatime")});
        row("overlapping words", u"abcde", u"abc bcd", {QStringLiteral("abcd")});
        row("half of a letter marks it", u"Stra\u00dfe", u"as", {QString::fromUtf16(u"a\u00df")});
        row("accents belong to their letter", u"cafe\u0301s", u"cafe", {QString::fromUtf16(u"cafe\u0301")});
        row("a pair of surrogates", u"a\U0001d400b", u"a", {QString::fromUtf16(u"a\U0001d400")});
        row("nothing", u"tea", u"coffee", {});
        row("no words", u"tea", u"", {});
    }
    void theFoundPartsOfAnyTextAreKnown()
    {
        QFETCH(QString, text);
        QFETCH(QString, words);
        QFETCH(QStringList, parts);
        QCOMPARE(marked(text, words), parts);
    }
};

AMBERTASK_TEST_MAIN(TaskSearchTest)
#include "tst_task_search.moc"
