#pragma once

#include <QLabel>

/// A label that acts as a link, by mouse or keyboard (Space, Enter).
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(const QString& text, QWidget* parent = nullptr);

    /// Acts as if the user had clicked it.
    void click();

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
