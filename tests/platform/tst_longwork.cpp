#include "platform/LongWork.h"
#include "support/RecordedLongWork.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;
using Kind = LongWork::Kind;

namespace
{

const QString Text = QStringLiteral("<b>Loading</b>");

QDialog* box()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("progress") && window->isVisible()) {
            return qobject_cast<QDialog*>(window);
        }
    }
    return nullptr;
}

/// Counts how often it is painted and pressed.
class Witness final : public QPushButton
{
public:
    Witness()
    {
        connect(this, &QPushButton::clicked, this, [this] { ++presses; });
        show();
        isReady = QTest::qWaitForWindowExposed(this);
    }

    int paintings = 0;
    int presses = 0;
    bool isReady = false;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paintings;
        QPushButton::paintEvent(event);
    }
};

/// Work that has taken its first second when it begins.
struct Running {
    explicit Running(RecordedLongWork& ofWorld) : world(ofWorld) { world.now += LongWork::Patience; }
    /// Lets the events of one moment be handled.
    void tell() const
    {
        world.now += 50ms;
        world.work.advance(0, 0);
    }
    /// Until `condition` holds.
    void tellUntil(const std::function<bool()>& condition) const
    {
        QVERIFY(QTest::qWaitFor([&] {
            tell();
            return condition();
        }));
    }

    RecordedLongWork& world;
};

} // namespace

class LongWorkTest : public TestCase
{
    Q_OBJECT

private slots:
    void aQuickPieceOfWorkShowsNothingAndHandlesNoEvents()
    {
        RecordedLongWork world;
        bool isEventHandled = false;
        QTimer::singleShot(0, this, [&] { isEventHandled = true; });
        world.work.run(Text, Kind::Reading, [&] {
            world.now += LongWork::Patience - 1ms;
            world.work.advance(0, 0);
            QVERIFY(box() == nullptr);
        });
        QVERIFY(!isEventHandled);
        QVERIFY(world.held.isEmpty());
        QVERIFY(world.stays.isEmpty());
        QCoreApplication::processEvents();
        QVERIFY(isEventHandled);
    }

    void workBeyondASecondShowsThatItGoesOn()
    {
        RecordedLongWork world;
        world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tell();
            QVERIFY(box() != nullptr);
            QCOMPARE(box()->findChild<QProgressBar*>()->maximum(), 0);
            QCOMPARE(box()->findChild<QProgressBar*>()->accessibleName(), Text);
            QCOMPARE(box()->findChild<QLabel*>()->text(), Text);
            QCOMPARE(box()->findChild<QLabel*>()->textFormat(), Qt::PlainText);
        });
        QVERIFY(box() == nullptr);
    }

    void workThatKnowsItShowsHowFarItIs()
    {
        RecordedLongWork world;
        world.work.run(Text, Kind::Cancellable, [&](Progress& progress) {
            world.now += LongWork::Patience;
            progress.advance(1, 4);
            const auto* bar = box()->findChild<QProgressBar*>();
            QCOMPARE(bar->value() * 4, bar->maximum());
        });
    }

    void theWindowsArePaintedAndTakeNoInput()
    {
        RecordedLongWork world;
        Witness other;
        QVERIFY(other.isReady);
        other.activateWindow();
        world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tellUntil([] { return box()->windowHandle()->isExposed(); });
            other.paintings = 0;
            other.update();
            QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, other.rect().center());
            QTest::keyClick(other.windowHandle(), Qt::Key_Space);
            running.tellUntil([&other] { return other.paintings > 0; });
        });
        QCoreApplication::processEvents();
        QCOMPARE(other.presses, 0);
    }

    void keysOfTheFirstSecondAreNotTakenBehindTheBox()
    {
        RecordedLongWork world;
        Witness other;
        QVERIFY(other.isReady);
        other.activateWindow();
        world.work.run(Text, Kind::Reading, [&] {
            QTimer::singleShot(0, &other, [&other] { QTest::keyClick(other.windowHandle(), Qt::Key_Space); });
            const Running running(world);
            running.tell();
            running.tell();
        });
        QCoreApplication::processEvents();
        QCOMPARE(other.presses, 0);
    }

    void neitherEscapeNorTheCloseBoxEndsReading()
    {
        RecordedLongWork world;
        bool isDone = false;
        world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tell();
            QVERIFY(box()->findChild<QPushButton*>() == nullptr);
            QVERIFY(!box()->windowFlags().testFlag(Qt::WindowCloseButtonHint));
            QTest::keyClick(box(), Qt::Key_Escape);
            box()->close();
            running.tell();
            QVERIFY(box() != nullptr);
            isDone = true;
        });
        QVERIFY(isDone);
    }

    void cancelGivesUpWhatMayBeCancelled()
    {
        RecordedLongWork world;
        QVERIFY_THROWS_EXCEPTION(Cancelled, world.work.run(Text, Kind::Cancellable, [&] {
            const Running running(world);
            running.tell();
            box()->findChild<QPushButton*>(QStringLiteral("btnCancel"))->click();
            running.tell();
        }));
        QVERIFY(box() == nullptr);
        QVERIFY(world.stays.isEmpty());
        QCOMPARE(world.held, QList<bool>({true, false}));
    }

    void theEndOfTheProgramGivesUpReading()
    {
        for (const Kind kind : {Kind::Reading, Kind::Cancellable}) {
            RecordedLongWork world;
            QVERIFY_THROWS_EXCEPTION(Cancelled, world.work.run(Text, kind, [&] {
                const Running running(world);
                QTimer::singleShot(0, this, [&] { world.ending = true; });
                running.tell();
                running.tell();
            }));
        }
    }

    void theEndOfTheProgramLetsStoringGoOn()
    {
        RecordedLongWork world;
        bool isDone = false;
        world.work.run(Text, Kind::Storing, [&] {
            world.ending = true;
            const Running running(world);
            running.tell();
            running.tell();
            isDone = true;
        });
        QVERIFY(isDone);
        QVERIFY2(world.stays.isEmpty(), "the end of the program waits for no box");
    }

    void theBackgroundIsHeldWhileEventsAreHandled()
    {
        RecordedLongWork world;
        world.work.run(Text, Kind::Reading, [&] {
            world.work.advance(0, 0);
            QVERIFY(world.held.isEmpty());
            const Running running(world);
            running.tell();
            running.tell();
            QCOMPARE(world.held, QList<bool>({true}));
        });
        QCOMPARE(world.held, QList<bool>({true, false}));
    }

    void theBackgroundIsLetGoWhenWorkFails()
    {
        RecordedLongWork world;
        QVERIFY_THROWS_EXCEPTION(RuntimeError, world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tell();
            throw RuntimeError(QStringLiteral("no"));
        }));
        QCOMPARE(world.held, QList<bool>({true, false}));
        QVERIFY(box() == nullptr);
    }

    void whereNobodyWaitsNoBoxComesUp()
    {
        RecordedLongWork world;
        world.waitedFor = false;
        bool isEventHandled = false;
        QTimer::singleShot(0, this, [&] { isEventHandled = true; });
        world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tell();
            QVERIFY(box() == nullptr);
        });
        QVERIFY(isEventHandled);
        QVERIFY(world.stays.isEmpty());
    }

    void aBoxThatHasJustComeUpStaysToBeSeen()
    {
        RecordedLongWork world;
        world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tell();
            world.now += 100ms;
        });
        QCOMPARE(world.stays, QList<std::chrono::milliseconds>({LongWork::LeastShown - 100ms}));
    }

    void aBoxThatWasSeenGoesAtOnce()
    {
        RecordedLongWork world;
        world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tell();
            world.now += LongWork::LeastShown;
        });
        QVERIFY(world.stays.isEmpty());
    }

    void workWithinWorkSharesTheBox()
    {
        RecordedLongWork world;
        world.work.run(Text, Kind::Reading, [&] {
            const Running running(world);
            running.tell();
            const QDialog* first = box();
            world.work.run(QStringLiteral("Saving"), Kind::Storing, [&] {
                running.tell();
                QCOMPARE(box(), first);
            });
            QCOMPARE(box(), first);
        });
        QCOMPARE(world.held, QList<bool>({true, false}));
    }

    void workAskedForInTheMidstOfOtherWorkDoesNotBegin()
    {
        RecordedLongWork world;
        bool isRefused = false;
        bool hasBegun = false;
        world.work.run(Text, Kind::Reading, [&] {
            QTimer::singleShot(0, this, [&] {
                try {
                    world.work.run(Text, Kind::Storing, [&] { hasBegun = true; });
                } catch (const Cancelled&) {
                    isRefused = true;
                }
            });
            Running(world).tell();
        });
        QVERIFY(isRefused);
        QVERIFY(!hasBegun);
    }

    void whatTellsOutsideOfWorkIsNotHeard()
    {
        RecordedLongWork world;
        world.now += LongWork::Patience;
        world.work.advance(0, 0);
        QVERIFY(box() == nullptr);
        QVERIFY(world.held.isEmpty());
    }
};

AMBERTASK_TEST_MAIN(LongWorkTest)
#include "tst_longwork.moc"
