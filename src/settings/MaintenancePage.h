#pragma once

#include "widgets/clsGuiLoader.h"

#include <QDate>
#include <QWidget>
#include <functional>

class ComboBox;
class QBoxLayout;
class QComboBox;
class QDateEdit;
class QGroupBox;
class QPushButton;
class QRadioButton;
class QuietLine;
struct FormServices;

/// The page "Maintenance": bulk delete of tasks, backup and restore of the data file, exchange of tasks with
/// other programs.
class MaintenancePage : public QWidget
{
    Q_OBJECT

public:
    /// `services` outlives the page.
    explicit MaintenancePage(const FormServices& services, QWidget* parent = nullptr);

    /// Fills both lists, sets both dates to today and selects all tasks. Throws DatabaseError.
    void prepareFilters();
    /// The category list, for reloads after a change of categories.
    QComboBox& cmbCategoriesMaintenance() const;

    /// Shows in the line at the foot of the page how an export or import has ended.
    void say(const QString& text);
    /// Restores the copy `file` with its progress over `owner`, as the button does with a chosen file.
    /// Returns why nothing was restored; empty when it was, or when the user has cancelled.
    QString restoreCopy(const QString& file, QWidget* owner);

    /// Enables the help button, which is disabled at first.
    void setHelpEnabled(bool enabled);

signals:
    /// The data file has been replaced. Everything shown must be reloaded, then the settings page saved;
    /// the restore is over when the slots have returned. They must not throw: a failure in them ends the
    /// restore silently.
    void dataRestored();
    /// A file has been chosen, which is to replace the data file: nothing of the program may have that open.
    void dataFileToBeReplaced();
    /// Tasks have been deleted in bulk.
    void tasksDeleted();
    /// An export or import begins: asks for the file.
    void exportRequested();
    void importRequested();
    /// The list of the copies that the program has made is to be shown.
    void copiesRequested();
    void helpRequested();

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// Sets both dates to today.
    void showToday();
    QGroupBox* makeDeleteFrame();
    QGroupBox* makeDateRangeFrame();
    QGroupBox* makeCopyFrame();
    QGroupBox* makeExchangeFrame();
    QBoxLayout* makeTaskTypeOptions();

    void btnBackup_Click();
    void btnRestore_Click();
    void btnDeleteTasksMaintenance_Click();
    QString chooseBackup();
    QString restore(QWidget* owner, const std::function<QString()>& choose);
    struct Criteria;
    Criteria shownCriteria() const;

    const FormServices& m_services;
    clsGuiLoader m_loader;
    ComboBox* m_cmbCategories = nullptr;
    ComboBox* m_cmbStatus = nullptr;
    QDateEdit* m_dtpDateFrom = nullptr;
    QDateEdit* m_dtpDateTo = nullptr;
    QDate m_shownDay; ///< that both dates were set to
    QRadioButton* m_opnAllTasks = nullptr;
    QRadioButton* m_opnActiveTasks = nullptr;
    QRadioButton* m_opnExpiredTasks = nullptr;
    QPushButton* m_btnDeleteTasks = nullptr;
    QPushButton* m_btnBackup = nullptr;
    QPushButton* m_btnRestore = nullptr;
    QPushButton* m_btnCopies = nullptr;
    QPushButton* m_btnHelp = nullptr;
    QuietLine* m_quietLine = nullptr;
};
