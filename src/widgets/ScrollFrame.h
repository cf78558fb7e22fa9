#pragma once

#include <QList>
#include <QScrollArea>

/// Lets a page or dialog be smaller than its content on a small screen: it has the size of its content
/// while the window fits on the screen, and scrolls otherwise. A control that gets the focus is scrolled
/// into view.
class ScrollFrame : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes ownership of `content`. `beside` are the widgets above and below it in the same window; not
    /// owned.
    explicit ScrollFrame(QWidget* content, QList<const QWidget*> beside = {}, QWidget* parent = nullptr);
    /// Without content it takes no room.
    explicit ScrollFrame(QList<const QWidget*> beside);

    /// Takes ownership of `content`, for a frame without one.
    void hold(QWidget* content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Scrolls `shown` into view, as little as needed.
    void reveal(const QWidget& shown);
    /// `size`, limited to the room that the screen has.
    QSize boundedToScreen(QSize size) const;

    QList<const QWidget*> m_beside;
};
