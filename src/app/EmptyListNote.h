#pragma once

#include <QCoreApplication>
#include <QObject>

class GridView;
class QPushButton;
class QString;
class QWidget;

/// Why the task list shows no row, if it shows none.
enum class EmptyList { No, NoTask, NoneUnderFilters, NothingFound };

/// `all` tasks are under the filters, of which the list shows `shown`.
EmptyList emptyList(int all, int shown, bool areFiltersNarrow);
/// How many tasks a search shows.
QString foundText(int shown, int all);

/// Says in an empty task list why it is empty, and offers to show all tasks where filters hide them.
class EmptyListNote : public QObject
{
    Q_OBJECT

public:
    /// `page` holds `grid` and gets the button; it becomes the owner.
    EmptyListNote(GridView& grid, QWidget& page);

    /// `sought` is what the user looks for.
    void tell(EmptyList why, const QString& sought);

signals:
    /// "Show all" was pressed.
    void showAllRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeButton();
    void placeButton();

    GridView& m_grid;
    QPushButton* m_showAll = nullptr; ///< made when it is first shown
};
