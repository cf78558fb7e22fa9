#include "app/drTasks.h"
#include "categories/frmCategoryDetails.h"
#include "help/frmAbout.h"
#include "help/window/CompiledHelpWindow.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "support/TestMain.h"
#include "tasks/frmRepeat.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/EveryWindow.h"
#include "tests/app/Fit.h"
#include "tests/app/Speaking.h"
#include "tests/app/WindowTexts.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/RecordedReportHost.h"
#include "widgets/ComboBox.h"
#include "widgets/GridView.h"
#include "widgets/MessageBoxes.h"
#include "widgets/ScreenErrorReport.h"
#include "widgets/ScreenProgress.h"
#include "widgets/WindowPlacement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QTabWidget>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

/// The program in a language, with a few tasks.
struct TranslatedProgram {
    explicit TranslatedProgram(const QString& language) : speaking(language)
    {
        const Moment now = f.database.clock().now();
        aTask(f.database).named(QStringLiteral("1")).withPeriority(0).remindingAt(now - 1min).add();
        aTask(f.database).named(QStringLiteral("2")).withStatus(4).withPeriority(2).add();
        aTask(f.database).named(QStringLiteral("3")).dueAt(now - 24h).withStatus(2).add();
        f.start();
        f.program.loadDialogs();
    }

    Speaking speaking;
    ProgramFixture f;
};

/// The texts that stand as they are in every language: names of the program, of categories and of skins, and
/// those of weekdays, which are the system's.
QStringList names()
{
    QStringList names{QStringLiteral("Ambertask"), QStringLiteral("Amber"), QStringLiteral("Organizer"),
        QStringLiteral("task"), QStringLiteral("Appointments"), QStringLiteral("Personal"),
        QStringLiteral("Shopping"), QStringLiteral("Work"), QStringLiteral("Aqua"),
        QStringLiteral("https://www.ambertask.example")};
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        names.append(QLocale().standaloneDayName(day));
    }
    return names;
}

/// The texts of a window that have not come through translation.
QStringList untranslated(QWidget& window)
{
    QStringList found;
    for (const QString& text : textsOf(window)) {
        const bool hasLetters =
            std::any_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.isLetter(); });
        if (hasLetters && !PseudoTranslator::isPseudo(text) && !names().contains(text)) {
            found.append(text);
        }
    }
    return found;
}

QStringList doubled(QStringList texts)
{
    QStringList found;
    texts.sort();
    for (qsizetype i = 1; i < texts.size(); ++i) {
        if (texts[i] == texts[i - 1]) {
            found.append(texts[i]);
        }
    }
    return found;
}

/// The keys that work something in a window, whatever page is in front.
QStringList keysOf(QWidget& window)
{
    QStringList keys;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        keys.append(button->shortcut().toString());
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        keys.append(QKeySequence::mnemonic(label->text()).toString());
    }
    for (const QGroupBox* frame : window.findChildren<QGroupBox*>()) {
        keys.append(QKeySequence::mnemonic(frame->title()).toString());
    }
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        keys.append(shortcut->key().toString());
    }
    keys.removeAll(QString());
    return keys;
}

QStringList withoutMnemonics(const QMenu& menu)
{
    QStringList found;
    for (const QAction* entry : menu.actions()) {
        if (!entry->isSeparator() && QKeySequence::mnemonic(entry->text()).isEmpty()) {
            found.append(entry->text());
        }
    }
    return found;
}

QStringList faultsOf(QWidget& window, const QString& language)
{
    settleWindows();
    QStringList faults = misfits(window) + cutOffTexts(window);
    if (language == Pseudo) {
        for (const QString& text : untranslated(window)) {
            faults.append(QStringLiteral("not translated: \"%1\"").arg(text));
        }
        return faults;
    }
    for (const QString& letter : doubled(mnemonicsOf(window))) {
        faults.append(QStringLiteral("two mnemonics \"%1\"").arg(letter));
    }
    return faults;
}

/// Runs `open`, which shows a box, and looks at the box.
QStringList faultsOfBox(const QString& language, const std::function<void()>& open)
{
    QStringList faults{QStringLiteral("no box")};
    QTimer::singleShot(0, qApp, [&] {
        if (QWidget* box = QApplication::activeModalWidget()) {
            faults = faultsOf(*box, language);
            box->close();
        }
    });
    open();
    return faults;
}

} // namespace

#define EXPECT_GOOD(window, language)                                                                        \
    do {                                                                                                     \
        const QStringList faults = faultsOf(window, language);                                               \
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));                                          \
    } while (false)

class TranslatedWindowsTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void theMadeUpLanguageIsTwiceAsLongAndKeepsWhatTheProgramNeeds();
    void aTextThatIsCutOffIsFound();
    void aTextThatIsNotTranslatedIsFound();
    void aMnemonicThatServesTwoControlsIsFound();
    void theDirectionOfReadingFollowsTheLanguage();

    void everyWindowFitsASmallScreen_data() { languages(); }
    void everyWindowFitsASmallScreen();
    void thePagesAreGood_data() { languages(); }
    void thePagesAreGood();
    void theTaskDialogIsGood_data() { languages(); }
    void theTaskDialogIsGood();
    void theWindowForRepeatsIsGood_data() { languages(); }
    void theWindowForRepeatsIsGood();
    void theCategoryDialogIsGood_data() { languages(); }
    void theCategoryDialogIsGood();
    void theAlertIsGood_data() { languages(); }
    void theAlertIsGood();
    void noKeyOfTheAlertDoesAnotherThingInTheMainWindow_data() { languages(); }
    void noKeyOfTheAlertDoesAnotherThingInTheMainWindow();
    void theAboutBoxIsGood_data() { languages(); }
    void theAboutBoxIsGood();
    void theTrayMenuIsGood_data() { languages(); }
    void theTrayMenuIsGood();
    void theMenusOfTheListsAreGood_data() { languages(); }
    void theMenusOfTheListsAreGood();
    void boxesAreGood_data() { languages(); }
    void boxesAreGood();
    void theHelpIsGood_data() { languages(); }
    void theHelpIsGood();
    void theReportIsGood_data() { languages(); }
    void theReportIsGood();

private:
    static void languages();
};

void TranslatedWindowsTest::languages()
{
    QTest::addColumn<QString>("language");
#ifdef __SANITIZE_ADDRESS__
    // The sanitizers take five times as long, and see no words: one language from either side.
    QTest::newRow("ar") << QStringLiteral("ar");
#else
    QTest::newRow("en") << QString();
    for (const QString& name : Language::shipped()) {
        QTest::newRow(qPrintable(name)) << name;
    }
#endif
    QTest::newRow(qPrintable(Pseudo)) << Pseudo;
}

void TranslatedWindowsTest::initTestCase()
{
    // The smallest screen on which the program has to be usable.
    QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(1024, 640));
}

void TranslatedWindowsTest::theMadeUpLanguageIsTwiceAsLongAndKeepsWhatTheProgramNeeds()
{
    const PseudoTranslator pseudo;
    const auto say = [&pseudo](const char* text) {
        return pseudo.translate("frmMain", text, nullptr, -1);
    };
    QCOMPARE(say("&Help"), QStringLiteral("[&H\u00e9\u013cp \u0124\u00e9\u013cp]"));
    QCOMPARE(say("Page %1"), QStringLiteral("[P\u00e1\u0121\u00e9 %1 P\u00e1\u0121\u00e9 ]"));
    QVERIFY(say("Skin Files (*.skf)|*.skf").endsWith(QLatin1String("] (*.skf)|*.skf")));
    QVERIFY(PseudoTranslator::isPseudo(say("Help")));
}

void TranslatedWindowsTest::aTextThatIsCutOffIsFound()
{
    QWidget window;
    auto* label = new QLabel(QStringLiteral("A label"), &window);
    auto* button = new QPushButton(QStringLiteral("A button"), &window);
    auto* option = new QRadioButton(QStringLiteral("An option"), &window);
    auto* list = new QComboBox(&window);
    list->addItem(QStringLiteral("An entry"));
    const QList<QWidget*> controls{label, button, option, list};
    for (QWidget* control : controls) {
        control->resize(control->sizeHint());
    }
    QCOMPARE(cutOffTexts(window), QStringList());
    for (QWidget* control : controls) {
        control->resize(control->width() * 2 / 3, control->height());
    }
    QCOMPARE(cutOffTexts(window).size(), 4);
}

void TranslatedWindowsTest::aTextThatIsNotTranslatedIsFound()
{
    QWidget window;
    auto* label = new QLabel(QStringLiteral("[L\u00e1bel]"), &window);
    QCOMPARE(untranslated(window), QStringList());
    label->setToolTip(QStringLiteral("Tip"));
    label->setAccessibleName(QStringLiteral("Name"));
    QCOMPARE(untranslated(window), QStringList({QStringLiteral("Tip"), QStringLiteral("Name")}));
}

void TranslatedWindowsTest::aMnemonicThatServesTwoControlsIsFound()
{
    QWidget window;
    new QPushButton(QStringLiteral("&One"), &window);
    new QLabel(QStringLiteral("Tw&o"), &window);
    new QLabel(QStringLiteral("&Three"), &window);
    QCOMPARE(doubled(mnemonicsOf(window)), QStringList{QStringLiteral("o")});
}

void TranslatedWindowsTest::theDirectionOfReadingFollowsTheLanguage()
{
    {
        const Speaking arabic(QStringLiteral("ar"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    }
    const Speaking german(QStringLiteral("de"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TranslatedWindowsTest::everyWindowFitsASmallScreen()
{
    QFETCH(const QString, language);
    const Speaking speaking(language);
    SkinnedProgram program(QStringLiteral("Aqua"));
    int seen = 0;
    QStringList faults;
    visitEveryWindow(program, [&](const QString& name, QWidget& window) {
        ++seen;
        for (const QString& fault : misfits(window) + cutOffTexts(window)) {
            faults.append(name + QLatin1String(": ") + fault);
        }
    });
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    QCOMPARE(seen, 34);
}

void TranslatedWindowsTest::thePagesAreGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    t.f.control<QRadioButton>(t.f.main(), "opnSpecificDate")->click();
    auto* tabs = t.f.control<QTabWidget>(t.f.main(), "tabMain");
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        EXPECT_GOOD(t.f.main(), language);
    }
}

void TranslatedWindowsTest::theTaskDialogIsGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    t.f.press(t.f.main(), "btnTaskAdd");
    EXPECT_GOOD(t.f.program.taskDetails(), language);
}

void TranslatedWindowsTest::theWindowForRepeatsIsGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    t.f.press(t.f.main(), "btnTaskAdd");
    auto* repeats = t.f.control<ComboBox>(t.f.program.taskDetails(), "cmbRepeat");
    repeats->choose(repeats->count() - 1);
    EXPECT_GOOD(*openWindow<frmRepeat>(), language);
}

void TranslatedWindowsTest::theCategoryDialogIsGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    t.f.press(t.f.main(), "btnAddCat");
    EXPECT_GOOD(t.f.program.categoryDetails(), language);
}

void TranslatedWindowsTest::theAlertIsGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    frmAlerts& alert = t.f.program.alerts();
    QVERIFY(alert.isVisible());
    EXPECT_GOOD(alert, language);
    auto* usualMoments = alert.findChild<QMenu*>();
    QVERIFY(usualMoments != nullptr);
    usualMoments->popup(QPoint(10, 10));
    EXPECT_GOOD(*usualMoments, language);
    usualMoments->close();
}

void TranslatedWindowsTest::noKeyOfTheAlertDoesAnotherThingInTheMainWindow()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    const QStringList keysOfAlert = keysOf(t.f.program.alerts());
    QStringList keysOfMain = keysOf(t.f.main());
    QVERIFY(keysOfAlert.size() > 5);
    QVERIFY(keysOfMain.size() > 40);
    // Both open the help.
    QVERIFY(keysOfMain.removeOne(QStringLiteral("F1")));
    for (const QString& key : keysOfAlert) {
        QVERIFY2(!keysOfMain.contains(key), qPrintable(key));
    }
}

void TranslatedWindowsTest::theAboutBoxIsGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    t.f.menu("mnuAbout")->trigger();
    auto* about = openWindow<frmAbout>();
    QVERIFY(about != nullptr);
    EXPECT_GOOD(*about, language);
}

void TranslatedWindowsTest::theTrayMenuIsGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    auto* menu = t.f.main().findChild<QMenu*>(QStringLiteral("mnuTray"));
    menu->popup(QPoint(10, 10));
    EXPECT_GOOD(*menu, language);
    menu->close();
}

void TranslatedWindowsTest::theMenusOfTheListsAreGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    for (GridView* list : {t.f.grid(t.f.main()), t.f.grid(t.f.program.alerts())}) {
        list->selectOnly(0);
        emit list->menuRequested(QPoint(10, 10));
        for (QMenu* menu : list->findChildren<QMenu*>()) {
            menu->popup(QPoint(10, 10));
            EXPECT_GOOD(*menu, language);
            // A user's category has the caption that the user wrote.
            if (menu->menuAction()->objectName() != QLatin1String("mnuListCategory")) {
                QCOMPARE(withoutMnemonics(*menu), QStringList());
            }
            menu->close();
        }
    }
}

void TranslatedWindowsTest::boxesAreGood()
{
    QFETCH(const QString, language);
    const Speaking speaking(language);
    ScreenMessageBoxes boxes;
    ScreenErrorReport errors([] {});
    const QString text = QStringLiteral("[1]");
    QCOMPARE(faultsOfBox(language, [&] { boxes.ask(nullptr, text); }), QStringList());
    QCOMPARE(faultsOfBox(language, [&] { boxes.askAboutUnsaved(nullptr, text); }), QStringList());
    QCOMPARE(faultsOfBox(language, [&] { boxes.askWhichTimes(nullptr, text); }), QStringList());
    QCOMPARE(faultsOfBox(language, [&] { boxes.tell(nullptr, MessageBoxes::Icon::Information, text); }),
        QStringList());
    QCOMPARE(faultsOfBox(language, [&] { errors.report(text); }), QStringList());
    QCOMPARE(faultsOfBox(language, [&] { ScreenErrorReport::reportFailedStart(text); }), QStringList());
    ScreenProgress progress(nullptr, text, std::chrono::milliseconds(0));
    QVERIFY_THROWS_EXCEPTION(Cancelled, progress.run([&](Progress& work) {
        QCOMPARE(faultsOfBox(language, [&] { work.advance(1, 2); }), QStringList());
        work.advance(2, 2);
    }));
}

void TranslatedWindowsTest::theHelpIsGood()
{
    QFETCH(const QString, language);
    const Speaking speaking(language);
    RecordedHelpHost host;
    CompiledHelpWindow window(host, [] { return false; });
    window.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
    window.setWindowTitle({}); // the manual's own
    showOwned(&window, nullptr);
    window.showContents();
    EXPECT_GOOD(window, language);
    window.showIndex();
    EXPECT_GOOD(window, language);
    window.showSearch();
    EXPECT_GOOD(window, language);
}

void TranslatedWindowsTest::theReportIsGood()
{
    QFETCH(const QString, language);
    TranslatedProgram t(language);
    RecordedReportHost host;
    PreviewWindow window(host, [] { return false; });
    t.f.press(t.f.main(), "btnTaskPrint");
    QVERIFY(t.f.reportWindow != nullptr);
    ReportContent content = t.f.reportWindow->content;
    for (const ReportSection& section : content.sections) {
        for (const ReportControl& label : section.controls) {
            QVERIFY2(!label.caption.isRightToLeft(), qPrintable(label.caption));
        }
    }
    if (language == Pseudo) {
        QVERIFY(PseudoTranslator::isPseudo(content.caption));
        for (const ReportSection& section : content.sections) {
            for (const ReportControl& label : section.controls) {
                QVERIFY2(label.caption.isEmpty() || names().contains(label.caption)
                        || PseudoTranslator::isPseudo(label.caption),
                    qPrintable(label.caption));
            }
        }
    }
    window.setContent(std::move(content));
    showOwned(&window, nullptr);
    EXPECT_GOOD(window, language);
}

AMBERTASK_TEST_MAIN(TranslatedWindowsTest)
#include "tst_translated_windows.moc"
