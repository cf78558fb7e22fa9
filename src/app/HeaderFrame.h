#pragma once

#include <QWidget>

/// The header of the main window. It reports requests for its context menu, by mouse or, on one of its
/// links, by the menu key or Shift+F10.
class HeaderFrame : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

signals:
    /// `place` is in screen coordinates.
    void menuRequested(const QPoint& place, bool byKeys);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
