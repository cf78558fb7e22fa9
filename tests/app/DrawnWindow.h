#pragma once

#include <QHash>
#include <QImage>

class QWidget;

/// A picture of a window, enlarged so that the strokes of its letters have pixels of their full colour.
class DrawnWindow
{
public:
    /// `window` outlives this object.
    explicit DrawnWindow(QWidget& window);

    /// Whether more than half of `place`, in coordinates of a control of the window, is visible.
    bool isInSight(const QWidget& control, const QRect& place) const;
    /// The highest contrast, 1 to 21, of more than a few pixels there with the most frequent colour.
    double strongestContrast(const QWidget& control, const QRect& place) const;
    /// The most frequent colour there.
    QRgb ground(const QWidget& control, const QRect& place) const;

private:
    QHash<QRgb, int> colors(const QWidget& control, const QRect& place) const;

    QWidget& m_window;
    QImage m_picture;
};
