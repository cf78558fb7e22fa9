#include "support/TestMain.h"
#include "widgets/ScreenProgress.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

/// Counts how often it is painted and pressed.
class Witness final : public QPushButton
{
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paintings;
        QPushButton::paintEvent(event);
    }
};

class ScreenProgressTest : public TestCase
{
    Q_OBJECT

private slots:
    void aShortOperationShowsNoBox();
    void aLongOneShowsHowFarItIs();
    void anUnknownLengthShowsABusyBar();
    void theBoxIsGoneAfterwards();
    void cancelThrowsOutOfTheOperation();
    void closingTheBoxCancels();
    void theEndOfTheProgramCancels();
    void aProgramThatEndsDoesNotBegin();
    void otherWindowsArePaintedButTakeNoInput();
    void whatTheOperationThrowsComesThrough();

private:
    static QDialog* box()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("progress") && window->isVisible()) {
                return qobject_cast<QDialog*>(window);
            }
        }
        return nullptr;
    }
    /// Tells the progress again and again until `condition` holds.
    static void advanceUntil(Progress& progress, const std::function<bool()>& condition)
    {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 5000) {
            progress.advance(1, 4);
        }
        QVERIFY(condition());
    }
};

void ScreenProgressTest::aShortOperationShowsNoBox()
{
    ScreenProgress(nullptr, QStringLiteral("Copying"), 1h).run([](Progress& progress) {
        progress.advance(1, 2);
        QVERIFY(box() == nullptr);
    });
}

void ScreenProgressTest::aLongOneShowsHowFarItIs()
{
    ScreenProgress(nullptr, QStringLiteral("<b>Copying</b>"), 0ms).run([](Progress& progress) {
        progress.advance(1, 4);
        QVERIFY(box() != nullptr);
        const auto* bar = box()->findChild<QProgressBar*>();
        QCOMPARE(bar->value() * 4, bar->maximum());
        const auto* label = box()->findChild<QLabel*>();
        QCOMPARE(label->text(), QStringLiteral("<b>Copying</b>"));
        QCOMPARE(label->textFormat(), Qt::PlainText);
    });
}

void ScreenProgressTest::anUnknownLengthShowsABusyBar()
{
    ScreenProgress(nullptr, QStringLiteral("Checking"), 0ms).run([](Progress& progress) {
        progress.advance(0, 0);
        QCOMPARE(box()->findChild<QProgressBar*>()->maximum(), 0);
    });
}

void ScreenProgressTest::theBoxIsGoneAfterwards()
{
    ScreenProgress progress(nullptr, QStringLiteral("Copying"), 0ms);
    progress.run([](Progress& told) { told.advance(1, 4); });
    QVERIFY(box() == nullptr);
}

void ScreenProgressTest::cancelThrowsOutOfTheOperation()
{
    bool goesOn = false;
    ScreenProgress progress(nullptr, QStringLiteral("Copying"), 0ms);
    QVERIFY_THROWS_EXCEPTION(Cancelled, progress.run([&goesOn](Progress& told) {
        told.advance(1, 4);
        box()->findChild<QPushButton*>()->click();
        advanceUntil(told, [] { return false; });
        goesOn = true;
    }));
    QVERIFY(!goesOn);
}

void ScreenProgressTest::closingTheBoxCancels()
{
    ScreenProgress progress(nullptr, QStringLiteral("Copying"), 0ms);
    QVERIFY_THROWS_EXCEPTION(Cancelled, progress.run([](Progress& told) {
        told.advance(1, 4);
        box()->close();
        advanceUntil(told, [] { return false; });
    }));
}

void ScreenProgressTest::theEndOfTheProgramCancels()
{
    bool cancelled = false;
    QTimer::singleShot(0, qApp, [&cancelled] {
        try {
            ScreenProgress(nullptr, QStringLiteral("Copying"), 1h).run([](Progress& progress) {
                QCoreApplication::exit(0);
                advanceUntil(progress, [] { return false; });
            });
        } catch (const Cancelled&) {
            cancelled = true;
        }
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(cancelled);
}

void ScreenProgressTest::aProgramThatEndsDoesNotBegin()
{
    bool cancelled = false;
    bool begun = false;
    QTimer::singleShot(0, qApp, [&cancelled, &begun] {
        QCoreApplication::exit(0);
        try {
            ScreenProgress(nullptr, QStringLiteral("Copying"), 1h).run([&begun](Progress&) { begun = true; });
        } catch (const Cancelled&) {
            cancelled = true;
        }
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(cancelled);
    QVERIFY(!begun);
}

void ScreenProgressTest::otherWindowsArePaintedButTakeNoInput()
{
    Witness other;
    int presses = 0;
    connect(&other, &QPushButton::clicked, &other, [&presses] { ++presses; });
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    ScreenProgress(&other, QStringLiteral("Copying"), 0ms).run([&](Progress& progress) {
        progress.advance(1, 4);
        QVERIFY(QTest::qWaitForWindowExposed(box()));
        other.paintings = 0;
        other.update();
        QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, other.rect().center());
        advanceUntil(progress, [&other] { return other.paintings > 0; });
    });
    QCOMPARE(presses, 0);
}

void ScreenProgressTest::whatTheOperationThrowsComesThrough()
{
    ScreenProgress progress(nullptr, QStringLiteral("Copying"));
    QVERIFY_THROWS_EXCEPTION(
        RuntimeError, progress.run([](Progress&) { throw RuntimeError(QStringLiteral("no")); }));
}

AMBERTASK_TEST_MAIN(ScreenProgressTest)
#include "tst_screenprogress.moc"
