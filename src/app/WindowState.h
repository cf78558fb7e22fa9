#pragma once

#include "system/StateFile.h"

#include <QObject>

class FilterFold;
class GridView;
class QWidget;

/// Keeps what the user has arranged in the main window from one start to the next: its place, its size,
/// whether it is maximized, the widths of the list's columns, the fold of the filters. Writes when the window
/// is hidden, after a drag of a column's edge or a fold, and when `keep` is called.
class WindowState : public QObject
{
    Q_OBJECT

public:
    /// All outlive this object. Without a path nothing is kept.
    WindowState(const QString& path, QWidget& window, GridView& grid, FilterFold& fold);

    /// To be called before the window is shown for the first time. What was never arranged stays as it is.
    void restore();
    void keep();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restorePlace();
    void restoreColumns();
    void noteWindow();
    void noteColumns();

    StateFile m_file;
    QWidget& m_window;
    GridView& m_grid;
    FilterFold& m_fold;
};
