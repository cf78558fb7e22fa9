#pragma once

#include <QFont>
#include <QHash>
#include <QImage>
#include <QPalette>

class QWidget;

/// The appearance of a window, and the palettes and fonts of its controls, hidden ones included.
class WindowLook
{
public:
    WindowLook() = default;
    explicit WindowLook(QWidget& window);

    QSize size() const { return m_picture.size(); }
    qsizetype controls() const { return m_controls.size(); }
    /// The differences in `other`, for controls that both have; empty for none.
    QStringList differences(const WindowLook& other) const;

private:
    struct Control {
        QPalette palette;
        QFont font;
    };

    QImage m_picture;
    /// By the path to the control.
    QHash<QString, Control> m_controls;
};
