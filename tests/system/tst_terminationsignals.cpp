#include "support/TestMain.h"
#include "system/TerminationSignals.h"

#include <QSignalSpy>
#include <QTest>
#include <cerrno>
#include <csignal>

namespace
{

/// More requests than the pipe between handler and event loop holds bytes.
constexpr int Flood = (1 << 16) + 1000;

void (*handlerOf(int signal))(int)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

} // namespace

class TerminationSignalsTest : public TestCase
{
    Q_OBJECT

private slots:
    void everyRequestToEndIsTold_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("termination") << SIGTERM;
        QTest::newRow("interrupt") << SIGINT;
        QTest::newRow("hang-up") << SIGHUP;
    }
    void everyRequestToEndIsTold()
    {
        QFETCH(const int, number);
        const TerminationSignals requests;
        QSignalSpy told(&requests, &TerminationSignals::terminationRequested);
        std::raise(number);
        QCOMPARE(told.count(), 0);
        QVERIFY(told.wait());
        QCOMPARE(told.count(), 1);
    }

    void whatIsInterruptedKeepsItsErrorNumber()
    {
        const TerminationSignals requests;
        QSignalSpy told(&requests, &TerminationSignals::terminationRequested);
        for (int i = 0; i < Flood; ++i) {
            errno = ENOENT;
            std::raise(SIGTERM);
            QCOMPARE(errno, ENOENT);
        }
        QVERIFY(told.wait());
    }

    void aHangUpThatWasIgnoredBeforeStaysIgnored()
    {
        std::signal(SIGHUP, SIG_IGN);
        {
            const TerminationSignals requests;
            QVERIFY(handlerOf(SIGHUP) == SIG_IGN);
            QVERIFY(handlerOf(SIGTERM) != SIG_DFL);
        }
        QVERIFY(handlerOf(SIGHUP) == SIG_IGN);
        std::signal(SIGHUP, SIG_DFL);
    }

    void afterwardsTheSignalsDoWhatTheyDidBefore()
    {
        std::signal(SIGINT, SIG_IGN);
        {
            const TerminationSignals requests;
            QVERIFY(handlerOf(SIGINT) != SIG_IGN);
        }
        QVERIFY(handlerOf(SIGINT) == SIG_IGN);
        QVERIFY(handlerOf(SIGTERM) == SIG_DFL);
        std::signal(SIGINT, SIG_DFL);
    }

    void initTestCase()
    {
        // Whatever this test was started under.
        std::signal(SIGHUP, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
        std::signal(SIGINT, SIG_DFL);
    }
};

AMBERTASK_TEST_MAIN(TerminationSignalsTest)
#include "tst_terminationsignals.moc"
