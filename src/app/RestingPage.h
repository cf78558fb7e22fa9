#pragma once

#include <QList>
#include <QWidget>
#include <memory>

class ScrollFrame;

/// A page of a window that nobody has seen yet. It rests until `wake`: until then it is neither styled nor
/// laid out.
class RestingPage
{
public:
    /// Owns `page` until `wake`. `beside` are the controls that take height from the window.
    RestingPage(QWidget* page, QList<const QWidget*> beside);

    /// The widget for the window's layout, into which the page is put.
    QWidget* place() const { return m_place; }
    /// Makes the page a child of the window early, so that it is styled only once, by `wake`.
    void join();
    /// Puts the page in its place; does nothing if it is there.
    void wake();

private:
    ScrollFrame& frame();

    QList<const QWidget*> m_beside;
    QWidget* m_place;
    /// Null until `join` or `wake`.
    ScrollFrame* m_frame = nullptr;
    /// Null once the frame owns it.
    std::unique_ptr<QWidget> m_page;
};
