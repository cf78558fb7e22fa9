#pragma once

#include <QCheckBox>

/// A two-state check box that sends `clicked` when the user changes it, also through assistive technology,
/// and never when the program does.
class CheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget* parent = nullptr);
    explicit CheckBox(const QString& caption, QWidget* parent = nullptr);
};
