#pragma once

#include <QCheckBox>

/// A check box with two states that sends `clicked` whenever the user changes it, be it through assistive
/// technology, and never when the program does.
class CheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget* parent = nullptr);
    explicit CheckBox(const QString& caption, QWidget* parent = nullptr);
};
