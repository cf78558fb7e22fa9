#include "support/TestMain.h"

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTest>

void TestCase::init()
{
    // The offscreen platform has no stacking order to change and says so.
    QTest::failOnWarning(
        QRegularExpression(QStringLiteral("^(?!This plugin does not support (raise|lower)\\(\\)).?")));
}

int runTest(QObject& test, int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    return QTest::qExec(&test, argc, argv);
}
