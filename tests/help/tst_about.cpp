#include "help/frmAbout.h"
#include "support/MemoryRegistry.h"
#include "support/TestMain.h"
#include "support/TestServices.h"

#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace
{

constexpr quint32 BinaryType = 3;
const QString ToolKey = QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO");
const QString LocationKey = QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location");
const QString Unavailable = QStringLiteral("System Information Is Unavailable At This Time");

QIcon colouredIcon(QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

struct About {
    About() : form(services.services, registry, {colouredIcon({64, 64}), colouredIcon({144, 48})}) { }

    void value(const QString& key, const QByteArray& name, quint32 type, const QByteArray& data)
    {
        registry.setValue(RegistryValues::LocalMachine, key, name, type, data);
    }
    QString read(quint32 type, const QByteArray& data, const QString& before = QStringLiteral("before"))
    {
        value(ToolKey, "V", type, data);
        QString text = before;
        wasRead = form.GetKeyValue(RegistryValues::LocalMachine, ToolKey, QStringLiteral("V"), text);
        return text;
    }
    QString textOf(const char* name)
    {
        const auto* label = form.findChild<QLabel*>(QLatin1String(name));
        return label == nullptr ? QStringLiteral("missing") : label->text();
    }

    TestServices services;
    MemoryRegistry registry;
    frmAbout form;
    bool wasRead = false;
};

} // namespace

class AboutTest : public TestCase
{
    Q_OBJECT

private slots:
    void theBoxNamesTheProgramAndItsVersion()
    {
        About about;
        QCOMPARE(about.form.windowTitle(), QStringLiteral("About Ambertask"));
        QCOMPARE(about.textOf("Label1"), QStringLiteral("Amber"));
        QCOMPARE(about.textOf("Label1") + about.textOf("Label2"), QStringLiteral("Ambertask"));
        QCOMPARE(about.textOf("Label3"), QStringLiteral("Version 1.1"));
        QCOMPARE(about.textOf("lblDescription"),
            QStringLiteral("Ambertask is a simple and powerful task management software program."));
        QVERIFY(about.textOf("lblDisclaimer").size() > 20);
        for (const char* name : {"Label1", "Label2", "Label3"}) {
            QCOMPARE(
                about.form.findChild<QLabel*>(QLatin1String(name))->font().family(), QStringLiteral("Arial"));
        }
    }

    void escapeClosesIt()
    {
        About about;
        about.form.show();
        QVERIFY(QTest::qWaitForWindowActive(&about.form));
        const QSignalSpy unloads(&about.form, &frmAbout::unloadRequested);
        QTest::keyClick(&about.form, Qt::Key_Escape);
        QVERIFY(!about.form.isVisible());
        QCOMPARE(unloads.count(), 1);
    }

    void itShowsBothPicturesAndTheLine()
    {
        About about;
        QCOMPARE(about.form.findChild<QLabel*>(QStringLiteral("Picture1"))->pixmap().size(), QSize(64, 64));
        QCOMPARE(about.form.findChild<QLabel*>(QStringLiteral("Picture2"))->pixmap().size(), QSize(144, 48));
        QCOMPARE(about.form.findChild<QFrame*>(QStringLiteral("Line1"))->frameShape(), QFrame::HLine);
    }

    void itsSizeIsFixed()
    {
        About about;
        about.form.show();
        QCOMPARE(about.form.minimumSize(), about.form.maximumSize());
        QVERIFY(!about.form.isModal());
    }

    void okUnloadsTheBox()
    {
        About about;
        about.form.show();
        const QSignalSpy unloaded(&about.form, &frmAbout::unloadRequested);
        QTest::mouseClick(about.form.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
        QCOMPARE(unloaded.count(), 1);
        QVERIFY(!about.form.isVisible());
    }

    void theCloseBoxUnloadsItToo()
    {
        About about;
        about.form.show();
        const QSignalSpy unloaded(&about.form, &frmAbout::unloadRequested);
        about.form.close();
        QCOMPARE(unloaded.count(), 1);
    }

    void enterOnTheButtonUnloadsTheBox()
    {
        About about;
        about.form.show();
        const QSignalSpy unloaded(&about.form, &frmAbout::unloadRequested);
        QTest::keyClick(about.form.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::Key_Return);
        QCOMPARE(unloaded.count(), 1);
    }

    void aTextIsReadWithoutItsTerminatingZero_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("text");
        QTest::newRow("terminated") << QByteArray("C:\\x\0", 5) << QStringLiteral("C:\\x");
        QTest::newRow("not terminated") << QByteArray("C:\\x") << QStringLiteral("C:\\x");
        QTest::newRow("only one zero goes") << QByteArray("ab\0\0", 4) << QString::fromLatin1("ab\0", 3);
        QTest::newRow("empty") << QByteArray("\0", 1) << QString();
        QTest::newRow("nothing at all") << QByteArray() << QString();
        QTest::newRow("the whole buffer") << QByteArray(1024, 'x') << QString(1024, u'x');
    }

    void aTextIsReadWithoutItsTerminatingZero()
    {
        QFETCH(const QByteArray, data);
        QFETCH(const QString, text);
        About about;
        QCOMPARE(about.read(RegistryValues::Text, data), text);
        QVERIFY(about.wasRead);
        QCOMPARE(about.registry.openKeys, 0);
    }

    void aDoubleWordIsReadAsADecimalNumber_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << QByteArray("\0\0\0\0", 4) << QStringLiteral("0");
        QTest::newRow("one") << QByteArray("\1\0\0\0", 4) << QStringLiteral("1");
        QTest::newRow("all bytes") << QByteArray("\x78\x56\x34\x12", 4) << QStringLiteral("305419896");
        QTest::newRow("highest") << QByteArray("\xff\xff\xff\xff", 4) << QStringLiteral("4294967295");
        QTest::newRow("last byte zero") << QByteArray("\x34\x12\xab\0", 4) << QStringLiteral("11211316");
        // Each byte without leading zeros: 0, 1 and 2 yield 012, which is 18.
        QTest::newRow("small bytes") << QByteArray("\2\1\0\0", 4) << QStringLiteral("18");
        QTest::newRow("a zero inside") << QByteArray("\x10\0\x20\0", 4) << QStringLiteral("131088");
    }

    void aDoubleWordIsReadAsADecimalNumber()
    {
        QFETCH(const QByteArray, data);
        QFETCH(const QString, text);
        About about;
        QCOMPARE(about.read(RegistryValues::DoubleWord, data), text);
        QVERIFY(about.wasRead);
        QCOMPARE(about.registry.openKeys, 0);
    }

    void aDoubleWordThatIsNoNumberIsReadAndLeavesTheText_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("nine bytes") << QByteArray(9, '\x11');
        QTest::newRow("the whole buffer") << QByteArray(1024, '\xff');
    }

    void aDoubleWordThatIsNoNumberIsReadAndLeavesTheText()
    {
        QFETCH(const QByteArray, data);
        About about;
        QCOMPARE(about.read(RegistryValues::DoubleWord, data), QStringLiteral("before"));
        QVERIFY(about.wasRead);
        QCOMPARE(about.registry.openKeys, 0);
    }

    void otherTypesLeaveTheTextAsItWas()
    {
        About about;
        QCOMPARE(about.read(BinaryType, "bytes"), QStringLiteral("before"));
        QVERIFY(about.wasRead);
    }

    void whatTheBufferDoesNotHoldIsNotRead()
    {
        About about;
        QCOMPARE(about.read(RegistryValues::Text, QByteArray(1025, 'x')), QStringLiteral("before"));
        QVERIFY(!about.wasRead);
        QCOMPARE(about.registry.openKeys, 0);
    }

    void aMissingValueIsNotRead()
    {
        About about;
        about.value(ToolKey, "Other", RegistryValues::Text, "x");
        QString text = QStringLiteral("before");
        QVERIFY(!about.form.GetKeyValue(RegistryValues::LocalMachine, ToolKey, QStringLiteral("PATH"), text));
        QCOMPARE(text, QStringLiteral("before"));
        QCOMPARE(about.registry.openKeys, 0);
    }

    void theKeyIsOpenedWithFullAccess()
    {
        About about;
        about.read(RegistryValues::Text, "x");
        QCOMPARE(about.registry.opened,
            QStringList(QStringLiteral("80000002\\") + ToolKey + QStringLiteral(" 2003f")));
    }

    void anAccountWithoutWriteRightsFindsNothing()
    {
        constexpr quint32 ReadOnly = 0x20019;
        About about;
        about.registry.allowedAccess = ReadOnly;
        about.value(ToolKey, "PATH", RegistryValues::Text, "C:\\tool.exe");
        about.services.dialogs.expectTell(MessageBoxes::Icon::None, Unavailable);
        about.form.StartSysInfo();
        QVERIFY(about.services.shell.startedNormal.isEmpty());
    }

    void theToolStartsFromItsPathWithoutCheckingThatTheFileExists()
    {
        About about;
        about.value(ToolKey, "PATH", RegistryValues::Text, QByteArray("/no/such/tool.exe\0", 18));
        about.form.StartSysInfo();
        QCOMPARE(about.services.shell.startedNormal, QStringList(QStringLiteral("/no/such/tool.exe")));
        QVERIFY(about.services.shell.started.isEmpty());
    }

    void withOnlyTheFolderTheToolInItStarts()
    {
        const QTemporaryDir folder;
        const QString tool = folder.filePath(QStringLiteral("MSINFO32.EXE"));
        QVERIFY(QFile(tool).open(QIODevice::WriteOnly));
        About about;
        about.value(LocationKey, "MSINFO", RegistryValues::Text, QFile::encodeName(folder.path()));
        about.form.StartSysInfo();
        QCOMPARE(about.services.shell.startedNormal, QStringList(tool));
    }

    void withOnlyTheFolderAndNoToolInItTheMessageIsShown()
    {
        const QTemporaryDir folder;
        About about;
        about.value(LocationKey, "MSINFO", RegistryValues::Text, QFile::encodeName(folder.path()));
        about.services.dialogs.expectTell(MessageBoxes::Icon::None, Unavailable);
        about.form.StartSysInfo();
        QVERIFY(about.services.shell.startedNormal.isEmpty());
    }

    void withoutAnyKeyTheMessageIsShown()
    {
        About about;
        about.services.dialogs.expectTell(MessageBoxes::Icon::None, Unavailable);
        about.form.StartSysInfo();
        QVERIFY(about.services.dialogs.allUsed());
    }

    void aToolThatDoesNotStartIsUnavailable()
    {
        About about;
        about.services.shell.startSucceeds = false;
        about.value(ToolKey, "PATH", RegistryValues::Text, "/no/such/tool.exe");
        about.services.dialogs.expectTell(MessageBoxes::Icon::None, Unavailable);
        about.form.StartSysInfo();
        QVERIFY(about.services.dialogs.allUsed());
    }

    void thisMachineHasNoSuchKey()
    {
        const std::unique_ptr<Registry> registry = makeSystemRegistry();
        QVERIFY(
            registry->openKey(RegistryValues::LocalMachine, ToolKey, RegistryValues::AllAccess) == nullptr);
    }
};

AMBERTASK_TEST_MAIN(AboutTest)
#include "tst_about.moc"
