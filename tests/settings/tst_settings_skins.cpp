#include "settings/SettingsPageUnderTest.h"
#include "support/TestMain.h"
#include "widgets/LinkLabel.h"

#include <QApplication>
#include <QTimer>

namespace
{

QColor windowColor()
{
    return QApplication::palette().color(QPalette::Window);
}

void takeOffSkin()
{
    qApp->setStyleSheet({});
    QApplication::setPalette(QPalette(Qt::gray));
}

const QString Added = QStringLiteral("The new skin is now available in the skins list.");

} // namespace

class TestSettingsSkins : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { takeOffSkin(); }
    void cleanup() { takeOffSkin(); }

    void theListHoldsTheNamesInTheFilesAndSelectsTheFirst();
    void hiddenAndReadOnlyFilesAreListed();
    void unreadableFilesAreLeftOut();
    void aFolderWithoutSkinsLeavesTheListEmpty();
    void pendingEventsRunWhileTheListIsRead();
    void atAStartTheListHoldsWhatIsWornAndTheOthersLater();
    void atAStartWithoutTheStoredSkinTheListIsReadAtOnce();
    void aFaultBehindTheNameIsToldToWhoChoosesIt();

    void anotherSkinIsWornOnlyWhenItIsSaved();
    void anUnchangedSkinIsNotLoadedBySaving();
    void choosingTheSameSkinAgainLoadsItOnSave();
    void theFlagIsClearedOnceTheSkinIsApplied();
    void fillingTheListIsNoChoice();
    void applyingWearsTheSkinThatTheListShows();
    void aMissingSkinLeavesTheLookAndTheRestOfTheSaveGoesOn();

    void addingCopiesTheFileAndSelectsTheFirstEntry();
    void anEndingInCapitalLettersIsAddedInSmallOnes();
    void theCheckerRestsWhileTheFileDialogIsOpen();
    void addingAnswersOverAFileOfThatName();
    void aCancelledDialogAddsNothing();
    void aFileThatIsNoSkinIsRefusedBeforeTheCopy();
    void anAddedSkinIsToldInTheLine();
    void aFileThatIsNotNamedAfterItsSkinIsRefusedBeforeTheCopy_data();
    void aFileThatIsNotNamedAfterItsSkinIsRefusedBeforeTheCopy();
    void whatTheListShowsAfterAddingIsWornOnSave();
    void theSkinInUseThatWasReplacedIsWornAnewOnSave();
    void theDownloadLinkOpensTheVendorsPage();
    void theDownloadLinkIsPressedByKeyboardToo();
};

void TestSettingsSkins::theListHoldsTheNamesInTheFilesAndSelectsTheFirst()
{
    SettingsPageUnderTest test;
    writeText(test.folderOfSkins() + QStringLiteral("/file.skf"), plainSkin("Name In File"));
    test.page.LoadSkinsList();
    QStringList names;
    for (int i = 0; i < test.cmbSkins()->count(); ++i) {
        names.append(test.cmbSkins()->itemText(i));
    }
    names.sort();
    QCOMPARE(names.join(u','), QStringLiteral("Aqua,Classic,Lemon,Name In File"));
    QCOMPARE(test.cmbSkins()->currentIndex(), 0);
}

void TestSettingsSkins::hiddenAndReadOnlyFilesAreListed()
{
    SettingsPageUnderTest test;
    const QString hidden = test.folderOfSkins() + QStringLiteral("/.Hidden.skf");
    const QString readOnly = test.folderOfSkins() + QStringLiteral("/ReadOnly.skf");
    writeText(hidden, plainSkin("Hidden"));
    writeText(readOnly, plainSkin("ReadOnly"));
    QVERIFY(QFile::setPermissions(readOnly, QFileDevice::ReadOwner));
    test.page.LoadSkinsList();
    QVERIFY(test.cmbSkins()->findText(QStringLiteral("Hidden")) >= 0);
    QVERIFY(test.cmbSkins()->findText(QStringLiteral("ReadOnly")) >= 0);
}

void TestSettingsSkins::unreadableFilesAreLeftOut()
{
    SettingsPageUnderTest test;
    writeText(test.folderOfSkins() + QStringLiteral("/Bad.skf"), "QPushButton {}");
    writeText(test.folderOfSkins() + QStringLiteral("/Other.txt"), plainSkin("Other"));
    QVERIFY(QDir().mkdir(test.folderOfSkins() + QStringLiteral("/Folder.skf")));
    test.page.LoadSkinsList();
    QCOMPARE(test.cmbSkins()->count(), 3);
}

void TestSettingsSkins::aFolderWithoutSkinsLeavesTheListEmpty()
{
    SettingsPageUnderTest test;
    QVERIFY(QDir(test.folderOfSkins()).removeRecursively());
    test.page.LoadSkinsList();
    QCOMPARE(test.cmbSkins()->count(), 0);
    QVERIFY(test.cmbSkins()->currentText().isEmpty());
}

void TestSettingsSkins::pendingEventsRunWhileTheListIsRead()
{
    SettingsPageUnderTest test;
    int entriesSeen = -1;
    QTimer::singleShot(0, &test.page, [&] { entriesSeen = test.cmbSkins()->count(); });
    test.page.LoadSkinsList();
    QCOMPARE(entriesSeen, 3);
}

void TestSettingsSkins::atAStartTheListHoldsWhatIsWornAndTheOthersLater()
{
    SettingsPageUnderTest test;
    test.record.skin = QStringLiteral("Lemon");
    QVERIFY(test.skins.load(QStringLiteral("Lemon"), Skins::Asked::AtStart));
    test.page.startSkinsList();
    test.page.LoadSettingsPage();
    QCOMPARE(test.cmbSkins()->count(), 1);
    QCOMPARE(test.cmbSkins()->currentText(), QStringLiteral("Lemon"));
    test.page.completeSkinsList();
    QCOMPARE(test.cmbSkins()->count(), 3);
    QCOMPARE(test.cmbSkins()->currentText(), QStringLiteral("Lemon"));
    // Once: later the selection is the user's.
    test.cmbSkins()->setCurrentText(QStringLiteral("Classic"));
    test.page.completeSkinsList();
    QCOMPARE(test.cmbSkins()->currentText(), QStringLiteral("Classic"));
}

void TestSettingsSkins::atAStartWithoutTheStoredSkinTheListIsReadAtOnce()
{
    SettingsPageUnderTest test;
    for (const char* skin : {"Gone", "Elsewhere", ""}) {
        test.record.skin = QLatin1String(skin);
        // Of another name than its file, so it is not on the list.
        writeText(test.folderOfSkins() + QStringLiteral("/Elsewhere.skf"), plainSkin("Another"));
        test.skins.load(test.record.skin, Skins::Asked::AtStart);
        test.page.startSkinsList();
        test.page.LoadSettingsPage();
        QCOMPARE(test.cmbSkins()->count(), 4);
        QCOMPARE(test.cmbSkins()->currentIndex(), 0);
    }
}

void TestSettingsSkins::aFaultBehindTheNameIsToldToWhoChoosesIt()
{
    SettingsPageUnderTest test;
    writeText(test.folderOfSkins() + QStringLiteral("/Faulty.skf"), "/*\n@name Faulty\n@colour ink\n*/");
    test.skins.reportOn(&test.page);
    test.page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&test.page));
    test.page.LoadSkinsList();
    test.dialogs.expectTell(MessageBoxes::Icon::Exclamation,
        QStringLiteral("The skin could not be used.\nFaulty.skf, line 3: unknown keyword \"@colour\""));
    test.choose(QStringLiteral("Faulty"));
    test.press("btnSave");
    QVERIFY(QTest::qWaitFor([&] { return test.dialogs.allUsed(); }));
}

void TestSettingsSkins::anotherSkinIsWornOnlyWhenItIsSaved()
{
    SettingsPageUnderTest test;
    test.page.applySkin();
    const QColor aqua = windowColor();
    test.choose(QStringLiteral("Lemon"));
    QCOMPARE(windowColor(), aqua);
    test.press("btnSave");
    QVERIFY(windowColor() != aqua);
    QVERIFY(qApp->styleSheet().contains(windowColor().name()));
    QCOMPARE(test.record.skin, QStringLiteral("Lemon"));
}

void TestSettingsSkins::anUnchangedSkinIsNotLoadedBySaving()
{
    SettingsPageUnderTest test;
    const QColor before = windowColor();
    test.press("btnSave");
    QCOMPARE(windowColor(), before);
}

void TestSettingsSkins::choosingTheSameSkinAgainLoadsItOnSave()
{
    SettingsPageUnderTest test;
    const QColor before = windowColor();
    test.choose(test.cmbSkins()->currentText());
    test.press("btnSave");
    QVERIFY(windowColor() != before);
}

void TestSettingsSkins::theFlagIsClearedOnceTheSkinIsApplied()
{
    SettingsPageUnderTest test;
    test.choose(QStringLiteral("Lemon"));
    test.press("btnSave");
    writeText(test.folderOfSkins() + QStringLiteral("/Lemon.skf"), plainSkin("Lemon", "#010203"));
    test.press("btnSave");
    QVERIFY(windowColor() != QColor(1, 2, 3));
}

void TestSettingsSkins::fillingTheListIsNoChoice()
{
    SettingsPageUnderTest test;
    test.page.LoadSkinsList();
    test.record.skin = QStringLiteral("Lemon");
    test.page.LoadSettingsPage();
    const QColor before = windowColor();
    test.press("btnSave");
    QCOMPARE(windowColor(), before);
}

void TestSettingsSkins::applyingWearsTheSkinThatTheListShows()
{
    SettingsPageUnderTest test;
    writeText(test.folderOfSkins() + QStringLiteral("/Plain.skf"), plainSkin("Plain", "#010203"));
    test.page.LoadSkinsList();
    test.cmbSkins()->setCurrentText(QStringLiteral("Plain"));
    test.page.applySkin();
    QCOMPARE(windowColor(), QColor(1, 2, 3));
}

void TestSettingsSkins::aMissingSkinLeavesTheLookAndTheRestOfTheSaveGoesOn()
{
    SettingsPageUnderTest test;
    test.page.applySkin();
    const QColor before = windowColor();
    QVERIFY(QFile::remove(test.folderOfSkins() + QStringLiteral("/Lemon.skf")));
    test.choose(QStringLiteral("Lemon"));
    test.press("btnSave");
    QCOMPARE(windowColor(), before);
    QCOMPARE(test.host.calls.size(), 3);
    QCOMPARE(test.record.skin, QStringLiteral("Lemon"));
}

void TestSettingsSkins::addingCopiesTheFileAndSelectsTheFirstEntry()
{
    SettingsPageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(QStringLiteral("Zebra.skf"));
    writeText(file, plainSkin("Zebra"));
    test.cmbSkins()->setCurrentIndex(2);
    test.dialogs.expectOpen(file);
    test.dialogs.expectTell(MessageBoxes::Icon::Information, Added);
    test.press("btnBrowseNewSkin");
    QCOMPARE(contentOf(test.folderOfSkins() + QStringLiteral("/Zebra.skf")), contentOf(file));
    QVERIFY(test.cmbSkins()->findText(QStringLiteral("Zebra")) >= 0);
    QCOMPARE(test.cmbSkins()->currentIndex(), 0);
}

void TestSettingsSkins::anEndingInCapitalLettersIsAddedInSmallOnes()
{
    SettingsPageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(QStringLiteral("ZEBRA.SKF"));
    writeText(file, plainSkin("ZEBRA"));
    test.dialogs.expectOpen(file);
    test.dialogs.expectTell(MessageBoxes::Icon::Information, Added);
    test.press("btnBrowseNewSkin");
    QVERIFY(QFile::exists(test.folderOfSkins() + QStringLiteral("/ZEBRA.skf")));
    QVERIFY(test.cmbSkins()->findText(QStringLiteral("ZEBRA")) >= 0);
}

void TestSettingsSkins::theCheckerRestsWhileTheFileDialogIsOpen()
{
    SettingsPageUnderTest test;
    test.dialogs.expectOpen({}, [&](const FileDialogRequest& request) {
        QVERIFY(!test.checkerTimer.enabled);
        QCOMPARE(request.filter, QStringLiteral("Skin Files (*.skf)|*.skf"));
        QVERIFY(request.fileName.isEmpty());
        QVERIFY(request.fileMustExist);
    });
    test.press("btnBrowseNewSkin");
    QCOMPARE(test.checkerTimer.switches, QList<bool>({false, true}));
}

void TestSettingsSkins::addingAnswersOverAFileOfThatName()
{
    SettingsPageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(QStringLiteral("Aqua.skf"));
    writeText(file, plainSkin("Aqua", "#010203"));
    test.dialogs.expectOpen(file);
    test.dialogs.expectTell(MessageBoxes::Icon::Information, Added);
    test.press("btnBrowseNewSkin");
    QCOMPARE(contentOf(test.folderOfSkins() + QStringLiteral("/Aqua.skf")), contentOf(file));
    QCOMPARE(test.cmbSkins()->count(), 3);
}

void TestSettingsSkins::aCancelledDialogAddsNothing()
{
    SettingsPageUnderTest test;
    test.cmbSkins()->setCurrentIndex(1);
    test.dialogs.expectOpen({});
    test.press("btnBrowseNewSkin");
    QCOMPARE(test.cmbSkins()->count(), 3);
    QCOMPARE(test.cmbSkins()->currentIndex(), 1);
}

void TestSettingsSkins::aFileThatIsNoSkinIsRefusedBeforeTheCopy()
{
    SettingsPageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(QStringLiteral("Aqua.skf"));
    writeText(file, "no skin");
    const QByteArray before = contentOf(test.folderOfSkins() + QStringLiteral("/Aqua.skf"));
    test.dialogs.expectOpen(file);
    test.press("btnBrowseNewSkin");
    QCOMPARE(contentOf(test.folderOfSkins() + QStringLiteral("/Aqua.skf")), before);
    QCOMPARE(QDir(test.folderOfSkins()).entryList(QDir::Files | QDir::Hidden).size(), 3);
    QCOMPARE(test.said(),
        QStringLiteral("The skin was not added: Aqua.skf, line 1: the file does not begin with a comment "
                       "block"));
    test.dialogs.expectOpen({});
    test.page.findChild<QPushButton*>(QStringLiteral("btnBrowseNewSkin"))->click();
    QCOMPARE(test.said(), QString());
}

void TestSettingsSkins::anAddedSkinIsToldInTheLine()
{
    SettingsPageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(QStringLiteral("Zebra.skf"));
    writeText(file, plainSkin("Zebra"));
    test.dialogs.expectOpen(file);
    test.dialogs.expectTell(MessageBoxes::Icon::Information, Added);
    test.press("btnBrowseNewSkin");
    QCOMPARE(test.said(),
        QStringLiteral(
            "The skin \"Zebra\" was added; to wear it, choose it in the list and save the settings"));
}

void TestSettingsSkins::aFileThatIsNotNamedAfterItsSkinIsRefusedBeforeTheCopy_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("another name") << "stripes.skf";
    QTest::newRow("another letter case") << "zebra.skf";
    QTest::newRow("no ending") << "Zebra";
    QTest::newRow("another ending") << "Zebra.txt";
}

void TestSettingsSkins::aFileThatIsNotNamedAfterItsSkinIsRefusedBeforeTheCopy()
{
    QFETCH(const QString, fileName);
    SettingsPageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(fileName);
    writeText(file, plainSkin("Zebra"));
    test.cmbSkins()->setCurrentIndex(1);
    test.dialogs.expectOpen(file);
    test.press("btnBrowseNewSkin");
    QCOMPARE(QDir(test.folderOfSkins()).entryList(QDir::Files | QDir::Hidden).size(), 3);
    QCOMPARE(test.cmbSkins()->currentIndex(), 1);
    QCOMPARE(test.said(),
        QStringLiteral("The skin was not added: %1: the file has to be named \"Zebra.skf\", as its skin is")
            .arg(fileName));
}

void TestSettingsSkins::whatTheListShowsAfterAddingIsWornOnSave()
{
    SettingsPageUnderTest test;
    // Worn and stored is another one than the first of the list.
    const QString worn = test.cmbSkins()->itemText(1);
    test.choose(worn);
    test.press("btnSave");
    const QColor before = windowColor();
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath(QStringLiteral("Zebra.skf"));
    writeText(file, plainSkin("Zebra"));
    test.dialogs.expectOpen(file);
    test.dialogs.expectTell(MessageBoxes::Icon::Information, Added);
    test.press("btnBrowseNewSkin");
    QCOMPARE(windowColor(), before);
    const QString shown = test.cmbSkins()->currentText();
    QCOMPARE(test.cmbSkins()->currentIndex(), 0);
    test.press("btnSave");
    QCOMPARE(test.record.skin, shown);
    const QColor saved = windowColor();
    test.skins.wear(shown);
    QCOMPARE(saved, windowColor());
    QVERIFY(shown == worn || saved != before);
}

void TestSettingsSkins::theSkinInUseThatWasReplacedIsWornAnewOnSave()
{
    SettingsPageUnderTest test;
    const QTemporaryDir elsewhere;
    const QString first = test.cmbSkins()->itemText(0);
    test.choose(first);
    test.press("btnSave");
    const QString file = elsewhere.filePath(first + QStringLiteral(".skf"));
    writeText(file, plainSkin(first.toUtf8(), "#010203"));
    test.dialogs.expectOpen(file);
    test.dialogs.expectTell(MessageBoxes::Icon::Information, Added);
    test.press("btnBrowseNewSkin");
    test.choose(first);
    test.press("btnSave");
    QCOMPARE(windowColor(), QColor(1, 2, 3));
}

void TestSettingsSkins::theDownloadLinkOpensTheVendorsPage()
{
    SettingsPageUnderTest test;
    QTest::mouseClick(test.page.findChild<LinkLabel*>(QStringLiteral("lblDownloadSkins")), Qt::LeftButton);
    QCOMPARE(test.shell.pages, QStringList(QStringLiteral("/ambertask_skins.htm?referer=p")));
}

void TestSettingsSkins::theDownloadLinkIsPressedByKeyboardToo()
{
    SettingsPageUnderTest test;
    auto* link = test.page.findChild<LinkLabel*>(QStringLiteral("lblDownloadSkins"));
    // Once, however long it is held.
    for (const bool isRepeat : {false, true, true}) {
        QTest::simulateEvent(link, true, Qt::Key_Return, {}, QString(), isRepeat);
    }
    QCOMPARE(test.shell.pages.size(), 1);
}

AMBERTASK_TEST_MAIN(TestSettingsSkins)
#include "tst_settings_skins.moc"
