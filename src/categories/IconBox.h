#pragma once

#include <QRadioButton>

/// A picture that can be selected; the selected one has a single-line border. Any mouse button selects it;
/// in an exclusive button group the arrow keys move the selection.
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
