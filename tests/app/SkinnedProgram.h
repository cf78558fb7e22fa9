#pragma once

#include "tests/app/ProgramFixture.h"

#include <QApplication>
#include <chrono>

/// The names of the skins that are shipped.
inline QStringList shippedSkins()
{
#ifdef __SANITIZE_ADDRESS__
    // The sanitizers are five times slower, and another skin shows them nothing new.
    return {QStringLiteral("Aqua"), QStringLiteral("Midnight")};
#else
    QStringList skins;
    for (const QString& file : QDir(QStringLiteral(AMBERTASK_SHIPPED_SKINS)).entryList(QDir::Files)) {
        skins.append(QFileInfo(file).completeBaseName());
    }
    return skins;
#endif
}

/// The program in a skin from the folder `skins`, with a few tasks.
struct SkinnedProgram : ProgramFixture {
    explicit SkinnedProgram(
        const QString& skin, const QString& skins = QStringLiteral(AMBERTASK_SHIPPED_SKINS))
        : owed(skin == QLatin1String("Contrast") ? 7.0 : 4.5)
    {
        const QString file = QStringLiteral("/%1.skf").arg(skin);
        QFile::copy(skins + file, database.folder() + QStringLiteral("/Skins") + file);
        database.sql(QStringLiteral("update settings set skin='%1'").arg(skin));
        const Moment now = database.clock().now();
        aTask(database)
            .named(QStringLiteral("Call the dentist"))
            .withPeriority(0)
            .remindingAt(now - std::chrono::minutes(1))
            .add();
        aTask(database).named(QStringLiteral("Sort the photos")).withStatus(4).withPeriority(2).add();
        aTask(database)
            .named(QStringLiteral("Read the contract"))
            .dueAt(now - std::chrono::hours(24))
            .withStatus(2)
            .add();
        aTask(database).named(QStringLiteral("Buy milk")).remindingAt(now - std::chrono::minutes(2)).add();
        start();
        program.loadDialogs();
    }

    double owed;
};

/// The visible window of that class; null for none.
template <typename Window> Window* openWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = dynamic_cast<Window*>(window); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}
