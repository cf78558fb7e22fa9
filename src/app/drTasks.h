#pragma once

#include "app/TaskListModel.h"
#include "app/TaskReportFormats.h"
#include "data/TaskFilter.h"
#include "report/ReportWindow.h"
#include "store/Connection.h"
#include "widgets/FormServices.h"

#include <QCoreApplication>
#include <map>
#include <optional>

class Modules;

inline constexpr char ReportModule[] = "ambertask_report";

/// Loads the report module; nothing when there is none.
std::unique_ptr<ReportWindow> loadReportWindow(Modules& modules, ReportHost& host);

/// Asks for a file and saves those tasks in a form for other programs. Returns what to say about it, empty
/// when the user has cancelled. Throws RuntimeError.
using TaskSaving = std::function<QString(QWidget* owner, const QList<qint32>& ids)>;

/// The report of tasks. One instance for all print runs: each shows its tasks in the same window.
class drTasks final : private ReportHost
{
    Q_DECLARE_TR_FUNCTIONS(drTasks)

public:
    drTasks(const FormServices& services, ReportWindowFactory makeWindow, TaskSaving saveTasks);
    ~drTasks() override;

    /// Runs the query of `filter` on a connection of its own, binds the fields to its columns and shows the
    /// report, of the tasks that are `shown`, above `owner`. Throws RuntimeError, also Cancelled, and then
    /// the report shows what it showed before.
    void printTasks(const TaskFilter& filter, QWidget* owner, const ShownTasks& shown = {});

    /// Creates the two format objects and attaches them to their controls.
    void DataReport_Initialize();
    /// Keeps what `DataReport_QueryClose` is to close, and closes what an earlier run has left.
    void forFinalizing(Connection connection, RecordSet records);
    /// Closes the connection if it is open and drops it and its record set.
    void DataReport_QueryClose();
    /// To be called when the data file has been replaced: the ids of the tasks shown mean other tasks.
    void forgetTasks() { m_ids.reset(); }

    /// The sections from top to bottom.
    const std::vector<ReportSection>& sections() const { return m_sections; }
    /// Null before the first run.
    QWidget* window() const { return m_window == nullptr ? nullptr : m_window->widget(); }

private:
    void readReport(const TaskFilter& filter, const ShownTasks& shown);
    void bindFields();
    /// What a text control of the report shows of a record.
    struct Column {
        int field;
        const std::function<void(QString&)>* format; ///< null for none
        bool isDate;
        bool isDescription;
    };
    /// Those of the text controls, in their order.
    std::vector<Column> columnsOf(const RecordSet& records) const;
    /// Reads the record set to its end: the records that the list shows, in its order.
    struct ReportRecords {
        QList<qint32> ids;
        std::vector<std::vector<QString>> texts;
    };
    ReportRecords readRecords(RecordSet& records, const TaskFilter& filter, const ShownTasks& shown) const;
    ReportWindow& loadedWindow();

    QString choosePdfFile(QWidget* owner) override;
    QString saveTasks(QWidget* owner) override;
    void tellFailure(QWidget* owner, const QString& text) override;
    void windowClosed() override;

    const FormServices& m_services;
    ReportWindowFactory m_makeWindow;
    TaskSaving m_saveTasks;
    /// Of the tasks of the report, in its order; none when they are no longer those of the data file.
    std::optional<QList<qint32>> m_ids;
    std::vector<ReportSection> m_sections;
    std::map<QString, DataFormat> m_formats; ///< by control name
    std::optional<Connection> m_connection;
    std::optional<RecordSet> m_records;
    std::unique_ptr<ReportWindow> m_window;
};
