#pragma once

#include <QWidget>

/// A panel that is white while it can be used and light grey otherwise, under every skin; what stands on it
/// takes its dark text colour from the panel's palette.
class PicturePanel : public QWidget
{
    Q_OBJECT

public:
    explicit PicturePanel(QWidget* parent = nullptr);

    /// Enables or disables the panel with all that is on it.
    void setUsable(bool usable);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeColours();

    QColor m_background;
};
