#pragma once

#include <QRadioButton>

/// A picture of which one in a group is selected: the selected one has a single-line border. Pressing any
/// mouse button on it selects; within an exclusive button group the arrow keys go from one to the next and
/// select it.
class IconBox : public QRadioButton
{
    Q_OBJECT

public:
    explicit IconBox(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    bool hitButton(const QPoint& position) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void followLetters();
};
