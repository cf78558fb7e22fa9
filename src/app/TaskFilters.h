#pragma once

#include "data/TaskFilter.h"

#include <QDate>
#include <QWidget>
#include <optional>

class Clock;
class ComboBox;
class FilterFold;
class QDateEdit;
class QLabel;
class QRadioButton;
struct DatabaseEngine;

/// The filter block of the page "Tasks": three frames with categories, status and sort, due dates and kind.
/// Folded away it says in a line which filters leave tasks out.
class TaskFilters : public QWidget
{
    Q_OBJECT

public:
    explicit TaskFilters(const Clock& clock, QWidget* parent = nullptr);

    /// Fills the three lists and selects their first entries. Throws DatabaseError.
    void fillLists(const DatabaseEngine& engine);
    /// Reloads the category list; the selected category stays selected while it exists. Throws DatabaseError.
    void reloadCategories(const DatabaseEngine& engine);
    /// Sets both date pickers to `today`, selects specific dates or all dates, without telling.
    void startWith(const QDate& today, bool todayOnly);
    /// Sets both date pickers to `today`, without telling, and returns true when they stand on another day
    /// and follow the day: the block was started with one day alone and the user has not touched the dates
    /// since.
    bool moveOnTo(const QDate& today);

    /// Selects all tasks in every filter and tells it as one change. The sort stays.
    void showAll();

    TaskFilter filter() const;
    /// Chooses the order in the list `cmbSort`; the order that is chosen already is turned round.
    void sortBy(qint32 number);
    FilterFold& fold() const { return *m_fold; }
    /// The filters that leave tasks out, in words.
    QString activeFilters() const;
    /// The index of the selected entry of the category filter.
    int selectedCategoryIndex() const;
    bool hasCategories() const;
    /// Empty for a category that is not in the list.
    QString categoryName(qint16 id) const;

signals:
    /// The user chose something that changes what the list has to show.
    void changed();

private:
    void list_Click();
    void cmbSort_Click();
    void opnAllDate_Click(bool selected);
    void opnSpecificDate_Click(bool selected);
    void dates_Changed();
    void opnTaskType_Click(bool selected);

    QWidget* makeFilterFrame();
    QWidget* makeDueDateFrame(const Clock& clock);
    QWidget* makeTaskTypeFrame();
    void setDatesEnabled(bool enabled);
    void noteSort();
    void tell();
    void sayFilters();

    ComboBox* m_categories;
    ComboBox* m_status;
    ComboBox* m_sort;
    QRadioButton* m_allDate;
    QRadioButton* m_specificDate;
    QLabel* m_dateFromLabel;
    QLabel* m_dateToLabel;
    QDateEdit* m_dateFrom;
    QDateEdit* m_dateTo;
    QRadioButton* m_allTasks;
    QRadioButton* m_activeTasks;
    QRadioButton* m_expiredTasks;
    FilterFold* m_fold;
    qint32 m_sortedBy = TaskSort::None;
    bool m_isDescending = false;
    /// The day that both date pickers follow; none once the user has touched the date controls.
    std::optional<QDate> m_followedDay;
};
