#pragma once

#include <QFont>
#include <QHash>
#include <QImage>
#include <QPalette>

class QWidget;

/// What a window looks like, and in which palettes and fonts its controls, hidden ones included, would be
/// drawn.
class WindowLook
{
public:
    WindowLook() = default;
    explicit WindowLook(QWidget& window);

    QSize size() const { return m_picture.size(); }
    qsizetype controls() const { return m_controls.size(); }
    /// What is different in `other`, as far as there are the same controls; empty for nothing.
    QStringList differences(const WindowLook& other) const;

private:
    struct Control {
        QPalette palette;
        QFont font;
    };

    QImage m_picture;
    /// By the way to the control.
    QHash<QString, Control> m_controls;
};
