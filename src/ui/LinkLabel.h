#pragma once

#include <QLabel>

/// A label that is pressed like a link, by mouse or by keyboard (Space, Enter).
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(const QString& text, QWidget* parent = nullptr);

    /// Presses it, as a click of the user does.
    void click();

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
