#include "widgets/CheckBox.h"

#include "widgets/AccessibleControls.h"

CheckBox::CheckBox(QWidget* parent) : CheckBox(QString(), parent)
{
}

CheckBox::CheckBox(const QString& caption, QWidget* parent) : QCheckBox(caption, parent)
{
    installAccessibleControls();
}
