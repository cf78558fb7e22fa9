#pragma once

#include <QLabel>

/// A caption inside the window whose colours can be inverted, in place of a flashing title bar. Uses the
/// palette's highlight colours.
class FlashBand : public QLabel
{
    Q_OBJECT

public:
    explicit FlashBand(const QString& text, QWidget* parent = nullptr);

    bool isInverted() const { return m_inverted; }
    void setInverted(bool inverted);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_inverted = false;
};
