#pragma once

#include <QWidget>

/// A panel that is white when enabled and light grey otherwise, under every skin; its palette gives what
/// stands on it a dark text colour.
class PicturePanel : public QWidget
{
    Q_OBJECT

public:
    explicit PicturePanel(QWidget* parent = nullptr);

    /// Enables or disables the panel and everything on it.
    void setUsable(bool usable);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeColours();

    QColor m_background;
};
