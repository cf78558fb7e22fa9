#include "settings/SkinFolder.h"
#include "settings/SkinSheet.h"
#include "settings/Skins.h"
#include "support/CaughtError.h"
#include "support/ScriptedDialogs.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QMenu>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QWidget>

/// A program folder with one good skin and one bad one, and a window that is not shown yet.
struct SkinsUnderTest {
    explicit SkinsUnderTest(const QString& shippedFolder = {})
        : skins(ProgramFiles(folder.path(), shippedFolder), dialogs)
    {
        copySkins(folder.path(), {});
        write("Good", plainSkin("Good", "#010203"));
        write("Bad", "no skin");
        skins.reportOn(&window);
    }
    void write(const QString& name, const QByteArray& content) const
    {
        writeText(folder.filePath(QStringLiteral("Skins/%1.skf").arg(name)), content);
    }
    static QColor color() { return QApplication::palette().color(QPalette::Window); }
    void expectReport(const QString& why)
    {
        dialogs.expectTell(
            MessageBoxes::Icon::Exclamation, QStringLiteral("The skin could not be used.\n") + why);
    }
    bool allReported()
    {
        return QTest::qWaitFor([&] { return dialogs.allUsed(); });
    }

    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    Skins skins;
    QWidget window;
};

namespace
{

/// Message boxes under which the window below is painted again, as real ones are moved over it.
class PaintingBoxes final : public MessageBoxes
{
public:
    void tell(QWidget* owner, Icon /*icon*/, const QString& /*text*/) override
    {
        mostOpen = std::max(mostOpen, ++m_open);
        owner->repaint();
        QCoreApplication::processEvents();
        --m_open;
        ++told;
    }
    bool ask(QWidget* /*owner*/, const QString& /*question*/) override { return false; }
    Unsaved askAboutUnsaved(QWidget* /*owner*/, const QString& /*text*/) override { return Unsaved::Keep; }
    Times askWhichTimes(QWidget* /*owner*/, const QString& /*question*/) override { return Times::None; }

    int told = 0;
    int mostOpen = 0;

private:
    int m_open = 0;
};

const QString BadSkin = QStringLiteral("Bad.skf, line 1: the file does not begin with a comment block");

} // namespace

class TestSkins : public TestCase
{
    Q_OBJECT

private slots:
    void aSkinIsFoundByItsFileName();
    void wearingSetsPaletteAndSheetOfTheApplication();
    void theSheetTakesColoursOfTheSkinAndOfRoles();
    void anUnreadableSkinLeavesTheLook();
    void wearingTheSameSkinAgainPolishesNothing();
    void anUnreadableSkinIsReportedOnceTheWindowIsOnTheScreen();
    void anUnreadableSkinIsReportedOnlyOnce();
    void aSkinThatWorkedAgainIsReportedAgain();
    void aFaultBeforeThereIsAWindowWaitsForIt();
    void twoFaultsAreReportedOneAfterTheOther();
    void noReportOpensOverAnother();
    void noNameIsNoFault();
    void aMisnamedSkinIsToldToWhoChoosesItAndAtNoStart();
    void aSkinWhoseFileIsGoneIsToldAtTheStart();
    void shippedSkinsAreFoundAndTheUsersOwnTakeTheirPlace();
    void theFirstAddedSkinMakesItsFolder();
    void addedFilesAreReadableByOthers();
    void addingRefusesAPathThatIsNoFile();
    void aMenuStaysOpenWhenTheAltOfItsMnemonicComesLate();
};

void TestSkins::aSkinIsFoundByItsFileName()
{
    SkinsUnderTest test;
    QCOMPARE(
        test.skins.fileOf(QStringLiteral("Aqua")), test.folder.path() + QStringLiteral("/Skins/Aqua.skf"));
}

void TestSkins::wearingSetsPaletteAndSheetOfTheApplication()
{
    SkinsUnderTest test;
    QVERIFY(test.skins.wear(QStringLiteral("Good")));
    QCOMPARE(test.color(), QColor(1, 2, 3));
    QVERIFY(qApp->styleSheet().contains(QStringLiteral("background-color: #010203;")));
}

void TestSkins::theSheetTakesColoursOfTheSkinAndOfRoles()
{
    QByteArray roles = "/*\n@name X\n@color ink #123456\n";
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const char* name = QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role);
        roles += role == QPalette::NoRole ? QByteArray() : QByteArray("@palette ") + name + " $ink\n";
    }
    const auto coloursOf = [](const QByteArray& skin) {
        static const QRegularExpression colour(QStringLiteral("#[0-9a-f]{6}"));
        QStringList colours;
        QString sheet = skinSheet(SkinFile::parse(skin, {}));
        // Late rows have colours that are no role's; see tst_shipped_skins.
        static const QRegularExpression rows(QStringLiteral("qproperty-[^;]*;"));
        sheet.remove(rows);
        for (auto found = colour.globalMatch(sheet); found.hasNext();) {
            colours.append(found.next().captured());
        }
        return colours;
    };
    const QStringList ofRoles = coloursOf(roles + "*/");
    QCOMPARE(QSet<QString>(ofRoles.begin(), ofRoles.end()), QSet<QString>({QStringLiteral("#123456")}));
    const QStringList withOwn = coloursOf(roles + "@color selection #abcdef\n@color window #fedcba\n*/");
    QCOMPARE(withOwn.size(), ofRoles.size());
    QCOMPARE(withOwn.count(QStringLiteral("#abcdef")), 3);
    QCOMPARE(withOwn.count(QStringLiteral("#fedcba")), 0);
}

void TestSkins::anUnreadableSkinLeavesTheLook()
{
    SkinsUnderTest test;
    test.skins.wear(QStringLiteral("Good"));
    QVERIFY(!test.skins.wear(QStringLiteral("Bad")));
    QVERIFY(!test.skins.wear(QStringLiteral("Missing")));
    QCOMPARE(test.color(), QColor(1, 2, 3));
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void TestSkins::wearingTheSameSkinAgainPolishesNothing()
{
    SkinsUnderTest test;
    test.skins.wear(QStringLiteral("Good"));
    class : public QObject
    {
    public:
        int styleChanges = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            styleChanges += event->type() == QEvent::StyleChange ? 1 : 0;
            return false;
        }
    } counter;
    test.window.ensurePolished();
    test.window.installEventFilter(&counter);
    test.skins.wear(QStringLiteral("Good"));
    QCOMPARE(counter.styleChanges, 0);
    test.write(QStringLiteral("Other"), plainSkin("Other", "#040506"));
    test.skins.wear(QStringLiteral("Other"));
    QVERIFY(counter.styleChanges > 0);
}

void TestSkins::anUnreadableSkinIsReportedOnceTheWindowIsOnTheScreen()
{
    SkinsUnderTest test;
    test.skins.wear(QStringLiteral("Bad"));
    QCoreApplication::processEvents();
    test.expectReport(BadSkin);
    QVERIFY(!test.dialogs.allUsed());
    test.window.show();
    QVERIFY(test.allReported());
}

void TestSkins::anUnreadableSkinIsReportedOnlyOnce()
{
    SkinsUnderTest test;
    test.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&test.window));
    test.expectReport(BadSkin);
    test.skins.wear(QStringLiteral("Bad"));
    QVERIFY(test.allReported());
    test.skins.wear(QStringLiteral("Bad"));
    QCoreApplication::processEvents();
}

void TestSkins::aSkinThatWorkedAgainIsReportedAgain()
{
    SkinsUnderTest test;
    test.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&test.window));
    for (int i = 0; i < 2; ++i) {
        test.expectReport(BadSkin);
        test.skins.wear(QStringLiteral("Bad"));
        QVERIFY(test.allReported());
        test.write(QStringLiteral("Bad"), plainSkin("Bad"));
        QVERIFY(test.skins.wear(QStringLiteral("Bad")));
        test.write(QStringLiteral("Bad"), "no skin");
    }
}

void TestSkins::aFaultBeforeThereIsAWindowWaitsForIt()
{
    const QTemporaryDir folder;
    ScriptedDialogs dialogs;
    Skins skins(ProgramFiles(folder.path()), dialogs);
    QVERIFY(!skins.wear(QStringLiteral("Aqua")));
    QCoreApplication::processEvents();
    QWidget window;
    dialogs.expectTell(MessageBoxes::Icon::Exclamation,
        QStringLiteral("The skin could not be used.\nAqua.skf: the file does not exist"));
    window.show();
    skins.reportOn(&window);
    QVERIFY(QTest::qWaitFor([&] { return dialogs.allUsed(); }));
}

void TestSkins::twoFaultsAreReportedOneAfterTheOther()
{
    SkinsUnderTest test;
    test.skins.wear(QStringLiteral("Bad"));
    test.skins.wear(QStringLiteral("Gone"));
    test.expectReport(BadSkin);
    test.expectReport(QStringLiteral("Gone.skf: the file does not exist"));
    test.window.show();
    QVERIFY(test.allReported());
}

void TestSkins::noReportOpensOverAnother()
{
    PaintingBoxes boxes;
    const QTemporaryDir folder;
    QWidget window;
    Skins skins(ProgramFiles(folder.path()), boxes);
    skins.reportOn(&window);
    skins.wear(QStringLiteral("Gone"));
    skins.wear(QStringLiteral("Away"));
    window.show();
    QVERIFY(QTest::qWaitFor([&] { return boxes.told == 2; }));
    QCOMPARE(boxes.mostOpen, 1);
}

void TestSkins::noNameIsNoFault()
{
    SkinsUnderTest test;
    test.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&test.window));
    QVERIFY(!test.skins.wear({}));
    test.expectReport(BadSkin);
    test.skins.wear(QStringLiteral("Bad"));
    QVERIFY(test.allReported());
}

void TestSkins::aMisnamedSkinIsToldToWhoChoosesItAndAtNoStart()
{
    SkinsUnderTest test;
    test.write("stripes", plainSkin("Zebra"));
    QVERIFY(test.skins.names().contains(QStringLiteral("Zebra")));
    test.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&test.window));
    // The boxes fail the test when a report comes that was not announced.
    QVERIFY(!test.skins.load(QStringLiteral("Zebra"), Skins::Asked::AtStart));
    QVERIFY(!test.skins.wear(QStringLiteral("Zebra"), Skins::Asked::AtStart));
    QCoreApplication::processEvents();
    test.expectReport(QStringLiteral("stripes.skf: the file has to be named \"Zebra.skf\", as its skin is"));
    QVERIFY(!test.skins.wear(QStringLiteral("Zebra")));
    QVERIFY(test.allReported());
}

void TestSkins::aSkinWhoseFileIsGoneIsToldAtTheStart()
{
    SkinsUnderTest test;
    test.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&test.window));
    test.expectReport(QStringLiteral("Zebra.skf: the file does not exist"));
    QVERIFY(!test.skins.load(QStringLiteral("Zebra"), Skins::Asked::AtStart));
    QVERIFY(test.allReported());
}

void TestSkins::shippedSkinsAreFoundAndTheUsersOwnTakeTheirPlace()
{
    const QTemporaryDir shipped;
    SkinsUnderTest test(shipped.path());
    copySkins(shipped.path(), {});
    const auto ship = [&shipped](const char* name, const QByteArray& content) {
        writeText(shipped.filePath(QStringLiteral("Skins/%1.skf").arg(QLatin1String(name))), content);
    };
    ship("Amber", plainSkin("Amber", "#040506"));
    ship("Good", plainSkin("Shadowed", "#070809"));
    QStringList names = test.skins.names();
    names.sort();
    QCOMPARE(names.join(u','), QStringLiteral("Amber,Good"));
    QVERIFY(test.skins.wear(QStringLiteral("Amber")));
    QCOMPARE(test.color(), QColor(4, 5, 6));
    QVERIFY(test.skins.wear(QStringLiteral("Good")));
    QCOMPARE(test.color(), QColor(1, 2, 3));
}

void TestSkins::theFirstAddedSkinMakesItsFolder()
{
    const QTemporaryDir shipped;
    SkinsUnderTest test(shipped.path());
    const QString file = test.folder.filePath(QStringLiteral("New.skf"));
    writeText(file, plainSkin("New"));
    QVERIFY(QDir(test.folder.filePath(QStringLiteral("Skins"))).removeRecursively());
    test.skins.add(file);
    QCOMPARE(test.skins.names(), QStringList{QStringLiteral("New")});
    QCOMPARE(test.skins.fileOf(QStringLiteral("New")), test.folder.filePath(QStringLiteral("Skins/New.skf")));
}

void TestSkins::addedFilesAreReadableByOthers()
{
    SkinsUnderTest test;
    const QString file = test.folder.filePath(QStringLiteral("New.skf"));
    writeText(file, plainSkin("New"));
    QVERIFY(QFile::setPermissions(file, QFileDevice::ReadOwner));
    test.skins.add(file);
    const QFileDevice::Permissions permissions = QFile::permissions(test.skins.fileOf(QStringLiteral("New")));
    QVERIFY(permissions.testFlag(QFileDevice::ReadOwner) && permissions.testFlag(QFileDevice::WriteOwner));
    QVERIFY(!permissions.testFlag(QFileDevice::ExeOwner) && !permissions.testFlag(QFileDevice::WriteOther));
}

void TestSkins::addingRefusesAPathThatIsNoFile()
{
    SkinsUnderTest test;
    QVERIFY(caught<RuntimeError>([&] { test.skins.add({}); }).has_value());
    QVERIFY(caught<RuntimeError>([&] { test.skins.add(test.folder.path()); }).has_value());
    QVERIFY(caught<RuntimeError>([&] { test.skins.add(QStringLiteral("/nowhere/X.skf")); }).has_value());
}

void TestSkins::aMenuStaysOpenWhenTheAltOfItsMnemonicComesLate()
{
    const SkinsUnderTest test;
    QMenu menu;
    menu.addAction(QStringLiteral("Entry"));
    menu.popup({});
    QTest::keyClick(&menu, Qt::Key_Alt);
    QVERIFY(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Escape);
    QVERIFY(!menu.isVisible());
}

AMBERTASK_TEST_MAIN(TestSkins)
#include "tst_skins.moc"
