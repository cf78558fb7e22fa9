#include "ui/CheckBox.h"

#include "ui/AccessibleControls.h"

CheckBox::CheckBox(QWidget* parent) : CheckBox(QString(), parent)
{
}

CheckBox::CheckBox(const QString& caption, QWidget* parent) : QCheckBox(caption, parent)
{
    installAccessibleControls();
}
