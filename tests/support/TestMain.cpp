#include "support/TestMain.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>

void TestCase::init()
{
    // The offscreen platform has no stacking order, no keyboard to grab, no notification area and nobody to
    // tell of sizes, and says so.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(
        "^(?!This plugin does not support |QObject::connect: No such signal QPlatformNativeInterface::).?")));
}

int runTest(QObject& test, int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true);
    // What a file dialog remembers would be met by the dialogs of the next test.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    const QTemporaryDir cache;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache.path()));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    return QTest::qExec(&test, argc, argv);
}
