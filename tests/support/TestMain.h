#pragma once

#include <QApplication>
#include <QObject>
#include <QTemporaryDir>

/// The base of every test class: a Qt warning that was not announced with QTest::ignoreMessage fails the
/// test.
class TestCase : public QObject
{
    Q_OBJECT

private slots:
    virtual void init();
};

/// The one environment of all tests: Fusion, fixed locale, standard paths in test mode.
class TestEnvironment
{
public:
    TestEnvironment();
    /// Runs `test` with the application object that there is. The result is the exit status.
    int run(QObject& test, int argc, char** argv) const;

private:
    // Otherwise dialogs of the next test would find what this one's remembered.
    QTemporaryDir m_settings;
    QTemporaryDir m_cache;
};

/// Runs `test` with an application object of the type. The result is the exit status.
template <typename ApplicationType = QApplication> int runTest(QObject& test, int argc, char** argv)
{
    const TestEnvironment environment;
    ApplicationType application(argc, argv);
    return environment.run(test, argc, argv);
}

#define AMBERTASK_TEST_MAIN(TestClass)                                                                       \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        TestClass test;                                                                                      \
        return runTest(test, argc, argv);                                                                    \
    }
