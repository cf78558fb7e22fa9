#pragma once

#include <QList>
#include <QWidget>
#include <memory>

class ScrollFrame;

/// A page of a window that nobody has seen yet. It rests until it wakes: no style reaches it, and it is laid
/// out nowhere.
class RestingPage
{
public:
    /// Owns `page` until that wakes. `beside` are the controls that take of the window's height.
    RestingPage(QWidget* page, QList<const QWidget*> beside);

    /// Where the page will be seen, for the window to take.
    QWidget* place() const { return m_place; }
    /// Makes the page a part of the window ahead, so that it takes its style but once when it wakes.
    void join();
    /// Puts the page into its place. Nothing when it is there.
    void wake();

private:
    ScrollFrame& frame();

    QList<const QWidget*> m_beside;
    QWidget* m_place;
    /// None before the page is to be seen.
    ScrollFrame* m_frame = nullptr;
    /// None once the frame holds it.
    std::unique_ptr<QWidget> m_page;
};
