#include "support/TestMain.h"
#include "tests/translations/Catalogue.h"
#include "tests/translations/SourceTexts.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace
{

const QLatin1String Translations(AMBERTASK_TRANSLATIONS);

Message message(const QString& source, const QString& translation)
{
    Message made;
    made.context = QStringLiteral("frmMain");
    made.source = source;
    made.forms.append(translation);
    return made;
}

} // namespace

class CataloguesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aGoodTranslationHasNoFaults_data();
    void aGoodTranslationHasNoFaults();
    void aFaultIsFound_data();
    void aFaultIsFound();
    void aPluralFormThatIsMissingIsFound();

    void aSentenceOutsideOfTranslationIsFound_data();
    void aSentenceOutsideOfTranslationIsFound();
    void noSentenceOfTheProgramStandsOutsideOfTranslation();
    void theLanguagesShip();
    void everyTextOfTheProgramIsTranslated_data() { languages(); }
    void everyTextOfTheProgramIsTranslated();
    void theTranslationsKeepWhatTheTextsHold_data() { languages(); }
    void theTranslationsKeepWhatTheTextsHold();

private:
    static void languages();
    static QStringList names();
    static QString fileOf(const QString& language)
    {
        return Translations + QStringLiteral("/ambertask_%1.ts").arg(language);
    }
};

QStringList CataloguesTest::names()
{
    QStringList names;
    for (const QString& file : QDir(Translations).entryList({QStringLiteral("ambertask_*.ts")})) {
        names.append(file.section(u'.', 0, 0).section(u'_', 1));
    }
    return names;
}

void CataloguesTest::languages()
{
    QTest::addColumn<QString>("language");
    for (const QString& name : names()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void CataloguesTest::aGoodTranslationHasNoFaults_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::newRow("mnemonic elsewhere") << "de"
                                        << "&Help"
                                        << "H&ilfe";
    QTest::newRow("real ellipsis") << "de"
                                   << "&Browse..." << QStringLiteral("D&urchsuchen\u2026");
    QTest::newRow("markers turned around") << "de"
                                           << "%1 of %2"
                                           << "von %2 %1";
    QTest::newRow("French blanks") << "fr"
                                   << "Really?" << QStringLiteral("Vraiment\u202f?");
    QTest::newRow("Spanish marks") << "es"
                                   << "Really?" << QStringLiteral("\u00bfSeguro?");
    QTest::newRow("Chinese suffix") << "zh_CN"
                                    << "&Date:" << QStringLiteral("\u65e5\u671f(&D)\uff1a");
    QTest::newRow("filter") << "de"
                            << "Skin Files (*.skf)|*.skf"
                            << "Skin-Dateien (*.skf)|*.skf";
}

void CataloguesTest::aGoodTranslationHasNoFaults()
{
    QFETCH(const QString, language);
    QFETCH(const QString, source);
    QFETCH(const QString, translation);
    QCOMPARE(faultsOf(message(source, translation), language), QStringList());
}

void CataloguesTest::aFaultIsFound_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::newRow("untranslated") << "de"
                                  << "Help"
                                  << "";
    QTest::newRow("lost marker") << "de"
                                 << "Page %1 of %2"
                                 << "Seite %1";
    QTest::newRow("foreign marker") << "de"
                                    << "Page %1"
                                    << "Seite %1 von %2";
    QTest::newRow("lost mnemonic") << "de"
                                   << "&Help"
                                   << "Hilfe";
    QTest::newRow("second mnemonic") << "de"
                                     << "&Help"
                                     << "&Hi&lfe";
    QTest::newRow("mnemonic from nowhere") << "de"
                                           << "Help"
                                           << "&Hilfe";
    QTest::newRow("lost ellipsis") << "de"
                                   << "Browse..."
                                   << "Durchsuchen";
    QTest::newRow("three points") << "de"
                                  << "Browse..."
                                  << "Durchsuchen...";
    QTest::newRow("lost colon") << "de"
                                << "Date:"
                                << "Datum";
    QTest::newRow("lost full stop") << "de"
                                    << "Please select category."
                                    << "Bitte eine Kategorie";
    QTest::newRow("lost line break") << "de"
                                     << "One\ntwo"
                                     << "Eins zwei";
    QTest::newRow("lost blank") << "de"
                                << " of %1"
                                << "von %1";
    QTest::newRow("changed pattern") << "de"
                                     << "Skins (*.skf)|*.skf"
                                     << "Skins (*.skf)|*.skin";
    QTest::newRow("English quotes") << "de"
                                    << "no \"%1\""
                                    << "kein \"%1\"";
    QTest::newRow("French blank") << "fr"
                                  << "Really?"
                                  << "Vraiment ?";
    QTest::newRow("Spanish mark") << "es"
                                  << "Really?"
                                  << "Seguro?";
    QTest::newRow("narrow Chinese mark") << "zh_CN"
                                         << "Really?" << QStringLiteral("\u786e\u5b9a?");
    QTest::newRow("Chinese mnemonic") << "zh_CN"
                                      << "&Help" << QStringLiteral("&\u5e2e\u52a9");
    QTest::newRow("Arabic mark") << "ar"
                                 << "Really?" << QStringLiteral("\u062d\u0642\u0627?");
}

void CataloguesTest::aFaultIsFound()
{
    QFETCH(const QString, language);
    QFETCH(const QString, source);
    QFETCH(const QString, translation);
    QVERIFY(!faultsOf(message(source, translation), language).isEmpty());
}

void CataloguesTest::aPluralFormThatIsMissingIsFound()
{
    Message counted = message(QStringLiteral("%n Reminders"), QStringLiteral("%n Erinnerung"));
    counted.hasNumber = true;
    counted.forms.append(QStringLiteral("%n Erinnerungen"));
    QCOMPARE(faultsOf(counted, QStringLiteral("de")), QStringList());
    counted.forms.last().clear();
    QCOMPARE(faultsOf(counted, QStringLiteral("de")).size(), 1);
    counted.forms.last() = QStringLiteral("Erinnerungen");
    QCOMPARE(faultsOf(counted, QStringLiteral("de")).size(), 1);
}

void CataloguesTest::aSentenceOutsideOfTranslationIsFound_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("found");
    const auto row = [](const char* name, const char* code, const QStringList& found = {}) {
        QTest::newRow(name) << QString::fromLatin1(code) << found;
    };
    row("outside", "show(QStringLiteral(\"The file is gone.\"));", {QStringLiteral("The file is gone.")});
    row("in two pieces", "show(\"The file \"\n    \"is gone.\");", {QStringLiteral("The file is gone.")});
    row("translated", "show(tr(\"The file is gone.\"));");
    row("in two pieces, translated", "show(tr(\"The file \"\n    \"is gone.\"));");
    row("of another context", "translate(\"frmMain\", \"The file is gone.\")");
    row("marked", "QT_TRANSLATE_NOOP(\"frmMain\", \"The file is gone.\")");
    row("in a comment", "// The \"file is gone\".\n/* \"It is gone\" */");
    row("with words of a statement", "ask(\"Are you sure you want to delete this task?\");",
        {QStringLiteral("Are you sure you want to delete this task?")});
    row("like a statement",
        "tell(\"Select a category.\") + \"Update the list now\" + \"select a file from the list\"",
        {QStringLiteral("Select a category."), QStringLiteral("Update the list now"),
            QStringLiteral("select a file from the list")});
    row("with a brace or a low line", "tell(\"The file {1} is gone\", \"my_file is gone\")",
        {QStringLiteral("The file {1} is gone"), QStringLiteral("my_file is gone")});
    row("in capitals", "setWindowTitle(QStringLiteral(\"Tasks Report\"));", {QStringLiteral("Tasks Report")});
    row("caption of one word", "close->setText(QStringLiteral(\"Close\")); new QLabel(\"Name\", this)",
        {QStringLiteral("Close"), QStringLiteral("Name")});
    row("name of a control", "close->setObjectName(QStringLiteral(\"btnClose\"));");
    row("statement", "execute(\"delete from tasks\"); execute(\"select * from tasks where task_id = \")");
    row("statement of the system",
        "execute(\"Update categories set cat_name = '\" + name + \"'  where cat_id =  \")");
    row("end of a statement", "text += \"# and task_due_date <= #\"; text += \" order by task_name\";");
    row("condition of statements", "Due(\"reminder_date_time <= now() and dismissed =0\")");
    row("style rule", "setStyleSheet(\"QLabel { border: 1px solid black; }\")");
}

void CataloguesTest::aSentenceOutsideOfTranslationIsFound()
{
    QFETCH(const QString, code);
    QTEST(untranslatedSentences(code), "found");
}

void CataloguesTest::noSentenceOfTheProgramStandsOutsideOfTranslation()
{
    // The program's name, key of a column, folder, name of a copy, mark of a file format, connection, session
    // entry, keys of the registry, what plays a sound on Windows; mark, titles and words of the files of
    // other programs.
    const QStringList names{QStringLiteral("Ambertask"), QStringLiteral("due date"),
        QStringLiteral("/custom icons"), QStringLiteral("first change"), QStringLiteral("SQLite format 3\\0"),
        QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= "),
        QStringLiteral("[Desktop Entry]\\nType=Application\\nVersion=1.0\\nName=%1\\nExec=%2\\nTryExec=%3\\n"
                       "Terminal=false\\n"),
        QStringLiteral("SOFTWARE\\\\Microsoft\\\\Shared Tools\\\\MSINFO"),
        QStringLiteral("SOFTWARE\\\\Microsoft\\\\Shared Tools Location"),
        QStringLiteral("open \\\"%1\\\" type waveaudio alias %2"), QStringLiteral("Osmo PIM"),
        QStringLiteral("Reminder time"), QStringLiteral("reminder on/off"), QStringLiteral("reminder date"),
        QStringLiteral("Not Started"), QStringLiteral("In Progress"),
        QStringLiteral("Waiting on someone else"), QStringLiteral("to do"), QStringLiteral("on hold")};
    QStringList faults;
    int files = 0;
    QDirIterator sources(QStringLiteral(AMBERTASK_SOURCES), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
        QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile source(sources.next());
        QVERIFY(source.open(QIODevice::ReadOnly));
        ++files;
        for (const QString& text : untranslatedSentences(QString::fromUtf8(source.readAll()))) {
            if (!names.contains(text)) {
                faults.append(source.fileName() + QStringLiteral(": ") + text);
            }
        }
    }
    QVERIFY(files > 100);
    QVERIFY2(faults.isEmpty(),
        qPrintable(QStringLiteral("Let these go through tr():\n%1").arg(faults.join(u'\n'))));
}

void CataloguesTest::theLanguagesShip()
{
    const QStringList shipped = names();
    for (const char* language : {"ar", "de", "es", "fr", "zh_CN"}) {
        QVERIFY2(shipped.contains(QLatin1String(language)), language);
    }
}

void CataloguesTest::everyTextOfTheProgramIsTranslated()
{
    QFETCH(const QString, language);
    // What an update would make of the file, without making it.
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(fileOf(language)).fileName());
    QVERIFY(QFile::copy(fileOf(language), copy));
    QProcess update;
    update.start(QStringLiteral(AMBERTASK_LUPDATE),
        {QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"),
            QStringLiteral(AMBERTASK_SOURCES), QStringLiteral("-ts"), copy});
    QVERIFY(update.waitForFinished());
    QCOMPARE(update.exitCode(), 0);

    QStringList faults;
    const QList<Message> messages = messagesOf(copy);
    QVERIFY(messages.size() > 300);
    for (const Message& text : messages) {
        const QString name = QStringLiteral("%1: \"%2\"").arg(text.context, text.source);
        if (text.isVanished) {
            faults.append(name + QStringLiteral(" is in the file, but no longer in the program"));
        } else if (!text.isFinished || text.forms.isEmpty() || text.forms.contains(QString())) {
            faults.append(name + QStringLiteral(" is not translated"));
        }
    }
    QVERIFY2(faults.isEmpty(),
        qPrintable(QStringLiteral("Run script/translations and translate what is unfinished in %1:\n%2")
                       .arg(fileOf(language), faults.join(u'\n'))));
}

void CataloguesTest::theTranslationsKeepWhatTheTextsHold()
{
    QFETCH(const QString, language);
    QStringList faults;
    for (const Message& text : messagesOf(fileOf(language))) {
        faults += faultsOf(text, language);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

AMBERTASK_TEST_MAIN(CataloguesTest)
#include "tst_catalogues.moc"
