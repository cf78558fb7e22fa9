#pragma once

#include <QWidget>

/// The header of the main window. It says when its menu is asked for, and whether by keys: on one of its
/// links the menu key or Shift+F10.
class HeaderFrame : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

signals:
    /// `place` is on the screen.
    void menuRequested(const QPoint& place, bool byKeys);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
