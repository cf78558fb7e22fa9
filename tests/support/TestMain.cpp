#include "support/TestMain.h"

#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTest>

void TestCase::init()
{
    // Known messages of the offscreen platform, which has no stacking order, keyboard grab, notification
    // area and size hints, and of a machine without a font for a script: damaged texts are in any script.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(
        "^(?!This plugin does not support |QObject::connect: No such signal QPlatformNativeInterface::"
        "|  OpenType support missing for ).?")));
}

TestEnvironment::TestEnvironment()
{
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    qputenv("XDG_CACHE_HOME", QFile::encodeName(m_cache.path()));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

int TestEnvironment::run(QObject& test, int argc, char** argv) const
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    return QTest::qExec(&test, argc, argv);
}
