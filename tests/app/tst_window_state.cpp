#include "app/FilterFold.h"
#include "app/TasksPage.h"
#include "support/DraggedEdge.h"
#include "support/TestMain.h"
#include "tests/app/RecordedMachine.h"
#include "widgets/GridView.h"

#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace
{

/// A machine on which the program starts several times.
struct Arranged : RecordedMachine {
    void start()
    {
        Machine here = machine();
        here.stateFile = folder.filePath(QStringLiteral("ambertask/window"));
        program = std::make_unique<Program>(here);
        program->start([] { return false; });
        QCoreApplication::processEvents();
    }
    void end()
    {
        program->end();
        program->unload();
        program.reset();
    }
    ~Arranged()
    {
        if (program) {
            end();
        }
    }
    frmMain& window() { return program->mainWindow(); }
    GridView& grid() { return *window().tasksPage()->grid(); }
    QHeaderView& header() { return *grid().horizontalHeader(); }
    QList<int> widths()
    {
        QList<int> widths;
        for (int i = 0; i < header().count(); ++i) {
            widths.append(header().sectionSize(i));
        }
        return widths;
    }
    QString state() const
    {
        QFile file(folder.filePath(QStringLiteral("ambertask/window")));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    void setState(const QByteArray& text) const
    {
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("ambertask")));
        QFile file(folder.filePath(QStringLiteral("ambertask/window")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir folder;
    std::unique_ptr<Program> program;
};

} // namespace

class WindowStateTest : public TestCase
{
    Q_OBJECT

private slots:
    void theWindowAppearsWhereItWasWhenTheProgramEnded()
    {
        Arranged m;
        m.start();
        m.window().setGeometry(70, 90, 820, 600);
        m.end();
        m.start();
        QCOMPARE(m.window().geometry(), QRect(70, 90, 820, 600));
    }

    void itAppearsWhereItWasWhenItWasHidden()
    {
        Arranged m;
        m.start();
        m.window().setGeometry(70, 90, 820, 600);
        m.window().hide();
        QVERIFY(m.state().contains(QStringLiteral("place=70 90 820 600\n")));
        m.end();
        m.start();
        QCOMPARE(m.window().geometry(), QRect(70, 90, 820, 600));
    }

    void aWindowThatStartsHiddenAppearsWhereItWas()
    {
        Arranged m;
        m.setState("place=70 90 820 600\n");
        m.setting(QStringLiteral("minimize_on_start"), 1);
        m.start();
        QVERIFY(!m.window().isVisible());
        m.window().toggle();
        QCOMPARE(m.window().geometry(), QRect(70, 90, 820, 600));
    }

    void aWindowThatWasNeverShownChangesNothing()
    {
        Arranged m;
        m.setting(QStringLiteral("minimize_on_start"), 1);
        m.start();
        m.end();
        QCOMPARE(m.state(), QString());
    }

    void theFirstPlaceIsTheMiddleOfTheScreen()
    {
        Arranged m;
        m.start();
        const QPoint off =
            m.window().frameGeometry().center() - m.window().screen()->availableGeometry().center();
        QVERIFY2(qAbs(off.x()) < 20 && qAbs(off.y()) < 30,
            qPrintable(QStringLiteral("%1 %2").arg(off.x()).arg(off.y())));
    }

    void aPlaceOnAScreenThatIsGoneIsMovedOntoOneThatIsThere_data()
    {
        QTest::addColumn<QByteArray>("place");
        QTest::newRow("to the right") << QByteArray("5000 100 820 600");
        QTest::newRow("to the left and above") << QByteArray("-3000 -2000 820 600");
        QTest::newRow("larger than any screen") << QByteArray("0 0 9000 8000");
        QTest::newRow("partly outside") << QByteArray("600 500 820 600");
    }
    void aPlaceOnAScreenThatIsGoneIsMovedOntoOneThatIsThere()
    {
        QFETCH(const QByteArray, place);
        Arranged m;
        m.setState("place=" + place + '\n');
        m.start();
        QVERIFY(m.window().screen()->availableGeometry().contains(m.window().geometry()));
    }

    void aMaximizedWindowIsMaximizedAgainAndKeepsItsOrdinarySize()
    {
        Arranged m;
        m.start();
        m.window().setGeometry(70, 90, 800, 560);
        // Qt learns of the ordinary size by an event that comes before the window is maximized.
        QCoreApplication::processEvents();
        m.window().showMaximized();
        QCoreApplication::processEvents();
        m.end();
        QVERIFY2(m.state().contains(QStringLiteral("maximized=yes\nplace=70 90 800 560\n")),
            qPrintable(m.state()));
        m.start();
        QVERIFY(m.window().isMaximized());
        m.window().showNormal();
        QCoreApplication::processEvents();
        QCOMPARE(m.window().size(), QSize(800, 560));
    }

    void nonsenseIsIgnored_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("letters") << QByteArray("place=a b c d\ncolumn.0name=x\nfolded=perhaps\n");
        QTest::newRow("too few") << QByteArray("place=1 2 3\ncolumn.0name=\n");
        QTest::newRow("no size") << QByteArray("place=1 2 0 -5\ncolumn.0name=-1\n");
        QTest::newRow("not finite") << QByteArray(
            "place=1 2 99999999999 5\ncolumn.0name=nan\ncolumn.0status=inf\n");
        QTest::newRow("no columns of ours") << QByteArray("column.else=0.5\nmaximized=yes\n");
    }
    void nonsenseIsIgnored()
    {
        Arranged m;
        m.start();
        const QRect usual = m.window().geometry();
        const QList<int> widths = m.widths();
        m.end();
        QFETCH(const QByteArray, text);
        m.setState(text);
        m.start();
        QCOMPARE(m.window().geometry(), usual);
        QCOMPARE(m.widths(), widths);
        QVERIFY(!m.window().isMaximized());
        QVERIFY(!m.window().tasksPage()->fold().isFolded());
    }

    void widthsThatTheUserDraggedStayThroughReloadsAndStarts()
    {
        Arranged m;
        m.start();
        const QList<int> asked = m.widths();
        dragEdge(m.header(), 1, -120);
        const QList<int> dragged = m.widths();
        QVERIFY(qAbs(dragged[1] - (asked[1] - 120)) <= 2);
        QVERIFY2(m.state().contains(QStringLiteral("column.0name=")), "written when the edge is let go");
        m.window().LoadTasks();
        QCOMPARE(m.widths(), dragged);
        m.end();
        m.start();
        for (int i = 0; i < dragged.size(); ++i) {
            QVERIFY2(qAbs(m.widths()[i] - dragged[i]) <= 1, qPrintable(QString::number(i)));
        }
    }

    void columnsKeepTheirProportionsWhileOneIsNotShown()
    {
        Arranged m;
        m.start();
        dragEdge(m.header(), 1, -120);
        const QList<int> before = m.widths();
        m.setting(QStringLiteral("show_task_status"), 0);
        m.end();
        m.start();
        QCOMPARE(m.widths().size(), before.size() - 1);
        // Name and due date, the other wide columns.
        const double ratio = double(before[1]) / before[3];
        QVERIFY(qAbs(double(m.widths()[1]) / m.widths()[2] - ratio) < 0.02);
    }

    void theFoldIsKept()
    {
        Arranged m;
        m.start();
        m.window().findChild<QToolButton*>(QStringLiteral("btnFold"))->click();
        QVERIFY(m.state().contains(QStringLiteral("folded=yes\n")));
        m.end();
        m.start();
        QVERIFY(m.window().tasksPage()->fold().isFolded());
        m.window().findChild<QToolButton*>(QStringLiteral("btnFold"))->click();
        m.end();
        QVERIFY(!m.state().contains(QStringLiteral("folded")));
    }
};

AMBERTASK_TEST_MAIN(WindowStateTest)
#include "tst_window_state.moc"
