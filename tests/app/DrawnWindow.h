#pragma once

#include <QImage>

class QWidget;

/// A picture of a window, drawn so large that the strokes of its letters have pixels of their full colour.
class DrawnWindow
{
public:
    /// `window` outlives this object.
    explicit DrawnWindow(QWidget& window);

    /// Whether more than half of `place`, in coordinates of a control of the window, can be seen.
    bool isInSight(const QWidget& control, const QRect& place) const;
    /// The greatest contrast there between the most frequent colour and any that covers more than a speck; 1
    /// to 21.
    double strongestContrast(const QWidget& control, const QRect& place) const;

private:
    QWidget& m_window;
    QImage m_picture;
};
