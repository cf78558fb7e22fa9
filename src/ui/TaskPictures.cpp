#include "ui/TaskPictures.h"

#include "data/TaskCodes.h"

#include <QCoreApplication>

namespace
{

QString word(const char* text)
{
    // The words are those that the lists of choices show.
    return QCoreApplication::translate("clsGuiLoader", text);
}

} // namespace

int statusPicture(qint32 status)
{
    switch (status) {
    case TaskStatus::NotStarted:
        return 16;
    case TaskStatus::InProgress:
        return 17;
    case TaskStatus::Completed:
        return 15;
    case TaskStatus::Waiting:
        return 13;
    case TaskStatus::Deferred:
        return 14;
    default:
        return NoPicture;
    }
}

int periorityPicture(qint32 periority)
{
    switch (periority) {
    case TaskPeriority::High:
        return 19;
    case TaskPeriority::Normal:
        return 18;
    case TaskPeriority::Low:
        return 20;
    default:
        return NoPicture;
    }
}

QString statusWord(qint32 status)
{
    switch (status) {
    case TaskStatus::NotStarted:
        return word("Not Started");
    case TaskStatus::InProgress:
        return word("In Progress");
    case TaskStatus::Completed:
        return word("Completed");
    case TaskStatus::Waiting:
        return word("Waiting on someone else");
    case TaskStatus::Deferred:
        return word("Deferred");
    default:
        return {};
    }
}

QString periorityWord(qint32 periority)
{
    switch (periority) {
    case TaskPeriority::High:
        return word("High");
    case TaskPeriority::Normal:
        return word("Normal");
    case TaskPeriority::Low:
        return word("Low");
    default:
        return {};
    }
}
