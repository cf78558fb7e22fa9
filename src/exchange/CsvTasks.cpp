#include "exchange/CsvTasks.h"

#include "data/TaskCodes.h"
#include "exchange/ContentLine.h"
#include "exchange/ExchangeTexts.h"
#include "exchange/FileZones.h"
#include "exchange/TodoValues.h"
#include "system/RuntimeError.h"

#include <QLocale>
#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace
{

enum Column : int {
    NameColumn,
    DescriptionColumn,
    StatusColumn,
    CategoryColumn,
    DueColumn,
    PriorityColumn,
    ReminderColumn,
    ReminderTimeColumn,
    SoundColumn,
    FileColumn,
    PlayedColumn,
    DismissedColumn,
    UidColumn,
    RepeatColumn,
    FirstColumn,
    LeadColumn,
    DoneColumn,
    ColumnCount
};

constexpr std::array<std::string_view, ColumnCount> Header{"Name", "Description", "Status", "Category", "Due",
    "Priority", "Reminder", "Reminder time", "Sound", "File", "Played", "Dismissed", "UID", "Repeat",
    "Repeats from", "Reminds before", "Times done"};

/// A word that says what one of ours does.
struct Synonym {
    std::string_view word;
    int meaning;
};

/// Other names of columns: those of the data file, and those that other programs use.
constexpr std::array<Synonym, 33> ColumnNames{
    {{"task_name", NameColumn}, {"task", NameColumn}, {"title", NameColumn}, {"summary", NameColumn},
        {"subject", NameColumn}, {"content", NameColumn}, {"task_desc", DescriptionColumn},
        {"notes", DescriptionColumn}, {"note", DescriptionColumn}, {"details", DescriptionColumn},
        {"body", DescriptionColumn}, {"task_status", StatusColumn}, {"state", StatusColumn},
        {"categories", CategoryColumn}, {"cat_name", CategoryColumn}, {"project", CategoryColumn},
        {"list", CategoryColumn}, {"task_due_date", DueColumn}, {"due date", DueColumn},
        {"due_date", DueColumn}, {"deadline", DueColumn}, {"task_periority", PriorityColumn},
        {"periority", PriorityColumn}, {"reminder_on", ReminderColumn}, {"reminder on/off", ReminderColumn},
        {"reminder_date_time", ReminderTimeColumn}, {"reminder date", ReminderTimeColumn},
        {"reminder_time", ReminderTimeColumn}, {"reminder_sound", SoundColumn}, {"reminder_file", FileColumn},
        {"uuid", UidColumn}, {"rrule", RepeatColumn}, {"recurrence", RepeatColumn}}};

constexpr std::array<Synonym, 18> StatusWords{{{"Not Started", TaskStatus::NotStarted},
    {"In Progress", TaskStatus::InProgress}, {"Completed", TaskStatus::Completed},
    {"Waiting on someone else", TaskStatus::Waiting}, {"Deferred", TaskStatus::Deferred},
    {"NEEDS-ACTION", TaskStatus::NotStarted}, {"open", TaskStatus::NotStarted},
    {"todo", TaskStatus::NotStarted}, {"to do", TaskStatus::NotStarted}, {"pending", TaskStatus::NotStarted},
    {"IN-PROCESS", TaskStatus::InProgress}, {"started", TaskStatus::InProgress},
    {"done", TaskStatus::Completed}, {"complete", TaskStatus::Completed}, {"closed", TaskStatus::Completed},
    {"cancelled", TaskStatus::Completed}, {"waiting", TaskStatus::Waiting},
    {"on hold", TaskStatus::Deferred}}};
constexpr std::array<Synonym, 4> PriorityWords{{{"High", TaskPeriority::High},
    {"Normal", TaskPeriority::Normal}, {"Low", TaskPeriority::Low}, {"medium", TaskPeriority::Normal}}};
constexpr std::array<Synonym, 8> FlagWords{
    {{"yes", 1}, {"no", 0}, {"true", 1}, {"false", 0}, {"on", 1}, {"off", 0}, {"1", 1}, {"0", 0}}};

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

template <std::size_t Size>
std::optional<int> meaningOf(const std::array<Synonym, Size>& words, std::string_view word)
{
    const auto* found = std::find_if(words.begin(), words.end(),
        [word](const Synonym& known) { return equalsIgnoringCase(known.word, word); });
    return found == words.end() ? std::nullopt : std::optional(found->meaning);
}

template <std::size_t Size> std::string wordOf(const std::array<Synonym, Size>& words, qint32 meaning)
{
    const auto* found = std::find_if(
        words.begin(), words.end(), [meaning](const Synonym& known) { return known.meaning == meaning; });
    return found == words.end() ? std::to_string(meaning) : std::string(found->word);
}

int columnOf(std::string_view caption)
{
    const std::string_view name = trimmed(caption);
    for (int column = 0; column < ColumnCount; ++column) {
        if (equalsIgnoringCase(Header[static_cast<std::size_t>(column)], name)) {
            return column;
        }
    }
    return meaningOf(ColumnNames, name).value_or(-1);
}

/// Reads the fields of one row.
class RowReading
{
public:
    RowReading(ReadCsvTask& read, const QString& shortDate) : m_read(read), m_shortDate(shortDate) { }

    void readField(int column, const std::string& field);

private:
    TaskRecord& task() { return m_read.task.task; }
    void note(Column column, std::string_view value)
    {
        constexpr std::size_t Shown = 40;
        if (m_read.problem.isEmpty()) {
            m_read.problem = ExchangeTexts::tr("Column \"%1\" cannot be read: %2")
                                 .arg(textOf(Header[column]), textOf(value.substr(0, Shown)));
        }
    }
    template <std::size_t Size>
    bool readWord(
        Column column, const std::array<Synonym, Size>& words, const std::string& field, qint32& value)
    {
        const std::string_view word = trimmed(field);
        if (word.empty()) {
            return false;
        }
        const auto meaning = meaningOf(words, word);
        const auto number = meaning ? meaning : numberOf(word);
        if (!number) {
            note(column, word);
        }
        value = number.value_or(0);
        return true;
    }
    bool readFlag(Column column, const std::string& field, bool& flag)
    {
        qint32 value = 0;
        const bool isSaid = readWord(column, FlagWords, field, value);
        flag = value != 0;
        return isSaid;
    }
    bool readMoment(Column column, const std::string& field, std::chrono::minutes timeOfDay, Moment& moment);
    std::optional<qint32> number(Column column, const std::string& field);
    std::optional<QDate> dateOf(const QString& text) const;
    void readCode(int column, const std::string& field);

    ReadCsvTask& m_read;
    const QString& m_shortDate;
};

std::optional<QDate> RowReading::dateOf(const QString& text) const
{
    for (const QString& format : {QStringLiteral("yyyy-MM-dd"), m_shortDate}) {
        if (const QDate date = QLocale().toDate(text, format); date.isValid()) {
            return date;
        }
        if (const QDate date = QDate::fromString(text, format); date.isValid()) {
            return date;
        }
    }
    return std::nullopt;
}

/// The local time of a moment in UTC or with an offset, as taskwarrior and others write it; none for others.
std::optional<Moment> momentWithOffset(QString text)
{
    static const QRegularExpression compact(
        QStringLiteral("^(\\d{4})(\\d\\d)(\\d\\d)T(\\d\\d)(\\d\\d)(\\d\\d)Z$"));
    static const QRegularExpression offset(
        QStringLiteral("\\d:\\d\\d(:\\d\\d(\\.\\d+)?)?(Z|[+-]\\d\\d:?\\d\\d)$"));
    text.replace(compact, QStringLiteral("\\1-\\2-\\3T\\4:\\5:\\6Z"));
    const QDateTime read = QDateTime::fromString(text, Qt::ISODate).toLocalTime();
    return offset.match(text).hasMatch() && read.isValid()
        ? std::optional(composeMoment(read.date(), read.time()))
        : std::nullopt;
}

bool RowReading::readMoment(
    Column column, const std::string& field, std::chrono::minutes timeOfDay, Moment& moment)
{
    const std::string_view value = trimmed(field);
    if (value.empty()) {
        return false;
    }
    if (const auto stored = momentFromStoredText(value)) {
        moment = toMinute(*stored);
        return true;
    }
    // A short date may hold blanks; the time stands behind the last one, or behind the T of the ISO form.
    constexpr std::size_t Longest = 60;
    QString text = textOf(value.substr(0, Longest));
    if (const auto read = momentWithOffset(text); read && isStorable(*read)) {
        moment = *read;
        return true;
    }
    if (text.size() > 10 && text.at(10) == u'T') {
        text[10] = u' ';
    }
    QTime time =
        QTime::fromMSecsSinceStartOfDay(static_cast<int>(std::chrono::milliseconds(timeOfDay).count()));
    auto date = dateOf(text);
    if (!date) {
        const qsizetype blank = text.lastIndexOf(u' ');
        const QString end = text.mid(blank + 1);
        time = QTime::fromString(end, QStringLiteral("H:mm"));
        time = time.isValid() ? time : QTime::fromString(end, QStringLiteral("H:mm:ss"));
        date = blank > 0 ? dateOf(text.left(blank)) : std::nullopt;
    }
    if (!date || !time.isValid() || !isStorable(toMoment(*date, time))) {
        note(column, value);
        return true;
    }
    moment = composeMoment(*date, time);
    return true;
}

std::optional<qint32> RowReading::number(Column column, const std::string& field)
{
    const std::string_view word = trimmed(field);
    const auto number = numberOf(word);
    if (!number && !word.empty()) {
        note(column, word);
    }
    return number;
}

void RowReading::readField(int column, const std::string& field)
{
    FileTask::Said& said = m_read.task.said;
    switch (column) {
    case NameColumn:
        task().name = field;
        said.name = true;
        break;
    case DescriptionColumn:
        task().description = field;
        said.description = true;
        break;
    case CategoryColumn:
        task().category = field;
        said.category = !field.empty();
        break;
    case SoundColumn:
        task().sound = field;
        said.sound = true;
        break;
    case FileColumn:
        task().file = field;
        said.file = true;
        break;
    case UidColumn:
        task().uid = field;
        if (!field.empty() && (!isSayable(field) || field.find('\n') != std::string::npos)) {
            note(UidColumn, field);
        }
        break;
    case RepeatColumn:
        m_read.task.rule.rule = trimmed(field);
        m_read.task.said.rule = true;
        break;
    default:
        readCode(column, field);
        break;
    }
}

void RowReading::readCode(int column, const std::string& field)
{
    FileTask::Said& said = m_read.task.said;
    switch (column) {
    case StatusColumn:
        said.status = readWord(StatusColumn, StatusWords, field, task().status);
        break;
    case PriorityColumn:
        said.periority = readWord(PriorityColumn, PriorityWords, field, task().periority);
        break;
    case DueColumn:
        said.due = readMoment(DueColumn, field, EndOfDay, task().due);
        break;
    case ReminderColumn:
        said.reminderOn = readFlag(ReminderColumn, field, task().reminderOn);
        break;
    case ReminderTimeColumn:
        said.reminder = readMoment(ReminderTimeColumn, field, Morning, task().reminder);
        break;
    case PlayedColumn:
        said.state = readFlag(PlayedColumn, field, task().played) || said.state;
        break;
    case DismissedColumn:
        said.state = readFlag(DismissedColumn, field, task().dismissed) || said.state;
        break;
    case FirstColumn:
        if (Moment first; readMoment(FirstColumn, field, EndOfDay, first)) {
            m_read.task.rule.first = first;
        }
        break;
    case LeadColumn:
        m_read.task.rule.lead = number(LeadColumn, field);
        break;
    case DoneColumn:
        m_read.task.rule.done = number(DoneColumn, field);
        break;
    default:
        break;
    }
}

} // namespace

void appendCsvHeader(std::string& out)
{
    appendCsvRow(out, {Header.begin(), Header.end()});
}

void appendCsvTask(std::string& out, const TaskRecord& task)
{
    const auto flag = [](bool value) {
        return std::string_view(value ? "yes" : "no");
    };
    const std::string status = wordOf(StatusWords, task.status);
    const std::string priority = wordOf(PriorityWords, task.periority);
    const std::string due = storedText(task.due);
    const std::string reminder = storedText(task.reminder);
    const Repeat repeat = task.repeat.value_or(Repeat{});
    const std::string first = task.repeat ? storedText(repeat.first) : std::string();
    const std::string lead = task.repeat ? std::to_string(repeat.lead.count()) : std::string();
    const std::string done = task.repeat ? std::to_string(repeat.done) : std::string();
    appendCsvRow(out,
        {task.name, task.description, status, task.category, due, priority, flag(task.reminderOn), reminder,
            task.sound, task.file, flag(task.played), flag(task.dismissed), task.uid, repeat.rule, first,
            lead, done});
}

CsvColumns::CsvColumns(const CsvRow& header, QString shortDate) : m_shortDate(std::move(shortDate))
{
    for (const std::string& caption : header.fields) {
        const int column = columnOf(caption);
        const bool isTaken = std::find(m_columns.begin(), m_columns.end(), column) != m_columns.end();
        m_columns.push_back(isTaken ? -1 : column);
    }
    if (!header.problem.isEmpty()
        || std::find(m_columns.begin(), m_columns.end(), NameColumn) == m_columns.end()) {
        throw RuntimeError(
            ExchangeTexts::tr("The file is no list of tasks: its first line has no column \"%1\".")
                .arg(textOf(Header[NameColumn])));
    }
}

ReadCsvTask CsvColumns::read(const CsvRow& row) const
{
    ReadCsvTask read;
    read.task.line = row.line;
    read.problem = row.problem;
    RowReading reading(read, m_shortDate);
    for (std::size_t i = 0; i < row.fields.size() && i < m_columns.size(); ++i) {
        if (m_columns[i] >= 0 && !isText(row.fields[i])) {
            read.problem = ExchangeTexts::tr("It holds bytes that are no text in UTF-8.");
        } else {
            reading.readField(m_columns[i], row.fields[i]);
        }
    }
    if (read.task.said.reminder && !read.task.said.reminderOn) {
        read.task.said.reminderOn = read.task.task.reminderOn = true;
    }
    return read;
}
