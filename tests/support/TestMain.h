#pragma once

#include <QObject>

/// The base of every test class: a Qt warning that was not announced with QTest::ignoreMessage fails the
/// test.
class TestCase : public QObject
{
    Q_OBJECT

private slots:
    virtual void init();
};

/// Runs `test` under the one environment of all tests (Fusion, fixed locale, standard paths in test mode).
/// The result is the exit status.
int runTest(QObject& test, int argc, char** argv);

#define AMBERTASK_TEST_MAIN(TestClass)                                                                       \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        TestClass test;                                                                                      \
        return runTest(test, argc, argv);                                                                    \
    }
