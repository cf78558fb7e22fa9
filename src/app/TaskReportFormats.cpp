#include "app/TaskReportFormats.h"

#include "data/TaskCodes.h"
#include "widgets/TaskPictures.h"

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
    const int code = codeOf(value);
    const bool isHigher = code == TaskPeriority::High || code == TaskPeriority::Normal;
    value = periorityWord(isHigher ? code : TaskPeriority::Low);
}

void statusFormat_Format(QString& value)
{
    if (const QString word = statusWord(codeOf(value)); !word.isEmpty()) {
        value = word;
    }
}
