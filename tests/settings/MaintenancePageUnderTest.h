#pragma once

#include "settings/MaintenancePage.h"
#include "settings/SkinFolder.h"
#include "support/TestServices.h"
#include "widgets/QuietLine.h"

#include <QComboBox>
#include <QDateEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

/// The maintenance page over a fresh data file. The clock stands at 15 January 2026, 10:00:00.
struct MaintenancePageUnderTest : TestServices {
    MaintenancePageUnderTest()
    {
        page.prepareFilters();
        database.statements().take();
    }

    template <typename Control> Control* find(const char* name) const
    {
        return page.findChild<Control*>(QLatin1String(name));
    }
    void press(const char* button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
    void choose(const char* option) const { find<QRadioButton>(option)->setChecked(true); }
    void setRange(QDate from, QDate to) const
    {
        find<QDateEdit>("dtpDateFromMaintenance")->setDate(from);
        find<QDateEdit>("dtpDateToMaintenance")->setDate(to);
    }
    QStringList tasks() const
    {
        QStringList names;
        for (const QVariantList& row :
            database.rows(QStringLiteral("select task_name from tasks order by task_id"))) {
            names.append(row.first().toString());
        }
        return names;
    }
    /// What the line at the foot says.
    QString said() const { return find<QuietLine>("lblMaintenanceNote")->said(); }
    /// All that lies in the program folder, hidden files included.
    QStringList files() const
    {
        return QDir(database.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QString pathOf(const QString& name) const { return database.folder() + u'/' + name; }

    MaintenancePage page{services};
    QSignalSpy deleted{&page, &MaintenancePage::tasksDeleted};
    QSignalSpy restored{&page, &MaintenancePage::dataRestored};
};
