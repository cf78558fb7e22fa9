#include "app/TaskReportFormats.h"

#include "data/TaskCodes.h"

namespace
{

constexpr int NoCode = -1;

int codeOf(const QString& value)
{
    bool isNumber = false;
    const int code = value.toInt(&isNumber);
    return isNumber ? code : NoCode;
}

} // namespace

void periorityFormat_Format(QString& value)
{
    switch (codeOf(value)) {
    case TaskPeriority::High:
        value = QStringLiteral("High");
        break;
    case TaskPeriority::Normal:
        value = QStringLiteral("Normal");
        break;
    default:
        value = QStringLiteral("Low");
        break;
    }
}

void statusFormat_Format(QString& value)
{
    switch (codeOf(value)) {
    case TaskStatus::NotStarted:
        value = QStringLiteral("Not Started");
        break;
    case TaskStatus::InProgress:
        value = QStringLiteral("In Progress");
        break;
    case TaskStatus::Completed:
        value = QStringLiteral("Completed");
        break;
    case TaskStatus::Waiting:
        value = QStringLiteral("Waiting on someone else");
        break;
    case TaskStatus::Deferred:
        value = QStringLiteral("Deferred");
        break;
    default:
        break;
    }
}
