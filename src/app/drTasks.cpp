#include "app/drTasks.h"

#include "app/FixedPictures.h"
#include "data/ClsDatabase.h"
#include "data/TaskOrder.h"
#include "data/TaskRepeats.h"
#include "data/TaskReportQuery.h"
#include "data/TaskRows.h"
#include "system/ErrorReport.h"
#include "system/Modules.h"
#include "system/Shell.h"
#include "widgets/MessageBoxes.h"
#include "widgets/PdfFileChoice.h"
#include "widgets/PlainText.h"
#include "widgets/RepeatTexts.h"
#include "widgets/WindowPlacement.h"

#include <QCoreApplication>
#include <QLocale>
#include <array>
#include <set>

namespace
{

using Kind = ReportControl::Kind;

const QLatin1String Detail("cmdTasks_Detail");
constexpr QSize ReportLogoSize(288, 96);
// Behind the language code stands the format of the date.
const QLatin1String DueDateFormat("$l$dd/MM/yyyy");

/// A very long text is not printed as a whole: some lines of a name, some thirty pages of a description.
constexpr qsizetype MostOfName = 1000;
constexpr qsizetype MostOfDescription = 100'000;

struct Binding {
    const char* control;
    const char* column;
};
constexpr std::array Bindings{Binding{"txtCatName", "cat_name"}, Binding{"txtTaskName", "task_name"},
    Binding{"txtTaskPeriority", "task_periority"}, Binding{"txtTaskStatus", "task_status"},
    Binding{"txtTaskDueDate", "task_due_date"}, Binding{"txtTaskDesc", "task_desc"}};

ReportControl control(Kind kind, const char* name, const QString& caption = {})
{
    // The report is arranged from left to right; a caption of the other direction would leave its place.
    constexpr QChar LeftToRightMark(0x200E);
    return {kind, QLatin1String(name), caption.isRightToLeft() ? LeftToRightMark + caption : caption, {}};
}

std::vector<ReportSection> makeSections()
{
    return {{QStringLiteral("ReportHeader"), {}},
        {QStringLiteral("PageHeader"),
            {control(Kind::Image, "Image1"), control(Kind::Label, "Label7", QStringLiteral("Amber")),
                control(Kind::Label, "Label8", QStringLiteral("Organizer")),
                control(Kind::Label, "Label1", QLatin1String(VendorAddress))}},
        {Detail,
            {control(Kind::Label, "Label6", drTasks::tr("Category")), control(Kind::Text, "txtCatName"),
                control(Kind::Text, "txtTaskName"), control(Kind::Label, "Label2", drTasks::tr("Periority")),
                control(Kind::Text, "txtTaskPeriority"),
                control(Kind::Label, "Label3", drTasks::tr("Status")), control(Kind::Text, "txtTaskStatus"),
                control(Kind::Label, "Label4", drTasks::tr("Due date")),
                control(Kind::Text, "txtTaskDueDate"),
                control(Kind::Label, "Label5", drTasks::tr("Description")),
                control(Kind::Text, "txtTaskDesc"), control(Kind::Line, "Line2")}},
        {QStringLiteral("PageFooter"), {}}, {QStringLiteral("ReportFooter"), {}}};
}

QString dateText(Moment moment)
{
    static const QString format = QString(DueDateFormat).section(u'$', -1);
    // In the digits that the list uses, where a language has its own.
    return QLocale().toString(toQDate(moment), format);
}

} // namespace

std::unique_ptr<ReportWindow> loadReportWindow(Modules& modules, ReportHost& host)
{
    using Make = ReportWindow* (*)(ReportHost&);
    const auto make = modules.resolve<Make>(QLatin1String(ReportModule), "ambertaskMakeReportWindow");
    return std::unique_ptr<ReportWindow>(make == nullptr ? nullptr : make(host));
}

drTasks::drTasks(const FormServices& services, ReportWindowFactory makeWindow, TaskSaving saveTasks)
    : m_services(services), m_makeWindow(std::move(makeWindow)), m_saveTasks(std::move(saveTasks)),
      m_sections(makeSections())
{
    DataReport_Initialize();
}

drTasks::~drTasks() = default;

void drTasks::DataReport_Initialize()
{
    m_formats[QStringLiteral("txtTaskPeriority")] = {periorityFormat_Format};
    m_formats[QStringLiteral("txtTaskStatus")] = {statusFormat_Format};
}

void drTasks::printTasks(const TaskFilter& filter, QWidget* owner, const ShownTasks& shown)
{
    readReport(filter, shown);
    if (m_services.alwaysOnTop()) {
        makeTopmost(m_window->widget());
    }
    showOwned(m_window->widget(), owner);
}

void drTasks::readReport(const TaskFilter& filter, const ShownTasks& shown)
{
    Connection connection = ClsDatabase(m_services.engine).Connect();
    connection.open();
    RecordSet records = connection.execute(taskReportQuery(filter));
    ReportWindow& window = loadedWindow();
    bindFields();
    // A report may stay open for long; read to the end, the record set holds no lock on the data file.
    ReportRecords read = readRecords(records, filter, shown);
    ReportContent content{tr("Tasks Report"), logoIcon().pixmap(ReportLogoSize, 1).toImage(), m_sections,
        std::move(read.texts)};
    window.setContent(std::move(content));
    m_ids = std::move(read.ids);
    forFinalizing(std::move(connection), std::move(records));
}

void drTasks::bindFields()
{
    for (ReportSection& section : m_sections) {
        for (ReportControl& bound : section.controls) {
            for (const Binding& binding : Bindings) {
                if (bound.name == QLatin1String(binding.control)) {
                    bound.dataField = QLatin1String(binding.column);
                }
            }
        }
    }
}

std::vector<drTasks::Column> drTasks::columnsOf(const RecordSet& records) const
{
    std::vector<Column> columns;
    for (const ReportSection& section : m_sections) {
        for (const ReportControl& text : section.controls) {
            if (text.kind == Kind::Text) {
                const auto format = m_formats.find(text.name);
                columns.push_back({records.field(text.dataField.toStdString()),
                    format == m_formats.end() ? nullptr : &format->second.Format,
                    text.name == QLatin1String("txtTaskDueDate"), text.name == QLatin1String("txtTaskDesc")});
            }
        }
    }
    return columns;
}

drTasks::ReportRecords drTasks::readRecords(
    RecordSet& records, const TaskFilter& filter, const ShownTasks& shown) const
{
    struct ReportedTask {
        ClsTask task;
        std::vector<QString> texts;
    };
    const std::vector<Column> columns = columnsOf(records);
    const std::map<qint32, Repeat> repeats = TaskRepeats::all(m_services.engine);
    const std::set<qint32> ids = shown ? std::set(shown->begin(), shown->end()) : std::set<qint32>();
    TaskRows rows(m_services.engine, records);
    std::vector<ReportedTask> tasks;
    for (; !records.atEnd(); records.moveNext()) {
        ReportedTask& read = tasks.emplace_back(ReportedTask{ClsTask(m_services.engine), {}});
        if (!readOrLeaveOut(m_services.engine, [&] { rows.read(records, read.task); })
            || (shown && ids.count(read.task.Id()) == 0)) {
            tasks.pop_back();
            continue;
        }
        const auto repeat = repeats.find(read.task.Id());
        read.texts.reserve(columns.size());
        for (const Column& column : columns) {
            read.texts.push_back(column.isDate ? dateText(records.moment(column.field))
                                               : shownPart(records.text(column.field),
                                                   column.isDescription ? MostOfDescription : MostOfName));
            if (column.format != nullptr) {
                (*column.format)(read.texts.back());
            }
            if (column.isDescription && repeat != repeats.end()) {
                read.texts.back().prepend(
                    tr("Repeats %1").arg(repeatText(repeat->second.rule, repeat->second.first))
                    + (read.texts.back().isEmpty() ? QString() : QStringLiteral("\n")));
            }
        }
    }
    const auto taskOf = [](const ReportedTask& read) -> const ClsTask& {
        return read.task;
    };
    putInOrder(tasks, filter.sortBy, taskOf);
    if (filter.isDescending) {
        turnRound(tasks, filter.sortBy, taskOf);
    }
    ReportRecords read;
    read.texts.reserve(tasks.size());
    for (ReportedTask& task : tasks) {
        read.ids.append(task.task.Id());
        read.texts.push_back(std::move(task.texts));
    }
    return read;
}

ReportWindow& drTasks::loadedWindow()
{
    if (m_window == nullptr) {
        m_window = m_makeWindow ? m_makeWindow(*this) : nullptr;
    }
    if (m_window == nullptr) {
        throw RuntimeError(tr("The report cannot be shown: the module \"ambertask_report\" is missing from "
                              "the program's folder "
                              "or damaged."));
    }
    return *m_window;
}

void drTasks::forFinalizing(Connection connection, RecordSet records)
{
    DataReport_QueryClose();
    m_connection = std::move(connection);
    m_records = std::move(records);
}

void drTasks::DataReport_QueryClose()
{
    if (m_connection && m_connection->state() == Connection::State::Open) {
        m_connection->close();
    }
    m_connection.reset();
    m_records.reset();
}

QString drTasks::choosePdfFile(QWidget* owner)
{
    return ::choosePdfFile(m_services, owner, tr("Tasks Report") + QStringLiteral(".pdf"));
}

QString drTasks::saveTasks(QWidget* owner)
{
    if (!m_ids) {
        return tr("Nothing was saved: the report shows tasks from before the restore.");
    }
    try {
        return m_saveTasks(owner, *m_ids);
    } catch (const RuntimeError& error) {
        tellFailure(owner, tr("The tasks could not be saved.\n%1").arg(error.text()));
        return {};
    }
}

void drTasks::tellFailure(QWidget* owner, const QString& text)
{
    m_services.messages.tell(owner, MessageBoxes::Icon::Exclamation, text);
}

void drTasks::windowClosed()
{
    m_services.errors.guard([this] { DataReport_QueryClose(); });
}
