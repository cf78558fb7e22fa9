#pragma once

#include <QList>
#include <QScrollArea>

/// Lets a page or dialog be smaller than it needs where the screen is: it takes the size of what it holds as
/// long as the window fits on the screen, and scrolls beyond. What gets the focus is scrolled into view.
class ScrollFrame : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes ownership of `content`. `beside` is what else stands above or below in the same window; not
    /// owned.
    explicit ScrollFrame(QWidget* content, QList<const QWidget*> beside = {}, QWidget* parent = nullptr);
    /// Without content it takes no room.
    explicit ScrollFrame(QList<const QWidget*> beside);

    /// Takes ownership of `content`, for a frame that has none.
    void hold(QWidget* content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Scrolls what has the focus into view, as little as needed.
    void reveal(const QWidget& shown);
    /// `size`, and where it exceeds the screen, what there is room for.
    QSize boundedToScreen(QSize size) const;

    QList<const QWidget*> m_beside;
};
