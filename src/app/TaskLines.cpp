#include "app/TaskLines.h"

#include "data/SqlText.h"
#include "data/TaskRecord.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <array>

namespace
{

constexpr std::array Names{"task_id", "task_name", "task_desc", "task_status", "cat_id", "task_due_date",
    "task_periority", "reminder_on", "reminder_date_time", "reminder_sound", "reminder_file", "played",
    "dismissed", "category"};

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// The values in the order of the names.
std::array<QJsonValue, Names.size()> valuesOf(const TaskRecord& task)
{
    return {task.id, text(task.name), text(task.description), task.status, task.categoryId,
        text(storedText(task.due)), task.periority, task.reminderOn, text(storedText(task.reminder)),
        text(task.sound), text(task.file), task.played, task.dismissed, text(task.category)};
}

QByteArray jsonText(const QJsonValue& value)
{
    // Qt writes arrays and objects only.
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).sliced(1).chopped(1);
}

/// Whether something that reads the letter may take it for more than a letter: the end of a line, the begin
/// of a terminal's command.
bool breaksLines(QChar letter)
{
    const QChar::Category category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

QString tabbedText(const QJsonValue& value)
{
    if (value.isString()) {
        return onOneLine(value.toString());
    }
    return value.isBool() ? sqlFlag(value.toBool()) : QString::number(value.toInt());
}

} // namespace

QString onOneLine(const QString& text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar letter : text) {
        switch (letter.unicode()) {
        case u'\\':
            line += QLatin1String("\\\\");
            break;
        case u'\t':
            line += QLatin1String("\\t");
            break;
        case u'\n':
            line += QLatin1String("\\n");
            break;
        case u'\r':
            line += QLatin1String("\\r");
            break;
        default:
            if (breaksLines(letter)) {
                line += QStringLiteral("\\u%1").arg(letter.unicode(), 4, 16, QLatin1Char('0'));
            } else {
                line += letter;
            }
        }
    }
    return line;
}

QByteArray tabbedNames()
{
    QByteArray line;
    for (const char* name : Names) {
        line += QByteArray(line.isEmpty() ? "" : "\t") + name;
    }
    return line + '\n';
}

QByteArray tabbedLine(const TaskRecord& task)
{
    QStringList texts;
    for (const QJsonValue& value : valuesOf(task)) {
        texts.append(tabbedText(value));
    }
    return texts.join(u'\t').toUtf8() + '\n';
}

QByteArray jsonObject(const TaskRecord& task)
{
    // Not by QJsonObject, which would sort the columns.
    QByteArray object;
    const auto values = valuesOf(task);
    for (std::size_t i = 0; i < Names.size(); ++i) {
        object += QByteArray(i == 0 ? "{\"" : ",\"") + Names[i] + "\":" + jsonText(values[i]);
    }
    return object + '}';
}
