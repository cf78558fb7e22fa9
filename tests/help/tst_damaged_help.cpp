#include "help/window/CompiledHelpWindow.h"
#include "help/window/HelpBook.h"
#include "help/window/TopicView.h"
#include "support/TestMain.h"
#include "tests/help/HelpFileOf.h"
#include "tests/help/RecordedHelpHost.h"

#include <QLabel>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QtEndian>

/// Files that are no help files, or no longer. Nothing here may crash, hang or take memory without bounds.
class DamagedHelpTest : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QByteArray m_good;
    int m_opened = 0;
    int m_shown = 0;

    QString file(const QByteArray& bytes, const QString& name = QStringLiteral("damaged.chm"))
    {
        QFile written(m_folder.filePath(name));
        return written.open(QIODevice::WriteOnly) && written.write(bytes) == bytes.size() ? written.fileName()
                                                                                          : QString();
    }

    /// Reads all that there is to read.
    void readAll(const QByteArray& bytes)
    {
        const auto book = HelpBook::open(file(bytes));
        if (book == nullptr) {
            return;
        }
        ++m_opened;
        for (const QString& name : book->file().names()) {
            const auto object = book->file().read(name);
            QVERIFY(!object || object->size() <= CompiledHelpFile::LargestObject);
        }
        // Every topic becomes a document then, which takes longest.
        if (m_opened % 100 == 0) {
            book->find(QStringLiteral("reminder"));
            showAll();
        }
    }

    /// Shows contents, index and every topic of the file that was read last.
    void showAll()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.setFile(m_folder.filePath(QStringLiteral("damaged.chm")));
        window.show();
        window.showContents();
        window.showIndex();
        auto& topic = *window.findChild<TopicView*>();
        const auto book = HelpBook::open(m_folder.filePath(QStringLiteral("damaged.chm")));
        QVERIFY(book != nullptr);
        for (const QString& name : book->topics()) {
            topic.openTopic(name);
            topic.grab();
        }
        ++m_shown;
    }

    static QString shownText(const CompiledHelpWindow& window)
    {
        return window.findChild<QTextBrowser*>(QStringLiteral("txtTopic"))->toPlainText();
    }

private slots:
    void initTestCase()
    {
        QFile good(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(good.open(QIODevice::ReadOnly));
        m_good = good.readAll();
        QVERIFY(m_good.size() > 10000);
    }

    void aFileThatWasCutOffAnywhereDoesNoHarm()
    {
        m_opened = 0;
        for (qsizetype size = 0; size < m_good.size(); size += size < 600 ? 1 : 611) {
            readAll(m_good.left(size));
        }
        QVERIFY(m_opened > 0);
        readAll(m_good);
    }

    void flippedBitsDoNoHarm()
    {
        QRandomGenerator random(20240229);
        constexpr int Files = 600;
        // The headers and the directory are where a flipped bit does most.
        constexpr int DirectoryEnd = 0x78 + 0x54 + 0x1000;
        for (int number = 0; number < Files; ++number) {
            QByteArray bytes = m_good;
            const int end = number % 4 == 0 ? static_cast<int>(bytes.size()) : DirectoryEnd;
            for (int flips = 1 + number % 5; flips > 0; --flips) {
                char& byte = bytes[random.bounded(end)];
                byte = static_cast<char>(byte ^ (1 << random.bounded(8)));
            }
            readAll(bytes);
        }
    }

    void everyFlippedByteOfTheHeadersAndTheDirectoryDoesNoHarm()
    {
        const qsizetype firstEntry = 0x78 + 0x54 + 0x14;
        const qsizetype lastName = m_good.lastIndexOf("/welcome.html", firstEntry + 0x1000);
        QVERIFY(lastName > firstEntry);
        int files = 0;
        for (qsizetype offset = 0; offset < lastName + 20; ++offset) {
            QByteArray bytes = m_good;
            bytes[offset] = static_cast<char>(bytes[offset] ^ (offset % 2 == 0 ? 0xff : 0x80));
            readAll(bytes);
            ++files;
        }
        QVERIFY(files > 1000);
    }

    void flippedBytesOfTheTablesDoNoHarm()
    {
        m_shown = 0;
        // Title, contexts, contents and index: what the window shows before any topic.
        const qsizetype content = 0x78 + 0x54 + 0x1000;
        for (qsizetype offset = content; offset < content + 1400; ++offset) {
            QByteArray bytes = m_good;
            bytes[offset] = static_cast<char>(bytes[offset] ^ 0xff);
            readAll(bytes);
        }
        for (qsizetype offset = content + 1400; offset < m_good.size(); offset += 997) {
            QByteArray bytes = m_good;
            bytes[offset] = static_cast<char>(bytes[offset] ^ 0xff);
            readAll(bytes);
        }
        QVERIFY2(m_shown >= 10, qPrintable(QString::number(m_shown)));
    }

    void numbersOfTheHeaderThatAreTooLargeDoNoHarm()
    {
        for (qsizetype offset = 0; offset + 4 <= 0x78 + 0x54; offset += 4) {
            for (const quint32 number : {0U, 0x7fffffffU, 0x80000000U, 0xffffffffU}) {
                QByteArray bytes = m_good;
                qToLittleEndian(number, bytes.data() + offset);
                readAll(bytes);
            }
        }
    }

    void anObjectThatClaimsToBeHugeIsNotRead()
    {
        // The entry of the style sheet: section 0, then offset and length as numbers of seven bits a byte.
        QByteArray bytes = m_good;
        const qsizetype name = bytes.indexOf("/help.css");
        QVERIFY(name > 0);
        qsizetype length = name + 9 + 1;
        while ((bytes[length] & 0x80) != 0) {
            ++length;
        }
        ++length;
        QVERIFY((bytes[length] & 0x80) != 0);
        QVERIFY((bytes[length + 1] & 0x80) == 0);
        const auto before = CompiledHelpFile::open(file(bytes));
        QVERIFY(before->read(QStringLiteral("/help.css")).has_value());
        // The rest of the directory falls away, so the number may grow over it.
        bytes.replace(length, 6, "\xff\xff\xff\xff\xff\x7f");
        const auto after = CompiledHelpFile::open(file(bytes));
        QVERIFY(after != nullptr);
        QVERIFY(!after->read(QStringLiteral("/help.css")).has_value());
    }

    void whatIsNoHelpFileIsNotOpened_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("This is no help file.").repeated(100);
        QTest::newRow("zeros") << QByteArray(100000, '\0');
        QTest::newRow("only the signature") << QByteArray("ITSF");
    }

    void whatIsNoHelpFileIsNotOpened()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(HelpBook::open(file(bytes)) == nullptr);
    }

    void foldersAndMissingFilesAreNotOpened()
    {
        QVERIFY(HelpBook::open(m_folder.path()) == nullptr);
        QVERIFY(HelpBook::open(m_folder.filePath(QStringLiteral("missing.chm"))) == nullptr);
        QVERIFY(HelpBook::open(QString()) == nullptr);
    }

    void aHugeFileIsNotOpened()
    {
        const QString path = file(m_good);
        QVERIFY(QFile::resize(path, CompiledHelpFile::LargestFile + 1));
        QVERIFY(HelpBook::open(path) == nullptr);
    }

    void theWindowSaysThatTheFileIsMissing()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.setFile(m_folder.filePath(QStringLiteral("no<b>where.chm")));
        window.showContents();
        window.show();
        QVERIFY(
            shownText(window).contains(QLatin1String("\"no<b>where.chm\" is not in the program's folder")));
        for (const auto show :
            {&HelpWindow::showDefaultTopic, &HelpWindow::showIndex, &HelpWindow::showSearch}) {
            (window.*show)();
            QVERIFY(shownText(window).contains(QLatin1String("The help cannot be shown")));
        }
        window.showContext(0);
        QVERIFY(shownText(window).contains(QLatin1String("The help cannot be shown")));
    }

    void theWindowSaysThatTheFileIsDamaged()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.setFile(file(m_good.left(100)));
        window.showContext(1);
        QVERIFY(shownText(window).contains(QLatin1String("\"damaged.chm\" is damaged")));
    }

    void whatCannotBeUsedWithoutAFileIsDisabledOrHidden()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.setFile(file("no help file"));
        window.showContents();
        window.show();
        QVERIFY(!window.findChild<QWidget*>(QStringLiteral("tabHelp"))->isVisible());
        for (const char* button : {"btnHome", "btnBack", "btnForward"}) {
            QVERIFY2(!window.findChild<QWidget*>(QLatin1String(button))->isEnabled(), button);
        }
    }

    void aFileThatIsPutBackIsShownByTheNextCall()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        const QString path = file("no help file");
        window.setFile(path);
        window.showContext(2);
        QVERIFY(shownText(window).contains(QLatin1String("damaged")));
        QCOMPARE(file(m_good), path);
        window.setFile(path);
        window.showContext(2);
        QVERIFY(shownText(window).contains(QLatin1String("The page Settings")));
    }

    void contentsThatCannotBeReadAreToldAndTheTopicsStayReadable_data()
    {
        QTest::addColumn<QByteArray>("object");
        for (const char* object : {"/toc.hhc", "/#IVB", "/#STRINGS", "/#SYSTEM"}) {
            QTest::newRow(object) << QByteArray(object);
        }
    }

    void contentsThatCannotBeReadAreToldAndTheTopicsStayReadable()
    {
        QFETCH(const QByteArray, object);
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        window.show();
        const auto* told = window.findChild<QLabel*>(QStringLiteral("lblDamaged"));
        // Behind the first object every offset in the directory takes three bytes.
        QByteArray bytes =
            helpFileOf({{"/filling", QByteArray(20000, ' ')}, {"/#IVB", helpContexts({{1, 1}})},
                {"/#STRINGS", QByteArray("\0a.html\0", 8)}, {"/toc.hhc", "<UL></UL>"},
                {"/#SYSTEM", helpSystem("a.html", "toc.hhc")}, {"/a.html", helpTopic("whole")}});
        window.setFile(file(bytes));
        window.showContents();
        QVERIFY(!told->isVisible());
        // A name, section 0, then the offset: it comes to lie far behind the end.
        const qsizetype offset = bytes.indexOf(object + '\0') + object.size() + 1;
        QVERIFY(offset > object.size() && bytes[offset] == '\x81');
        bytes[offset] = '\xff';
        window.setFile(file(bytes, QStringLiteral("other.chm")));
        window.showDefaultTopic();
        QVERIFY(told->isVisible());
        QVERIFY(told->text().contains(QLatin1String("\"other.chm\" is damaged")));
        QCOMPARE(shownText(window), QStringLiteral("whole"));
    }

    void aTopicWhoseLettersNoFontHasIsShown()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        // A flipped bit of a letter makes one of any script, here a Syriac one.
        window.setFile(file(helpFileOf({{"/#IVB", helpContexts({{1, 1}})},
            {"/#STRINGS", QByteArray("\0a.html\0", 8)}, {"/toc.hhc", "<UL></UL>"},
            {"/#SYSTEM", helpSystem("a.html", "toc.hhc")}, {"/a.html", helpTopic("\xdc\x90")}})));
        window.show();
        window.showDefaultTopic();
        window.grab();
        QCOMPARE(shownText(window), QStringLiteral("\u0710"));
    }

    void aTopicThatIsDamagedIsToldAndTheRestStaysReadable()
    {
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return false; });
        // The topics lie in the file in the order of their names.
        window.setFile(file(m_good.left(m_good.indexOf("<title>The page Tasks"))));
        window.showContext(1);
        QVERIFY(shownText(window).startsWith(QLatin1String("The page Categories")));
        window.showContext(0);
        QVERIFY(shownText(window).contains(QLatin1String("no readable page \"/tasks.html\"")));
    }
};

AMBERTASK_TEST_MAIN(DamagedHelpTest)
#include "tst_damaged_help.moc"
