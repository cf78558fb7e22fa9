#pragma once

#include "categories/IconBox.h"
#include "categories/PicturePanel.h"
#include "categories/frmCategoryDetails.h"
#include "support/TestServices.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

/// The category dialog over a data file without categories; random numbers come from `draws`, in turn.
struct DialogUnderTest : TestServices {
    DialogUnderTest() : dialog(services, [this] { return draws.takeFirst(); })
    {
        database.removeAllCategories();
    }

    template <typename Control> Control* find(const QString& name) const
    {
        return dialog.findChild<Control*>(name);
    }
    QLineEdit* name() const { return find<QLineEdit>(QStringLiteral("txtCatName")); }
    QPlainTextEdit* description() const { return find<QPlainTextEdit>(QStringLiteral("txtCatDesc")); }
    QRadioButton* defaultIcon() const { return find<QRadioButton>(QStringLiteral("opnDefaultIcon")); }
    QRadioButton* customIcon() const { return find<QRadioButton>(QStringLiteral("opnCustomIcon")); }
    IconBox* icon(int index) const { return find<IconBox>(QStringLiteral("imgIcon%1").arg(index)); }
    PicturePanel* icons() const { return find<PicturePanel>(QStringLiteral("picIcons")); }
    PicturePanel* custom() const { return find<PicturePanel>(QStringLiteral("picCustomIcon")); }
    QLabel* preview() const { return find<QLabel>(QStringLiteral("imgCustomIcon")); }
    bool showsPicture() const { return !preview()->pixmap(Qt::ReturnByValue).isNull(); }
    void press(const char* button) const
    {
        QTest::mouseClick(find<QPushButton>(QLatin1String(button)), Qt::LeftButton);
    }
    void choose(QRadioButton* option) const { option->click(); }
    bool show()
    {
        dialog.show();
        return QTest::qWaitForWindowActive(&dialog);
    }

    /// The indexes of the icons with a border.
    QList<int> bordered() const
    {
        QList<int> indexes;
        for (int i = 0; i < 12; ++i) {
            if (icon(i)->isChecked()) {
                indexes.append(i);
            }
        }
        return indexes;
    }

    /// Adds a category with a custom icon and answers its id as a tag.
    QString addCustom(const QString& category, const QString& picture) const
    {
        const qint16 id = database.addCategory(category, 21);
        database.sql(
            QStringLiteral("update categories set custom_icon = 1, cat_icon_name = '%1' where cat_id = %2")
                .arg(picture)
                .arg(id));
        return QString::number(id);
    }
    /// Name, description, icon, custom flag and picture name of every category, one a line.
    QString stored() const
    {
        QStringList lines;
        for (const QVariantList& row : database.rows(QStringLiteral(
                 "select cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from categories"))) {
            QStringList values;
            for (const QVariant& value : row) {
                values.append(value.toString());
            }
            lines.append(values.join(QLatin1Char('|')));
        }
        return lines.join(QLatin1Char('\n'));
    }
    QString customIcons() const { return database.folder() + QLatin1String("/custom icons"); }

    QList<double> draws;
    frmCategoryDetails dialog;
};
