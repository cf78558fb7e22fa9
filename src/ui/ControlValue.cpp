#include "ui/ControlValue.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

QString valueOf(const QWidget* control)
{
    if (const auto* picker = qobject_cast<const QDateTimeEdit*>(control)) {
        return picker->text();
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(control)) {
        return edit->text();
    }
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(control)) {
        return textOf(*edit);
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

QString textOf(const QPlainTextEdit& edit)
{
    QString text = edit.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}
