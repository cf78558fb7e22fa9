#include "support/TestMain.h"

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTest>

void TestCase::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
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
