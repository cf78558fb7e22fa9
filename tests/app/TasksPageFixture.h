#pragma once

#include "app/TasksPage.h"
#include "support/TestServices.h"
#include "widgets/GridView.h"

#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

/// The page in a window of its own, over a data file that holds the categories "Home" and "Office".
struct TasksPageFixture {
    TasksPageFixture() : page(services.services, [this] { return columns; })
    {
        services.database.removeAllCategories();
        home = services.database.addCategory(QStringLiteral("Home"), 0);
        office = services.database.addCategory(QStringLiteral("Office"), 1);
        page.resize(900, 600);
    }
    void load()
    {
        page.fillFilters();
        page.startWith(false);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        services.database.statements().take();
    }
    template <typename Control> Control* control(const char* name)
    {
        return page.findChild<Control*>(QLatin1String(name));
    }
    void press(const char* name) { QTest::mouseClick(control<QPushButton>(name), Qt::LeftButton); }
    void select(const char* name) { control<QRadioButton>(name)->click(); }
    void choose(const char* name, const QString& text)
    {
        auto* combo = control<QComboBox>(name);
        combo->setCurrentText(text);
        emit combo->activated(combo->currentIndex());
    }
    QStringList names()
    {
        QStringList names;
        for (int row = 0; row < page.grid()->model()->rowCount(); ++row) {
            names.append(page.grid()->model()->index(row, 1).data().toString());
        }
        return names;
    }
    QStringList keys()
    {
        QStringList keys;
        for (int i = 0; i < page.grid()->model()->columnCount(); ++i) {
            keys.append(page.grid()->model()->headerData(i, Qt::Horizontal, Qt::UserRole).toString());
        }
        return keys;
    }
    QStringList headers()
    {
        QStringList headers;
        for (int i = 0; i < page.grid()->model()->columnCount(); ++i) {
            headers.append(page.grid()->model()->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString());
        }
        return headers;
    }
    bool hasIcon(int row, int column)
    {
        return !page.grid()->model()->index(row, column).data(Qt::DecorationRole).value<QIcon>().isNull();
    }

    TestServices services;
    TaskColumns columns;
    TasksPage page;
    qint16 home = 0;
    qint16 office = 0;
};
