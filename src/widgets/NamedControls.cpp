#include "widgets/NamedControls.h"

#include <QLabel>

QLabel* plainLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* labelFor(QWidget* buddy, const QString& text, QWidget* parent)
{
    QLabel* label = plainLabel(text, parent);
    label->setBuddy(buddy);
    return label;
}
