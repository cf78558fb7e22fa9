#pragma once

#include <QAnyStringView>
#include <QString>

class QLabel;
class QWidget;

/// Gives a new control its object name.
template <typename Control> Control* named(Control* control, QAnyStringView name)
{
    control->setObjectName(name);
    return control;
}

/// A label that shows `text` letter for letter.
QLabel* plainLabel(const QString& text, QWidget* parent = nullptr);
/// The same; the mnemonic in `text` gives the focus to `buddy`.
QLabel* labelFor(QWidget* buddy, const QString& text, QWidget* parent = nullptr);
