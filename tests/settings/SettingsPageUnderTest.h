#pragma once

#include "data/SettingsStore.h"
#include "settings/SettingsPage.h"
#include "settings/SettingsPageHost.h"
#include "settings/SkinFolder.h"
#include "settings/Skins.h"
#include "support/MemoryRegistry.h"
#include "support/TestServices.h"
#include "widgets/QuietLine.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

/// Remembers what the page asks of the main window, in order, and what the record said at that moment.
class RecordedMainWindow final : public SettingsPageHost
{
public:
    explicit RecordedMainWindow(const SettingsRecord& record) : m_record(record) { }

    void setTrayCaption(const QString& caption) override { trayCaption = caption; }
    void placeMainWindow(bool topmost) override
    {
        calls.append(topmost ? QStringLiteral("topmost") : QStringLiteral("not topmost"));
    }
    void setGridLines(bool shown) override
    {
        calls.append(shown ? QStringLiteral("grid lines") : QStringLiteral("no grid lines"));
    }
    void LoadTasks() override
    {
        calls.append(QStringLiteral("LoadTasks"));
        recordAtLoadTasks = m_record;
    }

    QString trayCaption;
    QStringList calls;
    SettingsRecord recordAtLoadTasks;

private:
    const SettingsRecord& m_record;
};

/// The settings page over a fresh data file, three shipped skins and a registry that only remembers.
struct SettingsPageUnderTest : TestServices {
    SettingsPageUnderTest() : skins(files, dialogs), host(record)
    {
        copySkins(
            database.folder(), {QStringLiteral("Aqua"), QStringLiteral("Lemon"), QStringLiteral("Classic")});
        record = SettingsStore(database.engine()).read();
        page.LoadSkinsList();
        page.LoadSettingsPage();
        database.statements().take();
    }

    QCheckBox* box(const char* name) const { return page.findChild<QCheckBox*>(QLatin1String(name)); }
    QComboBox* cmbSkins() const { return page.findChild<QComboBox*>(QStringLiteral("cmbSkins")); }
    QList<QCheckBox*> boxes() const { return page.findChildren<QCheckBox*>(); }
    void setAll(bool checked) const
    {
        for (QCheckBox* each : boxes()) {
            each->setChecked(checked);
        }
    }
    void press(const char* button) const
    {
        QTest::mouseClick(page.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    }
    /// As the user does: the choice is reported even when the entry was selected already.
    void choose(const QString& skin) const
    {
        cmbSkins()->setCurrentText(skin);
        emit cmbSkins()->activated(cmbSkins()->currentIndex());
    }
    /// What the line at the foot says.
    QString said() const { return page.findChild<QuietLine*>(QStringLiteral("lblSettingsNote"))->said(); }
    QByteArray runEntry() const { return registry.runEntry("Ambertask").data; }
    QString folderOfSkins() const { return database.folder() + QStringLiteral("/Skins"); }

    SettingsRecord record;
    MemoryRegistry registry;
    Skins skins;
    RecordedMainWindow host;
    SettingsPage page{services, record, registry, skins, host};
};
