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
    // Known messages of the offscreen platform, which has no stacking order, keyboard grab, notification
    // area and size hints, and of a machine without a font for a script: damaged texts are in any script.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(
        "^(?!This plugin does not support |QObject::connect: No such signal QPlatformNativeInterface::"
        "|  OpenType support missing for ).?")));
}

int runTest(QObject& test, int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true);
    // Otherwise dialogs of the next test would find what this one's remembered.
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
