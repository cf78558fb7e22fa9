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

QByteArray skinWith(const QByteArray& headerLines, const QByteArray& sheet = "QLabel { color: $ink; }")
{
    return "/*\n@name X\n@color ink #102030\n" + headerLines + "\n*/\n" + sheet;
}

} // namespace

class TestSkinFile : public TestCase
{
    Q_OBJECT

private slots:
    void aSkinSaysItsNameVersionAuthorAndDescription();
    void theExampleOfTheDescriptionIsASkin();
    void theDescriptionNamesEveryRole();
    void thePartsThatTheDescriptionRefusesAreRefused();
    void otherLinesOfTheCommentAreFree();
    void tokensBecomeColours();
    void rolesTakeTheirColoursInAllGroups();
    void disabledRolesAreSetWhateverTheOrder();
    void aFaultNamesFileAndLine_data();
    void aFaultNamesFileAndLine();
    void whatLooksAlikeIsAllowed_data();
    void whatLooksAlikeIsAllowed();
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
    const SkinInfo info =
        parsed("/*\n@name  Deep Sea \n@version 2.0\n@author Å. Vik\n@description Blue, and calm\n*/").info;
    QCOMPARE(info.name, QStringLiteral("Deep Sea"));
    QCOMPARE(info.version, QStringLiteral("2.0"));
    QCOMPARE(info.author, QString::fromUtf8("Å. Vik"));
    QCOMPARE(info.description, QStringLiteral("Blue, and calm"));
}

void TestSkinFile::theExampleOfTheDescriptionIsASkin()
{
    const QString example = description().section(QStringLiteral("```\n"), 1, 1);
    const SkinFile skin = parsed(example.toUtf8());
    QCOMPARE(skin.info.name, QStringLiteral("Harbour"));
    QCOMPARE(skin.palette.color(QPalette::Highlight), QColor(0xb3, 0x26, 0x1e));
    QVERIFY(skin.styleSheet.contains(QStringLiteral("background-color: #ffffff")));
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

void TestSkinFile::thePartsThatTheDescriptionRefusesAreRefused()
{
    const QString bullet = description().section(QStringLiteral("- Check marks"), 1).section(u'.', 0, 0);
    const QStringList parts = bullet.split(u'`');
    QVERIFY(parts.size() > 20);
    for (qsizetype i = 1; i < parts.size(); i += 2) {
        QVERIFY2(caught<SkinError>([&] {
            parsed(QStringLiteral("/*\n@name X\n*/ QCheckBox%1 { color: red; }").arg(parts[i]).toUtf8());
        }),
            qPrintable(parts[i]));
    }
}

void TestSkinFile::otherLinesOfTheCommentAreFree()
{
    QCOMPARE(parsed("/* A skin of mine.\n\n@name X\nmail me @ home\n*/").info.name, QStringLiteral("X"));
}

void TestSkinFile::tokensBecomeColours()
{
    const SkinFile skin = parsed(
        skinWith("@color ink-2 #ABCDEF", "QLabel { color: $ink; background: $ink-2; border-color: $ink}"));
    QCOMPARE(skin.styleSheet.trimmed(),
        QStringLiteral("QLabel { color: #102030; background: #abcdef; border-color: #102030}"));
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
    row("sheet of unknown colour", skinWith("", "\nQLabel {\n color: $blue; }"),
        "8: unknown colour \"$blue\"");
    row("open comment", skinWith("", "QLabel {}\n/* open"), "7: a comment has no end");
    row("open text", skinWith("", "QLabel { font-family: \"Sans; }"), "6: a text in quotes has no end");
    row("open rule", skinWith("", "QLabel {\n color: $ink;\n"), "6: a rule has no selector or no end");
    row("rule in a rule", skinWith("", "QLabel { QLabel {} }"), "6: a rule has no selector or no end");
    row("rule without selector", skinWith("", "{ color: $ink; }"), "6: a rule has no selector or no end");
    row("text after the rules", skinWith("", "QLabel {}\n\nQLabel"), "8: expected a rule");
    row("property without value", skinWith("", "QLabel {\n color: $ink;\n bold;\n}"),
        "8: \"bold\" is no property with a value");
    row("text over two lines", skinWith("", "QLabel { font-family: \"Sans\n\"; }"),
        "6: a text in quotes has no end");
    row("other file behind an escape",
        skinWith("", "QLabel {\n font: \"\\\"; x: \"; image: url(a.png); y: \";\" }"),
        "7: \"\\\" is not allowed");
    row("escape outside of texts", skinWith("", "QLabel {\n c\\olor: $ink; }"),
        "7: \"c\\olor: #102030\" is no property with a value");
    for (const char* selector : {"QLabel#", "QLabel:", "QLabel::", "Q|abel", "Q!abel", "QLabel >", "> QLabel",
             "QLabel,", "QLabel[", "QLabel[a", "QLabel[=a]", "QLabel(a)", "1QLabel", "QLabel:!",
             "QLa\x01"
             "bel",
             "QLabel + QLabel"}) {
        row(selector, skinWith("", QByteArray("\n") + selector + " { color: $ink; }"),
            "7: a rule has no selector or no end");
    }
    for (const char* property :
        {"color: (red", "color: red)", "color: rgb(1,2", "color: #12345", "color: !red", "color: red,",
            "color: 1px 2px /", "color:", "color: :red", "3color: red", "color: `red",
            "color: red\x0b"
            "blue",
            "color: --x"}) {
        row(property, skinWith("", QByteArray("QLabel {\n") + property + "; }"),
            qPrintable(QStringLiteral("7: \"%1\" is no property with a value").arg(QLatin1String(property))));
    }
    row("blank that is none", skinWith("", "QLabel {\n color: $ink;\x0b }"),
        "7: \"\x0b\" is no property with a value");
    row("too many properties",
        skinWith("", "QLabel {}\nQLabel, QFrame {" + QByteArray("a:b;").repeated(2600) + "}"),
        "7: more than 5000 properties");
    row("at-rule", skinWith("", "@import \"other.qss\";"), "6: expected a rule");
    row("media rule", skinWith("", "@media screen { }"), "6: \"@media\" is not allowed");
    row("picture", skinWith("", "QLabel {\n image: URL(a.png); }"),
        "7: \"URL(\": a skin is one file and holds no pictures");
    row("property of a control", skinWith("", "QLabel { qproperty-text: \"x\"; }"),
        "6: \"qproperty-text\" is not allowed");
    row("check mark", skinWith("", "\nQCheckBox::indicator { width: 9px; }"),
        "7: \"::indicator\" is drawn by the program");
    row("arrow", skinWith("", "QLabel, QComboBox::down-arrow { width: 9px; }"),
        "6: \"::down-arrow\" is drawn by the program");
    for (const char* selector :
        {"QComboBox", "QDateEdit:focus", "QGroupBox QSpinBox", "QFrame > QTimeEdit", ".QAbstractSpinBox", "*",
            "QWidget", ":focus", "#cmbStatus", "QLabel, QComboBox", "QWidget[a=\"b\"]"}) {
        row(selector, skinWith("", QByteArray(selector) + " {\n color: $ink;\n border : 1px; }"),
            "8: \"border :\" would take the arrow of a list or picker away");
    }
    row("ground of a list", skinWith("", "QComboBox { background-color: $ink; }"),
        "6: \"background-color:\" would take the arrow of a list or picker away");
}

void TestSkinFile::aFaultNamesFileAndLine()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, error);
    const auto fault = caught<SkinError>([&] { parsed(content); });
    QVERIFY(fault.has_value());
    QCOMPARE(fault->text(), error);
}

void TestSkinFile::whatLooksAlikeIsAllowed_data()
{
    QTest::addColumn<QByteArray>("sheet");
    QTest::newRow("fault in a comment") << QByteArray("/* QCheckBox::indicator { url(x) } ' */");
    QTest::newRow("fault in a text") << QByteArray("QLabel { font-family: \"url(}\"; }");
    QTest::newRow("border of a button") << QByteArray("QWidget QPushButton:hover { border: 1px solid $ink }");
    QTest::newRow("colour of a list") << QByteArray("QComboBox { color: $ink; font: bold; }");
    QTest::newRow("ground of a list's entries")
        << QByteArray("QComboBox QAbstractItemView { background: $ink; }");
    QTest::newRow("ground of a named frame") << QByteArray("#framHeader { background: $ink; }");
    QTest::newRow("edge of a bar") << QByteArray("QScrollBar::handle { background: $ink; }");
    for (const char* selector :
        {"QLabel#a.b[c]:d:!e::f:g", "QFrame>QLabel  QLabel", ".QLabel", "*[a=\"x\"][b~=c]#d", "#d"}) {
        QTest::newRow(selector) << QByteArray(selector) + " { color: $ink; }";
    }
    for (const char* value : {"-1px +2.5em .5ex 50%", "Sans, \"DejaVu Sans\", 'x'", "rgba(1, 2, 3, 50%)",
             "qlineargradient(x1:0, y1:-.5, stop:0 #fff, stop: 0.5 rgba(1,2,3,4))", "#abc #aabbcc #ddaabbcc",
             "12px/14px Sans"}) {
        QTest::newRow(value) << "QLabel { x: " + QByteArray(value) + "; }";
    }
    QTest::newRow("no last semicolon") << QByteArray("QLabel { color: $ink }");
    QTest::newRow("nothing") << QByteArray("");
}

void TestSkinFile::whatLooksAlikeIsAllowed()
{
    QFETCH(const QByteArray, sheet);
    const auto fault = caught<SkinError>([&] { parsed(skinWith("", sheet)); });
    QVERIFY2(!fault.has_value(), fault ? qPrintable(fault->text()) : "");
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
    QCOMPARE(SkinFile::read(path).info.name, QStringLiteral("Large"));
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
    QCOMPARE(skin.info.name, QStringLiteral("X"));
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
