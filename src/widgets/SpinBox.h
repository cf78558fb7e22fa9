#pragma once

#include <QSpinBox>

/// A box for a number. The wheel changes it only while it has the focus.
class SpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit SpinBox(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
