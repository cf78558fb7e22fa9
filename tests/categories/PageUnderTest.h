#pragma once

#include "categories/CategoriesPage.h"
#include "categories/frmCategoryDetails.h"
#include "support/TestServices.h"

#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <memory>

/// The categories page in a window of its own with the category dialog, wired as in the program, over a data
/// file without categories.
struct PageUnderTest : TestServices {
    PageUnderTest()
    {
        database.removeAllCategories();
        page =
            std::make_unique<CategoriesPage>(services, [this]() -> frmCategoryDetails& { return *dialog; });
        page->readPictures();
        dialog = std::make_unique<frmCategoryDetails>(services);
        QObject::connect(
            dialog.get(), &frmCategoryDetails::categoryStored, page.get(), &CategoriesPage::LoadCategories);
    }

    template <typename Control> Control* find(const char* name) const
    {
        return page->findChild<Control*>(QLatin1String(name));
    }
    QListWidget* list() const { return find<QListWidget>("lstViewCategories"); }
    void press(const char* button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }

    /// The names in the list, the selected one in brackets.
    QString listed() const
    {
        QStringList names;
        for (int row = 0; row < list()->count(); ++row) {
            const QListWidgetItem* item = list()->item(row);
            names.append(
                item->isSelected() ? QLatin1Char('[') + item->text() + QLatin1Char(']') : item->text());
        }
        return names.join(QLatin1Char(' '));
    }

    void select(int row) const { list()->setCurrentRow(row, QItemSelectionModel::ClearAndSelect); }
    bool show() const
    {
        page->resize(500, 400);
        page->show();
        return QTest::qWaitForWindowActive(page.get());
    }
    QPoint centreOf(int row) const { return list()->visualItemRect(list()->item(row)).center(); }

    /// Adds a category with a custom icon and answers its id.
    qint16 addCustom(const QString& name, const QString& picture) const
    {
        const qint16 id = database.addCategory(name);
        database.sql(
            QStringLiteral("update categories set custom_icon = 1, cat_icon_name = '%1' where cat_id = %2")
                .arg(picture)
                .arg(id));
        return id;
    }
    QString customIcons() const { return database.folder() + QLatin1String("/custom icons"); }

    std::unique_ptr<CategoriesPage> page;
    std::unique_ptr<frmCategoryDetails> dialog;
};
