#include "widgets/ControlValue.h"

#include "widgets/LongText.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>

QString valueOf(const QWidget* control)
{
    if (const auto* picker = qobject_cast<const QDateTimeEdit*>(control)) {
        return picker->text();
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(control)) {
        return wholeText(*edit);
    }
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(control)) {
        return wholeText(*edit);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
        return combo->currentText();
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(control)) {
        return box->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    }
    if (qobject_cast<const QAbstractButton*>(control) != nullptr) {
        return QStringLiteral("False");
    }
    return {};
}
