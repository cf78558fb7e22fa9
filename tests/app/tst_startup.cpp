#include "ProgramFixture.h"
#include "app/FixedPictures.h"
#include "data/DataFileRoad.h"
#include "reminders/frmAlerts.h"
#include "support/FullPixmapCache.h"
#include "support/OlderDataFile.h"
#include "support/OtherProgram.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/ProgramFolder.h"
#include "widgets/ImageList.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>

using namespace std::chrono_literals;

namespace
{

QString failureOf(ProgramFixture& f)
{
    try {
        f.start(true);
    } catch (const RuntimeError& error) {
        return error.text();
    }
    return {};
}

/// Counts how often a control is told of another style.
class StyleChanges final : public QObject
{
public:
    explicit StyleChanges(QWidget& control) { control.installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject* /*control*/, QEvent* event) override
    {
        count += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }
};

} // namespace

class StartUpTest : public TestCase
{
    Q_OBJECT

private slots:

    void theSettingsAreReadFirstAndInOneStatement()
    {
        ProgramFixture f;
        f.start();
        QCOMPARE(f.database.statements().take().value(0), QStringLiteral("select * from settings"));
    }

    void theFirstStartOnAMachineRegistersTheProgramWhateverTheSettingSays()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("start_with_windows"), 0);
        f.start(true);
        const MemoryRegistry::Value entry = f.registry.runEntry("Ambertask");
        QCOMPARE(entry.type, RegistryValues::Text);
        QCOMPARE(entry.data, executableIn(f.database.folder()).toLocal8Bit());
    }

    void aDataFileThatIsBeingWrittenDoesNotKeepTheProgramFromStarting()
    {
        ProgramFixture f;
        const qint16 own = f.database.addCategory(QStringLiteral("Own"), 3);
        f.database.sql(
            QStringLiteral("update categories set custom_icon=1,cat_icon_name='icon5.gif' where cat_id=%1")
                .arg(own));
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        const QString number = QStringLiteral("select cat_icon from categories where cat_id=%1").arg(own);
        {
            const OtherProgram other(f.database, OtherProgram::Writing);
            QVERIFY(other.holds());
            f.start();
            QCOMPARE(f.grid(f.main())->model()->rowCount(), 1);
            QCOMPARE(f.database.sql(number).toInt(), 3);
            f.program.loadDialogs();
            QVERIFY(f.program.alerts().isVisible());
        }
        f.main().LoadCategories();
        QVERIFY(f.database.sql(number).toInt() > 3);
    }

    void thePagesBehindTheFirstJoinTheWindowAfterTheFirstPainting()
    {
        ProgramFixture f;
        f.program.start([] { return false; });
        QVERIFY(f.grid(f.main()) != nullptr);
        QVERIFY(f.control<QPushButton>(f.main(), "btnSave") == nullptr);
        QTRY_VERIFY(f.control<QPushButton>(f.main(), "btnSave") != nullptr);
        for (const char* button : {"btnAddCat", "btnDeleteTasksMaintenance"}) {
            QVERIFY2(f.control<QPushButton>(f.main(), button) != nullptr, button);
        }
        // As large as the largest page needs it.
        const QSize needed = f.control<QPushButton>(f.main(), "btnSave")->parentWidget()->minimumSizeHint();
        f.main().resize(1, 1);
        QTRY_VERIFY(f.main().width() >= needed.width() && f.main().height() >= needed.height());
    }

    void noStyleReachesThemBeforeThat()
    {
        ProgramFixture f;
        f.program.start([] { return false; });
        qApp->setStyleSheet({});
        const auto controls = QApplication::allWidgets();
        const auto save = std::find_if(controls.begin(), controls.end(),
            [](const QWidget* control) { return control->objectName() == QLatin1String("btnSave"); });
        QVERIFY(save != controls.end());
        StyleChanges unseen(**save);
        StyleChanges seen(*f.control<QPushButton>(f.main(), "btnTaskAdd"));
        qApp->setStyleSheet(QStringLiteral("QPushButton { padding: 3px; }"));
        QVERIFY(seen.count > 0);
        QCOMPARE(unseen.count, 0);
        f.main().wakePages();
        QVERIFY(unseen.count > 0);
        qApp->setStyleSheet({});
    }

    void theyJoinAWindowThatStartsHiddenToo()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.program.start([] { return false; });
        QTRY_VERIFY(f.control<QPushButton>(f.main(), "btnSave") != nullptr);
        QVERIFY(!f.main().isShown());
    }

    void aHiddenStartLeavesNothingThatQtWouldCleanUpLater()
    {
        FullPixmapCache cache;
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.program.start([] { return false; });
        QTRY_VERIFY(f.control<QPushButton>(f.main(), "btnSave") != nullptr);
        QVERIFY(cache.isUntouched());
    }

    void aPageThatIsSwitchedToBeforeThatIsThere()
    {
        ProgramFixture f;
        f.program.start([] { return false; });
        f.control<QTabWidget>(f.main(), "tabMain")->setCurrentIndex(1);
        QVERIFY(f.control<QPushButton>(f.main(), "btnAddCat")->isVisible());
    }

    void everyFixedPictureIsThereInEachOfItsSizes()
    {
        ImageList images;
        appendFixedPictures(images);
        QCOMPARE(images.count(), 21);
        QList<QIcon> icons{programIcon(), programWindowIcon(), logoIcon()};
        for (int i = 0; i < images.count(); ++i) {
            icons.append(images.icon(i));
        }
        for (const QIcon& icon : icons) {
            QVERIFY(icon.availableSizes().size() >= 4);
            for (const QSize& size : icon.availableSizes()) {
                const QImage picture = icon.pixmap(size, 1).toImage();
                QCOMPARE(picture.size(), size);
                QImage blank(size, QImage::Format_ARGB32_Premultiplied);
                blank.fill(Qt::transparent);
                QVERIFY(picture.convertToFormat(blank.format()) != blank);
            }
        }
    }

    void aLaterStartLeavesTheRegistrationAlone()
    {
        ProgramFixture f;
        f.start(false);
        QVERIFY(f.registry.isEmpty());
    }

    void aDataFileThatOthersCouldReadBecomesPrivate()
    {
        ProgramFixture f;
        QVERIFY(QFile::setPermissions(f.database.dataFile(),
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup
                | QFileDevice::ReadOther));
        f.start();
        constexpr auto Others = QFileDevice::ReadGroup | QFileDevice::ReadOther;
        QCOMPARE(QFile::permissions(f.database.dataFile()) & Others, QFileDevice::Permissions());
    }

    void aMissingDataFileIsReportedAndNothingIsWritten()
    {
        ProgramFixture f;
        QVERIFY(QFile::remove(f.database.dataFile()));
        QVERIFY(failureOf(f).contains(QStringLiteral("data.dat")));
        QVERIFY(!QFile::exists(f.database.dataFile()));
        QVERIFY(f.registry.isEmpty());
    }

    void aDataFileThatIsNoDatabaseIsReportedAndLeftAlone()
    {
        ProgramFixture f;
        QFile file(f.database.dataFile());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        const QByteArray content(
            "This is a letter and no database, and it is long enough to hold a header of one.");
        file.write(content);
        file.close();
        QVERIFY(failureOf(f).contains(QStringLiteral("data.dat")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content);
        QVERIFY(f.registry.isEmpty());
    }

    void anEmptyDataFileIsReportedAndStaysEmpty()
    {
        ProgramFixture f;
        QVERIFY(QFile::resize(f.database.dataFile(), 0));
        QVERIFY(!failureOf(f).isEmpty());
        QCOMPARE(QFile(f.database.dataFile()).size(), 0);
        QVERIFY(f.registry.isEmpty());
    }

    void aStartLeavesAPresentDataFileAsItIs()
    {
        ProgramFixture f;
        aTask(f.database).add();
        const QByteArray before = bytesOf(f.database.dataFile());
        f.start();
        QVERIFY(bytesOf(f.database.dataFile()) == before);
        QVERIFY(!QFile::exists(f.database.dataFile() + QStringLiteral(".before-upgrade")));
    }

    void anOlderDataFileIsBroughtUpBeforeAnythingIsRead()
    {
        ProgramFixture f;
        addTasksUpTo(f.database, 3, 32767);
        makeOlder(f.database);
        f.start();
        QCOMPARE(f.database.statements().take().value(0), QStringLiteral("select * from settings"));
        QCOMPARE(f.database.sql(QStringLiteral("pragma user_version")).toInt(), DataFileVersion);
        QCOMPARE(f.grid(f.main())->model()->rowCount(), 3);
        QCOMPARE(f.database.sql(QStringLiteral("select max(task_id) from tasks")).toInt(), 3);
        QVERIFY(QFile::exists(f.database.dataFile() + QStringLiteral(".before-upgrade")));
    }

    void aLaterDataFileIsReportedAndLeftAlone()
    {
        ProgramFixture f;
        f.database.sql(QStringLiteral("pragma user_version=99"));
        const QByteArray before = bytesOf(f.database.dataFile());
        QVERIFY(failureOf(f).contains(QStringLiteral("later version")));
        QVERIFY(bytesOf(f.database.dataFile()) == before);
        QCOMPARE(f.database.statements().take(), QStringList());
        QVERIFY(f.registry.isEmpty());
    }

    void aSettingsTableWithoutARowIsReported()
    {
        ProgramFixture f;
        f.database.sql(QStringLiteral("delete from settings"));
        QVERIFY(failureOf(f).contains(QStringLiteral("settings")));
        QVERIFY(f.registry.isEmpty());
    }
};

AMBERTASK_TEST_MAIN(StartUpTest)
#include "tst_startup.moc"
