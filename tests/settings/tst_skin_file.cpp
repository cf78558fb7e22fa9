#include "settings/SkinFile.h"
#include "settings/SkinFolder.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"

#include <QSet>
#include <QTemporaryDir>

namespace
{

SkinFile parsed(const QByteArray& content)
{
    return SkinFile::parse(content, QStringLiteral("X.skf"));
}

/// What is written about skin files for those who make them.
QString description()
{
    return QString::fromUtf8(contentOf(QStringLiteral(AMBERTASK_SKIN_DESCRIPTION)));
}

QByteArray skinWith(const QByteArray& lines)
{
    return "/*\n@name X\n@color ink #102030\n" + lines + "\n*/\n";
}

/// The name that is found in a file of that content.
QString nameIn(const QByteArray& content)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("X.skf"));
    writeText(path, content);
    return SkinFile::nameIn(path);
}

} // namespace

class TestSkinFile : public TestCase
{
    Q_OBJECT

private slots:
    void aSkinSaysItsNameVersionAuthorAndDescription();
    void theNameIsFoundWhateverStandsBehindIt();
    void aFileWithoutANameHasNone_data();
    void aFileWithoutANameHasNone();
    void theExampleOfTheDescriptionIsASkin();
    void theDescriptionNamesEveryRole();
    void otherLinesOfTheCommentAreFree();
    void tokensAreColours();
    void whatFollowsTheBlockIsIgnored();
    void rolesTakeTheirColoursInAllGroups();
    void disabledRolesAreSetWhateverTheOrder();
    void aFaultNamesFileAndLine_data();
    void aFaultNamesFileAndLine();
    void aNameThatCouldBeNoFileNameIsRefused_data();
    void aNameThatCouldBeNoFileNameIsRefused();
    void aFileLargerThanOneMebibyteIsRefused();
    void aFileThatIsNotUtf8IsRefused_data();
    void aFileThatIsNotUtf8IsRefused();
    void linesMayEndAsOnWindows();
    void aMissingFileIsNamed();
    void aFolderIsNoSkin();
};

void TestSkinFile::aSkinSaysItsNameVersionAuthorAndDescription()
{
    const QByteArray skin =
        "/*\n@name  Deep Sea \n@version 2.0\n@author \xc3\x85. Vik\n@description Blue, and calm\n*/";
    QCOMPARE(parsed(skin).name, QStringLiteral("Deep Sea"));
    QCOMPARE(nameIn(skin), QStringLiteral("Deep Sea"));
}

void TestSkinFile::theNameIsFoundWhateverStandsBehindIt()
{
    QCOMPARE(nameIn("/* mine\n@version 1\n@name X\n@colour faulty\n*/ QLabel {"), QStringLiteral("X"));
}

void TestSkinFile::aFileWithoutANameHasNone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no block") << QByteArray("@name X");
    QTest::newRow("open block") << QByteArray("/*\n@name X");
    QTest::newRow("no name") << QByteArray("/*\n@version 1\n*/\n@name X");
    QTest::newRow("a fault before it") << QByteArray("/*\n@colour faulty\n@name X\n*/");
    QTest::newRow("no name of a file") << QByteArray("/*\n@name O'Hara\n*/");
}

void TestSkinFile::aFileWithoutANameHasNone()
{
    QFETCH(const QByteArray, content);
    QVERIFY(caught<SkinError>([&] { nameIn(content); }).has_value());
}

void TestSkinFile::theExampleOfTheDescriptionIsASkin()
{
    const QString example = description().section(QStringLiteral("```\n"), 1, 1);
    const SkinFile skin = parsed(example.toUtf8());
    QCOMPARE(skin.name, QStringLiteral("Harbour"));
    QCOMPARE(skin.palette.color(QPalette::Highlight), QColor(0xb3, 0x26, 0x1e));
    QCOMPARE(skin.colors.value(QStringLiteral("header")), QColor(0xd5, 0xdc, 0xe1));
}

void TestSkinFile::theDescriptionNamesEveryRole()
{
    const QString paragraph = description().section(QStringLiteral("The roles:"), 1).section(u'.', 0, 0);
    const QStringList roles = paragraph.split(u'`');
    QSet<QString> known;
    for (qsizetype i = 1; i < roles.size(); i += 2) {
        parsed(QStringLiteral("/*\n@name X\n@color c #000000\n@palette %1 $c\n*/").arg(roles[i]).toUtf8());
        known.insert(roles[i]);
    }
    QCOMPARE(known.size(), 20);
}

void TestSkinFile::otherLinesOfTheCommentAreFree()
{
    QCOMPARE(parsed("/* A skin of mine.\n\n@name X\nmail me @ home\n*/").name, QStringLiteral("X"));
}

void TestSkinFile::tokensAreColours()
{
    const SkinFile skin = parsed(skinWith("@color ink-2 #ABCDEF"));
    QCOMPARE(skin.colors.value(QStringLiteral("ink")), QColor(0x10, 0x20, 0x30));
    QCOMPARE(skin.colors.value(QStringLiteral("ink-2")), QColor(0xab, 0xcd, 0xef));
    QCOMPARE(skin.colors.size(), 2);
}

// Earlier versions had a style sheet there.
void TestSkinFile::whatFollowsTheBlockIsIgnored()
{
    const QByteArray skin = skinWith("@palette Text $ink");
    const SkinFile older = parsed(skin + "QLabel { color: $blue; image: url(a.png) /* open");
    QCOMPARE(older.palette, parsed(skin).palette);
    QCOMPARE(older.colors, parsed(skin).colors);
}

void TestSkinFile::rolesTakeTheirColoursInAllGroups()
{
    const QPalette palette = parsed(skinWith("@palette WindowText $ink")).palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(palette.color(group, QPalette::WindowText), QColor(0x10, 0x20, 0x30));
    }
}

void TestSkinFile::disabledRolesAreSetWhateverTheOrder()
{
    const QPalette palette =
        parsed(skinWith("@disabled Text $off\n@palette Text $ink\n@color off #777777")).palette;
    QCOMPARE(palette.color(QPalette::Active, QPalette::Text), QColor(0x10, 0x20, 0x30));
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::Text), QColor(0x77, 0x77, 0x77));
}

void TestSkinFile::aFaultNamesFileAndLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* tag, const QByteArray& content, const char* error) {
        QTest::newRow(tag) << content << QStringLiteral("X.skf, line ") + QLatin1String(error);
    };
    row("no comment block", "QLabel {}", "1: the file does not begin with a comment block");
    row("open comment block", "/*\n@name X\n", "1: the comment block has no end");
    row("no name", "/*\n@version 1\n*/", "1: the comment block has no \"@name\"");
    row("empty name", "/*\n@name\n*/", "2: \"@name\" says nothing");
    row("second name", "/*\n@name X\n@name Y\n*/", "3: a second \"@name\"");
    row("unknown keyword", skinWith("@colour a #000000"), "4: unknown keyword \"@colour\"");
    row("short colour", skinWith("@color a #000"), "4: expected \"@color token #rrggbb\"");
    row("second colour", skinWith("@color ink #000000"), "4: a second colour \"ink\"");
    row("unknown role", skinWith("@palette Wall $ink"), "4: unknown palette role \"Wall\"");
    row("role without token", skinWith("@palette Text #000000"), "4: expected \"@palette Role $token\"");
    row("disabled without token", skinWith("@disabled Text"), "4: expected \"@disabled Role $token\"");
    row("role of unknown colour", skinWith("\n@palette Text $blue"), "5: unknown colour \"$blue\"");
}

void TestSkinFile::aFaultNamesFileAndLine()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, error);
    const auto fault = caught<SkinError>([&] { parsed(content); });
    QVERIFY(fault.has_value());
    QCOMPARE(fault->text(), error);
}

void TestSkinFile::aNameThatCouldBeNoFileNameIsRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"a/b", "..", ".hidden", "a\\b", "C:x", "what?", "a\tb", "a\x01", "a\x7f", "end.",
             "O'Hara", "a\"b", "a`b", "a*b", "a<b", "a>b", "a|b", "next\u0085line", "a\u2028b", "a\u2029b",
             "\u202Eback", "a\u200Fb"}) {
        QTest::newRow(name) << QByteArray(name);
    }
    QTest::newRow("101 letters") << QByteArray(101, 'x');
    QTest::newRow("84 letters of 3 bytes") << QByteArray("\u6c34").repeated(84);
}

void TestSkinFile::aNameThatCouldBeNoFileNameIsRefused()
{
    QFETCH(const QByteArray, name);
    const auto fault = caught<SkinError>([&] { parsed("/*\n@name " + name + "\n*/"); });
    QVERIFY(fault.has_value());
    QVERIFY2(fault->text().contains(QStringLiteral("line 2")), qPrintable(fault->text()));
}

void TestSkinFile::aFileLargerThanOneMebibyteIsRefused()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Large.skf"));
    const QByteArray skin = plainSkin("Large");
    const qsizetype limit = 1'048'576;
    writeText(path, skin + QByteArray(limit - skin.size(), ' '));
    QCOMPARE(SkinFile::read(path).name, QStringLiteral("Large"));
    writeText(path, skin + QByteArray(limit - skin.size() + 1, ' '));
    const auto fault = caught<SkinError>([&] { SkinFile::read(path); });
    QVERIFY(fault.has_value());
    QCOMPARE(fault->text(), QStringLiteral("Large.skf: the file is larger than 1 MiB"));
}

void TestSkinFile::aFileThatIsNotUtf8IsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("latin 1") << QByteArray("/*\n@name X\n@author \xc5\n*/");
    QTest::newRow("cut letter") << QByteArray("/*\n@name X\n*/\xc3");
    QTest::newRow("zero") << QByteArray("/*\n@name X\n*/\0", 14);
}

void TestSkinFile::aFileThatIsNotUtf8IsRefused()
{
    QFETCH(const QByteArray, content);
    const auto fault = caught<SkinError>([&] { parsed(content); });
    QVERIFY(fault.has_value());
    QCOMPARE(fault->text(), QStringLiteral("X.skf: the file is not a text in UTF-8"));
}

void TestSkinFile::linesMayEndAsOnWindows()
{
    const SkinFile skin = parsed(skinWith("@palette Text $ink").replace("\n", "\r\n"));
    QCOMPARE(skin.name, QStringLiteral("X"));
    QCOMPARE(skin.palette.color(QPalette::Text), QColor(0x10, 0x20, 0x30));
}

void TestSkinFile::aMissingFileIsNamed()
{
    const auto fault = caught<SkinError>([] { SkinFile::read(QStringLiteral("/nowhere/Gone.skf")); });
    QVERIFY(fault.has_value());
    QCOMPARE(fault->text(), QStringLiteral("Gone.skf: the file does not exist"));
}

void TestSkinFile::aFolderIsNoSkin()
{
    const QTemporaryDir folder;
    QVERIFY(caught<SkinError>([&] { SkinFile::read(folder.path()); }).has_value());
}

AMBERTASK_TEST_MAIN(TestSkinFile)
#include "tst_skin_file.moc"
