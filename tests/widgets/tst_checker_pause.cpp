#include "support/TestMain.h"
#include "support/TestServices.h"
#include "widgets/CheckerTimer.h"

#include <QTest>
#include <stdexcept>

class TestCheckerPause : public TestCase
{
    Q_OBJECT

private slots:
    void theTimerRestsWhileThePauseLives();
    void aFailureStartsTheTimerAgain();
};

void TestCheckerPause::theTimerRestsWhileThePauseLives()
{
    RecordedCheckerTimer timer;
    {
        const CheckerPause pause(timer);
        QVERIFY(!timer.enabled);
    }
    QVERIFY(timer.enabled);
    QCOMPARE(timer.switches, QList<bool>({false, true}));
}

void TestCheckerPause::aFailureStartsTheTimerAgain()
{
    RecordedCheckerTimer timer;
    try {
        const CheckerPause pause(timer);
        throw std::runtime_error("no dialog");
    } catch (const std::runtime_error&) {
        QVERIFY(timer.enabled);
        return;
    }
    QFAIL("the failure did not come through");
}

AMBERTASK_TEST_MAIN(TestCheckerPause)
#include "tst_checker_pause.moc"
